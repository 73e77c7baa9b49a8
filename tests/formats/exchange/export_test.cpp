#include "formats/exchange/export.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "core/version.h"
#include "formats/pbn/pbn_writer.h"
#include "library/board_file.h"
#include "tests/support/calls.h"
#include "tests/support/diary.h"
#include "tests/support/hands.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

const std::string kVersion = std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor);

std::string Head(int board, const std::string& dealer, const std::string& vulnerable) {
  return "[Description \"Tricklet " + kVersion + " - Club\"]\r\n[Board \"" + std::to_string(board) +
         "\"]\r\n[Dealer \"" + dealer + "\"]\r\n[Vulnerable \"" + vulnerable +
         "\"]\r\n[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. "
         "...AKQJT98765432\"]\r\n";
}

class ExportTest : public LibraryTest {
 protected:
  ExportTest() : path(folder.Path() / PathFromText("out \u00e9.pbn")) {}

  void PutBoardWith(int number, const std::string& calls, std::int16_t westsTricksInNoTrump = 0) {
    Board board;
    board.hands = OneSuitEach();
    SetAuction(board, calls);
    board.makeableValid = westsTricksInNoTrump != 0;
    board.makeable[TableSeat::West][TableStrain::NoTrump] = westsTricksInNoTrump;
    WriteFile(session.BoardPath(number), WriteBoardText(board));
  }
  /// The file that boards `first` to `last` give; all of them are written.
  std::string Written(int first, int last) {
    host.ExpectTell("File " + PathText(path) + " created");
    EXPECT_TRUE(ExportFile(session, {first, last, ""}, path));
    return ReadFile(path);
  }
  /// What is said of boards `first` to `last`, which are not all written.
  std::string Told(int first, int last, int cancelAt = 0) {
    Diary diary;
    diary.cancelAtStep = cancelAt;
    Session from(diary, store);
    from.settings = session.settings;
    EXPECT_FALSE(ExportFile(from, {first, last, ""}, path));
    diary.Shorten(PathText(path), "@");
    diary.Shorten(PathText(session.LibraryPath()), "LIBRARY");
    return diary.said;
  }
  /// The lines of the file that begin with `beginning`.
  std::vector<std::string> LinesOf(std::string_view beginning) const {
    std::vector<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with(beginning)) lines.push_back(line.substr(0, line.find('\r')));
    }
    return lines;
  }

  fs::path path;
};

TEST_F(ExportTest, WritesPbn) {
  PutBoard(17);
  EXPECT_EQ(Written(17, 17), Head(17, "N", "None") + "\r\n\r\n");
  PutBoardWith(1, "Pass Pass Pass Pass");
  EXPECT_EQ(Written(1, 1),
            Head(1, "N", "None") + "[Auction \"N\"]\r\nPass Pass Pass Pass \r\n\r\n\r\n");
  PutBoardWith(2, "1C Dbl Rdbl Pass 1NT", 5);
  session.settings.pbnShark = true;
  const std::string text = Written(2, 2);
  EXPECT_TRUE(text.starts_with(Head(2, "E", "NS") +
                               "[Auction \"E\"]\r\n1C X XX Pass \r\n1NT \r\n[OptimumResultTable "
                               "\"Declarer;Denomination;Result\"]\r\nN  C 0\r\nN  D 0\r\nN  H 0\r\n"
                               "N  S 0\r\nN NT 0\r\nS  C 0\r\n"))
      << text;
  EXPECT_TRUE(text.ends_with("W NT 5\r\n[Result \"0\"]\r\n{\r\nBoard 2\r\n}\r\n\r\n\r\n")) << text;
  session.settings.pbnBids = false;
  session.settings.pbnShark = false;
  EXPECT_TRUE(Written(2, 2).starts_with(Head(2, "E", "NS") + "[Optimum"));
  EXPECT_NE(PbnRecord(Board(), "a\\b \"c\"", {}).find(" - a\\\\b \\\"c\\\"\"]"), std::string::npos);
}

TEST_F(ExportTest, WhatIsNoCallIsWrittenAsItStands) {
  std::string text = OneSuitEachText();
  text.replace(text.find(" 0"), 4, " 2\r\n1C\r\n1!\xBD\r\n");
  WriteFile(session.BoardPath(1), text);
  EXPECT_NE(Written(1, 1).find("\"N\"]\r\n1C 1!\xBD \r\n"), std::string::npos);
}

