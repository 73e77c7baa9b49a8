// Travellers out of a library's results.
#include "formats/results/traveller.h"

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

TEST(Traveller, RowsInOneLine) {
  struct Case {
    const char* what;
    std::string tags;
    const char* line;
  };
  const std::string auction = "mb|1N|mb|p|mb|p|mb|p|";
  // East leads hearts, and all the others throw away their own suits.
  std::string play;
  for (const char rank : std::string("AKQJT98765432")) {
    for (const char suit : std::string("HDCS")) play += std::string("pc|") + suit + rank + "|";
  }
  const std::string passes = "mb|p|mb|p|mb|p|mb|p|";
  const std::vector<Case> cases{
      {"made exactly", Tags("7", "90", "", "", "1N", "N", "HA", ""), "1NT by North = +90"},
      {"down", Tags("9", "-50", "", "", "4H", "S", "", ""), "4H by South -1 -50"},
      {"for the other side", Tags("10", "-420", "", "", "4HX", "E", "", ""), "4Hx by East = -420"},
      {"passed out by the scorer", Tags("0", "0", "", "", "PASS", "N", "", ""), "All Pass"},
      {"passed out in the record", passes + Tags("", "", "", "", "", "", "", ""), "All Pass"},
      {"adjusted", Tags("", "A6040", "", "", "", "", "", ""), "A6040"},
      {"adjusted after a play", auction + play + Tags("", "A6040", "", "", "", "", "", ""),
       "A6040"},
      {"adjusted after a claim", auction + "mc|9|" + Tags("", "A6040", "", "", "1N", "N", "", ""),
       "1NT by North A6040"},
      {"adjusted, with tricks", Tags("8", "A6040", "", "", "1N", "N", "", ""),
       "1NT by North +1 A6040"},
      {"nothing at all", Tags("", "", "", "", "", "", "", ""), "Not played"},
      {"an auction without a result", auction, "Not played"},
      {"the record's contract and claim", auction + "mc|9|", "1NT by North +2 +150"},
      {"tricks that cannot be", Tags("14", "90", "", "", "1N", "N", "", ""), "1NT by North +90"},
      {"played to the end without a claim", auction + play, "1NT by North -7 -350"},
      {"a claim before the end", auction + play + "mc|2|", "1NT by North -5 -250"},
      {"played as the scorer's contract does not allow",
       play + Tags("", "", "", "", "1N", "E", "", ""), "Not played"},
      {"a contract that is none", Tags("8", "0", "", "", "42", "N", "", ""), "="},
  };
  for (const Case& example : cases) {
    const auto traveller =
        MakeTraveller(FileOf("IMPS", {Record("Bob,Di,Ann,Cy", example.tags)}), 1);
    ASSERT_EQ(traveller.rows.size(), 1U);
    EXPECT_EQ(ReadLinBidding(traveller.rows[0]), std::string(example.line) + " Ann & Bob v Cy & Di")
        << example.what;
  }
}

TEST(Traveller, PairsByTheirPlayers) {
  struct Case {
    const char* names;  // South, West, North, East
    const char* ns;
    const char* ew;
    const char* text;
  };
  constexpr Case kCases[] = {
      {"Ann,Cy,Bob,Di", "1", "2", "Bob & Ann v Di & Cy"},
      {"advanced BBO,Gus,Eve,Hal", "3", "4", "Eve & Robot v Hal & Gus"},
      {"Ann,Robot,Bob,Robot", "1", "", "Bob & Ann v Robot & Robot"},
      {"Cy,Ann,Di,Bob", "", "", "Di & Cy v Bob & Ann"},
      {"Ann,,Bob,Zoe", "1", "", "Bob & Ann v Zoe"},
      {"Ono Zo\u00eb,,Jim,", "7", "", "Jim & Ono Zo\u00eb v "},
      {"", "", "", " v "},
  };
  for (const Case& example : kCases) {
    const auto traveller = MakeTraveller(FileOf("IMPS", {Record(example.names, "")}), 1);
    ASSERT_EQ(traveller.rows.size(), 1U) << example.names;
    EXPECT_EQ(traveller.rows[0].pair[kNS], example.ns) << example.names;
    EXPECT_EQ(traveller.rows[0].pair[kEW], example.ew) << example.names;
    EXPECT_EQ(traveller.rows[0].NamesText(), example.text);
  }
}

