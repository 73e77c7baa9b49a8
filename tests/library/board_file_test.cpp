#include "library/board_file.h"

#include <random>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

std::string Lines(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* line : lines) text += std::string(line) + "\r\n";
  return text;
}

/// 16 holding lines: the cards dealt round in turn.
std::string SixteenHoldings() {
  Board board;
  for (int card = 0; card < kCardsInPack; ++card) {
    AddCard(board.hands, Card::FromIndex(card), static_cast<Seat>(card % kSeats));
  }
  const std::string text = WriteBoardText(board);
  return text.substr(0, text.size() - std::string(" 0\r\n 0\r\n").size());
}

TEST(BoardFile, NamesAndNumbers) {
  EXPECT_EQ(BoardFileName(7), "007.txt");
  EXPECT_EQ(BoardFileName(999), "999.txt");
  const struct {
    const char* name;
    int number;
  } kCases[] = {{"007.txt", 7},  {"1000.txt", 0}, {"7.txt", 0},    {"007.TXT", 0},
                {"0x7.txt", 0},  {"LIN.txt", 0},  {"000.txt", 0},  {"-01.txt", 0},
                {"007.txt~", 0}, {"", 0},         {"999.txt", 999}};
  for (const auto& c : kCases) EXPECT_EQ(BoardNumberOfFile(c.name), c.number) << c.name;
}

TEST(BoardFile, IsWrittenLineByLine) {
  Board board;
  board.hands[Seat::North][Suit::Spades] = AddSpace("AK1052");
  board.hands[Seat::West][Suit::Clubs] = AddSpace("3");
  board.calls.Add(Call::Bid(1, BidStrain::NoTrump));
  board.calls.Add(Call::Double());
  board.makeableValid = true;
  board.makeable[TableSeat::South][TableStrain::Clubs] = 11;
  const std::string expected =
      Lines({" A K 10 5 2", "",   "",    "",    "",  "", "", "", "", "", "", "", "", "", "",
             " 3",          " 2", "1NT", "Dbl", " 1"}) +
      Lines({" 0", " 0", " 0", " 0", " 0", " 11", " 0", " 0", " 0", " 0",
             " 0", " 0", " 0", " 0", " 0", " 0",  " 0", " 0", " 0", " 0"});
  EXPECT_EQ(WriteBoardText(board), expected);
}

TEST(BoardFile, RandomBoardsComeBackAsTheyWere) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    Board board;
    board.boardNumber = 1 + round;
    for (int card = 0; card < kCardsInPack; ++card) {
      const auto seat = random() % 5;  // a fifth of the cards stays in the pack
      if (seat < 4) AddCard(board.hands, Card::FromIndex(card), static_cast<Seat>(seat));
    }
    for (auto calls = random() % 101; calls > 0; --calls) {
      const auto index = static_cast<int>(random() % 38);
      board.calls.Add(index < 35    ? Call::Bid(index / 5 + 1, static_cast<BidStrain>(index % 5))
                      : index == 35 ? Call::Pass()
                      : index == 36 ? Call::Double()
                                    : Call::Redouble());
    }
    board.makeableValid = random() % 2 == 0;
    for (auto& row : board.makeable) {
      for (auto& tricks : row) tricks = static_cast<std::int16_t>(random() % 14);
    }
    Board read;
    read.boardNumber = board.boardNumber;
    ASSERT_TRUE(ReadBoardText(WriteBoardText(board), read, TableReading::Always));
    EXPECT_EQ(read.hands, board.hands);
    EXPECT_EQ(read.calls, board.calls);
    EXPECT_EQ(read.makeableValid, board.makeableValid);
    if (board.makeableValid) {
      EXPECT_EQ(read.makeable, board.makeable);
    }
  }
}

