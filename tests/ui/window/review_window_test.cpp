// The review of a record and of a play in the real main window.
#include <QClipboard>
#include <QMimeData>
#include <QRegularExpression>

#include "formats/results/lin_file.h"
#include "tests/support/fake_solver.h"
#include "tests/ui/window_fixture.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"

namespace tricklet::ui {
namespace {

/// The third card of every play gives declarer a trick, the fifth gives it back.
class TwoMistakes : public test::FakeSolver {
 public:
  std::string SolvePlays(std::span<const SolverPlay> plays, std::span<PlayTricks> tricks) override {
    const PlayTricks known{6, 6, 6, 7, 7, 6};
    tricks[0] = known;
    tricks[0].resize(plays[0].cards.size() + 1, known.back());
    return {};
  }
};

/// Everything that the window tells in words, in sight or to a screen reader or by a tip.
QStringList AllWords(const QWidget& window) {
  QStringList words;
  for (const QWidget* part : window.findChildren<QWidget*>()) {
    if (!part->isVisible()) continue;
    words << part->accessibleName() << part->accessibleDescription() << part->toolTip()
          << part->property("text").toString();
    const auto* view = qobject_cast<const QAbstractItemView*>(part);
    if (view == nullptr || view->model() == nullptr) continue;
    const QAbstractItemModel& model = *view->model();
    for (int row = 0; row < model.rowCount(); ++row) {
      for (int column = 0; column < model.columnCount(); ++column) {
        for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole,
                               Qt::AccessibleDescriptionRole}) {
          words << model.index(row, column).data(role).toString();
        }
      }
    }
  }
  return words;
}

/// Those that name a card of `suit`.
std::string CardsToldOf(const QStringList& words, Suit suit) {
  const auto pattern = QStringLiteral("(%1|%2):? ?(10|[2-9AKQJT])\\b")
                           .arg(ToQt(SuitSymbol[suit]), ToQt(SuitName[suit]));
  const QRegularExpression card(pattern, QRegularExpression::CaseInsensitiveOption);
  return FromQt(words.filter(card).join(u'|'));
}

/// Board 1: one spade by North, who has the spades; East has the hearts, South the diamonds, West
/// the clubs. At the other table it was passed out.
class ReviewWindowTest : public WindowTest {
 protected:
  ReviewWindowTest() {
    const std::string deal = "|md|3DAKQJT98765432,CAKQJT98765432,SAKQJT98765432,|ah|Board 1|";
    LinFile file;
    file.boardScoringMethod = "MATCH_POINTS";
    file.names = {"1 NS Ann & Bob", "12 EW Cy & Di", "3 NS Eve & Fay", "4 EW Gus & Hal"};
    file.lin = {"pn|Bob,Di,Ann,Cy" + deal +
                    "mb|1S|mb|p|mb|p|mb|p|pc|H2|pc|D2|pc|C2|pc|S2|pc|S3|pc|H3|pc|D3|"
                    "qent|7||qens|80||qenc|1S||qend|N|",
                "pn|Fay,Hal,Eve,Gus" + deal + "mb|p|mb|p|mb|p|mb|p|qens|0||qenc|PASS|"};
    test::WriteFile(LinDataPath(session), LinFileText(file));
    session.getSolver = [this]() -> Solver& { return solver; };
  }
  void ShowRecord() {
    Open();
    window->resize(1366, 768);
    window->findChild<Results*>()->ShowRecord(0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return Shown("fraReview"); }));
  }
  QTableWidget* Grid() const { return Find<QTableWidget>("flexTricks"); }
  /// Cards with a mark, as they are read out.
  std::string Marks() const {
    QStringList marks;
    for (const QTableWidgetItem* item : Grid()->findItems({}, Qt::MatchContains)) {
      if (item == nullptr) continue;  // of a claim, below the cards
      const QString spoken = item->data(Qt::AccessibleTextRole).toString();
      if (spoken.contains(QLatin1String("gave away"))) marks += spoken;
    }
    marks.sort();
    return FromQt(marks.join(u'|'));
  }
  void ClickCell(int row, int column) const {
    const QRect room = Grid()->visualItemRect(Grid()->item(row, column));
    QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, Qt::NoModifier, room.center());
  }

  TwoMistakes solver;
};

