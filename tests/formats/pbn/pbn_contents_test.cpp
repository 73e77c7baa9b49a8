#include "formats/pbn/pbn_contents.h"

#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "core/text.h"
#include "formats/lin/lin_record.h"
#include "formats/pbn/pbn_reader.h"
#include "formats/pbn/pbn_writer.h"
#include "formats/results/traveller.h"
#include "tests/support/collector.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

std::vector<FoundGame> GamesOf(const std::string& text) {
  FileContents contents = ReadPbnContents(text);
  return contents.sections.empty() ? std::vector<FoundGame>()
                                   : std::move(contents.sections.at(0).games);
}

FoundGame OneGame(const std::string& text) {
  std::vector<FoundGame> games = GamesOf(text);
  EXPECT_EQ(games.size(), 1U) << text;
  return games.empty() ? FoundGame() : games.front();
}

/// Of each game its label, its cards, dealer and vulnerability: "4-1:52E2 "; "." where there is
/// none.
std::string Outline(const std::string& text) {
  std::string outline;
  for (const FoundGame& game : GamesOf(text)) {
    int cards = 0;
    for (const int count : GetStats(game.board.hands).seatCardCount) cards += count;
    outline += game.label + ":" + std::to_string(cards);
    outline += game.dealer ? SeatName[*game.dealer].substr(0, 1) : ".";
    outline += game.vulnerability ? std::to_string(IndexOf(*game.vulnerability)) : ".";
    outline += " ";
  }
  return outline;
}

TEST(PbnContents, CutsAFileIntoGames) {
  const std::string deal = kPbnDeal;
  const std::string head = "[Dealer \"E\"]\n[Vulnerable \"all\"]\n" + deal;
  const std::tuple<const char*, std::string, const char*> kCases[] = {
      {"the first line counts", "[Board \"1\"]\n" + head + "[Board \"4-1\"]\n" + deal,
       "1:52E3 4-1:52.. "},
      {"any line end", "[Board \"1\"]\r" + deal + "\r\n[Board \"2\"]\r" + deal, "1:52.. 2:52.. "},
      {"no line end", "[Board \"7\"] [deal\"N:AK.. - - -\"", "7:2.. "},
      {"tags over lines", "[\n Board\n\n  \"3\" \n ]\n[DEAL \"W:- AK\"]", "3:2.. "},
      {"no quotes, no brackets", "[Board 5]\n[Deal \"N:AK]\n[Dealer \"S\"\n[Vulnerable \"Love\"]",
       "5:2S0 "},
      {"no numbers", "[Event \"a\"]\n" + deal + "[Event \"b\"]\n" + deal, ":52.. :52.. "},
      {"an empty line", deal + "[Auction \"N\"]\nAP\n \n[Board \"2\"]\n" + deal, ":52N. 2:52.. "},
      {"no new game", "[Board \"1\"]\n\n[Dealer \"N\"]\n" + deal + "\n[Result \"9\"]", "1:52N. "},
      {"a comment hides tags", "[Board \"1\"]\n{ [Board \"2\"]\n}\n;[Board \"3\"]\n" + deal,
       "1:52.. "},
      {"a comment without end", "[Board \"1\"] {\n[Board \"2\"]\n" + deal, "1:0.. 2:52.. "},
      {"no games", "% PBN 2.1\n[Event \"x\"]\n[Scoring \"?\"]\n[Score \"\"]\n", ""},
      {"the other room",
       "[Board \"1\"]\n" + head + "[Contract \"1C\"]\n\n[Contract \"2C\"]\n[Declarer \"N\"]",
       "1:52E3 1:52E3 "},
      {"inherited",
       "[Board \"1\"]\n[Dealer \"##S\"]\n" + deal + "[Board \"#\"]\n[Deal \"#\"]\n[Board \"3\"]",
       "1:52S. 1:52S. 3:0S. "}};
  for (const auto& [name, text, outline] : kCases) EXPECT_EQ(Outline(text), outline) << name;
}

