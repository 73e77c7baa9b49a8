// The auction dialog and the play in the real main window.
#include "tests/ui/window_fixture.h"
#include "ui/control/play_control.h"

namespace tricklet::ui {
namespace {

/// Board 1: North, the dealer, has the spades, East the hearts, South the diamonds, West the clubs.
class PlayWindowTest : public WindowTest {
 protected:
  void StartPlay(const std::string& auction = "1S P P P") {
    Bid(auction);
    Click("cmdPlay");
    ASSERT_TRUE(session.board.playMode);
  }
  void ExpectLosingBids(Answer answer = Answer::OK) {
    host.ExpectAskWith("Any bidding changes will be lost", answer);
  }

  const CardPlay& Play() const { return window->findChild<PlayControl*>()->Play(); }
  void ClickTrick() const { ClickAt(Table()->rect().center()); }
  /// Clicks each time on the first card of the hand on play that may be played.
  void ClickCards(int count) const {
    for (; count > 0; --count) {
      const std::vector<PlacedCard> cards = Table()->Layout().cards;
      const auto legal = std::find_if(cards.begin(), cards.end(), [this](const PlacedCard& placed) {
        return Play().IsLegal(placed.card);
      });
      ASSERT_NE(legal, cards.end()) << "no legal card lies on the table";
      ClickAt(legal->rect.topLeft() + QPointF(4, 4));  // no other card lies over the corner
    }
  }

  /// What is told of the play, the empty texts left out: "NS: 1 EW: 0 Claim by North".
  std::string Told() const {
    std::string told = Text("lblTricks_0") + " " + Text("lblTricks_1");
    if (Enabled("cmdClaim")) told += " " + Text("cmdClaim");
    if (Shown("lblScore")) told += " " + Spoken("lblScore");
    return told;
  }

