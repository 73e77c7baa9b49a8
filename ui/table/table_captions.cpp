#include "ui/table/table_captions.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainterPath>

#include "ui/cards/card_glyphs.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr double kReferenceHeight = 680;
constexpr double kPointsPerInch = 72;
constexpr int kLeastPixels = 9;  // below that a shortened text says more
// Of a caption's height.
constexpr double kPadding = 0.55;  // at either end
// Of a text's size in pixels: room for the triangle and for a half-typed suit.
constexpr double kSign = 1.05;
constexpr double kSuit = 2.1;

bool HasSign(const Caption& caption) {
  return caption.mark == CaptionMark::ToAct;
}

/// The width that a pill takes besides its text and its ends.
double Extras(const Caption& caption, double pixels) {
  return pixels * ((HasSign(caption) ? kSign : 0) + (caption.halfTyped ? kSuit : 0));
}

QColor BackgroundOf(CaptionMark mark, const TableColours& colours) {
  switch (mark) {
    case CaptionMark::ToAct:
      return kToActYellow;
    case CaptionMark::Over:
      return kOverCyan;
    default:
      return colours.caption;
  }
}

void DrawTriangle(QPainter& painter, QPointF left, double size) {
  QPainterPath triangle(QPointF(left.x(), left.y() - size / 2));
  triangle.lineTo(left.x() + 0.87 * size, left.y());
  triangle.lineTo(left.x(), left.y() + size / 2);
  triangle.closeSubpath();
  painter.drawPath(triangle);
}

/// The suit's symbol and the gap that its rank will fill.
void DrawHalfTyped(QPainter& painter, const QRectF& place, Suit suit, double pixels) {
  painter.drawPath(SuitOutline(suit, {place.left() + 0.8 * pixels, place.center().y()}, pixels));
  const QRectF gap(place.left() + 1.4 * pixels, place.center().y() + 0.38 * pixels, 0.65 * pixels,
                   std::max(1.5, 0.12 * pixels));
  painter.drawRect(gap);
}

void DrawPill(QPainter& painter, const QRectF& pill, const Caption& caption, const QFont& font,
              const QColor& background, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(background);
  painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
  const double pixels = font.pixelSize();
  QRectF text = pill.adjusted(kPadding * pill.height(), 0, -kPadding * pill.height(), 0);
  painter.setBrush(ink);
  if (HasSign(caption)) {
    DrawTriangle(painter, {text.left(), text.center().y()}, 0.75 * pixels);
    text.setLeft(text.left() + kSign * pixels);
  }
  if (caption.halfTyped) {
    const double left = text.right() - kSuit * pixels;
    DrawHalfTyped(painter, QRectF(left, text.top(), kSuit * pixels, text.height()),
                  *caption.halfTyped, pixels);
    text.setRight(left);
  }
  painter.setPen(ink);
  // The pill's width is a sum of rounded parts, so the text may need a pixel more.
  text.adjust(-1, 0, 1, 0);
  painter.drawText(text, Qt::AlignCenter,
                   QFontMetricsF(font).elidedText(caption.text, Qt::ElideRight, text.width() + 1));
}

}  // namespace

CaptionLayout LayOutCaptions(const TableLayout& table, const PerSeat<Caption>& captions,
                             const Settings& settings, double dotsPerInch) {
  // One size for all four; the narrowest room decides.
  const QRectF& room = table.hands[Seat::West].caption;
  const double wished = settings.hgFont[1].size * dotsPerInch / kPointsPerInch *
                        std::max(1.0, table.felt.height() / kReferenceHeight);
  const double most = std::min(std::max(wished, table.leastCaption), kCaptionText * room.height());
  QStringList texts;
  double extras = 0;
  for (const Caption& caption : captions) {
    texts << caption.text;
    extras = std::max(extras, Extras(caption, most));
  }
  const double ends = 2 * kPadding * room.height();
  CaptionLayout layout;
  layout.font = Fitted(ToFont(settings.hgFont[1]), texts,
                       {room.width() - ends - extras, room.height()}, most);
  layout.font.setPixelSize(std::max(kLeastPixels, layout.font.pixelSize()));
  for (const Seat seat : kAllSeats) {
    if (captions[seat].text.isEmpty()) continue;
    QRectF& pill = layout.pills[seat];
    const QRectF& place = table.hands[seat].caption;
    pill = PillFor(layout, captions[seat], place);
    // Each caption stands beside its hand's cards.
    if (seat == Seat::West) pill.moveLeft(place.left());
    if (seat == Seat::East) pill.moveRight(place.right());
  }
  return layout;
}

QRectF PillFor(const CaptionLayout& layout, const Caption& caption, const QRectF& room) {
  const double pixels = layout.font.pixelSize();
  const double high = std::min(room.height(), pixels / kCaptionText);
  const double width = QFontMetricsF(layout.font).horizontalAdvance(caption.text) +
                       Extras(caption, pixels) + 2 * kPadding * high;
  QRectF pill(0, 0, std::min(width, room.width()), high);
  pill.moveCenter(room.center());
  return pill;
}

void DrawCaption(QPainter& painter, const CaptionLayout& layout, const QRectF& pill,
                 const Caption& caption, const Settings& settings, const TableColours& colours,
                 const QPalette& palette) {
  const QColor background = BackgroundOf(caption.mark, colours);
  painter.setFont(layout.font);
  DrawPill(painter, pill, caption, layout.font, background,
           ReadableOn(background, ToColour(settings.hgFont[1].forecolour, palette)));
}

void DrawCaptions(QPainter& painter, const CaptionLayout& layout, const PerSeat<Caption>& captions,
                  const Settings& settings, const TableColours& colours, const QPalette& palette) {
  for (const Seat seat : kAllSeats) {
    if (captions[seat].text.isEmpty()) continue;
    DrawCaption(painter, layout, layout.pills[seat], captions[seat], settings, colours, palette);
  }
}

}  // namespace tricklet::ui