TEST(BoardFile, ReadsOrRefuses) {
  const std::string hands = SixteenHoldings();
  const std::string table = Lines({"1", "1", "2", "3", "4", "5", "1", "2", "3", "4", "5",
                                   "1", "2", "3", "4", "5", "1", "2", "3", "4", "13"});
  const struct {
    const char* what;
    std::string text;
    bool readable;
    int calls;
    bool table;
  } kCases[] = {
      {"plain", hands + " 0\r\n 0\r\n", true, 0, false},
      {"no table line", hands + "0", true, 0, false},
      {"empty lines behind the calls", hands + " 0 \r\n\r\n \r\n", true, 0, false},
      {"blanks round numbers", hands + "  2  \r\nPass\r\n1C\r\n 0 \r\n", true, 2, false},
      {"with a table", hands + "0\r\n" + table, true, 0, true},
      {"impossible table",
       hands + "0\r\n" + table.substr(0, table.rfind('\n', table.size() - 2) + 1) + " 14\r\n", true,
       0, false},
      {"another table flag", hands + "0\r\n2\r\n", true, 0, false},
      {"empty", "", false, 0, false},
      {"fifteen holdings", hands.substr(0, hands.rfind("\r\n", hands.size() - 3) + 2), false, 0,
       false},
      {"no call count", hands, false, 0, false},
      {"call count no number", hands + "two\r\nPass\r\nPass\r\n", false, 0, false},
      {"call count with a tail", hands + "2x\r\nPass\r\nPass\r\n", false, 0, false},
      {"negative call count", hands + "-1\r\n", false, 0, false},
      {"too many calls", hands + "101\r\n", false, 0, false},
      {"fewer calls than counted", hands + "3\r\nPass\r\n", false, 1, false},
      {"what is no call", hands + "2\r\n8C\r\n\r\n" + table, true, 2, true},
      {"table cut short", hands + "0\r\n" + table.substr(0, 20), false, 0, false},
      {"table flag no number", hands + "0\r\nyes\r\n", false, 0, false},
      {"count beyond 16 bits", hands + "99999999999\r\n", false, 0, false},
  };
  for (const auto& c : kCases) {
    Board board;
    board.makeableValid = true;
    EXPECT_EQ(ReadBoardText(c.text, board, TableReading::Always), c.readable) << c.what;
    EXPECT_EQ(board.NumCalls(), c.calls) << c.what;
    EXPECT_EQ(board.makeableValid, c.table) << c.what;
  }
}

TEST(BoardFile, WhatIsNoCallIsWrittenBackAsItStood) {
  const std::string text =
      SixteenHoldings() + Lines({" 5", "1C", " 1! \xBD\t", "", "p!", "Pass", " 0"});
  Board board;
  ASSERT_TRUE(ReadBoardText(text, board, TableReading::Always));
  EXPECT_EQ(WriteBoardText(board), text);
  EXPECT_EQ(board.calls.TextAt(1), " 1! \u00bd\t");
}

TEST(BoardFile, AnyLineEndIsTaken) {
  const std::string text = SixteenHoldings() + " 1\r\n7NT\r\n 0\r\n";
  for (const std::string end : {"\n", "\r"}) {
    std::string other;
    for (const char c : text) {
      if (c == '\r') other += end;
      if (c != '\r' && c != '\n') other += c;
    }
    Board board;
    EXPECT_TRUE(ReadBoardText(other, board, TableReading::Always));
    EXPECT_TRUE(GetStats(board.hands).allHandsComplete);
    EXPECT_EQ(board.contract, "7NT");
  }
}

TEST(BoardFile, ACardNamedTwiceStaysInTheLastHandAndATenMustBeWrittenTen) {
  std::string text =
      Lines({" A", "", "", "", " A K T", "", "", "", "", "", "", "", "", "", "", ""});
  Board board;
  ASSERT_TRUE(ReadBoardText(text + "0\r\n", board, TableReading::Always));
  EXPECT_TRUE(board.hands[Seat::North][Suit::Spades].Empty());
  EXPECT_EQ(HoldingText(board.hands[Seat::East][Suit::Spades]), " A K");
}

}  // namespace
}  // namespace tricklet
