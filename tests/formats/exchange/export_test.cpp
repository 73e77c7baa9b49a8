#include "formats/exchange/export.h"

#include <gtest/gtest.h>

#include "core/version.h"
#include "formats/exchange/import.h"
#include "formats/pbn/pbn_writer.h"
#include "library/board_file.h"
#include "tests/support/calls.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

const std::string kVersion = std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor);

std::string Head(int board, const std::string& dealer, const std::string& vulnerable) {
  return "[Description \"Tricklet " + kVersion + " - Club\"]\r\n[Board \"" + std::to_string(board) +
         "\"]\r\n[Dealer \"" + dealer + "\"]\r\n[Vulnerable \"" + vulnerable +
         "\"]\r\n[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. "
         "...AKQJT98765432\"]\r\n";
}

class ExportTest : public test::LibraryTest {
 protected:
  ExportTest() : path(folder.Path() / PathFromText("out \u00e9.pbn")) {}

  void PutBoardWith(int number, std::initializer_list<const char*> calls, bool table = false) {
    Board board;
    bool readable = ReadBoardText(test::OneSuitEachText(), board, TableReading::Always);
    ASSERT_TRUE(readable);
    for (const char* call : calls) board.calls.Add(test::CallOf(call));
    board.makeableValid = table;
    std::int16_t tricks = 0;
    for (auto& row : board.makeable) {
      for (auto& cell : row) cell = static_cast<std::int16_t>(tricks++ % 14);
    }
    WriteFile(session.BoardPath(number), WriteBoardText(board));
  }
  void ExpectCreated() { host.ExpectTell("File " + PathText(path) + " created"); }

  fs::path path;
};

TEST_F(ExportTest, WritesThePlainRecord) {
  PutBoard(17);
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {17, 17, "pbn"}, path));
  EXPECT_EQ(ReadFile(path), Head(17, "N", "None") + "\r\n\r\n");
}

TEST_F(ExportTest, WritesAuctionTableAndComment) {
  PutBoardWith(2, {"1C", "Dbl", "Rdbl", "Pass", "1NT"}, true);
  session.settings.pbnShark = true;
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {2, 2, "pbn"}, path));
  const std::string text = ReadFile(path);
  EXPECT_NE(text.find("[Auction \"E\"]\r\n1C X XX Pass \r\n1NT \r\n[OptimumResultTable "
                      "\"Declarer;Denomination;Result\"]\r\nN  C 0\r\nN  D 1\r\nN  H 2\r\n"
                      "N  S 3\r\nN NT 4\r\nS  C 5\r\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("W NT 5\r\n[Result \"0\"]\r\n{\r\nBoard 2\r\n}\r\n\r\n"), std::string::npos)
      << text;

  session.settings.pbnBids = false;
  session.settings.pbnShark = false;
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {2, 2, "pbn"}, path));
  EXPECT_EQ(ReadFile(path).find("Auction"), std::string::npos);
}

TEST_F(ExportTest, FourCallsMakeOneLine) {
  PutBoardWith(1, {"Pass", "Pass", "Pass", "Pass"});
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {1, 1, "pbn"}, path));
  EXPECT_NE(ReadFile(path).find("\"N\"]\r\nPass Pass Pass Pass \r\n\r\n\r\n"), std::string::npos);
}

TEST_F(ExportTest, WhatIsNoCallIsWrittenAsItStands) {
  std::string text = test::OneSuitEachText();
  text.replace(text.find(" 0"), 4, " 2\r\n1C\r\n1!\xBD\r\n");
  WriteFile(session.BoardPath(1), text);
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {1, 1, "pbn"}, path));
  EXPECT_NE(ReadFile(path).find("\"N\"]\r\n1C 1!\xBD \r\n"), std::string::npos);
}

TEST_F(ExportTest, WhatIsWrittenComesBack) {
  PutBoardWith(1, {"1H", "Dbl", "Pass", "Pass", "Rdbl", "Pass", "Pass", "Pass"}, true);
  PutBoardWith(2, {}, true);
  PutBoardWith(3, {"7NT", "Pass", "Pass", "Pass"});
  ExpectCreated();
  ASSERT_TRUE(ExportFile(session, {1, 3, "pbn"}, path));
  std::vector<std::string> before;
  for (int n = 1; n <= 3; ++n) before.push_back(ReadFile(session.BoardPath(n)));
  session.settings.library = "Copy";
  fs::create_directories(session.LibraryPath());
  host.ExpectTell("3 hands (1-3) have been saved to the library - Copy");
  // A header goes before the boards, as the first line is taken for one.
  WriteFile(path, "% PBN 2.1\r\n" + ReadFile(path));
  ImportFile(session, path);
  for (int n = 1; n <= 3; ++n) {
    EXPECT_EQ(ReadFile(session.BoardPath(n)), before.at(static_cast<std::size_t>(n - 1))) << n;
  }
}

