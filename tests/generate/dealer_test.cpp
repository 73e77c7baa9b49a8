// Against the program dealer: the deals are its own, and what is written of them must be the same.
#include <algorithm>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "conditions/evaluator.h"
#include "generate/deal_report.h"
#include "tests/support/hands.h"

namespace tricklet {
namespace {

/// What dealer prints on standard output for a script.
std::string RunDealer(const std::string& script) {
  const std::string command =
      "exec " TRICKLET_DEALER_PROGRAM " -s 1 2>&1 <<'END'\n" + script + "\nEND\n";
  std::FILE* const output = popen(command.c_str(), "r");
  if (output == nullptr) return {};
  std::string text;
  for (int c = std::fgetc(output); c != EOF; c = std::fgetc(output)) text += static_cast<char>(c);
  EXPECT_EQ(pclose(output), 0) << text.substr(0, 200);
  return text;
}

/// The manual says that "altcount 0" to "altcount 9" are what "pt0" to "pt9" count. The program
/// takes 0 and 1 for points and controls, and so "pt0" to "pt9" for 2 to 11.
std::string AsDealerCounts(std::string script) {
  constexpr std::string_view kWord = "altcount ";
  for (auto at = script.find(kWord); at != std::string::npos; at = script.find(kWord, at)) {
    at += kWord.size();
    script.replace(at, 1, std::to_string(script[at] - '0' + 2));
  }
  return script;
}

/// The deals of the lines "n S.H.D.C e ... s ... w ...", each of which may come twice.
std::vector<HandTable> DealsIn(const std::string& output) {
  std::vector<HandTable> deals;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("n ") || line.find(" w ") == std::string::npos) continue;
    std::istringstream words(line);
    std::string deal = "N:";
    std::string seat;
    for (std::string hand; words >> seat >> hand;) deal += hand + " ";
    const HandTable hands = test::HandsOf(deal);
    if (deals.empty() || deals.back() != hands) deals.push_back(hands);
  }
  return deals;
}

/// The lines, without those that tell of the run, and without the program's name in PBN.
std::vector<std::string> Comparable(const std::string& output) {
  std::vector<std::string> compared;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) {
    const auto begins = [&line](const char* with) { return line.starts_with(with); };
    if (begins("Generated ") || begins("Produced ") || begins("Initial ")) continue;
    if (begins("Time needed ") || begins("[Date ")) continue;
    compared.push_back(begins("[Event ") ? "[Event]" : line);
  }
  return compared;
}

std::string OurReport(const std::string& text, const std::vector<HandTable>& deals) {
  const ReadOutcome outcome = ReadScript(text);
  EXPECT_TRUE(outcome.script) << (outcome.faults.empty() ? "" : FaultText(outcome.faults.front()));
  if (!outcome.script) return {};
  RandomSource random(1);
  Evaluator evaluator(outcome.script, nullptr, random);
  std::ostringstream written;
  DealReport report(outcome.script, "script", 1, written);
  for (const HandTable& hands : deals) {
    EXPECT_TRUE(evaluator.Accepts(hands));
    FoundDeal deal{.hands = hands, .values = {}};
    for (const ExpressionId expression : ExpressionsOf(*outcome.script)) {
      deal.values.push_back(evaluator.Value(expression, hands));
    }
    report.Add(deal);
  }
  report.Finish();
  return written.str();
}

/// `printes` of functions of each hand and, where these can be asked for, of each of its suits.
std::string OfEverything(const std::vector<std::string>& functions) {
  std::string text = "printes(\"values\"";
  for (const std::string& function : functions) {
    for (const char* seat : {"north", "east", "south", "west"}) {
      if (function != "quality") text += ",\" \"," + function + "(" + seat + ")";
      if (function == "cccc") continue;
      for (const char* suit : {"spades", "hearts", "diamonds", "clubs"}) {
        text.append(",\" \",").append(function).append("(").append(seat).append(",");
        text.append(suit).append(")");
      }
    }
  }
  return text + ",\\n)";
}

