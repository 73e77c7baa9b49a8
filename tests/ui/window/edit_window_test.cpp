// The editing of hands in the real main window, and its dialog.
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "core/statistics.h"
#include "tests/support/calls.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmSwap.h"
#include "ui/table/edit_layout.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

constexpr Card kSpadeAce{Suit::Spades, Rank::Ace};
constexpr Card kSpadeKing{Suit::Spades, Rank::King};
constexpr Card kHeartAce{Suit::Hearts, Rank::Ace};

/// Board 1: North, the dealer, has the spades, East the hearts, South the diamonds, West the clubs.
class EditWindowTest : public WindowTest {
 protected:
  void OpenEditing(EditMethod method) {
    session.settings.editMethod = method;
    Open();
    Click("cmdEdit");
    ASSERT_TRUE(Shown("fraEdit"));
  }

  TableView* Table() const { return window->findChild<TableView*>(); }
  HandFrame FrameOf(Card card) const { return FrameHolding(session.board.hands, card); }
  EditLayout Layout() const { return LayOutEdit(Table()->size(), session.board.hands); }
  /// Where the card can be seized: no other one lies over its index.
  QPoint PointOf(Card card) const {
    const EditLayout layout = Layout();
    for (const PlacedCard& placed : layout.table.cards) {
      if (placed.card == card) return (placed.rect.topLeft() + QPointF(4, 4)).toPoint();
    }
    const QRectF& place = layout.packPlaces.at(static_cast<std::size_t>(card.Index()));
    return (place.topLeft() + QPointF(4, 4)).toPoint();
  }
  QPoint PointOf(HandFrame frame) const { return Layout().Caption(frame).center().toPoint(); }

  void Seize(QPoint at) const { QTest::mousePress(Table(), Qt::LeftButton, Qt::NoModifier, at); }
  void MoveTo(QPoint at) const {
    QMouseEvent move(QEvent::MouseMove, at, Table()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(Table(), &move);
  }
  void Release(QPoint at) const {
    QTest::mouseRelease(Table(), Qt::LeftButton, Qt::NoModifier, at);
  }
  void Drag(Card card, QPoint to) const {
    const QPoint from = PointOf(card);
    Seize(from);
    MoveTo((from + to) / 2);
    MoveTo(to);
    Release(to);
  }
  void ClickAt(QPoint at) const { QTest::mouseClick(Table(), Qt::LeftButton, Qt::NoModifier, at); }
  void TypeHand(int seat, const char* text) const {
    auto* line = Find<QLineEdit>(("txtHand_" + std::to_string(seat)).c_str());
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, QString::fromLatin1(text));
  }
  QString Line(int seat) const {
    return Find<QLineEdit>(("txtHand_" + std::to_string(seat)).c_str())->text();
  }

  bool Enabled(const char* name) const { return Find<QPushButton>(name)->isEnabled(); }
  int CardsDealt() const {
    int cards = 0;
    for (const int count : GetStats(session.board.hands).seatCardCount) cards += count;
    return cards;
  }

  void ExpectNothingLeftOfEditing(const char* after) const {
    EXPECT_FALSE(Shown("fraEdit")) << after;
    EXPECT_EQ(Shown("cmbBoard"), !session.board.playMode) << after;
    EXPECT_EQ(Find<QPushButton>("cmdEdit")->text(), QStringLiteral("Edit")) << after;
    for (const char* name : {"mnuNext", "mnuGoTo", "mnuNewLibrary"}) {
      EXPECT_TRUE(Offered(name)) << name << " after " << after;
    }
    for (const char* name : {"mnuRandom", "mnuFillFourth", "mnuUndoFill"}) {
      EXPECT_FALSE(Offered(name)) << name << " after " << after;
    }
    const HandTable before = session.board.hands;
    Drag(kSpadeAce, PointOf(HandFrame::Pack));
    EXPECT_EQ(session.board.hands, before) << after;
  }
};

