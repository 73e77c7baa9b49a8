// LIN records on their ways into the window.
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>

#include "library/board_notes.h"
#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

const QString kRecord = ToQt(test::LinRecordText("o7", "mb|1C|"));

class LinWindowTest : public WindowTest {
 protected:
  void SetUp() override {
    SelectLibrary(session, "Teaching");
    Open();
  }
  void Paste(const QString& text) const {
    QApplication::clipboard()->setText(text);
    Key("Ctrl+Shift+V");
  }
  /// Whether the window takes `data` when it is dragged over it; then drops it.
  bool Drop(const QMimeData& data) const {
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(9, 9), possible, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(top, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(9, 9), possible, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);  // as file managers propose
    QCoreApplication::sendEvent(top, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a moved file is deleted where it was";
    QTest::qWait(1);
    return true;
  }
};

TEST_F(LinWindowTest, AreChosenPastedOrDropped) {
  const auto file = folder.Path() / "a.lin";
  const auto other = folder.Path() / "b.txt";
  test::WriteFile(file, FromQt(kRecord));
  test::WriteFile(other, "Dear Ann");
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(PathToQt(file)), QUrl::fromLocalFile(PathToQt(other))});
  QMimeData text;
  text.setText(kRecord);
  const auto choose = [&] {
    host.Choose(file);
    Key("Ctrl+Shift+I");
  };
  const std::function<void()> ways[] = {choose, [this] { Paste(kRecord); },
                                        [&] { EXPECT_TRUE(Drop(text)); }};
  for (const auto& way : ways) {
    if (&way != &ways[0]) host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTell("Hand 7 has been saved to the library - Teaching");
    way();
    EXPECT_EQ(Text("cmbBoard"), "Board 7");
    EXPECT_EQ(session.board.contract, "1C");
  }
  // Beside boards a new library is offered.
  host.ExpectTell("Hand 7 has been saved to the library - a");
  host.ExpectTellWith("There are no hand records in the file");
  Expect([](const Driven& look) {
    EXPECT_EQ(look.Text("lblFile") + " into " + look.Text("txtLibName"), "a.lin into a");
    look.Press("cmdImport");
  });
  EXPECT_TRUE(Drop(files)) << "one after another, whatever comes of each";
}

TEST_F(LinWindowTest, WhatIsSaidOfACallIsSaidAtTheCallUntilTheAuctionIsAnother) {
  host.ExpectTellWith("has been saved");
  Paste(ToQt(test::LinRecordText("o7", "mb|1C!|an|3+ !C <any>|mb|p|mb|d!|mb|p|mb|p|mb|p|")));
  const auto said = [this] {
    const auto* grid = Find<QTableWidget>("flexBids");
    QStringList calls;
    for (int row = 0; row < grid->rowCount(); ++row) {
      for (int column = 0; column < grid->columnCount(); ++column) {
        const QTableWidgetItem* call = grid->item(row, column);
        if (call == nullptr || call->toolTip().isEmpty()) continue;
        calls << call->toolTip() << call->data(Qt::AccessibleTextRole).toString();
      }
    }
    return calls.join(u'|');
  };
  EXPECT_EQ(FromQt(said()),
            "<qt>1 Clubs: 3+ \u2663 &lt;any&gt;</qt>|1 Clubs: 3+ \u2663 <any>|"
            "<qt>Dbl, alerted</qt>|Dbl, alerted");
  session.board.calls.RemoveLast();
  Key("Ctrl+T");  // shows all afresh
  EXPECT_EQ(FromQt(said()), "");
}

TEST_F(LinWindowTest, NotesAreStoredWhenTheBoardIsLeftAndByNoOtherKeys) {
  PutBoard(1);
  PutBoard(2);
  Key("F5");
  EXPECT_FALSE(Shown("txtNotes"));
  Key("Ctrl+Shift+M");
  ASSERT_EQ(Focus(), "txtNotes");
  auto* text = Find<QPlainTextEdit>("txtNotes");
  QTest::keyClicks(text, QStringLiteral("1 duck"));
  FocusKey("Ctrl+Z");
  EXPECT_EQ(FromQt(text->toPlainText()), "") << "undone in the text";
  QTest::keyClicks(text, QStringLiteral("1 duck"));
  test::WriteFile(NotesPath(session), "[2]\nof another program\n");
  Find<QAction>("mnuNext")->trigger();
  EXPECT_EQ(FromQt(text->toPlainText()), "of another program");
  EXPECT_EQ(LoadNotes(session).at(1), "1 duck");
  Key("Alt+4");
  EXPECT_FALSE(Shown("txtNotes")) << "they may tell of a hidden hand";
}

TEST_F(LinWindowTest, NotesThatCannotBeStoredStayUntilTheyAreGivenUp) {
  PutBoard(1);
  PutBoard(2);
  Key("F5");
  Key("Ctrl+Shift+M");
  auto* text = Find<QPlainTextEdit>("txtNotes");
  QTest::keyClicks(text, QStringLiteral("a"));
  std::filesystem::create_directory(NotesPath(session));
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    host.ExpectTellWith("could not be stored");
    host.ExpectAskWith("give up what you have typed", answer);
    Find<QAction>("mnuNext")->trigger();
    EXPECT_EQ(session.board.boardNumber, answer == Answer::No ? 1 : 2);
    EXPECT_EQ(FromQt(text->toPlainText()), answer == Answer::No ? "a" : "");
  }
}

TEST_F(LinWindowTest, TheStatusLineSaysWhereADropWillLand) {
  QMimeData text;
  text.setText(kRecord);
  for (const char* place : {"Teaching", "Teaching or a new library"}) {
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(top, &enter);
    EXPECT_EQ(Text("lblStatus"), std::string("Drop to import into ") + place);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(top, &leave);
    EXPECT_EQ(Text("lblStatus").find("Drop to"), std::string::npos);
    PutBoard(1);
    Key("F5");
  }
}

TEST_F(LinWindowTest, CancelEndsAnImportOfSeveralFilesAndAMissingOneIsToldFirst) {
  PutBoard(1);
  GetLibraryNames(session);
  const auto file = folder.Path() / "a.lin";
  test::WriteFile(file, FromQt(kRecord));
  host.ExpectTellWith("There is no such file");
  Expect([](const Driven& look) { look.Press("cmdCancel"); });
  window->ImportFiles({folder.Path() / "gone.lin", file, file});
  EXPECT_FALSE(std::filesystem::exists(session.BoardPath(7)));
}

TEST_F(LinWindowTest, OneDealBecomesThatOfTheBoardAndCanBeUndone) {
  const QString deal = QStringLiteral("N:AKQJT98765432... .AKQJT98765432.. - -");
  Paste(deal);
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_TRUE(session.board.hands[Seat::North][Suit::Spades].Has(Rank::Ace));
  EXPECT_TRUE(session.board.handChanged);
  host.ExpectAskWith("Do you wish to overwrite board 1", Answer::No);
  Paste(QStringLiteral("E:AKQJT98765432... - - -"));
  EXPECT_TRUE(session.board.hands[Seat::North][Suit::Spades].Has(Rank::Ace));
  Key("Ctrl+Z");
  EXPECT_FALSE(HasCards(session.board.hands));
}

TEST_F(LinWindowTest, OtherTextIsRefused) {
  host.ExpectTell("There are no hand records in this text");
  Paste(QStringLiteral("Dear Ann"));
  QMimeData text;
  text.setText(QStringLiteral("Dear Ann"));
  EXPECT_FALSE(Drop(text));
}

}  // namespace
}  // namespace tricklet::ui
