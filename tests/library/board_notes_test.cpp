#include "library/board_notes.h"

#include <gtest/gtest.h>

#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

TEST(BoardNotesTest, ComeBackAsTheyWereWritten) {
  const BoardNotes notes{{7, "Lead\n[8]\n  [9] and so on\n[x]"}, {12, "\u2660 Zo\u00eb"}};
  EXPECT_EQ(NotesText(notes),
            "[7]\r\nLead\r\n [8]\r\n  [9] and so on\r\n[x]\r\n[12]\r\n\u2660 Zo\u00eb\r\n");
  EXPECT_EQ(ParseNotes(NotesText(notes)), notes);
}

TEST(BoardNotesTest, ReadWhatOthersWrite) {
  const std::pair<const char*, BoardNotes> kCases[] = {
      {"", {}},
      {"before\n[1]\n\n", {}},
      {"\xEF\xBB\xBF[1]\none\n[1000]\nmore\n[2]\ntwo", {{1, "one\n[1000]\nmore"}, {2, "two"}}},
      {"[3]\ra\r[3]\rb", {{3, "a\nb"}}},
      {"[4]\nZo\xEB", {{4, "Zo\u00eb"}}},
  };
  for (const auto& [text, notes] : kCases) EXPECT_EQ(ParseNotes(text), notes) << text;
}

class NotesDataTest : public LibraryTest {};

TEST_F(NotesDataTest, ReadsTheFileAgainWhenItHasChanged) {
  NotesData notes;
  EXPECT_TRUE(notes.Of(session).empty());
  WriteFile(NotesPath(session), "[1]\nfirst\n");
  EXPECT_EQ(notes.Of(session).at(1), "first");
  WriteFile(NotesPath(session), "[1]\nsecond one\n");
  EXPECT_EQ(notes.Of(session).at(1), "second one");
}

class StoreNoteTest : public LibraryTest {
 protected:
  std::string OfBoard1() const {
    const BoardNotes notes = LoadNotes(session);
    const auto note = notes.find(1);
    return note == notes.end() ? "-" : note->second;
  }
};

TEST_F(StoreNoteTest, ChangesOneBoardOfTheFileAsItIsThen) {
  // What board 1 has, what was seen of it, what is stored; what it has then
  const char* const kCases[][4] = {{"", "", "\n a \r\nb\x01 \n", "a \nb"},
                                   {"old", "old", "new", "new"},
                                   {"old", "old", "", "-"},
                                   {"theirs", "", "mine", "theirs\n\nmine"},
                                   {"theirs", "old", "", "theirs"},
                                   {"same", "old", "same", "same"},
                                   {"", "old", "mine", "mine"}};
  for (const auto& [there, seen, note, then] : kCases) {
    WriteFile(NotesPath(session), "[1]\n" + std::string(there) + "\n[2]\nother\n");
    if (std::string_view(there) == "theirs") host.ExpectTellWith("Both texts are kept");
    EXPECT_TRUE(StoreNote(session, 1, note, seen));
    EXPECT_EQ(OfBoard1(), then) << there << '|' << seen << '|' << note;
    EXPECT_EQ(LoadNotes(session).at(2), "other");
  }
}

TEST_F(StoreNoteTest, SaysWhenItCannotAndLeavesTheFile) {
  WriteFile(NotesPath(session), "[1]\nold\n");
  host.ExpectTellWith("could not be stored");
  EXPECT_FALSE(StoreNote(session, 1, std::string(kMaxNotesBytes, 'x'), "old"));
  EXPECT_EQ(OfBoard1(), "old");
}

}  // namespace
}  // namespace tricklet::test
