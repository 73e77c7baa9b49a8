// The auction dialog and the play in the real main window.
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>

#include "tests/support/calls.h"
#include "tests/ui/window_fixture.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmBidding.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

/// Board 1: North, the dealer, has the spades, East the hearts, South the diamonds, West the clubs.
class PlayWindowTest : public WindowTest {
 protected:
  void Bid(const std::string& auction) {
    test::SetAuction(session.board, auction);
    window->Display();
  }
  void StartPlay(const std::string& auction = "1S P P P") {
    Bid(auction);
    Click("cmdPlay");
    ASSERT_TRUE(session.board.playMode);
  }

  const PlayState& Now() const { return window->findChild<PlayControl*>()->Play().Now(); }
  TableView* Table() const { return window->findChild<TableView*>(); }
  /// Clicks on the first card of the hand on play that may be played.
  void ClickLegalCard() const {
    const CardPlay& play = window->findChild<PlayControl*>()->Play();
    for (const PlacedCard& placed : Table()->Layout().cards) {
      if (!play.IsLegal(placed.card)) continue;
      const QPointF corner = placed.rect.topLeft() + QPointF(4, 4);  // no other card lies over it
      QTest::mouseClick(Table(), Qt::LeftButton, Qt::NoModifier, corner.toPoint());
      return;
    }
    ADD_FAILURE() << "no legal card lies on the table";
  }
  void ClickCards(int count) const {
    for (int i = 0; i < count; ++i) ClickLegalCard();
  }

  QString Text(const char* label) const { return Find<QLabel>(label)->accessibleName(); }
  QString Tricks() const {
    return Find<QLabel>("lblTricks_0")->text() + QStringLiteral(" ") +
           Find<QLabel>("lblTricks_1")->text();
  }

  void ExpectNothingLeftOfPlay(const char* after) const {
    EXPECT_FALSE(session.board.playMode) << after;
    EXPECT_FALSE(Find<QTimer>("timQuit")->isActive()) << after;
    for (const char* name : {"fraPlay", "lblTricks_0", "lblTricks_1", "lblScore"}) {
      EXPECT_FALSE(Shown(name)) << name << " after " << after;
    }
    for (const char* name : {"mnuUndoCard", "mnuClaim", "mnuGatherTrick"}) {
      EXPECT_FALSE(Offered(name)) << name << " after " << after;
    }
    EXPECT_TRUE(Offered("mnuBidding")) << after;
    EXPECT_EQ(Find<QPushButton>("cmdPlay")->text(), QStringLiteral("Play")) << after;
    EXPECT_EQ(Shown("fraStats"), HasCards(session.board.hands)) << after;
    EXPECT_TRUE(Shown("fraLibrary")) << after;
    const auto* next = Find<QToolButton>("lblNext");
    EXPECT_EQ(next->palette().color(QPalette::Button), window->palette().color(QPalette::Button));
    QPoint trick = Table()->rect().center();
    QTest::mouseClick(Table(), Qt::LeftButton, Qt::NoModifier, trick);
    EXPECT_FALSE(session.board.playMode) << after;
  }
};

