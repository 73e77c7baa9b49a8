// Which boards of which libraries are found, and what happens to files that cannot be read.
#include "finding/find_boards.h"

#include <gtest/gtest.h>

#include "finding/found_text.h"
#include "finding/read_query.h"
#include "library/board_file.h"
#include "tests/support/calls.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

/// "A" has boards 1 and 2 with results and a note, "B" has board 1 and a file that is no board.
class FindBoardsTest : public testing::Test {
 protected:
  FindBoardsTest() {
    Store("A", 1, "AK87.AJ83.52.Q32 95.74.AQJ84.10754 QJ1062.KQ62.K93.K 43.1095.1076.AJ986", "4S");
    Store("A", 2, "A87.AJ83.52.Q432 K95.74.AQJ84.1075 QJ1062.KQ62.K93.K 43.1095.1076.AJ986", "");
    Store("B", 1, "AK87.AJ83.52.Q32 95.74.AQJ84.10754 QJ1062.KQ62.K93.K 43.1095.1076.AJ986", "");
    WriteFile(folder.Path() / "B" / "005.txt", "no board");
    WriteFile(folder.Path() / "A" / "Notes.txt", "[2]\nA lesson in transfers\n");
    WriteFile(folder.Path() / "A" / "LIN.txt",
              "[LIN]\npn|Ann,Ed,Bob,Flo|ah|Board 1|\npn|Cy,Gus,Di,Hal|ah|Board 1|\n");
  }
  void Store(const std::string& library, int number, const std::string& hands,
             const std::string& contract) const {
    Board board;
    board.boardNumber = number;
    std::string_view rest = hands;
    for (const Seat seat : kAllSeats) GetHand(rest, board.hands, seat);
    if (!contract.empty()) {
      SetAuction(board, contract + " P P P");
      board.makeableValid = true;
      for (auto& row : board.makeable) row.fill(3);
      for (const TableSeat seat : {TableSeat::North, TableSeat::South}) {
        board.makeable[seat].fill(10);
      }
    }
    WriteFile(folder.Path() / library / BoardFileName(number), WriteBoardText(board));
  }
  /// "A1 A2", then what could not be read.
  std::string Found(const std::string& text) {
    const QueryOutcome outcome = ReadQuery(text, {}, {});
    if (!outcome.query) return outcome.fault;
    std::string found;
    FindSink sink;
    sink.found = [&](const FoundBoard& board) {
      found += board.library + std::to_string(board.listed.boardNumber) + " ";
    };
    sink.broken = [&](const std::filesystem::path& path, const std::string&) {
      broken.push_back(path.filename().string());
    };
    sink.goOn = [](const FindProgress&) { return true; };
    EXPECT_EQ(FindBoards({folder.Path(), {"A", "B"}}, *outcome.query, sink).boards, 4);
    return found;
  }
  TempFolder folder;
  std::vector<std::string> broken;
};

TEST_F(FindBoardsTest, TakesWordsAndConditions) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"", "A1 A2 B1 "},
      {"north", "A1 B1 "},
      {"4s", "A1 "},
      {"BOB", "A1 "},
      {"bob ed", "A1 "},
      {"bob zoe", ""},
      {"transf", "A2 "},
      {"transf 1", ""},
      {"played", "A1 "},
      {"unplayed e", "A2 "},
      {"par ns", "A1 "},
      {"par 420", ""},
      {"par 430", "A1 "},
      {"hcp(north) > 13", "A1 B1 "},
      {"hcp(north) < 13 and hearts(south) == 4", "A2 "},
      {"hcp(north) > 40", ""}};
  for (const auto& [text, boards] : cases) EXPECT_EQ(Found(text), boards) << text;
  EXPECT_EQ(broken, std::vector<std::string>(cases.size(), "005.txt"));
}

TEST_F(FindBoardsTest, SaysWhereAConditionIsWrong) {
  EXPECT_EQ(Found("hcp(nort) > 3").find("Line 1, column 5"), 0U) << Found("hcp(nort) > 3");
  EXPECT_EQ(Found("tricks(south, spades) > 9"), "There is no double-dummy solver");
}

TEST_F(FindBoardsTest, EndsWhenToldTo) {
  int found = 0;
  FindSink sink;
  sink.found = [&](const FoundBoard&) { ++found; };
  sink.broken = [](const std::filesystem::path&, const std::string&) {};
  sink.goOn = [](const FindProgress& progress) { return progress.libraries < 1; };
  EXPECT_EQ(FindBoards({folder.Path(), {"A", "B"}}, FindQuery(), sink).libraries, 1);
  EXPECT_EQ(found, 2);
}

}  // namespace
}  // namespace tricklet::test
