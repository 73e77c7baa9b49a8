// Travellers and play records in the real main window.
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>

#include "formats/results/lin_file.h"
#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/ui/window_fixture.h"
#include "ui/background/best_cards_finder.h"
#include "ui/control/results.h"
#include "ui/table/table_view.h"

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
    StoreLinData(session, file);
  }
  static std::string Record(const std::string& names, const std::string& played,
                            const std::string& tags) {
    return "pn|" + names + "|md|3DAKQJT98765432,CAKQJT98765432,SAKQJT98765432,|ah|Board 1|" +
           played + tags;
  }

  QTableView* Grid() const { return Find<QTableView>("flexTraveller"); }
  QString Head(int column) const {
    return Grid()->model()->headerData(column, Qt::Horizontal).toString();
  }
  QModelIndex At(int row, int column) const { return Grid()->model()->index(row, column); }
  int Rows() const { return Grid()->model()->rowCount(); }
  QString Cell(int row, const char* head) const {
    for (int column = 0; column < Grid()->model()->columnCount(); ++column) {
      if (Head(column) == QString::fromLatin1(head)) return At(row, column).data().toString();
    }
    ADD_FAILURE() << "no column " << head;
    return {};
  }
  /// The numbers of the pairs sitting North-South, down the grid.
  std::string Pairs() const {
    std::string pairs;
    for (int row = 0; row < Rows(); ++row) pairs += FromQt(Cell(row, "NS"));
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
  QString Place() const { return Find<QLabel>("lblLinPlace")->text(); }
  QString Label(const char* name) const { return Find<QLabel>(name)->accessibleName(); }
  QString Calls() const {
    const auto* grid = Find<QTableWidget>("flexBids");
    QStringList calls;
    for (int place = 0; place < grid->rowCount() * kSeats; ++place) {
      const auto* item = grid->item(place / kSeats, place % kSeats);
      if (item != nullptr) calls += item->text();
    }
    return calls.join(QLatin1Char(' '));
  }
  const PlayState& Now() const { return window->findChild<Results*>()->Record()->Play().Now(); }
  void ExpectNothingLeftOfTheRecord(const char* after) const {
    EXPECT_EQ(window->findChild<Results*>()->Record(), nullptr) << after;
    EXPECT_EQ(Find<QComboBox>("cmbLinNames")->currentIndex(), -1) << after;
    EXPECT_FALSE(Grid()->selectionModel()->hasSelection()) << after;
    EXPECT_EQ(Place(), QString()) << after;
    EXPECT_FALSE(Find<QAction>("mnuLinForward")->isEnabled()) << after;
    EXPECT_FALSE(Find<QAction>("mnuLinLeave")->isEnabled()) << after;
    EXPECT_FALSE(Find<QLabel>("lblTricks_0")->isVisible()) << after;
  }
};

TEST_F(TravellerWindowTest, ShowsAndHidesTheTraveller) {
  Open();
  const auto* frame = Find<QWidget>("fraTraveller");
  const auto* button = Find<QToolButton>("cmdTraveller");
  EXPECT_TRUE(frame->isVisible());
  EXPECT_EQ(button->text(), QStringLiteral("v"));
  Click("cmdTraveller");
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(button->text(), QStringLiteral("^"));
  Key(Qt::Key_J, Qt::ControlModifier);
  EXPECT_TRUE(frame->isVisible());
  EXPECT_EQ(Pairs(), "1357");
  EXPECT_EQ(Cell(0, "EW"), QStringLiteral("12"));
  EXPECT_EQ(Cell(0, "Cont"), QStringLiteral(u"1\u2660"));
  EXPECT_EQ(Cell(0, "NS+"), QStringLiteral("260"));
  EXPECT_EQ(Cell(0, "MP"), QStringLiteral("6"));
  EXPECT_EQ(Cell(1, "EW+"), QStringLiteral("1510"));
  EXPECT_EQ(Cell(2, "Cont"), QStringLiteral("Pass"));
  EXPECT_EQ(Cell(0, "Names"), QStringLiteral("Ann & Bob v Cy & Di"));
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Rows(), 0) << "board 2 has no results";
  EXPECT_TRUE(button->isVisible());
  QComboBox* libraries = Find<QComboBox>("cmbLibs");
  libraries->setCurrentIndex(1);
  emit libraries->activated(1);
  EXPECT_FALSE(button->isVisible()) << "the other library has none at all";
  EXPECT_FALSE(Find<QAction>("mnuTraveller")->isEnabled());
}

