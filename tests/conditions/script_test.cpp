#include "conditions/script.h"

#include <gtest/gtest.h>

#include "analysis/get_dds.h"
#include "analysis/solver_library.h"
#include "conditions/dealing.h"
#include "conditions/vocabulary.h"
#include "tests/support/hands.h"

namespace tricklet {
namespace {

std::string FaultsOf(std::string_view text) {
  std::string faults;
  for (const ScriptFault& fault : ReadScript(text).faults) faults += FaultText(fault) + "\n";
  return faults;
}

int ValueOf(const std::string& text, const HandTable& hands) {
  const ReadOutcome outcome = ReadScript(text);
  EXPECT_TRUE(outcome.script) << text << "\n" << FaultsOf(text);
  if (!outcome.script) return 0;
  RandomSource random(1);
  Evaluator evaluator(outcome.script, nullptr, random);
  return evaluator.Value(outcome.script->Condition(), hands);
}

/// The values are those that dealer (Debian 20211121) prints for this deal.
TEST(Script, ValuesAreThoseOfDealer) {
  const HandTable hands =
      test::HandsOf("N:2.T98.K752.KJT84 5.J7642.986.9763 AQ8.AQ5.QJT.AQ52 KJT97643.K3.A43.");
  const struct {
    const char* expression;
    int value;
  } kCases[] = {
      {"7/2*10+(0-7)/2", 27},
      {"(0-7)%3", -1},
      {"2147483647+1", -2147483647 - 1},
      {"65536*65536+3000000000", -1294967296},
      {"99999999999999999999", -1},
      {"10-3-2", 5},
      {"1 or 1 and 0", 1},
      {"2+3*4-5%3", 12},
      {"1?2:0?3:4", 2},
      {"1 ? 0 ? 4 : 3 : 1 ? 2 : 1", 3},
      {"not 1==0", 1},
      {"!0*2", 2},
      {"2 - -1", 3},
      {"5&&3", 1},
      {"1<2==1", 1},
      {"0012", 12},
      {"2==2!=0", 1},
      {"1 || 0 ? 1 : 0", 1},
      {"hcp(south)", 21},
      {"hcp(west,hearts)", 3},
      {"controls(south)", 6},
      {"control(south,club)", 2},
      {"loser(north)", 8},
      {"losers(west)", 5},
      {"losers(south,diamonds)", 2},
      {"loser(east,spades)", 1},
      {"cccc(north)", 950},
      {"cccc(south)", 1995},
      {"cccc(west)", 1710},
      {"cccc(east)", 165},
      {"quality(west,spades)", 480},
      {"quality(south,clubs)", 240},
      {"quality(north,clubs)", 250},
      {"tens(south)", 1},
      {"jack(south)", 1},
      {"queens(south,hearts)", 1},
      {"pt3(south)", 0},
      {"aces(south)", 3},
      {"top2(south,spades)", 1},
      {"top3(south)", 7},
      {"top4(north,clubs)", 2},
      {"top5(north,clubs)", 3},
      {"c13(south)", 27},
      {"pt9(west,spades)", 5},
      {"hascard(east,JH)", 1},
      {"hascard(south,2C)", 1},
      {"spades(west)*100+club(west)", 800},
      {"shape(west,any 8320)", 1},
      {"shape(west,8xxx-xxx0)", 0},
      {"shape(west,8xxx-xxx0+any 0238)", 1},
      {"shape(west,any 7xxx, x23x 823x)", 1},
      {"shape(north,-1345+xxxx)", 1},
      {"score(vul,x3N,hcp(north))", -200},
      {"score(nv,x7C,13)", 1440},
      {"score(vul,x4S,0)", -1000},
      {"score(nv,x6D,13)", 940},
      {"imps(score(vul,x4H,10)-score(nv,x3D,12))", 10},
      {"imp(15)", 1},
      {"imps(0-420)*100+imps(1300)", -984},
  };
  for (const auto& [expression, value] : kCases) {
    EXPECT_EQ(ValueOf(expression, hands), value) << expression;
  }
}

TEST(Script, StatementsAreReadAsWritten) {
  const ReadOutcome outcome = ReadScript(
      "# a comment\nproduce 7 generate 99 dealer west vulnerable EW seed 5 /* two\n lines */\n"
      "altcount 0 9 8\npointcount 1 1 -1 // no queens\npredeal south SAQ, H5 hearts(north)==2\n"
      "both = hcp(south) + tens(south)\ncondition 0\naction printes(\"a\\\n\", both, \\n),\n"
      "print(north, west), average \"x\" both,\nboth > 3\n");
  ASSERT_TRUE(outcome.script);
  const ScriptContent& content = outcome.script->Content();
  EXPECT_EQ(content.produce, 7);
  EXPECT_EQ(content.generate, 99);
  EXPECT_EQ(content.seed, 5U);
  EXPECT_EQ(content.dealer, Seat::West);
  EXPECT_EQ(content.vulnerable, Vulnerability::EastWest);
  EXPECT_EQ(content.predealt.lengths[Seat::North][Suit::Hearts], 2);
  ASSERT_EQ(content.actions.size(), 3U);
  EXPECT_EQ(content.actions[0].pieces[0].text, "a\\\n");
  EXPECT_EQ(content.actions[1].seats, (std::vector{Seat::North, Seat::West}));
  const HandTable hands = test::HandsOf("N:... ... AKQ... KT98...");
  RandomSource random(1);
  Evaluator evaluator(outcome.script, nullptr, random);
  EXPECT_EQ(evaluator.Value(content.actions[2].expression, hands), 1 + 1 - 1 + 9 + 8);
  EXPECT_TRUE(evaluator.Accepts(hands)) << "the last condition counts";
}

TEST(Script, FaultsTellWhereAndWhat) {
  const struct {
    const char* text;
    const char* faults;
  } kCases[] = {
      {"hcp(nort) > 3", "Line 1, column 5: \"nort\" is no seat: north?\n"},
      {"hcp(dummy)", "Line 1, column 5: \"dummy\" is no seat (north, east, south, west)\n"},
      {"vulnerable me", "Line 1, column 12: \"me\" is no vulnerability"},
      {"a = 1\n  b = hpc(north)\nb and c\n", "Line 2, column 7: \"hpc\" is no function: hcp?\n"},
      {"a = 1\na = 2", "Line 2, column 1: \"a\" is defined already\n"},
      {"1 and (2 or 3", "Line 1, column 14: expected \")\", not the end of the text\n"},
      {"a = 1 ? 2\nb = 3 : 4",
       "Line 2, column 1: expected \":\", not \"b\"\n"
       "Line 2, column 7: \":\" without a \"?\" before it\n"},
      {"shape(west, 5555)", "Line 1, column 13: no hand has the suit lengths \"5555\"\n"},
      {"hascard(west, SA)", "Line 1, column 15: the rank of a card comes first here: AS?\n"},
      {"predeal south SA north HA, SA", "Line 1, column 28: AS is predealt twice\n"},
      {"predeal south SA54\nspades(south)==2", "Line 2, column 17: "},
      {"/* x", "Line 1, column 1: the comment has no end"},
      {"action printal", "Line 1, column 8: \"printal\" is no action: printall?\n"},
      {"/* \xC3\xA9\xE2\x80\x99 */ hcp(north) & 1", "Line 1, column 21: "},
  };
  for (const auto& [text, faults] : kCases) {
    EXPECT_EQ(FaultsOf(text).substr(0, std::string_view(faults).size()), faults) << text;
  }
}

TEST(Script, LongAndDeepTextsAreBounded) {
  const HandTable none;
  const auto repeated = [](std::string_view part, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += part;
    return text;
  };
  EXPECT_EQ(ValueOf(repeated("(", 10000) + "7" + repeated(")", 10000), none), 7);
  EXPECT_NE(FaultsOf(repeated("(", 10001) + "7" + repeated(")", 10001)), "");
  EXPECT_NE(FaultsOf(repeated(" ", (1 << 20) + 1)), "");
  const std::string spades = "spades(north)";
  EXPECT_EQ(ValueOf(spades + repeated("+1", 100000), none), 100000);
  EXPECT_EQ(ValueOf(repeated("!", 100000) + spades, none), 0);
  EXPECT_EQ(ValueOf(repeated("1+(", 9999) + spades + repeated(")", 9999), none), 9999);
  std::string chain = "v0 = " + spades + "\n";
  std::string doubling = "d0 = rnd(2)\n";
  for (int i = 1; i <= 10000; ++i) {
    chain += "v" + std::to_string(i) + "=v" + std::to_string(i - 1) + "+1\n";
  }
  for (int i = 1; i <= 40; ++i) {
    const std::string before = "d" + std::to_string(i - 1);
    doubling += "d" + std::to_string(i) + "=" + before + "+" + before + "\n";
  }
  EXPECT_EQ(ValueOf(chain + "v10000", none), 10000);
  EXPECT_NE(FaultsOf(doubling + "d40"), "") << "a trillion random numbers";
}

/// The solver finds the table by another of its calls.
TEST(Script, TricksAreThoseOfTheTable) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  const HandTable hands =
      test::HandsOf("N:K652.K73.K54.742 J8.J98.AT83.JT98 Q7.AQ2.QJ96.AKQ6 AT943.T654.72.53");
  std::string failure;
  const auto table = SolveDeals(*solver, {hands}, failure);
  ASSERT_EQ(table.size(), 1U) << failure;
  RandomSource random(1);
  for (const Seat seat : kAllSeats) {
    for (const auto& [word, strain] : {std::pair{"notrump", TableStrain::NoTrump},
                                       {"spades", TableStrain::Spades},
                                       {"hearts", TableStrain::Hearts},
                                       {"diamonds", TableStrain::Diamonds},
                                       {"clubs", TableStrain::Clubs}}) {
      const std::string text = "tricks(" + std::string(WordFor(seat)) + ", " + word + ")";
      const auto script = ReadScript(text).script;
      ASSERT_TRUE(script && script->UsesSolver()) << text;
      Evaluator evaluator(script, solver.get(), random);
      EXPECT_EQ(evaluator.Value(script->Condition(), hands),
                table.front()[ToTableSeat(seat)][strain])
          << text;
    }
  }
}

}  // namespace
}  // namespace tricklet
