// The commands for whole libraries in the window, and their dialogs.
#include <set>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmCopyLib.h"
#include "ui/dialogs/frmDeleteLib.h"

namespace tricklet::ui {
namespace {

namespace fs = std::filesystem;

class LibraryCommands : public WindowTest {
 protected:
  fs::path Other() const { return other.Path(); }

  template <class Widget>
  static Widget* In(const QWidget* dialog, const char* name) {
    auto* widget = dialog->findChild<Widget*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  /// Gives the command by its key and works the dialog that it opens.
  void WithDialog(Qt::Key key, Qt::KeyboardModifiers modifiers,
                  const std::function<void(QWidget*)>& work) {
    Expect<QDialog>([steps = work](QDialog& dialog) { steps(&dialog); });
    Key(key, modifiers);
    EXPECT_EQ(dialogsLeft, 0);
  }

  test::TempFolder other;
};

/// Those of one menu.
void ExpectLettersOfTheirOwn(const QList<QAction*>& actions) {
  std::set<QChar> letters;
  for (const QAction* action : actions) {
    if (action->isSeparator()) continue;
    const QString text = action->text();
    ASSERT_TRUE(text.contains(u'&')) << FromQt(text);
    EXPECT_TRUE(letters.insert(text.at(text.indexOf(u'&') + 1).toUpper()).second) << FromQt(text);
  }
  EXPECT_FALSE(letters.empty());
}

TEST_F(LibraryCommands, EveryCommandOfTheMenuHasAKeyAndALetterOfItsOwn) {
  Open();
  std::set<QString> keys;
  for (const QAction* action : window->findChildren<QAction*>()) {
    if (!action->objectName().startsWith(QStringLiteral("mnu"))) continue;
    ASSERT_FALSE(action->shortcuts().isEmpty()) << FromQt(action->objectName());
    for (const QKeySequence& key : action->shortcuts()) {
      EXPECT_TRUE(keys.insert(key.toString()).second) << FromQt(key.toString());
    }
  }
  ExpectLettersOfTheirOwn(window->menuBar()->actions());
  for (const QAction* title : window->menuBar()->actions()) {
    ExpectLettersOfTheirOwn(title->menu()->actions());
  }
}

TEST_F(LibraryCommands, CopiesUnderANameThatTheBoxLetsPass) {
  Open();
  WithDialog(Qt::Key_F2, Qt::ShiftModifier, [this](QWidget* dialog) {
    EXPECT_EQ(In<QLabel>(dialog, "lblCopy")->text(), QStringLiteral("Copy library Club"));
    const auto* ok = In<QPushButton>(dialog, "cmdOK");
    EXPECT_FALSE(ok->isEnabled());
    QTest::keyClicks(In<QLineEdit>(dialog, "txtLibName"), QStringLiteral(" te/a:c*h\"i<n>|\\.g"));
    EXPECT_EQ(host.beeps, 10);
    host.ExpectTell("teaching already exists\nPlease choose a different name");
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClicks(In<QLineEdit>(dialog, "txtLibName"), QStringLiteral("A & B"));
    QTest::mouseClick(In<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_EQ(session.LibraryName(), "Club");
  EXPECT_EQ(Find<QComboBox>("cmbLibs")->count(), 3);
  EXPECT_TRUE(fs::exists(folder.Path() / "A & B" / "024.txt"));
  EXPECT_EQ(Find<QLabel>("lblStatus")->text(),
            QStringLiteral("The library has been copied to A & B"));
}

TEST_F(LibraryCommands, RecyclesTheChosenLibraryButNotTheCurrentOne) {
  fs::create_directories(folder.Path() / "R & D");
  Open();
  WithDialog(Qt::Key_F2, Qt::ControlModifier, [this](QWidget* dialog) {
    auto* libraries = In<QComboBox>(dialog, "cmbLibs");
    const auto* ok = In<QPushButton>(dialog, "cmdOK");
    EXPECT_EQ(libraries->count(), 3);
    EXPECT_FALSE(ok->isEnabled()) << "nothing is chosen yet";
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_TRUE(host.recycled.empty());
    libraries->setCurrentText(QStringLiteral("Club"));
    EXPECT_EQ(ok->text(), QStringLiteral("Recycle Club"));
    host.ExpectTell("Cannot delete the library currently in use");
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    libraries->setCurrentText(QStringLiteral("R & D"));
    EXPECT_EQ(ok->text(), QStringLiteral("Recycle R && D")) << "no key of the button";
    host.hasRecycleBin = false;
    host.ExpectTell("Unable to delete the library R & D");
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    host.hasRecycleBin = true;
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_EQ(host.recycled, std::vector<std::string>{"R & D"});
  EXPECT_EQ(Find<QComboBox>("cmbLibs")->count(), 2);
  EXPECT_EQ(Find<QComboBox>("cmbLibs")->currentText(), QStringLiteral("Club"));

  fs::remove_all(folder.Path());
  host.ExpectTell("There are no libraries in " + session.settings.filelocation);
  Key(Qt::Key_F2, Qt::ControlModifier);
}

TEST_F(LibraryCommands, RenamingStaysUntilANameIsTaken) {
  Open();
  WithDialog(Qt::Key_F2, Qt::NoModifier, [this](QWidget* dialog) {
    auto* name = In<QLineEdit>(dialog, "txtLibName");
    EXPECT_EQ(name->text(), QStringLiteral("Club"));
    name->setText(QStringLiteral("teaching"));
    host.ExpectTell("teaching already exists\nPlease choose a different name");
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClicks(name, QStringLiteral("Tuesday"));
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_TRUE(fs::exists(folder.Path() / "Tuesday" / "024.txt"));
  WithDialog(Qt::Key_F2, Qt::NoModifier, [](QWidget* dialog) {
    QTest::keyClick(dialog, Qt::Key_Return);  // the name as it is
    EXPECT_FALSE(dialog->isVisible());
  });
  EXPECT_EQ(session.LibraryName(), "Tuesday");
}

TEST_F(LibraryCommands, CopyingShowsThatItIsWaitedForAndCanBeCancelled) {
  Open();
  EXPECT_FALSE(Find<QLabel>("lblWait")->isVisible());
  for (const bool cancel : {true, false}) {
    host.steps.clear();
    host.onStep = [&, cancel] {
      EXPECT_TRUE(Find<QLabel>("lblWait")->isVisible());
      if (cancel && host.steps.size() == 4) Click("cmdCancelImport");
    };
    host.ExpectAskWith("to copy your libraries to", Answer::OK);
    host.Choose(Other());
    host.ExpectAskWith("Do you want to copy all your libraries", Answer::Yes);
    if (cancel) host.ExpectTell("Copying cancelled");
    Key(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_FALSE(Shown("fraProgress"));
    EXPECT_EQ(fs::exists(Other() / "Club" / "024.txt"), !cancel);
    EXPECT_EQ(
        Find<QLabel>("lblStatus")->text(),
        cancel ? QStringLiteral("Ready") : QStringLiteral("The libraries have been exported"));
  }
  host.onStep = [&] { EXPECT_FALSE(Find<QLabel>("lblWait")->isVisible()); };
  host.BeginWork();
  host.Step("Importing board 1", 0, 1);
  host.EndWork();
}

TEST_F(LibraryCommands, TheOtherCommandsReachTheEngine) {
  test::WriteFile(Other() / "New" / "002.txt", test::OneSuitEachText());
  test::WriteFile(Other() / "More" / "Third" / "002.txt", test::OneSuitEachText());
  const fs::path moved = Other() / "moved";
  Open();
  host.Choose(Other() / "New");
  Key(Qt::Key_F7);
  EXPECT_EQ(Find<QComboBox>("cmbLibs")->currentText(), QStringLiteral("New"));
  EXPECT_EQ(Find<QComboBox>("cmbBoard")->count(), 2);

  host.ExpectAskWith("containing the libraries to import", Answer::OK);
  host.Choose(Other() / "More");
  host.ExpectAskWith("1 library will be copied from", Answer::OK);
  host.ExpectTell("1 library has been copied");
  Key(Qt::Key_F7, Qt::ShiftModifier);
  EXPECT_EQ(Find<QComboBox>("cmbLibs")->count(), 4);

  host.ExpectAskWith("to copy your library (New) to", Answer::OK);
  host.Choose(moved);
  Key(Qt::Key_F8);
  EXPECT_TRUE(fs::exists(moved / "New" / "002.txt"));

  host.ExpectAskWith("Your library of hands is currently stored in the folder:", Answer::OK);
  host.Choose(moved);
  host.ExpectAskWith("Do you want to copy all your libraries", Answer::No);
  Key(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(Find<QComboBox>("cmbLibs")->count(), 1);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(moved));
}

}  // namespace
}  // namespace tricklet::ui
