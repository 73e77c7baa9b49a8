#include "ui/style/section.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/style/follow_font.h"

namespace tricklet::ui {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect room = contentsRect();
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
  const QString tip = shown == text() ? QString() : text();
  if (toolTip() != tip) setToolTip(tip);
  style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                        shown, foregroundRole());
}

Section::Section(const QString& name, QWidget* parent)
    : QFrame(parent),
      body_(new QVBoxLayout(this)),
      titleRow_(new QHBoxLayout),
      title_(new ElidedLabel(this)),
      titleFont_(new FollowFont(title_, 1, true)) {
  setObjectName(name);
  titleRow_->addWidget(title_, 1);
  body_->setContentsMargins(0, 0, 0, 0);
  body_->setSpacing(6);
  body_->addLayout(titleRow_);
}

void Section::SetTitle(const QString& title) {
  title_->setText(title);
  setAccessibleName(title);
}

void Section::SetFromAfar(bool afar) {
  titleFont_->SetFactor(afar ? kAfar : 1);
}

void MakeQuiet(QLabel* label) {
  label->setForegroundRole(QPalette::PlaceholderText);
}

QFrame* MakeSeparator(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Plain);
  line->setForegroundRole(QPalette::Mid);
  return line;
}

}  // namespace tricklet::ui
