#include "ui/table/text_hands.h"

#include <algorithm>

#include <QFontMetricsF>

#include "ui/cards/card_glyphs.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"
#include "ui/table/descriptions.h"
#include "ui/table/table_style.h"
#include "ui/table/table_words.h"

namespace tricklet::ui {
namespace {

constexpr QSizeF kReferenceSize(760, 680);
constexpr double kPointsPerInch = 72;
// Of the text's size in pixels.
constexpr double kPadding = 0.45;
/// A symbol is as high as a capital of its size.
constexpr double kSymbolShare = 0.75;
/// Of a line's height.
constexpr QSizeF kMark(0.62, 0.5);
/// How much of the ink a card that cannot be played keeps: still 4.5:1 on its background.
constexpr double kDimInk = 0.66;

TextHandMeasures MeasuresAt(const Settings& settings, double pixelsPerPoint) {
  TextHandMeasures measures;
  measures.font = ToFont(settings.hgFont[0]);
  measures.font.setPixelSize(
      std::max(1, static_cast<int>(settings.hgFont[0].size * pixelsPerPoint)));
  const QFontMetricsF metrics(measures.font);
  const double symbol = std::max(1.0, settings.suitFontSize * pixelsPerPoint);
  measures.symbolHeight = symbol * kSymbolShare;
  measures.symbolWidth = measures.symbolHeight + metrics.horizontalAdvance(u' ');
  measures.lineHeight = std::max(metrics.height(), symbol * 1.05);
  return measures;
}

double Padding(const TextHandMeasures& measures) {
  return kPadding * measures.lineHeight;
}

bool Fits(const TableLayout& layout, const TextHandMeasures& measures, const HandTable& hands) {
  return std::all_of(kAllSeats.begin(), kAllSeats.end(), [&](Seat seat) {
    const QSizeF size = TextHandSize(measures, hands[seat]);
    const QRectF& area = layout.hands[seat].area;
    return size.width() <= area.width() && size.height() <= area.height();
  });
}

QColor InkOf(const Settings& settings, const QPalette& palette) {
  return ReadableOn(palette.color(QPalette::Base),
                    ToColour(settings.hgFont[0].forecolour, palette));
}

/// Room for the ranks of `suit`.
QRectF LineOf(const QRectF& panel, const TextHandMeasures& measures, Suit suit) {
  return {panel.left() + Padding(measures) + measures.symbolWidth,
          panel.top() + Padding(measures) / 2 + IndexOf(suit) * measures.lineHeight, panel.width(),
          measures.lineHeight};
}

/// A hand of this size, beside the caption of its seat.
QRectF PanelOf(const QRectF& area, QSizeF size, Seat seat) {
  QRectF panel(area.topLeft(), size);
  if (seat == Seat::North || seat == Seat::South)
    panel.moveLeft(area.center().x() - panel.width() / 2);
  if (seat == Seat::South) panel.moveBottom(area.bottom());
  if (seat == Seat::East) panel.moveRight(area.right());
  return panel.intersected(area);
}

QColor Dimmed(const QColor& ink, const QColor& background) {
  const auto mix = [](float over, float below) {
    return static_cast<float>(kDimInk) * over + static_cast<float>(1 - kDimInk) * below;
  };
  return QColor::fromRgbF(mix(ink.redF(), background.redF()),
                          mix(ink.greenF(), background.greenF()),
                          mix(ink.blueF(), background.blueF()));
}

void DrawPlate(QPainter& painter, const QRectF& panel, const TextHandMeasures& measures,
               const QPalette& palette) {
  const double radius = 0.3 * measures.lineHeight;
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(QPalette::Base));
  painter.drawRoundedRect(panel, radius, radius);
}

/// The panel itself with the column of symbols.
void DrawPanel(QPainter& painter, const QRectF& panel, const TextHandMeasures& measures,
               const Settings& settings, const QPalette& palette) {
  DrawPlate(painter, panel, measures, palette);
  const double middle = panel.left() + Padding(measures) + measures.symbolHeight / 2;
  for (const Suit suit : kAllSuits) {
    painter.setBrush(SuitColourOnWindow(suit, settings.suitColour, palette));
    painter.drawPath(SuitOutline(suit, {middle, LineOf(panel, measures, suit).center().y()},
                                 measures.symbolHeight));
  }
}

}  // namespace

QSizeF TextHandSize(const TextHandMeasures& measures, const PerSuit<Holding>& hand) {
  const QFontMetricsF metrics(measures.font);
  double widest = 0;
  for (const Suit suit : kAllSuits) {
    widest = std::max(widest, metrics.horizontalAdvance(HoldingLine(hand[suit])) +
                                  hand[suit].Count() * measures.markWidth);
  }
  return {measures.symbolWidth + widest + 2 * Padding(measures),
          kSuits * measures.lineHeight + Padding(measures)};
}

