// Travellers out of a library's results.
#include "formats/results/traveller.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "formats/lin/lin_record.h"
#include "formats/results/board_results.h"
#include "formats/results/call_remarks.h"
#include "formats/results/lin_data.h"
#include "tests/support/calls.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"
#include "tests/support/words.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

/// A record of board 1 (North deals, nobody vulnerable) with these names and tags; North has the
/// spades, East the hearts, South the diamonds, West the clubs.
std::string Record(const std::string& names, const std::string& auctionAndTags) {
  return "qx||pn|" + names +
         "|st||md|3DAKQJT98765432,CAKQJT98765432,SAKQJT98765432,|rh||ah|Board 1|" + auctionAndTags;
}

/// The tags of a scorer as they stand in the file: tricks, score, match points of either side,
/// contract, declarer, lead and IMPs; "-", or what is missing at the end, is empty.
std::string Tags(const std::string& values) {
  auto words = Words(values);
  words.resize(kLinResultTags, "-");
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string value = words[i] == "-" ? "" : words[i];
    text += std::string(LinResultTagText.values.at(i)) + "|" + value + "||";
  }
  return text;
}

LinFile FileOf(const char* method, std::vector<std::string> records) {
  LinFile file;
  file.boardScoringMethod = method;
  file.names = {
      "1 NS Ann & Bob",     "2 EW Cy & Di",       "3 NS Eve & Robot",         "4 EW Gus & Hal",
      "5 EW Robot & Robot", "6 EW Robot & Robot", "7 NS Jim & Ono, Zo\u00eb", "8"};
  file.lin = std::move(records);
  return file;
}

/// "MP: 3:1 0:4 -": the heading, "=" where it is computed, and the points of North-South and
/// East-West, row by row.
std::string PointsText(const Traveller& traveller) {
  std::string text = traveller.scoring + (traveller.computed ? "=" : "");
  for (const TravellerRow& row : traveller.rows) {
    const auto& [ns, ew] = row.points.values;
    EXPECT_EQ(ns.has_value(), ew.has_value());
    text += ns ? " " + ShortestText(*ns) + ":" + ShortestText(*ew) : " -";
  }
  return text;
}

/// The only row of a traveller in IMPs.
TravellerRow RowOf(const std::string& record) {
  return MakeTraveller(FileOf("IMPS", {record}), 1).rows.at(0);
}

TEST(Traveller, RowAsTheScorerGaveIt) {
  const LinFile file =
      FileOf("MATCH_POINTS",
             {Record("Bob,Di,Ann,Cy", "mb|1S|mb|p|mb|4S!|mb|d|mb|p|mb|p|mb|p|pc|HA|pc|D2|mc|9|" +
                                          Tags("11 690 6 0.5 4Sx N 2H 3.25")),
              "qx|o2|pn|Bob,Di,Ann,Cy|ah|Board 2|"});
  const Traveller traveller = MakeTraveller(file, 1);
  EXPECT_EQ(PointsText(traveller), "MP 6:0.5");
  const TravellerRow& row = traveller.rows.at(0);
  EXPECT_EQ(row.lead, (Card{Suit::Hearts, Rank::Two}));
  EXPECT_EQ(ReadLinBidding(row), "4Sx by North +1 +690 Ann & Bob v Cy & Di")
      << "the scorer's tricks, not the record's";
}