TEST_F(ReviewWindowTest, GoesThroughTheMistakesOfARecord) {
  ShowRecord();
  EXPECT_EQ(Marks(), "North: Spades 3, led, gave away 1 trick|West: Clubs 2, gave away 1 trick");
  const std::string third = "Card 3 of 7, The \u26632 gave away a trick: it cost 100 %";
  const std::string fifth = "Card 5 of 7, The \u26603 gave away a trick: it cost 100 %";
  const std::string kNext = "mnuNextMistake";
  const std::string kPrevious = "mnuPreviousMistake";
  const auto chart = [this] { return Find<QWidget>("picReview"); };
  const std::tuple<const char*, std::function<void()>, std::string, std::string> steps[] = {
      {"next", [this] { Key("F3"); }, third, kNext},
      {"next again", [this] { Click("cmdNextMistake"); }, fifth, kPrevious},
      {"previous", [this] { Key("Shift+F3"); }, third, kNext},
      {"the first card", [this] { ClickCell(0, 3); }, "Card 1 of 7, Ready", kNext},
      {"a card by keys",
       [this] {
         Grid()->setFocus();
         Grid()->setCurrentCell(1, 2);
         FocusKey("Return");
       },
       fifth, kPrevious},
      {"the line's beginning",
       [&] {
         chart()->setFocus();
         FocusKey("Home");
       },
       "Card 0 of 7, Ready", kNext},
      {"one card on", [] { FocusKey("Right"); }, "Card 1 of 7, Ready", kNext},
      {"the line's right edge",
       [&] {
         QTest::mouseClick(chart(), Qt::LeftButton, Qt::NoModifier,
                           QPoint(chart()->width() - 2, 9));
       },
       "Card 7 of 7: the record ends here, Ready", kPrevious},
  };
  for (const auto& [what, step, place, can] : steps) {
    step();
    EXPECT_EQ(Text("lblLinPlace") + ", " + Text("lblStatus"), place) << what;
    EXPECT_EQ(EnabledOf("mnuNextMistake mnuPreviousMistake"), can) << what;
  }
}

TEST_F(ReviewWindowTest, TellsWhoGaveAwayWhat) {
  ShowRecord();
  std::string given;
  for (const char* cell : {"lblGivenInLead_0", "lblGivenInPlay_0", "lblGivenInLead_1",
                           "lblGivenInPlay_1", "lblGivenInLead_2", "lblGivenInPlay_2"}) {
    given += Text(cell) + " ";
  }
  EXPECT_EQ(given, "\u2013 1 0 0 \u2013 1 ") << "North, East and West";
  EXPECT_EQ(Text("lblReviewResult"),
            "Result 7 tricks, double-dummy 6 tricks\n"
            "The claim took 1 trick more than could be had\n"
            "It cost East-West 130 points, 100 %");
  EXPECT_EQ(Spoken("lblReviewTricks"), "Tricks North can still end with \u00B7 7 needed");
  EXPECT_EQ(FromQt(Find<QWidget>("picReview")->accessibleDescription()),
            "Before the lead: 6 tricks. Card 3, the \u26632 by West: 7 tricks, 1 given away. "
            "Card 5, the \u26603 by North: 6 tricks, 1 given away. Card 7, the \u26663 by South: "
            "6 tricks. 7 needed.");
}

TEST_F(ReviewWindowTest, AHiddenHandKeepsItsSecrets) {
  ShowRecord();
  Key("F3");
  Key("Ctrl+Shift+H");
  EXPECT_EQ(ShownOf("fraTricks secReview"), "fraTricks");
  EXPECT_EQ(Marks(), "");
  EXPECT_EQ(Text("lblStatus"), "Ready");
  EXPECT_EQ(EnabledOf("mnuNextMistake mnuPreviousMistake"), "");
  EXPECT_EQ(Grid()->rowCount(), 1) << "of the cards so far";
  Key("Ctrl+Shift+H");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Shown("fraReview"); }));
}

TEST_F(ReviewWindowTest, NothingTellsTheCardsOfAHiddenHand) {
  session.settings.showBestCards = true;
  for (const bool record : {false, true}) {
    if (record) ShowRecord();
    if (!record) Open();
    if (!record) window->resize(1600, 1000);
    const char* keys[] = {"Alt+1", "Alt+2", "Alt+3", "Alt+4"};
    for (const Seat seat : kAllSeats) {
      const auto suit = static_cast<Suit>(seat);  // each seat has one
      EXPECT_NE(CardsToldOf(AllWords(*window), suit), "") << "face up";
      Key(keys[IndexOf(seat)]);
      QTest::qWait(50);  // for what is found beside
      EXPECT_EQ(CardsToldOf(AllWords(*window), suit), "") << SeatName[seat] << record;
      Key("Ctrl+Shift+C");
      const QMimeData* copied = QApplication::clipboard()->mimeData();
      EXPECT_EQ(CardsToldOf({copied->text(), copied->html()}, suit), "") << SeatName[seat];
      Key(keys[IndexOf(seat)]);
    }
  }
}

TEST_F(ReviewWindowTest, APlayIsReviewedWithBestCardsAndWhenItIsOver) {
  Open();
  Bid("1S P P P");
  Click("cmdPlay");
  FocusKeys("H2D2C2");
  EXPECT_EQ(ShownOf("fraTricks secReview"), "fraTricks") << "best cards are off";
  Key("Ctrl+K");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Marks().empty(); }));
  EXPECT_EQ(Marks(), "West: Clubs 2, gave away 1 trick");
  EXPECT_EQ(Text("lblStatus"), "The \u26632 gave away a trick: it cost 75 %")
      << "against both tables: the play is of neither";
  ClickCell(0, 3);
  EXPECT_EQ(window->findChild<PlayControl*>()->Play().UndoTop(), 3) << "no card is lost";
  Key("Ctrl+Z");
  EXPECT_EQ(Marks(), "");
  Key("Ctrl+K");
  Key("Ctrl+Y");
  Key("Ctrl+L");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Shown("fraReview"); })) << "claimed";
  EXPECT_EQ(Marks(), "West: Clubs 2, gave away 1 trick");
}

}  // namespace
}  // namespace tricklet::ui
