// Playing a board on the table: what can be clicked and typed, and what is shown.
#include <algorithm>
#include <optional>
#include <vector>

#include <QImage>
#include <QtTest>
#include <gtest/gtest.h>

#include "tests/support/hands.h"
#include "tests/support/scripted_host.h"
#include "tests/ui/geometry.h"
#include "ui/table/table_centre.h"
#include "ui/table/table_trick.h"
#include "ui/table/table_view.h"
#include "ui/table/tricks_won.h"

namespace tricklet::ui {
namespace {

/// Four spades by South: West leads.
Board Playable() {
  Board board;
  board.boardNumber = 7;
  board.hands =
      test::HandsOf("N:AQ975.K86.KT2.J4 84.T732.AQ3.T652 KJT3.A4.9654.AK7 62.QJ95.J87.Q983");
  board.contract = "4S";
  board.contractLevel = 4;
  board.declarer = Seat::South;
  board.trumps = Strain::Spades;
  return board;
}

class PlayOnTableTest : public testing::Test {
 protected:
  void SetUp() override {
    QObject::connect(&view_, &TableView::CardAsked, &view_, [this](Card card) { asked_ = card; });
    QObject::connect(&view_, &TableView::TrickAsked, &view_, [this] { ++tricksAsked_; });
    QObject::connect(&view_, &TableView::OnlyCardAsked, &view_, [this] { ++onlyAsked_; });
    view_.resize(760, 680);
    ASSERT_TRUE(play_.Start());
    Show();
  }
  void Show() { view_.Show(board_, settings_, &play_); }
  void Play(std::initializer_list<Card> cards) {
    for (const Card card : cards) ASSERT_TRUE(play_.Play(card)) << card.Index();
    Show();
  }
  void PlayLegalCards(int count) {
    for (int played = 0; played < count; ++played) {
      int index = 0;
      while (!play_.IsLegal(Card::FromIndex(index))) ++index;
      play_.Play(Card::FromIndex(index));
    }
    Show();
  }
  void Click(QPointF point) {
    QTest::mouseClick(&view_, Qt::LeftButton, Qt::NoModifier, point.toPoint());
  }
  /// Whether the table takes the key; asked with ShortcutOverride, before it is a shortcut.
  bool Key(Qt::Key key, QEvent::Type type = QEvent::KeyPress) {
    QKeyEvent event(type, key, Qt::NoModifier);
    event.setAccepted(type == QEvent::KeyPress);
    QCoreApplication::sendEvent(&view_, &event);
    return event.isAccepted();
  }
  bool Tells(const char* words) const {
    return view_.accessibleDescription().contains(QString::fromLatin1(words));
  }
  QImage Picture() {
    QImage picture(view_.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    view_.render(&picture);
    return picture;
  }

  Board board_ = Playable();
  Settings settings_;
  test::ScriptedHost host_;
  NoTimer timer_;
  CardPlay play_{board_, host_, timer_};
  TableView view_;
  std::optional<Card> asked_;
  int tricksAsked_ = 0;
  int onlyAsked_ = 0;
};

constexpr Card kClubEight{Suit::Clubs, Rank::Eight};
constexpr Card kClubFour{Suit::Clubs, Rank::Four};
constexpr Card kClubFive{Suit::Clubs, Rank::Five};
constexpr Card kClubAce{Suit::Clubs, Rank::Ace};

TEST_F(PlayOnTableTest, AsksForEveryCardLeftWhereItIsShown) {
  Play({kClubEight, kClubFour, kClubFive});
  for (const bool faces : {true, false}) {
    settings_.cardsFaces = faces;
    Show();
    const TableLayout layout = view_.Layout();
    EXPECT_EQ(layout.cards.size(), kCardsInPack - 3U);
    for (const PlacedCard& placed : layout.cards) {
      asked_.reset();
      // Cards lie over one another, but not over the index.
      Click(faces ? placed.rect.topLeft() + QPointF(6, 12) : placed.rect.center());
      EXPECT_EQ(asked_, placed.card);
    }
  }
  EXPECT_EQ(tricksAsked_, 0);
  asked_.reset();
  const QPoint felt = view_.Layout().centre.center().toPoint();
  Click(felt);
  QTest::mouseDClick(&view_, Qt::LeftButton, Qt::NoModifier, felt);  // its second press
  EXPECT_EQ(tricksAsked_, 1) << "one card to a double click";
  Click({3, 340});
  EXPECT_EQ(tricksAsked_, 2) << "beside the cards";
  EXPECT_FALSE(asked_);
}

TEST_F(PlayOnTableTest, KeepsCardsInTheirPlacesAndRaisesAndPointsAtTheLegalOnes) {
  const TableLayout full = LayOutTable(view_.size(), board_.hands, HandDisplay::Cards);
  Play({kClubEight});
  const TableLayout now = view_.Layout();
  EXPECT_EQ(now.cardSize, full.cardSize);
  for (const PlacedCard& placed : now.cards) {
    const auto before = std::find_if(full.cards.begin(), full.cards.end(),
                                     [&](const PlacedCard& c) { return c.card == placed.card; });
    const bool legal = placed.seat == Seat::North && placed.card.suit == Suit::Clubs;
    EXPECT_EQ(placed.rect.left(), before->rect.left());
    EXPECT_EQ(placed.rect.top() < before->rect.top(), legal) << placed.card.Index();
    EXPECT_FALSE(placed.rect.intersects(now.hands[placed.seat].caption));
    const QPointF index = placed.rect.topLeft() + QPointF(6, 12);
    QMouseEvent move(QEvent::MouseMove, index, index, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view_, &move);
    EXPECT_EQ(view_.cursor().shape() == Qt::PointingHandCursor, legal);
  }
}

TEST_F(PlayOnTableTest, PlaysByKeysAndLeavesOthersToTheWindow) {
  EXPECT_TRUE(Key(Qt::Key_H));
  EXPECT_TRUE(Key(Qt::Key_Q));
  EXPECT_EQ(asked_, (Card{Suit::Hearts, Rank::Queen}));
  EXPECT_TRUE(Key(Qt::Key_Space));
  EXPECT_EQ(onlyAsked_, 1);
  EXPECT_FALSE(Key(Qt::Key_PageDown));
  EXPECT_FALSE(Key(Qt::Key_Escape));
  asked_.reset();
  EXPECT_FALSE(Key(Qt::Key_Escape, QEvent::ShortcutOverride));
  EXPECT_TRUE(Key(Qt::Key_D));
  EXPECT_TRUE(Key(Qt::Key_Escape, QEvent::ShortcutOverride)) << "it takes back the half-typed suit";
  Play({kClubEight});  // a half-typed suit belongs to the hand that was on play
  EXPECT_FALSE(Key(Qt::Key_9));
  EXPECT_TRUE(Key(Qt::Key_4));
  EXPECT_EQ(asked_, kClubFour);
}

TEST_F(PlayOnTableTest, TakesNothingAndShowsNothingOutsideOfPlay) {
  view_.Show(board_, settings_);
  const QImage plain = Picture();
  play_.Stop();
  Show();
  EXPECT_EQ(Picture(), plain);
  for (const auto key : {Qt::Key_S, Qt::Key_A, Qt::Key_Space, Qt::Key_Escape, Qt::Key_1}) {
    EXPECT_FALSE(Key(key)) << key;
  }
  Click(view_.Layout().cards.front().rect.center());
  Click({3, 340});
  EXPECT_FALSE(asked_);
  EXPECT_EQ(tricksAsked_ + onlyAsked_, 0);
}

TEST_F(PlayOnTableTest, TellsTurnTrickAndTricksWon) {
  EXPECT_TRUE(Tells("4S by South. West to play. No card on the table. NS: 0. EW: 0."));
  Play({kClubEight, kClubFour});
  EXPECT_TRUE(Tells("East to play. On the table: North clubs 4, West clubs 8 (winning). NS: 0"));
  EXPECT_TRUE(Tells("West: spades 6 2; hearts Q J 9 5; diamonds J 8 7; clubs Q 9 3"));
  Play({kClubFive, kClubAce});
  EXPECT_TRUE(Tells("South to play. On the table: North clubs 4"));
  EXPECT_TRUE(Tells("NS: 1. EW: 0."));
  play_.Claim();
  Show();
  EXPECT_TRUE(Tells("4S+3 by South : NS +710. No card on the table. NS: 13. EW: 0."));
  view_.Show(board_, settings_, nullptr, Seat::East);
  EXPECT_TRUE(Tells("East to call."));
}

TEST_F(PlayOnTableTest, PaintsEachMomentItsOwnWay) {
  std::vector<QImage> moments{Picture()};
  Key(Qt::Key_H);
  moments.push_back(Picture());
  for (const int cards : {1, 3, 44, 4}) {
    PlayLegalCards(cards);
    moments.push_back(Picture());
  }
  play_.QuitTrick();
  Show();
  moments.push_back(Picture());
  for (const auto caller : {std::optional(Seat::West), std::optional<Seat>()}) {
    view_.Show(board_, settings_, nullptr, caller);
    moments.push_back(Picture());
  }
  ExpectDifferent(moments);
}

class TrickGeometry : public testing::TestWithParam<QSizeF> {
 protected:
  TableLayout table_ = LayOutTable(GetParam(), Playable().hands, HandDisplay::Cards);
};

TEST_P(TrickGeometry, KeepsTheTrickInThePanelWithEveryIndexInSight) {
  const QRectF room = TrickRoom(table_.centre);
  const TrickLayout trick = LayOutTrick(room, table_.cardSize);
  EXPECT_GE(trick.cardSize.width(), 0.6 * table_.cardSize.width());
  for (std::size_t i = 0; i < kTrickOrder.size(); ++i) {
    const QRectF& card = trick.cards[kTrickOrder.at(i)];
    EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(card));
    const QRectF rank(card.topLeft(), card.size() * 0.3);
    for (std::size_t later = i + 1; later < kTrickOrder.size(); ++later) {
      EXPECT_FALSE(rank.intersects(trick.cards[kTrickOrder.at(later)])) << i << " " << later;
    }
    const QRectF& symbol = trick.symbols[kTrickOrder.at(i)];
    EXPECT_TRUE(symbol.isEmpty() || table_.centre.contains(symbol));
    for (const PlacedCard& placed : table_.cards) EXPECT_FALSE(placed.rect.intersects(card));
  }
}

TEST_P(TrickGeometry, KeepsTricksWonOnTheFeltBesideTheHands) {
  const TricksWonLayout won = LayOutTricksWon(table_, PlaySnapshot());
  std::vector<QRectF> parts(won.counts.begin(), won.counts.end());
  for (const QRectF& back : won.backs) EXPECT_FALSE(back.isEmpty());
  parts.push_back(won.backs.back());
  ExpectApart(table_.felt, parts);
  parts.insert(parts.end(), won.backs.begin(), won.backs.end());
  for (const QRectF& part : parts) {
    for (const PlacedCard& placed : table_.cards) EXPECT_FALSE(placed.rect.intersects(part));
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, TrickGeometry,
                         testing::Values(QSizeF(380, 340), QSizeF(520, 480), QSizeF(760, 680),
                                         QSizeF(520, 900), QSizeF(900, 680), QSizeF(1600, 600),
                                         QSizeF(1600, 1000), QSizeF(3840, 2160)));

}  // namespace
}  // namespace tricklet::ui
