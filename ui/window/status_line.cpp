#include "ui/window/status_line.h"

#include <QPainter>
#include <QStyleOption>

#include "ui/style/section.h"

namespace tricklet::ui {

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), status_(new ElidedLabel(this)), newVersion_(new QLabel(this)) {
  status_->setObjectName(QStringLiteral("lblStatus"));
  MakeQuiet(status_);
  newVersion_->setObjectName(QStringLiteral("lblNewVersion"));
  newVersion_->setTextFormat(Qt::PlainText);
  auto* hint = new QLabel(tr("F1 help · F11 presentation"), this);
  hint->setObjectName(QStringLiteral("lblKeys"));
  MakeQuiet(hint);
  setSizeGripEnabled(false);
  setContentsMargins(8, 0, 8, 4);
  addWidget(status_, 1);
  addPermanentWidget(newVersion_);
  addPermanentWidget(hint);
  ShowNewVersion({});
}

void StatusLine::Say(const QString& text) {
  status_->setText(text);
}

QString StatusLine::Said() const {
  return status_->text();
}

void StatusLine::ShowNewVersion(const QString& version) {
  newVersion_->setVisible(!version.isEmpty());
  newVersion_->setText(tr("Version %1 is there: see the Help menu").arg(version));
}

/// The style draws frames round the texts on Windows. A style sheet would leave them out, but it
/// holds on to the colours that it was set with.
void StatusLine::paintEvent(QPaintEvent* event) {
  if (!currentMessage().isEmpty()) {
    QStatusBar::paintEvent(event);
    return;
  }
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_PanelStatusBar, &option, &painter, this);
}

}  // namespace tricklet::ui
