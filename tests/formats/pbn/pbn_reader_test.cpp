#include "formats/pbn/pbn_reader.h"

#include <string>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "tests/support/collector.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

struct Read {
  explicit Read(const std::string& text) {
    result = ReadPBN(text, sink);
    EXPECT_EQ(result.boardsSaved, static_cast<int>(sink.boards.size()));
  }
  Collector sink;
  ReadResult result;
};

/// The one board of a file that has a header line, a tag for board 5, and `body`.
Board ReadOne(const std::string& body) {
  const Read read("% PBN\n[Board \"5\"]\n" + body);
  EXPECT_EQ(read.result.badLine.value_or(""), "");
  return read.sink.boards.at(0);
}

TEST(ReadPBN, ReadsDeals) {
  const HandTable hands = ReadOne(kPbnDeal).hands;
  EXPECT_TRUE(GetStats(hands).allHandsComplete);
  EXPECT_EQ(HoldingText(hands[Seat::East][Suit::Clubs]), " 10 7 5 4");
  const std::string kSame[] = {
      "[dEAL \"e:95.74.aqj84.t754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96 A873.AJ83.52.Q32\"]\n",
      kPbnDeal.substr(0, kPbnDeal.size() - 1) + "[AKQJ \"AKQJ\"]\n"};
  for (const std::string& line : kSame) EXPECT_EQ(ReadOne(line).hands, hands) << line;
  const PerSeat<int> onlyNorth{{5, 0, 0, 0}};
  for (const char* line : {"[Deal \"W:- AK.2.3.4 - -\"]\n", "[Deal \"N:AK.2.3.4\"]\n"}) {
    EXPECT_EQ(GetStats(ReadOne(line).hands).seatCardCount, onlyNorth) << line;
  }
}

TEST(ReadPBN, ReadsAuctions) {
  const std::pair<const char*, const char*> kCases[] = {
      {"1D X XX AP", "1D Dbl Rdbl Pass Pass Pass"},
      {"2N p 3c", "2NT Pass 3C"},
      {"1H Pass 1S =1= Pass\n2C ! Pass 2H $5 Pass", "1H Pass 1S Pass 2C Pass 2H Pass"},
      {"1NT! - ? * +", "1NT"},
      {"1C {promises a club; Pass} 1D ; Pass Pass\n% Pass\n{\nAP\n}2D", "1C 1D 2D"},
      {"1S {so\n%it was} X\nP P", "1S Dbl Pass Pass"},  // "%" escapes no line inside a comment
      {"7 1 1X 8C 3", ""},
      {"\t Pass\t\tAll Pass ", "Pass Pass Pass Pass Pass"}};
  for (const auto& [section, calls] : kCases) {
    const std::string auction = std::string("[Auction \"N\"]\n") + section;
    const Board board = ReadOne(auction + "\n[Note \"1:Pass\"]\n" + kPbnDeal);
    EXPECT_EQ(CallsOf(board), calls) << section;
    EXPECT_TRUE(HasCards(board.hands)) << "the line that ends the section is read: " << section;
    EXPECT_EQ(CallsOf(ReadOne(auction)), calls) << "up to the end of the file: " << section;
  }
}

TEST(ReadPBN, AllPassStopsAtTheHundredthCall) {
  std::string calls = "[Auction \"N\"]\n";
  for (int i = 0; i < 99; ++i) calls += "P ";
  EXPECT_EQ(ReadOne(calls + "AP").NumCalls(), 100);
}

TEST(ReadPBN, ReadsDoubleDummyTricks) {
  const Board board = ReadOne("[DoubleDummyTricks \"746b5747b55862758627\"]\n");
  ASSERT_TRUE(board.makeableValid);
  // Declarers North, South, East, West; clubs first.
  const MakeableTable expected{
      {{{{5, 11, 6, 4, 7}}, {{5, 11, 7, 4, 7}}, {{7, 2, 6, 8, 5}}, {{7, 2, 6, 8, 5}}}}};
  EXPECT_EQ(board.makeable, expected);
}

// All rows but the last, in an order of their own, with tricks from 1 to 13, 0 and again 1 to 5.
const std::string kNineteen =
    "[OptimumResultTable \"Declarer;Denomination\\2R;Result\\2R\"]\nN NT  1\nN S  2\nN H  3\n"
    "N D  4\nN C  5\nE NT  6\nE S  7\nE H  8\nE D  9\nE C 10\ns NT 11\ns S 12\ns H 13\ns D  0\n"
    "s C  1\nW NT  2\nW S  3\nW H  4\nW D  5\n";

