// Playing on from a record, and against the program.
#include <QSpinBox>
#include <QTableView>

#include "formats/results/lin_file.h"
#include "play/played_record.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/ui/window_fixture.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"

namespace tricklet::ui {
namespace {

/// Board 1, North the spades, East the hearts, South the diamonds, West the clubs, without an
/// auction of its own; one table has played 1S by North.
class WhatIfWindowTest : public WindowTest {
 protected:
  WhatIfWindowTest() {
    LinFile file;
    file.boardScoringMethod = "MATCH_POINTS";
    file.lin = {
        "pn|Bob,Di,Ann,Cy|md|3DAKQJT98765432,CAKQJT98765432,SAKQJT98765432,|ah|Board 1|"
        "mb|1S|mb|p|mb|p|mb|p|pc|H2|pc|D2|pc|C2|pc|S2|pc|S3|pc|H3|pc|D3|qent|13||qens|260|"};
    test::WriteFile(LinDataPath(session), LinFileText(file));
    // The lowest card is the best.
    solver.solveCards = [](const SolverPosition& position) {
      const auto place = static_cast<int>(position.trick.size());
      const Seat seat = SeatAfter(position.leader, place);
      std::vector<CardScore> scores;
      for (const Suit suit : kAllSuits) {
        for (int rank = 0; rank < kRanks; ++rank) {
          const Card card{suit, static_cast<Rank>(rank)};
          if (position.cardsLeft[seat][suit].Has(card.rank)) scores.push_back({card, rank == 12});
        }
      }
      return scores;
    };
    session.getSolver = [this]() -> Solver& { return solver; };
  }
  void TearDown() override {
    window.reset();  // before its solver
    WindowTest::TearDown();
  }

  void ChooseRecord(int cards) {
    window->findChild<Results*>()->ShowRecord(0);
    for (; cards > 0; --cards) Key("Alt+Right");
  }
  const PlayControl& Control() const { return *window->findChild<PlayControl*>(); }
  int Played() const { return Control().Play().UndoTop(); }
  /// A card of the hand on play.
  void PlayAce() const {
    const auto seat = *Control().Play().Now().onPlay;
    const char* const kKeys[] = {"S", "H", "D", "C"};
    Table()->setFocus();
    FocusKey(kKeys[IndexOf(seat)]);
    FocusKey("A");
  }
  bool WaitFor(int cards) const {
    return QTest::qWaitFor([&] { return Played() == cards; });
  }

  test::FakeSolver solver;
};

TEST_F(WhatIfWindowTest, APlayGoesOnFromARecordAndComesBackToIt) {
  Open();
  EXPECT_FALSE(Enabled("mnuPlayOn"));
  ChooseRecord(5);
  const RecordedPlay record = window->findChild<Results*>()->Record()->Record();
  Click("cmdPlayOn");
  EXPECT_EQ(Played(), 5);
  EXPECT_TRUE(session.board.playMode);
  EXPECT_EQ(session.board.contract, "") << "the board has no auction, and gets none";
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(Spoken("lblContract"), "1S by North");
  EXPECT_EQ(Calls().substr(0, 4), "1\u2660");
  PlayAce();  // of hearts, where the record has the three
  EXPECT_EQ(Played(), 6);
  for (int i = 0; i < 6; ++i) Key("Ctrl+Z");
  EXPECT_EQ(Played(), 0);
  for (int i = 0; i < 5; ++i) Key("Ctrl+Y");
  Click("cmdPlay");  // nothing is lost: all five cards are the record's
  const Replay* back = window->findChild<Results*>()->Record();
  ASSERT_NE(back, nullptr);
  EXPECT_EQ(back->Shown(), 5);
  EXPECT_EQ(back->Record().cards, record.cards);
  EXPECT_EQ(session.board.contract, "");
}

TEST_F(WhatIfWindowTest, LeavingAsksOnceACardIsNotTheRecords) {
  Open();
  ChooseRecord(5);
  Key("Shift+F9");
  PlayAce();
  for (const char* key : {"PgDown", "Ctrl+End", "F9", "F5", "F7", "Ctrl+F2", "Ctrl+N", "Ctrl+Q",
                          "Ctrl+Shift+G", "Ctrl+I", "Ctrl+Shift+V"}) {
    host.ExpectAskWith("Do you wish to stop the play of board 1?", Answer::No);
    Key(key);
    EXPECT_TRUE(host.Done()) << key;
    EXPECT_EQ(Played(), 6) << key;
    EXPECT_EQ(session.board.boardNumber, 1) << key;
  }
}

TEST_F(WhatIfWindowTest, TheProgramAnswersAndItsAnswersAreTakenBackWithTheCard) {
  Open();
  Bid("1S P P P");
  Key("F9");
  Key("Ctrl+F9");  // it defends, and leads
  ASSERT_TRUE(WaitFor(1));
  EXPECT_FALSE(Enabled("mnuUndoCard")) << "it would lead the same card again";
  PlayAce();  // dummy's
  ASSERT_TRUE(WaitFor(3));
  EXPECT_EQ(RecordOfPlay(Control().Play()).cards.back(), test::CardOf("C2"));
  PlayAce();  // takes the trick
  EXPECT_EQ(Played(), 4);
  Key("Ctrl+Z");
  Key("Ctrl+Z");
  EXPECT_EQ(Played(), 1);
  Key("Ctrl+Y");
  EXPECT_EQ(Played(), 3) << "with the answer";
  Key("Ctrl+Shift+F9");  // now it declares, and is to play
  EXPECT_EQ(EnabledOf("mnuDefendBest mnuDeclareBest"), "mnuDefendBest mnuDeclareBest");
  ASSERT_TRUE(WaitFor(4));
  PlayAce();
  EXPECT_EQ(Played(), 4) << "not while its hand is on play";
  EXPECT_EQ(host.beeps, 1);
}

TEST_F(WhatIfWindowTest, TheProgramPlaysOneCardOrAllThatIsLeft) {
  Open();
  Bid("1S P P P");
  Key("F9");
  Key("F12");
  ASSERT_TRUE(WaitFor(1));
  EXPECT_EQ(RecordOfPlay(Control().Play()).cards.back(), test::CardOf("H2"));
  Key("Shift+F12");
  ASSERT_TRUE(WaitFor(52));
  EXPECT_EQ(Spoken("lblScore"), "1S+6 by North : NS +260");
  Key("Ctrl+Z");
  EXPECT_EQ(Played(), 51);
}

TEST_F(WhatIfWindowTest, ASolverThatFailsIsToldAndEndsIt) {
  Open();
  Bid("1S P P P");
  Key("F9");
  solver.solveCards = {};
  host.ExpectTell("The solver could not find a card to play");
  Key("Ctrl+F9");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Control().Program() == ProgramHands::None; }));
  solver.missing = "The solver is not installed";
  host.ExpectTell("The solver is not installed");
  Key("F12");
  EXPECT_TRUE(QTest::qWaitFor([&] { return host.Done(); }));
}

