// The generator's dialogs in the real main window.
#include <set>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/statistics.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmGenerate.h"
#include "ui/dialogs/frmPreview.h"
#include "ui/table/descriptions.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

/// Names of controls, each with the text that is typed there; nullptr: it is clicked.
using Choices = std::vector<std::pair<const char*, const char*>>;

/// A dialog in the hands of a test.
struct Driven {
  QDialog& dialog;

  template <class Widget>
  Widget* Find(const char* name) const {
    auto* widget = dialog.findChild<Widget*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  void Click(const char* name) const { Find<QAbstractButton>(name)->click(); }
  void Type(const char* name, const char* text) const {
    QLineEdit* edit = Find<QComboBox>(name)->lineEdit();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(text));
  }
  void Choose(const Choices& choices) const {
    for (const auto& [name, text] : choices) text != nullptr ? Type(name, text) : Click(name);
  }
  void Press(Qt::Key key) const { QTest::keyClick(dialog.focusWidget(), key); }
  QString Text(const char* name) const { return Find<QComboBox>(name)->currentText(); }
  bool Checked(const char* name) const { return Find<QAbstractButton>(name)->isChecked(); }
  /// The name of the control that has the focus.
  std::string Focus() const {
    const QWidget* focus = dialog.focusWidget();
    if (qobject_cast<const QLineEdit*>(focus) != nullptr) focus = focus->parentWidget();
    return FromQt(focus->objectName());
  }
};

class GenerateWindowTest : public WindowTest {
 protected:
  GenerateWindowTest() { session.random = RandomSource(1); }

  /// Generates with what `work` chooses.
  template <class Work>
  void Generate(const Work& work) {
    Expect<frmGenerate>([steps = work](frmGenerate& dialog) { steps(Driven{dialog}); });
    Click("cmdGenerate");
    EXPECT_EQ(dialogsLeft, 0);
  }
  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    bool complete = false;
    EXPECT_TRUE(LoadHandBasic(session, board, complete)) << number;
    EXPECT_TRUE(complete) << number;
    return board;
  }
};

TEST_F(GenerateWindowTest, TheBoardsAreStoredAsChosen) {
  Open();
  Generate([](const Driven& form) {
    EXPECT_EQ(form.Focus(), "cmbBoards_0");
    form.Choose({{"cmbBoards_0", "30"}, {"cmbBoards_1", "37"}, {"optSpecify_1", nullptr}});
    form.Choose({{"optSuit1_2", nullptr}, {"cmbMinPoints_0", "15"}, {"cmbMaxPoints_0", "17"}});
    form.Choose({{"optType1_1", nullptr}, {"optHandType1_1", nullptr}, {"optSuit2_0", nullptr}});
    form.Choose({{"cmbMinCards_4", "5"}, {"cmbMaxCards_7", "3"}});
    form.Press(Qt::Key_Return);
  });
  for (int number = 30; number <= 37; ++number) {
    const Board board = Stored(number);
    const Statistics statistics = GetStats(board.hands);
    const Seat dealer = board.Dealer();
    const Seat partner = PartnerOf(dealer);
    EXPECT_TRUE(statistics.seatHcp[partner] >= 15 && statistics.seatHcp[partner] <= 17) << number;
    for (const Suit suit : kAllSuits) {
      const int highest = suit == Suit::Spades || suit == Suit::Hearts ? 4 : 5;
      EXPECT_GE(statistics.suitLength[partner][suit], 2) << number;
      EXPECT_LE(statistics.suitLength[partner][suit], highest) << number;
    }
    EXPECT_GE(statistics.suitLength[dealer][Suit::Spades], 5) << number;
    EXPECT_LE(statistics.suitLength[dealer][Suit::Clubs], 3) << number;
  }
  EXPECT_EQ(session.library.boardCount, 12);
  EXPECT_EQ(ShownBoard(), QStringLiteral("Board 30"));
  EXPECT_TRUE(window->isVisible() && Find<TableView>("picTable")->isVisible());
}

TEST_F(GenerateWindowTest, TheDialogRemembersWhatWasGeneratedLast) {
  Open();
  const Choices chosen{
      {"cmbBoards_1", "42"},     {"cmbBoards_0", "41"},   {"optnGen_0", nullptr},
      {"optSpecify_1", nullptr}, {"optSuit1_3", nullptr}, {"cmbMinPoints_0", "6"},
      {"cmbMaxCards_2", "5"},    {"optType1_1", nullptr}, {"optHandType1_1", nullptr}};
  const auto expectLast = [&](const Driven& form) {
    for (const auto& [name, text] : chosen) {
      EXPECT_TRUE(text != nullptr ? FromQt(form.Text(name)) == text : form.Checked(name)) << name;
    }
    EXPECT_EQ(form.Text("cmbHandType_0"), QStringLiteral("Weak 2"));
    EXPECT_FALSE(form.Checked("chkPreview"));
  };
  Generate([&](const Driven& form) {
    form.Find<QComboBox>("cmbHandType_0")->setCurrentIndex(1);
    form.Choose(chosen);
    form.Click("cmdGo");
  });
  Generate([&](const Driven& form) {
    expectLast(form);
    form.Type("cmbMinPoints_0", "9");
    form.Click("chkPreview");
    form.Press(Qt::Key_Escape);
  });
  Generate([&](const Driven& form) {
    expectLast(form);
    form.Click("cmdCancel");
  });
  EXPECT_EQ(session.library.boardCount, 6);
}

