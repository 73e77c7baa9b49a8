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

}  // namespace
}  // namespace tricklet::test
