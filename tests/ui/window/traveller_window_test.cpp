// Travellers and play records in the real main window.
#include <QHeaderView>
#include <QTableView>

#include "formats/results/lin_file.h"
#include "tests/support/fake_solver.h"
#include "tests/ui/window_fixture.h"
#include "ui/background/best_cards_finder.h"
#include "ui/control/results.h"

namespace tricklet::ui {
namespace {

/// Board 1 was played at three tables and passed out at a fourth: North the spades, East the
/// hearts, South the diamonds, West the clubs; so North, who leads nothing but spades, wins every
/// trick in spades and the leader every trick in no-trump.
class TravellerWindowTest : public WindowTest {
 protected:
  TravellerWindowTest() {
    LinFile file;
    file.boardScoringMethod = "MATCH_POINTS";
    file.names = {"1 NS Ann & Bob", "12 EW Cy & Di",  "3 NS Eve & Fay", "4 EW Gus & Hal",
                  "5 NS Ida & Jo",  "6 EW Kim & Lee", "7 NS Mia & Ned", "8 EW Oz & Pat"};
    file.lin = {
        Record("Bob,Di,Ann,Cy", "mb|1S|mb|p|mb|p|mb|p|pc|H2|pc|D2|pc|C2|pc|S2|pc|S3|pc|H3|pc|D3|",
               "qent|13||qens|260||qenc|1S||qend|N|"),
        Record("Fay,Hal,Eve,Gus", "mb|p|mb|7H|mb|p|mb|p|mb|p|pc|D2|pc|C2|pc|S2|pc|D4|",
               "qent|13||qens|-1510||qenc|7H||qend|E|"),
        Record("Jo,Lee,Ida,Kim", "mb|p|mb|p|mb|p|mb|p|", "qens|0||qenc|PASS|"),
        Record("Ned,Pat,Mia,Oz", "mb|1N|mb|p|mb|p|mb|p|", "qent|0||qens|-350||qenc|1N||qend|N|"),
    };
    test::WriteFile(LinDataPath(session), LinFileText(file));
  }
  static std::string Record(const std::string& names, const std::string& played,
                            const std::string& tags) {
    return "pn|" + names + "|md|3DAKQJT98765432,CAKQJT98765432,SAKQJT98765432,|ah|Board 1|" +
           played + tags;
  }

  QTableView* Grid() const { return Find<QTableView>("flexTraveller"); }
  QModelIndex At(int row, int column) const { return Grid()->model()->index(row, column); }
  int Columns() const { return Grid()->model()->columnCount(); }
  /// The head of the grid or, from 0, one of its rows.
  std::string Row(int row = -1) const {
    QStringList cells;
    for (int column = 0; column < Columns(); ++column) {
      cells +=
          (row < 0 ? Grid()->model()->headerData(column, Qt::Horizontal) : At(row, column).data())
              .toString();
    }
    return FromQt(cells.join(QLatin1Char('|')));
  }
  /// The numbers of the pairs sitting North-South, down the grid.
  std::string Pairs() const {
    std::string pairs;
    for (int row = 0; row < Grid()->model()->rowCount(); ++row) {
      pairs += FromQt(At(row, 0).data().toString().section(QLatin1Char(' '), 0, 0));
    }
    return pairs;
  }
  void ClickRow(int row) const {
    const QRect room = Grid()->visualRect(At(row, 0));
    QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, Qt::NoModifier, room.center());
  }
  void ClickHead(int column) const {
    const QHeaderView* heads = Grid()->horizontalHeader();
    const int middle = heads->sectionViewportPosition(column) + heads->sectionSize(column) / 2;
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(middle, heads->height() / 2));
  }
  const Replay* Record() const { return window->findChild<Results*>()->Record(); }
  void ExpectNothingLeftOfTheRecord(const char* after) const {
    EXPECT_EQ(Record(), nullptr) << after;
    EXPECT_EQ(Find<QComboBox>("cmbLinNames")->currentIndex(), -1) << after;
    EXPECT_FALSE(Grid()->selectionModel()->hasSelection()) << after;
    EXPECT_EQ(Text("lblLinPlace"), "") << after;
    EXPECT_EQ(EnabledOf("mnuLinForward mnuLinLeave"), "") << after;
    EXPECT_EQ(Shown("lblTricks_0"), session.board.playMode) << after;
  }
};

