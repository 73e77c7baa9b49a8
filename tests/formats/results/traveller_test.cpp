// Travellers out of a library's results.
#include "formats/results/traveller.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "formats/results/lin_data.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

using test::LibraryTest;

constexpr Side kNS = Side::NorthSouth;
constexpr Side kEW = Side::EastWest;

/// A record of board 1 (North deals, nobody vulnerable) with these names and tags; North has the
/// spades, East the hearts, South the diamonds, West the clubs.
std::string Record(const std::string& names, const std::string& auctionAndTags) {
  return "qx||pn|" + names +
         "|st||md|3DAKQJT98765432,CAKQJT98765432,SAKQJT98765432,|rh||ah|Board 1|" + auctionAndTags;
}

/// The tags of a scorer as they stand in the file.
std::string Tags(const char* tricks, const char* score, const char* ns, const char* ew,
                 const char* contract, const char* declarer, const char* lead, const char* imps) {
  return std::string("qent|") + tricks + "||qens|" + score + "||qenns|" + ns + "||qenew|" + ew +
         "||qenc|" + contract + "||qend|" + declarer + "||qenl|" + lead + "||qeni|" + imps + "|";
}

LinFile FileOf(const char* method, std::vector<std::string> records) {
  LinFile file;
  file.boardScoringMethod = method;
  file.names = {"1 NS Ann & Bob",          "2 EW Cy & Di",       "3 NS Eve & Robot",
                "4 EW Gus & Hal",          "5 EW Robot & Robot", "6 EW Robot & Robot",
                "7 NS Jim & Ono, Zo\u00eb"};
  file.lin = std::move(records);
  return file;
}

TEST(Traveller, RowAsTheScorerGaveIt) {
  const LinFile file =
      FileOf("MATCH_POINTS",
             {Record("Bob,Di,Ann,Cy", "mb|1S|mb|p|mb|4S!|mb|d|mb|p|mb|p|mb|p|pc|HA|pc|D2|mc|9|" +
                                          Tags("11", "690", "6", "0.5", "4Sx", "N", "2H", "3.25")),
              "qx|o2|pn|Bob,Di,Ann,Cy|ah|Board 2|"});
  const Traveller traveller = MakeTraveller(file, 1);
  EXPECT_EQ(traveller.scoring, "MP");
  EXPECT_FALSE(traveller.computed);
  ASSERT_EQ(traveller.rows.size(), 1U);
  const TravellerRow& row = traveller.rows[0];
  EXPECT_EQ(row.pair[kNS], "1");
  EXPECT_EQ(row.pair[kEW], "2");
  EXPECT_EQ(row.contract, "4Sx");
  EXPECT_EQ(row.declarer, Seat::North);
  EXPECT_EQ(row.lead, (Card{Suit::Hearts, Rank::Two}));
  EXPECT_EQ(row.tricks, 11) << "the scorer's word, not the record's";
  EXPECT_EQ(row.Result(), 1);
  EXPECT_EQ(row.score, 690);
  EXPECT_EQ(row.points[kNS], 6.F);
  EXPECT_EQ(row.points[kEW], 0.5F);
  EXPECT_EQ(ReadLinBidding(row), "4Sx by North +1 +690 Ann & Bob v Cy & Di");
  EXPECT_EQ(row.record.board.contract, "4Sx");
  EXPECT_EQ(row.record.board.declarer, Seat::North);
  EXPECT_EQ(row.record.cards.size(), 2U);
  EXPECT_EQ(row.record.board.hands[Seat::East][Suit::Hearts].Count(), 13) << "the fourth hand";
}

/// The tags of a result without points and lead.
std::string Result(const char* tricks, const char* score, const char* contract,
                   const char* declarer) {
  return Tags(tricks, score, "", "", contract, declarer, "", "");
}

TEST(Traveller, RowsInOneLine) {
  const std::string auction = "mb|1N|mb|p|mb|p|mb|p|";
  // East leads hearts, and all the others throw away their own suits.
  std::string play;
  for (const char rank : std::string("AKQJT98765432")) {
    for (const char suit : std::string("HDCS")) play += std::string("pc|") + suit + rank + "|";
  }
  const std::tuple<const char*, std::string, const char*> kCases[] = {
      {"made exactly", Result("7", "90", "1N", "N"), "1NT by North = +90"},
      {"down", Result("9", "-50", "4H", "S"), "4H by South -1 -50"},
      {"for the other side", Result("10", "-420", "4HX", "E"), "4Hx by East = -420"},
      {"passed out by the scorer", Result("0", "0", "PASS", "N"), "All Pass"},
      {"passed out in the record", "mb|p|mb|p|mb|p|mb|p|" + Result("", "", "", ""), "All Pass"},
      {"adjusted", Result("", "A6040", "", ""), "A6040"},
      {"adjusted after a play", auction + play + Result("", "A6040", "", ""), "A6040"},
      {"adjusted after a claim", auction + "mc|9|" + Result("", "A6040", "1N", "N"),
       "1NT by North A6040"},
      {"adjusted, with tricks", Result("8", "A6040", "1N", "N"), "1NT by North +1 A6040"},
      {"nothing at all", Result("", "", "", ""), "Not played"},
      {"an auction without a result", auction, "Not played"},
      {"the record's contract and claim", auction + "mc|9|", "1NT by North +2 +150"},
      {"tricks that cannot be", Result("14", "90", "1N", "N"), "1NT by North +90"},
      {"played to the end without a claim", auction + play, "1NT by North -7 -350"},
      {"a claim before the end", auction + play + "mc|2|", "1NT by North -5 -250"},
      {"played as the scorer's contract does not allow", play + Result("", "", "1N", "E"),
       "Not played"},
      {"a contract that is none", Result("8", "0", "42", "N"), "="}};
  for (const auto& [what, tags, line] : kCases) {
    const auto traveller = MakeTraveller(FileOf("IMPS", {Record("Bob,Di,Ann,Cy", tags)}), 1);
    EXPECT_EQ(ReadLinBidding(traveller.rows.at(0)), std::string(line) + " Ann & Bob v Cy & Di")
        << what;
  }
}

