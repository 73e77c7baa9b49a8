// The command "simulate" of the command line.
#include "tests/cli/command_line.h"
#include "tests/support/fake_solver.h"

namespace tricklet::test {
namespace {

TEST_F(CommandLine, Simulates) {
  ASSERT_EQ(Run("--yes import @in.pbn"), 0) << err;
  FakeSolver fake;
  fake.solveCards = [](const SolverPosition& position) {
    const PerSuit<Holding>& hand = position.cardsLeft[position.leader];
    std::vector<CardScore> scores;
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (hand[card.suit].Has(card.rank)) scores.push_back({card, 13 - hand[card.suit].Count()});
    }
    return scores;
  };
  solver = [&fake]() -> Solver& { return fake; };
  ASSERT_EQ(Run("simulate lead 7 --contract 1NT --by S --deals 10 --library Kept"), 0) << err;
  EXPECT_EQ(out.substr(0, out.find('\n')),
            "Card\tBeats %\tError\tTricks\tError\tBehind %\tError\tBehind tricks\tError\tMP "
            "%\tError\tIMPs\tError");
  EXPECT_TRUE(Exists("root/Kept/010.txt") && !Exists("root/Kept/011.txt"));
  EXPECT_NE(err.find("Each deal solved double-dummy"), std::string::npos);
  const std::string leads = out;
  EXPECT_EQ(Run("simulate lead 7 --contract 1NT --by S --deals 10 --library Kept"), 1);
  EXPECT_EQ(out, leads) << "the board and the seed are the same";
  EXPECT_EQ(Run("simulate contract 7 --contract 1NT --by S --against 2H --csv --deals 10"), 0);
  EXPECT_NE(out.find("\n2H,South,"), std::string::npos) << out;
  interrupted = true;
  EXPECT_EQ(Run("simulate lead 7 --contract 1NT --by S"), 1) << "interrupted";
  interrupted = false;
  const std::pair<std::string, std::string> kRefused[] = {
      {"lead 7 --contract 8NT --by S", "2 8NT is no contract\n"},
      {"lead 7 --contract 1NT --by Q", "2 Q is no seat\n"},
      {"lead 7 --contract 1NT --by S --forget N,X", "2 X is no seat\n"},
      {"lead 7 --contract 1NT --by S --forget W",
       "1 West is on play, so its cards must be known\n"},
      {"play 7 --contract 1NT --by S --cards 'SK S1'", "2 S1 is no card\n"},
      {"play 7 --contract 1NT --by S --cards S3",
       "1 \u2660"
       "3 cannot be played by West now\n"},
      {"lead 9 --contract 1NT --by S", "1 There is no board 9 in library Default\n"},
  };
  for (const auto& [line, answer] : kRefused) EXPECT_EQ(Answer("simulate " + line), answer);
}

}  // namespace
}  // namespace tricklet::test
