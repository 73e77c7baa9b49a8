// The road that every import takes: questions, storing, messages.
#include "formats/exchange/import.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "formats/exchange/record_reader.h"
#include "formats/results/lin_file.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::BoardElement;
using test::DlmLine;
using test::LinData;
using test::LinPasses;
using test::LinRecordText;
using test::OneLineBoard;
using test::PbnText;
using test::ReadFile;
using test::TravellerLine;
using test::UsebioBody;
using test::UsebioText;
using test::WriteFile;

class ImportTest : public test::LibraryTest {
 protected:
  fs::path File(const std::string& text, const std::string& name = "h\u00e4nde 1.PBN") {
    fs::path path = folder.Path() / PathFromText(name);
    WriteFile(path, text);
    return path;
  }
  /// The next library, with board 500 and results of it.
  void BeginLibrary() {
    session.settings.library = "Club " + std::to_string(++libraries_);
    fs::create_directories(session.LibraryPath());
    PutBoard(500);
    WriteFile(LinDataPath(session), kOldResults);
    host.recycled.clear();
    host.steps.clear();
    host.ExpectAskWith("Overwrite existing hands in library " + session.LibraryName(), Answer::Yes);
  }
  /// A question when it begins with "?". "#" stands for the library, "@" for the path.
  void Expect(std::string text, const fs::path& path = {}) {
    if (const auto at = text.find('@'); at != std::string::npos)
      text.replace(at, 1, PathText(path));
    if (text.ends_with("#")) {
      text.replace(text.size() - 1, 1, "been saved to the library - " + session.LibraryName());
    }
    if (text.starts_with("?")) {
      host.ExpectAskWith(text.substr(1), Answer::Yes);
    } else {
      host.ExpectTell(text);
    }
  }
  std::string Stored() const {
    std::string text;
    for (int number = 1; number <= kLastBoardNumber; ++number) {
      if (number != 500 && fs::exists(session.BoardPath(number))) {
        text += std::to_string(number) + " ";
      }
    }
    return text;
  }

  const std::string kOldResults = "[LIN]\r\nqx|o500|old|\r\n";

 private:
  int libraries_ = 0;
};

TEST_F(ImportTest, StoresBoardsAndShowsTheFirst) {
  AddCard(session.board.hands, {Suit::Spades, Rank::Ace}, Seat::North);
  host.ExpectTell("3 hands (5-7) have been saved to the library - Club");
  const ImportOutcome outcome = ImportFile(session, File(PbnText({5, 6, 7})));
  EXPECT_EQ(outcome.boardsSaved, 3);
  EXPECT_FALSE(outcome.failed);
  EXPECT_EQ(session.board.boardNumber, 5);
  EXPECT_TRUE(HasCards(session.board.hands));
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(session.library.boardCount, 3) << "the board in hand is not imported";
  EXPECT_EQ(session.library.maxBoard, 7);
  EXPECT_EQ(host.steps.front(), "Importing board 5");
  EXPECT_EQ(host.working, 0);

  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell("2 hands (1-2) have been saved to the library - Club");
  ImportFile(session, File("[Document]\r\nTo board=2\r\n" + DlmLine(2) + DlmLine(1), "two.DLM"));
  EXPECT_EQ(session.board.boardNumber, 1) << "the lowest";
  EXPECT_EQ(HoldingText(session.board.hands[Seat::North][Suit::Spades]), " A 10 6 2");

  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell("Hand 2 has been saved to the library - Club");
  ImportFile(session, File("%\n[Board \"2\"]\n[Event \"no deal\"]\n"));
  EXPECT_FALSE(HasCards(session.board.hands)) << "nothing of the board in hand";
}

/// What becomes of a file.
struct Case {
  const char* what;
  const char* name;
  std::string text;
  std::vector<std::string> told;
  std::string stored;
  int saved;
  bool failed;
  std::size_t records;  // in "LIN.txt" afterwards, with that of board 500; 0: it was recycled
};

