// A sink that keeps the boards of a reader.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "formats/sink/board_sink.h"
#include "formats/sink/record_text.h"

namespace tricklet::test {

class Collector : public BoardSink {
 public:
  void Store(const Board& board) override { boards.push_back(board); }
  bool Begin(int boardNumber, int done) override {
    EXPECT_GE(done, 0);
    EXPECT_LE(done, kWholeText);
    begun.push_back(boardNumber);
    return static_cast<int>(begun.size()) != cancelAt;
  }
  /// "1 2 7": the boards stored, in their order.
  std::string Numbers() const {
    std::string text;
    for (const Board& board : boards) {
      text += (text.empty() ? "" : " ") + std::to_string(board.boardNumber);
    }
    return text;
  }
  std::vector<Board> boards;
  std::vector<int> begun;
  int cancelAt = 0;
};

/// The calls of a board or of a LIN record.
inline std::string CallsOf(const auto& auction) {
  std::string text;
  for (const Call call : auction.calls) text += (text.empty() ? "" : " ") + call.Text();
  return text;
}

}  // namespace tricklet::test
