#include "ui/table/best_card_labels.h"

#include <algorithm>

#include "ui/table/table_style.h"

namespace tricklet::ui {
namespace {

const QColor kBestFill(0x17, 0x6B, 0x3A);
const QColor kEdge(0x17, 0x6B, 0x3A);

// Of a card's width, or of a written rank's height.
constexpr QSizeF kLabelOnCard(0.32, 0.2);
constexpr QSizeF kLabelUnderRank(0.66, 0.44);

/// On the upper edge of a card, above its index, where the label hides nothing that is printed on
/// the cards over it or above it; in the text display below the rank.
QRectF LabelRoom(const PlacedCard& placed, QSizeF card) {
  const bool written = placed.rect.height() < card.height() * 0.7;
  const QSizeF size =
      written ? kLabelUnderRank * placed.rect.height() : kLabelOnCard * card.width();
  QRectF room(QPointF(), size);
  if (written) {
    room.moveCenter({placed.rect.center().x(), placed.rect.bottom()});
  } else {
    room.moveCenter(placed.rect.topLeft() + QPointF(0.21 * card.width(), -0.02 * card.height()));
  }
  return room;
}

}  // namespace

void DrawBestCardLabels(QPainter& painter, const TableLayout& layout,
                        std::span<const CardScore> best, const QFont& font) {
  if (best.empty()) return;
  const int most = std::max_element(best.begin(), best.end(), [](const auto& a, const auto& b) {
                     return a.tricks < b.tricks;
                   })->tricks;
  for (const PlacedCard& placed : layout.cards) {
    const auto score = std::find_if(best.begin(), best.end(), [&](const CardScore& candidate) {
      return candidate.card == placed.card;
    });
    if (score == best.end()) continue;
    const QRectF room = LabelRoom(placed, layout.cardSize);
    const bool isBest = score->tricks == most;
    painter.setPen(QPen(kEdge, 1));
    painter.setBrush(isBest ? kBestFill : QColor(Qt::white));
    painter.drawRoundedRect(room, room.height() / 3, room.height() / 3);
    QFont number = Fitted(font, {QStringLiteral("13")}, room.size() * 0.9, room.height());
    number.setBold(isBest);
    painter.setFont(number);
    painter.setPen(isBest ? Qt::white : Qt::black);
    painter.drawText(room, Qt::AlignCenter, QString::number(score->tricks));
  }
}

}  // namespace tricklet::ui
