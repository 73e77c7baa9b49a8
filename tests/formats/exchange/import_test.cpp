// The road that every import takes: questions, storing, messages.
#include "formats/exchange/import.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "formats/exchange/record_reader.h"
#include "formats/results/lin_file.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/file_io.h"
#include "tests/support/diary.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

/// The reasons for leaving something out, and by what they stand below.
constexpr std::pair<const char*, const char*> kReasons[] = {
    {" left out because a library holds boards 1 to 999: ", " UNSTORABLE "},
    {" left out for a broken percent escape: ", " BROKEN "},
    {" left out as impossible (no card, a card twice or more than 13 cards in a hand): ",
     " IMPOSSIBLE "},
    {" left out because the dealer of the record is not the board's: ", " FOREIGN "},
    {" left out for having more than 100 calls: ", " OVERLONG "},
    {"was left out because a board of the same number came before it in the file: ",
     "was REPEATED "},
    {"were left out because a board of the same number came before them in the file: ",
     "were REPEATED "},
    {"Error 13 (A percent escape is not complete) in procedure ReadFileXML of Module modXML",
     "ERROR 13"}};

class ImportTest : public LibraryTest {
 protected:
  fs::path File(const std::string& text, const std::string& name = "h\u00e4nde 1.PBN") {
    fs::path path = folder.Path() / PathFromText(name);
    WriteFile(path, text);
    return path;
  }

  /// Imports a file into a new library that holds board 500 and a record of it; from `blocked` on
  /// its boards cannot be written. Gives what was said and, in brackets, what came of it: the
  /// boards stored, how many are said to be, and the records in "LIN.txt" with their scoring, or
  /// that it was recycled.
  std::string Import(const std::string& name, const std::string& text, int cancelAt = 0,
                     int blocked = 0) {
    Diary diary;
    diary.cancelAtStep = cancelAt;
    Session into(diary, store);
    into.settings = session.settings;
    into.settings.library = "Library " + std::to_string(++libraries_);
    fs::create_directories(into.LibraryPath());
    WriteFile(into.BoardPath(500), OneSuitEachText());
    const std::string old = "[LIN]\r\nqx|o500|old|\r\n";
    WriteFile(LinDataPath(into), old);
    if (blocked > 0) WriteFile(into.BoardPath(blocked) / "x", "");  // no file replaces a folder
    const fs::path path = File(text, name);
    const ImportOutcome outcome = ImportAnyFile(into, path);
    std::string stored;
    for (int number = 1; number <= kLastBoardNumber; ++number) {
      if (number == 500 || !FileExists(into.BoardPath(number))) continue;
      stored += (stored.empty() ? "" : " ") + std::to_string(number);
    }
    EXPECT_TRUE(!stored.empty() || ReadFile(LinDataPath(into)) == old);
    EXPECT_EQ(ReadFile(into.BoardPath(500)), OneSuitEachText());
    EXPECT_FALSE(fs::exists(into.LibraryPath() / "QENXML.xml"));
    EXPECT_FALSE(into.batchRunning);
    EXPECT_EQ(diary.working, 0);
    diary.Shorten("been saved to the library - " + into.LibraryName() + "\n", "#\n");
    diary.Shorten(PathText(path), "@");
    diary.Shorten(PathText(into.BoardPath(blocked)), "@");
    for (const auto& [reason, brief] : kReasons) diary.Shorten(reason, brief);
    const LinFile results = LoadLinData(into);
    return diary.said + "[" + stored + "|" + std::to_string(outcome.boardsSaved) +
           (outcome.failed ? " failed" : "") + (outcome.cancelled ? " cancelled|" : "|") +
           (diary.recycled.empty() ? std::to_string(results.lin.size()) + " " +
                                         results.boardScoringMethod + "/" + results.boardScoringAbb
                                   : diary.recycled.at(0)) +
           "]";
  }
  /// What comes of the text of each file.
  void Expect(const std::string& name,
              const std::vector<std::pair<std::string, const char*>>& told) {
    for (const auto& [text, result] : told) EXPECT_EQ(Import(name, text), result) << text;
  }

 private:
  int libraries_ = 0;
};

TEST_F(ImportTest, StoresBoardsAndShowsTheFirst) {
  AddCard(session.board.hands, {Suit::Spades, Rank::Ace}, Seat::North);
  const std::tuple<fs::path, const char*, int, bool> kCases[] = {
      {File(PbnText({5, 6, 7})), "3 hands (5-7) have", 5, true},
      {File("To board=2\r\n" + DlmLine(2) + DlmLine(1), "two.DLM"), "2 hands (1-2) have", 1, true},
      // nothing of the board that was open
      {File("%\n[Board \"2\"]\n[Event \"no deal\"]\n", "no deal.pbn"), "Hand 2 has", 2, false},
      {File("[Board \"3\"]", "none.pbn"), "No hands have", 2, false}};  // the board before
  for (const auto& [file, told, shown, cards] : kCases) {
    if (session.library.boardCount > 0) host.ExpectAskWith("Overwrite", Answer::Yes);
    host.ExpectTell(told + std::string(" been saved to the library - Club"));
    EXPECT_FALSE(ImportFile(session, file).failed);
    EXPECT_EQ(session.board.boardNumber, shown);
    EXPECT_EQ(HasCards(session.board.hands), cards) << shown;
    EXPECT_FALSE(session.board.handChanged);
  }
  EXPECT_EQ(session.library.boardCount, 5) << "the board that was open is not imported";
  EXPECT_EQ(host.steps.front(), "Importing board 5");
}