std::vector<Case> Cases() {
  const std::string other = "0HAKQJT98765432,SAKQJT98765432";
  std::string twelve;
  for (int board = 1; board <= 12; ++board) {
    twelve += LinRecordText("o" + std::to_string(board), "mb|1C|",
                            (board == 4 ? "1" : "0") + other.substr(1)) +
              LinRecordText("o" + std::to_string(board));
  }
  const std::string impossible =
      "1 deal was left out as impossible (no card, a card twice or more "
      "than 13 cards in a hand): 2";
  const std::string endless = "1 auction was left out for having more than 100 calls: 2";
  const std::string repeated =
      "were left out because a board of the same number came before them in the file: ";
  const std::string foreign = " left out because the dealer of the record is not the board's: ";
  const std::string unstorable = " left out because a library holds boards 1 to 999: ";
  const std::string broken = " left out for a broken percent escape: ";
  const std::string unread =
      "Error 13 (A percent escape is not complete) in procedure ReadFileXML "
      "of Module modXML";
  const std::string noLin = "This xml file has no LIN data:\n\n@";
  const std::string loadFailed =
      "XML File Load failed - a website might not be available or the "
      "file is in the wrong format";
  const auto xmlLine = [](int board, const std::string& data) {
    return BoardElement(std::to_string(board), TravellerLine(data));
  };
  return {
      {"one", "a.pbn", PbnText({12}), {"Hand 12 has #"}, "12 ", 1, false, 0},
      {"no line end", "a.pbn", "[Board \"1\"]", {"No hands have #"}, "", 0, false, 1},
      {"a bad line",
       "a.pbn",
       PbnText({1}) + "[Board \"2\"]\n[Deal \"caf\xe9\"]\n",
       {"Can't read this line:\n[Deal \"caf\u00e9\"]", "Hand 1 has #"},
       "1 ",
       1,
       true,
       0},
      {"a bad line lowers the last number",
       "a.pbn",
       PbnText({1, 1, 1}) + "[Deal \"\"]\n",
       {"Can't read this line:\n[Deal \"\"]", "2 hands (1-0) have #",
        "Board 1 of the file is stored"},
       "1 ",
       2,
       true,
       0},
      {"a table that is cut short",
       "a.pbn",
       PbnText({1, 2}) + "[OptimumResultTable \"\"]\nN NT 7\n\n[Note \"\"]\n",
       {"Can't read this line:\n", "The double-dummy table of board 2 has 1 of its 20 rows",
        "Hand 1 has #"},
       "1 ",
       1,
       true,
       0},
      {"numbers of no library",
       "a.pbn",
       PbnText({1000, 999, 0, 0}),
       {"Hand 1000 has #", "Board 999 of the file is stored",
        "3 boards were" + unstorable + "0, 1000"},
       "999 ",
       1,
       false,
       0},
      {"the highest cannot be stored",
       "a.pbn",
       PbnText({1, 2, 3, 7, 1000}),
       {"4 hands (1-1000) have #", "Boards 1-3, 7 of the file are stored",
        "1 board was" + unstorable + "1000"},
       "1 2 3 7 ",
       4,
       false,
       0},
      {"too many calls",
       "a.pbn",
       PbnText({1, 2}) + "[Auction \"N\"]\n" +
           [] {
             std::string calls;
             for (int i = 0; i < 101; ++i) calls += "P ";
             return calls;
           }() +
           "\n",
       {"?Error no. 9\n", "Cannot read the file @"},
       "1 ",
       0,
       true,
       0},
      {"a bad board line",
       "a.dlm",
       DlmLine(2) + DlmLine(1) + "Board 03=aaa\r\n",
       {"Can't read this line:\nboard 03=aaa", "No hands have #",
        "Boards 1-2 of the file are stored"},
       "1 2 ",
       0,
       true,
       0},
      {"a bad letter",
       "a.dlm",
       DlmLine(5, "blblblblblblblblblblblblbq"),
       {"?Error no. 9\n", "Cannot read the file @"},
       "",
       0,
       true,
       1},
      {"deals that differ",
       "a.LIN",
       LinRecordText("o1") + LinRecordText("o1", "", other) + LinRecordText("o1", "", other) +
           LinRecordText("c1"),
       {"Hand 1 has #", "2 deals " + repeated + "1"},
       "1 ",
       1,
       false,
       3},
      {"many that differ, and another dealer",
       "a.lin",
       twelve,
       {"12 hands (1-12) have #", "12 deals " + repeated +
                                      "1, 2, 3, 4, 5, 6, 7, 8, 9, 10 ...\n"
                                      "1 auction was" +
                                      foreign + "4"},
       "1 2 3 4 5 6 7 8 9 10 11 12 ",
       12,
       false,
       13},
      {"one that differs",
       "a.lin",
       LinRecordText("o1") + LinRecordText("o1", "", other),
       {"Hand 1 has #",
        "1 deal was left out because a board of the same number came before it in "
        "the file: 1"},
       "1 ",
       1,
       false,
       2},
      {"an impossible deal",
       "a.lin",
       LinRecordText("o1") + "qx|o2|md|3SAA,,,|" + LinRecordText("o3"),
       {"2 hands (1-3) have #", impossible},
       "1 3 ",
       2,
       true,
       3},
      {"too many calls",
       "a.lin",
       LinRecordText("o1") + LinRecordText("o2", LinPasses(101)),
       {"2 hands (1-2) have #", endless},
       "1 2 ",
       2,
       true,
       3},
      {"numbers of no library",
       "a.lin",
       LinRecordText("o1000"),
       {"No hands have #", "1 board was" + unstorable + "1000"},
       "",
       0,
       false,
       1},
      {"no records", "a.lin", "no records", {"No hands have #"}, "", 0, false, 1},
      {"numbers of no library",
       "a.xml",
       UsebioText(OneLineBoard(0) + OneLineBoard(1) + OneLineBoard(999) + OneLineBoard(1000) +
                  xmlLine(-5, LinData(-5)) + BoardElement("1001", "")),
       {"2 hands (1-999) have #", "3 boards were" + unstorable + "-5, 0, 1000"},
       "1 999 ",
       2,
       false,
       5},
      {"nothing to store",
       "a.xml",
       UsebioText(OneLineBoard(1000)),
       {"No hands have #", "1 board was" + unstorable + "1000"},
       "",
       0,
       false,
       1},
      {"other dealers",
       "a.xml",
       UsebioText(xmlLine(1, LinData(2)) + xmlLine(2, LinData(2)) + xmlLine(3, LinData(4))),
       {"3 hands (1-3) have #", "2 auctions were" + foreign + "1, 3"},
       "1 2 3 ",
       3,
       false,
       3},
      {"an impossible deal",
       "a.xml",
       UsebioText(OneLineBoard(1) + xmlLine(2, "qx|o2|md|3SAA,,,|") + OneLineBoard(3)),
       {"2 hands (1-3) have #", impossible},
       "1 3 ",
       2,
       true,
       2},
      {"too many calls",
       "a.xml",
       UsebioText(OneLineBoard(1) + xmlLine(2, LinData(2, LinPasses(101)))),
       {"2 hands (1-2) have #", endless},
       "1 2 ",
       2,
       true,
       2},
      {"a broken escape",
       "a.xml",
       UsebioText(OneLineBoard(1) + xmlLine(2, "qx|o2|pn|Ann%2") + xmlLine(3, "%")),
       {unread, "Hand 1 has #", "2 LIN records were" + broken + "2, 3"},
       "1 ",
       1,
       true,
       3},
      {"nothing but a broken escape",
       "a.xml",
       UsebioText(xmlLine(2, "%")),
       {unread, "Unable to import XML file", "No hands have #", "1 LIN record was" + broken + "2"},
       "",
       0,
       true,
       1},
      {"no LIN data",
       "a.xml",
       UsebioText(BoardElement("1", "<TRAVELLER_LINE/>")),
       {noLin, "No hands have #"},
       "",
       0,
       true,
       1},
      {"nothing", "a.xml", "", {noLin, "No hands have #"}, "", 0, true, 1},
      {"no XML", "a.xml", "<LIN_DATA></WRONG>", {loadFailed, "No hands have #"}, "", 0, true, 1},
      {"two sections",
       "a.xml",
       "<!DOCTYPE USEBIO SYSTEM \"http://example.org/u.dtd\">" +
           UsebioBody("<SECTION_COUNT>2</SECTION_COUNT>" + OneLineBoard(1)),
       {"Only Single Section Imports supported", "No hands have #"},
       "",
       0,
       true,
       1},
  };
}

