// Imports that are looked at first: when somebody has to decide, and what comes of it.
#include <optional>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "disk/presence.h"
#include "formats/exchange/file_type.h"
#include "formats/exchange/import.h"
#include "formats/exchange/import_planned.h"
#include "formats/results/lin_file.h"
#include "library/board_notes.h"
#include "library/library_choice.h"
#include "tests/support/diary.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

/// A deal of its own for each `kind`.
std::string DealText(char kind) {
  std::string north = "AKQJT98765432";
  return "[Deal \"" + std::string(1, kind) + ":" + north + "... ." + north + ".. .." + north +
         ". ..." + north + "\"]\n";
}

std::string GameText(const std::string& number, char kind, const std::string& more = "") {
  return "[Board \"" + number + "\"]\n" + DealText(kind) + more + "\n";
}

const std::string kResult = "[Contract \"1NT\"]\n[Declarer \"N\"]\n[Result \"7\"]\n";

class ImportLookTest : public LibraryTestBy<Diary> {
 protected:
  ImportLookTest() {
    GetLibraryNames(session);
    looker.decide = [this](const ImportLook& look) {
      ++looks;
      loss = look.plain.losesNothing ? "" : look.plain.loss(look.contents);
      return decision ? decision : std::optional(look.choices);
    };
  }

  fs::path File(const std::string& text, const std::string& name = "evening.pbn") {
    fs::path path = folder.Path() / name;
    WriteFile(path, text);
    return path;
  }
  /// Every file of a library with its text, but for the lock.
  std::string Contents(const std::string& library) {
    std::string text;
    std::set<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder.Path() / library)) files.insert(entry);
    for (const fs::path& file : files) {
      if (file.filename().string().starts_with('.')) continue;
      text += file.filename().string() + "\n" + ReadFile(file) + "\n";
    }
    return text;
  }
  ImportOutcome ImportInto(const std::string& library, const fs::path& file, const Looker& look) {
    fs::create_directories(folder.Path() / library);
    session.settings.library = library;
    GetLibraryNames(session);
    return FileTypeOf(file) == "lin" ? ImportLinFile(session, file, look)
                                     : ImportFile(session, file, look);
  }

  Looker looker;
  int looks = 0;
  std::string loss;
  std::optional<ImportChoices> decision;  // nothing: those that are offered
};

TEST_F(ImportLookTest, SomebodyDecidesWhereSomethingWouldBeLost) {
  const std::string table = "[OptimumResultTable \"Declarer;Denomination;Result\"]\nN NT 7\n";
  struct Case {
    std::string text;
    const char* name;
    const char* loss;  // nothing: nobody has to decide
  };
  const Case kCases[] = {
      {PbnText({5, 6, 7}), "a.pbn", nullptr},
      {"%\n" + GameText("1", 'N') + GameText("1", 'N'), "a.pbn", nullptr},  // the same deal twice
      {"%\n" + GameText("1", 'N', "[Dealer \"N\"]\n[Vulnerable \"None\"]\n"), "a.pbn", nullptr},
      {"no records\nat all\n", "a.pbn", nullptr},
      {"To board=2\r\n" + DlmLine(2) + DlmLine(1) + DlmLine(3) + DlmLine(4), "a.dlm", nullptr},
      {LinRecordText("o1") + LinRecordText("c1"), "a.lin", nullptr},
      {UsebioText(OneLineBoard(12) + OneLineBoard(4)), "a.xml", nullptr},
      {GameText("1", 'N') + GameText("2", 'E'), "a.pbn", "lost: 1 of 2 deals"},  // the first line
      {"%\n" + GameText("1", 'N') + GameText("1", 'E'), "a.pbn", "lost: 1 of 2 deals"},
      {"%\n" + GameText("1", 'N', "[Dealer \"E\"]\n"), "a.pbn",
       "other dealer or vulnerability: 1 board"},
      {"%\n" + GameText("1", 'N', table) + GameText("2", 'N'), "a.pbn", "lost: 2 of 2 deals"},
      {"%\n" + GameText("1", 'N', kResult), "a.pbn", "lost: 1 result"},
      {"%\n" + GameText("1", 'N', "{a comment}\n"), "a.pbn", "lost: notes"},
      {"%\n" + DealText('N') + GameText("1000", 'E'), "a.pbn", "lost: 2 of 2 deals"},
      {"From board=2\r\nTo board=2\r\nBoard 01=aaaaaabffffffkkkkkklpppppp\r\n" + DlmLine(2),
       "a.dlm", "stored though they only fill the file: 1 deal"},
  };
  int library = 0;
  for (const Case& each : kCases) {
    const fs::path file = File(each.text, each.name);
    looks = 0;
    loss.clear();
    decision = WithoutALook();
    const std::string number = std::to_string(++library);
    ImportInto("Looked " + number, file, looker);
    EXPECT_EQ(looks, each.loss == nullptr ? 0 : 1) << each.text;
    EXPECT_EQ(loss, each.loss == nullptr ? "" : each.loss) << each.text;
    ImportInto("Plain " + number, file, {});
    EXPECT_EQ(Contents("Looked " + number), Contents("Plain " + number)) << each.text;
  }
}