TEST_F(GenerateWindowTest, WhatDoesNotApplyIsDisabledAndEachTypeKeepsItsOption) {
  Open();
  Generate([](const Driven& form) {
    const auto enabled = [&](const char* name) { return form.Find<QWidget>(name)->isEnabled(); };
    const auto caption = [&](const char* name) {
      return FromQt(form.Find<QAbstractButton>(name)->text());
    };
    EXPECT_TRUE(enabled("cmbMinCards_0") && !enabled("cmbHandType_0"));
    form.Click("optType1_1");
    EXPECT_TRUE(!enabled("cmbMinCards_0") && enabled("cmbHandType_0") && enabled("cmbMinCards_4"));
    form.Click("optnGen_0");
    EXPECT_FALSE(enabled("cmbMinPoints_1") || enabled("optSuit2_0") || enabled("cmbMinCards_4"));

    form.Click("optHandType1_1");
    int type = 0;
    for (const std::string option : {"Allow a 5-card major", "Exclude 5-card majors", "", ""}) {
      form.Find<QComboBox>("cmbHandType_0")->setCurrentIndex(type);
      EXPECT_EQ(form.Find<QWidget>("fraOptions_0")->isVisible(), !option.empty()) << type;
      EXPECT_EQ(caption("optHandType1_0"), option);
      EXPECT_EQ(!option.empty() && form.Checked("optHandType1_1"), type == 0) << option;
      ++type;
    }
    EXPECT_EQ(caption("optSuit1_3"), "West");
    form.Click("optSpecify_1");
    EXPECT_EQ(caption("optSuit1_0"), "Dealer");
    EXPECT_EQ(caption("optSuit2_3"), "Dealer+3");
    form.Click("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, TheTabKeyFollowsTheEye) {
  Open();
  Generate([](const Driven& form) {
    form.Click("optType2_1");
    std::vector<std::string> order;
    constexpr std::size_t kMost = 40;
    do {
      order.push_back(form.Focus());
      form.Press(Qt::Key_Tab);
    } while (form.Focus() != order.front() && order.size() < kMost);
    const std::vector<std::string> expected{
        "cmbBoards_0",    "cmbBoards_1",    "optnGen_1",      "optSpecify_0",   "optSuit1_0",
        "cmbMinPoints_0", "cmbMaxPoints_0", "optType1_0",     "cmbMinCards_0",  "cmbMaxCards_0",
        "cmbMinCards_1",  "cmbMaxCards_1",  "cmbMinCards_2",  "cmbMaxCards_2",  "cmbMinCards_3",
        "cmbMaxCards_3",  "optSuit2_1",     "cmbMinPoints_1", "cmbMaxPoints_1", "optType2_1",
        "cmbHandType_1",  "optHandType2_0", "chkPreview",     "cmdGo",          "cmdCancel"};
    EXPECT_EQ(order, expected);
    form.Click("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, NumbersOutsideTheRangeCannotBeTyped) {
  Open();
  Generate([](const Driven& form) {
    form.Type("cmbMaxPoints_0", "x40");  // 0 follows the 4 that would be above 37
    EXPECT_EQ(form.Text("cmbMaxPoints_0"), QStringLiteral("4"));
    form.Type("cmbMinPoints_0", "12");
    form.Press(Qt::Key_Tab);
    EXPECT_EQ(form.Text("cmbMaxPoints_0"), QStringLiteral("12")) << "it follows the minimum";
    form.Type("cmbMaxPoints_0", "7");
    form.Press(Qt::Key_Tab);
    EXPECT_EQ(form.Text("cmbMinPoints_0"), QStringLiteral("7"));
    form.Type("cmbMinPoints_0", "");
    form.Press(Qt::Key_Delete);
    form.Press(Qt::Key_Tab);
    EXPECT_EQ(form.Text("cmbMinPoints_0"), QStringLiteral("7")) << "an empty text is none";
    form.Click("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, AContradictionIsToldAndLeadsToWhereItIs) {
  Open();
  const std::tuple<Choices, const char*, const char*> kCases[] = {
      {{{"cmbMinCards_1", "8"}, {"cmbMinCards_3", "6"}},
       "Suit minima add up to more than 13 in hand 1",
       "cmbMinCards_1"},
      {{{"cmbMinPoints_0", "20"}, {"cmbMinPoints_1", "21"}},
       "Too many minimum points between the 2 hands",
       "cmbMinPoints_1"},
      // lengths that are closed ask for nothing
      {{{"cmbMinCards_0", "8"},
        {"cmbMinCards_1", "8"},
        {"optType1_1", nullptr},
        {"optSuit2_0", nullptr}},
       "Hand 2 is the same direction as hand 1",
       "optSuit2_0"},
  };
  for (const auto& [choices, message, focus] : kCases) {
    Generate([&](const Driven& form) {
      form.Choose(choices);
      form.Find<QWidget>("chkPreview")->setFocus();
      host.ExpectTell(message);
      form.Click("cmdGo");
      EXPECT_TRUE(form.dialog.isVisible()) << message;
      EXPECT_EQ(form.Focus(), focus) << message;
      form.Click("cmdCancel");
    });
  }
  EXPECT_EQ(session.library.boardCount, 4);
}

TEST_F(GenerateWindowTest, ThePreviewTakesADealDealsAgainOrEnds) {
  Open();
  // No, No, Yes for board 31; Yes for board 32; Escape at board 33.
  const std::array keys{Qt::Key_N, Qt::Key_N, Qt::Key_Return, Qt::Key_Y, Qt::Key_Escape};
  const std::array numbers{31, 31, 31, 32, 33};
  std::vector<HandTable> shown;
  const std::function<void()> expectPreview = [&] {
    Expect<frmPreview>([&](frmPreview& dialog) {
      const Driven form{dialog};
      const std::size_t index = shown.size();
      shown.push_back(session.board.hands);
      const QString message = form.Find<QLabel>("lblMessage")->text();
      EXPECT_EQ(FromQt(message), "Accept this deal for board " + std::to_string(numbers.at(index)));
      const QString spoken = form.Find<TableView>("picPreview")->accessibleDescription();
      EXPECT_TRUE(spoken.contains(QStringLiteral("Board %1").arg(numbers.at(index))))
          << FromQt(spoken);
      EXPECT_EQ(form.Focus(), "cmdYes");
      form.Press(keys.at(index));
      if (shown.size() < keys.size()) expectPreview();
    });
  };
  Generate([&](const Driven& form) {
    form.Choose({{"cmbBoards_1", "36"}, {"cmbBoards_0", "31"}});
    form.Click("chkPreview");
    form.Click("cmdGo");
    expectPreview();
  });
  ASSERT_EQ(shown.size(), keys.size());
  EXPECT_NE(shown[0], shown[1]);
  EXPECT_EQ(Stored(31).hands, shown[2]);
  EXPECT_EQ(Stored(32).hands, shown[3]);
  EXPECT_EQ(session.library.lastBoard, 32);
  EXPECT_EQ(ShownBoard(), QStringLiteral("Board 31"));
}

TEST_F(GenerateWindowTest, EachDealIsShownBesideItsNumber) {
  std::vector<std::pair<int, QString>> shown;
  Open();
  QObject::connect(window->Progress(), &ProgressFrame::Drawn, [&] {
    EXPECT_TRUE(Find<TableView>("picTable")->isVisible());
    shown.emplace_back(session.board.boardNumber,
                       Find<TableView>("picTable")->accessibleDescription());
  });
  host.onStep = [] { QTest::qSleep(51); };  // as if dealing took its time: each step is drawn
  Generate([](const Driven& form) {
    form.Choose({{"cmbBoards_1", "33"}, {"cmbBoards_0", "30"}});
    form.Click("cmdGo");
  });
  std::set<int> numbers;
  for (const auto& [number, description] : shown) {
    if (number < 30) continue;
    EXPECT_EQ(FromQt(description), FromQt(DescribeTable(Stored(number))));
    numbers.insert(number);
  }
  EXPECT_EQ(numbers, (std::set<int>{30, 31, 32, 33}));
}

TEST_F(GenerateWindowTest, TablesAreComputedWhereTheSettingsWantThem) {
  test::FakeSolver solver;
  session.getSolver = [&solver]() -> Solver& { return solver; };
  session.tablesInBackground = true;
  Open();
  for (const bool wanted : {false, true}) {
    session.settings.autoMakeable = wanted;
    const std::size_t solvedBefore = solver.dealsSolved;
    Generate([&](const Driven& form) {
      form.Choose({{"cmbBoards_1", wanted ? "69" : "59"}, {"cmbBoards_0", wanted ? "60" : "50"}});
      form.Click("cmdGo");
    });
    EXPECT_EQ(solver.dealsSolved - solvedBefore, wanted ? 10U : 0U);
    EXPECT_EQ(Stored(wanted ? 65 : 55).makeableValid, wanted);
    EXPECT_EQ(session.board.makeableValid, wanted);
  }
}

}  // namespace
}  // namespace tricklet::ui
