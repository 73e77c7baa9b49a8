// The road that every import takes: questions, storing, messages.
#include "formats/exchange/import.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "formats/exchange/record_reader.h"
#include "formats/results/lin_file.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/file_io.h"
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
using test::UsebioText;
using test::WriteFile;

/// Writes down what it is told and asked, agrees to everything, and cancels at a step.
class Diary : public test::ScriptedHost {
 public:
  using Host::Tell;
  void Tell(const std::string& text, const std::string& /*title*/) override { said += text + "\n"; }
  Answer Ask(const std::string& text, const std::string& /*title*/, Buttons /*all*/) override {
    if (!text.starts_with("Overwrite")) said += "? " + text + "\n";
    return Answer::Yes;
  }
  std::string said;
};

class ImportTest : public test::LibraryTest {
 protected:
  fs::path File(const std::string& text, const std::string& name = "h\u00e4nde 1.PBN") {
    fs::path path = folder.Path() / PathFromText(name);
    WriteFile(path, text);
    return path;
  }

  /// Imports a file into a new library that holds board 500 and a record of it; from `blocked` on
  /// its boards cannot be written. Gives what was said and, in brackets, what came of it: the
  /// boards stored, how many are said to be, and the records in "LIN.txt" or that it was recycled.
  std::string Import(const std::string& name, const std::string& text, int cancelAt = 0,
                     int blocked = 0) {
    Diary diary;
    diary.cancelAtStep = cancelAt;
    Session into(diary, store);
    into.settings = session.settings;
    into.settings.library = "Library " + std::to_string(++libraries_);
    fs::create_directories(into.LibraryPath());
    WriteFile(into.BoardPath(500), test::OneSuitEachText());
    const std::string old = "[LIN]\r\nqx|o500|old|\r\n";
    WriteFile(LinDataPath(into), old);
    if (blocked > 0) WriteFile(into.BoardPath(blocked) / "x", "");  // no file replaces a folder
    const fs::path path = File(text, name);
    const ImportOutcome outcome = ImportAnyFile(into, path);
    std::string stored;
    for (int number = 1; number <= kLastBoardNumber; ++number) {
      if (number != 500 && FileExists(into.BoardPath(number))) {
        stored += std::to_string(number) + " ";
      }
    }
    EXPECT_TRUE(!stored.empty() || ReadFile(LinDataPath(into)) == old);
    EXPECT_EQ(ReadFile(into.BoardPath(500)), test::OneSuitEachText());
    EXPECT_FALSE(fs::exists(into.LibraryPath() / "QENXML.xml"));
    EXPECT_FALSE(into.batchRunning);
    EXPECT_EQ(diary.working, 0);
    Replace(diary.said, "been saved to the library - " + into.LibraryName() + "\n", "#\n");
    Replace(diary.said, PathText(path), "@");
    if (blocked > 0) Replace(diary.said, PathText(into.BoardPath(blocked)), "@");
    return diary.said + "[" + stored + "| " + std::to_string(outcome.boardsSaved) +
           (outcome.failed ? " failed" : "") + (outcome.cancelled ? " cancelled | " : " | ") +
           (diary.recycled.empty() ? std::to_string(LoadLinData(into).lin.size())
                                   : diary.recycled.at(0)) +
           "]";
  }

 private:
  static void Replace(std::string& text, const std::string& from, const std::string& to) {
    if (const auto at = text.find(from); at != std::string::npos) text.replace(at, from.size(), to);
  }
  int libraries_ = 0;
};

TEST_F(ImportTest, StoresBoardsAndShowsTheFirst) {
  AddCard(session.board.hands, {Suit::Spades, Rank::Ace}, Seat::North);
  host.ExpectTell("3 hands (5-7) have been saved to the library - Club");
  EXPECT_FALSE(ImportFile(session, File(PbnText({5, 6, 7}))).failed);
  EXPECT_EQ(session.board.boardNumber, 5);
  EXPECT_TRUE(HasCards(session.board.hands));
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(session.library.boardCount, 3) << "the board that was open is not imported";
  EXPECT_EQ(session.library.maxBoard, 7);
  EXPECT_EQ(host.steps.front(), "Importing board 5");

  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell("2 hands (1-2) have been saved to the library - Club");
  ImportFile(session, File("[Document]\r\nTo board=2\r\n" + DlmLine(2) + DlmLine(1), "two.DLM"));
  EXPECT_EQ(session.board.boardNumber, 1) << "the lowest";
  EXPECT_EQ(HoldingText(session.board.hands[Seat::North][Suit::Spades]), " A 10 6 2");

  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell("Hand 2 has been saved to the library - Club");
  ImportFile(session, File("%\n[Board \"2\"]\n[Event \"no deal\"]\n"));
  EXPECT_FALSE(HasCards(session.board.hands)) << "nothing of the board that was open";

  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell("No hands have been saved to the library - Club");
  ImportFile(session, File("[Board \"3\"]"));
  EXPECT_EQ(session.board.boardNumber, 2) << "the board before";
}