TEST(Traveller, RowsInOneLine) {
  const std::string auction = "mb|1N|mb|p|mb|p|mb|p|";
  // East leads hearts, and all the others throw away their own suits.
  std::string play;
  for (const char rank : std::string("AKQJT98765432")) {
    for (const char suit : std::string("HDCS")) play += std::string("pc|") + suit + rank + "|";
  }
  const std::pair<std::string, const char*> kCases[] = {
      {Tags("7 90 - - 1N N"), "1NT by North = +90"},
      {Tags("9 -50 - - 4H S"), "4H by South -1 -50"},
      {Tags("10 -420 - - 4HX E"), "4Hx by East = -420"},
      {Tags("0 0 - - PASS N"), "All Pass"},
      {LinPasses(4) + Tags(""), "All Pass"},
      // rulings
      {auction + play + Tags("- A6040"), "A6040"},
      {auction + "mc|9|" + Tags("- A6040 - - 1N N"), "1NT by North A6040"},
      {Tags("8 A6040 - - 1N N"), "1NT by North +1 A6040"},
      // what the record tells
      {Tags(""), "Not played"},
      {auction, "Not played"},
      {auction + "mc|9|", "1NT by North +2 +150"},
      {LinPasses(99) + "mb|1C|mb|p|mc|7|", "1C by West = -70"},  // more calls than a board holds
      {auction + play, "1NT by North -7 -350"},
      {auction + play + "mc|2|", "1NT by North -5 -250"},
      {play + Tags("- - - - 1N E"), "Not played"},  // the play breaks the rules in this contract
      {Tags("14 90 - - 1N N"), "1NT by North +90"},
      {Tags("8 0 - - 42 N"), "="}};
  for (const auto& [tags, line] : kCases) {
    EXPECT_EQ(ReadLinBidding(RowOf(Record("Bob,Di,Ann,Cy", tags))),
              std::string(line) + " Ann & Bob v Cy & Di");
  }
}

TEST(Traveller, PairsByTheirPlayers) {
  // South, West, North, East; the pairs' numbers and all four
  const std::pair<const char*, const char*> kCases[] = {
      {"Ann,Cy,Bob,Di", "1:2 Bob & Ann v Di & Cy"},
      {"advanced BBO,Gus,Eve,Hal", "3:4 Eve & Robot v Hal & Gus"},
      {"Ann,Robot,Bob,Robot", "1: Bob & Ann v Robot & Robot"},
      {"Cy,Ann,Di,Bob", ": Di & Cy v Bob & Ann"},
      {"Ann,,Bob,Zoe", "1: Bob & Ann v Zoe"},
      {"Ono Zo\u00eb,,Jim,", "7: Jim & Ono Zo\u00eb v "},
      {"", ":  v "}};
  for (const auto& [names, pairs] : kCases) {
    const TravellerRow row = RowOf(Record(names, ""));
    EXPECT_EQ(row.pair[Side::NorthSouth] + ":" + row.pair[Side::EastWest] + " " + row.NamesText(),
              pairs);
  }
}

TEST(Traveller, PointsAreComputedWhereTheFileHasNone) {
  // The scoring; the tables' scores; their IMPs, or 0 each; heading and points
  const std::tuple<const char*, const char*, const char*, const char*> kCases[] = {
      {"MATCH_POINTS", "620 -100 620", "", "MP= 3:1 0:4 3:1"},
      {"MATCH_POINTS", "620", "", "MP= -"},
      {"MATCH_POINTS", "620 A50 50", "", "MP= 2:0 - 0:2"},
      // a ruling has its share of the top of the others
      {"MATCH_POINTS", "620 A6040 50 AVE 50 60%/60% NP", "",
       "MP= 4:0 2.4:1.6 1:3 2:2 1:3 2.4:2.4 -"},
      {"MATCH_POINTS", "620 av-/AV+ 50 A9 A60/x A140/0 100/-1", "", "MP= 2:0 0.8:1.2 0:2 - - - -"},
      {"CROSS_IMPS", "A50 620", "", "XIMP= - -"},
      {"CROSS_IMPS", "620 600 -100", "", "XIMP= 13:-13 11:-11 -24:24"},
      {"CROSS_IMPS", "50 50", "", "XIMP= 0:0 0:0"},
      {"IMPS", "420 -50", "", "IMP= 10:-10 -10:10"},
      {"IMPS", "420 -50 0", "", "IMP= - - -"},  // more teams than can be told apart
      {"CROSS_IMPS", "420 400 410", "2.5 -2.5 0", "XIMP 2.5:-2.5 -2.5:2.5 0:0"},
      {"BUTLER_IMPS", "420 50", "4 0", "BIMP 4:-4 0:0"},
      // computed against the other table, not against a datum
      {"BUTLER_IMPS", "420 50", "", "XIMP= 9:-9 -9:9"}};
  for (const auto& [method, scores, imps, points] : kCases) {
    std::vector<std::string> records;
    const std::vector<std::string> given = Words(imps);
    for (const std::string& score : Words(scores)) {
      const std::string own = given.empty() ? "0" : given.at(records.size());
      records.push_back(Record("", Tags("- " + score + " 0 0 - - - " + own)));
    }
    LinFile file = FileOf(method, std::move(records));
    if (file.boardScoringMethod == "BUTLER_IMPS") file.boardScoringAbb = "BIMP";
    EXPECT_EQ(PointsText(MakeTraveller(file, 1)), points) << scores;
  }
}