const std::vector<std::string> kCounts{"tens", "jacks", "queens", "kings", "aces",
                                       "top2", "top3",  "top4",   "top5",  "c13"};

TEST(DealReport, WritesOfDealersDealsWhatDealerWrites) {
  std::string cards = "printes(\"cards\"";
  const std::string altCounts =
      "altcount 0 1 2 3 4 5 6 7 8 9 10 11 12 13 altcount 7 0 5 altcount 9 -1 0 -2 altcount 3 100\n";
  std::string scores = "printes(\"scores\"";
  for (const char suit : {'S', 'H', 'D', 'C'}) {
    for (const char rank : std::string_view("AKQJT98765432")) {
      cards += std::string(",\" \",hascard(east,") + rank + suit + ")";
    }
  }
  for (const char* strain : {"C", "D", "H", "S", "N"}) {
    for (int level = 1; level <= 7; ++level) {
      const std::string contract = ",x" + std::to_string(level) + strain + ",t)";
      scores += ",\" \",score(vul" + contract + ",\" \",score(nv" + contract;
    }
  }
  // Long scripts stand in several literals.
  // NOLINTBEGIN(bugprone-suspicious-missing-comma)
  const std::string cases[] = {
      "produce 2000 action printoneline, " +
          OfEverything({"hcp", "controls", "losers", "quality", "cccc"}),
      "produce 2000 action printoneline, " + OfEverything(kCounts),
      "produce 1000 pointcount 6 4 2 1 1 0 0 0 0 0 0 0 3 " + altCounts + "action printoneline, " +
          OfEverything({"hcp", "pt0", "pt1", "pt2", "pt3", "pt7", "pt9", "controls", "cccc"}),
      "produce 1000 action printoneline, " + cards + ",\\n)",
      "produce 1000 t = (hcp(north)+hcp(south))*13/40 d = hcp(north)*250-hcp(south)*250\n"
      "action printoneline, " +
          scores + ",\" \",imps(d),\" \",imps(score(vul,x4H,t)-score(nv,x3N,t)),\\n)",
      "produce 2000 n = 0-hcp(north) condition hcp(north)>9 && shape(north,any 4333+5xxx-x5xx)\n"
      "|| shape(east, any 0xxx - 0xxx, 13xx + 31xx) action printoneline, printes(n/3,\" \",n%4,\" "
      "\""
      ",n*n,\" \",n<hcp(east)?spades(east):7,\" \",n and 0 or !n,\" \",shape(west,any 54xx-any "
      "5440)"
      ",\" \",hearts(west)-clubs(south)-diamonds(east),\\n)",
      "produce 5000 action printoneline, average \"points\" hcp(west), average hcp(east)*12345,\n"
      "average \"below\" hcp(east)-hcp(west), frequency \"one\" (hcp(west),3,17), frequency\n"
      "(losers(south),0,12), frequency \"two\" (spades(west),2,5,hearts(west),1,6),\n"
      "frequency \"three\" (cccc(south),700,720,hcp(north)-hcp(south),-3,2)",
      "produce 41 action printoneline, printall, printew, printcompact, printcompact(hcp(east)),\n"
      "printoneline(losers(west)), print(west,north), print(south), average \"last\" 3",
      "produce 20 action printoneline, printpbn",
      "produce 2 vulnerable EW dealer west action printoneline, printpbn",
  };
  // NOLINTEND(bugprone-suspicious-missing-comma)
  for (const std::string& script : cases) {
    const std::string theirs = RunDealer(AsDealerCounts(script));
    const std::vector<HandTable> deals = DealsIn(theirs);
    ASSERT_FALSE(deals.empty()) << script << "\n" << theirs;
    const std::vector<std::string> wanted = Comparable(theirs);
    const std::vector<std::string> written = Comparable(OurReport(script, deals));
    EXPECT_EQ(written.size(), wanted.size()) << script;
    for (std::size_t i = 0; i < std::min(written.size(), wanted.size()); ++i) {
      ASSERT_EQ(written[i], wanted[i]) << "line " << i + 1 << " of\n" << script;
    }
  }
}

}  // namespace
}  // namespace tricklet