TEST_F(WhatIfWindowTest, AClaimIsCheckedWhenAskedAndCanBeTakenBack) {
  Open();
  Bid("1S P P P");
  Key("F9");
  PlayAce();  // East's; dummy, with the diamonds, is on play
  WithDialog("Ctrl+Shift+L", [&](const Driven& form) {
    EXPECT_EQ(form.Text("cmbClaimSide"), "North, declarer");
    EXPECT_EQ(form.Text("lblClaimResult"), "1S+6 by North : NS +260");
    form.Find<QSpinBox>("spnClaim")->setValue(9);
    EXPECT_EQ(form.Text("lblClaimResult"), "1S+2 by North : NS +140");
    form.Press("cmdCheckClaim");
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.Text("lblClaimCheck").starts_with("Claim"); }));
    EXPECT_EQ(form.Text("lblClaimCheck").substr(0, 30), "Claim 9: West can hold it to 1");
    form.Find<QComboBox>("cmbClaimSide")->setCurrentIndex(1);
    EXPECT_EQ(form.Text("lblClaimCheck"), "") << "it was of another claim";
    form.Find<QSpinBox>("spnClaim")->setValue(4);
    form.Press("cmdOK");
  });
  EXPECT_EQ(Spoken("lblScore"), "1S+2 by North : NS +140");
  Key("Ctrl+Z");
  EXPECT_EQ(Played(), 1);
  Key("Ctrl+Y");
  EXPECT_EQ(Spoken("lblScore"), "1S+2 by North : NS +140");
}

TEST_F(WhatIfWindowTest, AKeptPlayIsARecordAndNoLongerLost) {
  Open();
  Bid("1S P P P");
  session.board.handChanged = false;
  Key("F9");
  EXPECT_FALSE(Enabled("mnuKeepPlay"));
  PlayAce();
  const auto type = [](const Driven& form) {
    form.top->findChild<QLineEdit*>()->setText(QStringLiteral("Zoe"));
    FocusKey("Return");
  };
  WithDialog("Ctrl+Shift+K", type);
  EXPECT_TRUE(session.board.playMode) << "the play goes on";
  Key("F9");  // asks nothing
  EXPECT_FALSE(session.board.playMode);
  const Traveller& traveller = window->findChild<Results*>()->OfBoard();
  ASSERT_EQ(traveller.rows.size(), 2);
  EXPECT_EQ(traveller.rows[1].players[Seat::North], "Zoe");
  EXPECT_EQ(traveller.rows[1].record.cards.size(), 1);
}

}  // namespace
}  // namespace tricklet::ui