TEST_F(ExportTest, OurOwnFilesNeedNoHeader) {
  PutBoard(1);
  ExpectCreated();
  ASSERT_TRUE(ExportFile(session, {1, 1, "pbn"}, path));
  session.settings.library = "Copy";
  fs::create_directories(session.LibraryPath());
  host.ExpectTell("Hand 1 has been saved to the library - Copy");
  EXPECT_EQ(ImportFile(session, path).boardsSaved, 1);
}

TEST_F(ExportTest, MissingBoardsAreListedBelowTwenty) {
  PutBoard(2);
  host.ExpectTell("3 hands are missing in the specified range:\nHands 1, 3, 4");
  EXPECT_FALSE(ExportFile(session, {1, 4, "pbn"}, path));
  host.ExpectTell("1 hands are missing in the specified range:\nHands 3");
  EXPECT_FALSE(ExportFile(session, {2, 3, "pbn"}, path));
  host.ExpectTell("20 hands are missing in the specified range");
  EXPECT_FALSE(ExportFile(session, {3, 22, "pbn"}, path));
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(ExportTest, IncompleteAndUnreadableBoardsAreLeftOut) {
  PutBoard(1);
  std::string text = test::OneSuitEachText();
  WriteFile(session.BoardPath(2), text.replace(text.find(" A"), 2, ""));
  WriteFile(session.BoardPath(3), "nothing");
  host.ExpectTell("Can't read the file " + PathText(session.BoardPath(3)));
  host.ExpectTell("2 hands are incomplete:-\n2 3 ");
  EXPECT_FALSE(ExportFile(session, {1, 3, "pbn"}, path));
  EXPECT_EQ(ReadFile(path), Head(1, "N", "None") + "\r\n\r\n\r\n\r\n");
}

TEST_F(ExportTest, CancelLeavesTheBoardsWrittenSoFar) {
  for (int n = 1; n <= 3; ++n) PutBoard(n);
  host.cancelAtStep = 2;
  host.ExpectTell("Export cancelled");
  EXPECT_FALSE(ExportFile(session, {1, 3, "pbn"}, path));
  EXPECT_EQ(ReadFile(path), Head(1, "N", "None") + "\r\n\r\n");
}

TEST_F(ExportTest, ChangesThatAreGivenUpAreOffTheScreen) {
  PutBoard(1);
  session.board.boardNumber = 1;
  ClearAll(session.board);
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 1", Answer::No);
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {1, 1, "pbn"}, path));
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(PbnRecord(session.board, "Club", {}),
            ReadFile(path).substr(0, ReadFile(path).size() - 4));
}

TEST_F(ExportTest, AFailedExportKeepsTheOldFile) {
  PutBoard(1);
  fs::create_directories(path / "in the way");
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  EXPECT_FALSE(ExportFile(session, {1, 1, "pbn"}, path));
  EXPECT_TRUE(fs::exists(path / "in the way"));
}

TEST_F(ExportTest, ChecksTheRangeAndTheType) {
  host.ExpectTell("There are no hands to export");
  EXPECT_FALSE(HasHandsToExport(session));
  PutBoard(1);
  EXPECT_TRUE(HasHandsToExport(session));
  ExportRange range;
  EXPECT_TRUE(CheckRangeTexts(session, " 3 ", "12", range));
  EXPECT_EQ(range.first, 3);
  EXPECT_EQ(range.last, 12);
  const struct {
    const char* from;
    const char* to;
  } kBad[] = {{"0", "3"},    {"5", "4"},  {"", "3"},  {"1", "x"},
              {"1", "1000"}, {"-1", "3"}, {"1x", "2"}};
  for (const auto& c : kBad) {
    host.ExpectTell("Please enter a valid range");
    EXPECT_FALSE(CheckRangeTexts(session, c.from, c.to, range)) << c.from << " " << c.to;
  }
  host.ExpectTell("The file must be of type pbn, dlm or lin");
  EXPECT_FALSE(ExportFile(session, {1, 1, "pbn"}, folder.Path() / "out.txt"));
}

TEST_F(ExportTest, TheChooserStartsFromTheLastFile) {
  PutBoard(1);
  path = "/old/tuesday.dlm";
  host.Choose(std::nullopt);
  EXPECT_FALSE(Export(session, {1, 1, "pbn"}, path));
  EXPECT_EQ(host.suggested, "/old/tuesday.pbn");
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(SuggestedExportPath("abc", "pbn"), "abc");
}

/// The lines of the file at `path` that begin with `beginning`.
std::vector<std::string> LinesOf(const fs::path& path, std::string_view beginning) {
  std::vector<std::string> lines;
  const std::string text = ReadFile(path);
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    if (line.starts_with(beginning)) lines.emplace_back(line);
  }
  return lines;
}

