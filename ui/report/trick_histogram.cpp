#include "ui/report/trick_histogram.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <QPainter>

namespace tricklet::ui {
namespace {

constexpr double kHeightInLines = 8;
constexpr double kLeastInLines = 5;
constexpr double kWidthInLines = 24;
constexpr double kGap = 0.15;  // of a bar's place
constexpr double kPercent = 100;

int ShareOf(std::int64_t deals, std::int64_t all) {
  return static_cast<int>(
      std::lround(kPercent * static_cast<double>(deals) / static_cast<double>(all)));
}

}  // namespace

TrickHistogram::TrickHistogram(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picTricks"));
  setAccessibleName(tr("Tricks by declarer"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void TrickHistogram::Show(const Counts& counts, int needed) {
  counts_ = counts;
  needed_ = needed;
  setAccessibleDescription(Words());
  setToolTip(Words());
  update();
}

std::int64_t TrickHistogram::Deals() const {
  return std::accumulate(counts_.begin(), counts_.end(), std::int64_t{0});
}

QString TrickHistogram::Words() const {
  const std::int64_t all = Deals();
  QStringList words;
  for (std::size_t tricks = 0; tricks < counts_.size(); ++tricks) {
    if (counts_.at(tricks) == 0) continue;
    words += tr("%1 tricks: %2 %").arg(tricks).arg(ShareOf(counts_.at(tricks), all));
  }
  return words.join(QStringLiteral(", "));
}

QSize TrickHistogram::sizeHint() const {
  return (QSizeF(kWidthInLines, kHeightInLines) * fontMetrics().height()).toSize();
}

QSize TrickHistogram::minimumSizeHint() const {
  return (QSizeF(kWidthInLines, kLeastInLines) * fontMetrics().height()).toSize();
}

void TrickHistogram::paintEvent(QPaintEvent* /*event*/) {
  const std::int64_t all = Deals();
  if (all == 0) return;
  const auto most = static_cast<double>(*std::ranges::max_element(counts_));
  const double line = fontMetrics().height();
  const double step = width() / static_cast<double>(counts_.size());
  const double room = height() - 2 * line - 4;
  QPainter painter(this);
  const QColor colour = palette().color(QPalette::Highlight);
  for (std::size_t tricks = 0; tricks < counts_.size(); ++tricks) {
    const double left = static_cast<double>(tricks) * step;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(left, height() - line, step, line), Qt::AlignCenter,
                     QString::number(tricks));
    if (counts_.at(tricks) == 0) continue;
    const double high = std::max(1.0, room * static_cast<double>(counts_.at(tricks)) / most);
    const QRectF bar(left + kGap * step, height() - line - 2 - high, (1 - 2 * kGap) * step, high);
    painter.drawText(QRectF(left - step / 2, bar.top() - line, 2 * step, line), Qt::AlignCenter,
                     tr("%1 %").arg(ShareOf(counts_.at(tricks), all)));
    const bool makes = static_cast<int>(tricks) >= needed_;
    painter.setPen(QPen(colour, 1));
    painter.setBrush(makes ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));
  }
}

}  // namespace tricklet::ui
