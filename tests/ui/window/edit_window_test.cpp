// The editing of hands in the real main window, and its dialog.
#include "core/statistics.h"
#include "generate/rotation.h"
#include "library/board_store.h"
#include "tests/ui/geometry.h"
#include "tests/ui/window_fixture.h"

namespace tricklet::ui {
namespace {

/// Board 1: North, the dealer, has the spades, East the hearts, South the diamonds, West the clubs.
class EditWindowTest : public WindowTest {
 protected:
  void OpenEditing(EditMethod method) {
    session.settings.editMethod = method;
    Open();
    Click("cmdEdit");
    ASSERT_TRUE(Shown("fraEdit"));
  }
  EditLayout Layout() const { return LayOutEdit(Table()->size(), session.board.hands); }
  QPoint PointOf(const char* card) const {
    return SeizePoint(Layout(), test::CardOf(card)).toPoint();
  }
  QPoint PointOf(HandFrame frame) const { return Layout().Caption(frame).center().toPoint(); }

  void Seize(const char* card) const {
    QTest::mousePress(Table(), Qt::LeftButton, Qt::NoModifier, PointOf(card));
  }
  void MoveTo(QPoint at) const {
    QMouseEvent move(QEvent::MouseMove, at, Table()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(Table(), &move);
  }
  void Release(QPoint at) const {
    QTest::mouseRelease(Table(), Qt::LeftButton, Qt::NoModifier, at);
  }
  void Drag(const char* card, QPoint to) const {
    Seize(card);
    MoveTo((PointOf(card) + to) / 2);
    MoveTo(to);
    Release(to);
  }

  void ExpectNothingLeftOfEditing(const char* after) const {
    EXPECT_FALSE(Shown("fraEdit")) << after;
    EXPECT_EQ(Shown("cmbBoard"), !session.board.playMode) << after;
    EXPECT_EQ(Text("cmdEdit"), "Edit") << after;
    EXPECT_EQ(EnabledOf("mnuNext mnuGoTo mnuNewLibrary mnuRandom mnuFillFourth mnuUndoFill"),
              "mnuNext mnuGoTo mnuNewLibrary")
        << after;
    const HandTable before = session.board.hands;
    Drag("SA", PointOf(HandFrame::Pack));
    EXPECT_EQ(session.board.hands, before) << after;
  }
};

TEST_F(EditWindowTest, ABoardThatComesWithItsChangesCanGoBackToItsFile) {
  Open();
  const HandTable stored = session.board.hands;
  ClearAll(session.board);
  session.board.handChanged = true;
  ++session.boardsLoaded;
  window->Display();
  EXPECT_EQ(EnabledOf("mnuUndo mnuRevert"), "mnuUndo mnuRevert");
  Find<QAction>("mnuUndo")->trigger();
  EXPECT_TRUE(session.board.hands == stored && !session.board.handChanged);
  Find<QAction>("mnuRedo")->trigger();
  EXPECT_TRUE(session.board.hands != stored && session.board.handChanged);
}

TEST_F(EditWindowTest, EditingShowsThePackAndTakesTheRestAway) {
  session.board.makeableValid = true;
  test::SetAuction(session.board, "1S P P P");
  OpenEditing(EditMethod::Dragging);
  EXPECT_EQ(ShownOf("cmbLibs cmbBoard flexBids lblContract fraStats fraMakeable"), "");
  EXPECT_EQ(EnabledOf("cmdBidding cmdDDS cmdRandom cmdFillFourth cmdUndoFill cmdUndoClear cmdSave "
                      "mnuBidding mnuNext mnuPrevious mnuGoTo mnuNewLibrary cmdClear"),
            "cmdClear");
  Key("PgDown");
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_FALSE(session.board.handChanged) << "nothing has been edited yet";
  EXPECT_TRUE(session.board.makeableValid);
  Click("cmdEdit");
  EXPECT_EQ(ShownOf("lblContract fraMakeable"), "lblContract fraMakeable");
}

TEST_F(EditWindowTest, MouseAndKeysMoveCardsOfTheBoard) {
  session.board.makeableValid = true;
  OpenEditing(EditMethod::Dragging);
  Drag("SA", PointOf(HandFrame::East));
  EXPECT_EQ(host.beeps, 1) << "East is full";
  EXPECT_TRUE(session.board.makeableValid && !session.board.handChanged);
  Drag("HA", PointOf(HandFrame::Pack));
  EXPECT_TRUE(!session.board.makeableValid && session.board.handChanged);
  EXPECT_TRUE(
      Table()->accessibleDescription().contains(QStringLiteral("Pack: spades void; hearts A")));
  FocusKeys("HAE");
  EXPECT_TRUE(session.board.hands[Seat::East][Suit::Hearts].Has(Rank::Ace));
  Seize("SA");
  MoveTo(PointOf(HandFrame::Pack));
  Key("Ctrl+Shift+Del");
  Release(PointOf(HandFrame::North));
  EXPECT_FALSE(HasCards(session.board.hands)) << "cleared under the mouse";
}

TEST_F(EditWindowTest, HandsAreTypedAndRefusedWithTheReason) {
  OpenEditing(EditMethod::Typing);
  EXPECT_EQ(Text("txtHand_0"), "AKQJT98765432.-.-.-");
  EXPECT_EQ(Focus(), "txtHand_0");
  FocusKey("Tab");
  EXPECT_FALSE(session.board.handChanged) << "looked at";
  Type("txtHand_0", "ak102...");
  FocusKey("Return");
  EXPECT_EQ(Text("txtHand_0"), "AKT2.-.-.-");
  Type("txtHand_1", "AQ.3..");
  for (const char* key : {"Return", "Ctrl+S"}) {
    host.ExpectTell("\u2660A is held by North");
    FocusKey(key);
    EXPECT_EQ(Text("txtHand_1"), "AQ.3..") << "to be corrected";
    EXPECT_EQ(Focus(), "txtHand_1");
  }
  EXPECT_TRUE(session.board.handChanged) << "not saved without the hand that was being typed";
  Type("txtHand_1", "Q.3..");
  host.ExpectAskWith("Overwrite existing board 1?", Answer::Yes);
  FocusKey("Ctrl+S");
  EXPECT_EQ(session.board.hands[Seat::East][Suit::Hearts], AddSpace("3")) << "taken over and saved";
  EXPECT_FALSE(session.board.handChanged);
  Type("txtHand_1", "Q.32..");
  FocusKey("Tab");
  const auto taken = [this] { return session.board.handChanged; };
  EXPECT_TRUE(QTest::qWaitFor(taken)) << "by leaving the line";
  EXPECT_EQ(session.board.hands[Seat::East][Suit::Hearts], AddSpace("32"));
  Type("txtHand_2", "X.3..");
  host.ExpectTell("X does not begin with a rank");
  EXPECT_FALSE(window->close());
  FocusKey("Esc");
  EXPECT_EQ(Text("txtHand_2"), "-.-.AKQJT98765432.-") << "given up";
  Type("txtHand_2", "X.3..");
  Click("cmdClear");
  EXPECT_EQ(Text("txtHand_2"), "") << "a refused hand does not stand in the way";
}

TEST_F(EditWindowTest, ABoardIsClearedFilledAndSavedByClicks) {
  OpenEditing(EditMethod::Clicking);
  Click("cmdClear");
  Click("cmdUndoClear");
  EXPECT_EQ(session.board.hands[Seat::North][Suit::Spades].Count(), 13);
  EXPECT_FALSE(Enabled("cmdUndoClear"));
  Click("cmdClear");
  ClickAt(PointOf(HandFrame::North));
  for (const char* card : {"SA", "SK", "HA"}) ClickAt(PointOf(card));
  const HandTable partial = session.board.hands;
  Click("cmdRandom");
  EXPECT_TRUE(GetStats(session.board.hands).allHandsComplete);
  EXPECT_TRUE(session.board.hands[Seat::North][Suit::Hearts].Has(Rank::Ace));
  EXPECT_EQ(EnabledOf("cmdRandom cmdPlay"), "cmdPlay");
  Click("cmdUndoFill");
  EXPECT_EQ(session.board.hands, partial);
  EXPECT_FALSE(Enabled("cmdUndoFill"));
  Click("cmdRandom");
  const HandTable full = session.board.hands;
  session.board.hands[Seat::West] = {};
  window->Display();
  Click("cmdFillFourth");
  EXPECT_EQ(session.board.hands, full);
  host.ExpectAskWith("Overwrite existing board 1?", Answer::Yes);
  Click("cmdSave");
  EXPECT_TRUE(Shown("fraEdit")) << "saving goes on with editing";
  for (const char* button : {"cmdEdit", "lblNext", "lblPrevious", "cmdEdit"}) Click(button);
  EXPECT_EQ(session.board.hands, full) << "read back";
  EXPECT_EQ(EnabledOf("cmdUndoClear cmdUndoFill"), "") << "not of a board that was loaded since";
}

TEST_F(EditWindowTest, HandsAndSuitsAreExchangedAndTheAuctionGoesRoundOnlyWhenItIsTicked) {
  Open();
  Expect([](const Driven& form) {
    EXPECT_FALSE(form.Enabled("chkAuction"));
    form.PressAll(
        "OptFrom_1 OptTo_3 cmdSwap OptFromSuit_3 OptToSuit_0 cmdSwapSuit "
        "cmdRotate_0 cmdRotate_2 cmdRotate_1 cmdCancel");
  });
  Click("cmdSwap");
  EXPECT_EQ(session.board.hands,
            test::HandsOf("W:AKQJT98765432... ..AKQJT98765432. .AKQJT98765432.. ...AKQJT98765432"));
  Bid("1S P P P");
  WithDialog("Ctrl+R", [this](const Driven& form) {
    form.Press("cmdRotate_0");
    EXPECT_EQ(Spoken("lblContract"), "1S by North");
    form.PressAll("chkAuction cmdRotate_0");
    EXPECT_EQ(Spoken("lblContract"), "1S by East");
    test::SetAuction(session.board, "P P P P 1S");
    host.ExpectTell("The auction cannot be taken along");
    form.PressAll("cmdRotate_0 cmdCancel");
  });
}

TEST_F(EditWindowTest, EditingInMidPlayIsAskedAbout) {
  Open();
  Bid("1S P P P");
  Click("cmdPlay");
  FocusKeys("HA");
  host.ExpectAskWith("Confirm that you wish to edit this hand", Answer::Yes);
  Click("cmdEdit");
  EXPECT_FALSE(session.board.playMode);
  EXPECT_TRUE(Shown("fraEdit"));
  EXPECT_TRUE(session.board.hands[Seat::East][Suit::Hearts].Has(Rank::Ace))
      << "no card stays on the table";
}

TEST_F(EditWindowTest, NothingIsLeftOfEditingThatEnds) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"the key", [this] { Key("Ctrl+H"); }},
      {"playing", [this] { Click("cmdPlay"); }},
      {"reading the libraries anew", [this] { Key("F5"); }},
      {"an import", [this] { ImportBoardFive(); }},
  };
  Open();
  for (const auto& [name, leave] : ways) {
    Bid("1S P P P");
    Click("cmdEdit");
    ASSERT_TRUE(Shown("fraEdit")) << name;
    leave();
    ExpectNothingLeftOfEditing(name);
    session.board.playMode = false;
    session.board.handChanged = false;
  }
}

