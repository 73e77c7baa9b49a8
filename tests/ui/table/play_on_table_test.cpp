// Playing a board on the table: what can be clicked and typed, and what is shown.
#include <algorithm>
#include <optional>
#include <vector>

#include <QImage>
#include <QtTest>
#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"
#include "tests/support/words.h"
#include "tests/ui/geometry.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

class PlayOnTableTest : public testing::Test {
 protected:
  void SetUp() override {
    QObject::connect(&view_, &TableView::CardAsked, &view_, [this](Card card) { asked_ = card; });
    view_.resize(760, 680);
    test::SetAuction(board_, "4S P P P");  // West leads
    ASSERT_TRUE(play_.Start());
    Show();
  }
  void Show() { view_.Show(board_, settings_, &play_); }
  void Play(const char* cards) {
    for (const auto& card : test::Words(cards)) ASSERT_TRUE(play_.Play(test::CardOf(card))) << card;
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

  Board board_ = OrdinaryBoard();
  Settings settings_;
  test::ScriptedHost host_;
  NoTimer timer_;
  CardPlay play_{board_, host_, timer_};
  TableView view_;
  std::optional<Card> asked_;
  QSignalSpy tricksAsked_{&view_, &TableView::TrickAsked};
  QSignalSpy onlyAsked_{&view_, &TableView::OnlyCardAsked};
};

TEST_F(PlayOnTableTest, AsksForEveryCardLeftWhereItIsShown) {
  Play("C8 C4 C5");
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
  EXPECT_EQ(tricksAsked_.size(), 0);
  asked_.reset();
  const QPoint felt = view_.Layout().centre.center().toPoint();
  Click(felt);
  QTest::mouseDClick(&view_, Qt::LeftButton, Qt::NoModifier, felt);  // its second press
  EXPECT_EQ(tricksAsked_.size(), 1) << "one card to a double click";
  Click({3, 340});
  EXPECT_EQ(tricksAsked_.size(), 2) << "beside the cards";
  EXPECT_FALSE(asked_);
}

TEST_F(PlayOnTableTest, RaisesAndPointsAtTheLegalCards) {
  const double row = view_.Layout().hands[Seat::North].area.top();
  Play("C8");
  const TableLayout now = view_.Layout();
  for (const PlacedCard& placed : now.cards) {
    const bool legal = placed.seat == Seat::North && placed.card.suit == Suit::Clubs;
    if (placed.seat == Seat::North) {
      EXPECT_EQ(placed.rect.top() < row, legal) << placed.card.Index();
    }
    EXPECT_FALSE(placed.rect.intersects(now.hands[placed.seat].caption));
    const QPointF index = placed.rect.topLeft() + QPointF(6, 12);
    QMouseEvent move(QEvent::MouseMove, index, index, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view_, &move);
    EXPECT_EQ(view_.cursor().shape() == Qt::PointingHandCursor, legal);
  }
}

TEST_F(PlayOnTableTest, RevealsNothingOfAHiddenHand) {
  Play("C8");
  view_.ShowBestCards({{test::CardOf("C4"), 10}});
  const QSignalSpy hideAsked(&view_, &TableView::HideAsked);
  const auto clickCaption = [this] {
    const TableLayout layout = view_.Layout();
    Click(layout.hands[Seat::North].caption.center());
  };
  clickCaption();
  EXPECT_EQ(hideAsked.size(), 1);
  view_.SetHidden({{true, false, false, false}});
  EXPECT_TRUE(Tells("North: hidden. East: spades 8 4"));
  const TableLayout now = view_.Layout();
  EXPECT_EQ(now.backs.size(), 13U);
  for (const PlacedCard& placed : now.cards) EXPECT_NE(placed.seat, Seat::North);
  Click(now.backs.back().rect.center());
  EXPECT_FALSE(asked_);
  const QImage hidden = PictureOf(view_);
  std::swap(board_.hands[Seat::North][Suit::Spades], board_.hands[Seat::North][Suit::Hearts]);
  Show();
  view_.ShowBestCards({});
  EXPECT_EQ(PictureOf(view_), hidden) << "whatever its cards and the best of them are";
  clickCaption();
  EXPECT_EQ(hideAsked.size(), 2);
  settings_.cardsFaces = false;
  Show();
  const TableLayout asText = view_.Layout();
  for (const PlacedCard& placed : asText.cards) EXPECT_NE(placed.seat, Seat::North);
}

TEST_F(PlayOnTableTest, PlaysByKeysAndLeavesOthersToTheWindow) {
  EXPECT_TRUE(Key(Qt::Key_H));
  EXPECT_TRUE(Key(Qt::Key_Q));
  EXPECT_EQ(asked_, test::CardOf("HQ"));
  EXPECT_TRUE(Key(Qt::Key_Space));
  EXPECT_EQ(onlyAsked_.size(), 1);
  EXPECT_FALSE(Key(Qt::Key_PageDown));
  EXPECT_FALSE(Key(Qt::Key_Escape, QEvent::ShortcutOverride));
  EXPECT_TRUE(Key(Qt::Key_D));
  EXPECT_TRUE(Key(Qt::Key_Escape, QEvent::ShortcutOverride)) << "it takes back the half-typed suit";
  Play("C8");  // a half-typed suit belongs to the hand that was on play
  EXPECT_FALSE(Key(Qt::Key_9));
  EXPECT_TRUE(Key(Qt::Key_4));
  EXPECT_EQ(asked_, test::CardOf("C4"));
}

TEST_F(PlayOnTableTest, TakesNothingAndShowsNothingOutsideOfPlay) {
  view_.Show(board_, settings_);
  const QImage plain = PictureOf(view_);
  play_.Stop();
  Show();
  EXPECT_EQ(PictureOf(view_), plain);
  for (const auto key : {Qt::Key_S, Qt::Key_A, Qt::Key_Space, Qt::Key_Escape, Qt::Key_1}) {
    EXPECT_FALSE(Key(key)) << key;
  }
  Click(view_.Layout().cards.front().rect.center());
  Click({3, 340});
  EXPECT_FALSE(asked_);
  EXPECT_EQ(tricksAsked_.size() + onlyAsked_.size(), 0);
}

TEST_F(PlayOnTableTest, TellsTurnTrickAndTricksWon) {
  EXPECT_TRUE(Tells("4S by South. West to play. No card on the table. NS: 0. EW: 0."));
  Play("C8 C4");
  EXPECT_TRUE(Tells("East to play. On the table: North clubs 4, West clubs 8 (winning). NS: 0"));
  EXPECT_TRUE(Tells("West: spades 6 2; hearts Q J 9 5; diamonds J 8 7; clubs Q 9 3"));
  Play("C5 CA");
  EXPECT_TRUE(Tells("South to play. On the table: North clubs 4"));
  EXPECT_TRUE(Tells("NS: 1. EW: 0."));
  play_.Claim();
  Show();
  EXPECT_TRUE(Tells("4S+3 by South : NS +710. No card on the table. NS: 13. EW: 0."));
  view_.Show(board_, settings_, nullptr, Seat::East);
  EXPECT_TRUE(Tells("East to call."));
}

TEST_F(PlayOnTableTest, ReadsOutWhatHappens) {
  view_.show();
  const auto newest = [this] {
    const QString all = view_.accessibleDescription();
    return all.left(all.indexOf(QStringLiteral(" Board 7."))).toStdString();
  };
  Play("C8");
  EXPECT_EQ(newest(), "West plays the 8 of clubs. North to play.");
  Play("CJ C5");
  Play("CA");
  EXPECT_EQ(newest(),
            "South plays the ace of clubs. South wins the trick. NS: 1. EW: 0. South to play.");
  play_.Undo();
  Show();
  EXPECT_EQ(newest(), "South takes back the ace of clubs. NS: 0. EW: 0. South to play.");
  view_.SetHidden({{false, true, false, false}});
  EXPECT_EQ(newest(), "East is hidden.");
}

TEST_F(PlayOnTableTest, PaintsEachMomentItsOwnWay) {
  std::vector<QImage> moments{PictureOf(view_)};
  Key(Qt::Key_H);
  moments.push_back(PictureOf(view_));
  for (const int cards : {1, 3, 44, 4}) {
    PlayLegalCards(cards);
    moments.push_back(PictureOf(view_));
  }
  play_.QuitTrick();
  Show();
  moments.push_back(PictureOf(view_));
  for (const auto caller : {std::optional(Seat::West), std::optional<Seat>()}) {
    view_.Show(board_, settings_, nullptr, caller);
    moments.push_back(PictureOf(view_));
  }
  ExpectDifferent(moments);
}

}  // namespace
}  // namespace tricklet::ui