TEST_F(ImportTest, TellsWhatWasStoredAndWhatWasNot) {
  for (const Case& c : Cases()) {
    SCOPED_TRACE(std::string(c.name) + ": " + c.what);
    BeginLibrary();
    const fs::path path = File(c.text, c.name);
    for (const std::string& message : c.told) Expect(message, path);
    const ImportOutcome outcome = ImportAnyFile(session, path);
    EXPECT_TRUE(host.Done());
    EXPECT_EQ(Stored(), c.stored);
    EXPECT_EQ(outcome.boardsSaved, c.saved);
    EXPECT_EQ(outcome.failed, c.failed);
    EXPECT_EQ(LoadLinData(session).lin.size(), c.records);
    EXPECT_EQ(host.recycled.size(), c.records == 0 ? 1U : 0U);
    if (c.stored.empty()) {
      EXPECT_EQ(ReadFile(LinDataPath(session)), kOldResults);
      EXPECT_EQ(ReadFile(session.BoardPath(500)), test::OneSuitEachText());
    }
    EXPECT_FALSE(fs::exists(session.LibraryPath() / "QENXML.xml"));
    EXPECT_FALSE(session.batchRunning);
    EXPECT_EQ(host.working, 0);
  }
}

/// Boards 1 to 3 in a file of each type.
struct ThreeBoards {
  const char* name;
  std::string text;
  std::vector<std::string> unwritten;  // told when a board cannot be written
  std::size_t records;                 // in "LIN.txt" when one board was; 0: it was recycled
};

