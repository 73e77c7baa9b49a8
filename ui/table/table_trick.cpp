#include "ui/table/table_trick.h"

#include <algorithm>
#include <cmath>

#include "ui/cards/card_glyphs.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

// Of a card's width or height: how far its middle lies from the middle of the room.
constexpr double kMostAcross = 0.95;
constexpr double kLeastAcross = 0.5;
constexpr double kMostDown = 0.56;
constexpr double kLeastDown = 0.36;
constexpr double kSymbolShare = 0.36;  // of a card's width
constexpr double kSymbolGap = 0.07;
constexpr double kLeastSymbol = 9;

/// Corners of the cross that the cards form; each card has the one clockwise of it.
QPointF SymbolMiddle(const TrickLayout& layout, Seat seat, double box, double gap) {
  const QRectF& card = layout.cards[seat];
  const double away = gap + box / 2;
  switch (seat) {
    case Seat::North:
      return {card.right() + away, card.top() + box / 2};
    case Seat::East:
      return {card.right() - box / 2, card.bottom() + away};
    case Seat::South:
      return {card.left() - away, card.bottom() - box / 2};
    default:
      return {card.left() + box / 2, card.top() - away};
  }
}

void PlaceSymbols(TrickLayout& layout, const QRectF& room) {
  const double gap = kSymbolGap * layout.cardSize.width();
  const double box = kSymbolShare * layout.cardSize.width();
  if (box < kLeastSymbol) return;
  for (const Seat seat : kAllSeats) {
    QRectF symbol(0, 0, box, box);
    symbol.moveCenter(SymbolMiddle(layout, seat, box, gap));
    const bool clear = std::none_of(layout.cards.begin(), layout.cards.end(),
                                    [&](const QRectF& card) { return card.intersects(symbol); });
    if (clear && room.adjusted(-1, -1, 1, 1).contains(symbol)) layout.symbols[seat] = symbol;
  }
}

void DrawSymbol(QPainter& painter, const QRectF& box, Suit suit, bool fourColours) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(kPaper);
  painter.drawEllipse(box);
  painter.setBrush(SuitColourOnCard(suit, fourColours));
  painter.drawPath(SuitOutline(suit, box.center(), 0.62 * box.height()));
}

/// A frame that can be told by its weight as well as by its colour.
void DrawWinnerFrame(QPainter& painter, const QRectF& card) {
  const double weight = std::max(2.0, 0.045 * card.width());
  const double radius = kCornerShare * card.width();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0x4A, 0x3B, 0x00), weight + 2));
  painter.drawRoundedRect(card, radius, radius);
  painter.setPen(QPen(kToActYellow, weight));
  painter.drawRoundedRect(card, radius, radius);
}

void DrawWaitingPlace(QPainter& painter, const QRectF& card, const TableColours& colours) {
  QPen pen(colours.dimText, 1.4, Qt::DashLine);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(card.adjusted(1, 1, -1, -1), kCornerShare * card.width(),
                          kCornerShare * card.width());
}

}  // namespace

TrickLayout LayOutTrick(const QRectF& room, QSizeF card) {
  const double aspect = card.height() / card.width();
  const double width = std::max(1.0, std::min({card.width(), room.width() / (1 + 2 * kLeastAcross),
                                               room.height() / (1 + 2 * kLeastDown) / aspect}));
  TrickLayout layout;
  layout.cardSize =
      width < card.width() ? QSizeF(std::floor(width), std::floor(width * aspect)) : card;
  const double across = std::min((room.width() - width) / 2, kMostAcross * layout.cardSize.width());
  const double down =
      std::min((room.height() - width * aspect) / 2, kMostDown * layout.cardSize.height());
  const PerSeat<QPointF> away{
      {QPointF(0, -down), QPointF(across, 0), QPointF(0, down), QPointF(-across, 0)}};
  for (const Seat seat : kAllSeats) {
    layout.cards[seat] = QRectF(QPointF(), layout.cardSize);
    layout.cards[seat].moveCenter(room.center() + away[seat]);
  }
  PlaceSymbols(layout, room);
  const double gap = 0.1 * width;
  const QRectF& west = layout.cards[Seat::West];
  const QRectF& symbol = layout.symbols[Seat::West];
  layout.corner = QRectF(room.topLeft(), QPointF(layout.cards[Seat::North].left() - gap,
                                                 symbol.isEmpty() ? west.top() : symbol.top()))
                      .adjusted(gap / 2, gap / 2, 0, 0);
  return layout;
}

void DrawTrick(QPainter& painter, const TrickLayout& layout, const PlaySnapshot& play,
               CardPainter& cards, const Settings& settings, const TableColours& colours) {
  const PlayState& now = play.now;
  cards.SetLook({layout.cardSize, painter.device()->devicePixelRatioF(), settings.cardDesign,
                 settings.suitColour});
  if (now.onPlay && !now.trickCards[*now.onPlay]) {
    DrawWaitingPlace(painter, layout.cards[*now.onPlay], colours);
  }
  for (const Seat seat : kTrickOrder) {
    const auto& card = now.trickCards[seat];
    if (!card) continue;
    cards.Draw(painter, layout.cards[seat].topLeft(), *card);
    if (seat == now.trickWinner) DrawWinnerFrame(painter, layout.cards[seat]);
    if (!layout.symbols[seat].isEmpty()) {
      DrawSymbol(painter, layout.symbols[seat], card->suit, settings.suitColour);
    }
  }
}

void DrawScore(QPainter& painter, const QRectF& room, const QString& score,
               const TableColours& colours, const QFont& font) {
  // "4S+1 by South : NS +450" is broken at its words: the room is narrow, the letters are large.
  QString text = WithSymbols(score);
  text.replace(QStringLiteral(" : "), QStringLiteral("\n"));
  text.replace(QStringLiteral(" by "), QStringLiteral("\nby "));
  const QStringList lines = text.split(u'\n');
  QFont bold = font;
  bold.setBold(true);
  const double each = 0.8 * room.height() / static_cast<double>(lines.size());
  painter.setFont(Fitted(bold, lines, {0.94 * room.width(), each}, 0.7 * each));
  painter.setPen(colours.text);
  painter.drawText(room, Qt::AlignCenter, text);
}

}  // namespace tricklet::ui