TEST(PbnContents, NamesFormatAndEncoding) {
  const FileContents latin = ReadPbnContents("% PBN 2.1\n[Board \"1 \xE9\"]\n" + kPbnDeal);
  EXPECT_EQ(latin.format + ", " + latin.encoding, "PBN 2.1, Latin-1");
  EXPECT_EQ(latin.sections.at(0).games.at(0).label, "1 \u00E9");
  const FileContents marked = ReadPbnContents("\xEF\xBB\xBF[Board \"1 \xC3\xA9\"]\n" + kPbnDeal);
  EXPECT_EQ(marked.format + ", " + marked.encoding, "PBN, UTF-8");
  EXPECT_EQ(marked.sections.at(0).games.at(0).label, "1 \u00E9");
}

const std::string kTwenty =
    "N NT 7\nN S 8\nN H 9\nN D 10\nN C 11\nS NT 7\nS S 8\nS H 9\nS D 10\nS C 11\nE NT 6\nE S 5\n"
    "E H 4\nE D 3\nE C 2\nW NT 6\nW S 5\nW H 4\nW D 3\n";

TEST(PbnContents, ReadsHandsCallsAndTablesAsAPlainImportDoes) {
  const std::string table = "[OptimumResultTable \"\"]\n" + kTwenty;
  const std::string kBodies[] = {
      "1D X XX AP",
      "2N p 3c\n1NT! - ? * +",
      "1C {a; Pass} 1D ; Pass\n% Pass\n{\nAP\n}2D",
      "1H =1= $3 2X 7 1X 8C ^I 1C\n[Note \"1:Pass\"]",
      "AP\n" + table + "W C 2",
      "AP\n" + table + "W C 0",
      "AP\n" + table + "W C ?",
      "AP\n" + table + "W C 2\n[DoubleDummyTricks \"746b5747b55862758627\"]",
      "AP\n[DoubleDummyTricks \"746b5747b55862758627\"]\n" + table + "W C 2"};
  for (const std::string& body : kBodies) {
    const std::string text = "%\n[Board \"5\"]\n" + kPbnDeal + "[Auction \"N\"]\n" + body + "\n";
    Collector sink;
    ReadPBN(text, sink);
    const Board read = OneGame(text).board;
    const Board& plain = sink.boards.at(0);
    EXPECT_EQ(read.hands, plain.hands);
    EXPECT_EQ(read.calls, plain.calls) << body;
    EXPECT_EQ(read.makeableValid, plain.makeableValid) << body;
    EXPECT_TRUE(!read.makeableValid || read.makeable == plain.makeable) << body;
  }
}

TEST(PbnContents, SaysWhatIsWrongWithADeal) {
  std::string calls = "[Auction \"N\"]\n";
  for (int i = 0; i < 101; ++i) calls += "P ";
  const std::pair<std::string, DealTrouble> kCases[] = {
      {"[Deal \"?\"]\n", DealTrouble::NoCards},
      {"[Deal \"s:akqj10.. - \t -\"]\n", DealTrouble::Incomplete},
      {"[Deal \"N:AK AK\"]\n", DealTrouble::Impossible},
      {kPbnDeal + "[OptimumResultTable \"\"]\nN NT 7\n", DealTrouble::OddTable},
      {kPbnDeal + "[OptimumResultTable \"\"]\n" + kTwenty + "W D 3\n", DealTrouble::OddTable},
      {kPbnDeal + calls, DealTrouble::OverlongAuction}};
  for (const auto& [text, trouble] : kCases) {
    const FoundGame game = OneGame("[Board \"1\"]\n" + text);
    EXPECT_TRUE(game.troubles.Has(trouble)) << text;
    EXPECT_FALSE(game.board.makeableValid || game.board.NumCalls() > 0) << text;
  }
}