std::vector<ThreeBoards> Files() {
  const std::vector<std::string> report{"?Error no. 75\nLine "};
  const std::string results = UsebioText(OneLineBoard(3) + OneLineBoard(1) + OneLineBoard(2));
  return {{"a.pbn", PbnText({1, 2, 3}), report, 0},
          {"a.dlm", DlmLine(1) + DlmLine(2) + DlmLine(3), report, 0},
          {"a.lin", LinRecordText("o1") + LinRecordText("o2") + LinRecordText("o3"), report, 2},
          {"a.xml",
           results,
           {"Error 75 (Is a directory: @) in procedure ReadFileXML of Module modXML",
            "Unable to import XML file"},
           1}};
}

TEST_F(ImportTest, CancelKeepsWhatIsStoredAndCountsItOnce) {
  for (const ThreeBoards& file : Files()) {
    for (const int stored : {0, 1}) {
      SCOPED_TRACE(file.name);
      BeginLibrary();
      host.cancelAtStep = stored + 1;
      Expect(stored == 0 ? "No hands have #" : "Hand 1 has #");
      const ImportOutcome outcome = ImportAnyFile(session, File(file.text, file.name));
      EXPECT_TRUE(outcome.cancelled);
      EXPECT_FALSE(outcome.failed);
      EXPECT_EQ(outcome.boardsSaved, stored);
      EXPECT_EQ(Stored(), stored == 0 ? "" : "1 ");
      EXPECT_EQ(LoadLinData(session).lin.size(), stored == 0 ? 1 : file.records);
    }
  }
}

