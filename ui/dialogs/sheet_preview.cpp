#include "ui/dialogs/sheet_preview.h"

#include <algorithm>
#include <utility>

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

namespace tricklet::ui {
namespace {

constexpr int kMargin = 8;                   // round the paper
constexpr int kStepOfWheel = 120;            // of one notch, in eighths of a degree
constexpr double kPointsToHint = 0.75;       // of the paper's size, where there is room
constexpr QSize kLeast(180, 180);            // a page can be told from another one
constexpr QSize kUsual(595, 842);            // A4, in points
const QColor kEdge(0x80, 0x80, 0x80);        // seen on light and dark grounds
const QColor kShadow(0x00, 0x00, 0x00, 50);  // below and beside the paper

}  // namespace

SheetPreview::SheetPreview(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picSheet"));
  setAccessibleName(tr("Preview"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize SheetPreview::minimumSizeHint() const {
  return kLeast;
}
QSize SheetPreview::sizeHint() const {
  return kUsual * kPointsToHint;
}

int SheetPreview::Pages() const {
  return sheets_ ? sheets_->Pages() : 0;
}

void SheetPreview::Show(Sheets sheets) {
  sheets_ = std::move(sheets);
  nothing_.clear();
  page_ = std::clamp(page_, 0, Pages() - 1);
  Describe();
}

void SheetPreview::ShowNothing(const QString& why) {
  sheets_.reset();
  nothing_ = why;
  page_ = 0;
  Describe();
}

void SheetPreview::TurnTo(int page) {
  const int nearest = std::clamp(page, 0, std::max(Pages() - 1, 0));
  if (nearest == page_) return;
  page_ = nearest;
  Describe();
}

/// What is shown is another page.
void SheetPreview::Describe() {
  picture_ = {};
  update();
  setAccessibleDescription(sheets_ ? tr("Page %1 of %2").arg(page_ + 1).arg(Pages()) : nothing_);
  emit Turned();
}

QRect SheetPreview::PaperOf(const Sheets& sheets) const {
  const QRect room = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const QSizeF paper = sheets.Layout().fullRectPoints().size();
  const QSize size = paper.scaled(room.size(), Qt::KeepAspectRatio).toSize();
  return {room.center() - QPoint((size.width() - 1) / 2, (size.height() - 1) / 2), size};
}

void SheetPreview::DrawPage(const Sheets& sheets, QSize pixels) {
  if (picture_.size() == pixels || pixels.isEmpty()) return;
  picture_ = QPixmap(pixels);
  picture_.fill(Qt::white);
  QPainter painter(&picture_);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const double scale = pixels.width() / sheets.Layout().fullRectPoints().toRectF().width();
  painter.scale(scale, scale);
  sheets.Paint(painter, page_);
}

void SheetPreview::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (sheets_) {
    const QRect paper = PaperOf(*sheets_);
    DrawPage(*sheets_, (QSizeF(paper.size()) * devicePixelRatioF()).toSize());
    painter.fillRect(paper.translated(2, 2), kShadow);
    painter.drawPixmap(paper, picture_);
    painter.setPen(kEdge);
    painter.drawRect(paper.adjusted(-1, -1, 0, 0));
  } else {
    painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, nothing_);
  }
  if (!ring_) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void SheetPreview::focusInEvent(QFocusEvent* event) {
  ring_ = event->reason() != Qt::MouseFocusReason;
  update();
}
void SheetPreview::focusOutEvent(QFocusEvent* /*event*/) {
  ring_ = false;
  update();
}

void SheetPreview::wheelEvent(QWheelEvent* event) {
  turned_ += event->angleDelta().y();
  const int pages = turned_ / kStepOfWheel;
  turned_ %= kStepOfWheel;
  TurnTo(page_ - pages);
  event->accept();
}

void SheetPreview::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      TurnTo(0);
      break;
    case Qt::Key_End:
      TurnTo(Pages() - 1);
      break;
    case Qt::Key_Left:
    case Qt::Key_Up:
      TurnTo(page_ - 1);
      break;
    case Qt::Key_Right:
    case Qt::Key_Down:
      TurnTo(page_ + 1);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace tricklet::ui