TEST_F(PlayWindowTest, AnAuctionIsTypedWhileGridAndTableFollow) {
  Open();
  const auto* grid = Find<QTableWidget>("flexBids");
  Click("cmdBid");  // hidden: the dialog brings it back for a while
  Expect<frmBidding>([&](frmBidding& dialog) {
    const auto text = [&](const char* name) {
      return dialog.findChild<QLabel*>(QString::fromLatin1(name))->text();
    };
    const auto enabled = [&](const char* name) {
      return dialog.findChild<QPushButton*>(QString::fromLatin1(name))->isEnabled();
    };
    EXPECT_TRUE(grid->isVisible());
    EXPECT_EQ(text("lblModifyBidding"), QStringLiteral("North to call"));
    FocusKeys("1");
    EXPECT_EQ(text("lblTyped"), QStringLiteral("1..."));
    FocusKey(Qt::Key_Backspace);
    EXPECT_EQ(text("lblTyped"), QString());
    FocusKeys("1sx2");
    EXPECT_EQ(grid->item(0, 1)->text(), QStringLiteral(u"1\u2660"));
    EXPECT_EQ(grid->item(0, 2)->text(), QStringLiteral("Dbl"));
    EXPECT_EQ(text("lblModifyBidding"), QStringLiteral("South to call"));
    EXPECT_TRUE(enabled("cmdRdb"));
    FocusKey(Qt::Key_Backspace);  // the half-typed call
    FocusKey(Qt::Key_Backspace);  // the double
    EXPECT_EQ(grid->item(0, 2), nullptr);
    EXPECT_EQ(host.beeps, 0);
    FocusKey(Qt::Key_Return);
    FocusKeys("1c");
    EXPECT_EQ(host.beeps, 2) << "OK, and one club over one spade";
    Press(dialog, "cmdBid_9");
    EXPECT_FALSE(enabled("cmdBid_9"));
    EXPECT_TRUE(enabled("cmdBid_10"));
    FocusKeys("ppp");
    EXPECT_EQ(text("lblModifyBidding"), QStringLiteral("The auction is over"));
    EXPECT_FALSE(enabled("cmdPass"));
    EXPECT_TRUE(session.board.calls.Empty()) << "the board changes with OK only";
    FocusKey(Qt::Key_Return);
  });
  Key(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(session.board.contract, "2NT");
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_EQ(Text("lblContract"), QStringLiteral("2NT by East"));
  EXPECT_FALSE(grid->isVisible());
}

TEST_F(PlayWindowTest, FocusOfTheDialogStaysWhereItIsNotACancel) {
  Open();
  Click("lblNext");  // a board without cards can be bid, but not played
  EXPECT_FALSE(Find<QPushButton>("cmdPlay")->isEnabled() || Offered("mnuPlay"));
  Expect<frmBidding>([&](frmBidding& dialog) {
    const auto focus = [&] { return FromQt(dialog.focusWidget()->objectName()); };
    const auto press = [&](const char* name) {
      dialog.findChild<QPushButton*>(QString::fromLatin1(name))->setFocus();
      FocusKey(Qt::Key_Space);
      return focus();
    };
    EXPECT_EQ(focus(), "cmdPass");
    EXPECT_EQ(press("cmdAllPass"), "cmdOK");
    FocusKey(Qt::Key_Backspace);
    EXPECT_EQ(focus(), "cmdPass");
    EXPECT_EQ(press("cmdClear"), "cmdPass");
    FocusKeys("3nppp");
    FocusKey(Qt::Key_Space);  // on OK
  });
  Click("cmdBidding");
  EXPECT_EQ(Text("lblContract"), QStringLiteral("3NT by East"));
}

TEST_F(PlayWindowTest, LeavingTheDialogAsksAndRestores) {
  Open();
  Bid("1S P P P");
  void (*const ways[])(frmBidding&) = {
      [](frmBidding& dialog) { Press(dialog, "cmdCancel"); },
      [](frmBidding& /*dialog*/) { FocusKey(Qt::Key_Escape); },
      [](frmBidding& dialog) { dialog.close(); },
  };
  const auto* grid = Find<QTableWidget>("flexBids");
  for (const auto& leave : ways) {
    Expect<frmBidding>([&](frmBidding& dialog) {
      Press(dialog, "cmdClear");
      FocusKeys("7");
      FocusKey(Qt::Key_Return);
      EXPECT_TRUE(dialog.isVisible()) << "half a call does not confirm the empty auction";
      FocusKeys("c");
      host.ExpectAskWith("Any bidding changes will be lost", Answer::Cancel);
      leave(dialog);
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(grid->item(0, 1)->text(), QStringLiteral(u"7\u2663"));
      host.ExpectAskWith("Any bidding changes will be lost", Answer::OK);
      leave(dialog);
    });
    Click("cmdBidding");
    EXPECT_EQ(session.board.contract, "1S");
    EXPECT_EQ(grid->item(0, 1)->text(), QStringLiteral(u"1\u2660"));
    EXPECT_EQ(grid->item(0, 2)->text(), QStringLiteral("Pass"));
    EXPECT_FALSE(session.board.handChanged);
  }
}

TEST_F(PlayWindowTest, TheDialogCoversNeitherTheAuctionNorTheMiddleOfTheTable) {
  Open();
  for (const QSize size : {QSize(1024, 700), QSize(1280, 800)}) {
    window->resize(size);
    QCoreApplication::processEvents();
    Expect<frmBidding>([&](frmBidding& dialog) {
      const auto place = [](const QWidget* widget, QRect part) {
        return part.translated(widget->mapToGlobal(QPoint()));
      };
      const QRect frame = dialog.frameGeometry();
      const auto* grid = Find<QWidget>("flexBids");
      EXPECT_FALSE(frame.intersects(place(grid, grid->rect())));
      EXPECT_FALSE(frame.intersects(place(Table(), Table()->Layout().centre.toRect())));
      EXPECT_TRUE(window->frameGeometry().contains(frame));
      host.ExpectAskWith("Any bidding changes will be lost", Answer::OK);
      dialog.close();
    });
    Click("cmdBidding");
  }
}

TEST_F(PlayWindowTest, BiddingInAPresentationShowsNoAnswers) {
  session.board.makeableValid = true;
  Open();
  session.board.makeableValid = true;
  Key(Qt::Key_F11);
  const auto look = [this](bool answers) {
    Expect<frmBidding>([this, answers](frmBidding& dialog) {
      EXPECT_TRUE(Shown("flexBids"));
      EXPECT_EQ(Shown("lvwMake"), answers);
      host.ExpectAskWith("Any bidding changes will be lost", Answer::OK);
      Press(dialog, "cmdCancel");
    });
    Key(Qt::Key_B, Qt::ControlModifier);
  };
  look(false);
  Key(Qt::Key_F11, Qt::ShiftModifier);  // unless they are switched on
  look(true);
}

TEST_F(PlayWindowTest, PlayComesAfterTheAuctionThatItNeeds) {
  Open();
  const auto cancel = [this](frmBidding& dialog) {
    host.ExpectAskWith("Any bidding changes will be lost", Answer::OK);
    Press(dialog, "cmdCancel");
  };
  const auto passOut = [this](frmBidding& dialog) {
    Press(dialog, "cmdAllPass");
    host.ExpectTell("The bidding was All Pass");
    Press(dialog, "cmdOK");
  };
  const auto bid = [](frmBidding& dialog) {
    Press(dialog, "cmdClear");
    FocusKeys("1nppp");
    Press(dialog, "cmdOK");
  };
  const struct {
    std::function<void(frmBidding&)> auction;
    const char* score;
    bool plays;
  } steps[] = {{cancel, "", false}, {passOut, "All Pass : 0", false}, {bid, "", true}};
  for (const auto& [auction, score, plays] : steps) {
    Expect<frmBidding>(auction);
    Key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(session.board.playMode, plays);
    EXPECT_EQ(Text("lblScore"), QString::fromLatin1(score));
    EXPECT_EQ(Shown("lblTricks_0"), plays);
  }
  EXPECT_EQ(Find<QPushButton>("cmdPlay")->text(), QStringLiteral("Stop play"));
  EXPECT_EQ(window->focusWidget(), Table());
}

TEST_F(PlayWindowTest, AWholeBoardIsPlayedByClicks) {
  Open();
  StartPlay();
  EXPECT_FALSE(Shown("fraStats"));
  EXPECT_FALSE(Find<QPushButton>("cmdBidding")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("cmdUndo")->isEnabled());
  EXPECT_EQ(Find<QPushButton>("cmdClaim")->text(), QStringLiteral("Claim by East"));
  ClickCards(4);
  EXPECT_EQ(Tricks(), QStringLiteral("NS: 1 EW: 0")) << "North ruffs the first heart";
  EXPECT_EQ(Find<QPushButton>("cmdClaim")->text(), QStringLiteral("Claim by North"));
  EXPECT_TRUE(Find<QTimer>("timQuit")->isActive());
  QTest::mouseClick(Table(), Qt::LeftButton, Qt::NoModifier, Table()->rect().center());
  EXPECT_TRUE(Now().trickGathered) << "no need to wait";
  ClickCards(48);
  EXPECT_EQ(Tricks(), QStringLiteral("NS: 13 EW: 0"));
  EXPECT_EQ(Text("lblScore"), QStringLiteral("1S+6 by North : NS +260"));
  EXPECT_FALSE(Find<QPushButton>("cmdClaim")->isEnabled());
  EXPECT_TRUE(Find<QPushButton>("cmdBidding")->isEnabled());
  Type("cmbLibs", "Autumn");  // the library is there again
  FocusKey(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Shown("lblScore")) << "that was for the text alone";
  EXPECT_EQ(Find<QToolButton>("lblNext")->palette().color(QPalette::Button),
            window->palette().color(QPalette::Highlight));

  Click("cmdUndo");
  EXPECT_FALSE(Shown("lblScore"));
  EXPECT_EQ(Tricks(), QStringLiteral("NS: 12 EW: 0"));
  ClickLegalCard();
  EXPECT_TRUE(Shown("lblScore"));
  Click("lblNext");
  ExpectNothingLeftOfPlay("the next board");
}

TEST_F(PlayWindowTest, KeysPlayUndoAcrossATrickAndClaim) {
  Open();
  StartPlay("1S X P P XX P P P");
  for (const char* card : {"HA", "D2", "C3", "S4", "SA"}) FocusKeys(card);
  EXPECT_EQ(Now().tricksPlayed, 1);
  EXPECT_EQ(Now().trickCards[Seat::North], (Card{Suit::Spades, Rank::Ace}));
  for (int undo = 0; undo < 2; ++undo) Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Tricks(), QStringLiteral("NS: 0 EW: 0"));
  EXPECT_EQ(Now().trickCards[Seat::West], (Card{Suit::Clubs, Rank::Three}));
  EXPECT_EQ(Find<QPushButton>("cmdClaim")->text(), QStringLiteral("Claim by North"));
  for (int undo = 0; undo < 2; ++undo) Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_L, Qt::ControlModifier);
  EXPECT_EQ(Tricks(), QStringLiteral("NS: 13 EW: 0")) << "South was on play";
  EXPECT_EQ(Text("lblScore"), QStringLiteral("1Sxx+6 by North : NS +1720"));
  EXPECT_TRUE(Offered("mnuUndoCard"));
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Tricks(), QStringLiteral("NS: 0 EW: 0")) << "as before the claim";
  EXPECT_EQ(Find<QPushButton>("cmdClaim")->text(), QStringLiteral("Claim by South"));
}

