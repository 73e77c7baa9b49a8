#include "formats/pbn/pbn_reader.h"

#include <string>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "core/statistics.h"
#include "tests/support/collector.h"

namespace tricklet {
namespace {

using test::CallsOf;
using test::Collector;

const std::string kDeal =
    "[Deal \"N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96\"]\n";

/// The one board of a file of a header line, Board 5, and `body`.
Board ReadOne(const std::string& body) {
  Collector sink;
  const ReadResult result = ReadPBN("% PBN\n[Board \"5\"]\n" + body, sink);
  EXPECT_EQ(result.badLine.value_or(""), "");
  EXPECT_EQ(result.boardsSaved, 1);
  return sink.boards.empty() ? Board() : sink.boards[0];
}

TEST(ReadPBN, ReadsADealFromAnyFirstHand) {
  const Board north = ReadOne(kDeal);
  EXPECT_TRUE(GetStats(north.hands).allHandsComplete);
  EXPECT_EQ(HoldingText(north.hands[Seat::East][Suit::Clubs]), " 10 7 5 4");
  const Board east =
      ReadOne("[dEAL \"e:95.74.aqj84.t754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96 A873.AJ83.52.Q32\"]\n");
  EXPECT_EQ(east.hands, north.hands);
}

TEST(ReadPBN, UnknownHandsAreEmpty) {
  const Board dash = ReadOne("[Deal \"S:- AK.2.3.4 - -\"]\n");
  EXPECT_EQ(HoldingText(dash.hands[Seat::West][Suit::Spades]), " A K");
  EXPECT_FALSE(GetStats(dash.hands).seatCardCount[Seat::South] > 0);
  const Board one = ReadOne("[Deal \"N:AK.2.3.4\"]\n");
  EXPECT_EQ(GetStats(one.hands).seatCardCount[Seat::North], 5);
}

TEST(ReadPBN, AnotherTagOnTheLineAddsNoCards) {
  const Board board = ReadOne(kDeal.substr(0, kDeal.size() - 1) + "[AKQJ \"AKQJ\"]\n");
  EXPECT_EQ(HoldingText(board.hands[Seat::West][Suit::Clubs]), " A J 9 6");
}

TEST(ReadPBN, ReadsAuctions) {
  const struct {
    const char* section;
    const char* calls;
  } kCases[] = {
      {"1D X XX AP", "1D Dbl Rdbl Pass Pass Pass"},
      {"2NT Pass", "2NT Pass"},
      {"2N p 3c", "2NT Pass 3C"},
      {"1H Pass 1S =1= Pass\n2C ! Pass 2H $5 Pass", "1H Pass 1S Pass 2C Pass 2H Pass"},
      {"1NT! - ? * +", "1NT"},
      {"1C {promises a club; Pass} 1D ; Pass Pass\n% Pass\n{\nAP\n}2D", "1C 1D 2D"},
      {"7 1 1X 8C 3", ""},
      {"", ""},
      {"\t Pass\t\tPass ", "Pass Pass"},
      {"All Pass", "Pass Pass Pass Pass"},
  };
  for (const auto& c : kCases) {
    const Board board =
        ReadOne(std::string("[Auction \"N\"]\n") + c.section + "\n[Note \"1:Pass\"]\n" + kDeal);
    EXPECT_EQ(CallsOf(board), c.calls) << c.section;
    EXPECT_TRUE(HasCards(board.hands)) << "the line that ends the section is read: " << c.section;
  }
}

TEST(ReadPBN, AnAuctionMayReachTheEndOfTheFile) {
  EXPECT_EQ(CallsOf(ReadOne("[Auction \"N\"]\n1C Pass\nPass Pass")), "1C Pass Pass Pass");
}

TEST(ReadPBN, AHundredCallsAreTheLimit) {
  std::string calls = "[Auction \"N\"]\n";
  for (int i = 0; i < 99; ++i) calls += "P ";
  EXPECT_EQ(ReadOne(calls + "AP").NumCalls(), 100) << "all-pass stops at the limit";
  Collector sink;
  EXPECT_THROW(ReadPBN("%\n[Board \"1\"]\n" + calls + "P P\n", sink), Fault);
  EXPECT_TRUE(sink.boards.empty());
}

TEST(ReadPBN, ReadsDoubleDummyTricks) {
  const Board board = ReadOne("[DoubleDummyTricks \"746b5747b55862758627\"]\n");
  ASSERT_TRUE(board.makeableValid);
  const auto& north = board.makeable[TableSeat::North];
  EXPECT_EQ(north[TableStrain::NoTrump], 7);
  EXPECT_EQ(north[TableStrain::Diamonds], 11);
  EXPECT_EQ(north[TableStrain::Clubs], 5);
  EXPECT_EQ(board.makeable[TableSeat::South][TableStrain::NoTrump], 7);
  EXPECT_EQ(board.makeable[TableSeat::West][TableStrain::Clubs], 7);
}

/// Rows in an order of their own, trick counts 1..20 modulo 14.
std::string OptimumTable(const std::string& lastRow) {
  std::string text = "[OptimumResultTable \"Declarer;Denomination\\2R;Result\\2R\"]\n";
  int tricks = 0;
  for (const char* declarer : {"N", "E", "s", "W"}) {
    for (const char* strain : {"NT", "S", "H", "D", "C"}) {
      if (++tricks == 20) break;
      text += std::string(declarer) + " " + strain + (tricks % 14 > 9 ? " " : "  ") +
              std::to_string(tricks % 14) + "\n";
    }
  }
  return text + lastRow + "\n";
}

TEST(ReadPBN, ReadsOptimumResultTables) {
  const Board board = ReadOne(OptimumTable("W C 6") + kDeal);
  EXPECT_TRUE(board.makeableValid);
  EXPECT_EQ(board.makeable[TableSeat::North][TableStrain::NoTrump], 1);
  EXPECT_EQ(board.makeable[TableSeat::East][TableStrain::Spades], 7);
  EXPECT_EQ(board.makeable[TableSeat::South][TableStrain::Hearts], 13);
  EXPECT_EQ(board.makeable[TableSeat::West][TableStrain::Clubs], 6);
  EXPECT_TRUE(HasCards(board.hands));
  // the last row alone decides whether there is a table
  EXPECT_FALSE(ReadOne(OptimumTable("W C 0")).makeableValid);
  EXPECT_FALSE(ReadOne(OptimumTable("W C ?")).makeableValid);
  // unless there are tricks that nobody can take
  EXPECT_FALSE(ReadOne(OptimumTable("W C 14")).makeableValid);
  const Board blanks = ReadOne(OptimumTable("W C 11 \t"));
  EXPECT_TRUE(blanks.makeableValid);
  EXPECT_EQ(blanks.makeable[TableSeat::West][TableStrain::Clubs], 11);
}

TEST(ReadPBN, StopsAtALineThatCannotBeRead) {
  const struct {
    const char* line;
    std::string shown;
  } kCases[] = {
      {"[Deal \"AK.2.3.4 - - -\"]", ""},
      {"[Deal \"X:AK.2.3.4 - - -\"]", ""},
      {"[Deal \":AK.2.3.4 - - -\"]", ""},
      {"[DoubleDummyTricks \"746b5747b5586275862\"]", ""},
      {"[DoubleDummyTricks \"746b5747b5586275862e\"]", ""},
      {"[OptimumResultTable \"\"]\nN NT 7\n[Note \"\"]", "[Note \"\"]"},
      {"[OptimumResultTable \"\"]\nN X 7", "N X 7"},
      {"[OptimumResultTable \"\"]\n\n", ""},
      {"[OptimumResultTable \"\"]\n N C 7", " N C 7"},
  };
  for (const auto& c : kCases) {
    Collector sink;
    std::string text = "%\n[Board \"3\"]\n" + kDeal + "[Board \"4\"]\n";
    text += c.line;
    text += "\n" + kDeal;
    const ReadResult result = ReadPBN(text, sink);
    ASSERT_TRUE(result.badLine) << c.line;
    const bool wholeLine = c.shown.empty() && std::string(c.line).find('\n') == std::string::npos;
    EXPECT_EQ(*result.badLine, wholeLine ? c.line : c.shown);
    EXPECT_EQ(result.boardsSaved, 1) << "the board before is kept: " << c.line;
    EXPECT_EQ(sink.boards.size(), 1U) << c.line;
    EXPECT_EQ(result.lastBoard, 3) << c.line;
  }
}

TEST(ReadPBN, ATableCutShortByTheEndOfTheFileEndsTheReading) {
  const Board board = ReadOne("[OptimumResultTable \"\"]\nN C 7\nS H 5");
  EXPECT_EQ(board.makeable[TableSeat::South][TableStrain::Hearts], 5);
}

TEST(ReadPBN, LineEndsAreChosenOnceForTheFile) {
  const std::string body = "[Board \"1\"]\n" + kDeal + "[Board \"2\"]\n" + kDeal;
  for (const std::string end : {"\r\n", "\r", "\n"}) {
    std::string text = "%" + end;
    for (const char c : body) text += c == '\n' ? end : std::string(1, c);
    Collector sink;
    EXPECT_EQ(ReadPBN(text, sink).boardsSaved, 2);
  }
  Collector none;
  EXPECT_EQ(ReadPBN("[Board \"1\"]", none).boardsSaved, 0);
  EXPECT_EQ(ReadPBN("", none).boardsSaved, 0);
}

TEST(ReadPBN, TheFirstLineIsNeverExamined) {
  Collector sink;
  const ReadResult result = ReadPBN("[Board \"1\"]\n" + kDeal + "[Board \"2\"]\n" + kDeal, sink);
  EXPECT_EQ(result.boardsSaved, 1);
  EXPECT_EQ(result.firstBoard, 2);
}

TEST(ReadPBN, KeepsHandsButNotCallsAndTable) {
  Collector sink;
  ReadPBN("%\n[Board \"1\"]\n" + kDeal +
              "[Auction \"N\"]\n1C AP\n[DoubleDummyTricks \"746b5747b55862758627\"]\n"
              "[Board \"2\"]\n[Event \"the other room\"]\n",
          sink);
  ASSERT_EQ(sink.boards.size(), 2U);
  EXPECT_EQ(sink.boards[1].hands, sink.boards[0].hands);
  EXPECT_EQ(sink.boards[0].contract, "1C");
  EXPECT_EQ(sink.boards[1].NumCalls(), 0);
  EXPECT_EQ(sink.boards[1].contract, "");
  EXPECT_FALSE(sink.boards[1].makeableValid);
}

TEST(ReadPBN, NumbersThatCannotBeStoredAreReadButNotStored) {
  Collector sink;
  const ReadResult result = ReadPBN("%\n[Board \"1000\"]\n" + kDeal +
                                        "[Board \"0\"]\n[Board \"12 Opener\"]\n[Board \"x\"]\n" +
                                        "[Board \"70000\"]\n[Board \"-4\"]\n[Board \"999\"]\n",
                                    sink);
  EXPECT_EQ(result.boardsSaved, 2);
  EXPECT_EQ(result.firstBoard, 1000);
  ASSERT_EQ(sink.boards.size(), 2U);
  EXPECT_EQ(sink.boards[0].boardNumber, 12);
  EXPECT_EQ(sink.boards[1].boardNumber, 999);
}

TEST(ReadPBN, CancelKeepsTheBoardsStoredSoFar) {
  Collector sink;
  sink.cancelAt = 3;
  const ReadResult result = ReadPBN("%\n[Board \"1\"]\n" + kDeal + "[Board \"2\"]\n" + kDeal +
                                        "[Board \"3\"]\n" + kDeal + "[Board \"4\"]\n",
                                    sink);
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.boardsSaved, 2);
  EXPECT_EQ(sink.boards.size(), 2U);
  EXPECT_EQ(result.lastBoard, 2);
}

TEST(ReadPBN, HostileTextIsReadInOneGo) {
  const std::string letters(1 << 20, 'A');
  Collector sink;
  ReadPBN("%\n[Board \"1\"]\n[Deal \"N:" + letters + "\"]\n[Note \"" + letters + "\"]\n" +
              std::string(1 << 20, '\0') + "\n" + std::string(1 << 20, '\n'),
          sink);
  ASSERT_EQ(sink.boards.size(), 1U);
  EXPECT_EQ(GetStats(sink.boards[0].hands).seatCardCount[Seat::North], 1);
}

}  // namespace
}  // namespace tricklet