TEST(Traveller, PairsByTheirPlayers) {
  // South, West, North, East; the pairs' numbers; all four
  const std::tuple<const char*, const char*, const char*, const char*> kCases[] = {
      {"Ann,Cy,Bob,Di", "1", "2", "Bob & Ann v Di & Cy"},
      {"advanced BBO,Gus,Eve,Hal", "3", "4", "Eve & Robot v Hal & Gus"},
      {"Ann,Robot,Bob,Robot", "1", "", "Bob & Ann v Robot & Robot"},
      {"Cy,Ann,Di,Bob", "", "", "Di & Cy v Bob & Ann"},
      {"Ann,,Bob,Zoe", "1", "", "Bob & Ann v Zoe"},
      {"Ono Zo\u00eb,,Jim,", "7", "", "Jim & Ono Zo\u00eb v "},
      {"", "", "", " v "}};
  for (const auto& [names, ns, ew, text] : kCases) {
    const auto traveller = MakeTraveller(FileOf("IMPS", {Record(names, "")}), 1);
    const TravellerRow& row = traveller.rows.at(0);
    EXPECT_EQ(row.pair[kNS], ns) << names;
    EXPECT_EQ(row.pair[kEW], ew) << names;
    EXPECT_EQ(row.NamesText(), text);
  }
}

/// "MP computed 3:1 0:4 -": the heading, and the points of North-South and East-West row by row.
std::string PointsText(const Traveller& traveller) {
  std::string text = traveller.scoring + (traveller.computed ? " computed" : "");
  for (const TravellerRow& row : traveller.rows) {
    const auto ns = row.points[kNS];
    const auto ew = row.points[kEW];
    EXPECT_EQ(ns.has_value(), ew.has_value());
    text += " " + (ns ? ShortestText(*ns) + ":" + ShortestText(*ew) : "-");
  }
  return text;
}

TEST(Traveller, PointsAreComputedWhereTheFileHasNone) {
  using Strings = std::vector<std::string>;
  // The scoring, of each table the score and perhaps its IMPs, and the points
  const std::tuple<const char*, Strings, const char*> kCases[] = {
      {"MATCH_POINTS", Strings{"620", "-100", "620"}, "MP computed 3:1 0:4 3:1"},
      {"MATCH_POINTS", Strings{"620"}, "MP computed -"},
      {"CROSS_IMPS", Strings{"A50", "620"}, "XIMP computed - -"},
      {"MATCH_POINTS", Strings{"620", "A50", "50"}, "MP computed 2:0 - 0:2"},
      {"CROSS_IMPS", Strings{"620", "600", "-100"}, "XIMP computed 13:-13 11:-11 -24:24"},
      {"CROSS_IMPS", Strings{"50", "50"}, "XIMP computed 0:0 0:0"},
      {"IMPS", Strings{"420", "-50"}, "IMP computed 10:-10 -10:10"},
      // Which of more teams belong together the file does not say.
      {"IMPS", Strings{"420", "-50", "0"}, "IMP computed - - -"},
      {"CROSS_IMPS", Strings{"420=2.5", "400=-2.5", "410"}, "XIMP 2.5:-2.5 -2.5:2.5 0:0"},
      {"BUTLER_IMPS", Strings{"420=4", "50"}, "BIMP 4:-4 0:0"},
      // Computed against the other table, not against a datum.
      {"BUTLER_IMPS", Strings{"420", "50"}, "XIMP computed 9:-9 -9:9"}};
  for (const auto& [method, tables, points] : kCases) {
    std::vector<std::string> records;
    for (const std::string& table : tables) {
      const auto sign = table.find('=');
      const std::string imps = sign == std::string::npos ? "0" : table.substr(sign + 1);
      const std::string score = table.substr(0, sign);
      records.push_back(Record("", Tags("", score.c_str(), "0", "0", "", "", "", imps.c_str())));
    }
    LinFile file = FileOf(method, std::move(records));
    if (file.boardScoringMethod == "BUTLER_IMPS") file.boardScoringAbb = "BIMP";
    EXPECT_EQ(PointsText(MakeTraveller(file, 1)), points) << method;
  }
}