TEST_F(PlayWindowTest, NothingLeavesAPlayUnderWayUnasked) {
  constexpr auto kCtrl = Qt::ControlModifier;
  constexpr auto kShift = Qt::ShiftModifier;
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool unsaved = false;  // reads the board afresh when its changes are given up
  } ways[] = {{Qt::Key_P, kCtrl},
              {Qt::Key_PageDown, {}},
              {Qt::Key_PageUp, {}},
              {Qt::Key_Home, kCtrl},
              {Qt::Key_End, kCtrl},
              {Qt::Key_G, kCtrl},
              {Qt::Key_N, kCtrl},
              {Qt::Key_O, kCtrl},
              {Qt::Key_I, kCtrl | kShift},
              {Qt::Key_V, kCtrl | kShift},
              {Qt::Key_G, kCtrl | kShift},
              {Qt::Key_F5, {}},
              {Qt::Key_F7, {}},
              {Qt::Key_F6, kShift},
              {Qt::Key_E, kCtrl, true},
              {Qt::Key_D, kCtrl | kShift, true},
              {Qt::Key_F8, {}, true},
              {Qt::Key_F2, kShift, true}};
  Open();
  const QRect button = Find<QWidget>("cmdPlay")->geometry();
  StartPlay();
  EXPECT_FALSE(Shown("fraLibrary"));
  EXPECT_EQ(Find<QWidget>("cmdPlay")->geometry(), button) << "it stays under the mouse";
  ClickCards(5);
  const std::string question = "Do you wish to stop the play of board 1?";
  for (const auto& [key, modifiers, unsaved] : ways) {
    session.board.handChanged = unsaved;
    host.ExpectAsk(question, "Tricklet", Answer::No);
    Key(key, modifiers);
    ASSERT_TRUE(host.Done() && session.board.playMode)
        << FromQt(QKeySequence(key | modifiers).toString());
  }
  host.ExpectAsk(question, "Tricklet", Answer::No);
  window->ImportFiles({"deals.pbn", "more.pbn"});
  host.ExpectAsk(question, "Tricklet", Answer::No);
  EXPECT_FALSE(window->close());
  host.ExpectAsk("Confirm that you wish to edit this hand", "Tricklet", Answer::No);
  Click("cmdEdit");
  EXPECT_EQ(Now().tricksPlayed, 1);
  EXPECT_EQ(Now().cardsInTrick, 1);
}

