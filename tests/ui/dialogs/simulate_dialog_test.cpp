// The simulation of a board, opened from the window.
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>

#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmSimulate.h"
#include "ui/report/report_view.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Every card of the hand on lead leads to four tricks.
std::vector<CardScore> FourTricks(const SolverPosition& position) {
  std::vector<CardScore> scores;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (position.cardsLeft[position.leader][card.suit].Has(card.rank)) scores.push_back({card, 4});
  }
  return scores;
}

TEST(SimulateDialog, RunsBesideTheWindow) {
  test::FakeSolver solver;
  solver.solveCards = FourTricks;
  test::ScriptedHost host;
  MemoryStore store;
  Session session(host, store);
  session.getSolver = [&solver]() -> Solver& { return solver; };
  RecordedPlay record;
  record.board.hands =
      test::HandsOf("N:K652.K73.K54.742 J8.J98.AT83.JT98 Q7.AQ2.QJ96.AKQ6 AT943.T654.72.53");
  std::filesystem::path folder;
  PerSeat<bool> faceDown{};
  faceDown[Seat::West] = true;
  frmSimulate dialog(session, record, faceDown, folder, nullptr);
  const Driven driven{&dialog};
  EXPECT_TRUE(driven.Find<QCheckBox>("chkKnownWest")->isChecked()) << "who is to lead";
  EXPECT_FALSE(driven.Find<QCheckBox>("chkKnownNorth")->isChecked());
  const QString spades = ToQt(HoldingText(record.board.hands[Seat::West][Suit::Spades]));
  const auto* hands = driven.Find<QCheckBox>("chkKnownWest")->parentWidget();
  for (const QLabel* shown : hands->findChildren<QLabel*>()) {
    EXPECT_FALSE(shown->text().contains(spades)) << "what lies face down stays so";
  }
  auto* said = driven.Find<QLabel>("lblSaid");
  auto* condition = driven.Find<QPlainTextEdit>("txtCondition");
  condition->setPlainText(QStringLiteral("hcp(nort)"));
  driven.Press("cmdRun");
  EXPECT_TRUE(said->text().startsWith(u"Line 1, column 5"));
  condition->clear();
  driven.Find<QSpinBox>("spnDeals")->setValue(60);
  driven.Press("cmdRun");
  auto* run = driven.Find<QAbstractButton>("cmdRun");
  EXPECT_FALSE(run->isEnabled());
  ASSERT_TRUE(QTest::qWaitFor([&] { return run->isEnabled(); }));
  EXPECT_TRUE(said->text().startsWith(u"60 deals")) << said->text().toStdString();
  EXPECT_EQ(driven.Find<ReportView>("grdTable")->model()->rowCount(), 4) << "equals are one row";
  // A condition that no deal meets is still being dealt to when the dialog closes.
  condition->setPlainText(QStringLiteral("hcp(north) > 37"));
  driven.Press("cmdRun");
  QTest::qWait(20);
  dialog.reject();
}

}  // namespace
}  // namespace tricklet::ui
