// Finding boards in a list.
#include "library/board_find.h"

#include <array>

#include <gtest/gtest.h>

#include "library/board_file.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"

namespace tricklet::test {
namespace {

ListedBoard Listed(int number, const std::string& auction) {
  Board board;
  board.boardNumber = number;
  board.hands = OneSuitEach();
  SetAuction(board, auction);
  return {.boardNumber = number,
          .stored = true,
          .summary = ReadBoardSummary(WriteBoardText(board), number)};
}

/// Boards 1 to 12, for each of which the words below are to find the right ones.
std::vector<ListedBoard> Boards() {
  std::vector<ListedBoard> boards{
      Listed(1, "P P P P"),
      Listed(2, "4S P P P"),
      Listed(3, "3NT X P P P"),
      Listed(4, "6D X XX P P P"),
      Listed(5, ""),
      Listed(6, "2H P P P"),
      Listed(7, "7C P P P"),
      Listed(8, "4S X P P P"),
      Listed(9, "4C P P P"),
      {.boardNumber = 10},
      {.boardNumber = 11, .stored = true},  // not read yet
      {.boardNumber = 12, .stored = true, .summary = ReadBoardSummary("half a bo", 12)}};
  boards[1].score = -50;
  boards[2].ruling = "A5050";
  boards[0].score = 0;
  boards[4].changed = true;
  return boards;
}

TEST(BoardFind, AWordFitsItsBoards) {
  constexpr std::pair<const char*, const char*> kCases[] = {
      {"", "1 2 3 4 5 6 7 8 9 10 11 12"},
      {"7", "7"},
      {"2-4", "2 3 4"},
      {" 11- ", "11 12"},
      {"4-2", ""},
      {"south", "3 7 11"},
      {"N", "1 5 9"},
      {"none", "1 8 11"},
      {"ew", "3 6 9"},
      {"EW s", "3"},
      {"all", "4 7 10"},
      {"4s", "2 8"},
      {"4SX", "8"},
      {"6d", "4"},
      {"6dx", ""},
      {"6dxx", "4"},
      {"nt", "3"},
      {"clu", "7 9"},
      {"game", "2 3 4 7 8"},
      {"part", "6 9"},
      {"slam", "4 7"},
      {"doub", "3 8"},
      {"redoubled", "4"},
      {"passed", "1"},
      {"bid", "1 2 3 4 6 7 8 9"},
      {"played", "1 2 3"},
      {"unplayed spades", "8"},
      {"empty", "10"},
      {"dealt", "1 2 3 4 5 6 7 8 9"},
      {"changed", "5"},
      {"8s", ""},
      {"-", ""},
      {"spadesx", ""},
  };
  for (const auto& [text, found] : kCases) {
    const BoardQuery query(text);
    std::string numbers;
    for (const ListedBoard& board : Boards()) {
      if (!query.Matches(board)) continue;
      numbers += (numbers.empty() ? "" : " ") + std::to_string(board.boardNumber);
    }
    EXPECT_EQ(numbers, found) << text;
  }
}

}  // namespace
}  // namespace tricklet::test