TEST_F(ImportTest, ABoardThatCannotBeWrittenEndsTheImport) {
  for (const ThreeBoards& file : Files()) {
    for (const int stored : {0, 1}) {
      SCOPED_TRACE(file.name);
      BeginLibrary();
      const fs::path blocked = session.BoardPath(stored + 1);
      WriteFile(blocked / "x", "");  // a folder that no file can replace
      for (const std::string& message : file.unwritten) Expect(message, blocked);
      Expect(stored == 0 ? "No hands have #" : "Hand 1 has #");
      const ImportOutcome outcome = ImportAnyFile(session, File(file.text, file.name));
      EXPECT_TRUE(outcome.failed);
      EXPECT_EQ(outcome.boardsSaved, stored);
      EXPECT_FALSE(fs::exists(session.BoardPath(stored + 2)));
      EXPECT_EQ(LoadLinData(session).lin.size(), stored == 0 ? 1 : file.records);
    }
  }
}

TEST_F(ImportTest, WhatCannotBeReadIsSaid) {
  fs::create_directories(folder.Path() / "folder.pbn");
  for (const char* name : {"folder.pbn", "missing.lin"}) {
    const fs::path path = folder.Path() / name;
    host.ExpectTell("Cannot read the file " + PathText(path));
    EXPECT_TRUE(ImportAnyFile(session, path).failed);
  }
  EXPECT_THROW(ReaderOf("doc"), Fault);
}

TEST_F(ImportTest, AsksAndRefuses) {
  const struct {
    ImportOutcome (*chosen)(Session&);
    ImportOutcome (*named)(Session&, const fs::path&);
    fs::path file;
    const char* otherType;
  } kCommands[] = {
      {Import, ImportFile, File(PbnText({3})), "The file must be of type pbn, dlm or xml"},
      {ImportLin, ImportLinFile, File(LinRecordText("o3"), "a.lin"),
       "The file must be of type lin"}};
  PutBoard(3);
  const std::string before = ReadFile(session.BoardPath(3));
  for (const auto& command : kCommands) {
    host.ExpectAsk("Overwrite existing hands in library Club?", "Hands already in library",
                   Answer::No);
    EXPECT_TRUE(command.named(session, command.file).refused);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(std::nullopt);
    EXPECT_TRUE(command.chosen(session).refused);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(File("x", "hands.doc"));
    host.ExpectTell(command.otherType);
    EXPECT_TRUE(command.chosen(session).refused);
    session.board.handChanged = true;
    host.ExpectAskWith("Do you want to save changes to board", Answer::Cancel);
    EXPECT_TRUE(command.named(session, command.file).refused);
    EXPECT_TRUE(session.board.handChanged);
    session.board.handChanged = false;
    EXPECT_EQ(ReadFile(session.BoardPath(3)), before);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(command.file);
    host.ExpectTell("Hand 3 has been saved to the library - Club");
    EXPECT_EQ(command.chosen(session).boardsSaved, 1);
    WriteFile(session.BoardPath(3), before);
  }
  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell(kCommands[0].otherType);
  EXPECT_TRUE(ImportAnyFile(session, File("", "a.txt")).refused);
}

TEST_F(ImportTest, TakesPastedRecords) {
  host.ExpectTell("There are no LIN records in this text");
  EXPECT_TRUE(ImportLinText(session, "Dear Ann, dear Bob").refused);
  host.ExpectTell("Hand 2 has been saved to the library - Club");
  EXPECT_EQ(ImportLinText(session, LinRecordText("o2")).boardsSaved, 1);
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 2", Answer::Cancel);
  EXPECT_TRUE(ImportLinText(session, LinRecordText("o1")).refused);
}

}  // namespace
}  // namespace tricklet
