#include "formats/exchange/import_lin.h"

#include <string>

#include <gtest/gtest.h>

#include "formats/results/lin_file.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::WriteFile;

std::string Record(const std::string& room, const std::string& more = "") {
  return "qx|" + room + "|md|0SAKQJT98765432,HAKQJT98765432,DAKQJT98765432,|" + more + "pg||\r\n";
}

class ImportLinTest : public test::LibraryTest {
 protected:
  fs::path File(const std::string& text, const std::string& name = "s\u00e9ance 1.LIN") {
    fs::path path = folder.Path() / PathFromText(name);
    WriteFile(path, text);
    return path;
  }
};

TEST_F(ImportLinTest, StoresBoardsAndTheirRecords) {
  WriteFile(session.LibraryPath() / "LIN.txt", "[lin]\r\nqx|o1|md|1SA,,,|rh||ah|Board 1|\r\n");
  host.onStep = [this] { EXPECT_EQ(LoadLinData(session).lin.size(), 1U) << "until the end"; };
  host.ExpectTell("2 hands (5-6) have been saved to the library - Club");
  const ImportOutcome outcome = ImportLinFile(
      session, File(Record("o5", "mb|1C|mb|p|mb|p|mb|p|") + Record("c5") + Record("o6")));
  EXPECT_EQ(outcome.boardsSaved, 2);
  EXPECT_EQ(session.board.boardNumber, 5);
  EXPECT_EQ(session.board.contract, "1C");
  EXPECT_EQ(session.library.boardCount, 2);
  EXPECT_EQ(host.steps.front(), "Importing board 5");
  EXPECT_TRUE(host.recycled.empty()) << "replaced in its place";
  const LinFile results = LoadLinData(session);
  EXPECT_EQ(results.lin.size(), 4U) << "board 1 keeps its own";
  EXPECT_EQ(results.boardScoringAbb, "IMP") << "two rooms";
}

TEST_F(ImportLinTest, ResultsOfOtherBoardsStay) {
  LinFile session1;
  session1.boardScoringMethod = "CROSS_IMPS";
  session1.boardScoringAbb = "XIMP";
  session1.teamEvent.emplace();
  session1.teamEvent->teams = {"1 Hearts"};
  session1.names = {"1 NS Ann & Bob"};
  session1.lin = {"qx|o1|first|", "ah|Board 2|qent|9|", "x|y|ah|Board 1|second|", "qx|o3|third|"};
  StoreLinData(session, session1);
  host.ExpectTell("2 hands (1-4) have been saved to the library - Club");
  ImportLinFile(session, File(Record("o1") + Record("o4")));
  LinFile results = LoadLinData(session);
  ASSERT_EQ(results.lin.size(), 4U);
  EXPECT_EQ(results.lin[0], session1.lin[1]);
  EXPECT_EQ(results.lin[1], session1.lin[3]);
  EXPECT_TRUE(results.lin[2].starts_with("qx|o1|pn|,,,|"));
  results.lin = session1.lin;
  EXPECT_EQ(results, session1) << "names and scoring";

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("4 hands (1-4) have been saved to the library - Club");
  ImportLinFile(session, File(Record("o1") + Record("o2") + Record("o3") + Record("o4")));
  results = LoadLinData(session);
  EXPECT_EQ(results.lin.size(), 4U);
  EXPECT_EQ(results.boardScoringAbb, "MP") << "nothing of the session is left";
  EXPECT_TRUE(results.names.empty());
}

TEST_F(ImportLinTest, TakesAChosenFileAndAText) {
  host.Choose(File(Record("o1")));
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  EXPECT_EQ(ImportLin(session).boardsSaved, 1);
  EXPECT_EQ(LoadLinData(session).boardScoringAbb, "MP");
  host.ExpectAsk("Overwrite existing hands in library Club?", "Hands already in library",
                 Answer::Yes);
  host.ExpectTell("Hand 2 has been saved to the library - Club");
  EXPECT_EQ(ImportLinText(session, Record("o2")).boardsSaved, 1);
}

