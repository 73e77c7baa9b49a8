#include "ui/cards/card_glyphs.h"

#include <algorithm>

#include <QFont>
#include <QFontMetricsF>
#include <QTransform>

namespace tricklet::ui {
namespace {

constexpr double kBox = 1000;

// Each symbol fills a box from (-500, -500) to (500, 500), fine enough for the set operations
// on paths to keep curves smooth; y grows downwards. The right half is written down, reaching
// a little across the middle, and the left half is its mirror image.

QPainterPath WithMirrorImage(const QPainterPath& half) {
  const QTransform mirror = QTransform::fromScale(-1, 1);
  return half.united(mirror.map(half));
}

QPainterPath Stem() {
  QPainterPath path(QPointF(-10, 50));
  path.lineTo(35, 50);
  path.cubicTo(35, 300, 80, 440, 210, 500);
  path.lineTo(-10, 500);
  path.closeSubpath();
  return path;
}

QPainterPath Spade() {
  QPainterPath half(QPointF(0, -500));
  half.cubicTo(100, -260, 460, -100, 460, 150);
  half.cubicTo(460, 300, 360, 370, 250, 370);
  half.cubicTo(140, 370, 50, 310, -10, 180);
  half.lineTo(-10, -480);
  half.closeSubpath();
  return WithMirrorImage(half.united(Stem()));
}

QPainterPath Heart() {
  QPainterPath half(QPointF(0, 500));
  half.cubicTo(100, 250, 480, 80, 480, -220);
  half.cubicTo(480, -380, 380, -480, 250, -480);
  half.cubicTo(130, -480, 40, -410, -10, -260);
  half.lineTo(-10, 480);
  half.closeSubpath();
  return WithMirrorImage(half);
}

QPainterPath Diamond() {
  QPainterPath half(QPointF(0, -500));
  half.cubicTo(100, -300, 240, -120, 390, 0);
  half.cubicTo(240, 120, 100, 300, 0, 500);
  half.lineTo(-10, 0);
  half.closeSubpath();
  return WithMirrorImage(half);
}

QPainterPath Club() {
  constexpr double kLeaf = 225;
  QPainterPath top;
  top.addEllipse(QPointF(0, -275), kLeaf, kLeaf);
  QPainterPath side;
  side.addEllipse(QPointF(255, 105), kLeaf, kLeaf);
  QPainterPath core(QPointF(-10, -200));
  core.lineTo(80, -120);
  core.cubicTo(80, -40, 100, 20, 200, 100);
  core.lineTo(-10, 200);
  core.closeSubpath();
  return WithMirrorImage(side.united(core).united(Stem())).united(top);
}

const QPainterPath& SuitShape(Suit suit) {
  static const PerSuit<QPainterPath> shapes{{Spade(), Heart(), Diamond(), Club()}};
  return shapes[suit];
}

}  // namespace

QPainterPath SuitOutline(Suit suit, QPointF middle, double height) {
  QTransform transform = QTransform::fromTranslate(middle.x(), middle.y());
  transform.scale(height / kBox, height / kBox);
  return transform.map(SuitShape(suit));
}

QPainterPath RankOutline(Rank rank, const QRectF& box) {
  QFont font;
  font.setBold(true);
  font.setPixelSize(100);  // large enough that hinting leaves no trace once scaled
  const std::string_view text = RankText[rank];
  QPainterPath outline;
  outline.addText(QPointF(), font,
                  QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
  const QRectF bounds = outline.boundingRect();
  const double capital = QFontMetricsF(font).capHeight();
  // Some fonts let J and Q hang below the line; they too keep to the box.
  const double down = box.height() / std::max(capital, bounds.height());
  const double across = std::min(box.height() / capital, box.width() / bounds.width());
  QTransform transform = QTransform::fromTranslate(box.center().x(), box.bottom());
  transform.scale(across, down);
  transform.translate(-bounds.center().x(), -bounds.bottom());
  return transform.map(outline);
}

}  // namespace tricklet::ui
