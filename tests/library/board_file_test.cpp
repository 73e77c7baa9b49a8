#include "library/board_file.h"

#include <random>

#include <gtest/gtest.h>

#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

/// 16 holding lines, one suit in each hand.
const std::string kHoldings = test::OneSuitEachText().substr(0, test::OneSuitEachText().size() - 8);

/// `text` with these line ends: those of board files, or as a program of another system saves it.
std::string Lines(const std::string& text, const std::string& end = "\r\n") {
  std::string lines;
  for (const char c : text) lines += c == '\n' ? end : std::string(c == '\r' ? 0 : 1, c);
  return lines;
}

TEST(BoardFile, NamesAndNumbers) {
  EXPECT_EQ(BoardFileName(7), "007.txt");
  constexpr std::pair<const char*, int> kCases[] = {
      {"007.txt", 7}, {"1000.txt", 0}, {"7.txt", 0},     {"007.TXT", 0},  {"0x7.txt", 0},
      {"000.txt", 0}, {"-01.txt", 0},  {"999.txt", 999}, {"007.txt~", 0}, {"", 0}};
  for (const auto& [name, number] : kCases) EXPECT_EQ(BoardNumberOfFile(name), number) << name;
}

TEST(BoardFile, IsWrittenLineByLine) {
  Board board;
  board.hands[Seat::North][Suit::Spades] = AddSpace("AK1052");
  board.hands[Seat::West][Suit::Clubs] = AddSpace("3");
  board.calls.Add(Call::Bid(1, BidStrain::NoTrump));
  board.calls.Add(Call::Double());
  board.makeableValid = true;
  board.makeable[TableSeat::South][TableStrain::Clubs] = 11;
  std::string expected = " A K 10 5 2" + std::string(15, '\n') + " 3\n 2\n1NT\nDbl\n 1\n";
  for (int value = 0; value < 20; ++value) expected += value == 5 ? " 11\n" : " 0\n";
  EXPECT_EQ(WriteBoardText(board), Lines(expected));
}

TEST(BoardFile, RandomBoardsComeBackAsTheyWereWithAnyLineEnds) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    Board board;
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
      for (auto& tricks : row) {
        tricks = static_cast<std::int16_t>(board.makeableValid ? random() % 14 : 0);
      }
    }
    for (const char* end : {"\r\n", "\n", "\r"}) {
      Board read;
      const std::string text = Lines(WriteBoardText(board), end);
      ASSERT_TRUE(ReadBoardText(text, read, TableReading::Always));
      EXPECT_EQ(read.hands, board.hands);
      EXPECT_EQ(read.calls, board.calls);
      EXPECT_EQ(read.makeableValid, board.makeableValid);
      EXPECT_EQ(read.makeable, board.makeable);
    }
  }
}

TEST(BoardFile, ReadsOrRefuses) {
  const std::string table = "1\n1\n2\n3\n4\n5\n1\n2\n3\n4\n5\n1\n2\n3\n4\n5\n1\n2\n3\n4\n";
  const std::pair<std::string, const char*> cases[] = {
      {"0", "0 calls"},
      {" 0 \n\n \n", "0 calls"},
      {"  2  \nPass\n1C\n 0 \n", "2 calls"},
      {"0\n" + table + "13", "0 calls, table"},
      {"0\n" + table + "14", "0 calls"},
      {"0\n" + table, "refused, 0 calls"},
      {"0\n2\n", "0 calls"},
      {"", "refused, 0 calls"},
      {"two\nPass\nPass\n", "refused, 0 calls"},
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
  Board board;
  EXPECT_FALSE(ReadBoardText("", board, TableReading::Always));
  EXPECT_FALSE(
      ReadBoardText(kHoldings.substr(kHoldings.find('\n') + 1) + "0", board, TableReading::Always));
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
}  // namespace tricklet
