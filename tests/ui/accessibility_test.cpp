// Every window and dialog, as a screen reader and the keyboard find it.
#include "tests/ui/accessibility.h"

#include <cstring>

#include <QTabWidget>

#include "tests/ui/window_fixture.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmBidding.h"
#include "ui/dialogs/frmCopyLib.h"
#include "ui/dialogs/frmDeleteLib.h"
#include "ui/dialogs/frmExport.h"
#include "ui/dialogs/frmGenerate.h"
#include "ui/dialogs/frmImport.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmPreview.h"
#include "ui/dialogs/frmPrint.h"
#include "ui/dialogs/frmPublish.h"
#include "ui/dialogs/frmStart.h"
#include "ui/dialogs/frmSwap.h"
#include "ui/dialogs/frmUpdate.h"

namespace tricklet::ui {
namespace {

class AccessibilityTest : public WindowTest {
 protected:
  static std::string Joined(const QStringList& flaws) { return FromQt(flaws.join(u'\n')); }

  void ExpectNames(const char* mode) const {
    EXPECT_EQ(Joined(test::UnnamedIn(*window)), "") << mode;
    ASSERT_NE(window->focusWidget(), nullptr) << mode;
    EXPECT_TRUE(window->focusWidget()->isVisible()) << "the focus is lost: " << mode;
  }

  static void ExpectSound(QDialog& dialog) {
    const std::string name = FromQt(dialog.objectName());
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog)) << name;
    EXPECT_NE(dialog.windowTitle(), QString()) << name;
    auto* tabs = dialog.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
      if (tabs != nullptr) tabs->setCurrentIndex(page);
      EXPECT_EQ(Joined(test::UnnamedIn(dialog)), "") << name << page;
      EXPECT_EQ(Joined(test::FlawsOfCaptions(dialog)), "") << name << page;
      EXPECT_EQ(Joined(test::MissedByTab(dialog)), "") << name << page;
    }
    dialog.hide();
  }
};

TEST_F(AccessibilityTest, EveryControlOfTheWindowHasANameInEveryMode) {
  Open();
  ExpectNames("between plays");
  Key("Ctrl+H");
  ExpectNames("editing");
  Key("Ctrl+H");
  Bid("1S P P P");
  Key("F9");
  ExpectNames("in play");
  Key("F9");
  Key("F11");
  ExpectNames("presenting");
  Key("Shift+F11");
  ExpectNames("presenting with the panes");
}

TEST_F(AccessibilityTest, TheTableIsDescribedByWhatHasJustHappenedFirst) {
  Open();
  Bid("1S P P P");
  const std::pair<const char*, const char*> steps[] = {
      {"F9", "1S by North. East to play. Board 1."},
      {"H", "1S by North. East to play. Board 1."},
      {"A", "East plays the ace of hearts. South to play. Board 1."},
      {"Ctrl+Z", "East takes back the ace of hearts. East to play. Board 1."},
      {"Ctrl+L", "NS: 0. EW: 13. 1S-7 by North : EW +350. Board 1."},
      {"Ctrl+Z", "NS: 0. EW: 0. East to play. Board 1."},
      {"F9", "The play has ended. Board 1."},
      {"1", "North is hidden. Board 1."},
      {"PgDown", "Board 2. Dealer East."},
  };
  for (const auto& [key, told] : steps) {
    FocusKey(key);
    const std::string description = FromQt(Table()->accessibleDescription());
    EXPECT_EQ(description.substr(0, std::strlen(told)), told) << key;
  }
}

TEST_F(AccessibilityTest, DialogsAreCompleteByKeyboard) {
  PlayControl play(session, nullptr);
  EditControl edit(session, play);
  session.board.hands = test::OneSuitEach();
  updates.Ask();
  std::filesystem::path sheets;
  ImportLook look;
  look.partNames = [](const std::string& library, int parts) {
    return std::vector<std::string>(static_cast<std::size_t>(parts) + 1, library);
  };
  look.choices.numbers = Numbering::From;
  look.choices.newLibrary = "New";
  look.contents.unread.emplace_back();
  look.contents.sections.resize(2);
  FoundGame& game = look.contents.sections[0].games.emplace_back();
  game.number = 1;
  game.dealer = Seat::North;
  game.records = {""};
  game.board.hands = test::OneSuitEach();
  const std::function<std::unique_ptr<QDialog>()> dialogs[] = {
      [&] { return std::make_unique<frmBidding>(session, nullptr); },
      [&] { return std::make_unique<frmCopyLib>(session, nullptr); },
      [&] { return std::make_unique<frmDeleteLib>(session, session.libraryNames, nullptr); },
      [&] { return std::make_unique<frmExport>(session, nullptr); },
      [&] { return std::make_unique<frmGenerate>(session, GenerateChoices(), nullptr); },
      [&] { return std::make_unique<frmImport>(session, look, nullptr); },
      [&] { return std::make_unique<frmOptions>(session, QString(), nullptr); },
      [&] { return std::make_unique<frmPreview>(session.board, session.settings, nullptr); },
      [&] {
        auto print = std::make_unique<frmPrint>(session, sheets, nullptr);
        EXPECT_TRUE(print->Gather());
        return print;
      },
      [&] { return std::make_unique<frmPublish>(session, PublishChoices(), nullptr); },
      [&] { return std::make_unique<frmStart>(session, updates); },
      [&] { return std::make_unique<frmSwap>(session, edit, nullptr); },
      [&] { return std::make_unique<frmUpdate>(updates, nullptr); },
  };
  for (const auto& make : dialogs) ExpectSound(*make());
}

}  // namespace
}  // namespace tricklet::ui
