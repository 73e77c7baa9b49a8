#include "library/board_file.h"

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/hands.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

/// 16 holding lines, one suit in each hand.
const std::string kHoldings = OneSuitEachText().substr(0, OneSuitEachText().size() - 8);

/// `text` with these line ends: those of board files, or as a program of another system saves it.
std::string Lines(const std::string& text, const std::string& end = "\r\n") {
  std::string lines;
  for (const char c : text) lines += c == '\n' ? end : std::string(1, c);
  return lines;
}

TEST(BoardFile, NamesAndNumbers) {
  EXPECT_EQ(BoardFileName(7), "007.txt");
#ifdef _WIN32
  constexpr int kInCapitals = 7;  // the same file there
#else
  constexpr int kInCapitals = 0;
#endif
  constexpr std::pair<const char*, int> kCases[] = {
      {"007.txt", 7}, {"1000.txt", 0}, {"7.txt", 0},     {"007.TXT", kInCapitals}, {"0x7.txt", 0},
      {"000.txt", 0}, {"-01.txt", 0},  {"999.txt", 999}, {"007.txt~", 0},          {"", 0}};
  for (const auto& [name, number] : kCases) EXPECT_EQ(BoardNumberOfFile(name), number) << name;
}

TEST(BoardFile, IsWrittenLineByLineAndReadWithAnyLineEnds) {
  Board board;
  board.hands = HandsOf("N:AK52.Q..T - .A.J2. 3..K.9");
  SetAuction(board, "1NT X XX P");
  std::string expected = " A K 5 2\n Q\n\n 10\n\n\n\n\n\n A\n J 2\n\n 3\n\n K\n 9\n";
  expected += " 4\n1NT\nDbl\nRdbl\nPass\n 1\n";
  board.makeableValid = true;
  int place = 0;
  for (auto& row : board.makeable) {
    for (auto& tricks : row) {
      tricks = static_cast<std::int16_t>(5 * place++ % 14);
      expected += " " + std::to_string(tricks) + "\n";
    }
  }
  EXPECT_EQ(board.makeable[TableSeat::South][TableStrain::Clubs], 11) << "the sixth";
  EXPECT_EQ(WriteBoardText(board), Lines(expected));
  for (const char* end : {"\r\n", "\n", "\r"}) {
    Board read;
    EXPECT_TRUE(ReadBoardText(Lines(expected, end), read, TableReading::Always));
    EXPECT_EQ(WriteBoardText(read), Lines(expected));
  }
}

TEST(BoardFile, ReadsOrRefuses) {
  const std::string table = "1\n1\n2\n3\n4\n5\n1\n2\n3\n4\n5\n1\n2\n3\n4\n5\n1\n2\n3\n4\n";
  std::string hundred = "100\n";
  for (int i = 0; i < 100; ++i) hundred += "Pass\n";
  const std::pair<std::string, const char*> cases[] = {
      {hundred + "0\n", "100 calls"},
      {"0", "0 calls"},
      {" 0 \n\n \n", "0 calls"},
      {"  2  \nPass\n1C\n 0 \n", "2 calls"},
      {"0\n" + table + "13", "0 calls, table"},
      {"0\n" + table + "14", "0 calls"},
      {"0\n" + table, "refused, 0 calls"},
      {"0\n2\n", "0 calls"},
      {"", "refused, 0 calls"},
      {"2x\nPass\nPass\n", "refused, 0 calls"},
      {"-1\n", "refused, 0 calls"},
      {"101\n", "refused, 0 calls"},
      {"3\nPass\n", "refused, 1 calls"},
      {"2\n8C\n\n" + table + "13", "2 calls, table"},
      {"0\nyes\n", "refused, 0 calls"},
      {"99999999999\n", "refused, 0 calls"},
  };
  for (const auto& [tail, result] : cases) {
    Board board;
    board.makeableValid = true;
    const bool readable = ReadBoardText(kHoldings + tail, board, TableReading::Always);
    EXPECT_EQ((readable ? "" : "refused, ") + std::to_string(board.NumCalls()) + " calls" +
                  (board.makeableValid ? ", table" : ""),
              result)
        << tail;
  }
}

TEST(BoardFile, WhatIsNoCallIsWrittenBackAsItStood) {
  const std::string text = kHoldings + Lines(" 5\n1C\n 1! \xBD\t\n\np!\nPass\n 0\n");
  Board board;
  ASSERT_TRUE(ReadBoardText(text, board, TableReading::Always));
  EXPECT_EQ(WriteBoardText(board), text);
  EXPECT_EQ(board.calls.TextAt(1), " 1! \u00bd\t");
}

TEST(BoardFile, ACardNamedTwiceStaysInTheLastHandAndATenMustBeWrittenTen) {
  const std::string text = " A\n\n\n\n A K T" + std::string(12, '\n') + "0\n";
  Board board;
  ASSERT_TRUE(ReadBoardText(text, board, TableReading::Always));
  EXPECT_TRUE(board.hands[Seat::North][Suit::Spades].Empty());
  EXPECT_EQ(HoldingText(board.hands[Seat::East][Suit::Spades]), " A K");
}

}  // namespace
}  // namespace tricklet::test
