// The real main window on a library of its own, worked by keys and clicks.
#include <QCheckBox>
#include <QHeaderView>
#include <QMenuBar>

#include "tests/ui/window_fixture.h"
#include "ui/table/table_layout.h"

namespace tricklet::ui {
namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, EveryWayOfSteppingShowsTheBoard) {
  Open();
  const std::tuple<std::function<void()>, const char*, const char*> steps[] = {
      {[this] { Click("lblNext"); }, "Board 2 (empty)", "West"},
      {[this] { Key("PgDown"); }, "Board 3", "West vul"},
      {[this] { PressKey(Find<QWidget>("cmbBoard"), "Down"); }, "Board 4 (empty)", "West vul"},
      {[this] { Key("Ctrl+End"); }, "Board 24", "West"},
      {[this] { Click("lblNext"); }, "Board 1", "West"},
      {[this] { Click("lblPrevious"); }, "Board 24", "West"},
      {[this] { Key("Ctrl+Left"); }, "Board 23 (empty)", "West vul"},
      {[this] { Key("Ctrl+Home"); }, "Board 1", "West"},
  };
  for (const auto& [step, shown, west] : steps) {
    step();
    EXPECT_EQ(Text("cmbBoard"), shown);
    EXPECT_EQ(Shown("fraStats"), HasCards(session.board.hands)) << shown;
    const QString head = Find<QTableWidget>("flexBids")->horizontalHeaderItem(0)->text();
    EXPECT_EQ(FromQt(head), west) << shown;
  }
}

TEST_F(MainWindowTest, RefusesCharactersInALibraryNameAndCreatesTheLibrary) {
  Open();
  EXPECT_FALSE(Enabled("cmdChange"));
  Type("cmbLibs", " My.L/i b");
  EXPECT_EQ(Text("cmbLibs"), "MyLi b");
  EXPECT_EQ(host.beeps, 3);
  EXPECT_TRUE(Enabled("cmdChange"));
  Type("cmbLibs", "TEACHING");
  EXPECT_FALSE(Enabled("cmdChange")) << "that library is there, in another letter case";
  FocusKey("Esc");
  EXPECT_EQ(Text("cmbLibs"), "Club");

  TypeAndEnter("cmbLibs", "TEACHING");
  EXPECT_EQ(Text("cmbLibs") + ", " + session.LibraryName(), "Teaching, Teaching");
  Type("cmbLibs", "tEACHING");
  Find<QWidget>("cmbBoard")->setFocus();
  EXPECT_EQ(Text("cmbLibs"), "Teaching") << "nothing is left standing";

  Type("cmbLibs", "Autumn");
  Click("cmdChange");
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "Autumn"));
  EXPECT_EQ(Text("cmbLibs"), "Autumn");
  EXPECT_FALSE(Enabled("cmdChange"));
}

TEST_F(MainWindowTest, LowersTheHighestBoardOnlyAfterYes) {
  Open();
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    host.ExpectAskWith("Please confirm that you wish to remove hands 21 to 24", answer);
    TypeAndEnter("cmbMaxBoard", "20");
    const int left = answer == Answer::Yes ? 20 : 24;
    EXPECT_EQ(Text("cmbMaxBoard"), std::to_string(left));
    EXPECT_EQ(Find<QComboBox>("cmbBoard")->count(), left);
  }
  EXPECT_EQ(Text("lblLibrary"), "2 boards in library");
}

TEST_F(MainWindowTest, AsksAboutUnsavedChangesBeforeABoardIsLeft) {
  Open();
  Key("Ctrl+Shift+Del");
  EXPECT_TRUE(Enabled("cmdSave") && window->isWindowModified());
  for (const Answer answer : {Answer::Cancel, Answer::No}) {
    const bool left = answer == Answer::No;
    host.ExpectAsk("Do you want to save changes to board 1 in library Club?", "Save changes?",
                   answer);
    PressKey(Find<QWidget>("cmbBoard"), "Down");
    EXPECT_EQ(Text("cmbBoard"), left ? "Board 2 (empty)" : "Board 1") << "put back when refused";
    session.board.handChanged = true;
    host.ExpectAskWith("Do you want to save changes", answer);
    EXPECT_EQ(window->close(), left);
  }
}

