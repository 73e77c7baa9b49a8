// What every import goes through: questions, storing, messages, and what becomes of the results.
#include "formats/exchange/import.h"

#include <cstdint>
#include <optional>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "disk/presence.h"
#include "formats/exchange/record_reader.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/xml_text.h"
#include "tests/support/diary.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

/// The reasons for leaving something out, and what stands for them below.
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

  /// What stops an import: the person, a folder where a board goes, or a board that is read-only.
  enum class Stop : std::uint8_t { Nowhere, Cancelled, Folder, ReadOnly };

  /// Imports a file into a new library that holds board 500 and a record of it. Gives what was said
  /// and, in brackets, what came of it: the boards stored, how many are said to be, and the records
  /// in "LIN.txt" with their scoring, or that it was recycled and there is no other.
  std::string Import(const std::string& name, const std::string& text, Stop stop = Stop::Nowhere,
                     int board = 0) {
    Diary diary;
    Session into(diary, store);
    into.settings = session.settings;
    into.settings.library = "Library " + std::to_string(++libraries_);
    const fs::path results = LinDataPath(into);
    const std::string old = "[LIN]\r\nqx|o500|old|\r\n";
    WriteFile(results, old);
    diary.onStep = [&] { EXPECT_EQ(FileExists(results) ? ReadFile(results) : old, old); };
    WriteFile(into.BoardPath(500), OneSuitEachText());
    const fs::path stopped = into.BoardPath(board);
    if (stop == Stop::Cancelled) diary.cancelAtStep = board;
    if (stop == Stop::Folder) WriteFile(stopped / "x", "");  // no file replaces a folder
    if (stop == Stop::ReadOnly) WriteFile(stopped, OneSuitEachText());
    if (stop == Stop::ReadOnly) fs::permissions(stopped, fs::perms::owner_read);
    const fs::path path = File(text, name);
    const ImportOutcome outcome = ImportAnyFile(into, path);
    std::string stored;
    for (int number = 1; number <= kLastBoardNumber; ++number) {
      const fs::path file = into.BoardPath(number);
      if (!FileExists(file) || ReadFile(file) == OneSuitEachText()) continue;
      stored += (stored.empty() ? "" : " ") + std::to_string(number);
    }
    EXPECT_TRUE(!stored.empty() || ReadFile(results) == old);
    EXPECT_EQ(ReadFile(into.BoardPath(500)), OneSuitEachText());
    EXPECT_FALSE(fs::exists(into.LibraryPath() / "QENXML.xml"));
    EXPECT_FALSE(into.batchRunning);
    EXPECT_EQ(diary.working, 0);
    diary.Shorten("been saved to the library - " + into.LibraryName() + "\n", "#\n");
    diary.Shorten(PathText(path), "@");
    diary.Shorten(PathText(stopped), "@");
    for (const auto& [reason, brief] : kReasons) diary.Shorten(reason, brief);
    const LinFile kept = LoadLinData(into);
    const std::string records = std::to_string(kept.lin.size()) + " " + kept.boardScoringMethod;
    return diary.said + "[" + stored + "|" + std::to_string(outcome.boardsSaved) +
           (outcome.failed ? " failed" : "") + (outcome.cancelled ? " cancelled|" : "|") +
           (kept.Empty() ? diary.recycled.at(0) : records + "/" + kept.boardScoringAbb) + "]";
  }
  /// What comes of the text of each file.
  void Expect(const std::string& name,
              const std::vector<std::pair<std::string, const char*>>& told) {
    for (const auto& [text, result] : told) EXPECT_EQ(Import(name, text), result) << text;
  }

  int libraries_ = 0;
};