constexpr const char* kUnstorable = " left out because a library holds boards 1 to 999: ";
constexpr const char* kBroken = " left out for a broken percent escape: ";
constexpr const char* kImpossible =
    " left out as impossible (no card, a card twice or more than 13 cards in a hand): ";
constexpr const char* kForeign = " left out because the dealer of the record is not the board's: ";
constexpr const char* kOverlong = " left out for having more than 100 calls: ";

TEST_F(ImportTest, TellsWhatWasStoredOfPbn) {
  EXPECT_EQ(Import("a.pbn", PbnText({12})), "Hand 12 has #\n[12 | 1 | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", "[Board \"1\"]"), "No hands have #\n[| 0 | 1]");
  EXPECT_EQ(Import("a.pbn", PbnText({1}) + "[Board \"2\"]\n[Deal \"caf\xe9\"]\n"),
            "Can't read this line:\n[Deal \"caf\u00e9\"]\nHand 1 has #\n[1 | 1 failed | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", PbnText({1, 1, 1}) + "[Deal \"\"]\n"),
            "Can't read this line:\n[Deal \"\"]\n2 hands (1-0) have #\n"
            "Board 1 of the file is stored\n[1 | 2 failed | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", PbnText({1, 2}) + "[OptimumResultTable \"\"]\nN NT 7\n[A \"\"]\n"),
            "Can't read this line:\n[A \"\"]\nThe double-dummy table of board 2 has 1 of its 20 "
            "rows\nHand 1 has #\n[1 | 1 failed | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", PbnText({1, 2}) + "[OptimumResultTable \"\"]\nX NT 7\n"),
            "Can't read this line:\nX NT 7\nHand 1 has #\n[1 | 1 failed | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", PbnText({1000, 999, 0, 0})),
            "Hand 1000 has #\nBoard 999 of the file is stored\n3 boards were" +
                std::string(kUnstorable) + "0, 1000\n[999 | 1 | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", PbnText({1, 1000})),
            "Hand 1 has #\n1 board was" + std::string(kUnstorable) + "1000\n[1 | 1 | LIN.txt]");
  EXPECT_EQ(Import("a.pbn", PbnText({1, 2, 3, 7, 1000})),
            "4 hands (1-1000) have #\nBoards 1-3, 7 of the file are stored\n1 board was" +
                std::string(kUnstorable) + "1000\n[1 2 3 7 | 4 | LIN.txt]");
  std::string calls = "[Auction \"N\"]\n";
  for (int call = 0; call < 101; ++call) calls += "P ";
  const std::string said = Import("a.pbn", PbnText({1, 2}) + calls + "\n");
  EXPECT_NE(said.find("\nError no. 9\nLine "), std::string::npos) << said;
  EXPECT_TRUE(said.ends_with("?\nCannot read the file @\n[1 | 0 failed | LIN.txt]")) << said;
}

TEST_F(ImportTest, TellsWhatWasStoredOfDlm) {
  EXPECT_EQ(Import("a.dlm", DlmLine(2) + DlmLine(1) + "Board 03=aaa\r\n"),
            "Can't read this line:\nboard 03=aaa\nNo hands have #\nBoards 1-2 of the file are "
            "stored\n[1 2 | 0 failed | LIN.txt]");
  const std::string said = Import("a.dlm", DlmLine(5, "blblblblblblblblblblblblbq"));
  EXPECT_NE(said.find("\nError no. 9\nLine "), std::string::npos) << said;
  EXPECT_TRUE(said.ends_with("?\nCannot read the file @\n[| 0 failed | 1]")) << said;
}