TEST_F(EditWindowTest, EveryChangeCanBeUndoneByOneKey) {
  OpenEditing(EditMethod::Dragging);
  const HandTable dealt = session.board.hands;
  Drag("HA", PointOf(HandFrame::Pack));
  Key("Ctrl+Shift+Del");
  EXPECT_EQ(FromQt(Find<QAction>("mnuUndo")->text()), "&Undo clear");
  EXPECT_TRUE(Enabled("cmdUndoClear"));
  Key("Ctrl+Z");
  EXPECT_FALSE(Enabled("cmdUndoClear")) << "the button agrees";
  EXPECT_TRUE(Enabled("cmdUndoFill") == false && session.board.handChanged);
  Key("Ctrl+Z");
  EXPECT_TRUE(session.board.hands == dealt && !session.board.handChanged);
  EXPECT_FALSE(Enabled("mnuUndo"));
  Key("Ctrl+Shift+Z");
  Key("Ctrl+Shift+Z");
  EXPECT_FALSE(HasCards(session.board.hands));
  Key("Ctrl+Shift+S");
  EXPECT_TRUE(session.board.hands == dealt && !session.board.handChanged) << "reverted";
  Key("Ctrl+Z");
  EXPECT_FALSE(HasCards(session.board.hands)) << "and that undone";
}

