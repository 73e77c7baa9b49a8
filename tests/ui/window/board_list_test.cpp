// The list of boards beside the table.
#include <QContextMenuEvent>
#include <QTreeView>

#include "formats/results/lin_file.h"
#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

class BoardListTest : public WindowTest {
 protected:
  QTreeView* List() const { return Find<QTreeView>("lstBoards"); }
  QString Row(int row) const {
    return List()->model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
  }
  /// The number in the chosen row, "-" where none is chosen.
  std::string Chosen() const {
    const QModelIndexList chosen = List()->selectionModel()->selectedRows();
    return chosen.isEmpty() ? "-" : FromQt(chosen.front().data().toString());
  }
  void PutAuction(int number, const std::string& auction) {
    Board board;
    board.boardNumber = number;
    board.hands = test::OneSuitEach();
    test::SetAuction(board, auction);
    test::WriteFile(session.BoardPath(number), WriteBoardText(board));
  }
};

TEST_F(BoardListTest, RowsSayWhatTheFilesTell) {
  PutAuction(1, "1S X P P P");
  PutAuction(3, "P P P P");
  PutAuction(22, "3NT P P P");
  test::WriteFile(session.BoardPath(24), "half a bo");
  LinFile results;
  for (const char* score : {"110", "-50"}) {
    results.lin.push_back(test::LinRecordText("o22", "qens|" + std::string(score) + "||"));
  }
  results.lin.push_back("qx||ah|Board 1|qens|-200||");
  test::WriteFile(LinDataPath(session), LinFileText(results));
  Open();
  const std::pair<int, const char*> rows[] = {
      {1, "Board 1, dealer North, Love all, 1 spade doubled by North, score minus 200"},
      {2, "Board 2 (empty), dealer East, NS vulnerable"},
      {3, "Board 3, dealer South, EW vulnerable, passed out, score 0"},
      {22, "Board 22, dealer East, EW vulnerable, 3 no trump by East"},
      {24, "Board 24, dealer West, Love all, the file cannot be read"},
  };
  for (const auto& [number, text] : rows) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Row(number - 1) == QLatin1String(text); }))
        << FromQt(Row(number - 1));
  }
  const auto contract = [this](int number) {
    return FromQt(List()->model()->index(number - 1, 3).data().toString());
  };
  EXPECT_EQ(contract(2) + " " + contract(3), "empty Pass");
}

TEST_F(BoardListTest, IsWorkedByKeysAndClicks) {
  Open();
  List()->setFocus();
  const std::tuple<const char*, int, const char*> keys[] = {
      {"Down", 2, "lstBoards"},    {"End", 24, "lstBoards"},  {"Up", 23, "lstBoards"},
      {"Home", 1, "lstBoards"},    {"2 2", 22, "lstBoards"},  {"9", 9, "lstBoards"},
      {"1 Return", 1, "picTable"}, {"PgDown", 2, "picTable"},
  };
  for (const auto& [pressed, board, focus] : keys) {
    for (const std::string& key : test::Words(pressed)) FocusKey(key.c_str());
    EXPECT_EQ(session.board.boardNumber, board) << pressed;
    EXPECT_EQ(Chosen(), std::to_string(board)) << pressed;
    EXPECT_EQ(Focus(), focus) << pressed;
  }
  List()->setFocus();
  FocusKey("PgDown");
  EXPECT_GT(session.board.boardNumber, 4) << "a page of the list";
  FocusKey("2");
  EXPECT_TRUE(QTest::qWaitFor([this] { return session.board.boardNumber == 2; }))
      << "no other digit follows";

  List()->scrollToTop();
  const QPoint third = List()->visualRect(List()->model()->index(2, 0)).center();
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, third);
  EXPECT_EQ(Chosen(), "3");
  const QPoint first = List()->visualRect(List()->model()->index(0, 0)).center();
  QContextMenuEvent asked(QContextMenuEvent::Mouse, first, List()->viewport()->mapToGlobal(first));
  QApplication::sendEvent(List()->viewport(), &asked);
  EXPECT_EQ(Chosen(), "1") << "the menu is for the board below the mouse";
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
}

TEST_F(BoardListTest, ARefusedChoiceJumpsBackAndAChangeIsMarked) {
  Open();
  ExpectUnsavedQuestion(Answer::Cancel);
  window->Display();
  EXPECT_EQ(Chosen(), "1*");
  EXPECT_TRUE(Row(0).endsWith(QStringLiteral("changes not saved")));
  List()->setFocus();
  FocusKey("End");
  EXPECT_EQ(Chosen(), "1*");
}

TEST_F(BoardListTest, FindsBoardsAndSaysHowManyAreLeftOut) {
  PutAuction(22, "3NT P P P");
  Open();
  EXPECT_FALSE(Shown("lblFound"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Row(21).contains(QStringLiteral("no trump")); }));
  for (const char* key : {"Return", "Down"}) {
    Type("txtFindBoards", "3nt");
    EXPECT_EQ(Text("lblFound") + ", " + Chosen(), "1 of 24 boards, -");
    FocusKey(key);
    EXPECT_EQ(Chosen() + ", " + Focus(), "22, lstBoards");
    Type("txtFindBoards", "1");
    FocusKey(key);
  }
  Type("txtFindBoards", "3nt");
  FocusKey("Return");
  Type("txtFindBoards", "no such word");
  EXPECT_EQ(Text("lblFound"), "None. Enter finds more.");
  FocusKey("Esc");
  EXPECT_FALSE(Shown("lblFound"));
  EXPECT_EQ(Chosen() + ", " + Focus(), "22, picTable");
  Type("txtFindBoards", "dealt");
  TypeAndEnter("cmbLibs", "Teaching");
  EXPECT_EQ(Text("txtFindBoards"), "");
}

}  // namespace
}  // namespace tricklet::ui
