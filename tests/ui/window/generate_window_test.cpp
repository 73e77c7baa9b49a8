// The generator's dialogs in the real main window.
#include <set>

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

/// Works the controls that a list names, in turn: "optSuit1_2" is pressed, and "cmbMinCards_1=8"
/// has the text typed.
void Choose(const Driven& form, const std::string& list) {
  for (const std::string& word : test::Words(list)) {
    const auto equals = word.find('=');
    const std::string name = word.substr(0, equals);
    if (equals == std::string::npos) {
      form.Press(name.c_str());
    } else {
      form.Type(name.c_str(), word.substr(equals + 1).c_str());
    }
  }
}
/// The choices of the list that still hold.
std::string ChosenOf(const Driven& form, const std::string& list) {
  return test::WordsWhere(list, [&](const std::string& word) {
    const auto equals = word.find('=');
    const std::string name = word.substr(0, equals);
    if (equals == std::string::npos) return form.Find<QAbstractButton>(name.c_str())->isChecked();
    return form.Text(name.c_str()) == word.substr(equals + 1);
  });
}
void Strike(const Driven& form, Qt::Key key) {
  QTest::keyClick(form.top->focusWidget(), key);
}

class GenerateWindowTest : public WindowTest {
 protected:
  GenerateWindowTest() { session.random = RandomSource(1); }

  /// Generates with what `work` chooses.
  void Generate(const std::function<void(const Driven&)>& work) {
    Expect<frmGenerate>(work);
    Click("cmdGenerate");
    EXPECT_EQ(dialogsLeft, 0);
  }
  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    bool complete = false;
    EXPECT_TRUE(LoadHandBasic(session, board, complete) && complete) << number;
    return board;
  }
  std::string Described() const {
    return FromQt(Find<TableView>("picTable")->accessibleDescription());
  }
};

TEST_F(GenerateWindowTest, TheBoardsAreStoredAsChosen) {
  Open();
  Generate([](const Driven& form) {
    EXPECT_EQ(form.Focus(), "cmbBoards_0");
    Choose(form,
           "cmbBoards_0=30 cmbBoards_1=37 optSpecify_1 optSuit1_2 cmbMinPoints_0=15 "
           "cmbMaxPoints_0=17 optType1_1 optHandType1_1 optSuit2_0 cmbMinCards_4=5 "
           "cmbMaxCards_7=3");
    Strike(form, Qt::Key_Return);
  });
  for (int number = 30; number <= 37; ++number) {
    const Board board = Stored(number);
    const Statistics statistics = GetStats(board.hands);
    const Seat partner = PartnerOf(board.Dealer());
    EXPECT_TRUE(statistics.seatHcp[partner] >= 15 && statistics.seatHcp[partner] <= 17) << number;
    for (const Suit suit : kAllSuits) {
      const int highest = suit == Suit::Spades || suit == Suit::Hearts ? 4 : 5;
      EXPECT_GE(statistics.suitLength[partner][suit], 2) << number;
      EXPECT_LE(statistics.suitLength[partner][suit], highest) << number;
    }
    EXPECT_GE(statistics.suitLength[board.Dealer()][Suit::Spades], 5) << number;
    EXPECT_LE(statistics.suitLength[board.Dealer()][Suit::Clubs], 3) << number;
  }
  EXPECT_EQ(session.library.boardCount, 12);
  EXPECT_EQ(Text("cmbBoard"), "Board 30");
  EXPECT_TRUE(Shown("picTable"));
}

TEST_F(GenerateWindowTest, TheDialogRemembersWhatWasGeneratedLast) {
  Open();
  const std::string chosen =
      "cmbBoards_1=42 cmbBoards_0=41 optnGen_0 optSpecify_1 optSuit1_3 cmbMinPoints_0=6 "
      "cmbMaxCards_2=5 optType1_1 optHandType1_1";
  const auto expectLast = [&](const Driven& form) {
    EXPECT_EQ(ChosenOf(form, chosen + " chkPreview"), chosen);
    EXPECT_EQ(form.Text("cmbHandType_0"), "Weak 2");
  };
  Generate([&](const Driven& form) {
    form.Find<QComboBox>("cmbHandType_0")->setCurrentIndex(1);
    Choose(form, chosen + " cmdGo");
  });
  Generate([&](const Driven& form) {
    expectLast(form);
    Choose(form, "cmbMinPoints_0=9 chkPreview");
    Strike(form, Qt::Key_Escape);
  });
  Generate([&](const Driven& form) {
    expectLast(form);
    form.Press("cmdCancel");
  });
  EXPECT_EQ(session.library.boardCount, 6);
}