TEST_F(TravellerWindowTest, ShowsAndHidesTheTraveller) {
  Open();
  window->resize(1600, 900);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Shown("fraTraveller"));
  EXPECT_EQ(Text("cmdTraveller"), "v");
  Click("cmdTraveller");
  EXPECT_FALSE(Shown("fraTraveller"));
  EXPECT_EQ(Text("cmdTraveller"), "^");
  Key("Ctrl+J");
  EXPECT_TRUE(Shown("fraTraveller"));
  EXPECT_EQ(Row(), "North-South|East-West|Contract|Lead|Score|MP %");
  EXPECT_EQ(Row(0), "1 Ann, Bob|12 Cy, Di|1\u2660 N +6|\u26652|260|100");
  EXPECT_EQ(Row(1), "3 Eve, Fay|4 Gus, Hal|7\u2665 E =|\u26662|\u22121510|0");
  EXPECT_EQ(Row(2), "5 Ida, Jo|6 Kim, Lee|Pass||0|67");
  Key("PgDown");
  EXPECT_EQ(Pairs(), "") << "board 2 has no results";
  EXPECT_TRUE(Shown("cmdTraveller"));
  TypeAndEnter("cmbLibs", "Teaching");
  EXPECT_FALSE(Shown("cmdTraveller")) << "the other library has none at all";
  EXPECT_FALSE(Enabled("mnuTraveller"));
}

TEST_F(TravellerWindowTest, NamesTakeTwoLinesWhereOneIsTooShort) {
  Open();
  window->resize(1024, 600);
  QCoreApplication::processEvents();
  EXPECT_EQ(Row(), "N-S|E-W|Contract|Lead|Score|MP %");
  EXPECT_EQ(FromQt(At(0, 1).data().toString()), "12 Cy\nDi");
  EXPECT_GE(Grid()->rowHeight(0), 2 * Grid()->fontMetrics().height());
  EXPECT_TRUE(At(0, 1).data(Qt::ToolTipRole).toString().contains(QLatin1String("12 Cy, Di")));
  EXPECT_EQ(FromQt(At(0, 1).data(Qt::AccessibleTextRole).toString()), "12 Cy, Di");
}

TEST_F(TravellerWindowTest, IsSortedByEveryColumn) {
  Open();
  const std::pair<int, std::string> cases[] = {{0, "1357"},  // numbers, and no texts
                                               {1, "3571"},
                                               {2, "5173"},   // Pass, 1S, 1NT, 7H
                                               {4, "3751"}};  // the score of North-South
  for (const auto& [column, pairs] : cases) {
    for (const std::string& order : {pairs, std::string(pairs.rbegin(), pairs.rend())}) {
      ClickHead(column);
      EXPECT_EQ(Pairs(), order) << column;
    }
    ClickHead(column);
    EXPECT_EQ(Pairs(), "1357") << "as it was";
  }
  Grid()->setFocus();
  for (const char* key : {"Right", "Right", "Space"}) FocusKey(key);
  EXPECT_EQ(Pairs(), "3571");
  EXPECT_EQ(Record(), nullptr) << "to sort is not to choose";
  ClickHead(1);
  ClickHead(1);
  ClickRow(0);  // that of pair 1, the best score
  EXPECT_EQ(Grid()->currentIndex().column(), 0);
  Grid()->setFocus();
  FocusKey("Right");
  for (const char* pairs : {"3571", "1753"}) {
    FocusKey("Space");
    EXPECT_EQ(Pairs(), pairs);
  }
  EXPECT_EQ(Text("cmbLinNames"), "Ann & Bob v Cy & Di");
}