TEST_F(EditWindowTest, APasteAndAnAuctionAreStepsUntilTheBoardIsLeft) {
  Open();
  SelectBoard(session, 3);
  swap(session.board, Seat::North, Seat::East);
  host.ExpectAskWith("Overwrite existing board 3?", Answer::Yes);
  SaveHand(session);
  Key("Ctrl+C");
  SelectBoard(session, 1);
  window->Display();
  const HandTable dealt = session.board.hands;
  WithDialog("Ctrl+B", [](const Driven& form) {
    Driven::FocusKeys("1sppp");
    form.Press("cmdOK");
  });
  host.ExpectAskWith("Do you wish to overwrite", Answer::Yes);
  Key("Ctrl+V");
  EXPECT_EQ(FromQt(Find<QAction>("mnuUndo")->text()), "&Undo paste");
  Key("Ctrl+Z");
  EXPECT_TRUE(session.board.hands == dealt && session.board.handChanged);
  EXPECT_EQ(FromQt(Find<QAction>("mnuUndo")->text()), "&Undo auction");
  Key("Ctrl+Shift+Del");
  host.ExpectAskWith("Do you wish to overwrite", Answer::No);
  Key("Ctrl+V");  // its cards are still stored
  EXPECT_FALSE(HasCards(session.board.hands));
}

}  // namespace
}  // namespace tricklet::ui