TEST(ReadPBN, ReadsOptimumResultTables) {
  const Board board = ReadOne(kNineteen + "W C 6\n" + kPbnDeal);
  EXPECT_EQ(board.makeable[TableSeat::North][TableStrain::NoTrump], 1);
  EXPECT_EQ(board.makeable[TableSeat::East][TableStrain::Spades], 7);
  EXPECT_EQ(board.makeable[TableSeat::South][TableStrain::Hearts], 13);
  EXPECT_TRUE(HasCards(board.hands));
  // The last row alone decides whether there is a table, unless its tricks cannot be taken: -1.
  const std::pair<const char*, int> kLast[] = {{"W C 6", 6},   {"W C 11 \t", 11}, {"W C 13", 13},
                                               {"W C 14", -1}, {"W C 0", -1},     {"W C ?", -1}};
  for (const auto& [row, tricks] : kLast) {
    const Board read = ReadOne(kNineteen + row);
    EXPECT_EQ(read.makeableValid ? read.makeable[TableSeat::West][TableStrain::Clubs] : -1, tricks);
  }
  const Board cut = ReadOne("[OptimumResultTable \"\"]\nN C 7\nS H 5");
  EXPECT_EQ(cut.makeable[TableSeat::South][TableStrain::Hearts], 5) << "at the end of the file";
}

TEST(ReadPBN, StopsAtALineThatCannotBeRead) {
  const std::string table = "[OptimumResultTable \"\"]\n";
  // What comes before the line, the line, and how many rows of its table came before it
  const std::tuple<std::string, const char*, const char*> kCases[] = {
      {"", "[Deal \"AK.2.3.4 - - -\"]", ""},
      {"", "[Deal \"X:AK.2.3.4 - - -\"]", ""},
      {"", "[Deal \":AK.2.3.4 - - -\"]", ""},
      {"", "[DoubleDummyTricks \"746b5747b5586275862\"]", ""},
      {"", "[DoubleDummyTricks \"746b5747b5586275862e\"]", ""},
      {table + "N NT 7\n", "[Note \"\"]", "1"},
      {kNineteen, "% PBN", "19"},
      {table, "", "0"},
      {table, "N X 7", ""},
      {table, " N C 7", ""},
      {table, "N", ""}};
  for (const auto& [before, line, rows] : kCases) {
    const Read read("%\n[Board \"3\"]\n" + kPbnDeal + "[Board \"4\"]\n" + before + line + "\n" +
                    kPbnDeal);
    EXPECT_EQ(read.result.badLine, line);
    EXPECT_EQ(read.result.badLineReason, *rows == '\0' ? ""
                                                       : "The double-dummy table of board 4 has " +
                                                             std::string(rows) + " of its 20 rows");
    EXPECT_EQ(read.sink.Numbers(), "3") << "the board before is kept: " << line;
    EXPECT_EQ(read.result.lastBoard, 3) << line;
  }
}

TEST(ReadPBN, LineEndsAreChosenOnceForTheFile) {
  const std::string body = "[Board \"1\"]\n" + kPbnDeal + "[Board \"2\"]\n" + kPbnDeal;
  for (const std::string end : {"\r\n", "\r", "\n"}) {
    std::string text = "%" + end;
    for (const char c : body) text += c == '\n' ? end : std::string(1, c);
    EXPECT_EQ(Read(text).sink.Numbers(), "1 2");
  }
  EXPECT_EQ(Read("[Board \"1\"]").sink.Numbers(), "");
  EXPECT_EQ(Read(body).sink.Numbers(), "2") << "the first line is never examined";
}

TEST(ReadPBN, KeepsTheHandsOfTheBoardBefore) {
  const Read read("%\n[Event \"\"]\n[Board \"1\"]\n" + kPbnDeal + "[Board \"2 Opener\"]\n");
  ASSERT_EQ(read.sink.Numbers(), "1 2");
  EXPECT_EQ(read.sink.boards[1].hands, read.sink.boards[0].hands);
}

}  // namespace
}  // namespace tricklet::test