TEST_F(PlayWindowTest, NothingIsLeftOfAPlayThatEnds) {
  const auto file = folder.Path() / "one.pbn";
  test::WriteFile(file,
                  "% PBN 2.1\n[Board \"5\"]\n[Deal \"N:AKQJT98765432... .AKQJT98765432.. "
                  "..AKQJT98765432. ...AKQJT98765432\"]\n\n");
  Open();
  const struct {
    const char* name;
    int cards;
    bool claimed;  // nothing is asked about what is finished or has not begun
    std::function<void()> leave;
  } ways[] = {
      {"stop", 4, false, [this] { Click("cmdPlay"); }},
      {"stop before the lead", 0, false, [this] { Click("cmdPlay"); }},
      {"stop after a claim", 4, true, [this] { Click("cmdPlay"); }},
      {"the next board", 4, false, [this] { Key(Qt::Key_PageDown); }},
      {"the next board before the lead", 0, false, [this] { Key(Qt::Key_PageUp); }},
      {"the next board after a claim", 4, true, [this] { Click("lblNext"); }},
      {"a new library", 4, false,
       [this] {
         Key(Qt::Key_N, Qt::ControlModifier);
         EXPECT_EQ(QApplication::focusWidget(), Find<QComboBox>("cmbLibs"));
       }},
      {"an import", 4, false,
       [&] {
         host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
         host.ExpectTell("Hand 5 has been saved to the library - Club");
         window->ImportFiles({file});
       }},
      {"a board that is cleared", 4, true,
       [this] { Key(Qt::Key_Delete, Qt::ControlModifier | Qt::ShiftModifier); }},
      {"another auction", 4, true,
       [this] {
         Expect<frmBidding>([](frmBidding& dialog) {
           Press(dialog, "cmdUndo");
           FocusKeys("p");
           Press(dialog, "cmdOK");
         });
         Key(Qt::Key_B, Qt::ControlModifier);
       }},
  };
  const Board deal = session.board;
  for (const auto& [name, cards, claimed, leave] : ways) {
    session.board = deal;
    StartPlay();
    ClickCards(cards);
    for (const char* action : {"mnuBidding", "mnuClearBoard", "mnuSwap", "mnuPasteHand"}) {
      EXPECT_FALSE(Offered(action)) << action << " while cards are to be played";
    }
    if (claimed) Key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Shown("fraLibrary"), claimed);
    if (cards > 0 && !claimed) {
      host.ExpectAsk("Do you wish to stop the play of board 1?", "Tricklet", Answer::Yes);
    }
    session.board.handChanged = false;
    leave();
    ExpectNothingLeftOfPlay(name);
    session.board.handChanged = false;
  }
}

}  // namespace
}  // namespace tricklet::ui