TEST(Traveller, AScorersContractStandsInForAnAuctionThatIsNotShown) {
  // The dealer, the auction and the tags of a record; contract, declarer and calls that it shows
  const std::string tags = Tags("10 420 - - 4S S");
  const std::tuple<const char*, const char*, std::string, const char*> kCases[] = {
      {"3", "", tags, "4S South 0"},
      {"3", "mb|1H|mb|p|mb|p|mb|p|", tags, "1H North 4"},  // the play follows the auction
      {"4", "mb|1H|mb|p|mb|p|mb|p|", tags, "4S South 0"},  // of another dealer
      {"4", "mb|1H|mb|p|mb|p|mb|p|", "", " North 0"}};
  for (const auto& [dealer, auction, own, shown] : kCases) {
    const std::string record = "qx||md|" + std::string(dealer) + "SAK,HAK,DAK|ah|Board 1|";
    const Board board = RowOf(record + auction + own).record.board;
    EXPECT_EQ(board.contract + " " + std::string(SeatName[board.declarer]) + " " +
                  std::to_string(board.NumCalls()),
              shown);
  }
}

TEST(Traveller, HasAsManyRowsAsCanBeLookedThrough) {
  std::vector<std::string> records;
  for (std::size_t table = 0; table < 2 * kMaxTravellerRows; ++table) {
    records.push_back("|Board 1|qens|" + std::to_string(10 * table) + "|");
  }
  const Traveller traveller = MakeTraveller(FileOf("MATCH_POINTS", records), 1);
  ASSERT_EQ(traveller.rows.size(), kMaxTravellerRows);
  EXPECT_EQ(traveller.rows.back().points[Side::NorthSouth], 2.F * (kMaxTravellerRows - 1));
}

TEST(Traveller, TheBoardsRecordIsTheOneLookedAtElseTheFirstWithAPlay) {
  const std::string played = Record("a,b,c,d", "mb|1S|mb|p|mb|p|mb|p|pc|HA|");
  const Traveller traveller = MakeTraveller(
      FileOf("IMPS", {Record("e,f,g,h", ""), played + Tags(""), Record("i,j,k,l", "pc|HA|")}), 1);
  Board board = traveller.rows.at(0).record.board;
  EXPECT_EQ(LinPlayRecord(traveller, board), played);
  EXPECT_EQ(LinPlayRecord(traveller, board, 0), Record("e,f,g,h", ""));
  EXPECT_EQ(LinPlayRecord(Traveller(), board), "");
  board.hands[Seat::East][Suit::Hearts].Remove(Rank::Two);
  EXPECT_EQ(LinPlayRecord(traveller, board), "") << "the deal is another one now";
}

TEST(Traveller, NamesAreLookedUpByTheirFirstPart) {
  const std::vector<std::string> entries{"Ann & Bob v Cy & Di", "Robot & Eve v Cy & Di",
                                         "Robot & Gus v Hal & Ida"};
  EXPECT_EQ(FindLinName(entries, "Ann & Bob v Cy & Di", 0), 0);
  EXPECT_EQ(FindLinName(entries, "Robot & Gus v Hal & Ida", 2), 2);
  EXPECT_EQ(FindLinName(entries, "Robot & Gus", -1), 1);
  EXPECT_EQ(FindLinName(entries, "Zoe & Ann", 1), -1);
}