TEST(PbnContents, LeavesOutWhatCannotBeRead) {
  // The second line of the file, and how many games are kept.
  const std::pair<const char*, std::size_t> kCases[] = {
      {"[Deal \"AK.2.3.4 - - -\"]", 1},
      {"[Deal \"X:AK.2.3.4 - - -\"] [Contract \"1C\"]", 2},
      {"[DoubleDummyTricks \"746b5747b5586275862e\"]", 2},
      {"[Contract \"8H\"]", 2},
      {"[Score \"420\"]", 2}};
  for (const auto& [line, games] : kCases) {
    const std::string text = std::string("[Board \"2\"]\n") + line + "\n[Board \"3\"]\n" + kPbnDeal;
    const FileContents contents = ReadPbnContents(text);
    EXPECT_EQ(contents.sections.at(0).games.size(), games) << line;
    ASSERT_EQ(contents.unread.size(), 1U) << line;
    EXPECT_EQ(contents.unread[0].text, line);
    EXPECT_EQ(std::to_string(contents.unread[0].line) + contents.unread[0].label, "22") << line;
  }
}

/// The tables of board 1, each "4Sx by South +1 +650 Ann & Bob v Cy & Di", its points and its play.
std::string Tables(const std::string& text, std::string* scoring = nullptr) {
  FileContents contents = ReadPbnContents(text);
  if (contents.sections.empty()) return "";
  LinFile file = contents.sections[0].results;
  for (const FoundGame& game : contents.sections[0].games) {
    file.lin.insert(file.lin.end(), game.records.begin(), game.records.end());
  }
  const Traveller traveller = MakeTraveller(file, 1);
  if (scoring) *scoring = file.boardScoringMethod + (traveller.computed ? "*" : "");
  std::string tables;
  for (const TravellerRow& row : traveller.rows) {
    tables += ReadLinBidding(row);
    const auto points = row.points[Side::NorthSouth];
    if (points && !traveller.computed) tables += " [" + ShortestText(*points) + "]";
    for (const Card card : row.record.cards) tables += " " + CardText(card);
    tables += "\n";
  }
  return tables;
}

TEST(PbnContents, MakesARecordOfAResult) {
  const std::string names = "[North \"A\"]\n[East \"?\"]\n[South \"B\"]\n[West \"\"]\n";
  const std::pair<std::string, const char*> kCases[] = {
      {"", ""},
      {"[Auction \"N\"]\n1C AP", ""},
      {"[Auction \"N\"]\n1C AP\n[Result \"0\"]", ""},
      {names, "Not played A & B v \n"},
      {"[Contract \"4HX\"]\n[Declarer \"^S\"]\n[Result \"^9\"]", "4Hx by South -1 -100  v \n"},
      {"[Contract \"3N\"]\n[Declarer \"W\"]\n[Result \"NS 4\"]", "3NT by West = -400  v \n"},
      {"[Contract \"3N\"]\n[Declarer \"N\"]\n[Result \"+1\"]", "3NT by North +1 +430  v \n"},
      {"[Contract \"2S\"]\n[Declarer \"E\"]\n[Score \"110\"]", "2S by East -110  v \n"},
      {"[Contract \"2S\"]\n[Declarer \"E\"]\n[Score \"EW -50 NS 50\"]", "2S by East +50  v \n"},
      {"[Contract \"Pass\"]\n[Declarer \"\"]\n[Result \"\"]", "All Pass  v \n"},
      {"[Auction \"E\"]\n- - 1S 2H\nAP\n[Score \"NS 110\"]", "2H by North +110  v \n"},
      {"[ScoreIMP \"EW 2.5\"]\n[Contract \"2S\"]", "Not played  v  [-2.5]\n"}};
  for (const auto& [body, tables] : kCases) {
    EXPECT_EQ(Tables("[Board \"1\"]\n[Vulnerable \"-\"]\n" + kPbnDeal + body), tables) << body;
  }
}