TEST_F(ExportTest, WritesLinRecords) {
  path.replace_extension("lin");
  const std::string hands = "SHDAKQJT98765432C,SHDCAKQJT98765432,SAKQJT98765432HDC";
  // The board, its dealer and its vulnerability
  const std::tuple<int, const char*, const char*> kCases[] = {
      {1, "3", "0"}, {7, "1", "B"}, {16, "2", "E"}, {2, "4", "N"}};
  for (const auto& [board, dealer, vulnerable] : kCases) {
    PutBoard(board);
    const std::string number = std::to_string(board);
    EXPECT_EQ(Written(board, board), "qx|o" + number + "|md|" + dealer + hands + "|rh||ah|Board " +
                                         number + "|sv|" + vulnerable + "|pg||\r\n");
  }
}

TEST_F(ExportTest, WritesAllBoardsOfADealingMachine) {
  path.replace_extension("dlm");
  for (int n = 5; n <= 7; ++n) PutBoard(n);
  WriteFile(session.BoardPath(6), "nothing");
  const std::string file = PathText(fs::path("LIBRARY") / "006.txt");
  EXPECT_EQ(Told(5, 7), "Can't read the file " + file + "\n1 hand is incomplete:-\n6 \n");
  const auto boards = LinesOf("Board ");
  ASSERT_EQ(boards.size(), 98U) << "all but the incomplete one";
  EXPECT_EQ(boards[0], "Board 01=aaaaaabffffffkkkkkklpppppp015");
  EXPECT_EQ(boards[5], "Board 07=aaaaaabffffffkkkkkklpppppp009");
  EXPECT_EQ(LinesOf("Duplicates ").size(), 99U);
  EXPECT_EQ(LinesOf("Property ").back(), "Property 99=1");
  EXPECT_TRUE(ReadFile(path).ends_with(
      "lpppppp109\r\n[STARTUP]\r\nStatistics=Yes\r\nAdd filename=Yes\r\nMakeable=1\r\n"
      "Reversed=0\r\n"));
}

TEST_F(ExportTest, BoardsAbove99AreNotWrittenForADealingMachine) {
  path.replace_extension("dlm");
  for (int n = 95; n <= 120; ++n) PutBoard(n);
  const std::string told = "File @ created\nThe file can hold boards 1 to 99: ";
  EXPECT_EQ(Told(95, 120), told + "boards 95-99 written, boards 100-120 left out\n");
  EXPECT_EQ(Told(99, 100), told + "board 99 written, board 100 left out\n");
  EXPECT_EQ(Told(100, 101), told + "none of the range was written\n");
  EXPECT_EQ(LinesOf("Board ").size(), 99U);
  EXPECT_EQ(LinesOf("To board=").at(0), "To board=101");
  Written(98, 99);
  EXPECT_EQ(host.steps.back(), "Exporting board 99");
  WriteFile(session.BoardPath(98), "nothing");
  EXPECT_TRUE(
      Told(98, 102).ends_with("\n1 hand is incomplete:-\n98 \nThe file can hold boards 1 to "
                              "99: boards 100-102 left out\n"));
}

TEST_F(ExportTest, MissingAndIncompleteBoardsAreListedUpToALimit) {
  PutBoard(2);
  const std::string missing = " hands are missing in the specified range";
  EXPECT_EQ(Told(1, 4), "3" + missing + ":\nHands 1, 3, 4\n");
  EXPECT_EQ(Told(2, 3), "1" + missing + ":\nHands 3\n");
  EXPECT_EQ(Told(3, 22), "20" + missing + "\n");
  EXPECT_TRUE(Told(3, 21).ends_with(", 19, 20, 21\n"));
  EXPECT_FALSE(fs::exists(path));

  PutBoard(1);
  std::string incomplete = OneSuitEachText();
  incomplete.replace(incomplete.find(" A"), 2, "");
  for (int n = 2; n <= 11; ++n) WriteFile(session.BoardPath(n), incomplete);
  EXPECT_EQ(Told(1, 10), "9 hands are incomplete:-\n2 3 4 5 6 7 8 9 10 \n");
  std::string expected = Head(1, "N", "None");
  for (int n = 1; n <= 11; ++n) expected += "\r\n";
  EXPECT_EQ(ReadFile(path), expected);
  EXPECT_EQ(Told(1, 11), "10 hands are incomplete\n");
}

TEST_F(ExportTest, ACancelledExportLeavesWhatItHasOfEveryType) {
  for (int n = 1; n <= 3; ++n) PutBoard(n);
  const std::pair<const char*, const char*> kCases[] = {
      {"pbn", "[Board"}, {"lin", "qx|"}, {"dlm", "Board "}};
  for (const auto& [type, line] : kCases) {
    path.replace_extension(type);
    EXPECT_EQ(Told(1, 3, 2), "Export cancelled\n");
    EXPECT_EQ(LinesOf(line).size(), 1U) << type;
  }
}