TEST_F(ImportTest, TellsWhatWasStoredOfLin) {
  const std::string other = "0HAKQJT98765432,SAKQJT98765432";
  const std::string repeated =
      " left out because a board of the same number came before them in the file: ";
  EXPECT_EQ(Import("a.LIN", LinRecordText("o1") + LinRecordText("o1", "", other) +
                                LinRecordText("o1", "", other) + LinRecordText("c1")),
            "Hand 1 has #\n2 deals were" + repeated + "1\n[1 | 1 | 3]");
  EXPECT_EQ(Import("a.lin", LinRecordText("o1") + LinRecordText("o1", "", other)),
            "Hand 1 has #\n1 deal was left out because a board of the same number came before it "
            "in the file: 1\n[1 | 1 | 2]");
  std::string twelve;
  for (int board = 1; board <= 12; ++board) {
    const std::string room = "o" + std::to_string(board);
    twelve += LinRecordText(room, "mb|1C|", (board == 4 ? "1" : "0") + other.substr(1));
    twelve += LinRecordText(room);
  }
  EXPECT_EQ(Import("a.lin", twelve), "12 hands (1-12) have #\n12 deals were" + repeated +
                                         "1, 2, 3, 4, 5, 6, 7, 8, 9, 10 ...\n1 auction was" +
                                         kForeign + "4\n[1 2 3 4 5 6 7 8 9 10 11 12 | 12 | 13]");
  EXPECT_EQ(
      Import("a.lin", LinRecordText("o1") + "qx|o2|md|3SAA|" + LinRecordText("o3")),
      "2 hands (1-3) have #\n1 deal was" + std::string(kImpossible) + "2\n[1 3 | 2 failed | 3]");
  EXPECT_EQ(
      Import("a.lin", LinRecordText("o1") + LinRecordText("o2", LinPasses(101))),
      "2 hands (1-2) have #\n1 auction was" + std::string(kOverlong) + "2\n[1 2 | 2 failed | 3]");
  EXPECT_EQ(Import("a.lin", "lin=" + LinRecordText("o2") + "%"),
            "No hands have #\n1 LIN record was" + std::string(kBroken) + "2\n[| 0 failed | 1]");
  EXPECT_EQ(Import("a.lin", LinRecordText("o1000")),
            "No hands have #\n1 board was" + std::string(kUnstorable) + "1000\n[| 0 | 1]");
  EXPECT_EQ(Import("a.lin", "no records"), "No hands have #\n[| 0 | 1]");
}

TEST_F(ImportTest, TellsWhatWasStoredOfASession) {
  const auto board = [](int number, const std::string& data) {
    return BoardElement(std::to_string(number), TravellerLine(data));
  };
  const std::string one = OneLineBoard(1);
  const std::string none = "No hands have #\n[| 0 failed | 1]";
  const std::string unread =
      "Error 13 (A percent escape is not complete) in procedure ReadFileXML of Module modXML\n";
  EXPECT_EQ(
      Import("a.xml", UsebioText(OneLineBoard(0) + one + OneLineBoard(999) + OneLineBoard(1000) +
                                 board(-5, LinData(-5)) + BoardElement("1001", ""))),
      "2 hands (1-999) have #\n3 boards were" + std::string(kUnstorable) +
          "-5, 0, 1000\n[1 999 | 2 | 5]");
  EXPECT_EQ(Import("a.xml", UsebioText(OneLineBoard(1000))),
            "No hands have #\n1 board was" + std::string(kUnstorable) + "1000\n[| 0 | 1]");
  EXPECT_EQ(
      Import("a.xml",
             UsebioText(board(1, LinData(2)) + board(2, LinData(2)) + board(3, LinData(4)))),
      "3 hands (1-3) have #\n2 auctions were" + std::string(kForeign) + "1, 3\n[1 2 3 | 3 | 3]");
  EXPECT_EQ(
      Import("a.xml", UsebioText(one + board(2, "qx|o2|md|3SAA|") + OneLineBoard(3))),
      "2 hands (1-3) have #\n1 deal was" + std::string(kImpossible) + "2\n[1 3 | 2 failed | 2]");
  EXPECT_EQ(
      Import("a.xml", UsebioText(one + board(2, LinData(2, LinPasses(101))))),
      "2 hands (1-2) have #\n1 auction was" + std::string(kOverlong) + "2\n[1 2 | 2 failed | 2]");
  EXPECT_EQ(Import("a.xml", UsebioText(one + board(2, "qx|o2|pn|Ann%2") + board(3, "%"))),
            unread + "Hand 1 has #\n2 LIN records were" + kBroken + "2, 3\n[1 | 1 failed | 3]");
  EXPECT_EQ(Import("a.xml", UsebioText(board(2, "%"))),
            unread + "Unable to import XML file\nNo hands have #\n1 LIN record was" + kBroken +
                "2\n[| 0 failed | 1]");
  for (const std::string& text :
       {UsebioText(BoardElement("1", "<TRAVELLER_LINE/>")), std::string()}) {
    EXPECT_EQ(Import("a.xml", text), "This xml file has no LIN data:\n\n@\n" + none);
  }
  EXPECT_EQ(Import("a.xml", "<LIN_DATA></WRONG>"),
            "XML File Load failed - a website might not be available or the file is in the wrong "
            "format\n" +
                none);
  EXPECT_EQ(Import("a.xml", "<!DOCTYPE USEBIO SYSTEM \"http://example.org/u.dtd\">" +
                                test::UsebioBody("<SECTION_COUNT>2</SECTION_COUNT>" + one)),
            "Only Single Section Imports supported\n" + none);
}

