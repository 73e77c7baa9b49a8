#include "ui/table_view.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

#include "ui/table_centre.h"
#include "ui/table_style.h"
#include "ui/table_text.h"
#include "ui/table_words.h"
#include "ui/theme.h"

namespace tricklet::ui {
namespace {

constexpr double kFeltRadius = 12;
constexpr double kReferenceHeight = 680;
// Of a caption's height.
constexpr double kCaptionPadding = 0.55;  // at either end
constexpr double kCaptionText = 0.62;

/// The caption's place within its room: each hand's beside its cards.
QRectF PillIn(const QRectF& room, double width, double height, Seat seat) {
  QRectF pill(0, 0, std::min(width, room.width()), height);
  pill.moveCenter(room.center());
  if (seat == Seat::West) pill.moveLeft(room.left());
  if (seat == Seat::East) pill.moveRight(room.right());
  return pill;
}

void DrawPill(QPainter& painter, const QRectF& pill, const QString& text, const QColor& background,
              const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(background);
  painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
  painter.setPen(ink);
  painter.drawText(pill, Qt::AlignCenter, text);
}

}  // namespace

TableView::TableView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("fraTable"));
  setAccessibleName(tr("Table"));
  setAccessibleDescription(DescribeTable(board_));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TableView::Show(const Board& board, const Settings& settings, const CardPlay* /*play*/,
                     std::optional<Seat> /*toCall*/) {
  board_ = board;
  settings_ = settings;
  setAccessibleDescription(DescribeTable(board_));
  update();
}

TableLayout TableView::Layout() const {
  return LayOutTable(size(), board_.Hands,
                     settings_.CardsFaces ? HandDisplay::Cards : HandDisplay::Text);
}

QSize TableView::minimumSizeHint() const {
  return {380, 340};
}
QSize TableView::sizeHint() const {
  return {760, 680};
}

void TableView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const TableLayout layout = Layout();
  const TableColours colours = ColoursFor(palette());
  DrawFelt(painter, layout, colours);
  DrawCentre(painter, layout.centre, board_, colours, font());
  DrawCaptions(painter, layout, colours);
  if (settings_.CardsFaces) {
    DrawCards(painter, layout);
  } else {
    DrawText(painter, layout);
  }
}

void TableView::DrawFelt(QPainter& painter, const TableLayout& layout,
                         const TableColours& colours) const {
  QLinearGradient felt(layout.felt.topLeft(), layout.felt.bottomLeft());
  felt.setColorAt(0, colours.feltTop);
  felt.setColorAt(1, colours.feltBottom);
  painter.setPen(Qt::NoPen);
  painter.setBrush(felt);
  painter.drawRoundedRect(layout.felt, kFeltRadius, kFeltRadius);
}

void TableView::DrawCaptions(QPainter& painter, const TableLayout& layout,
                             const TableColours& colours) const {
  const PerSeat<QString> captions = TableCaptions(board_, settings_);
  // One size for all four; the narrowest room decides.
  const QRectF& room = layout.hands[Seat::West].caption;
  const double ends = 2 * kCaptionPadding * room.height();
  const double wished =
      settings_.HGFont[1].Size * logicalDpiY() / 72 * std::max(1.0, height() / kReferenceHeight);
  QFont font =
      Fitted(ToFont(settings_.HGFont[1]), {captions.begin(), captions.end()},
             {room.width() - ends, room.height()}, std::min(wished, kCaptionText * room.height()));
  constexpr int kLeastPixels = 9;  // below that a shortened text says more
  font.setPixelSize(std::max(kLeastPixels, font.pixelSize()));
  painter.setFont(font);
  const QFontMetricsF metrics(font);
  const double high = std::min(room.height(), font.pixelSize() / kCaptionText);
  const QColor wanted = ToColour(settings_.HGFont[1].Forecolour, palette());
  const QColor ink = ReadableOn(colours.caption, wanted);
  for (const Seat seat : kAllSeats) {
    if (captions[seat].isEmpty()) continue;
    const QRectF& place = layout.hands[seat].caption;
    const QString text = metrics.elidedText(captions[seat], Qt::ElideRight, place.width() - ends);
    const double width = metrics.horizontalAdvance(text) + ends;
    DrawPill(painter, PillIn(place, width, high, seat), text, colours.caption, ink);
  }
}

void TableView::DrawCards(QPainter& painter, const TableLayout& layout) {
  cards_.SetLook({layout.cardSize, painter.device()->devicePixelRatioF(), settings_.CardDesign,
                  settings_.SuitColour});
  for (const PlacedCard& placed : layout.cards) {
    cards_.Draw(painter, placed.rect.topLeft(), placed.card);
  }
}

void TableView::DrawText(QPainter& painter, const TableLayout& layout) const {
  if (!HasCards(board_.Hands)) return;
  const TextMeasures measures = MeasureText(layout, board_.Hands, settings_, logicalDpiY());
  for (const Seat seat : kAllSeats) {
    const PerSuit<Holding>& hand = board_.Hands[seat];
    DrawTextHand(painter, TextPanel(layout, measures, hand, seat), measures, hand, settings_,
                 palette());
  }
}

}  // namespace tricklet::ui
