// Boards found from the window, and what is done with them there.
#include <QLabel>

#include "library/board_notes.h"
#include "tests/ui/accessibility.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmFindBoards.h"
#include "ui/finding/board_search.h"
#include "ui/finding/found_boards_view.h"

namespace tricklet::ui {
namespace {

class FindBoardsDialogTest : public WindowTest {
 protected:
  FindBoardsDialogTest() {
    test::WriteFile(session.LibraryPath() / kNotesFile, "[22]\nA squeeze\n");
    test::WriteFile(folder.Path() / "Teaching" / "007.txt", test::OneSuitEachText());
    test::WriteFile(folder.Path() / "Teaching" / "009.txt", "no board");
  }

  /// Has `work` work the dialog, which it has to close.
  void WithFound(const std::function<void(const Driven&)>& work) {
    if (!window) Open();
    Expect(work);
    Key("Ctrl+Alt+F");
  }
  /// Types, and waits until all has been looked at: "Club 1, Club 3; 2 of 4 boards".
  static std::string Found(const Driven& form, const char* text) {
    form.Type("txtFind", text);
    return Found(form);
  }
  static std::string Found(const Driven& form) {
    const auto* search = form.Find<BoardSearch>("boardSearch");
    QTest::qWait(300);  // longer than the pause after the last key
    EXPECT_TRUE(QTest::qWaitFor([search] { return !search->Running(); }));
    const auto* rows = form.Find<FoundBoardsView>("grdFound")->model();
    std::string list;
    for (int row = 0; row < rows->rowCount(); ++row) {
      list += (row == 0 ? "" : ", ") + FromQt(rows->index(row, 0).data().toString()) + " " +
              FromQt(rows->index(row, 1).data().toString());
    }
    return list + "; " + form.Text("lblFound");
  }
};

TEST_F(FindBoardsDialogTest, LooksForWhatIsTypedAndGoesToTheBoard) {
  WithFound([](const Driven& form) {
    EXPECT_EQ(Found(form), "Club 1, Club 3, Club 22, Club 24; 4 of 4 boards");
    EXPECT_EQ(form.EnabledOf("cmdOpen cmdCopyTo cmdRenumber cmdDelete cmdPrint cmdPublish"), "");
    EXPECT_EQ(FromQt(test::UnnamedIn(*form.top).join(u'\n')), "");
    EXPECT_EQ(FromQt(test::FlawsOfCaptions(*form.top).join(u'\n')), "");
    EXPECT_EQ(Found(form, "squeeze"), "Club 22; 1 of 4 boards");
    EXPECT_EQ(Found(form, "spades(nort)==13"),
              "Club 22; Line 1, column 8: \"nort\" is no seat: north?");
    EXPECT_EQ(Found(form, "spades(north)==13 && spades(east)==0"),
              "Club 1, Club 3, Club 22, Club 24; 4 of 4 boards");
    form.Press("cmdAll");
    EXPECT_EQ(Found(form).substr(0, 65),
              "Club 1, Club 3, Club 22, Club 24, Teaching 7; 5 of 6 boards\nNot r");
    EXPECT_EQ(FromQt(test::MissedByTab(*form.top).join(u'\n')), "");
    auto* list = form.Find<FoundBoardsView>("grdFound");
    list->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(Found(form, "5-23").substr(0, 20), "Club 22, Teaching 7;");
    list->Choose(1);
    form.Find<QWidget>("txtFind")->setFocus();
    Driven::FocusKey("Return");
    EXPECT_EQ(form.Focus(), "grdFound");
    Driven::FocusKey("Return");
  });
  EXPECT_EQ(LibraryTestBy::Shown(), "Teaching 7 of 9, 2 stored");
}

TEST_F(FindBoardsDialogTest, IsWhereTheBoxAboveTheListLeads) {
  Open();
  Expect([](const Driven& form) {
    EXPECT_EQ(Found(form), "Club 22; 1 of 4 boards");
    form.Press("cmdClose");
  });
  Type("txtFindBoards", "squeeze");
  FocusKey("Return");
  EXPECT_EQ(Text("txtFindBoards"), "");
}

TEST_F(FindBoardsDialogTest, WorksOnTheBoardsThatAreChosen) {
  WithFound([this](const Driven& form) {
    Found(form);
    auto* list = form.Find<FoundBoardsView>("grdFound");
    list->sortByColumn(1, Qt::DescendingOrder);
    list->selectAll();
    EXPECT_EQ(form.EnabledOf("cmdOpen cmdCopyTo cmdRenumber cmdDelete cmdPrint cmdPublish"),
              "cmdOpen cmdCopyTo cmdRenumber cmdDelete cmdPrint cmdPublish");
    Expect([this](const Driven& question) {
      EXPECT_EQ(FromQt(test::UnnamedIn(*question.top).join(u'\n')), "");
      EXPECT_EQ(FromQt(test::FlawsOfCaptions(*question.top).join(u'\n')), "");
      EXPECT_FALSE(question.Enabled("cmdOK"));
      question.Type("cmbLibrary", "Teaching");
      question.Press("optInTurn");
      EXPECT_EQ(question.Text("cmbFirst"), "10") << "after those that are there";
      question.Press("optKeep");
      host.ExpectTell("4 boards copied to the library Teaching");
      question.Press("cmdOK");
    });
    form.Press("cmdCopyTo");
    Expect([this](const Driven& question) {
      question.Press("optInTurn");
      question.Find<QComboBox>("cmbFirst")->setCurrentText(QStringLiteral("5"));
      host.ExpectTell("4 boards have new numbers");
      question.Press("cmdOK");
    });
    list->selectAll();
    form.Press("cmdRenumber");
    EXPECT_EQ(Found(form), "Club 8, Club 7, Club 6, Club 5; 4 of 4 boards");
    list->Choose(-1);
    host.ExpectAsk("Do you wish to remove board 8?", "Tricklet", Answer::Yes);
    host.ExpectTell("1 board sent to the recycle bin");
    QApplication::setActiveWindow(form.top);  // after a dialog none is active
    list->setFocus();
    Driven::FocusKey("Del");
    EXPECT_EQ(Found(form), "Club 7, Club 6, Club 5; 3 of 3 boards");
    form.Press("cmdClose");
  });
  const LibraryState teaching = ScanLibrary(folder.Path() / "Teaching");
  EXPECT_EQ(teaching.boardCount, 6);
  EXPECT_TRUE(teaching.boardPresent[22]);
}

}  // namespace
}  // namespace tricklet::ui
