// The update check as a person meets it: at the start, in the options and from the help menu.
#include "ui/updates/updates.h"

#include <QLabel>

#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmStart.h"

namespace tricklet::ui {
namespace {

using std::chrono::milliseconds;

constexpr const char* kAddress = "https://example.org/newest";
constexpr const char* kNewer =
    "version=99.1\npage=https://example.org/get\nnotes=<b>Faster</b>\x1B[2J deals";
constexpr const char* kOlder = "version=0.0.1\npage=https://example.org/get\n";

class UpdatesTest : public WindowTest {
 protected:
  UpdatesTest() { session.settings.updateAddress = kAddress; }

  QAction* Action(const char* name) const { return Find<QAction>(name); }
  std::string NewVersion() const {
    return Action("mnuNewVersion")->isVisible() ? FromQt(Action("mnuNewVersion")->text()) : "";
  }
};

TEST_F(UpdatesTest, TheHelpMenuAsksAndTellsWhatCameOfIt) {
  Open();
  EXPECT_TRUE(fetcher->asked.empty());
  const std::string running = RunningVersion();
  const std::tuple<std::function<void()>, std::string, std::string> cases[] = {
      {[this] { fetcher->Answer(kOlder); }, "This is the newest version, " + running, ""},
      {[this] { fetcher->Answer("hello"); }, "The answer could not be understood", ""},
      {[this] { fetcher->Fail("no\nway"); }, "There was no answer: no way", ""},
      {[this] { fetcher->Answer(kNewer); }, "Version 99.1 is there; this is version " + running,
       "&Version 99.1 is there..."},
      {[this] { fetcher->Fail("late"); }, "There was no answer: late", "&Version 99.1 is there..."},
      {[this] { fetcher->Answer(kOlder); }, "This is the newest version, " + running, ""},
  };
  for (const auto& [answer, told, offered] : cases) {
    WithDialog("Ctrl+Shift+F1", [&, &given = answer, &text = told](const Driven& form) {
      EXPECT_EQ(form.Text("lblUpdate"), "Looking for a newer version");
      EXPECT_FALSE(form.Shown("cmdOpenPage"));
      given();
      EXPECT_EQ(form.Text("lblUpdate"), text);
      const bool newer = text.starts_with("Version");
      EXPECT_EQ(form.ShownOf("lblNotes cmdOpenPage"), newer ? "lblNotes cmdOpenPage" : "");
      EXPECT_EQ(form.Text("lblNotes"), newer ? "<b>Faster</b> [2J deals" : "");
      form.Press("cmdClose");
    });
    EXPECT_EQ(NewVersion(), offered) << told;
    EXPECT_EQ(Shown("lblNewVersion"), !offered.empty()) << told;
  }
  EXPECT_EQ(fetcher->asked, std::vector<std::string>(std::size(cases), kAddress));
  EXPECT_TRUE(host.opened.empty());
}

TEST_F(UpdatesTest, ThePageOpensFromTheDialogAndFromTheMenu) {
  Open();
  Key("Ctrl+Alt+U");
  EXPECT_TRUE(host.opened.empty()) << "there is none yet";
  WithDialog("Ctrl+Shift+F1", [&](const Driven& form) {
    fetcher->Answer(kNewer);
    form.Press("cmdOpenPage");
  });
  Key("Ctrl+Alt+U");
  EXPECT_EQ(host.opened, std::vector<std::string>(2, "https://example.org/get"));
}

TEST_F(UpdatesTest, AnAnswerAfterTheDialogWasClosedIsShownInTheWindow) {
  Open();
  WithDialog("Ctrl+Shift+F1", [](const Driven& form) { form.Press("cmdClose"); });
  EXPECT_FALSE(Shown("lblNewVersion"));
  fetcher->Answer(kNewer);
  EXPECT_EQ(Text("lblNewVersion"), "Version 99.1 is there: see the Help menu");
  EXPECT_TRUE(Shown("lblNewVersion"));
}

TEST_F(UpdatesTest, WithoutAnAddressNothingIsAskedAndTheReasonIsSaid) {
  for (const auto& [address, reason] :
       {std::pair("", "No address is set for the update check"),
        std::pair("http://example.org", "http://example.org cannot be asked for updates")}) {
    session.settings.updateAddress = address;
    Open();
    EXPECT_FALSE(Enabled("mnuCheckForUpdates"));
    EXPECT_NE(FromQt(Action("mnuCheckForUpdates")->toolTip()).find(reason), std::string::npos);
    Key("Ctrl+Shift+F1");
    frmStart start(session, updates);
    const Driven form{&start};
    EXPECT_EQ(form.Text("lblUpdate").find(reason), 0U);
    EXPECT_EQ(form.Text("lblNotes").empty(), !session.settings.updateAddress.empty());
  }
  EXPECT_TRUE(fetcher->asked.empty());
}

TEST_F(UpdatesTest, TheOptionIsOfferedOnlyWhereItDoesSomething) {
  const Updates leftOut(session.settings, nullptr);
  for (const QString& obstacle : {leftOut.Obstacle(), updates.Obstacle()}) {
    frmOptions options(session, obstacle, nullptr);
    const Driven form{&options};
    EXPECT_EQ(form.Enabled("AutoUpdate"), obstacle.isEmpty());
    EXPECT_EQ(options.findChild<QLabel*>(QStringLiteral("lblAutoUpdate")) == nullptr,
              obstacle.isEmpty());
    EXPECT_EQ(options.Chosen(), session.settings);
  }
  EXPECT_EQ(FromQt(leftOut.StartText()), "This program is updated together with the system");
  session.settings.autoUpdate = false;
  EXPECT_EQ(FromQt(leftOut.StartText()), "Option to check for updates is switched off");
}

TEST_F(UpdatesTest, AProgramWithoutTheCheckHasNoCommandForIt) {
  Updates leftOut(session.settings, nullptr);
  const MainWindow other(session, leftOut);
  for (const char* name : {"mnuCheckForUpdates", "mnuNewVersion"}) {
    EXPECT_FALSE(other.findChild<QAction*>(QString::fromLatin1(name))->isVisible()) << name;
  }
}

/// Launch is pressed before the answer: the start waits for it, but not for ever.
TEST_F(UpdatesTest, TheStartWaitsForTheAnswerOrForItsPatience) {
  const std::tuple<const char*, milliseconds, const char*, const char*> cases[] = {
      {kNewer, milliseconds(60000), "Version 99.1 is there; this is version ",
       "<b>Faster</b> [2J deals"},
      {kOlder, milliseconds(60000), "", ""},
      {nullptr, milliseconds(1), "Looking for a newer version", ""},
  };
  for (const auto& [answer, patience, text, notes] : cases) {
    frmStart start(session, updates, patience);
    const Driven form{&start};
    start.show();
    EXPECT_EQ(form.Text("lblUpdate"), "Looking for a newer version");
    form.Press("cmdLaunch");
    EXPECT_TRUE(start.isVisible()) << text;
    if (answer != nullptr) fetcher->Answer(answer);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !start.isVisible(); })) << text;
    EXPECT_EQ(start.result(), QDialog::Accepted);
    EXPECT_EQ(form.Text("lblUpdate").substr(0, 39), text);
    EXPECT_EQ(form.Text("lblNotes"), notes);
  }
}

TEST_F(UpdatesTest, TheStartAsksOnlyWhereTheOptionIsOn) {
  session.settings.autoUpdate = false;
  frmStart start(session, updates);
  const Driven form{&start};
  start.show();
  EXPECT_EQ(form.Text("lblUpdate"), "Option to check for updates is switched off");
  form.Press("cmdLaunch");
  EXPECT_FALSE(start.isVisible());
  EXPECT_TRUE(fetcher->asked.empty());
}

}  // namespace
}  // namespace tricklet::ui