TEST(Traveller, AScorersContractStandsInForAnAuctionThatIsNotShown) {
  // The dealer, the auction and the tags of a record; the contract and the declarer that it shows
  const std::string tags = Result("10", "420", "4S", "S");
  const std::tuple<const char*, const char*, std::string, const char*, Seat> kCases[] = {
      {"3", "", tags, "4S", Seat::South},
      {"3", "mb|1H|mb|p|mb|p|mb|p|", tags, "1H", Seat::North},  // the play follows the auction
      {"4", "mb|1H|mb|p|mb|p|mb|p|", tags, "4S", Seat::South},  // of another dealer
      {"4", "mb|1H|mb|p|mb|p|mb|p|", "", "", Seat::North}};
  for (const auto& [dealer, auction, own, contract, declarer] : kCases) {
    const std::string record = "qx||md|" + std::string(dealer) + "SAK,HAK,DAK|ah|Board 1|";
    const auto traveller = MakeTraveller(FileOf("IMPS", {record + auction + own}), 1);
    const Board& board = traveller.rows.at(0).record.board;
    EXPECT_EQ(board.contract, contract);
    EXPECT_EQ(board.declarer, declarer) << contract;
    EXPECT_EQ(board.calls.Empty(), std::string(contract) != "1H") << contract;
  }
}

TEST(Traveller, MoreCallsThanABoardHolds) {
  std::string calls;
  for (int call = 0; call < 150; ++call) calls += "mb|p|";
  const auto traveller = MakeTraveller(FileOf("IMPS", {Record("", calls)}), 1);
  EXPECT_EQ(traveller.rows.at(0).record.board.NumCalls(), CallList::kCapacity);
}

TEST(Traveller, HasAsManyRowsAsCanBeLookedThrough) {
  std::vector<std::string> records;
  for (std::size_t table = 0; table < 2 * kMaxTravellerRows; ++table) {
    records.push_back("|Board 1|qens|" + std::to_string(10 * table) + "|");
  }
  const Traveller traveller = MakeTraveller(FileOf("MATCH_POINTS", records), 1);
  ASSERT_EQ(traveller.rows.size(), kMaxTravellerRows);
  EXPECT_EQ(traveller.rows.back().points[kNS], 2.F * (kMaxTravellerRows - 1));
}

TEST(Traveller, TheBoardsRecordIsTheOneLookedAtElseTheFirstWithAPlay) {
  const std::string played = Record("a,b,c,d", "mb|1S|mb|p|mb|p|mb|p|pc|HA|");
  const Traveller traveller = MakeTraveller(
      FileOf("IMPS", {Record("e,f,g,h", ""), played + Tags("", "", "", "", "", "", "", ""),
                      Record("i,j,k,l", "pc|HA|")}),
      1);
  Board board = traveller.rows.at(0).record.board;
  EXPECT_EQ(LinPlayRecord(traveller, board), played);
  EXPECT_EQ(LinPlayRecord(traveller, board, 0), Record("e,f,g,h", ""));
  EXPECT_EQ(LinPlayRecord(Traveller(), board), "");
  board.hands[Seat::East][Suit::Hearts].Remove(Rank::Two);
  EXPECT_EQ(LinPlayRecord(traveller, board), "") << "it is another deal by now";
}

TEST(Traveller, NamesAreLookedUpByTheirFirstPart) {
  const std::vector<std::string> entries{"Ann & Bob v Cy & Di", "Robot & Eve v Cy & Di",
                                         "Robot & Gus v Hal & Ida"};
  EXPECT_EQ(FindLinName(entries, "Ann & Bob v Cy & Di", 0), 0);
  EXPECT_EQ(FindLinName(entries, "Robot & Gus v Hal & Ida", 2), 2);
  EXPECT_EQ(FindLinName(entries, "Robot & Gus", -1), 1);
  EXPECT_EQ(FindLinName(entries, "Zoe & Ann", 1), -1);
}

TEST_F(LibraryTest, LinDataIsReadAgainWhenItIsAnotherFile) {
  LinData data;
  EXPECT_TRUE(data.Of(session).Empty());
  StoreLinData(session, FileOf("IMPS", {Record("", "")}));
  EXPECT_EQ(data.Of(session).lin.size(), 1U);
  const int version = data.Version();
  EXPECT_EQ(data.Of(session).lin.size(), 1U);
  EXPECT_EQ(data.Version(), version) << "not read twice";
  StoreLinData(session, FileOf("IMPS", {Record("", ""), Record("", "")}));
  EXPECT_EQ(data.Of(session).lin.size(), 2U);
  session.settings.library = "Elsewhere";
  EXPECT_TRUE(data.Of(session).Empty());
}

}  // namespace
}  // namespace tricklet