TEST_F(ExportTest, WritesLinRecords) {
  path.replace_extension("lin");
  for (const int n : {1, 4, 7, 13, 16}) PutBoard(n);
  const struct {
    int board;
    const char* start;
    const char* end;
  } kCases[] = {
      {1, "qx|o1|md|3", "|rh||ah|Board 1|sv|0|pg||\r\n"},
      {4, "qx|o4|md|2", "|rh||ah|Board 4|sv|B|pg||\r\n"},
      {7, "qx|o7|md|1", "|rh||ah|Board 7|sv|B|pg||\r\n"},
      {13, "qx|o13|md|3", "|rh||ah|Board 13|sv|B|pg||\r\n"},
      {16, "qx|o16|md|2", "|rh||ah|Board 16|sv|E|pg||\r\n"},
  };
  for (const auto& c : kCases) {
    ExpectCreated();
    EXPECT_TRUE(ExportFile(session, {c.board, c.board, "lin"}, path));
    EXPECT_EQ(ReadFile(path), std::string(c.start) + "SHDAKQJT98765432C,SHDCAKQJT98765432," +
                                  "SAKQJT98765432HDC" + c.end);
  }
}

TEST_F(ExportTest, WritesAllBoardsOfADealingMachine) {
  path.replace_extension("dlm");
  for (int n = 5; n <= 7; ++n) PutBoard(n);
  WriteFile(session.BoardPath(6), "nothing");
  host.ExpectTell("Can't read the file " + PathText(session.BoardPath(6)));
  host.ExpectTell("1 hand is incomplete:-\n6 ");
  EXPECT_FALSE(ExportFile(session, {5, 7, "dlm"}, path));
  const auto boards = LinesOf(path, "Board ");
  ASSERT_EQ(boards.size(), 98U) << "all but the incomplete one";
  EXPECT_EQ(boards[0], "Board 01=aaaaaabffffffkkkkkklpppppp015");
  EXPECT_EQ(boards[5], "Board 07=aaaaaabffffffkkkkkklpppppp009");
  EXPECT_EQ(LinesOf(path, "Duplicates ").size(), 99U);
  EXPECT_EQ(LinesOf(path, "Property ").back(), "Property 99=1");
  EXPECT_EQ(LinesOf(path, "Checksum="), std::vector<std::string>{"Checksum=002"});
  EXPECT_TRUE(ReadFile(path).ends_with(
      "lpppppp109\r\n[STARTUP]\r\nStatistics=Yes\r\nAdd filename=Yes\r\nMakeable=1\r\n"
      "Reversed=0\r\n"));
  EXPECT_EQ(host.steps.size(), 3U);
}

TEST_F(ExportTest, BoardsAbove99AreNotWrittenForADealingMachine) {
  path.replace_extension("dlm");
  for (int n = 95; n <= 120; ++n) PutBoard(n);
  const struct {
    int first;
    int last;
    const char* told;
  } kCases[] = {{95, 120, "boards 95-99 written, boards 100-120 left out"},
                {99, 100, "board 99 written, board 100 left out"},
                {100, 101, "none of the range was written"}};
  for (const auto& c : kCases) {
    ExpectCreated();
    host.ExpectTell("The file can hold boards 1 to 99: " + std::string(c.told));
    EXPECT_FALSE(ExportFile(session, {c.first, c.last, "dlm"}, path));
    EXPECT_EQ(LinesOf(path, "Board ").size(), 99U);
    EXPECT_EQ(LinesOf(path, "To board=").at(0), "To board=" + std::to_string(c.last));
  }
  EXPECT_EQ(host.steps.back(), "Exporting board 99");
  ExpectCreated();
  EXPECT_TRUE(ExportFile(session, {98, 99, "dlm"}, path));
  WriteFile(session.BoardPath(98), "nothing");
  host.ExpectTellWith("Can't read");
  host.ExpectTellWith("1 hand is incomplete");
  host.ExpectTell("The file can hold boards 1 to 99: boards 100-102 left out");
  EXPECT_FALSE(ExportFile(session, {98, 102, "dlm"}, path));
}

TEST_F(ExportTest, EveryTypeReportsAndCancelsAlike) {
  for (int n = 1; n <= 3; ++n) PutBoard(n);
  const struct {
    const char* type;
    const char* line;
  } kCases[] = {{"lin", "qx|"}, {"dlm", "Board "}};
  for (const auto& c : kCases) {
    path.replace_extension(c.type);
    host.steps.clear();
    host.cancelAtStep = 2;
    host.ExpectTell("Export cancelled");
    EXPECT_FALSE(ExportFile(session, {1, 3, c.type}, path));
    EXPECT_EQ(LinesOf(path, c.line).size(), 1U) << c.type;
    host.cancelAtStep = 0;
    host.ExpectTell("1 hands are missing in the specified range:\nHands 4");
    EXPECT_FALSE(ExportFile(session, {1, 4, c.type}, path));
    EXPECT_EQ(LinesOf(path, c.line).size(), 1U) << "nothing is written: " << c.type;
  }
}

}  // namespace
}  // namespace tricklet