TEST_F(TravellerWindowTest, IsSortedByEveryColumn) {
  Open();
  Grid()->horizontalScrollBar()->setValue(0);
  QStringList heads;
  for (int column = 0; column < Grid()->model()->columnCount(); ++column) heads += Head(column);
  EXPECT_EQ(heads.join(QLatin1Char(' ')),
            QStringLiteral("NS EW Cont By Ld Tr NS+ EW+ MP MP Names"));
  struct Case {
    int column;
    std::string pairs;
  };
  const std::vector<Case> cases{{0, "1357"},  // numbers, and no texts
                                {1, "3571"},
                                {2, "5173"},   // Pass, 1S, 1NT, 7H
                                {6, "3751"}};  // the score of North-South
  for (const Case& example : cases) {
    ClickHead(example.column);
    EXPECT_EQ(Pairs(), example.pairs) << example.column;
    ClickHead(example.column);
    EXPECT_EQ(Pairs(), std::string(example.pairs.rbegin(), example.pairs.rend())) << example.column;
    ClickHead(example.column);
    EXPECT_EQ(Pairs(), "1357") << "as it was";
  }
  ClickRow(0);  // that of pair 1, the best score
  EXPECT_EQ(Grid()->currentIndex().column(), 0);
  Grid()->setFocus();
  FocusKey(Qt::Key_Right);
  for (const char* pairs : {"3571", "1753"}) {
    FocusKey(Qt::Key_Space);
    EXPECT_EQ(Pairs(), pairs);
  }
  EXPECT_EQ(Find<QComboBox>("cmbLinNames")->currentText(), QStringLiteral("Ann & Bob v Cy & Di"));
}

TEST_F(TravellerWindowTest, StepsThroughARecord) {
  Open();
  test::SetAuction(session.board, "P 2H P P P");
  window->Display();
  const Board before = session.board;
  ClickRow(0);
  EXPECT_EQ(Find<QComboBox>("cmbLinNames")->currentText(), QStringLiteral("Ann & Bob v Cy & Di"));
  for (int column = 0; Head(column) != QStringLiteral("Names"); ++column) {
    EXPECT_LE(Grid()->sizeHintForIndex(At(0, column)).width(), Grid()->columnWidth(column))
        << "in bold: " << FromQt(Head(column));
  }
  EXPECT_EQ(Calls(), QStringLiteral(u"1\u2660 Pass Pass Pass"));
  EXPECT_EQ(Label("lblContract"), QStringLiteral("1S by North"));
  EXPECT_EQ(Place(), QStringLiteral("Card 0 of 7"));
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Place(), QStringLiteral("Card 1 of 7"));
  EXPECT_EQ(Now().trickCards[Seat::East], (Card{Suit::Hearts, Rank::Two}));
  EXPECT_EQ(Now().onPlay, Seat::South);
  Key(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(Place(), QStringLiteral("Card 4 of 7"));
  EXPECT_EQ(Find<QLabel>("lblTricks_0")->text(), QStringLiteral("NS: 1"));
  window->findChild<TableView*>()->setFocus();
  FocusKey(Qt::Key_Space);
  EXPECT_EQ(Place(), QStringLiteral("Card 5 of 7"));
  FocusKeys("ha");  // the two of clubs' suit aside, East played the three
  EXPECT_EQ(host.beeps, 1);
  FocusKeys("h3");
  EXPECT_EQ(Place(), QStringLiteral("Card 6 of 7"));
  Click("cmdLinNextTrick");
  EXPECT_EQ(Place(), QStringLiteral("Card 7 of 7: the record ends here"));
  EXPECT_EQ(Label("lblScore"), QStringLiteral("1S+6 by North : NS +260"));
  EXPECT_FALSE(Find<QToolButton>("cmdLinForward")->isEnabled());
  Click("cmdLinPreviousTrick");
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Place(), QStringLiteral("Card 3 of 7"));
  Key(Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
  ExpectNothingLeftOfTheRecord("putting it away");
  EXPECT_EQ(Calls(), QStringLiteral(u"Pass 2\u2665 Pass Pass Pass"));
  EXPECT_EQ(Label("lblContract"), QStringLiteral("2H by East"));
  EXPECT_EQ(session.board.calls, before.calls);
  EXPECT_EQ(session.board.handChanged, before.handChanged);
  EXPECT_FALSE(Find<QTimer>("timQuit")->isActive());
}

