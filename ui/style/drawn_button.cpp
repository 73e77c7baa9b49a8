#include "ui/style/drawn_button.h"

#include <algorithm>

#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionToolButton>

namespace tricklet::ui {
namespace {

// In heights of the font.
constexpr double kSide = 1.45;     // of the button
constexpr double kArm = 0.2;       // half the length of a chevron, across
constexpr double kDepth = 0.19;    // of a chevron
constexpr double kStroke = 0.11;   // its weight
constexpr double kBetween = 0.28;  // the two chevrons of a pair

/// A chevron round `middle` that points to the right; `turn` is in degrees, clockwise.
void DrawChevron(QPainter& painter, QPointF middle, double height, double turn) {
  painter.save();
  painter.translate(middle);
  painter.rotate(turn);
  const double half = height * kDepth / 2;
  painter.drawPolyline(
      QPolygonF{QPointF(-half, -height * kArm), QPointF(half, 0), QPointF(-half, height * kArm)});
  painter.restore();
}

void DrawSign(QPainter& painter, const QString& sign, QPointF middle, double height) {
  if (sign == QLatin1String("x")) {
    const QPointF arm(height * kArm, height * kArm);
    const QPointF other(arm.x(), -arm.y());
    painter.drawLine(middle - arm, middle + arm);
    painter.drawLine(middle - other, middle + other);
    return;
  }
  constexpr double kDown = 90;
  constexpr double kUp = -90;
  constexpr double kBack = 180;
  const QChar first = sign.isEmpty() ? QChar() : sign.front();
  const double turn = first == u'v' ? kDown : first == u'^' ? kUp : first == u'<' ? kBack : 0;
  const double step = sign.size() > 1 ? height * kBetween / 2 : 0;
  DrawChevron(painter, middle - QPointF(step, 0), height, turn);
  if (step > 0) DrawChevron(painter, middle + QPointF(step, 0), height, turn);
}

}  // namespace

DrawnButton::DrawnButton(const QString& name, QWidget* parent) : QToolButton(parent) {
  setObjectName(name);
  setAutoRaise(true);
  setFocusPolicy(Qt::StrongFocus);
}

QSize DrawnButton::sizeHint() const {
  const int side = static_cast<int>(fontMetrics().height() * kSide);
  return {side, side};
}

void DrawnButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  option.text.clear();
  option.state &= ~QStyle::State_On;  // the sign tells it
  style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
  const double height = fontMetrics().height();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(
      palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::WindowText),
      std::max(1.0, height * kStroke), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  DrawSign(painter, text(), QRectF(rect()).center(), height);
}

}  // namespace tricklet::ui