TEST_F(ImportLookTest, StoresWhatWasDecidedWithItsResults) {
  WriteFile(session.BoardPath(9), OneSuitEachText());
  WriteFile(LinDataPath(session),
            "[Names]\r\n1 NS Ann & Bob\r\n[LIN]\r\nqx|o1|ah|Board 1|\r\nqx|o9|ah|Board 9|\r\n");
  WriteFile(NotesPath(session), "[1]\r\nold\r\n[9]\r\nkept\r\n");
  const fs::path file = File("%\n" + GameText("1", 'N', kResult + "{new}\n") +
                             GameText("1", 'N', kResult) + GameText("1", 'E', kResult));
  const ImportOutcome outcome = ImportAnyFile(session, file, looker);
  EXPECT_EQ(outcome.boardsSaved, 2);
  // The open library has boards and was not chosen for the file.
  EXPECT_EQ(session.LibraryName(), "evening");
  decision = ImportChoices();
  ImportInto("Club", file, looker);
  EXPECT_EQ(session.library.boardCount, 3);
  const LinFile results = LoadLinData(session);
  ASSERT_EQ(results.lin.size(), 4U);
  EXPECT_EQ(results.lin.front(), "qx|o9|ah|Board 9|") << "of a board that was not replaced";
  EXPECT_EQ(results.names.size(), 1U);
  EXPECT_NE(results.lin.back().find("|Board 2|"), std::string::npos);
  EXPECT_EQ(LoadNotes(session), (BoardNotes{{1, "new"}, {9, "kept"}}));
  EXPECT_NE(host.said.find("2 boards from 3 tables"), std::string::npos) << host.said;
}

TEST_F(ImportLookTest, NothingIsStoredThatNobodyWants) {
  looker.decide = [](const ImportLook&) { return std::optional<ImportChoices>(); };
  const fs::path file = File("%\n" + GameText("1", 'N') + GameText("1", 'E'));
  EXPECT_TRUE(ImportInto("Club", file, looker).refused);
  EXPECT_EQ(session.library.boardCount, 0);
  EXPECT_TRUE(ImportAnyFile(session, folder.Path() / "missing.pbn", looker).failed);
  EXPECT_TRUE(ImportAnyFile(session, File("Dear Ann", "letter.txt"), looker).failed);
  EXPECT_NE(host.said.find("There are no hand records in the file"), std::string::npos);
}

TEST_F(ImportLookTest, ACancelledImportKeepsTheResultsOfWhatItStored) {
  host.cancelAtStep = 2;
  const fs::path file = File("%\n" + GameText("1", 'N', kResult) + GameText("2", 'E', kResult));
  EXPECT_TRUE(ImportInto("Club", file, looker).cancelled);
  EXPECT_EQ(LoadLinData(session).lin.size(), 1U);
}

TEST_F(ImportLookTest, GoesOnInAFurtherLibrary) {
  decision = ImportChoices();
  decision->numbers = Numbering::From;
  decision->from = 999;
  fs::create_directories(folder.Path() / "Club-2");
  const fs::path file = File(GameText("1", 'N') + GameText("2", 'E') + GameText("3", 'S'));
  looker.always = true;
  EXPECT_EQ(ImportInto("Club", file, looker).boardsSaved, 3);
  EXPECT_EQ(session.LibraryName(), "Club");
  EXPECT_TRUE(FileExists(session.BoardPath(999)));
  EXPECT_TRUE(FileExists(folder.Path() / "Club-3/002.txt")) << "Club-2 is another library";
}

TEST_F(ImportLookTest, TellsWhenNothingIsLeftToStore) {
  decision = ImportChoices();
  decision->unwanted = {0, 1};
  const fs::path file = File("%\n" + GameText("1", 'N') + GameText("1", 'E'));
  EXPECT_EQ(ImportInto("Club", file, looker).boardsSaved, 0);
  EXPECT_NE(host.said.find("No hands have been saved to the library - Club"), std::string::npos);
}

TEST_F(ImportLookTest, KnowsAFileByItsContent) {
  looker.always = true;
  EXPECT_EQ(ImportAnyFile(session, File(PbnText({5}), "hands.txt"), looker).boardsSaved, 1);
  EXPECT_EQ(ImportAnyFile(session, File(LinRecordText("o1"), "hands.pbn"), looker).boardsSaved, 1);
}

TEST_F(ImportLookTest, NamesALibraryAfterAFile) {
  fs::create_directories(folder.Path() / "league");
  const std::pair<const char*, const char*> kCases[] = {{"league", "league-2"},
                                                        {"a.b:c", "a-b-c"},
                                                        {" x", "-x"},
                                                        {"...", "---"},
                                                        {"con", "Imported"}};
  for (const auto& [wanted, name] : kCases) EXPECT_EQ(LibraryNameFor(session, wanted), name);
}

}  // namespace
}  // namespace tricklet::test
