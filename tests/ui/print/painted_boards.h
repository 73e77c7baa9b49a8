// Boards to be painted, and what was painted of them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <random>
#include <utility>

#include <QPainter>

#include "bench/random_board.h"
#include "publish/published.h"
#include "ui/print/sheets.h"

namespace tricklet::ui {

/// Boards of random deals with tables and par.
inline Published RandomBoards(int count) {
  std::mt19937 random(15);
  Published published;
  for (int number = 1; number <= count; ++number) {
    PublishedBoard one;
    one.board = bench::RandomBoard(number, random);
    one.complete = true;
    for (auto& row : one.board.makeable)
      std::generate(row.begin(), row.end(),
                    [&] { return static_cast<std::int16_t>(random() % 14); });
    one.board.makeableValid = true;
    one.par = ComputePar(one.board.makeable, one.board.Dealer(), one.board.Vulnerability());
    published.boards.push_back(std::move(one));
  }
  return published;
}

inline void Paint(QPaintDevice& device, const Sheets& sheets, int page) {
  QPainter painter(&device);
  sheets.Paint(painter, page);
}

}  // namespace tricklet::ui
