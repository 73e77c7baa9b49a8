#include "ui/style/follow_font.h"

#include <QEvent>
#include <QWidget>

namespace tricklet::ui {

FollowFont::FollowFont(QWidget* widget, double factor, bool bold)
    : QObject(widget), widget_(widget), factor_(factor), bold_(bold) {
  widget->parentWidget()->installEventFilter(this);
  Apply();
}

void FollowFont::SetFactor(double factor) {
  if (factor == factor_) return;
  factor_ = factor;
  Apply();
}

void FollowFont::Apply() {
  QFont font = widget_->parentWidget()->font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * factor_);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * factor_));
  }
  font.setBold(bold_);
  if (font != widget_->font()) widget_->setFont(font);
}

bool FollowFont::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FontChange) Apply();
  return QObject::eventFilter(watched, event);
}

}  // namespace tricklet::ui
