// Boards for the benchmarks.
#pragma once

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "core/board.h"

namespace tricklet::bench {

/// A full deal with the auction 1NT - 3NT and no table.
inline Board RandomBoard(int number, std::mt19937& random) {
  std::vector<int> pack(kCardsInPack);
  std::iota(pack.begin(), pack.end(), 0);
  std::shuffle(pack.begin(), pack.end(), random);
  Board board;
  board.boardNumber = number;
  for (std::size_t i = 0; i < pack.size(); ++i) {
    AddCard(board.hands, Card::FromIndex(pack[i]), static_cast<Seat>(i % kSeats));
  }
  for (const char* call : {"1NT", "Pass", "3NT", "Pass", "Pass", "Pass"}) {
    board.calls.Add(Call::FromText(call).value());
  }
  GetContract(board);
  return board;
}

}  // namespace tricklet::bench
