#include "ui/table_text.h"

#include <algorithm>

#include <QFontMetricsF>

#include "ui/card_glyphs.h"
#include "ui/table_words.h"
#include "ui/theme.h"

namespace tricklet::ui {
namespace {

constexpr QSizeF kReferenceSize(760, 680);
constexpr double kPointsPerInch = 72;
// Of the text's size in pixels.
constexpr double kPadding = 0.45;
/// A symbol is as high as a capital of its size.
constexpr double kSymbolShare = 0.75;

TextMeasures MeasuresAt(const Settings& settings, double pixelsPerPoint) {
  TextMeasures measures;
  measures.font = ToFont(settings.HGFont[0]);
  measures.font.setPixelSize(
      std::max(1, static_cast<int>(settings.HGFont[0].Size * pixelsPerPoint)));
  const QFontMetricsF metrics(measures.font);
  const double symbol = std::max(1.0, settings.SuitFontSize * pixelsPerPoint);
  measures.symbolHeight = symbol * kSymbolShare;
  measures.symbolWidth = measures.symbolHeight + metrics.horizontalAdvance(u' ');
  measures.lineHeight = std::max(metrics.height(), symbol * 1.05);
  return measures;
}

double Padding(const TextMeasures& measures) {
  return kPadding * measures.lineHeight;
}

bool Fits(const TableLayout& layout, const TextMeasures& measures, const HandTable& hands) {
  return std::all_of(kAllSeats.begin(), kAllSeats.end(), [&](Seat seat) {
    const QSizeF size = TextPanelSize(measures, hands[seat]);
    const QRectF& area = layout.hands[seat].area;
    return size.width() <= area.width() && size.height() <= area.height();
  });
}

}  // namespace

QSizeF TextPanelSize(const TextMeasures& measures, const PerSuit<Holding>& hand) {
  const QFontMetricsF metrics(measures.font);
  double widest = 0;
  for (const Suit suit : kAllSuits) {
    widest = std::max(widest, metrics.horizontalAdvance(HoldingLine(hand[suit])));
  }
  return {measures.symbolWidth + widest + 2 * Padding(measures),
          kSuits * measures.lineHeight + Padding(measures)};
}

TextMeasures MeasureText(const TableLayout& layout, const HandTable& hands,
                         const Settings& settings, double dotsPerInch) {
  const double growth = std::max(1.0, std::min(layout.felt.width() / kReferenceSize.width(),
                                               layout.felt.height() / kReferenceSize.height()));
  double scale = dotsPerInch / kPointsPerInch * growth;
  TextMeasures measures = MeasuresAt(settings, scale);
  constexpr double kShrink = 0.94;
  constexpr int kLeastPixels = 4;
  while (!Fits(layout, measures, hands) && measures.font.pixelSize() > kLeastPixels) {
    scale *= kShrink;
    measures = MeasuresAt(settings, scale);
  }
  return measures;
}

QRectF TextPanel(const TableLayout& layout, const TextMeasures& measures,
                 const PerSuit<Holding>& hand, Seat seat) {
  const QRectF& area = layout.hands[seat].area;
  QRectF panel(area.topLeft(), TextPanelSize(measures, hand));
  if (seat == Seat::North || seat == Seat::South)
    panel.moveLeft(area.center().x() - panel.width() / 2);
  if (seat == Seat::South) panel.moveBottom(area.bottom());
  if (seat == Seat::East) panel.moveRight(area.right());
  return panel.intersected(area);
}

void DrawTextHand(QPainter& painter, const QRectF& panel, const TextMeasures& measures,
                  const PerSuit<Holding>& hand, const Settings& settings, const QPalette& palette) {
  const QColor background = palette.color(QPalette::Base);
  const double radius = 0.3 * measures.lineHeight;
  painter.setPen(Qt::NoPen);
  painter.setBrush(background);
  painter.drawRoundedRect(panel, radius, radius);
  painter.setFont(measures.font);
  const QColor ink = ReadableOn(background, ToColour(settings.HGFont[0].Forecolour, palette));
  double y = panel.top() + Padding(measures) / 2;
  const double x = panel.left() + Padding(measures);
  for (const Suit suit : kAllSuits) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(SuitColourOnWindow(suit, settings.SuitColour, palette));
    painter.drawPath(SuitOutline(suit, {x + measures.symbolHeight / 2, y + measures.lineHeight / 2},
                                 measures.symbolHeight));
    painter.setPen(ink);
    painter.drawText(QRectF(x + measures.symbolWidth, y, panel.width(), measures.lineHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, HoldingLine(hand[suit]));
    y += measures.lineHeight;
  }
}

}  // namespace tricklet::ui