TEST_F(ImportTest, TellsWhatWasStoredOfPbnAndDlm) {
  std::string calls = "[Auction \"N\"]\n";
  for (int call = 0; call < 101; ++call) calls += "P ";
  Expect("a.pbn",
         {{PbnText({12}), "Hand 12 has #\n[12|1|LIN.txt]"},
          {"[Board \"1\"]", "No hands have #\n[|0|1 /]"},
          {PbnText({1, 1, 1}) + "[Deal \"\"]\n",
           "Can't read this line:\n[Deal \"\"]\n2 hands (1-0) have #\nBoard 1 of the file is "
           "stored\n[1|2 failed|LIN.txt]"},
          {PbnText({1, 2}) + "[OptimumResultTable \"\"]\nN NT 7\n[caf\xe9]\n",
           "Can't read this line:\n[caf\u00e9]\nThe double-dummy table of board 2 has 1 of its 20 "
           "rows\nHand 1 has #\n[1|1 failed|LIN.txt]"},
          {PbnText({1, 1000}), "Hand 1 has #\n1 board was UNSTORABLE 1000\n[1|1|LIN.txt]"},
          {PbnText({1000, 999, 0, 0}),
           "Hand 1000 has #\nBoard 999 of the file is stored\n3 boards were UNSTORABLE 0, 1000\n"
           "[999|1|LIN.txt]"},
          {PbnText({1, 2, 3, 7, 1000}),
           "4 hands (1-1000) have #\nBoards 1-3, 7 of the file are stored\n1 board was UNSTORABLE "
           "1000\n[1 2 3 7|4|LIN.txt]"},
          {PbnText({1, 2}) + calls,
           "? The auction has more than 100 calls\nError no. 9\nCannot read the file @\n[1|0 "
           "failed|LIN.txt]"}});
  Expect("a.dlm",
         {{DlmLine(2) + DlmLine(1) + "Board 03=aaa\r\n",
           "Can't read this line:\nboard 03=aaa\nNo hands have #\nBoards 1-2 of the file are "
           "stored\n[1 2|0 failed|LIN.txt]"},
          {DlmLine(5, "blblblblblblblblblblblblbq"),
           "? A deal has letters from \"a\" to \"p\" only\nError no. 9\nCannot read the file "
           "@\n[|0 failed|1 /]"}});
}

TEST_F(ImportTest, TellsWhatWasStoredOfLin) {
  const std::string other = LinRecordText("o1", "", "0HAKQJT98765432,SAKQJT98765432");
  std::string twelve;
  for (int board = 12; board >= 1; --board) {
    const std::string room = "o" + std::to_string(board);
    twelve += LinRecordText(room) + "qx|" + room + other.substr(other.find("|md"));
  }
  Expect(
      "a.LIN",
      {{LinRecordText("o1") + other + LinRecordText("c1"),
        "Hand 1 has #\n1 deal was REPEATED 1\n[1|1|3 IMPS/IMP]"},
       {twelve,
        "12 hands (12-12) have #\n12 deals were REPEATED 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 ...\n"
        "[1 2 3 4 5 6 7 8 9 10 11 12|12|13 MATCH_POINTS/MP]"},
       {LinRecordText("o1") + "qx|o2|md|3SAA|" + LinRecordText("o3", LinPasses(101)) +
            LinRecordText("o4", "mb|p|", "1SAKQJT98765432,HAKQJT98765432") + LinRecordText("o1000"),
        "3 hands (1-1000) have #\nBoards 1, 3-4 of the file are stored\n1 deal was IMPOSSIBLE "
        "2\n1 board was UNSTORABLE 1000\n1 auction was FOREIGN 4\n1 auction was OVERLONG 3\n"
        "[1 3 4|3 failed|4 MATCH_POINTS/MP]"},
       {"lin=" + LinRecordText("o2") + "%",
        "No hands have #\n1 LIN record was BROKEN 2\n[|0 failed|1 /]"},
       {"no records", "No hands have #\n[|0|1 /]"}});
}

