#include "formats/exchange/import.h"

#include <gtest/gtest.h>

#include "library/board_file.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

const std::string kDeal =
    "[Deal \"N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96\"]\n";

std::string Games(std::initializer_list<int> numbers) {
  std::string text = "% PBN 2.1\n";
  for (const int number : numbers) {
    text += "[Board \"" + std::to_string(number) + "\"]\n" + kDeal + "\n";
  }
  return text;
}

class ImportTest : public test::LibraryTest {
 protected:
  fs::path File(const std::string& text, const std::string& name = "h\u00e4nde 1.PBN") {
    fs::path path = folder.Path() / PathFromText(name);
    WriteFile(path, text);
    return path;
  }
};

TEST_F(ImportTest, StoresBoardsAndShowsTheFirst) {
  host.ExpectTell("3 hands (5-7) have been saved to the library - Club");
  const ImportOutcome outcome = ImportFile(session, File(Games({5, 6, 7})));
  EXPECT_EQ(outcome.boardsSaved, 3);
  EXPECT_FALSE(outcome.failed);
  EXPECT_EQ(session.board.boardNumber, 5);
  EXPECT_TRUE(HasCards(session.board.hands));
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(session.library.boardCount, 3);
  EXPECT_EQ(session.library.maxBoard, 7);
  EXPECT_EQ(host.steps.front(), "Importing board 5");
  EXPECT_EQ(host.working, 0);
}

TEST_F(ImportTest, SaysHowManyWereSaved) {
  host.ExpectTell("Hand 12 has been saved to the library - Club");
  ImportFile(session, File(Games({12})));
  const fs::path none = File("[Board \"1\"]" + kDeal.substr(0, kDeal.size() - 1));
  host.ExpectAsk("Overwrite existing hands in library Club?", "Hands already in library",
                 Answer::Yes);
  host.ExpectTell("No hands have been saved to the library - Club");
  ImportFile(session, none);
  EXPECT_EQ(session.board.boardNumber, 12);
}

TEST_F(ImportTest, RefusesByQuestionTypeAndCancelledChooser) {
  PutBoard(3);
  const std::string before = ReadFile(session.BoardPath(3));
  const fs::path file = File(Games({3}));
  host.ExpectAskWith("Overwrite existing hands", Answer::No);
  EXPECT_TRUE(ImportFile(session, file).refused);

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.Choose(std::nullopt);
  EXPECT_TRUE(Import(session).refused);

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.Choose(File("x", "hands.doc"));
  host.ExpectTell("The file must be of type pbn, dlm or xml");
  EXPECT_TRUE(Import(session).refused);
  EXPECT_EQ(ReadFile(session.BoardPath(3)), before);
}

TEST_F(ImportTest, AsksAboutUnsavedChangesFirst) {
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 1", Answer::Cancel);
  EXPECT_TRUE(ImportFile(session, File(Games({1}))).refused);
  EXPECT_TRUE(session.board.handChanged);
}

TEST_F(ImportTest, TheBoardInHandIsNotImported) {
  AddCard(session.board.hands, {Suit::Spades, Rank::Ace}, Seat::North);
  host.ExpectTell("Hand 2 has been saved to the library - Club");
  ImportFile(session, File("%\n[Board \"2\"]\n[Event \"no deal\"]\n"));
  EXPECT_FALSE(fs::exists(session.BoardPath(1)));
  EXPECT_FALSE(HasCards(session.board.hands));
}

TEST_F(ImportTest, CancelKeepsWhatIsStoredAndCountsItOnce) {
  host.cancelAtStep = 3;
  host.ExpectTell("2 hands (1-2) have been saved to the library - Club");
  const ImportOutcome outcome = ImportFile(session, File(Games({1, 2, 3, 4})));
  EXPECT_TRUE(outcome.cancelled);
  EXPECT_EQ(outcome.boardsSaved, 2);
  EXPECT_EQ(session.library.boardCount, 2);
}

TEST_F(ImportTest, ABadLineIsShownAndEndsTheImport) {
  host.ExpectTell("Can't read this line:\n[Deal \"caf\u00e9\"]");
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  const ImportOutcome outcome =
      ImportFile(session, File(Games({1}) + "[Board \"2\"]\n[Deal \"caf\xe9\"]\n"));
  EXPECT_TRUE(outcome.failed);
  EXPECT_EQ(session.library.boardCount, 1);
}

TEST_F(ImportTest, WhatCannotBeReadIsSaid) {
  fs::create_directories(folder.Path() / "folder.pbn");
  for (const char* name : {"folder.pbn", "missing.pbn"}) {
    const fs::path path = folder.Path() / name;
    host.ExpectTell("Cannot read the file " + PathText(path));
    EXPECT_TRUE(ImportFile(session, path).failed);
  }
  std::string calls = "[Auction \"N\"]\n";
  for (int i = 0; i < 101; ++i) calls += "P ";
  const fs::path path = File(Games({1}) + "[Board \"2\"]\n" + calls + "\n");
  host.ExpectAskWith("Error no. 9\n", Answer::Yes);
  host.ExpectTell("Cannot read the file " + PathText(path));
  EXPECT_TRUE(ImportFile(session, path).failed);
  EXPECT_EQ(session.library.boardCount, 1) << "the board before it stays";
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_FALSE(session.batchRunning);
}

TEST_F(ImportTest, ALostLibraryFolderIsReported) {
  const fs::path file = File(Games({1}));
  fs::remove_all(session.LibraryPath());
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  host.ExpectTell("Cannot read the file " + PathText(file));
  EXPECT_TRUE(ImportFile(session, file).failed);
  EXPECT_EQ(session.library.boardCount, 0);
}

TEST_F(ImportTest, ReadsDlmFiles) {
  const std::string deal = "blblblblblblblblblblblblbl";
  const std::string boards = "Board 02=" + deal + "012\r\nBoard 01=" + deal + "015\r\n";
  WriteFile(session.LibraryPath() / "LIN.txt", "[lin]\r\n");
  host.ExpectTell("2 hands (1-2) have been saved to the library - Club");
  ImportFile(session, File("[Document]\r\nTo board=2\r\n" + boards, "two.DLM"));
  EXPECT_EQ(session.board.boardNumber, 1) << "the lowest";
  EXPECT_EQ(HoldingText(session.board.hands[Seat::North][Suit::Spades]), " A 10 6 2");
  EXPECT_EQ(host.recycled, std::vector<std::string>{"LIN.txt"});

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("Can't read this line:\nboard 03=aaa");
  host.ExpectTell("No hands have been saved to the library - Club");
  EXPECT_TRUE(ImportFile(session, File(boards + "Board 03=aaa\r\n", "bad.dlm")).failed);

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectAskWith("Error no. 9\n", Answer::Yes);
  const fs::path path = File("Board 05=" + deal.substr(0, 25) + "q\r\n", "worse.dlm");
  host.ExpectTell("Cannot read the file " + PathText(path));
  EXPECT_TRUE(ImportFile(session, path).failed);
  EXPECT_EQ(session.library.boardCount, 2);
}

TEST_F(ImportTest, ResultsOfTheReplacedBoardsGoToTheRecycleBin) {
  WriteFile(session.LibraryPath() / "LIN.txt", "[lin]\r\n");
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  ImportFile(session, File(Games({1})));
  EXPECT_EQ(host.recycled, std::vector<std::string>{"LIN.txt"});
}

}  // namespace
}  // namespace tricklet