TEST_F(EditWindowTest, EditingShowsThePackAndTakesTheRestAway) {
  session.board.makeableValid = true;
  test::SetAuction(session.board, "1S P P P");
  OpenEditing(EditMethod::Dragging);
  for (const char* name :
       {"cmbLibs", "cmbBoard", "flexBids", "lblContract", "fraStats", "fraMakeable"}) {
    EXPECT_FALSE(Shown(name)) << name;
  }
  for (const char* name : {"cmdBidding", "cmdDDS", "cmdRandom", "cmdFillFourth", "cmdUndoFill",
                           "cmdUndoClear", "cmdSave"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  for (const char* name : {"mnuBidding", "mnuNext", "mnuPrevious", "mnuGoTo", "mnuNewLibrary"}) {
    EXPECT_FALSE(Offered(name)) << name;
  }
  EXPECT_TRUE(Enabled("cmdClear"));
  Key(Qt::Key_PageDown);
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_FALSE(session.board.handChanged) << "nothing has been edited yet";
  EXPECT_TRUE(session.board.makeableValid);
  Click("cmdEdit");
  ExpectNothingLeftOfEditing("the button");
  EXPECT_TRUE(Shown("lblContract"));
  EXPECT_TRUE(Shown("fraMakeable"));
}

TEST_F(EditWindowTest, MouseAndKeysMoveCardsOfTheBoard) {
  session.board.makeableValid = true;
  OpenEditing(EditMethod::Dragging);
  Drag(kSpadeAce, PointOf(HandFrame::East));
  EXPECT_EQ(host.beeps, 1) << "East is full";
  EXPECT_TRUE(session.board.makeableValid && !session.board.handChanged);
  Drag(kHeartAce, PointOf(HandFrame::Pack));
  EXPECT_EQ(FrameOf(kHeartAce), HandFrame::Pack);
  EXPECT_TRUE(!session.board.makeableValid && session.board.handChanged);
  EXPECT_TRUE(
      Table()->accessibleDescription().contains(QStringLiteral("Pack: spades void; hearts A")));
  FocusKeys("HAE");
  EXPECT_EQ(FrameOf(kHeartAce), HandFrame::East);
  Seize(PointOf(kSpadeAce));
  MoveTo(PointOf(HandFrame::Pack));
  Key(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier);
  Release(PointOf(HandFrame::North));
  EXPECT_EQ(CardsDealt(), 0) << "cleared under the mouse";
}

TEST_F(EditWindowTest, HandsAreTypedAndRefusedWithTheReason) {
  OpenEditing(EditMethod::Typing);
  EXPECT_EQ(Line(0), QStringLiteral("AKQJT98765432.-.-.-"));
  EXPECT_TRUE(Find<QLineEdit>("txtHand_0")->hasFocus());
  FocusKey(Qt::Key_Tab);
  EXPECT_FALSE(session.board.handChanged) << "looked at";
  TypeHand(0, "ak102...");
  FocusKey(Qt::Key_Return);
  EXPECT_EQ(session.board.hands[Seat::North][Suit::Spades], AddSpace("AK12"));
  EXPECT_EQ(Line(0), QStringLiteral("AKT2.-.-.-"));
  TypeHand(1, "AQ.3..");
  const HandTable before = session.board.hands;
  host.ExpectTell("\u2660A is held by North");
  FocusKey(Qt::Key_Return);
  EXPECT_EQ(Line(1), QStringLiteral("AQ.3..")) << "to be corrected";
  EXPECT_TRUE(Find<QLineEdit>("txtHand_1")->hasFocus());
  host.ExpectTell("\u2660A is held by North");
  FocusKey(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(session.board.handChanged) << "not saved without the hand that was being typed";
  EXPECT_EQ(session.board.hands, before);
  TypeHand(1, "Q.3..");
  host.ExpectAskWith("Overwrite existing board 1?", Answer::Yes);
  FocusKey(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(session.board.hands[Seat::East][Suit::Hearts], AddSpace("3")) << "taken over and saved";
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_TRUE(Shown("fraEdit"));
  TypeHand(1, "Q.32..");
  FocusKey(Qt::Key_Tab);
  const auto taken = [this] { return session.board.handChanged; };
  EXPECT_TRUE(QTest::qWaitFor(taken)) << "by leaving the line";
  EXPECT_EQ(session.board.hands[Seat::East][Suit::Hearts], AddSpace("32"));
  TypeHand(2, "X.3..");
  host.ExpectTell("X does not begin with a rank");
  EXPECT_FALSE(window->close());
  FocusKey(Qt::Key_Escape);
  EXPECT_EQ(Line(2), QStringLiteral("-.-.AKQJT98765432.-")) << "given up";
}

TEST_F(EditWindowTest, ABoardIsClearedFilledSwappedAndSavedByClicks) {
  OpenEditing(EditMethod::Clicking);
  Click("cmdClear");
  Click("cmdUndoClear");
  EXPECT_EQ(session.board.hands[Seat::North][Suit::Spades].Count(), 13);
  EXPECT_FALSE(Enabled("cmdUndoClear"));
  Click("cmdClear");
  ClickAt(PointOf(HandFrame::North));
  for (const Card card : {kSpadeAce, kSpadeKing, kHeartAce}) ClickAt(PointOf(card));
  const HandTable partial = session.board.hands;
  Click("cmdRandom");
  EXPECT_TRUE(GetStats(session.board.hands).allHandsComplete);
  EXPECT_EQ(FrameOf(kHeartAce), HandFrame::North);
  EXPECT_FALSE(Enabled("cmdRandom"));
  EXPECT_TRUE(Enabled("cmdPlay"));
  Click("cmdUndoFill");
  EXPECT_EQ(session.board.hands, partial);
  EXPECT_FALSE(Enabled("cmdUndoFill"));
  Click("cmdRandom");
  const HandTable full = session.board.hands;
  for (const Suit suit : kAllSuits) session.board.hands[Seat::West][suit] = Holding();
  window->Display();
  Click("cmdFillFourth");
  EXPECT_EQ(session.board.hands, full);

  Expect<frmSwap>([](const frmSwap& dialog) {
    EXPECT_FALSE(dialog.findChild<QCheckBox*>(QStringLiteral("chkAuction"))->isEnabled());
    for (const char* name :
         {"OptFrom_1", "OptTo_3", "cmdSwap", "OptFromSuit_3", "OptToSuit_0", "cmdSwapSuit",
          "cmdRotate_0", "cmdRotate_2", "cmdRotate_1", "cmdCancel"}) {
      Press(dialog, name);
    }
  });
  Click("cmdSwap");
  HandTable expected;  // all of that comes to half a turn with East and West exchanged before
  expected[Seat::North] = full[Seat::South];
  expected[Seat::South] = full[Seat::North];
  expected[Seat::East] = full[Seat::East];
  expected[Seat::West] = full[Seat::West];
  for (const Seat seat : kAllSeats) {
    std::swap(expected[seat][Suit::Spades], expected[seat][Suit::Clubs]);
  }
  EXPECT_EQ(session.board.hands, expected);
  host.ExpectAskWith("Overwrite existing board 1?", Answer::Yes);
  Click("cmdSave");
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_TRUE(Shown("fraEdit")) << "saving goes on with editing";
  Click("cmdEdit");
  Click("lblNext");
  Click("lblPrevious");
  EXPECT_EQ(session.board.hands, expected) << "read back";
  Click("cmdEdit");
  EXPECT_FALSE(Enabled("cmdUndoClear")) << "not of a board that was loaded since";
  EXPECT_FALSE(Enabled("cmdUndoFill"));
}

TEST_F(EditWindowTest, TheAuctionGoesRoundTheTableOnlyWhenItIsTicked) {
  Open();
  test::SetAuction(session.board, "1S P P P");
  window->Display();
  Expect<frmSwap>([this](const frmSwap& dialog) {
    const auto press = [&](const char* name) { Press(dialog, name); };
    press("cmdRotate_0");
    EXPECT_EQ(session.board.declarer, Seat::North);
    press("chkAuction");
    press("cmdRotate_0");
    EXPECT_EQ(session.board.declarer, Seat::East);
    EXPECT_EQ(Find<QLabel>("lblContract")->accessibleName(), QStringLiteral("1S by East"));
    test::SetAuction(session.board, "P P P P 1S");
    const HandTable before = session.board.hands;
    host.ExpectTell("The auction cannot be taken along");
    press("cmdRotate_0");
    EXPECT_EQ(session.board.hands, before);
    press("cmdCancel");
  });
  Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(session.board.hands[Seat::South][Suit::Spades].Count(), 13);
}

TEST_F(EditWindowTest, EditingInMidPlayIsAskedAbout) {
  Open();
  test::SetAuction(session.board, "1S P P P");
  window->Display();
  Click("cmdPlay");
  FocusKeys("HA");
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    host.ExpectAskWith("Confirm that you wish to edit this hand", answer);
    Click("cmdEdit");
    EXPECT_EQ(session.board.playMode, answer == Answer::No);
    EXPECT_EQ(Shown("fraEdit"), answer == Answer::Yes);
  }
  EXPECT_EQ(FrameOf(kHeartAce), HandFrame::East) << "no card stays on the table";
}

TEST_F(EditWindowTest, NothingIsLeftOfEditingThatEnds) {
  const auto file = folder.Path() / "one.pbn";
  test::WriteFile(file,
                  "% PBN 2.1\n[Board \"5\"]\n[Deal \"N:AKQJT98765432... .AKQJT98765432.. "
                  "..AKQJT98765432. ...AKQJT98765432\"]\n\n");
  const struct {
    const char* name;
    std::function<void()> leave;
  } ways[] = {
      {"the key", [this] { Key(Qt::Key_H, Qt::ControlModifier); }},
      {"playing", [this] { Click("cmdPlay"); }},
      {"reading the libraries anew", [this] { Key(Qt::Key_F5); }},
      {"an import",
       [&] {
         host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
         host.ExpectTell("Hand 5 has been saved to the library - Club");
         window->ImportFiles({file});
       }},
  };
  Open();
  for (const auto& [name, leave] : ways) {
    test::SetAuction(session.board, "1S P P P");
    window->Display();
    Click("cmdEdit");
    ASSERT_TRUE(Shown("fraEdit")) << name;
    leave();
    ExpectNothingLeftOfEditing(name);
    session.board.playMode = false;
    session.board.handChanged = false;
  }
}

}  // namespace
}  // namespace tricklet::ui
