// The commands for whole libraries in the window, and their dialogs.
#include <set>

#include <QMenu>
#include <QMenuBar>

#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

namespace fs = std::filesystem;

class LibraryCommands : public WindowTest {
 protected:
  /// Gives the command by its key and works the dialog that it opens.
  void WithDialog(const char* key, const std::function<void(const Driven&)>& work) {
    Expect(work);
    Key(key);
    EXPECT_EQ(dialogsLeft, 0);
  }
  int Count(const char* name) const { return Find<QComboBox>(name)->count(); }
  fs::path Other() const { return other.Path(); }

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
  WithDialog("Shift+F2", [this](const Driven& form) {
    EXPECT_EQ(form.Text("lblCopy"), "Copy library Club");
    EXPECT_FALSE(form.Enabled("cmdOK"));
    form.Type("txtLibName", " te/a:c*h\"i<n>|\\.g");
    EXPECT_EQ(host.beeps, 10);
    host.ExpectTell("teaching already exists\nPlease choose a different name");
    PressKey(form.top, "Return");
    EXPECT_TRUE(form.top->isVisible());
    QTest::keyClicks(form.Find<QLineEdit>("txtLibName"), QStringLiteral("A & B"));
    form.Click("cmdOK");
  });
  EXPECT_EQ(session.LibraryName(), "Club");
  EXPECT_EQ(Count("cmbLibs"), 3);
  EXPECT_TRUE(fs::exists(folder.Path() / "A & B" / "024.txt"));
  EXPECT_EQ(Text("lblStatus"), "The library has been copied to A & B");
}

TEST_F(LibraryCommands, RecyclesTheChosenLibraryButNotTheCurrentOne) {
  fs::create_directories(folder.Path() / "R & D");
  Open();
  WithDialog("Ctrl+F2", [this](const Driven& form) {
    auto* libraries = form.Find<QComboBox>("cmbLibs");
    EXPECT_EQ(libraries->count(), 3);
    EXPECT_FALSE(form.Enabled("cmdOK")) << "nothing is chosen yet";
    PressKey(form.top, "Return");
    EXPECT_TRUE(host.recycled.empty());
    libraries->setCurrentText(QStringLiteral("Club"));
    EXPECT_EQ(form.Text("cmdOK"), "Recycle Club");
    host.ExpectTell("Cannot delete the library currently in use");
    PressKey(form.top, "Return");
    EXPECT_TRUE(form.top->isVisible());
    libraries->setCurrentText(QStringLiteral("R & D"));
    EXPECT_EQ(form.Text("cmdOK"), "Recycle R && D") << "no key of the button";
    host.hasRecycleBin = false;
    host.ExpectTell("Unable to delete the library R & D");
    PressKey(form.top, "Return");
    EXPECT_TRUE(form.top->isVisible());
    host.hasRecycleBin = true;
    PressKey(form.top, "Return");
  });
  EXPECT_EQ(host.recycled, std::vector<std::string>{"R & D"});
  EXPECT_EQ(Count("cmbLibs"), 2);
  EXPECT_EQ(Text("cmbLibs"), "Club");

  fs::remove_all(folder.Path());
  host.ExpectTell("There are no libraries in " + session.settings.filelocation);
  Key("Ctrl+F2");
}

TEST_F(LibraryCommands, RenamingStaysUntilANameIsTaken) {
  Open();
  WithDialog("F2", [this](const Driven& form) {
    EXPECT_EQ(form.Text("txtLibName"), "Club");
    form.Type("txtLibName", "teaching");
    host.ExpectTell("teaching already exists\nPlease choose a different name");
    PressKey(form.top, "Return");
    EXPECT_TRUE(form.top->isVisible());
    QTest::keyClicks(form.Find<QLineEdit>("txtLibName"), QStringLiteral("Tuesday"));
    PressKey(form.top, "Return");
  });
  EXPECT_TRUE(fs::exists(folder.Path() / "Tuesday" / "024.txt"));
  WithDialog("F2", [](const Driven& form) { PressKey(form.top, "Return"); });  // as it is
  EXPECT_EQ(session.LibraryName(), "Tuesday");
}

TEST_F(LibraryCommands, CopyingShowsThatItIsWaitedForAndCanBeCancelled) {
  Open();
  EXPECT_FALSE(Shown("lblWait"));
  for (const bool cancel : {true, false}) {
    host.steps.clear();
    host.onStep = [&, cancel] {
      EXPECT_TRUE(Shown("lblWait"));
      if (cancel && host.steps.size() == 4) Click("cmdCancelImport");
    };
    host.ExpectAskWith("to copy your libraries to", Answer::OK);
    host.Choose(Other());
    host.ExpectAskWith("Do you want to copy all your libraries", Answer::Yes);
    if (cancel) host.ExpectTell("Copying cancelled");
    Key("Shift+F8");
    EXPECT_FALSE(Shown("fraProgress"));
    EXPECT_EQ(fs::exists(Other() / "Club" / "024.txt"), !cancel);
    EXPECT_EQ(Text("lblStatus"), cancel ? "Ready" : "The libraries have been exported");
  }
  host.onStep = [&] { EXPECT_FALSE(Shown("lblWait")); };
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
  Key("F7");
  EXPECT_EQ(Text("cmbLibs"), "New");
  EXPECT_EQ(Count("cmbBoard"), 2);

  host.ExpectAskWith("containing the libraries to import", Answer::OK);
  host.Choose(Other() / "More");
  host.ExpectAskWith("1 library will be copied from", Answer::OK);
  host.ExpectTell("1 library has been copied");
  Key("Shift+F7");
  EXPECT_EQ(Count("cmbLibs"), 4);

  host.ExpectAskWith("to copy your library (New) to", Answer::OK);
  host.Choose(moved);
  Key("F8");
  EXPECT_TRUE(fs::exists(moved / "New" / "002.txt"));

  host.ExpectAskWith("Your library of hands is currently stored in the folder:", Answer::OK);
  host.Choose(moved);
  host.ExpectAskWith("Do you want to copy all your libraries", Answer::No);
  Key("Shift+F6");
  EXPECT_EQ(Count("cmbLibs"), 1);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(moved));
}

}  // namespace
}  // namespace tricklet::ui
