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
  int Count(const char* name) const { return Find<QComboBox>(name)->count(); }
  test::TempFolder other;
};

TEST_F(LibraryCommands, EveryCommandOfTheMenuHasAKeyAndALetterOfItsOwn) {
  Open();
  std::set<QString> keys;
  QList<QList<QAction*>> menus{window->menuBar()->actions()};
  for (const QAction* title : menus.front()) menus.append(title->menu()->actions());
  for (const QList<QAction*>& menu : menus) {
    std::set<QChar> letters;
    for (const QAction* action : menu) {
      if (action->isSeparator()) continue;
      const QString text = action->text();
      ASSERT_TRUE(text.contains(u'&')) << FromQt(text);
      EXPECT_TRUE(letters.insert(text.at(text.indexOf(u'&') + 1).toUpper()).second) << FromQt(text);
      EXPECT_EQ(action->shortcuts().isEmpty(), action->menu() != nullptr) << FromQt(text);
      for (const QKeySequence& key : action->shortcuts()) {
        EXPECT_TRUE(keys.insert(key.toString()).second) << FromQt(key.toString());
      }
    }
    EXPECT_FALSE(letters.empty());
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
    PressKey(form.top, "Return");
  });
  EXPECT_EQ(host.recycled, std::vector<std::string>{"R & D"});
  EXPECT_EQ(Count("cmbLibs"), 2);
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
    host.Choose(other.Path());
    host.ExpectAskWith("Do you want to copy all your libraries", Answer::Yes);
    if (cancel) host.ExpectTell("Copying cancelled");
    Key("Shift+F8");
    EXPECT_FALSE(Shown("fraProgress"));
    EXPECT_EQ(fs::exists(other.Path() / "Club" / "024.txt"), !cancel);
    EXPECT_EQ(Text("lblStatus"), cancel ? "Ready" : "The libraries have been exported");
  }
  host.onStep = [&] { EXPECT_FALSE(Shown("lblWait")); };
  host.BeginWork();
  host.Step("Importing board 1", 0, 1);
  host.EndWork();
}

TEST_F(LibraryCommands, TheOtherCommandsReachTheEngine) {
  test::WriteFile(other.Path() / "New" / "002.txt", test::OneSuitEachText());
  test::WriteFile(other.Path() / "More" / "Third" / "002.txt", test::OneSuitEachText());
  const fs::path moved = other.Path() / "moved";
  Open();
  host.Choose(other.Path() / "New");
  Key("F7");
  EXPECT_EQ(Text("cmbLibs"), "New");
  EXPECT_EQ(Count("cmbBoard"), 2);

  for (const char* name : {"New", "Tuesday"}) {  // it begins with the name as it is
    WithDialog("F2", [&](const Driven& form) {
      EXPECT_EQ(form.Text("txtLibName"), session.LibraryName());
      form.TypeAndEnter("txtLibName", name);
    });
    EXPECT_EQ(session.LibraryName(), name);
  }

  host.ExpectAskWith("containing the libraries to import", Answer::OK);
  host.Choose(other.Path() / "More");
  host.ExpectAskWith("1 library will be copied from", Answer::OK);
  host.ExpectTell("1 library has been copied");
  Key("Shift+F7");
  EXPECT_EQ(Count("cmbLibs"), 4);

  host.ExpectAskWith("to copy your library (Tuesday) to", Answer::OK);
  host.Choose(moved);
  Key("F8");
  EXPECT_TRUE(fs::exists(moved / "Tuesday" / "002.txt"));

  host.ExpectAskWith("Your library of hands is currently stored in the folder:", Answer::OK);
  host.Choose(moved);
  host.ExpectAskWith("Do you want to copy all your libraries", Answer::No);
  Key("Shift+F6");
  EXPECT_EQ(Count("cmbLibs"), 1);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(moved));
}

}  // namespace
}  // namespace tricklet::ui