TEST(PbnContents, FollowsThePlay) {
  // East leads; South wins, and then West unless East's diamond is a trump.
  const std::string rows =
      "[Play \"E\"]\nH7 HK =1= H5! H3\nD4 {c} C8 CA C2\nS5 SQ ^R s4 S3\n- H2 H10 -\n*\nD2\n";
  const std::pair<const char*, const char*> kCases[] = {
      {"1NT", "H7 HK H5 H3 C8 CA C2 D4 S4 S3 S5 SQ H2 HT"},
      {"1D", "H7 HK H5 H3 C8 CA C2 D4 S5 SQ S4 S3 H2 HT"},
      {"?", "H7 HK H5 H3"}};
  for (const auto& [contract, cards] : kCases) {
    const FoundGame game = OneGame("[Board \"1\"]\n" + kPbnDeal + "[Declarer \"N\"]\n[Contract \"" +
                                   contract + "\"]\n" + rows);
    std::string played;
    for (const Card card : ParseLinRecord(game.records.at(0)).play) {
      int count = 0;
      played += (played.empty() ? "" : " ") + std::string(StrainLetter[ToStrain(card.suit)]);
      played += PBNFormat(Holding::FromBits(1U << static_cast<unsigned>(card.rank)), count);
    }
    EXPECT_EQ(played, cards) << contract;
  }
}

TEST(PbnContents, TakesATableOfScores) {
  const std::string text =
      "[Board \"1\"]\n[South \"Bob\"]\n" + kPbnDeal +
      "[Contract \"3NT\"]\n[Declarer \"N\"]\n[Result \"9\"]\n[Play \"E\"]\nS9 S2 S4 S3\n*\n"
      "[ScoreTable \"-Rank\\2R;PairId_NS;PairId_EW;Contract\\5L;Declarer;Result;Score_NS;Score_EW;"
      "MP_NS;MP_EW;Multiplicity\"]\n"
      "1 1 2 4SX S 10 \"590\" - 5 1 1\n2 2 1 3NT N 9 400 - 2.5 3.5 2\n"
      "3 1 9 2H W 8 - 110 0 6 1\n4 2 2 - - - A6040 - - -\n5 2 1 PASS - - - -\n\n"
      "6 1 2 7C N 7 - - - - -\n"
      "[Board \"2\"]\n" +
      kPbnDeal +
      "[TotalScoreTable \"PairId;Direction;Names\"]\n1 N-S \"Ann - Abe\"\n2 \"N-S\" \"Cy;Di\"\n"
      "1 E-W \"Eve & Flo\"\n2 E-W \"Gus/Hal\"\n";
  std::string scoring;
  EXPECT_EQ(Tables(text, &scoring),
            "4Sx by South = +590 Ann & Abe v Gus & Hal [5]\n"
            "3NT by North = +400 Cy & Bob v Eve & Flo [2.5] \u26609 \u26602 \u26604 \u26603\n"
            "3NT by North = +400 Cy & Di v Eve & Flo [2.5]\n"
            "2H by West = -110 Ann & Abe v  [0]\n"
            "A6040 Cy & Di v Gus & Hal [0]\n"
            "All Pass Cy & Di v Eve & Flo [0]\n");
  EXPECT_EQ(scoring, "MATCH_POINTS");
  EXPECT_EQ(ReadPbnContents(text).sections.at(0).results.names.at(2), "1 EW Eve & Flo");
}

TEST(PbnContents, TellsTheScoring) {
  const std::string head = "[Board \"1\"]\n" + kPbnDeal + "[Contract \"1C\"]\n[Declarer \"N\"]\n";
  const std::pair<const char*, const char*> kCases[] = {
      {"", "MATCH_POINTS*"},
      {"[Scoring \"IMP;Butler-2;Mean\"]", "BUTLER_IMPS*"},
      {"[Scoring \"IMP;Cross\"]", "CROSS_IMPS*"},
      {"[Scoring \"IMP\"]", "IMPS*"},
      {"[HomeTeam \"X\"]", "IMPS*"},
      {"[ScoreIMP \"NS -2.17\"]", "CROSS_IMPS"},
      {"[Scoring \"MP\"]\n[ScoreIMP \"NS 3\"]", "IMPS"},
      {"[Scoring \"IMP\"]\n[ScorePercentage \"NS 62.5\"]", "MATCH_POINTS"}};
  for (const auto& [body, expected] : kCases) {
    std::string scoring;
    Tables(head + body, &scoring);
    EXPECT_EQ(scoring, expected) << body;
  }
}

