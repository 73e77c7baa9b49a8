#include "ui/report/par_scatter.h"

#include <algorithm>
#include <cmath>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/report/report_texts.h"

namespace tricklet::ui {
namespace {

constexpr double kStep = 500;  // points between two lines
constexpr double kRadius = 4;  // of a point, in pixels
constexpr double kReach = 9;   // of the mouse
constexpr int kMostLines = 4;  // on each side of zero
constexpr double kSideInLines = 13;
constexpr double kLeastInLines = 8;

}  // namespace

ParScatter::ParScatter(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picScatter"));
  setAccessibleName(tr("Score against par"));
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void ParScatter::Show(std::vector<ScatterPoint> points) {
  points_ = std::move(points);
  double most = kStep;
  for (const ScatterPoint& point : points_) {
    most = std::max({most, std::abs(point.par), std::abs(point.score)});
  }
  most_ = std::ceil(most / kStep) * kStep;
  setAccessibleDescription(ScatterText(points_));
  update();
}

QSize ParScatter::sizeHint() const {
  const int side = static_cast<int>(kSideInLines * fontMetrics().height());
  return {side, side};
}

QSize ParScatter::minimumSizeHint() const {
  const int side = static_cast<int>(kLeastInLines * fontMetrics().height());
  return {side, side};
}

/// A square, with room for the words at its left and below.
QRectF ParScatter::Field() const {
  const double line = fontMetrics().height();
  const double margin = kRadius + 2;
  const QRectF room = QRectF(rect()).adjusted(margin, line + margin, -margin, -line - margin);
  const double side = std::max(0.0, std::min(room.width(), room.height()));
  return {room.left() + (room.width() - side) / 2, room.top(), side, side};
}

QPointF ParScatter::PlaceOf(const ScatterPoint& point) const {
  const QRectF field = Field();
  return {field.center().x() + point.par / most_ * field.width() / 2,
          field.center().y() - point.score / most_ * field.height() / 2};
}

/// The nearest one, chosen ones first, which lie on top; -1 where none is near.
int ParScatter::PointAt(QPointF at) const {
  int found = -1;
  double nearest = kReach;
  for (std::size_t i = 0; i < points_.size(); ++i) {
    const QPointF off = PlaceOf(points_[i]) - at;
    const double distance = std::hypot(off.x(), off.y());
    const bool better =
        found < 0 || distance < nearest || (distance == nearest && points_[i].chosen);
    if (distance > kReach || !better) continue;
    nearest = distance;
    found = static_cast<int>(i);
  }
  return found;
}

void ParScatter::PaintAxes(QPainter& painter) const {
  const QRectF field = Field();
  const QColor quiet = palette().color(QPalette::PlaceholderText);
  QColor faint = quiet;
  faint.setAlphaF(0.3F);
  painter.setPen(QPen(faint, 1));
  const double step = std::max(kStep, std::ceil(most_ / kStep / kMostLines) * kStep);
  const int lines = static_cast<int>(most_ / step);
  for (int line = 0; line <= lines; ++line) {
    for (const double points : {line * step, -line * step}) {
      const QPointF place = PlaceOf({points, points, false, {}});
      painter.drawLine(QPointF(place.x(), field.top()), QPointF(place.x(), field.bottom()));
      painter.drawLine(QPointF(field.left(), place.y()), QPointF(field.right(), place.y()));
    }
  }
  painter.setPen(QPen(quiet, 1));
  painter.drawLine(QPointF(field.center().x(), field.top()),
                   QPointF(field.center().x(), field.bottom()));
  painter.drawLine(QPointF(field.left(), field.center().y()),
                   QPointF(field.right(), field.center().y()));
  painter.setPen(QPen(quiet, 1, Qt::DashLine));
  painter.drawLine(field.bottomLeft(), field.topRight());
  painter.setPen(palette().color(QPalette::WindowText));
  const double line = fontMetrics().height();
  const QRectF above(0, field.top() - line - kRadius, width(), line);
  const QRectF below(0, field.bottom() + kRadius, width(), line);
  painter.drawText(above, Qt::AlignHCenter, tr("score, to %1").arg(SignedText(most_)));
  painter.drawText(below, Qt::AlignHCenter, tr("par, to %1").arg(SignedText(most_)));
}

void ParScatter::PaintPoints(QPainter& painter, bool chosen) const {
  const QColor accent = palette().color(QPalette::Highlight);
  painter.setPen(QPen(
      chosen ? palette().color(QPalette::Window) : palette().color(QPalette::PlaceholderText), 1));
  painter.setBrush(chosen ? QBrush(accent) : QBrush(Qt::NoBrush));
  for (const ScatterPoint& point : points_) {
    if (point.chosen == chosen) painter.drawEllipse(PlaceOf(point), kRadius, kRadius);
  }
}

void ParScatter::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(Field(), palette().color(QPalette::Base));
  PaintAxes(painter);
  PaintPoints(painter, false);
  PaintPoints(painter, true);
}

bool ParScatter::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const int point = PointAt(help->pos());
  QToolTip::showText(
      help->globalPos(),
      point < 0 ? accessibleDescription() : points_[static_cast<std::size_t>(point)].text, this);
  return true;
}

void ParScatter::mousePressEvent(QMouseEvent* event) {
  const int point = PointAt(event->position());
  if (point >= 0) emit PointChosen(point);
}

QString ScatterText(const std::vector<ScatterPoint>& points) {
  const bool some =
      std::any_of(points.begin(), points.end(), [](const auto& point) { return point.chosen; });
  int better = 0;
  int same = 0;
  int worse = 0;
  const ScatterPoint* best = nullptr;
  const ScatterPoint* worst = nullptr;
  for (const ScatterPoint& point : points) {
    if (some && !point.chosen) continue;
    const double gain = point.score - point.par;
    ++(gain > 0 ? better : gain < 0 ? worse : same);
    if (best == nullptr || gain > best->score - best->par) best = &point;
    if (worst == nullptr || gain < worst->score - worst->par) worst = &point;
  }
  if (best == nullptr) return ParScatter::tr("No result can be compared with par.");
  return ParScatter::tr("Better than par: %1, at par: %2, worse: %3. Best: %4. Worst: %5.")
      .arg(better)
      .arg(same)
      .arg(worse)
      .arg(best->text, worst->text);
}

}  // namespace tricklet::ui