TEST_F(ImportTest, TellsWhatWasStoredOfASession) {
  const auto board = [](int number, const std::string& data) {
    return BoardElement(std::to_string(number), TravellerLine(data));
  };
  const std::string one = OneLineBoard(1);
  const std::string noData =
      "This xml file has no LIN data:\n\n@\nNo hands have #\n[|0 failed|1 /]";
  Expect(
      "a.xml",
      {{UsebioText(OneLineBoard(0) + one + OneLineBoard(999) + OneLineBoard(1000) +
                   board(-5, LinData(-5)) + BoardElement("1001", "")),
        "2 hands (1-999) have #\n3 boards were UNSTORABLE -5, 0, 1000\n[1 999|2|5 "
        "MATCH_POINTS/MP]"},
       {UsebioText(OneLineBoard(1000)), "No hands have #\n1 board was UNSTORABLE 1000\n[|0|1 /]"},
       {UsebioText(board(1, LinData(2)) + board(2, "qx|o2|md|3SAA|") + board(3, LinData(4)) +
                   board(5, LinData(5, LinPasses(101)))),
        "3 hands (1-5) have #\n1 deal was IMPOSSIBLE 2\n2 auctions were FOREIGN 1, 3\n1 auction "
        "was OVERLONG 5\n[1 3 5|3 failed|3 MATCH_POINTS/MP]"},
       {UsebioText(one + board(2, "qx|o2|pn|Ann%2") + board(3, "%")),
        "ERROR 13\nHand 1 has #\n2 LIN records were BROKEN 2, 3\n[1|1 failed|3 MATCH_POINTS/MP]"},
       {UsebioText(board(2, "%")),
        "ERROR 13\nUnable to import XML file\nNo hands have #\n1 LIN record was BROKEN 2\n"
        "[|0 failed|1 /]"},
       {UsebioText(BoardElement("1", "<TRAVELLER_LINE/>")), noData.c_str()},
       {"", noData.c_str()},
       {"<!DOCTYPE USEBIO SYSTEM \"http://example.org/u.dtd\">" +
            UsebioBody("<SECTION_COUNT>2</SECTION_COUNT>" + one),
        "Only Single Section Imports supported\nNo hands have #\n[|0 failed|1 /]"}});
}

TEST_F(ImportTest, EndsEarlyWithWhatIsStored) {
  const std::string error = "? Is a directory: @\nError no. 75\n";
  const std::string xmlError =
      "Error 75 (Is a directory: @) in procedure ReadFileXML of Module modXML\nUnable to import "
      "XML file\n";
  // The files, what is said when a board cannot be written, the results when 1 and 2 are stored
  const std::tuple<const char*, std::string, std::string, const char*> kFiles[] = {
      {"a.pbn", PbnText({1, 2, 3}), error, "LIN.txt]"},
      {"a.dlm", DlmLine(1) + DlmLine(2) + DlmLine(3), error, "LIN.txt]"},
      {"a.lin", LinRecordText("o1") + LinRecordText("o2") + LinRecordText("o3"), error,
       "3 MATCH_POINTS/MP]"},
      {"a.xml", UsebioText(OneLineBoard(3) + OneLineBoard(1) + OneLineBoard(2)), xmlError,
       "2 MATCH_POINTS/MP]"}};
  const std::string two = "2 hands (1-2) have #\n[1 2|2 ";
  for (const auto& [name, text, said, results] : kFiles) {
    EXPECT_EQ(Import(name, text, 1), "No hands have #\n[|0 cancelled|1 /]");
    EXPECT_EQ(Import(name, text, 3), two + "cancelled|" + results);
    EXPECT_EQ(Import(name, text, 0, 1), said + "No hands have #\n[|0 failed|1 /]");
    EXPECT_EQ(Import(name, text, 0, 3), said + two + "failed|" + results);
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
    EXPECT_TRUE(ImportFile(session, File(text, name)).failed);
    EXPECT_EQ(ReadFile(marked), OneSuitEachText());
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
  PutBoard(3);
  const std::string before = ReadFile(session.BoardPath(3));
  const fs::path file = File(PbnText({3}));
  const fs::path lin = File(LinRecordText("o3"), "a.lin");
  host.ExpectAsk("Overwrite existing hands in library Club?", "Hands already in library",
                 Answer::No);
  EXPECT_TRUE(ImportFile(session, file).refused);
  session.board.handChanged = true;
  for (const auto& named : {file, lin}) {
    host.ExpectAskWith("Do you want to save changes to board", Answer::Cancel);
    EXPECT_TRUE(ImportAnyFile(session, named).refused);
  }
  EXPECT_TRUE(session.board.handChanged);
  session.board.handChanged = false;
  const std::tuple<ImportOutcome (*)(Session&), fs::path, const char*> kCommands[] = {
      {tricklet::Import, file, "The file must be of type pbn, dlm or xml"},
      {ImportLin, lin, "The file must be of type lin"}};
  for (const auto& [command, right, otherType] : kCommands) {
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(std::nullopt);
    EXPECT_TRUE(command(session).refused);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(File("x", "hands.doc"));
    host.ExpectTell(otherType);
    EXPECT_TRUE(command(session).refused);
    EXPECT_EQ(ReadFile(session.BoardPath(3)), before);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(right);
    host.ExpectTell("Hand 3 has been saved to the library - Club");
    EXPECT_EQ(command(session).boardsSaved, 1);
    WriteFile(session.BoardPath(3), before);
  }
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
}  // namespace tricklet::test