TEST_F(GenerateWindowTest, WhatDoesNotApplyIsDisabledAndEachTypeKeepsItsOption) {
  Open();
  Generate([](const Driven& form) {
    const char* names = "cmbMinCards_0 cmbHandType_0 cmbMinPoints_1 optSuit2_0 cmbMinCards_4";
    EXPECT_EQ(form.EnabledOf(names), "cmbMinCards_0 cmbMinPoints_1 optSuit2_0 cmbMinCards_4");
    form.Press("optType1_1");
    EXPECT_EQ(form.EnabledOf(names), "cmbHandType_0 cmbMinPoints_1 optSuit2_0 cmbMinCards_4");
    form.Press("optnGen_0");
    EXPECT_EQ(form.EnabledOf(names), "cmbHandType_0");

    form.Press("optHandType1_1");
    int type = 0;
    for (const std::string option : {"Allow a 5-card major", "Exclude 5-card majors", "", ""}) {
      form.Find<QComboBox>("cmbHandType_0")->setCurrentIndex(type);
      EXPECT_EQ(form.Shown("fraOptions_0"), !option.empty()) << type;
      EXPECT_EQ(form.Text("optHandType1_0"), option);
      EXPECT_EQ(!option.empty() && !ChosenOf(form, "optHandType1_1").empty(), type == 0) << option;
      ++type;
    }
    EXPECT_EQ(form.Text("optSuit1_3"), "West");
    form.Press("optSpecify_1");
    EXPECT_EQ(form.Text("optSuit1_0") + form.Text("optSuit2_3"), "DealerDealer+3");
    form.Press("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, TheTabKeyFollowsTheEye) {
  Open();
  Generate([](const Driven& form) {
    form.Press("optType2_1");
    const std::string expected =
        "cmbBoards_0 cmbBoards_1 optnGen_1 optSpecify_0 optSuit1_0 cmbMinPoints_0 cmbMaxPoints_0 "
        "optType1_0 cmbMinCards_0 cmbMaxCards_0 cmbMinCards_1 cmbMaxCards_1 cmbMinCards_2 "
        "cmbMaxCards_2 cmbMinCards_3 cmbMaxCards_3 optSuit2_1 cmbMinPoints_1 cmbMaxPoints_1 "
        "optType2_1 cmbHandType_1 optHandType2_0 chkPreview cmdGo cmdCancel cmbBoards_0";
    std::string order = form.Focus();
    while (order.size() < expected.size()) {
      Strike(form, Qt::Key_Tab);
      order += " " + form.Focus();
    }
    EXPECT_EQ(order, expected);
    form.Press("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, NumbersOutsideTheRangeCannotBeTyped) {
  Open();
  Generate([](const Driven& form) {
    const auto points = [&] {
      return form.Text("cmbMinPoints_0") + "-" + form.Text("cmbMaxPoints_0");
    };
    form.Type("cmbMaxPoints_0", "x40");  // 0 follows the 4 that would be above 37
    EXPECT_EQ(points(), "0-4");
    form.Type("cmbMinPoints_0", "12");
    Strike(form, Qt::Key_Tab);
    EXPECT_EQ(points(), "12-12") << "the maximum follows";
    form.Type("cmbMaxPoints_0", "7");
    Strike(form, Qt::Key_Tab);
    EXPECT_EQ(points(), "7-7");
    form.Type("cmbMinPoints_0", "");
    Strike(form, Qt::Key_Delete);
    Strike(form, Qt::Key_Tab);
    EXPECT_EQ(points(), "7-7") << "an empty text is none";
    form.Press("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, AContradictionIsToldAndLeadsToWhereItIs) {
  Open();
  const struct {
    const char* choices;
    const char* message;
    const char* focus;
  } cases[] = {
      {"cmbMinPoints_0=20 cmbMinPoints_1=21", "Too many minimum points between the 2 hands",
       "cmbMinPoints_1"},
      // lengths that are closed ask for nothing
      {"cmbMinCards_0=8 cmbMinCards_1=8 optType1_1 optSuit2_0",
       "Hand 2 is the same direction as hand 1", "optSuit2_0"},
      {"cmbMinCards_1=8 cmbMinCards_3=6", "Suit minima add up to more than 13 in hand 1",
       "cmbMinCards_1"},
  };
  for (const auto& [choices, message, focus] : cases) {
    Generate([&](const Driven& form) {
      Choose(form, choices);
      form.Find<QWidget>("chkPreview")->setFocus();
      host.ExpectTell(message);
      form.Press("cmdGo");
      EXPECT_TRUE(form.top->isVisible()) << message;
      EXPECT_EQ(form.Focus(), focus) << message;
      form.Press("cmdCancel");
    });
  }
  EXPECT_EQ(session.library.boardCount, 4);
}

TEST_F(GenerateWindowTest, ThePreviewTakesADealDealsAgainOrEnds) {
  Open();
  // No, No, Yes for board 31; Yes for board 32; Escape at board 33.
  const std::array keys{Qt::Key_N, Qt::Key_N, Qt::Key_Return, Qt::Key_Y, Qt::Key_Escape};
  const std::array numbers{"31", "31", "31", "32", "33"};
  std::vector<HandTable> shown;
  const std::function<void()> expectPreview = [&] {
    Expect<frmPreview>([&](const Driven& form) {
      const std::size_t index = shown.size();
      shown.push_back(session.board.hands);
      const std::string number = numbers.at(index);
      EXPECT_EQ(form.Text("lblMessage"), "Accept this deal for board " + number);
      const QString spoken = form.Find<TableView>("picPreview")->accessibleDescription();
      EXPECT_TRUE(spoken.startsWith(ToQt("Board " + number + "."))) << FromQt(spoken);
      EXPECT_EQ(form.Focus(), "cmdYes");
      Strike(form, keys.at(index));
      if (shown.size() < keys.size()) expectPreview();
    });
  };
  Generate([&](const Driven& form) {
    Choose(form, "cmbBoards_1=36 cmbBoards_0=31 chkPreview cmdGo");
    expectPreview();
  });
  ASSERT_EQ(shown.size(), keys.size());
  EXPECT_NE(shown[0], shown[1]);
  EXPECT_EQ(Stored(31).hands, shown[2]);
  EXPECT_EQ(Stored(32).hands, shown[3]);
  EXPECT_EQ(session.library.lastBoard, 32);
  EXPECT_EQ(Text("cmbBoard"), "Board 31");
}

TEST_F(GenerateWindowTest, EachDealIsShownBesideItsNumber) {
  std::vector<std::pair<int, std::string>> shown;
  Open();
  QObject::connect(window->Progress(), &ProgressFrame::Drawn, [&] {
    EXPECT_TRUE(Shown("picTable"));
    shown.emplace_back(session.board.boardNumber, Described());
  });
  host.onStep = [] { QTest::qSleep(51); };  // as if dealing took its time: each step is drawn
  Generate([](const Driven& form) { Choose(form, "cmbBoards_1=33 cmbBoards_0=30 cmdGo"); });
  std::set<int> numbers;
  for (const auto& [number, description] : shown) {
    if (number < 30) continue;
    EXPECT_EQ(description, FromQt(DescribeTable(Stored(number))));
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
      Choose(form, wanted ? "cmbBoards_1=69 cmbBoards_0=60 cmdGo"
                          : "cmbBoards_1=59 cmbBoards_0=50 cmdGo");
    });
    EXPECT_EQ(solver.dealsSolved - solvedBefore, wanted ? 10U : 0U);
    EXPECT_EQ(Stored(wanted ? 65 : 55).makeableValid, wanted);
    EXPECT_EQ(session.board.makeableValid, wanted);
  }
}

}  // namespace
}  // namespace tricklet::ui
