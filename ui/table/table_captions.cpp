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
constexpr QChar kDot(0xB7);  // between the parts of a short caption

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

/// The height of a pill with one line of text.
double LineHeight(double pixels, const QRectF& room) {
  return std::min(room.height(), pixels / kCaptionText);
}

/// The text, broken between two words into lines as equally long as can be, but not at a colon.
/// Of a dot between two parts nothing is left where the line is broken.
QString InTwoLines(const QString& text, const QFontMetricsF& metrics) {
  QString best = text;
  double least = metrics.horizontalAdvance(text);
  for (qsizetype at = text.indexOf(u' '); at >= 0; at = text.indexOf(u' ', at + 1)) {
    QString first = text.left(at);
    QString second = text.mid(at + 1);
    if (first.endsWith(u':') || second.startsWith(u':')) continue;
    if (first.endsWith(kDot)) first.chop(2);
    if (second.startsWith(kDot)) second.remove(0, 2);
    const double width =
        std::max(metrics.horizontalAdvance(first), metrics.horizontalAdvance(second));
    if (width >= least) continue;
    least = width;
    best = first + u'\n' + second;
  }
  return best;
}

QFont AtPixels(QFont font, double pixels) {
  font.setPixelSize(std::max(kLeastPixels, static_cast<int>(pixels)));
  return font;
}

/// `text` in the lines that `width` asks for, as far as there is room for them.
QString BrokenToFit(const QString& text, int lines, double width, const QFont& font) {
  const QFontMetricsF metrics(font);
  const bool fits = lines < 2 || metrics.horizontalAdvance(text) <= width;
  return fits ? text : InTwoLines(text, metrics);
}

/// The width that a caption's room leaves for its text.
double WidthForText(const PlacedHand& hand, double extras) {
  const double line = hand.caption.height() / (1 + (hand.lines - 1) * kLineStep * kCaptionText);
  return hand.caption.width() - 2 * kPadding * line - extras;
}

void DrawPill(QPainter& painter, const QRectF& pill, const Caption& caption, const QFont& font,
              const QColor& background, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(background);
  const double pixels = font.pixelSize();
  const double line = LineHeight(pixels, pill);
  painter.drawRoundedRect(pill, line / 2, line / 2);
  QRectF text = pill.adjusted(kPadding * line, 0, -kPadding * line, 0);
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
  QStringList lines = caption.text.split(u'\n');
  for (QString& each : lines) {
    each = QFontMetricsF(font).elidedText(each, Qt::ElideRight, text.width() + 1);
  }
  painter.drawText(text, Qt::AlignCenter, lines.join(u'\n'));
}

/// The caption with its text as the layout has it.
Caption Broken(const CaptionLayout& layout, const PerSeat<Caption>& captions, Seat seat) {
  Caption broken = captions[seat];
  broken.text = layout.texts[seat];
  return broken;
}

}  // namespace

CaptionLayout LayOutCaptions(const TableLayout& table, const PerSeat<Caption>& captions,
                             const Settings& settings, double dotsPerInch) {
  // One size for all four; the text that has the least room decides.
  const QRectF& room = table.hands[Seat::West].caption;
  const double wished = settings.hgFont[1].size * dotsPerInch / kPointsPerInch *
                        std::max(1.0, table.felt.height() / kReferenceHeight);
  double most = std::min(std::max(wished, table.leastCaption), kCaptionText * room.height());
  CaptionLayout layout;
  layout.font = ToFont(settings.hgFont[1]);
  for (const Seat seat : kAllSeats) {
    const PlacedHand& hand = table.hands[seat];
    const double width = WidthForText(hand, Extras(captions[seat], most));
    layout.texts[seat] =
        BrokenToFit(captions[seat].text, hand.lines, width, AtPixels(layout.font, most));
    most = Fitted(layout.font, layout.texts[seat].split(u'\n'), {width, room.height()}, most)
               .pixelSize();
  }
  layout.font = AtPixels(layout.font, most);
  for (const Seat seat : kAllSeats) {
    if (captions[seat].text.isEmpty()) continue;
    QRectF& pill = layout.pills[seat];
    const QRectF& place = table.hands[seat].caption;
    pill = PillFor(layout, Broken(layout, captions, seat), place);
    // Each caption stands beside its hand's cards.
    if (seat == Seat::West) pill.moveLeft(place.left());
    if (seat == Seat::East) pill.moveRight(place.right());
  }
  return layout;
}

int SideLinesFor(const TableLayout& table, const PerSeat<Caption>& captions,
                 const Settings& settings) {
  const QFontMetricsF metrics(AtPixels(ToFont(settings.hgFont[1]), table.leastCaption));
  for (const Seat seat : {Seat::West, Seat::East}) {
    const double width =
        WidthForText(table.hands[seat], Extras(captions[seat], table.leastCaption));
    if (metrics.horizontalAdvance(captions[seat].text) > width) return 2;
  }
  return 1;
}

QRectF PillFor(const CaptionLayout& layout, const Caption& caption, const QRectF& room) {
  const double pixels = layout.font.pixelSize();
  const double line = LineHeight(pixels, room);
  const QFontMetricsF metrics(layout.font);
  double widest = 0;
  const QStringList lines = caption.text.split(u'\n');
  for (const QString& each : lines) widest = std::max(widest, metrics.horizontalAdvance(each));
  const double width = widest + Extras(caption, pixels) + 2 * kPadding * line;
  const double high = line + static_cast<double>(lines.size() - 1) * kLineStep * pixels;
  QRectF pill(0, 0, std::min(width, room.width()), std::min(high, room.height()));
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
    DrawCaption(painter, layout, layout.pills[seat], Broken(layout, captions, seat), settings,
                colours, palette);
  }
}

}  // namespace tricklet::ui
