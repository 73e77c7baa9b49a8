#include "ui/table/best_card_labels.h"

#include <algorithm>

#include <QFontMetricsF>

#include "ui/table/table_style.h"

namespace tricklet::ui {
namespace {

const QColor kBestFill(0x17, 0x6B, 0x3A);
const QColor kEdge(0x17, 0x6B, 0x3A);

/// Height of a digit's size to that of its label: digits have nothing below the line.
constexpr double kDigits = 1.16;

/// The number fills the label: digits alone are lower than a line of text.
void DrawNumber(QPainter& painter, const QRectF& room, const QString& number) {
  const QFontMetricsF metrics(painter.font());
  const QRectF ink = metrics.tightBoundingRect(number);
  painter.drawText(room.center() - ink.center(), number);
}

}  // namespace

void DrawBestCardLabels(QPainter& painter, const TableLayout& layout,
                        std::span<const CardScore> best, const QFont& font) {
  if (best.empty()) return;
  const int most = std::max_element(best.begin(), best.end(), [](const auto& a, const auto& b) {
                     return a.tricks < b.tricks;
                   })->tricks;
  QFont bold = font;
  bold.setBold(true);
  for (const PlacedCard& placed : layout.cards) {
    const auto score = std::find_if(best.begin(), best.end(), [&](const CardScore& candidate) {
      return candidate.card == placed.card;
    });
    if (score == best.end()) continue;
    const QRectF& room = placed.mark;
    const bool isBest = score->tricks == most;
    painter.setPen(QPen(isBest ? QColor(Qt::white) : kEdge, 1));  // stands out from a band too
    painter.setBrush(isBest ? kBestFill : QColor(Qt::white));
    painter.drawRoundedRect(room, room.height() / 3, room.height() / 3);
    painter.setFont(Fitted(bold, {QStringLiteral("13")}, {0.9 * room.width(), 2 * room.height()},
                           kDigits * room.height()));
    painter.setPen(isBest ? Qt::white : Qt::black);
    DrawNumber(painter, room, QString::number(score->tricks));
  }
}

}  // namespace tricklet::ui