TEST_F(ImportLinTest, AsksAndRefusesAsEveryImportDoes) {
  PutBoard(1);
  host.ExpectAskWith("Overwrite existing hands", Answer::No);
  EXPECT_TRUE(ImportLinFile(session, File(Record("o1"))).refused);
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.Choose(std::nullopt);
  EXPECT_TRUE(ImportLin(session).refused);
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("The file must be of type lin");
  EXPECT_TRUE(ImportLinFile(session, File(Record("o1"), "boards.pbn")).refused);
  host.ExpectTell("There are no LIN records in this text");
  EXPECT_TRUE(ImportLinText(session, "Dear Ann, dear Bob").refused);
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 1", Answer::Cancel);
  EXPECT_TRUE(ImportLinText(session, Record("o1")).refused);
  EXPECT_TRUE(session.board.handChanged);
}

TEST_F(ImportLinTest, BadInputIsToldAndStoresNothingOfIt) {
  host.ExpectTell("Can't read this line:\nmd|3SAA,,,|");
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  EXPECT_TRUE(ImportLinFile(session, File(Record("o1") + "qx|o2|md|3SAA,,,|")).failed);
  EXPECT_EQ(LoadLinData(session).lin.size(), 1U);

  std::string calls;
  for (int i = 0; i < 101; ++i) calls += "mb|p|";
  const fs::path path = File(Record("o1") + Record("c1") + Record("o2", calls));
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectAskWith("Error no. 9\n", Answer::Yes);
  host.ExpectTell("Cannot read the file " + PathText(path));
  EXPECT_TRUE(ImportLinFile(session, path).failed);
  EXPECT_EQ(LoadLinData(session).lin.size(), 2U) << "the results of the board that stays";
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectAskWith("Error no. 13\n", Answer::Yes);
  host.ExpectTell("Cannot read the LIN records");
  EXPECT_TRUE(ImportLinText(session, "lin=md%7C3SA%7C%").failed);
  EXPECT_EQ(session.library.boardCount, 1);
  EXPECT_EQ(LoadLinData(session).lin.size(), 2U);

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("No hands have been saved to the library - Club");
  EXPECT_EQ(ImportLinFile(session, File("no records")).boardsSaved, 0);
}

TEST_F(ImportLinTest, TellsWhatIsLeftOut) {
  const auto other = [](int board, const std::string& dealer, const std::string& calls) {
    return "qx|o" + std::to_string(board) + "|md|" + dealer +
           "HAKQJT98765432,SAKQJT98765432,DAKQJT98765432,|" + calls + "pg||";
  };
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  host.ExpectTell(
      "2 deals were left out because a board of the same number came before them in the file: 1");
  ImportLinFile(session, File(Record("o1") + other(1, "0", "") + other(1, "0", "") + Record("c1")));

  std::string file;
  for (int board = 1; board <= 12; ++board) {
    file += other(board, board == 4 ? "1" : "0", "mb|1C|") + Record("o" + std::to_string(board));
  }
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("12 hands (1-12) have been saved to the library - Club");
  host.ExpectTell(
      "12 deals were left out because a board of the same number came before them in the file: "
      "1, 2, 3, 4, 5, 6, 7, 8, 9, 10 ...\n"
      "1 auction was left out because the dealer of the record is not the board's: 4");
  ImportLinFile(session, File(file));
}

TEST_F(ImportLinTest, CancelKeepsBoardsAndTheirRecords) {
  host.cancelAtStep = 3;
  host.ExpectTell("2 hands (1-2) have been saved to the library - Club");
  EXPECT_TRUE(ImportLinFile(session, File(Record("o1") + Record("o2") + Record("o3"))).cancelled);
  EXPECT_EQ(LoadLinData(session).lin.size(), 2U);
}

TEST_F(ImportLinTest, AnyFileGoesToItsImport) {
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  EXPECT_EQ(ImportAnyFile(session, File(Record("o1"))).boardsSaved, 1);
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("The file must be of type pbn, dlm or xml");
  EXPECT_TRUE(ImportAnyFile(session, File("", "a.txt")).refused);
}

}  // namespace
}  // namespace tricklet