TEST_F(ImportTest, EndsEarlyWithWhatIsStored) {
  const struct {
    const char* name;
    std::string text;
    const char* results;  // when boards 1 and 2 are stored
  } kFiles[] = {{"a.pbn", PbnText({1, 2, 3}), "LIN.txt]"},
                {"a.dlm", DlmLine(1) + DlmLine(2) + DlmLine(3), "LIN.txt]"},
                {"a.lin", LinRecordText("o1") + LinRecordText("o2") + LinRecordText("o3"), "3]"},
                {"a.xml", UsebioText(OneLineBoard(3) + OneLineBoard(1) + OneLineBoard(2)), "2]"}};
  for (const auto& file : kFiles) {
    EXPECT_EQ(Import(file.name, file.text, 1), "No hands have #\n[| 0 cancelled | 1]");
    EXPECT_EQ(Import(file.name, file.text, 3),
              "2 hands (1-2) have #\n[1 2 | 2 cancelled | " + std::string(file.results));
    const bool xml = std::string(file.name) == "a.xml";
    for (const int blocked : {1, 3}) {
      const std::string said = Import(file.name, file.text, 0, blocked);
      EXPECT_TRUE(said.starts_with(xml ? "Error 75 (Is a directory: @) in procedure ReadFileXML of "
                                         "Module modXML\nUnable to import XML file\n"
                                       : "? Is a directory: @\nError no. 75\nLine "))
          << said;
      EXPECT_TRUE(said.ends_with(blocked == 1 ? "\nNo hands have #\n[| 0 failed | 1]"
                                              : "\n2 hands (1-2) have #\n[1 2 | 2 failed | " +
                                                    std::string(file.results)))
          << said;
    }
  }
}

TEST_F(ImportTest, AReadOnlyBoardIsToldOnceAndEndsTheImport) {
  const std::pair<const char*, std::string> kFiles[] = {
      {"a.pbn", PbnText({1, 2, 2, 3})},
      {"a.xml", UsebioText(OneLineBoard(1) + OneLineBoard(2) + OneLineBoard(3))}};
  for (const auto& [name, text] : kFiles) {
    PutBoard(2);
    const fs::path marked = session.BoardPath(2);
    fs::permissions(marked, fs::perms::owner_read);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.ExpectTell("The file\n" + PathText(marked) + "\nis read only so the hand cannot be saved");
    host.ExpectTell("Hand 1 has been saved to the library - Club");
    const ImportOutcome outcome = ImportFile(session, File(text, name));
    EXPECT_TRUE(outcome.failed);
    EXPECT_EQ(outcome.boardsSaved, 1);
    EXPECT_EQ(ReadFile(marked), test::OneSuitEachText());
    EXPECT_EQ(session.library.boardCount, 2) << "board 3 is not stored";
    fs::permissions(marked, fs::perms::owner_all);
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
  } kCommands[] = {{tricklet::Import, ImportFile, File(PbnText({3})),
                    "The file must be of type pbn, dlm or xml"},
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