TEST_F(TravellerWindowTest, StepsThroughARecord) {
  Open();
  Bid("P 2H P P P");
  ClickRow(0);
  EXPECT_EQ(Text("cmbLinNames"), "Ann & Bob v Cy & Di");
  for (const int column : {2, 4, 5}) {  // the names may be cut, and the lead left out
    EXPECT_LE(Grid()->sizeHintForIndex(At(0, column)).width(), Grid()->columnWidth(column))
        << "in bold: " << column;
  }
  EXPECT_EQ(Calls(), "1\u2660 Pass Pass Pass");
  EXPECT_EQ(Spoken("lblContract"), "1S by North");
  const auto onTable = [this] {
    Table()->setFocus();
    FocusKey("Space");
  };
  const std::pair<std::function<void()>, const char*> steps[] = {
      {[] {}, "Card 0 of 7 NS: 0"},
      {[this] { Key("Alt+Right"); }, "Card 1 of 7 NS: 0"},
      {[this] { Key("Alt+Shift+Right"); }, "Card 4 of 7 NS: 1"},
      {onTable, "Card 5 of 7 NS: 1"},
      {[] { FocusKeys("ha"); }, "Card 5 of 7 NS: 1"},  // East played the three
      {[] { FocusKeys("h3"); }, "Card 6 of 7 NS: 1"},
      {[this] { Click("cmdLinNextTrick"); }, "Card 7 of 7: the record ends here NS: 1"},
      {[this] { Click("cmdLinPreviousTrick"); }, "Card 4 of 7 NS: 1"},
      {[this] { Key("Alt+Left"); }, "Card 3 of 7 NS: 0"}};
  for (const auto& [step, told] : steps) {
    step();
    EXPECT_EQ(Text("lblLinPlace") + " " + Text("lblTricks_0"), told);
    const bool ends = std::string_view(told).starts_with("Card 7");
    EXPECT_EQ(Enabled("cmdLinForward"), !ends) << told;
    EXPECT_EQ(Spoken("lblScore"), ends ? "1S+6 by North : NS +260" : "") << told;
  }
  EXPECT_EQ(host.beeps, 1);
  Key("Ctrl+Shift+J");
  ExpectNothingLeftOfTheRecord("putting it away");
  EXPECT_EQ(Calls(), "Pass 2\u2665 Pass Pass Pass");
  EXPECT_EQ(Spoken("lblContract"), "2H by East");
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_FALSE(Find<QTimer>("timQuit")->isActive());
}

TEST_F(TravellerWindowTest, BestCardsOfARecordAreThoseOfItsOwnContract) {
  test::FakeSolver solver;
  std::atomic<Strain> asked{Strain::NoTrump};
  solver.solveCards = [&](const SolverPosition& position) -> std::vector<CardScore> {
    asked = position.trumps;
    return {{{Suit::Hearts, Rank::Two}, 12}};
  };
  session.getSolver = [&solver]() -> Solver& { return solver; };
  session.settings.showBestCards = true;
  Open();
  const auto* finder = window->findChild<BestCardsFinder*>();
  EXPECT_TRUE(finder->Tricks().empty());
  ClickRow(0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !finder->Tricks().empty(); }));
  EXPECT_EQ(asked, Strain::Spades);
  Key("Ctrl+Shift+J");
  EXPECT_TRUE(finder->Tricks().empty()) << "the record has been put away";
}

TEST_F(TravellerWindowTest, RecordsWithoutAPlayOrWithOneThatBreaksTheRules) {
  Open();
  ClickRow(1);
  Click("cmdLinNextTrick");
  EXPECT_EQ(Text("lblLinPlace"), "Card 3 of 4: the record ends here, as East cannot play \u26664");
  Find<QComboBox>("cmbLinNames")->setFocus();
  FocusKey("Down");
  EXPECT_EQ(Text("lblLinPlace"), "Passed out");
  EXPECT_EQ(Spoken("lblScore"), "All Pass : 0");
  FocusKey("Down");
  EXPECT_EQ(Text("lblLinPlace"), "The play was not recorded");
  EXPECT_EQ(Spoken("lblContract"), "1NT by North");
  EXPECT_EQ(Grid()->selectionModel()->selectedRows().value(0).row(), 3);
}

TEST_F(TravellerWindowTest, WhateverReplacesTheBoardEndsTheRecord) {
  Open();
  const auto look = [&] {
    ClickRow(0);
    Key("Alt+Right");
    ASSERT_NE(Record(), nullptr);
  };
  const auto nextAndBack = [this] {
    Key("PgDown");
    ExpectNothingLeftOfTheRecord("the next board");
    Key("PgUp");
  };
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"the next board and back", nextAndBack},
      {"another auction", [this] { Bid("1C P P P"); }},
      {"playing", [this] { Click("cmdPlay"); }},
  };
  for (const auto& [name, leave] : ways) {
    look();
    leave();
    ExpectNothingLeftOfTheRecord(name);
  }
  ClickRow(0);
  ExpectNothingLeftOfTheRecord("playing goes on");
  Click("cmdPlay");
  look();
  ASSERT_TRUE(RecycleLinData(session));
  window->Display();
  EXPECT_EQ(Record(), nullptr) << "the results are gone";
  EXPECT_FALSE(Shown("fraTraveller"));
}

}  // namespace
}  // namespace tricklet::ui
