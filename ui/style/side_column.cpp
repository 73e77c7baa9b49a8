#include "ui/style/side_column.h"

#include <algorithm>

#include <QScrollBar>
#include <QVBoxLayout>

namespace tricklet::ui {
namespace {

constexpr int kGap = 12;   // between panes
constexpr int kInset = 2;  // for the focus frames of the controls at the edge

}  // namespace

SideColumn::SideColumn(const QString& name, const QList<QWidget*>& panes, QWidget* parent)
    : QScrollArea(parent) {
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(kInset, kInset, kInset, kInset);
  column->setSpacing(kGap);
  for (QWidget* pane : panes) column->addWidget(pane);
  column->addStretch(1);
  setObjectName(name);
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidget(content);
  KeepRoom(this, true);
}

int SideColumn::WidthFor(double heights) const {
  return static_cast<int>(widget()->fontMetrics().height() * heights);
}

int SideColumn::LeastWidth() {
  widest_ = std::max(widest_, widget()->minimumSizeHint().width());
  return widest_ + verticalScrollBar()->sizeHint().width();
}

bool SideColumn::SetFontFactor(double factor) {
  QFont wanted = font();
  wanted.setPointSizeF(wanted.pointSizeF() * factor);
  if (wanted.pointSizeF() == widget()->font().pointSizeF()) return false;
  widget()->setFont(wanted);
  widest_ = 0;
  return true;
}

void KeepRoom(QWidget* widget, bool keep) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(keep);
  widget->setSizePolicy(policy);
}

}  // namespace tricklet::ui