TEST(BoardResults, AreThoseOfTheOnlyTableOrOfTheSameAuction) {
  const std::string spade = "mb|1S|" + LinPasses(3);
  const std::string heart = "mb|1H|" + LinPasses(3);
  struct Case {
    std::vector<std::string> records;
    const char* auction;
    std::string shown;  // the result beside the board
  };
  const Case cases[] = {
      {{}, "", "none"},
      {{Record("", Tags("8 110"))}, "", "110"},
      {{Record("", spade + Tags("- A5050"))}, "1H", "A5050"},
      {{Record("", spade), Record("", heart + Tags("6 -50"))}, "", "-50"},  // one has no result
      {{Record("", spade + Tags("8 110")), Record("", heart + Tags("6 -50"))}, "1H P P P", "-50"},
      {{Record("", spade + Tags("8 110")), Record("", heart + Tags("6 -50"))}, "1C P P P", "none"},
      {{Record("", spade + Tags("8 110")), Record("", spade + Tags("7 80"))}, "1S P P P", "none"},
      {{Record("", spade + Tags("8 110")), Record("", spade + Tags("8 110"))}, "1S P P P", "110"},
      {{Record("", Tags("8 110")), Record("", Tags("8 110"))}, "", "none"},
  };
  for (const Case& c : cases) {
    Board board;
    SetAuction(board, c.auction);
    const ResultsByBoard results = ResultsOf(FileOf("IMPS", c.records));
    const TableResult* result = ResultOf(results, 1, board.calls);
    const std::string shown = result == nullptr ? "none"
                              : result->score   ? std::to_string(*result->score)
                                                : result->adjusted;
    EXPECT_EQ(shown, c.shown) << c.auction;
    EXPECT_EQ(ResultOf(results, 2, board.calls), nullptr);
  }
}

TEST_F(LibraryTest, LinDataIsReadAgainWhenItIsAnotherFile) {
  tricklet::LinData data;
  WriteFile(LinDataPath(session), LinFileText(FileOf("IMPS", {Record("", "")})));
  const auto file = data.Of(session);
  EXPECT_EQ(file->lin.size(), 1U);
  EXPECT_EQ(data.Of(session), file) << "not read twice";
  WriteFile(LinDataPath(session), LinFileText(FileOf("IMPS", {Record("", ""), Record("", "")})));
  EXPECT_EQ(data.Of(session)->lin.size(), 2U);
  EXPECT_EQ(file->lin.size(), 1U);
  fs::resize_file(LinDataPath(session), kMaxLinFileBytes + 1);
  host.ExpectAskWith("The file is too large", Answer::Yes);
  for (int again = 0; again < 2; ++again) EXPECT_TRUE(data.Of(session)->Empty()) << "told once";
  session.settings.library = "Elsewhere";
  EXPECT_TRUE(data.Of(session)->Empty());
}

TEST(RemarksOn, AreThoseOfTheFirstRecordWithTheSameAuctionThatHasAny) {
  const std::string opening = "mb|1C!|an|strong|mb|p|mb|p|mb|p|";
  LinFile file =
      FileOf("IMPS", {Record("A,B,C,D", "mb|1C|mb|p|mb|p|mb|p|"),
                      Record("E,F,G,H", "mb|1D!|mb|p|mb|p|mb|p|"), Record("I,J,K,L", opening)});
  const Traveller traveller = MakeTraveller(file, 1);
  Board board = traveller.rows[0].record.board;
  EXPECT_EQ(RemarksText(board, RemarksOn(board, traveller)), "1C: strong");
  EXPECT_EQ(RemarksText(board, RemarksOn(traveller.rows[1].record.board, traveller)),
            "1C: alerted");
  std::swap(board.hands[Seat::North], board.hands[Seat::South]);
  EXPECT_TRUE(RemarksOn(board, traveller).empty()) << "another deal";
}

}  // namespace
}  // namespace tricklet::test