TEST_F(TravellerWindowTest, BestCardsOfARecordAreThoseOfItsOwnContract) {
  class OneCardSolver : public test::FakeSolver {
   public:
    std::vector<CardScore> SolveCards(const SolverPosition& position) override {
      asked = position.trumps;
      return {{{Suit::Hearts, Rank::Two}, 12}};
    }
    std::atomic<Strain> asked{Strain::NoTrump};
  } solver;
  session.getSolver = [&solver]() -> Solver& { return solver; };
  session.settings.showBestCards = true;
  Open();
  const auto* finder = window->findChild<BestCardsFinder*>();
  EXPECT_TRUE(finder->Tricks().empty());
  ClickRow(0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !finder->Tricks().empty(); }));
  EXPECT_EQ(solver.asked, Strain::Spades);
  session.settings.showBestCards = false;
  window->Display();
  EXPECT_TRUE(finder->Tricks().empty());
  session.settings.showBestCards = true;
  Key(Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(finder->Tricks().empty()) << "the record has been put away";
}

TEST_F(TravellerWindowTest, RecordsWithoutAPlayOrWithOneThatBreaksTheRules) {
  Open();
  ClickRow(1);
  Click("cmdLinNextTrick");
  EXPECT_EQ(Place(),
            QStringLiteral(u"Card 3 of 4: the record ends here, as East cannot play \u26664"));
  Find<QComboBox>("cmbLinNames")->setFocus();
  FocusKey(Qt::Key_Down);
  EXPECT_EQ(Place(), QStringLiteral("Passed out"));
  EXPECT_EQ(Label("lblScore"), QStringLiteral("All Pass : 0"));
  FocusKey(Qt::Key_Down);
  EXPECT_EQ(Place(), QStringLiteral("The play was not recorded"));
  EXPECT_EQ(Label("lblContract"), QStringLiteral("1NT by North"));
  EXPECT_EQ(Grid()->selectionModel()->selectedRows().value(0).row(), 3);
}

TEST_F(TravellerWindowTest, WhateverReplacesTheBoardEndsTheRecord) {
  Open();
  const auto look = [&] {
    ClickRow(0);
    Key(Qt::Key_Right, Qt::AltModifier);
    ASSERT_NE(window->findChild<Results*>()->Record(), nullptr);
  };
  look();
  Key(Qt::Key_PageDown);
  ExpectNothingLeftOfTheRecord("the next board");
  Key(Qt::Key_PageUp);
  ExpectNothingLeftOfTheRecord("coming back");
  look();
  test::SetAuction(session.board, "1C P P P");
  window->Display();
  ExpectNothingLeftOfTheRecord("another auction");
  look();
  Click("cmdPlay");
  EXPECT_TRUE(session.board.playMode);
  EXPECT_EQ(window->findChild<Results*>()->Record(), nullptr);
  ClickRow(0);
  EXPECT_EQ(window->findChild<Results*>()->Record(), nullptr) << "the board is being played";
  EXPECT_FALSE(Grid()->selectionModel()->hasSelection());
  Click("cmdPlay");
  look();
  ASSERT_TRUE(RecycleLinData(session));
  window->Display();
  EXPECT_EQ(window->findChild<Results*>()->Record(), nullptr) << "the results are gone";
  EXPECT_FALSE(Shown("fraTraveller"));
}

}  // namespace
}  // namespace tricklet::ui
