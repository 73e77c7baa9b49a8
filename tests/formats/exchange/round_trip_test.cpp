// A thousand random boards out to every type of file and back in.
#include <string>

#include <gtest/gtest.h>

#include "formats/exchange/export.h"
#include "formats/exchange/import.h"
#include "generate/deal.h"
#include "library/board_file.h"
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
  // The last row alone tells whether a table is there, and 0 tricks there say that it is not.
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
      session.settings.library = type;
      std::filesystem::create_directories(session.LibraryPath());
      if (batch > 0) host.ExpectAskWith("Overwrite existing", Answer::Yes);
      host.ExpectTell("99 hands (1-99) have been saved to the library - " + type);
      ASSERT_EQ(ImportAnyFile(session, path).boardsSaved, kBoards);
      for (Board board : boards) {
        if (type != "pbn") {  // the deal alone
          board.calls.Clear();
          board.makeableValid = false;
        }
        ASSERT_EQ(ReadFile(session.BoardPath(board.boardNumber)), WriteBoardText(board)) << type;
      }
      session.settings.library = "Club";
    }
  }
}

}  // namespace
}  // namespace tricklet::test