TEST_F(ImportTest, StoresBoardsAndShowsTheFirst) {
  AddCard(session.board.hands, {Suit::Spades, Rank::Ace}, Seat::North);
  const std::tuple<fs::path, const char*, int, bool> kCases[] = {
      {File(PbnText({5, 6, 7})), "3 hands (5-7) have", 5, true},
      {File("To board=2\r\n" + DlmLine(2) + DlmLine(1), "two.DLM"), "2 hands (1-2) have", 1, true},
      // nothing of the board that was open
      {File("%\n[Board \"2\"]\n[Event \"no deal\"]\n", "no deal.pbn"), "Hand 2 has", 2, false},
      {File("[Board \"3\"]", "none.pbn"), "No hands have", 2, false},  // the board before
      {File(UsebioText(OneLineBoard(12) + OneLineBoard(4)), "a.xml"), "2 hands (4-12) have", 4,
       true}};
  for (const auto& [file, told, shown, cards] : kCases) {
    if (session.library.boardCount > 0) host.ExpectAskWith("Overwrite", Answer::Yes);
    host.ExpectTell(told + std::string(" been saved to the library - Club"));
    EXPECT_FALSE(ImportFile(session, file).failed);
    EXPECT_EQ(session.board.boardNumber, shown);
    EXPECT_EQ(HasCards(session.board.hands), cards) << shown;
    EXPECT_FALSE(session.board.handChanged);
  }
  EXPECT_EQ(session.library.boardCount, 7) << "the board that was open is not imported";
  EXPECT_EQ(host.steps.front(), "Importing board 5");
  EXPECT_TRUE(host.recycled.empty()) << "there were no results";
  EXPECT_EQ(session.board.contract, "1S");
}

TEST_F(ImportTest, TellsWhatWasStoredOfPbnAndDlm) {
  std::string calls = "[Auction \"N\"]\n";
  for (int call = 0; call < 101; ++call) calls += "P ";
  Expect(
      "a.pbn",
      {{PbnText({12}), "Hand 12 has #\n[12|1|LIN.txt]"},
       {"[Board \"1\"]", "No hands have #\n[|0|1 /]"},
       {PbnText({1, 1, 1}) + "[Deal \"\"]\n",
        "Can't read this line:\n[Deal \"\"]\nIt is line 11 of the file @\nPlease correct it and "
        "import the file again\n2 hands (1-0) have #\nBoard 1 of the file is "
        "stored\n[1|2 failed|LIN.txt]"},
       {PbnText({1, 2}) + "[OptimumResultTable \"\"]\nN NT 7\n[caf\xe9]\n",
        "Can't read this line:\n[caf\u00e9]\nIt is line 10 of the file @\nThe double-dummy table "
        "of board 2 has 1 of its 20 "
        "rows\nPlease correct it and import the file again\nHand 1 has #\n[1|1 failed|LIN.txt]"},
       {PbnText({1, 1000}), "Hand 1 has #\n1 board was UNSTORABLE 1000\n[1|1|LIN.txt]"},
       {PbnText({1010, 999, 0, 0, 1009, 1008, 1007, 1006, 1005, 1004, 1003, 1002, 1001}),
        "Hand 1010 has #\nBoard 999 of the file is stored\n12 boards were UNSTORABLE 0, 1001, "
        "1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009 ...\n[999|1|LIN.txt]"},
       {PbnText({1, 2, 3, 7, 1000}),
        "4 hands (1-1000) have #\nBoards 1-3, 7 of the file are stored\n1 board was UNSTORABLE "
        "1000\n[1 2 3 7|4|LIN.txt]"},
       {PbnText({1, 2}) + calls,
        "? The auction has more than 100 calls\nError no. 9\nCannot read the file @\nBoard 1 of "
        "the file is stored, the rest is not\n[1|0 failed|LIN.txt]"}});
  Expect("a.dlm",
         {{DlmLine(2) + DlmLine(1) + "Board 03=aaa\r\n",
           "Can't read this line:\nboard 03=aaa\nIt is line 3 of the file @\nPlease correct it and "
           "import the file again\nNo hands have #\nBoards 1-2 of the file are "
           "stored\n[1 2|0 failed|LIN.txt]"},
          {DlmLine(5, "blblblblblblblblblblblblbq"),
           "? A deal has letters from \"a\" to \"p\" only\nError no. 9\nCannot read the file "
           "@\n[|0 failed|1 /]"}});
}

