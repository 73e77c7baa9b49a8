// A thousand random boards out to every type of file and back in.
#include <string>

#include <gtest/gtest.h>

#include "formats/exchange/export.h"
#include "formats/exchange/record_reader.h"
#include "generate/deal.h"
#include "library/board_file.h"
#include "tests/support/collector.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

constexpr int kBatches = 11;  // of as many boards as a dealing machine takes
constexpr int kBoards = 99;

/// Any deal, any table or none, and calls that need not be legal: they are only carried.
Board RandomBoard(int number, RandomSource& random) {
  Board board;
  board.boardNumber = number;
  EXPECT_TRUE(Random(board.hands, random));
  for (int i = RandomBetween(0, 12, random); i > 0; --i) {
    const int bid = RandomBetween(0, Call::kBids + 2, random);
    const Call others[] = {Call::Pass(), Call::Double(), Call::Redouble()};
    board.calls.Add(bid < Call::kBids
                        ? Call::Bid(bid / kStrains + 1, static_cast<BidStrain>(bid % kStrains))
                        : others[bid - Call::kBids]);
  }
  board.makeableValid = RandomBetween(0, 1, random) == 1;
  for (auto& row : board.makeable) {
    for (auto& tricks : row) tricks = static_cast<std::int16_t>(RandomBetween(0, 13, random));
  }
  // A table whose last row has 0 tricks counts as none.
  board.makeable[TableSeat::West][TableStrain::NoTrump] = 13;
  return board;
}

TEST_F(LibraryTest, EveryTypeGivesIdenticalBoards) {
  RandomSource random{20261121};
  for (int batch = 0; batch < kBatches; ++batch) {
    std::vector<Board> boards;
    for (int number = 1; number <= kBoards; ++number) {
      boards.push_back(RandomBoard(number, random));
      WriteFile(session.BoardPath(number), WriteBoardText(boards.back()));
    }
    for (const std::string type : {"pbn", "dlm", "lin"}) {
      const auto path = folder.Path() / ("boards." + type);
      host.ExpectTell("File " + PathText(path) + " created");
      ASSERT_TRUE(ExportFile(session, {1, kBoards, type}, path));
      RecordSource source{path, ReadFile(path)};
      Collector sink;
      Reading reading;
      ReaderOf(type).read(source, sink, reading);
      ASSERT_EQ(sink.boards.size(), boards.size());
      for (std::size_t i = 0; i < boards.size(); ++i) {
        Board board = boards[i];
        if (type != "pbn") board.calls.Clear();  // the deal alone
        if (type != "pbn") board.makeableValid = false;
        ASSERT_EQ(sink.boards[i].boardNumber, board.boardNumber);
        ASSERT_EQ(WriteBoardText(sink.boards[i]), WriteBoardText(board)) << type;
      }
    }
  }
}

}  // namespace
}  // namespace tricklet::test
