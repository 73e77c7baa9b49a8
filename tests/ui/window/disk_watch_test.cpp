// The window while other programs change the library that it shows.
#include <QAbstractItemView>

#include "library/board_store.h"
#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

namespace fs = std::filesystem;

constexpr const char* kReadAgain = "Board 1 was changed by another program and has been read again";
constexpr const char* kF5 = "Board 1 was changed on disk by another program; F5 reads it again";
constexpr const char* kUnsaved =
    "Board 1 was changed on disk by another program; the changes here are not saved";

class DiskWatchTest : public WindowTest {
 protected:
  /// Another program gives board 1 this many passes.
  void PutPasses(int count) {
    Board board;
    board.hands = test::OneSuitEach();
    for (int i = 0; i < count; ++i) board.calls.Add(Call::Pass());
    test::WriteFile(session.BoardPath(1), WriteBoardText(board));
    window->LookAtDisk();
  }
};

TEST_F(DiskWatchTest, ABoardWithoutChangesIsReadAgain) {
  Open();
  window->LookAtDisk();
  EXPECT_EQ(Text("lblStatus"), "Ready");
  PutPasses(2);
  EXPECT_EQ(Calls(), "Pass Pass");
  EXPECT_EQ(Text("lblStatus"), kReadAgain);
  EXPECT_FALSE(session.board.handChanged);

  test::WriteFile(session.BoardPath(1), "half a bo");
  window->LookAtDisk();
  EXPECT_EQ(Calls(), "Pass Pass") << "no board, and no message either";
  EXPECT_EQ(Text("lblStatus"), kF5);
  PutPasses(3);
  EXPECT_EQ(Calls(), "Pass Pass Pass");
  Key("PgDown");
  EXPECT_EQ(Text("lblStatus"), "Ready");
}

TEST_F(DiskWatchTest, WhatThePersonIsDoingIsNotPutAway) {
  struct Case {
    std::function<void()> begin;
    const char* says;
    std::function<void()> end;
    const char* after;
  };
  const auto save = [this] {
    host.ExpectAskWith("has been changed by another program", Answer::Yes);
    Key("Ctrl+S");
  };
  const Case cases[] = {
      {[this] {
         session.board.handChanged = true;
         Bid("1S");
       },
       kUnsaved, save, "Ready"},
      {[this] { Press("cmdEdit"); }, kF5, [this] { Press("cmdEdit"); }, kReadAgain},
      {[this] {
         Key("Ctrl+Shift+Del");
         host.ExpectAskWith("Overwrite", Answer::Yes);
         Key("Ctrl+S");
       },
       kF5, [this] { Key("F5"); }, "Ready"},
  };
  Open();
  int passes = 0;
  for (const Case& done : cases) {
    done.begin();
    const Board before = session.board;
    PutPasses(++passes % 4);
    EXPECT_EQ(Text("lblStatus"), done.says);
    EXPECT_EQ(WriteBoardText(session.board), WriteBoardText(before)) << done.says;
    done.end();
    window->LookAtDisk();
    EXPECT_EQ(Text("lblStatus"), done.after) << done.says;
  }
}

TEST_F(DiskWatchTest, ARemovedBoardIsKeptToBeSaved) {
  Open();
  fs::remove(session.BoardPath(1));
  window->LookAtDisk();
  EXPECT_EQ(Text("lblStatus"), "Board 1 was removed by another program: save it to keep it");
  EXPECT_EQ(Text("lblLibrary"), "3 boards in library");
  EXPECT_TRUE(Enabled("cmdSave"));
  Key("Ctrl+S");
  EXPECT_EQ(test::ReadFile(session.BoardPath(1)), test::OneSuitEachText());
  EXPECT_EQ(Text("lblStatus"), "Ready");
}

TEST_F(DiskWatchTest, AddedBoardsAppearInTheList) {
  Open();
  Type("cmbLibs", "Autumn");
  PutBoard(30);
  window->LookAtDisk();
  EXPECT_EQ(Text("cmbLibs"), "Autumn") << "the name that is being typed stays";
  FocusKey("Esc");
  CountHands(session);  // as a save does, which offers no more boards
  window->LookAtDisk();
  EXPECT_EQ(Text("lblLibrary"), "5 boards in library");
  EXPECT_EQ(Text("cmbMaxBoard"), "30");
  EXPECT_EQ(Text("cmbBoard"), "Board 1");
}

TEST_F(DiskWatchTest, WhatAnotherWindowStoresIsSeenInTheList) {
  Open();
  window->LookAtDisk();
  const auto* list = Find<QAbstractItemView>("lstBoards");
  const auto row = [list](int number) {
    return FromQt(list->model()->index(number - 1, 0).data(Qt::AccessibleTextRole).toString());
  };
  const auto shows = [&](int number, const char* words) {
    return QTest::qWaitFor([&] { return row(number).find(words) != std::string::npos; });
  };
  Session other(host, store);
  other.settings = session.settings;
  other.board.boardNumber = 22;
  other.board.hands = test::OneSuitEach();
  test::SetAuction(other.board, "4H P P P");
  ASSERT_TRUE(SaveHand(other));
  EXPECT_TRUE(shows(22, "4 hearts by East")) << row(22);
  other.board.boardNumber = 5;
  ASSERT_TRUE(SaveHand(other));
  EXPECT_TRUE(shows(5, "4 hearts by North")) << "without waiting for the clock: " << row(5);
  fs::remove(session.BoardPath(22));
  EXPECT_TRUE(shows(22, "(empty)")) << row(22);
  EXPECT_EQ(Text("lblStatus"), "Ready");
}

}  // namespace
}  // namespace tricklet::ui