TextHandMeasures MeasureTextHands(const TableLayout& layout, const HandTable& hands,
                                  const Settings& settings, double dotsPerInch, bool marks) {
  const double growth = std::max(1.0, std::min(layout.felt.width() / kReferenceSize.width(),
                                               layout.felt.height() / kReferenceSize.height()));
  double scale = dotsPerInch / kPointsPerInch * growth;
  const auto measure = [&] {
    TextHandMeasures measures = MeasuresAt(settings, scale);
    if (marks) measures.markWidth = kMark.width() * measures.lineHeight;
    return measures;
  };
  TextHandMeasures measures = measure();
  constexpr double kShrink = 0.94;
  constexpr int kLeastPixels = 4;
  while (!Fits(layout, measures, hands) && measures.font.pixelSize() > kLeastPixels) {
    scale *= kShrink;
    measures = measure();
  }
  return measures;
}

QRectF TextHandPanel(const TableLayout& layout, const TextHandMeasures& measures,
                     const PerSuit<Holding>& hand, Seat seat) {
  return PanelOf(layout.hands[seat].area, TextHandSize(measures, hand), seat);
}

std::vector<PlacedCard> PlaceRanks(const QRectF& panel, const TextHandMeasures& measures,
                                   const PerSuit<Holding>& hand, Seat seat) {
  const QFontMetricsF metrics(measures.font);
  const double blank = metrics.horizontalAdvance(u' ');
  const double left = panel.left() + Padding(measures) + measures.symbolWidth;
  std::vector<PlacedCard> ranks;
  double y = panel.top() + Padding(measures) / 2;
  for (const Suit suit : kAllSuits) {
    double x = left;
    for (int index = 0; index < kRanks; ++index) {
      const auto rank = static_cast<Rank>(index);
      if (!hand[suit].Has(rank)) continue;
      const double width = metrics.horizontalAdvance(ToQt(RankText[rank]));
      const double across = width + blank + measures.markWidth;
      const QRectF mark(x + width, y, measures.markWidth, kMark.height() * measures.lineHeight);
      ranks.push_back(
          {seat, {suit, rank}, QRectF(x - blank / 2, y, across, measures.lineHeight), mark});
      x += across;
    }
    y += measures.lineHeight;
  }
  return ranks;
}

void DrawTextHand(QPainter& painter, const QRectF& panel, const TextHandMeasures& measures,
                  const PerSuit<Holding>& hand, const Settings& settings, const QPalette& palette) {
  DrawPanel(painter, panel, measures, settings, palette);
  painter.setFont(measures.font);
  painter.setPen(InkOf(settings, palette));
  for (const Suit suit : kAllSuits) {
    painter.drawText(LineOf(panel, measures, suit), Qt::AlignLeft | Qt::AlignVCenter,
                     HoldingLine(hand[suit]));
  }
}

void DrawTextHandInPlay(QPainter& painter, const QRectF& panel, const TextHandMeasures& measures,
                        Seat seat, const PlaySnapshot& play, const Settings& settings,
                        const QPalette& palette) {
  DrawPanel(painter, panel, measures, settings, palette);
  const bool onPlay = play.now.onPlay == seat;
  const PerSuit<Holding>& left = play.now.cardsLeft[seat];
  QFont legalFont = measures.font;
  legalFont.setBold(true);
  legalFont.setUnderline(true);
  const QColor ink = InkOf(settings, palette);
  const QColor dim = Dimmed(ink, palette.color(QPalette::Base));
  for (const PlacedCard& rank : PlaceRanks(panel, measures, left, seat)) {
    const bool legal = onPlay && play.IsLegal(rank.card);
    painter.setFont(legal ? legalFont : measures.font);
    painter.setPen(onPlay && !legal ? dim : ink);
    painter.drawText(rank.rect.adjusted(0, 0, -rank.mark.width(), 0), Qt::AlignCenter,
                     ToQt(RankText[rank.card.rank]));
  }
  painter.setFont(measures.font);
  painter.setPen(ink);
  for (const Suit suit : kAllSuits) {
    if (!left[suit].Empty()) continue;
    painter.drawText(LineOf(panel, measures, suit), Qt::AlignLeft | Qt::AlignVCenter,
                     HoldingLine({}));
  }
}

void DrawHiddenTextHand(QPainter& painter, const QRectF& area, const TextHandMeasures& measures,
                        int cards, Seat seat, const QPalette& palette) {
  const QString line = cards == 1 ? TableWords::tr("1 card face down")
                                  : TableWords::tr("%1 cards face down").arg(cards);
  const QSizeF most(area.width() - 2 * Padding(measures), measures.lineHeight);
  const QFont font = Fitted(measures.font, {line}, most, 0.6 * measures.font.pixelSize());
  const QSizeF size(QFontMetricsF(font).horizontalAdvance(line) + 2 * Padding(measures),
                    measures.lineHeight + Padding(measures));
  const QRectF panel = PanelOf(area, size, seat);
  DrawPlate(painter, panel, measures, palette);
  painter.setFont(font);
  painter.setPen(Dimmed(palette.color(QPalette::Text), palette.color(QPalette::Base)));
  painter.drawText(panel, Qt::AlignCenter, line);
}

}  // namespace tricklet::ui