TEST_F(ExportTest, ACancelledExportLeavesTheOldFileUnlessToldOtherwise) {
  for (int n = 1; n <= 3; ++n) PutBoard(n);
  const fs::path target = folder.Path() / "old.pbn";
  WriteFile(target, "old");
  fs::create_symlink(target, path);
  const fs::path parts[] = {folder.Path() / PathFromText("out \u00e9 (part).pbn"),
                            folder.Path() / PathFromText("out \u00e9 (part 2).pbn")};
  const auto cancel = [&](int part, Answer answer, const std::string& told) {
    host.cancelAtStep = static_cast<int>(host.steps.size()) + 2;
    host.ExpectTell("Export cancelled");
    host.ExpectAsk("The file\n" + PathText(path) +
                       "\nis as it was. What was exported until now is in\n" +
                       PathText(parts[part]) + "\nDo you want this part to replace the old file?",
                   "Tricklet", answer);
    if (!told.empty()) host.ExpectTell(told);
    EXPECT_FALSE(ExportFile(session, {1, 3, ""}, path));
    EXPECT_EQ(LinesOf("[Board").size(), told.empty() && answer == Answer::Yes ? 1U : 0U);
  };
  cancel(0, Answer::No, "");
  host.hasRecycleBin = false;
  cancel(1, Answer::Yes, "Unable to send the old file to the recycle bin:\n" + PathText(target));
  EXPECT_EQ(ReadFile(target), "old");
  EXPECT_EQ(ReadFile(parts[0]), ReadFile(parts[1]));
  host.hasRecycleBin = true;
  fs::remove(parts[1]);
  cancel(1, Answer::Yes, "");
  EXPECT_EQ(host.recycled, std::vector<std::string>{"old.pbn"});
  EXPECT_TRUE(fs::is_symlink(path) && fs::exists(parts[0]) && !fs::exists(parts[1]));
}

TEST_F(ExportTest, ChangesThatAreGivenUpAreOffTheScreen) {
  PutBoard(1);
  session.board.boardNumber = 1;
  ClearAll(session.board);
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 1", Answer::No);
  EXPECT_EQ(Written(1, 1), Head(1, "N", "None") + "\r\n\r\n");
  EXPECT_FALSE(session.board.handChanged);
}

TEST_F(ExportTest, AFailedExportKeepsWhatWasThere) {
  PutBoard(1);
  fs::create_directories(path / "in the way");
  EXPECT_EQ(Told(1, 1), "? Is a directory: @\nError no. 75\n");
  EXPECT_TRUE(fs::exists(path / "in the way"));
  path = folder.Path() / "old.pbn";
  WriteFile(path, "old");
  fs::create_symlink("002.txt", session.BoardPath(2));
  EXPECT_EQ(Told(1, 2), "? Too many levels of symbolic links: LIBRARY/002.txt\nError no. 57\n");
  EXPECT_EQ(ReadFile(path), "old");
  path = folder.Path() / "out.txt";
  EXPECT_EQ(Told(1, 1), "The file must be of type pbn, dlm or lin\n");
}

TEST_F(ExportTest, ChecksTheRange) {
  host.ExpectTell("There are no hands to export");
  EXPECT_FALSE(HasHandsToExport(session));
  PutBoard(1);
  EXPECT_TRUE(HasHandsToExport(session));
  ExportRange range;
  EXPECT_TRUE(CheckRangeTexts(session, " 3 ", "12", range));
  const std::pair<const char*, const char*> kWrong[] = {{"0", "3"},    {"5", "4"},  {"", "3"},
                                                        {"1", "1000"}, {"1x", "2"}, {"1", "x"}};
  for (const auto& [from, to] : kWrong) {
    host.ExpectTell("Please enter a valid range");
    EXPECT_FALSE(CheckRangeTexts(session, from, to, range)) << from << " " << to;
  }
  EXPECT_EQ(std::pair(range.first, range.last), std::pair(3, 12));
  path = "/old/tuesday.dlm";
  host.Choose(std::nullopt);
  EXPECT_FALSE(Export(session, {1, 1, "pbn"}, path));
  EXPECT_EQ(host.suggested, "/old/tuesday.pbn");
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(SuggestedExportPath("abc", "pbn"), "abc");
}

}  // namespace
}  // namespace tricklet::test
