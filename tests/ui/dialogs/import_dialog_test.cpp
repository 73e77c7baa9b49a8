// The look at a file before it is imported.
#include <QCheckBox>
#include <QSpinBox>
#include <QTableView>

#include "tests/support/hands.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmImport.h"

namespace tricklet::ui {
namespace {

/// A game of the number (0: none) with the deal number `deal`, no two of which are equal.
FoundGame GameOf(int number, int deal) {
  FoundGame game;
  game.label = number == 0 ? "" : std::to_string(number);
  game.number = number;
  game.line = 10 * deal;
  for (int card = 0; card < kCardsInPack; ++card) {
    AddCard(game.board.hands, Card::FromIndex((card + deal) % kCardsInPack),
            static_cast<Seat>(card / kCardsInHand));
  }
  return game;
}

/// Library Club holds board 2. The file has two boards 2, one without a number, and an unread line.
class ImportDialogTest : public test::LibraryTest {
 protected:
  ImportDialogTest() {
    look.partNames = [](const std::string& library, int parts) {
      return std::vector<std::string>(static_cast<std::size_t>(parts) + 1, library);
    };
    PutBoard(2);
    GetLibraryNames(session);
    CountHands(session);
    look.file = "league-final.pbn";
    look.library = "Club";
    look.suggestedLibrary = "league-final";
    look.there = session.library.boardPresent;
    look.contents.format = "PBN 2.1";
    look.contents.encoding = "UTF-8";
    auto& games = look.contents.sections.emplace_back().games;
    games = {GameOf(1, 1), GameOf(2, 2), GameOf(2, 3), GameOf(0, 4)};
  }

