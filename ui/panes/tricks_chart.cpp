#include "ui/panes/tricks_chart.h"

#include <algorithm>
#include <cmath>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include "ui/panes/review_texts.h"
#include "ui/style/follow_font.h"
#include "ui/style/highlight.h"

namespace tricklet::ui {
namespace {

constexpr double kFontSize = 0.82;  // of the column's
// In heights of the chart's font.
constexpr double kHeight = 8;
constexpr double kLeastHeight = 6;
constexpr double kLeastWidth = 8;
constexpr double kPadding = 0.6;
constexpr double kDot = 0.28;  // radius
constexpr double kLineWidth = 0.13;
constexpr double kCorner = 4;

}  // namespace

/// Where cards and tricks lie.
struct TricksChart::Axes {
  QRectF room;    // of the lines
  int least = 0;  // tricks at the lower edge
  int most = 13;  // tricks at the upper edge
  int step = 1;   // between two numbers at the side

  double X(int cards) const { return room.left() + room.width() * cards / kCardsInPack; }
  double Y(int tricks) const {
    return room.bottom() - room.height() * (tricks - least) / std::max(1, most - least);
  }
  QPointF At(int cards, int tricks) const { return {X(cards), Y(tricks)}; }
};

TricksChart::TricksChart(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picReview"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  new FollowFont(this, kFontSize);
}

void TricksChart::Show(const PlayReview& review, std::optional<int> place) {
  review_ = review;
  place_ = place;
  setAccessibleName(TricksTitle(review_));
  setAccessibleDescription(SpokenTricks(review_, place_));
  update();
}

QSize TricksChart::sizeHint() const {
  const double height = fontMetrics().height();
  return {static_cast<int>(height * 2 * kLeastWidth), static_cast<int>(height * kHeight)};
}

QSize TricksChart::minimumSizeHint() const {
  const double height = fontMetrics().height();
  return {static_cast<int>(height * kLeastWidth), static_cast<int>(height * kLeastHeight)};
}

/// A trick of air above and below what is shown.
TricksChart::Axes TricksChart::AxesOf() const {
  Axes axes;
  int least = std::min(review_.needed, review_.doubleDummy);
  int most = std::max(review_.needed, review_.doubleDummy);
  for (const ReviewedCard& card : review_.cards) {
    least = std::min(least, card.declarerTricks);
    most = std::max(most, card.declarerTricks);
  }
  axes.least = std::max(0, least - 1);
  axes.most = std::min(kCardsInHand, most + 1);
  const QFontMetricsF metrics(font());
  const double padding = metrics.height() * kPadding;
  const double numbers = metrics.horizontalAdvance(QStringLiteral("13"));
  axes.room = QRectF(rect()).adjusted(numbers + 2 * padding, padding, -padding, -padding);
  const int rows = axes.most - axes.least;
  axes.step = std::max(
      1, static_cast<int>(std::ceil(rows * metrics.height() / std::max(1.0, axes.room.height()))));
  return axes;
}

void TricksChart::DrawScale(QPainter& painter, const Axes& axes) const {
  const QFontMetricsF metrics(font());
  const double padding = metrics.height() * kPadding;
  for (int tricks = axes.least; tricks <= axes.most; tricks += axes.step) {
    const double y = axes.Y(tricks);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.drawLine(QPointF(axes.room.left(), y), QPointF(axes.room.right(), y));
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRectF room(0, y - metrics.height() / 2, axes.room.left() - padding / 2,
                      metrics.height());
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, QString::number(tricks));
  }
  QPen need(NeedColour(palette()), 1.5, Qt::DashLine);
  painter.setPen(need);
  const double y = axes.Y(review_.needed);
  painter.drawLine(QPointF(axes.room.left(), y), QPointF(axes.room.right(), y));
}

void TricksChart::DrawLine(QPainter& painter, const Axes& axes) const {
  const double height = QFontMetricsF(font()).height();
  QPainterPath line(axes.At(0, review_.doubleDummy));
  for (std::size_t i = 0; i < review_.cards.size(); ++i) {
    line.lineTo(axes.At(static_cast<int>(i) + 1, review_.cards[i].declarerTricks));
  }
  QPen pen(palette().color(QPalette::Highlight), height * kLineWidth);
  pen.setJoinStyle(Qt::RoundJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(line);
  painter.setPen(QPen(palette().color(QPalette::Base), 1));
  painter.setBrush(MistakeColour(palette()));
  for (std::size_t i = 0; i < review_.cards.size(); ++i) {
    if (review_.cards[i].given == 0) continue;
    painter.drawEllipse(axes.At(static_cast<int>(i) + 1, review_.cards[i].declarerTricks),
                        height * kDot, height * kDot);
  }
}

void TricksChart::DrawPlace(QPainter& painter, const Axes& axes) const {
  if (!place_) return;
  painter.setPen(QPen(palette().color(QPalette::Text), 1.5));
  const double x = axes.X(*place_);
  painter.drawLine(QPointF(x, axes.room.top()), QPointF(x, axes.room.bottom()));
}

void TricksChart::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool ring = ring_ && hasFocus();
  const double weight = ring ? 2 : 1;
  painter.setPen(QPen(palette().color(ring ? QPalette::Highlight : QPalette::Mid), weight));
  painter.setBrush(palette().color(QPalette::Base));
  const double inset = weight / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
  const Axes axes = AxesOf();
  DrawScale(painter, axes);
  DrawLine(painter, axes);
  DrawPlace(painter, axes);
}

/// The place nearest to `x`.
int TricksChart::CardsAt(double x) const {
  const Axes axes = AxesOf();
  const double share = (x - axes.room.left()) / std::max(1.0, axes.room.width());
  return std::clamp(static_cast<int>(std::round(share * kCardsInPack)), 0,
                    static_cast<int>(review_.cards.size()));
}

void TricksChart::Ask(int cards) {
  if (place_) emit PlaceAsked(std::clamp(cards, 0, static_cast<int>(review_.cards.size())));
}

void TricksChart::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Ask(CardsAt(event->position().x()));
}

void TricksChart::mouseMoveEvent(QMouseEvent* event) {
  setCursor(place_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
  if (event->buttons().testFlag(Qt::LeftButton)) Ask(CardsAt(event->position().x()));
}

void TricksChart::keyPressEvent(QKeyEvent* event) {
  const int place = place_.value_or(0);
  const bool ours = place_ && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (ours && event->key() == Qt::Key_Left) {
    Ask(place - 1);
  } else if (ours && event->key() == Qt::Key_Right) {
    Ask(place + 1);
  } else if (ours && event->key() == Qt::Key_Home) {
    Ask(0);
  } else if (ours && event->key() == Qt::Key_End) {
    Ask(kCardsInPack);
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool TricksChart::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  QToolTip::showText(help->globalPos(), TricksAfterText(review_, CardsAt(help->pos().x())), this);
  return true;
}

void TricksChart::focusInEvent(QFocusEvent* event) {
  ring_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
          event->reason() == Qt::ShortcutFocusReason;
  QWidget::focusInEvent(event);
}

void TricksChart::focusOutEvent(QFocusEvent* event) {
  ring_ = false;
  QWidget::focusOutEvent(event);
}

void TricksChart::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}

}  // namespace tricklet::ui