TEST_F(ImportTest, TellsWhatWasStoredOfLin) {
  const std::string other = LinRecordText("o1", "", "0HAKQJT98765432,SAKQJT98765432");
  Expect(
      "a.LIN",
      {{LinRecordText("o1") + other + LinRecordText("c1"),
        "Hand 1 has #\n1 deal was REPEATED 1\n[1|1|3 IMPS/IMP]"},
       {LinRecordText("o2") + LinRecordText("o1") + other + other,
        "2 hands (2-2) have #\n2 deals were REPEATED 1\n[1 2|2|3 MATCH_POINTS/MP]"},
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
  const std::string readOnly = "The file\n@\nis read only so the hand cannot be saved\n";
  // The files, what is said when a board cannot be written, the results when 1 and 2 are stored
  const std::tuple<const char*, std::string, std::string, const char*> kFiles[] = {
      {"a.pbn", PbnText({1, 2, 3, 4}), error, "LIN.txt]"},
      {"a.dlm", DlmLine(1) + DlmLine(2) + DlmLine(3), error, "LIN.txt]"},
      {"a.lin", LinRecordText("o1") + LinRecordText("o2") + LinRecordText("o3"), error,
       "3 MATCH_POINTS/MP]"},
      {"a.xml", UsebioText(OneLineBoard(3) + OneLineBoard(1) + OneLineBoard(2)), xmlError,
       "2 MATCH_POINTS/MP]"}};
  const std::string hands = "2 hands (1-2) have #\n";
  const std::string two = "[1 2|2 ";
  const std::string part = "Boards 1-2 of the file are stored, 3 is not\n";
  for (const auto& [name, text, said, results] : kFiles) {
    EXPECT_EQ(Import(name, text, Stop::Cancelled, 1), "No hands have #\n[|0 cancelled|1 /]");
    EXPECT_EQ(Import(name, text, Stop::Cancelled, 3), hands + two + "cancelled|" + results);
    EXPECT_EQ(Import(name, text, Stop::Folder, 1), said + "No hands have #\n[|0 failed|1 /]");
    const std::string left = hands + part + two + "failed|" + results;
    EXPECT_EQ(Import(name, text, Stop::Folder, 3), said + left);
    EXPECT_EQ(Import(name, text, Stop::ReadOnly, 3), readOnly + left);
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
  const fs::path file = File(PbnText({3}));
  const fs::path lin = File(LinRecordText("o3"), "a.lin");
  host.ExpectAsk("Overwrite existing hands in library Club?", "Hands already in library",
                 Answer::No);
  LinFile results;
  results.lin = {LinRecordText("o3"), LinRecordText("c3")};
  auto write = LibraryWrite::Begin(session);
  StoreLinData(session, results, *write);
  write.reset();
  EXPECT_TRUE(ImportFile(session, file).refused);
  EXPECT_EQ(host.asked.detail,
            "1 board would be replaced where the file has the same number: 3. What is replaced "
            "goes to the recycle bin.\n"
            "2 results are kept with them: they would go to the recycle bin.");
  EXPECT_EQ(host.asked.safe, Answer::No);
  session.board.handChanged = true;
  for (const auto& named : {file, lin}) {
    host.ExpectAskWith("Do you want to save changes to board", Answer::Cancel);
    EXPECT_TRUE(ImportAnyFile(session, named).refused);
  }
  EXPECT_TRUE(session.board.handChanged);
  session.board.handChanged = false;
  const fs::path other = File("x", "hands.doc");
  const char* stored = "Hand 3 has been saved to the library - Club";
  // The command, the file chosen, what is said, and how many boards are stored
  const std::tuple<ImportOutcome (*)(Session&, const Looker&), fs::path, const char*, int>
      kChoices[] = {{tricklet::Import, "", "", 0},
                    {tricklet::Import, other, "The file must be of type pbn, dlm or xml", 0},
                    {tricklet::Import, file, stored, 1},
                    {ImportLin, "", "", 0},
                    {ImportLin, other, "The file must be of type lin", 0},
                    {ImportLin, lin, stored, 1}};
  for (const auto& [command, chosen, said, boards] : kChoices) {
    PutBoard(3);
    host.ExpectAskWith("Overwrite", Answer::Yes);
    host.Choose(chosen.empty() ? std::nullopt : std::optional(chosen));
    if (*said != '\0') host.ExpectTell(said);
    const ImportOutcome outcome = command(session, {});
    EXPECT_EQ(outcome.boardsSaved, boards);
    EXPECT_EQ(outcome.refused, boards == 0);
    EXPECT_EQ(ReadFile(session.BoardPath(3)) == OneSuitEachText(), boards == 0);
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

TEST_F(ImportTest, RecordsStandBesideThoseOfOtherBoards) {
  const auto kept = [this] {
    const LinFile file = LoadLinData(session);
    std::string text = file.boardScoringAbb + " " + Joined(file.names);
    if (file.teamEvent) text += " " + Joined(file.teamEvent->teams);
    for (const auto& line : file.lin) text += " " + std::to_string(BoardNumberOfLin(line));
    return text;
  };
  const std::vector<std::string> records{"qx|o1|", "ah|Board 2|", "x|y|ah|Board 1|", "qx|o3|"};
  const LinFile before{"CROSS_IMPS", "XIMP", LinTeams{{"Hearts"}, "", ""}, {"1 Ann"}, records};
  WriteFile(LinDataPath(session), LinFileText(before));
  host.ExpectTell("2 hands (1-4) have been saved to the library - Club");
  ImportLinText(session, LinRecordText("o1") + LinRecordText("o4"));
  EXPECT_EQ(kept(), "XIMP 1 Ann Hearts 2 3 1 4");
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("4 hands (1-4) have been saved to the library - Club");
  ImportLinText(session, LinRecordText("o1") + LinRecordText("o2") + LinRecordText("o3") +
                             LinRecordText("o4"));
  EXPECT_EQ(kept(), "MP  1 2 3 4") << "nothing of the session is left";
}

TEST_F(ImportTest, ADocumentTypeOnAWebHostIsReplacedInACopy) {
  const std::string type = "<!DOCTYPE USEBIO SYSTEM \"http://dtd.example.org/u.dtd\">";
  const std::string body = UsebioBody(Element("CLUB_NAME", "Zo\u00eb") + OneLineBoard(1));
  const std::string bytes = EncodeXml({type + body, XmlEncoding::Utf16Big});
  const fs::path file = File(bytes, "r\u00e9sultats.XML");
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  ImportFile(session, file);
  EXPECT_EQ(ReadFile(session.LibraryPath() / "QENXML.xml"),
            EncodeXml({"<!DOCTYPE USEBIO SYSTEM \"/dtd/usebio_v1_2_ext.dtd\">" + body,
                       XmlEncoding::Utf16Big}));
  EXPECT_EQ(ReadFile(file), bytes);
  EXPECT_EQ(session.library.boardCount, 1) << "the copy is no board";
}

TEST_F(ImportTest, ResultsThatCannotBeKeptAreSaid) {
  fs::create_directories(LinDataPath(session) / "in the way");
  host.ExpectTellWith("Is a directory: " + PathText(LinDataPath(session)));
  host.ExpectTell("Unable to import XML file");
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  EXPECT_TRUE(ImportFile(session, File(UsebioText(OneLineBoard(1)), "a.xml")).failed);
}

TEST_F(ImportTest, AFileOfAClubsResultsThatIsTooLargeIsNotRead) {
  const fs::path file = File("", "a.xml");
  fs::resize_file(file, kMaxXmlBytes + 1);
  host.ExpectTell(kXmlLoadFailed);
  host.ExpectTell("No hands have been saved to the library - Club");
  EXPECT_TRUE(ImportFile(session, file).failed);
}

}  // namespace
}  // namespace tricklet::test