TEST_F(MainWindowTest, AnImportShowsProgressTakesNoCommandsAndCanBeCancelled) {
  const auto file = folder.Path() / "nine.pbn";
  test::WriteFile(file, test::PbnText({1, 2, 3, 4, 5, 6, 7, 8, 9}));
  SelectLibrary(session, "Teaching");
  Open();
  const char* names = "fraProgress picTable cmbLibs";
  const std::function<void()> cancels[] = {
      [this] { Click("cmdCancelImport"); },
      [this] { EXPECT_FALSE(window->close()); },
      [this] { Key("Esc"); },
  };
  for (const auto& cancel : cancels) {
    host.steps.clear();
    host.onStep = [&] {
      EXPECT_EQ(ShownOf(names), "fraProgress cmbLibs");
      EXPECT_FALSE(Enabled("cmbLibs"));
      Key("Ctrl+Shift+Del");  // not carried out
      if (host.steps.size() == 4) cancel();
    };
    if (&cancel != &cancels[0]) host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTell("3 hands (1-3) have been saved to the library - Teaching");
    host.Choose(file);
    Find<QAction>("mnuImport")->trigger();
    EXPECT_EQ(host.steps.size(), 4U);
    EXPECT_EQ(ShownOf(names), "picTable cmbLibs");
    EXPECT_TRUE(Enabled("cmbLibs"));
    EXPECT_FALSE(session.board.handChanged);
    EXPECT_EQ(Text("lblLibrary"), "3 boards in library");
  }
}

TEST_F(MainWindowTest, OptionsTakeEffectOnlyWithOK) {
  Open();
  Settings expected = session.settings;
  for (const std::string button : {"cmdCancel", "cmdOK"}) {
    Expect([&](const Driven& form) {
      form.Find<QCheckBox>("ShowStats")->setChecked(false);
      form.Find<QComboBox>("CardDesign")->setCurrentIndex(2);
      form.Press(button.c_str());
    });
    Key("Ctrl+,");
    const bool taken = button == "cmdOK";
    if (taken) {
      expected.showStats = false;
      expected.cardDesign = CardDesign::LargeIndex;
    }
    EXPECT_EQ(Shown("fraStats"), !taken);
    EXPECT_EQ(store.Read("Tricklet", "CardDesign").has_value(), taken);
    EXPECT_EQ(session.settings, expected) << "fonts and all else come out as they went in";
  }
}

TEST_F(MainWindowTest, TablesFollowTheColours) {
  session.board.makeableValid = true;
  Open();
  test::SetAuction(session.board, "1NT Pass Pass Pass");
  for (const char* key : {"Ctrl+Alt+3", "Ctrl+Alt+2", "Ctrl+Alt+3", "Ctrl+Alt+1"}) {
    Key(key);
    QCoreApplication::processEvents();
    const auto* table = Find<QTableWidget>("lvwMake");
    const QImage head = table->horizontalHeader()->grab().toImage();
    EXPECT_EQ(head.pixelColor(2, 2), table->palette().color(QPalette::Base)) << key;
    for (const char* name : {"lblStatus", "lblKeys"}) {
      EXPECT_EQ(Find<QWidget>(name)->palette().color(QPalette::PlaceholderText),
                window->palette().color(QPalette::PlaceholderText))
          << name << key;
    }
    const auto* grid = Find<QTableWidget>("flexBids");
    const QTableWidgetItem* pass = grid->item(1, 0);
    ASSERT_NE(pass, nullptr);
    EXPECT_EQ(pass->foreground(), grid->palette().brush(QPalette::PlaceholderText)) << key;
  }
}

TEST_F(MainWindowTest, PresentationShowsTheTableAloneAndItsKeysStillWork) {
  Open();
  const char* names = "cmbLibs flexBids lblStatus picTable";
  const std::pair<const char*, const char*> steps[] = {{"F11", "picTable"},
                                                       {"PgDown", "picTable"},
                                                       {"Shift+F11", "flexBids picTable"},
                                                       {"Shift+F11", "picTable"},
                                                       {"Esc", names}};
  for (const auto& [key, shown] : steps) {
    Key(key);
    EXPECT_EQ(ShownOf(names), shown) << key;
    EXPECT_EQ(window->isFullScreen(), shown != names) << key;
    EXPECT_EQ(window->menuBar()->isVisible(), shown == names) << key;
  }
  EXPECT_EQ(session.board.boardNumber, 2);
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
      return LayOutTable(felt, session.board.hands, {}).cardSize;
    };
    if (before == 0) before = right;
    EXPECT_EQ(cards(table), cards(table + QSizeF(right - before, 0))) << size.width();
    EXPECT_EQ(right > before, size.width() >= 1600) << size.width();
  }
}

TEST_F(MainWindowTest, CopyInATextBoxLeavesTheBoardAlone) {
  Open();
  Type("cmbLibs", "Autumn");
  FocusKey("Ctrl+C");
  EXPECT_EQ(session.copyBoard, 0);
  Find<QWidget>("picTable")->setFocus();
  FocusKey("Ctrl+C");
  EXPECT_EQ(session.copyBoard, 1);
}

}  // namespace
}  // namespace tricklet::ui
