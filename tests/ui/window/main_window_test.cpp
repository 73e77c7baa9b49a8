// The real main window on a library of its own, worked by keys and clicks.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "formats/exchange/import.h"
#include "tests/support/calls.h"
#include "tests/ui/window_fixture.h"
#include "ui/table/table_layout.h"

namespace tricklet::ui {
namespace {

class MainWindowTest : public WindowTest {};

TEST_F(MainWindowTest, EveryWayOfSteppingShowsTheBoard) {
  Open();
  const auto down = [this] { PressKey(Find<QComboBox>("cmbBoard"), Qt::Key_Down); };
  const struct {
    const char* way;
    std::function<void()> step;
    int board;
    const char* shown;
  } steps[] = {
      {"button", [this] { Click("lblNext"); }, 2, "Board 2 (empty)"},
      {"key", [this] { Key(Qt::Key_PageDown); }, 3, "Board 3"},
      {"list", down, 4, "Board 4 (empty)"},
      {"last", [this] { Key(Qt::Key_End, Qt::ControlModifier); }, 24, "Board 24"},
      {"wrap forward", [this] { Click("lblNext"); }, 1, "Board 1"},
      {"wrap back", [this] { Click("lblPrevious"); }, 24, "Board 24"},
      {"key back", [this] { Key(Qt::Key_Left, Qt::ControlModifier); }, 23, "Board 23 (empty)"},
      {"first", [this] { Key(Qt::Key_Home, Qt::ControlModifier); }, 1, "Board 1"},
  };
  for (const auto& [way, step, board, shown] : steps) {
    step();
    EXPECT_EQ(session.board.boardNumber, board) << way;
    EXPECT_EQ(FromQt(ShownBoard()), shown) << way;
    EXPECT_EQ(Shown("fraStats"), HasCards(session.board.hands)) << way;
    const QString west = Find<QTableWidget>("flexBids")->horizontalHeaderItem(0)->text();
    EXPECT_EQ(FromQt(west), board == 3 || board == 4 || board == 23 ? "West (v)" : "West") << way;
  }
}

TEST_F(MainWindowTest, RefusesCharactersInALibraryNameAndCreatesTheLibrary) {
  Open();
  QComboBox* libraries = Find<QComboBox>("cmbLibs");
  auto* create = Find<QPushButton>("cmdChange");
  EXPECT_FALSE(create->isEnabled());
  Type("cmbLibs", " My.L/i b");
  EXPECT_EQ(libraries->currentText(), QStringLiteral("MyLi b"));
  EXPECT_EQ(host.beeps, 3);
  EXPECT_TRUE(create->isEnabled());
  Type("cmbLibs", "TEACHING");
  EXPECT_FALSE(create->isEnabled()) << "that library is there, in another letter case";
  FocusKey(Qt::Key_Escape);
  EXPECT_EQ(libraries->currentText(), QStringLiteral("Club"));

  Type("cmbLibs", "TEACHING");
  FocusKey(Qt::Key_Return);
  EXPECT_EQ(session.LibraryName(), "Teaching");
  EXPECT_EQ(libraries->currentText(), QStringLiteral("Teaching"));
  Type("cmbLibs", "tEACHING");
  Find<QWidget>("cmbBoard")->setFocus();
  EXPECT_EQ(libraries->currentText(), QStringLiteral("Teaching")) << "nothing is left standing";

  Type("cmbLibs", "Autumn");
  Click("cmdChange");
  EXPECT_EQ(session.LibraryName(), "Autumn");
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "Autumn"));
  EXPECT_EQ(libraries->currentText(), QStringLiteral("Autumn"));
  EXPECT_EQ(libraries->count(), 3);
  EXPECT_FALSE(create->isEnabled());
  EXPECT_EQ(Find<QComboBox>("cmbBoard")->count(), 24);
}