TEST(PbnContents, FindsNothingButTheBoardInOurOwnFiles) {
  Board board = OneGame("[Board \"7\"]\n" + kPbnDeal + "[Auction \"S\"]\n1C X AP\n").board;
  board.boardNumber = 7;
  const FoundGame game = OneGame(PbnRecord(board, "Library", {.bids = true, .shark = true}));
  EXPECT_EQ(game.label + game.notes, "7");
  EXPECT_EQ(game.board.hands, board.hands);
  EXPECT_EQ(game.board.calls, board.calls);
  EXPECT_EQ(game.records.size(), 0U) << "the result 0 that is written is none";
}

TEST(PbnContents, FindsTheNotesThatTheWriterPutsThere) {
  Board board = OneGame("[Board \"7\"]\n" + kPbnDeal + "[Auction \"S\"]\n1C X AP\n").board;
  board.boardNumber = 7;
  // The notes, and what comes back of them: braces, tags and escapes are no part of a comment.
  const std::pair<const char*, const char*> kCases[] = {
      {"Lead a \u2660\n\nZo\u00eb", "Lead a \u2660\n\nZo\u00eb"},
      {"a {b} c", "a (b) c"},
      {"a\n[Board \"9\"]\n %b\n%c", "a [Board \"9\"]\n %b\n %c"},
      {"[Deal \"x\"]", "[Deal \"x\"]"},
      {"\u4e00; \"q", "?; \"q"}};
  for (const auto& [notes, read] : kCases) {
    const std::string text =
        PbnRecord(board, "Library", {.bids = true, .shark = true, .notes = notes});
    const FoundGame game = OneGame(text + "\r\n");
    EXPECT_EQ(game.notes, read);
    EXPECT_EQ(game.board.hands, board.hands);
    EXPECT_EQ(game.board.calls, board.calls);
    Collector sink;
    ReadPBN("% PBN\r\n" + text, sink);
    ASSERT_EQ(sink.boards.size(), 1U) << "a reader by lines finds no tag in them";
  }
}

TEST(PbnContents, KeepsCommentsAndNotes) {
  const std::string head = "[Event \"\"]\n[Board \"1\"] {One\r\n two } ; three\n" + kPbnDeal;
  const std::string calls =
      "[Auction \"N\"]\n1C =1= AP {four}\n[Note \"1: 16+, any \\S\"]\n"
      "[Note \"2:unused\"]\n";
  const std::string play =
      "[Contract \"1C\"]\n[Declarer \"N\"]\n[Play \"E\"]\n*\n[Note \"1:lead\"]";
  EXPECT_EQ(OneGame(head + calls).notes, "One\n two\nthree\nfour\n1: 16+, any \u2660\n2: unused");
  const FoundGame played = OneGame(head + calls + play);
  EXPECT_EQ(played.notes, "One\n two\nthree\nfour\n1: lead\n2: unused");
  EXPECT_NE(played.records.at(0).find("mb|1C|an|16+, any \u2660|mb|p|"), std::string::npos);
  // A comment is that of the game that it stands before, unless an empty line divides them.
  const std::vector<FoundGame> games =
      GamesOf("{a}\n" + kPbnDeal + "{b}\n\n{c}\n\n{d}\n[Event \"\"]\n" + kPbnDeal);
  ASSERT_EQ(games.size(), 2U);
  EXPECT_EQ(games[0].notes + "|" + games[1].notes, "a\nb\nc|d");
}

}  // namespace
}  // namespace tricklet::test
