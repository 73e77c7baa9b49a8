// The generator's dialogs in the real main window.
#include <map>

#include "core/statistics.h"
#include "generate/hand_type.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/ui/window_fixture.h"
#include "ui/table/descriptions.h"

namespace tricklet::ui {
namespace {

/// Works the controls that a list names, in turn: "optSuit1_2" is pressed, and "cmbMinCards_1=8"
/// has the text typed.
void Choose(const Driven& form, const std::string& list) {
  for (const std::string& word : test::Words(list)) {
    const std::string name = word.substr(0, word.find('='));
    if (name == word) {
      form.Press(name.c_str());
    } else {
      form.Type(name.c_str(), word.c_str() + name.size() + 1);
    }
  }
}
/// The choices of the list that still hold.
std::string ChosenOf(const Driven& form, const std::string& list) {
  return test::WordsWhere(list, [&](const std::string& word) {
    const std::string name = word.substr(0, word.find('='));
    if (name == word) return form.Find<QAbstractButton>(name.c_str())->isChecked();
    return name + "=" + form.Text(name.c_str()) == word;
  });
}

class GenerateWindowTest : public WindowTest {
 protected:
  GenerateWindowTest() { session.random = RandomSource(1); }

  /// Generates with what `work` chooses.
  void Generate(const std::function<void(const Driven&)>& work) {
    Expect(work);
    Click("cmdGenerate");
  }
  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    bool complete = false;
    EXPECT_TRUE(LoadHandBasic(session, board, complete) && complete) << number;
    return board;
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
    FocusKey("Return");
  });
  for (int number = 30; number <= 37; ++number) {
    const Board board = Stored(number);
    const Statistics statistics = GetStats(board.hands);
    const Seat partner = PartnerOf(board.Dealer());
    const int points = statistics.seatHcp[partner];
    EXPECT_TRUE(points >= 15 && points <= 17) << number;
    EXPECT_TRUE(IsOfType(HandType::Balanced, 1, statistics.suitLength[partner])) << number;
    EXPECT_GE(statistics.suitLength[board.Dealer()][Suit::Spades], 5) << number;
    EXPECT_LE(statistics.suitLength[board.Dealer()][Suit::Clubs], 3) << number;
  }
  EXPECT_EQ(Text("lblStatus"), "Boards 30 to 37 have been dealt");
  EXPECT_EQ(session.library.boardCount, 12);
  EXPECT_EQ(Text("cmbBoard"), "Board 30");
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
    FocusKey("Esc");
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
        "optType2_1 cmbHandType_1 optHandType2_0 chkPreview cmdAsText cmdGo cmdCancel "
        "qt_tabwidget_tabbar cmbBoards_0";
    std::string order = form.Focus();
    while (order.size() < expected.size()) {
      FocusKey("Tab");
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
    FocusKey("Tab");
    EXPECT_EQ(points(), "12-12") << "the maximum follows";
    form.Type("cmbMaxPoints_0", "7");
    FocusKey("Tab");
    EXPECT_EQ(points(), "7-7");
    form.Type("cmbMinPoints_0", "");
    FocusKey("Delete");
    FocusKey("Tab");
    EXPECT_EQ(points(), "7-7") << "an empty text is none";
    form.Press("cmdCancel");
  });
}

TEST_F(GenerateWindowTest, AContradictionIsToldAndLeadsToWhereItIs) {
  Open();
  const std::tuple<const char*, const char*, const char*> cases[] = {
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
  test::FakeSolver solver;
  session.getSolver = [&solver]() -> Solver& { return solver; };
  session.tablesInBackground = true;
  Open();
  const std::pair<const char*, std::string> answers[] = {
      {"N", "31"}, {"N", "31"}, {"Return", "31"}, {"Y", "32"}, {"Esc", "33"}};
  std::vector<HandTable> shown;
  const std::function<void()> expectPreview = [&] {
    Expect([&](const Driven& form) {
      const auto& [key, number] = answers[shown.size()];
      shown.push_back(session.board.hands);
      EXPECT_EQ(form.Text("lblMessage"), "Accept this deal for board " + number);
      const QString spoken = form.Find<TableView>("picPreview")->accessibleDescription();
      EXPECT_TRUE(spoken.startsWith(ToQt("Board " + number + "."))) << FromQt(spoken);
      EXPECT_EQ(form.Focus(), "cmdYes");
      FocusKey(key);
      if (shown.size() < std::size(answers)) expectPreview();
    });
  };
  Generate([&](const Driven& form) {
    Choose(form, "cmbBoards_1=36 cmbBoards_0=31 chkPreview cmdGo");
    expectPreview();
  });
  ASSERT_EQ(shown.size(), std::size(answers));
  EXPECT_NE(shown[0], shown[1]);
  EXPECT_EQ(Stored(31).hands, shown[2]);
  EXPECT_EQ(Stored(32).hands, shown[3]);
  EXPECT_EQ(session.library.lastBoard, 32);
  QTRY_VERIFY(session.board.makeableValid);
  EXPECT_EQ(Text("lblStatus"), "Boards 31 to 32 have been dealt") << "the table says nothing new";
  EXPECT_EQ(Text("cmbBoard"), "Board 31");
}

TEST_F(GenerateWindowTest, ANoToOverwritingReturnsToTheDialog) {
  Open();
  const Board before = Stored(24);
  Generate([&](const Driven& form) {
    host.ExpectAskWith("You will overwrite existing boards", Answer::No);
    Choose(form, "cmbBoards_1=31 cmbBoards_0=24 cmbMinPoints_0=12");
    Expect([](const Driven& again) {
      EXPECT_EQ(again.Text("cmbBoards_0") + again.Text("cmbMinPoints_0"), "2412");
      Choose(again, "cmbBoards_0=31 cmdGo");
    });
    form.Press("cmdGo");
  });
  EXPECT_EQ(Stored(24).hands, before.hands);
  EXPECT_EQ(Text("cmbBoard"), "Board 31");
}

TEST_F(GenerateWindowTest, EachDealIsShownBesideItsNumber) {
  std::map<int, std::string> shown;
  Open();
  QObject::connect(window->Progress(), &ProgressFrame::Drawn, [&] {
    EXPECT_TRUE(Shown("picTable"));
    shown[session.board.boardNumber] = FromQt(Table()->accessibleDescription());
  });
  host.onStep = [] { QTest::qSleep(51); };  // as if dealing took its time: each step is drawn
  Generate([](const Driven& form) { Choose(form, "cmbBoards_1=33 cmbBoards_0=30 cmdGo"); });
  for (int number = 30; number <= 33; ++number) {
    EXPECT_EQ(shown[number], FromQt(DescribeTable(Stored(number))));
  }
}

TEST_F(GenerateWindowTest, TablesAreComputedWhereTheSettingsWantThem) {
  test::FakeSolver solver;
  session.getSolver = [&solver]() -> Solver& { return solver; };
  session.tablesInBackground = true;
  session.settings.autoMakeable = false;  // nor of the board that the window opens with
  Open();
  for (const bool wanted : {false, true}) {
    session.settings.autoMakeable = wanted;
    Generate([&](const Driven& form) {
      Choose(form, wanted ? "cmbBoards_1=69 cmbBoards_0=60 cmdGo"
                          : "cmbBoards_1=59 cmbBoards_0=50 cmdGo");
    });
    EXPECT_EQ(solver.dealsSolved, wanted ? 10U : 0U);
    EXPECT_EQ(Stored(wanted ? 65 : 55).makeableValid, wanted);
    EXPECT_EQ(session.board.makeableValid, wanted);
  }
}

}  // namespace
}  // namespace tricklet::ui