TEST(Traveller, PointsAreComputedWhereTheFileHasNone) {
  const auto record = [](const char* score, const char* imps = "0") {
    return Record("", Tags("", score, "0", "0", "", "", "", imps));
  };
  using Points = std::vector<std::optional<float>>;
  struct Case {
    const char* what;
    const char* method;
    std::vector<std::string> records;
    const char* heading;
    bool computed;
    Points ns;
    Points ew;
  };
  const std::vector<Case> cases{
      {"match points",
       "MATCH_POINTS",
       {record("620"), record("-100"), record("620")},
       "MP",
       true,
       {3, 0, 3},
       {1, 4, 1}},
      {"one table", "MATCH_POINTS", {record("620")}, "MP", true, {std::nullopt}, {std::nullopt}},
      {"one table that is not adjusted",
       "CROSS_IMPS",
       {record("A50"), record("620")},
       "XIMP",
       true,
       {std::nullopt, std::nullopt},
       {std::nullopt, std::nullopt}},
      {"with one that is adjusted",
       "MATCH_POINTS",
       {record("620"), record("A50"), record("50")},
       "MP",
       true,
       {2, std::nullopt, 0},
       {0, std::nullopt, 2}},
      {"cross-IMPs",
       "CROSS_IMPS",
       {record("620"), record("600"), record("-100")},
       "XIMP",
       true,
       {13, 11, -24},
       {-13, -11, 24}},
      {"a match of teams",
       "IMPS",
       {record("420"), record("-50")},
       "IMP",
       true,
       {10, -10},
       {-10, 10}},
      {"more teams than can be told apart",
       "IMPS",
       {record("420"), record("-50"), record("0")},
       "IMP",
       true,
       {std::nullopt, std::nullopt, std::nullopt},
       {std::nullopt, std::nullopt, std::nullopt}},
      {"the file's IMPs",
       "CROSS_IMPS",
       {record("420", "2.5"), record("400", "-2.5")},
       "XIMP",
       false,
       {2.5, -2.5},
       {-2.5, 2.5}},
  };
  for (const Case& example : cases) {
    const auto traveller = MakeTraveller(FileOf(example.method, example.records), 1);
    EXPECT_EQ(traveller.scoring, example.heading) << example.what;
    EXPECT_EQ(traveller.computed, example.computed) << example.what;
    Points ns;
    Points ew;
    for (const TravellerRow& row : traveller.rows) {
      ns.push_back(row.points[kNS]);
      ew.push_back(row.points[kEW]);
    }
    EXPECT_EQ(ns, example.ns) << example.what;
    EXPECT_EQ(ew, example.ew) << example.what;
  }
}

TEST(Traveller, HeadingOfThePointsTellsWhatTheyAre) {
  const auto heading = [](const char* imps) {
    LinFile file = FileOf("BUTLER_IMPS", {Record("", Tags("", "420", "", "", "", "", "", imps)),
                                          Record("", Tags("", "50", "", "", "", "", "", "0"))});
    file.boardScoringAbb = "BIMP";
    return MakeTraveller(file, 1).scoring;
  };
  EXPECT_EQ(heading("4"), "BIMP");
  EXPECT_EQ(heading("0"), "XIMP") << "computed against the other table, not against a datum";
}

TEST(Traveller, AScorersContractStandsInForAMissingAuction) {
  const auto of = [](const std::string& tags) {
    return MakeTraveller(FileOf("IMPS", {Record("", tags)}), 1).rows.at(0).record.board;
  };
  const Board bare = of(Tags("10", "420", "", "", "4S", "S", "", ""));
  EXPECT_EQ(bare.contract, "4S");
  EXPECT_EQ(bare.declarer, Seat::South);
  const Board bid = of("mb|1H|mb|p|mb|p|mb|p|" + Tags("10", "420", "", "", "4S", "S", "", ""));
  EXPECT_EQ(bid.contract, "1H") << "the play follows the auction that was recorded";
  EXPECT_EQ(bid.declarer, Seat::North);
}

TEST(Traveller, AnAuctionOfAnotherDealerIsNotShown) {
  const std::string record = "qx||md|4SAK,HAK,DAK|ah|Board 1|mb|1H|mb|p|mb|p|mb|p|";
  const auto of = [&](const std::string& tags) {
    return MakeTraveller(FileOf("IMPS", {record + tags}), 1).rows.at(0).record.board;
  };
  EXPECT_EQ(of(Tags("7", "80", "", "", "1H", "E", "", "")).contract, "1H");
  EXPECT_EQ(of(Tags("7", "80", "", "", "1H", "E", "", "")).declarer, Seat::East);
  EXPECT_TRUE(of("").calls.Empty());
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
  const auto put = [&](std::vector<std::string> records) {
    LinFile file = FileOf("IMPS", std::move(records));
    StoreLinData(session, file);
  };
  LinData data;
  EXPECT_FALSE(data.Loaded());
  EXPECT_TRUE(data.Of(session).Empty());
  EXPECT_TRUE(data.Loaded());
  put({Record("", "")});
  EXPECT_EQ(data.Of(session).lin.size(), 1U);
  const int version = data.Version();
  EXPECT_EQ(data.Of(session).lin.size(), 1U);
  EXPECT_EQ(data.Version(), version) << "not read twice";
  put({Record("", ""), Record("", "")});
  EXPECT_EQ(data.Of(session).lin.size(), 2U);
  session.settings.library = "Elsewhere";
  EXPECT_TRUE(data.Of(session).Empty());
}

}  // namespace
}  // namespace tricklet
