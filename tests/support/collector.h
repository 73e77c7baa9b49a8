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
  std::vector<Board> boards;
  std::vector<int> begun;
  int cancelAt = 0;
};

inline std::string CallsOf(const Board& board) {
  std::string text;
  for (const Call call : board.calls) text += (text.empty() ? "" : " ") + call.Text();
  return text;
}

}  // namespace tricklet::test