  void ExpectNothingLeftOfPlay(const char* after) const {
    EXPECT_FALSE(Find<QTimer>("timQuit")->isActive()) << after;
    EXPECT_EQ(ShownOf("fraPlay lblTricks_0 lblTricks_1 lblScore fraLibrary"), "fraLibrary");
    EXPECT_EQ(EnabledOf("mnuUndoCard mnuClaim mnuGatherTrick mnuBidding"), "mnuBidding") << after;
    EXPECT_EQ(Text("cmdPlay"), "Play") << after;
    EXPECT_EQ(Shown("fraStats"), HasCards(session.board.hands)) << after;
    EXPECT_EQ(Find<QWidget>("lblNext")->palette().color(QPalette::Button),
              window->palette().color(QPalette::Button));
    ClickTrick();
    EXPECT_FALSE(session.board.playMode) << after;
  }
};

TEST_F(PlayWindowTest, AnAuctionIsTypedWhileGridAndTableFollow) {
  Open();
  Click("cmdBid");  // hidden: the dialog brings it back for a while
  WithDialog("Ctrl+B", [&](const Driven& form) {
    EXPECT_TRUE(Shown("flexBids"));
    EXPECT_EQ(form.Text("lblModifyBidding"), "North to call");
    FocusKeys("1sx2");
    EXPECT_EQ(form.Text("lblTyped"), "2...");
    EXPECT_EQ(Calls(), "1\u2660 Dbl");
    EXPECT_EQ(form.Text("lblModifyBidding"), "South to call");
    EXPECT_TRUE(form.Enabled("cmdRdb"));
    FocusKey("Backspace");  // the half-typed call
    EXPECT_EQ(form.Text("lblTyped"), "");
    FocusKey("Backspace");  // the double
    EXPECT_EQ(Calls(), "1\u2660");
    EXPECT_EQ(host.beeps, 0);
    FocusKey("Return");
    FocusKeys("1c");
    EXPECT_EQ(host.beeps, 2) << "OK, and one club over one spade";
    form.Press("cmdBid_9");
    EXPECT_EQ(form.EnabledOf("cmdBid_9 cmdBid_10"), "cmdBid_10");
    FocusKeys("ppp");
    EXPECT_EQ(form.Text("lblModifyBidding"), "The auction is over");
    EXPECT_FALSE(form.Enabled("cmdPass"));
    EXPECT_TRUE(session.board.calls.Empty()) << "the board changes with OK only";
    FocusKey("Return");
  });
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_EQ(Spoken("lblContract"), "2NT by East");
  EXPECT_FALSE(Shown("flexBids"));
}

TEST_F(PlayWindowTest, FocusOfTheDialogStaysWhereItIsNotACancel) {
  Open();
  Click("lblNext");  // a board without cards can be bid, but not played
  EXPECT_EQ(EnabledOf("cmdPlay mnuPlay cmdBidding"), "cmdBidding");
  Expect([&](const Driven& form) {
    const auto press = [&](const char* name) {
      form.Find<QWidget>(name)->setFocus();
      FocusKey("Space");
      return form.Focus();
    };
    EXPECT_EQ(form.Focus(), "cmdPass");
    EXPECT_EQ(press("cmdAllPass"), "cmdOK");
    FocusKey("Backspace");
    EXPECT_EQ(form.Focus(), "cmdPass");
    EXPECT_EQ(press("cmdClear"), "cmdPass");
    FocusKeys("3nppp");
    FocusKey("Space");  // on OK
  });
  Click("cmdBidding");
  EXPECT_EQ(Spoken("lblContract"), "3NT by East");
}

TEST_F(PlayWindowTest, LeavingTheDialogAsksAndRestores) {
  Open();
  Bid("1S P P P");
  void (*const ways[])(const Driven&) = {
      [](const Driven& form) { form.Press("cmdCancel"); },
      [](const Driven& /*form*/) { FocusKey("Esc"); },
      [](const Driven& form) { form.top->close(); },
  };
  for (const auto& leave : ways) {
    WithDialog("Ctrl+B", [&](const Driven& form) {
      form.Press("cmdClear");
      FocusKeys("7");
      FocusKey("Return");
      EXPECT_TRUE(form.top->isVisible()) << "half a call does not confirm the empty auction";
      FocusKeys("c");
      ExpectLosingBids(Answer::Cancel);
      leave(form);
      EXPECT_TRUE(form.top->isVisible());
      EXPECT_EQ(Calls(), "7\u2663");
      ExpectLosingBids();
      leave(form);
    });
    EXPECT_EQ(session.board.contract, "1S");
    EXPECT_EQ(Calls(), "1\u2660 Pass Pass Pass");
    EXPECT_FALSE(session.board.handChanged);
  }
}

TEST_F(PlayWindowTest, TheDialogCoversNeitherTheAuctionNorTheMiddleOfTheTable) {
  Open();
  for (const QSize size : {QSize(1024, 700), QSize(1280, 800)}) {
    window->resize(size);
    QCoreApplication::processEvents();
    WithDialog("Ctrl+B", [&](const Driven& form) {
      const auto covers = [&](const QWidget* widget, QRect part) {
        return form.top->frameGeometry().intersects(part.translated(widget->mapToGlobal(QPoint())));
      };
      const auto* grid = Find<QWidget>("flexBids");
      EXPECT_FALSE(covers(grid, grid->rect()));
      EXPECT_FALSE(covers(Table(), Table()->Layout().centre.toRect()));
      EXPECT_TRUE(window->frameGeometry().contains(form.top->frameGeometry()));
      ExpectLosingBids();
      form.top->close();
    });
  }
}

TEST_F(PlayWindowTest, BiddingInAPresentationShowsNoAnswersUnlessTheyAreSwitchedOn) {
  Open();
  session.board.makeableValid = true;
  for (const auto& [key, shown] :
       {std::pair("F11", "flexBids"), {"Shift+F11", "flexBids lvwMake"}}) {
    Key(key);
    ExpectLosingBids();
    WithDialog("Ctrl+B", [&](const Driven& form) {
      EXPECT_EQ(ShownOf("flexBids lvwMake"), shown);
      form.Press("cmdCancel");
    });
  }
}

TEST_F(PlayWindowTest, PlayComesAfterTheAuctionThatItNeeds) {
  Open();
  const auto play = [this](const char* buttons) {
    WithDialog("F9", [&](const Driven& form) { form.PressAll(buttons); });
    const std::string menu = FromQt(Find<QAction>("mnuPlay")->text());
    return menu + ". " + Spoken("lblScore");
  };
  ExpectLosingBids();
  EXPECT_EQ(play("cmdCancel"), "&Play. ");
  host.ExpectTell("The bidding was All Pass");
  EXPECT_EQ(play("cmdAllPass cmdOK"), "&Play. All Pass : 0");
  EXPECT_EQ(play("cmdClear cmdBid_4 cmdPass cmdPass cmdPass cmdOK"), "Stop &play. ");
  EXPECT_EQ(Told(), "NS: 0 EW: 0 Claim by East");
  EXPECT_EQ(window->focusWidget(), Table());
}

TEST_F(PlayWindowTest, AWholeBoardIsPlayedByKeysAndClicks) {
  Open();
  StartPlay("1S X P P XX P P P");
  EXPECT_EQ(ShownOf("fraStats fraPlay"), "fraPlay");
  EXPECT_EQ(EnabledOf("cmdBidding cmdUndo"), "");
  EXPECT_EQ(Told(), "NS: 0 EW: 0 Claim by East");
  FocusKeys("HAD2C3S4SA");
  EXPECT_EQ(Told(), "NS: 1 EW: 0 Claim by East");
  const std::pair<const char*, const char*> steps[] = {
      {"Ctrl+Z", "NS: 1 EW: 0 Claim by North"},
      {"Ctrl+Z", "NS: 0 EW: 0 Claim by North"},
      {"Ctrl+L", "NS: 13 EW: 0 1Sxx+6 by North : NS +1720"},
      {"Ctrl+Z", "NS: 0 EW: 0 Claim by North"}};
  for (const auto& [key, told] : steps) {
    Key(key);
    EXPECT_EQ(Told(), told);
  }
  ClickCards(1);
  EXPECT_EQ(Told(), "NS: 1 EW: 0 Claim by North") << "North ruffs the first heart";
  EXPECT_TRUE(Find<QTimer>("timQuit")->isActive());
  ClickTrick();
  EXPECT_TRUE(Play().Now().trickGathered) << "no need to wait";
  ClickCards(48);
  EXPECT_EQ(Told(), "NS: 13 EW: 0 1Sxx+6 by North : NS +1720");
  EXPECT_TRUE(Enabled("cmdBidding"));
  Type("cmbLibs", "Autumn");  // the library is there again
  FocusKey("Ctrl+Z");
  EXPECT_TRUE(Shown("lblScore")) << "that was for the text alone";
  EXPECT_EQ(Find<QWidget>("lblNext")->palette().color(QPalette::Button),
            window->palette().color(QPalette::Highlight));
  Click("cmdUndo");
  EXPECT_EQ(Told(), "NS: 12 EW: 0 Claim by West");
  ClickCards(1);
  EXPECT_TRUE(Shown("lblScore"));
  Click("lblNext");
  ExpectNothingLeftOfPlay("the next board");
}

TEST_F(PlayWindowTest, TheMakeableTableStaysInPlace) {
  Open();
  session.board.makeableValid = true;
  Bid("1S X P P XX P P P");
  const auto place = [this] {
    QCoreApplication::processEvents();
    const auto* table = Find<QWidget>("lvwMake");
    return QRect(table->mapTo(window.get(), QPoint()), table->size());
  };
  const QRect before = place();
  Bid("1C P P 1D P P 1H P P 1S P P 1NT P P 2C P P 2D P P 2H P P 2S P P 2NT P P 3C P P P");
  EXPECT_EQ(place(), before) << "beside more rows of calls";
  StartPlay();
  EXPECT_EQ(place(), before) << "in play";
  Click("cmdClaim");
  EXPECT_EQ(place(), before) << "beside the result";
  EXPECT_EQ(Focus(), "picTable") << "the button is gone";
  EXPECT_EQ(Text("cmdStopPlay") + FromQt(Find<QAction>("mnuPlay")->text()),
            "Put the play awayPut the &play away");
  Click("lblNext");
  EXPECT_FALSE(Shown("fraPlay"));
}

TEST_F(PlayWindowTest, TheTricksTakeThePlaceOfTheLibrary) {
  Open();
  EXPECT_EQ(ShownOf("fraLibrary fraTricks"), "fraLibrary");
  StartPlay("1S X P P XX P P P");
  EXPECT_EQ(ShownOf("fraLibrary fraTricks lblGiven"), "fraTricks");
  FocusKeys("HAD2C3S4SAH2");
  const auto* grid = Find<QTableWidget>("flexTricks");
  QStringList spoken;
  for (int column = 0; column < grid->columnCount(); ++column) {
    spoken += grid->item(1, column)->data(Qt::AccessibleTextRole).toString();
  }
  EXPECT_EQ(FromQt(spoken.join(QLatin1Char('|'))),
            "Trick 2, the current one||North: Spades A, led, the winning card|East: Hearts 2|"
            "South is to play");
  host.ExpectAsk("Do you wish to stop the play of board 1?", "Tricklet", Answer::Yes);
  Click("cmdStopPlay");
  EXPECT_EQ(ShownOf("fraLibrary fraTricks"), "fraLibrary");
}

TEST_F(PlayWindowTest, NothingLeavesAPlayUnderWayUnasked) {
  Open();
  const QRect button = Find<QWidget>("cmdPlay")->geometry();
  StartPlay();
  EXPECT_FALSE(Shown("fraLibrary"));
  EXPECT_EQ(Find<QWidget>("cmdPlay")->geometry(), button) << "it stays under the mouse";
  ClickCards(5);
  const auto expectNo = [this] {
    host.ExpectAsk("Do you wish to stop the play of board 1?", "Tricklet", Answer::No);
  };
  const std::string keys =
      "F9 PgDown PgUp Ctrl+Home Ctrl+End Ctrl+G Ctrl+N Ctrl+O Ctrl+I Ctrl+Shift+I Ctrl+Shift+V "
      "Ctrl+Shift+G F5 F7 Shift+F6 ";
  const std::string readingAfresh = "Ctrl+E Ctrl+Shift+D F8 Shift+F2";  // when changes are given up
  for (const std::string& key : test::Words(keys + readingAfresh)) {
    session.board.handChanged = readingAfresh.find(key) != std::string::npos;
    expectNo();
    Key(key.c_str());
    ASSERT_TRUE(host.Done() && session.board.playMode) << key;
  }
  const auto file = folder.Path() / "deals.pbn";
  test::WriteFile(file, test::PbnText({5}));
  expectNo();
  window->ImportFiles({file, file});
  expectNo();
  EXPECT_FALSE(window->close());
  host.ExpectAsk("Confirm that you wish to edit this hand", "Tricklet", Answer::No);
  Click("cmdEdit");
  EXPECT_EQ(Told(), "NS: 1 EW: 0 Claim by East");
}

TEST_F(PlayWindowTest, NothingIsLeftOfAPlayThatEnds) {
  Open();
  const auto newLibrary = [this] {
    Key("Ctrl+N");
    EXPECT_EQ(QApplication::focusWidget(), Find<QComboBox>("cmbLibs"));
  };
  const auto bid = [this] {
    WithDialog("Ctrl+B", [](const Driven& form) { form.PressAll("cmdUndo cmdPass cmdOK"); });
  };
  // Cards played; whether the rest was claimed. Before the lead and after a claim nothing is asked.
  const std::tuple<const char*, int, bool, std::function<void()>> ways[] = {
      {"stop", 4, false, [this] { Click("cmdPlay"); }},
      {"stop after a claim", 4, true, [this] { Click("cmdPlay"); }},
      {"the next board", 4, false, [this] { Key("PgDown"); }},
      {"the next board before the lead", 0, false, [this] { Key("PgUp"); }},
      {"a new library before the lead", 0, false, newLibrary},
      {"an import", 4, false, [this] { ImportBoardFive(); }},
      {"a board that is cleared", 4, true, [this] { Key("Ctrl+Shift+Del"); }},
      {"another auction", 4, true, bid},
  };
  const Board deal = session.board;
  for (const auto& [name, cards, claimed, leave] : ways) {
    session.board = deal;
    StartPlay();
    ClickCards(cards);
    EXPECT_EQ(EnabledOf("mnuBidding mnuClearBoard mnuSwap mnuPasteHand"), "")
        << "while cards are to be played";
    if (claimed) Key("Ctrl+L");
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

TEST_F(PlayWindowTest, CardsAndClaimsThatWereTakenBackComeBack) {
  Open();
  StartPlay();
  ClickCards(5);
  Key("Ctrl+L");
  const PlayState claimed = Play().Now();
  for (int i = 0; i < 6; ++i) Key("Ctrl+Z");
  EXPECT_FALSE(Enabled("mnuUndo"));
  for (int i = 0; i < 6; ++i) Key("Ctrl+Shift+Z");
  EXPECT_TRUE(Play().Now() == claimed);
  EXPECT_FALSE(Enabled("mnuRedo"));
  Key("Ctrl+Z");
  Key("Ctrl+Z");
  ClickCards(1);
  EXPECT_FALSE(Enabled("mnuRedo")) << "another card has taken its place";
}

}  // namespace
}  // namespace tricklet::ui
