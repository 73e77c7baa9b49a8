// Geometry of the table over sizes and deals, and what it says in words.
#include "ui/table/table_layout.h"

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/hands.h"
#include "tests/ui/geometry.h"
#include "ui/style/symbols.h"
#include "ui/table/descriptions.h"
#include "ui/table/table_captions.h"
#include "ui/table/table_centre.h"
#include "ui/table/table_scene.h"
#include "ui/table/table_trick.h"
#include "ui/table/tricks_won.h"

namespace tricklet::ui {
namespace {

using test::HandsOf;

const std::string kWholePack = "N:AKQJT98765432.AKQJT98765432.AKQJT98765432.AKQJT98765432 - - -";

const std::array kDeals{
    kOrdinaryDeal,
    std::string("N:AQ975.K8652.KT2. 84.A73.AQ3.AJ652 KJT3.QJT94..KT87 .J98765.Q943.962"),
    std::string("N:K2..KQJ2.AKQJ987 AQJT9876543.2.A. ..T987654.6543210 ..5.AKQJT98765432"),
    std::string("N:A - -.2 -.-.-.T"),
    kWholePack,
    "W" + kWholePack.substr(1)};

class TableGeometry : public testing::TestWithParam<std::tuple<QSizeF, std::string>> {
 protected:
  HandTable hands_ = HandsOf(std::get<1>(GetParam()));
  TableLayout layout_ = LayOutTable(std::get<0>(GetParam()), hands_, {});
};

TEST_P(TableGeometry, ShowsEveryCardInsideItsHandsAreaToBeHit) {
  HandTable shown;
  for (const PlacedCard& placed : layout_.cards) {
    EXPECT_TRUE(layout_.hands[placed.seat].area.adjusted(-1, -1, 1, 1).contains(placed.rect))
        << SeatName[placed.seat] << " card " << placed.card.Index();
    EXPECT_GE(placed.rect.width(), 30);
    shown[placed.seat][placed.card.suit].Add(placed.card.rank);
    const auto hit = CardAt(layout_, placed.rect.topLeft() + QPointF(1.5, 1.5));
    EXPECT_TRUE(hit && hit->seat == placed.seat && hit->card == placed.card) << placed.card.Index();
  }
  EXPECT_EQ(shown, hands_);
}

TEST_P(TableGeometry, KeepsHandsCaptionsAndCentreApartAndOnTheFelt) {
  const TableNeeds needs[] = {{HandDisplay::Cards},
                              {HandDisplay::Text},
                              {HandDisplay::Cards, {}, true, true},
                              {HandDisplay::Cards, {}, false, true, 2},
                              {HandDisplay::Text, {}, true, false}};
  for (const TableNeeds& each : needs) {
    const TableLayout layout = LayOutTable(layout_.felt.size(), hands_, each);
    std::vector<QRectF> parts{layout.centre};
    if (each.play) parts.push_back(layout.line);
    for (const PlacedHand& hand : layout.hands) {
      parts.push_back(hand.caption);
      parts.push_back(hand.area);
    }
    ExpectApart(layout.felt, parts);
    for (const QRectF& part : parts) EXPECT_TRUE(part.width() > 60 && part.height() >= 14);
  }
}

TEST_P(TableGeometry, KeepsTheTrickInThePanelWithEveryIndexInSight) {
  const TableLayout play = LayOutTable(layout_.felt.size(), hands_, {HandDisplay::Cards, {}, true});
  const QRectF room = TrickRoom(play.centre);
  const TrickLayout trick = LayOutTrick(room, play.cardSize);
  EXPECT_EQ(trick.cardSize, play.cardSize) << "as large as those in the hands";
  for (std::size_t i = 0; i < kTrickOrder.size(); ++i) {
    const QRectF& card = trick.cards[kTrickOrder.at(i)];
    EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(card));
    const QRectF rank(card.topLeft(), card.size() * 0.3);
    for (std::size_t later = i + 1; later < kTrickOrder.size(); ++later) {
      EXPECT_FALSE(rank.intersects(trick.cards[kTrickOrder.at(later)])) << i << " " << later;
    }
    const QRectF& symbol = trick.symbols[kTrickOrder.at(i)];
    EXPECT_TRUE(symbol.isEmpty() || play.centre.contains(symbol));
    for (const PlacedCard& placed : play.cards) EXPECT_FALSE(placed.rect.intersects(card));
    EXPECT_FALSE(trick.corner.intersects(card) || trick.corner.intersects(symbol));
  }
}

TEST_P(TableGeometry, KeepsTricksWonOnTheFeltBesideTheHands) {
  const TricksWonLayout won = LayOutTricksWon(layout_, PlaySnapshot());
  for (const QRectF& back : won) {
    EXPECT_TRUE(!back.isEmpty() && layout_.felt.contains(back));
    for (const PlacedCard& placed : layout_.cards) EXPECT_FALSE(placed.rect.intersects(back));
  }
}

INSTANTIATE_TEST_SUITE_P(SizesAndDeals, TableGeometry,
                         testing::Combine(testing::ValuesIn(kTableSizes),
                                          testing::ValuesIn(kDeals)));

TEST(TableLayoutTest, GivesNorthOneRowAndEastOneForEachSuitHeld) {
  const auto rows = [](const std::string& hand, char seat = 'E') {
    const TableLayout layout = LayOutTable({520, 480}, HandsOf(seat + (":" + hand + " - - -")), {});
    std::string text;
    double y = -1;
    for (const PlacedCard& placed : layout.cards) {
      if (placed.rect.top() != y) text += text.empty() ? "" : " ";
      y = placed.rect.top();
      text += StrainLetter[ToStrain(placed.card.suit)];
    }
    return text;
  };
  EXPECT_EQ(rows("AQ975.K86.KT2.J4", 'N'), "SSSSSHHHCCDDD") << "in alternating colours";
  EXPECT_EQ(rows("84.10732.AQ3.10652"), "SS HHHH CCCC DDD");
  EXPECT_EQ(rows("84732..AQ3.10652"), "SSSSS CCCC DDD");
  EXPECT_EQ(rows("AQJ10987.2.A.65"), "SSS SSSS H CC D");
  EXPECT_EQ(rows("AQJ109876543.2.A."), "SSSSS SSSSSS H D");
}

TEST(TableLayoutTest, GrowsCardsWithTheTableButNotWithTheDeal) {
  double last = 0;
  for (const double scale : {1.0, 1.5, 2.0, 4.0}) {
    const QSizeF size = QSizeF(520, 480) * scale;
    const double width = LayOutTable(size, HandsOf(kOrdinaryDeal), {}).cardSize.width();
    EXPECT_GT(width, last * 1.2);
    EXPECT_EQ(width, LayOutTable(size, HandsOf(kWholePack), {}).cardSize.width());
    last = width;
  }
}

TEST(TableLayoutTest, SurvivesATableWithoutRoom) {
  for (const QSizeF size : {QSizeF(0, 0), QSizeF(1, 1), QSizeF(60, 900), QSizeF(900, 20)}) {
    for (const std::string& deal : kDeals) {
      const TableLayout layout = LayOutTable(size, HandsOf(deal), {});
      EXPECT_GE(layout.cardSize.width(), 1);
    }
  }
}

TEST_P(TableGeometry, LeavesTheMarksOfCardsInSight) {
  for (std::size_t i = 0; i < layout_.cards.size(); ++i) {
    const PlacedCard& placed = layout_.cards[i];
    EXPECT_TRUE(placed.rect.contains(placed.mark));
    EXPECT_GE(placed.mark.height(), 0.14 * placed.rect.width());
    for (std::size_t later = i + 1; later < layout_.cards.size(); ++later) {
      EXPECT_FALSE(layout_.cards[later].rect.intersects(placed.mark)) << i << " " << later;
    }
  }
}

TEST(TableLayoutTest, TellsNothingOfAHandFaceDownButItsLength) {
  TableNeeds needs;
  needs.hidden = {{true, true, true, true}};
  const auto backs = [&](const std::string& deal) {
    const TableLayout layout = LayOutTable({760, 680}, HandsOf(deal), needs);
    EXPECT_TRUE(layout.cards.empty());
    std::vector<QRectF> places;
    for (const PlacedBack& back : layout.backs) {
      EXPECT_TRUE(layout.hands[back.seat].area.contains(back.rect));
      places.push_back(back.rect);
    }
    return places;
  };
  const auto places = backs(kOrdinaryDeal);
  EXPECT_EQ(places.size(), kCardsInPack);
  EXPECT_EQ(places, backs("N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. "
                          "...AKQJT98765432"));
}

TEST(TableLayoutTest, CloseUpWhatIsLeft) {
  const TableLayout layout = LayOutTable({760, 680}, HandsOf("N:A...2 7.5.. - -"), {});
  const double width = layout.cardSize.width();
  ASSERT_EQ(layout.cards.size(), 4U);
  EXPECT_NEAR(layout.cards[1].rect.left() - layout.cards[0].rect.left(), kFanStep * width, 1);
  EXPECT_EQ(layout.cards[2].rect.topLeft().y(), layout.hands[Seat::East].area.top());
  EXPECT_LT(layout.cards[3].rect.top(), layout.cards[2].rect.bottom());
}

TEST(TableLayoutTest, WritesCaptionsForTheBackOfTheRoom) {
  struct Case {
    QSizeF size;
    bool points;  // and losers: a long caption
    int lines;
  };
  constexpr Case kCases[] = {{{1024, 600}, false, 1},
                             {{1366, 768}, false, 1},
                             {{1920, 1080}, false, 1},
                             {{880, 768}, true, 2},  // with panes beside it
                             {{1230, 1080}, true, 2}};
  for (const auto& [size, points, lines] : kCases) {
    TableScene scene;
    scene.settings.hgFont[1].name = "DejaVu Sans";  // which each machine has, at the same width
    scene.settings.captionHcp = scene.settings.captionLtc = points;
    scene.board = OrdinaryBoard();
    scene.board.contract = "4S";
    scene.board.declarer = Seat::West;
    scene.presentation = true;
    const TableLayout layout = LayOutScene(scene, size, 96);
    EXPECT_EQ(layout.hands[Seat::East].lines, lines) << size.width();
    const PerSeat<Caption> captions = SceneCaptions(scene, {});
    const CaptionLayout pills = LayOutCaptions(layout, captions, scene.settings, 96);
    EXPECT_GE(QFontMetricsF(pills.font).capHeight(), size.height() / 30) << size.width();
    for (const Seat seat : kAllSeats) {
      EXPECT_TRUE(layout.hands[seat].caption.contains(pills.pills[seat])) << size.width();
      EXPECT_EQ(pills.texts[seat].simplified(), captions[seat].text) << "nothing is left out";
    }
  }
}

TEST(TableWordsTest, ShowsContractsWithTheirSuits) {
  const std::pair<const char*, const char16_t*> kCases[] = {
      {"4Sx-1 by South : EW +100", u"4\u2660x-1 by South : EW +100"},
      {"Par 3H= or 3D+1 NS +140", u"Par 3\u2665= or 3\u2666+1 NS +140"},
      {"7Cxx", u"7\u2663xx"},
      {"40% 5Suits", u"40% 5Suits"}};
  for (const auto& [text, shown] : kCases) {
    EXPECT_EQ(WithSymbols(QString::fromLatin1(text)), QString::fromUtf16(shown)) << text;
  }
}

TEST(TableWordsTest, ReadsTheBoardOut) {
  Board board = OrdinaryBoard();
  board.hands[Seat::West] = {};
  board.hands[Seat::East][Suit::Hearts] = {};
  EXPECT_EQ(DescribeTable(board).toStdString(),
            "Board 7. Dealer South. All vulnerable. "
            "North: spades A Q 9 7 5; hearts K 8 6; diamonds K 10 2; clubs J 4. "
            "East: spades 8 4; hearts void; diamonds A Q 3; clubs 10 6 5 2. "
            "South: spades K J 10 3; hearts A 4; diamonds 9 6 5 4; clubs A K 7. "
            "West: no cards.");
}

}  // namespace
}  // namespace tricklet::ui