TEST_F(MainWindowTest, LowersTheHighestBoardOnlyAfterYes) {
  Open();
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    host.ExpectAskWith("Please confirm that you wish to remove hands 21 to 24", answer);
    Type("cmbMaxBoard", "20");
    FocusKey(Qt::Key_Return);
    const int left = answer == Answer::Yes ? 20 : 24;
    EXPECT_EQ(Find<QComboBox>("cmbMaxBoard")->currentText(), QString::number(left));
    EXPECT_EQ(Find<QComboBox>("cmbBoard")->count(), left);
  }
  EXPECT_EQ(Find<QLabel>("lblLibrary")->text(), QStringLiteral("2 boards in library"));
  Type("cmbMaxBoard", "0");
  FocusKey(Qt::Key_Return);
  EXPECT_EQ(Find<QComboBox>("cmbMaxBoard")->currentText(), QStringLiteral("20"));
}

TEST_F(MainWindowTest, AsksAboutUnsavedChangesBeforeABoardIsLeft) {
  const std::string question = "Do you want to save changes to board 2 in library Club?";
  const struct {
    Answer answer;
    int board;
    bool written;
  } cases[] = {{Answer::Cancel, 2, false}, {Answer::No, 3, false}, {Answer::Yes, 3, true}};
  Open();
  for (const auto& [answer, board, written] : cases) {
    session.board.handChanged = false;
    PressKey(window.get(), Qt::Key_Home, Qt::ControlModifier);
    Click("lblNext");
    Key(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(Find<QPushButton>("cmdSave")->isEnabled());
    EXPECT_TRUE(window->isWindowModified());
    host.ExpectAsk(question, "Save changes?", answer);
    PressKey(Find<QComboBox>("cmbBoard"), Qt::Key_Down);
    EXPECT_EQ(session.board.boardNumber, board);
    EXPECT_EQ(Find<QComboBox>("cmbBoard")->currentIndex(), board - 1) << "put back when refused";
    EXPECT_EQ(std::filesystem::exists(session.BoardPath(2)), written);
  }
  session.board.handChanged = true;
  for (const Answer answer : {Answer::Cancel, Answer::No}) {
    host.ExpectAskWith("Do you want to save changes", answer);
    EXPECT_EQ(window->close(), answer == Answer::No);
  }
}

/// A PBN file of boards 1 to 9.
std::string NineBoards() {
  std::string text = "% PBN 2.1\n";
  for (int n = 1; n <= 9; ++n) {
    text += "[Board \"" + std::to_string(n) + "\"]\n" +
            "[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432\"]\n\n";
  }
  return text;
}

TEST_F(MainWindowTest, AnImportShowsProgressTakesNoCommandsAndCanBeCancelled) {
  const auto file = folder.Path() / "nine.pbn";
  test::WriteFile(file, NineBoards());
  SelectLibrary(session, "Teaching");
  Open();
  const std::function<void()> cancels[] = {
      [this] { Click("cmdCancelImport"); },
      [this] { EXPECT_FALSE(window->close()); },
      [this] { Key(Qt::Key_Escape); },
  };
  for (const auto& cancel : cancels) {
    host.steps.clear();
    host.onStep = [&] {
      EXPECT_TRUE(Shown("fraProgress"));
      EXPECT_FALSE(Shown("picTable"));
      EXPECT_FALSE(Find<QWidget>("cmbLibs")->isEnabled());
      Key(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);  // not carried out
      if (host.steps.size() == 4) cancel();
    };
    if (&cancel != &cancels[0]) host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTell("3 hands (1-3) have been saved to the library - Teaching");
    window->ImportFiles({file, file});
    EXPECT_EQ(host.steps.size(), 4U);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(Shown("fraProgress"));
    EXPECT_TRUE(Shown("picTable"));
    EXPECT_TRUE(Find<QWidget>("cmbLibs")->isEnabled());
    EXPECT_FALSE(session.board.handChanged);
    EXPECT_EQ(Find<QLabel>("lblLibrary")->text(), QStringLiteral("3 boards in library"));
  }
}

TEST_F(MainWindowTest, OptionsTakeEffectOnlyWithOK) {
  Open();
  for (const char* button : {"cmdCancel", "cmdOK"}) {
    Expect<QDialog>([button](const QDialog& dialog) {
      dialog.findChild<QCheckBox*>(QStringLiteral("ShowStats"))->setChecked(false);
      dialog.findChild<QComboBox*>(QStringLiteral("CardDesign"))->setCurrentIndex(2);
      Press(dialog, button);
    });
    const Settings before = session.settings;
    Key(Qt::Key_Comma, Qt::ControlModifier);
    const bool taken = std::string_view(button) == "cmdOK";
    EXPECT_EQ(Shown("fraStats"), !taken);
    EXPECT_EQ(store.Read("Tricklet", "CardDesign").has_value(), taken);
    Settings expected = before;
    if (taken) {
      expected.showStats = false;
      expected.cardDesign = CardDesign::LargeIndex;
    }
    EXPECT_EQ(session.settings, expected) << "fonts and all else come out as they went in";
  }
}

TEST_F(MainWindowTest, TablesFollowTheColours) {
  session.board.makeableValid = true;
  Open();
  test::SetAuction(session.board, "1NT Pass Pass Pass");
  const Qt::Key keys[] = {Qt::Key_3, Qt::Key_2, Qt::Key_3, Qt::Key_1};
  for (const Qt::Key key : keys) {
    Key(key, Qt::ControlModifier | Qt::AltModifier);
    QCoreApplication::processEvents();
    const auto* table = Find<QTableWidget>("lvwMake");
    const QImage head = table->horizontalHeader()->grab().toImage();
    EXPECT_EQ(head.pixelColor(2, 2), table->palette().color(QPalette::Base)) << key;
    const auto* grid = Find<QTableWidget>("flexBids");
    const QTableWidgetItem* pass = grid->item(1, 0);
    ASSERT_NE(pass, nullptr);
    EXPECT_EQ(pass->foreground(), grid->palette().brush(QPalette::PlaceholderText)) << key;
  }
}

TEST_F(MainWindowTest, PresentationShowsTheTableAloneAndItsKeysStillWork) {
  Open();
  Key(Qt::Key_F11);
  EXPECT_TRUE(window->isFullScreen());
  for (const char* name : {"cmbLibs", "flexBids", "lblStatus"}) {
    EXPECT_FALSE(Find<QWidget>(name)->isVisible()) << name;
  }
  EXPECT_FALSE(window->menuBar()->isVisible());
  EXPECT_TRUE(Shown("picTable"));
  Key(Qt::Key_PageDown);
  EXPECT_EQ(session.board.boardNumber, 2);
  Key(Qt::Key_F11, Qt::ShiftModifier);
  EXPECT_TRUE(Shown("flexBids"));
  EXPECT_FALSE(Shown("cmbLibs"));
  Key(Qt::Key_F11, Qt::ShiftModifier);
  EXPECT_FALSE(Shown("flexBids"));
  Key(Qt::Key_Escape);
  EXPECT_FALSE(window->isFullScreen());
  EXPECT_TRUE(Shown("cmbLibs"));
}

TEST_F(MainWindowTest, TheRightColumnTakesOnlyRoomThatTheTableCannotUse) {
  Open();
  int before = 0;
  for (const QSize size : {QSize(1024, 700), QSize(1280, 800), QSize(1600, 900), QSize(1920, 1080),
                           QSize(3440, 1440)}) {
    window->resize(size);
    QCoreApplication::processEvents();
    const int right = Find<QWidget>("colRight")->width();
    const QSizeF table = Find<QWidget>("picTable")->size();
    const auto cards = [this](QSizeF felt) {
      return LayOutTable(felt, session.board.hands, HandDisplay::Cards).cardSize;
    };
    if (before == 0) before = right;
    EXPECT_GE(right, before);
    EXPECT_EQ(cards(table), cards(table + QSizeF(right - before, 0))) << size.width();
    EXPECT_EQ(right > before, size.width() >= 1600) << size.width();
  }
}

TEST_F(MainWindowTest, CopyInATextBoxLeavesTheBoardAlone) {
  Open();
  QLineEdit* name = Find<QComboBox>("cmbLibs")->lineEdit();
  name->setFocus();
  name->selectAll();
  FocusKey(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(session.copyBoard, 0);
  Find<QWidget>("picTable")->setFocus();
  FocusKey(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(session.copyBoard, 1);
}

}  // namespace
}  // namespace tricklet::ui