  void Open() {
    dialog = std::make_unique<frmImport>(session, look, nullptr);
    form.top = dialog.get();
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  QTableView* Grid() const { return form.Find<QTableView>("grdBoards"); }
  void Pick(const char* name, int item) const { form.Find<QComboBox>(name)->setCurrentIndex(item); }
  /// The column "Stored as", "-" for what is not stored.
  std::string Numbers() const {
    std::string numbers;
    for (int row = 0; row < Grid()->model()->rowCount(); ++row) {
      const QString number = Grid()->model()->index(row, 1).data().toString();
      numbers += (row == 0 ? "" : " ") + (number.isEmpty() ? "-" : FromQt(number));
    }
    return numbers;
  }

  ImportLook look;
  std::unique_ptr<frmImport> dialog;
  Driven form;
};

TEST_F(ImportDialogTest, EachChoiceChangesThePlanAndTheButton) {
  Open();
  EXPECT_EQ(form.Text("lblSummary"), "4 boards found, 4 can be stored \u00B7 PBN 2.1, UTF-8");
  EXPECT_EQ(Numbers() + " " + form.Text("cmdImport"), "1 2 3 4 I&mport 4 boards");
  const std::tuple<int, const char*, const char*> cases[] = {
      {0, "1 - 2 -", "I&mport 2 boards"},
      {1, "1 2 - -", "I&mport 2 boards"},
      {3, "7 8 9 10", "I&mport 4 boards"},
      {2, "1 2 3 4", "I&mport 4 boards"},
  };
  form.Find<QSpinBox>("spnFrom")->setValue(7);
  for (const auto& [numbers, stored, button] : cases) {
    Pick("cmbNumbers", numbers);
    EXPECT_EQ(form.Shown("spnFrom"), numbers == 3);
    EXPECT_EQ(Numbers(), stored);
    EXPECT_EQ(form.Text("cmdImport"), button);
  }
  EXPECT_EQ(dialog->Choices(), (ImportChoices{.from = 7, .unwanted = {}, .newLibrary = {}}));
}

TEST_F(ImportDialogTest, BoardsAreLeftOutByMouseAndKeys) {
  look.contents.unread = {{25, "", "[Deal", ""}};
  Open();
  EXPECT_EQ(Numbers(), "1 2 - 3 4");
  Grid()->selectRow(0);
  Grid()->selectionModel()->select(
      QItemSelection(Grid()->model()->index(1, 0), Grid()->model()->index(4, 3)),
      QItemSelectionModel::Select);
  Grid()->setFocus();
  Driven::FocusKey("Space");
  EXPECT_EQ(Numbers(), "- - - - -");
  EXPECT_FALSE(form.Enabled("cmdImport"));
  EXPECT_EQ(form.Text("lblObstacle"), "No board would be stored");
  EXPECT_FALSE(
      Grid()->model()->setData(Grid()->model()->index(2, 0), Qt::Checked, Qt::CheckStateRole))
      << "what cannot be read cannot be taken";
  EXPECT_TRUE(
      Grid()->model()->setData(Grid()->model()->index(3, 0), Qt::Checked, Qt::CheckStateRole));
  EXPECT_EQ(Numbers(), "- - - 2 -") << "nothing else has the number";
  EXPECT_EQ(form.Text("cmdImport"), "I&mport 1 board");
  EXPECT_EQ(dialog->Choices().unwanted, (std::set<std::size_t>{0, 1, 3}));
  EXPECT_EQ(Grid()->selectionModel()->selectedRows().size(), 5) << "what is chosen stays";
}

TEST_F(ImportDialogTest, ANewLibraryNeedsANameThatNoneHas) {
  look.choices.newLibrary = look.suggestedLibrary;
  Open();
  EXPECT_EQ(form.Text("txtLibName"), "league-final");
  const std::tuple<const char*, const char*> names[] = {
      {"club", "There is a library of this name"},
      {"con", "No library can have this name"},
      {"", "The new library needs a name"},
      {"Final", ""},
  };
  for (const auto& [name, obstacle] : names) {
    form.Find<QLineEdit>("txtLibName")->setText(QString::fromLatin1(name));
    EXPECT_EQ(form.Text("lblObstacle"), obstacle);
    EXPECT_EQ(form.Enabled("cmdImport"), *obstacle == '\0');
  }
  EXPECT_EQ(dialog->Choices().newLibrary, "Final");
  const QModelIndex what = Grid()->model()->index(1, 3);
  EXPECT_EQ(what.data().toString(), QStringLiteral("new"));
  Pick("cmbInto", 0);
  EXPECT_EQ(what.data().toString(), QStringLiteral("replaces the board that is there"));
  EXPECT_FALSE(form.Shown("txtLibName"));
  EXPECT_EQ(dialog->Choices().newLibrary, "");
  Driven::PressKey(dialog.get(), "Return");
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(ImportDialogTest, OffersOnlyWhatTheFileLeavesRoomFor) {
  Open();
  const char* rare = "cmbDealer cmbSection chkSkipBad chkResults";
  for (const std::string& name : test::Words(rare)) {
    EXPECT_EQ(dialog->findChild<QWidget*>(ToQt(name)), nullptr) << name;
  }
  FoundGame& game = look.contents.sections[0].games[0];
  game.dealer = Seat::West;
  game.records = {"a record"};
  look.contents.unread = {{15, "", "[Deal", ""}};
  look.contents.sections.push_back({"B", {GameOf(1, 9)}, {}});
  Open();
  EXPECT_EQ(form.EnabledOf(rare), rare);
  EXPECT_EQ(Numbers(), "4 - 2 3 5") << "board 4 has West as its dealer";
  Pick("cmbDealer", 0);
  EXPECT_EQ(Numbers(), "1 - 2 3 4");
  form.Find<QCheckBox>("chkSkipBad")->setChecked(false);
  EXPECT_EQ(Numbers(), "1 - - - -");
  form.Find<QCheckBox>("chkSkipBad")->setChecked(true);
  form.Find<QCheckBox>("chkResults")->setChecked(false);
  Pick("cmbSection", 1);
  EXPECT_EQ(Numbers(), "- 1") << "what cannot be read, and the board of the section";
  Pick("cmbSection", 2);
  EXPECT_FALSE(form.Enabled("cmbInto"));
  EXPECT_EQ(Grid()->model()->rowCount(), 6);
  EXPECT_EQ(dialog->Choices(), (ImportChoices{.dealer = DealerBy::Number,
                                              .keepResults = false,
                                              .section = kEverySection,
                                              .unwanted = {},
                                              .newLibrary = {}}));
}

}  // namespace
}  // namespace tricklet::ui
