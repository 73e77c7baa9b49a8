#include "ui/window/status_line.h"

#include <QEvent>
#include <QStatusBar>

#include "ui/background/later.h"
#include "ui/style/section.h"

namespace tricklet::ui {

StatusLine::StatusLine(QStatusBar* bar)
    : QObject(bar), bar_(bar), status_(new ElidedLabel(bar)), newVersion_(new QLabel(bar)) {
  status_->setObjectName(QStringLiteral("lblStatus"));
  MakeQuiet(status_);
  newVersion_->setObjectName(QStringLiteral("lblNewVersion"));
  newVersion_->setTextFormat(Qt::PlainText);
  auto* hint = new QLabel(tr("F1 help · F11 presentation"), bar);
  MakeQuiet(hint);
  bar->setSizeGripEnabled(false);
  bar->setContentsMargins(8, 0, 8, 4);
  Style();
  bar->addWidget(status_, 1);
  bar->addPermanentWidget(newVersion_);
  bar->addPermanentWidget(hint);
  ShowNewVersion({});
  bar->installEventFilter(this);
}

void StatusLine::Say(const QString& text) {
  status_->setText(text);
}

void StatusLine::ShowNewVersion(const QString& version) {
  newVersion_->setVisible(!version.isEmpty());
  newVersion_->setText(tr("Version %1 is there: see the Help menu").arg(version));
}

void StatusLine::SetVisible(bool visible) {
  bar_->setVisible(visible);
}

/// No frames round its texts, as Windows has them. The texts keep the colours that they had when
/// the sheet was set, so it is set again when they change.
void StatusLine::Style() {
  bar_->setStyleSheet(QString());
  bar_->setStyleSheet(QStringLiteral("QStatusBar::item { border: none; }"));
}

bool StatusLine::eventFilter(QObject* watched, QEvent* event) {
  if (watched == bar_ && event->type() == QEvent::ApplicationPaletteChange) {
    Later(this, [this] { Style(); });
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tricklet::ui
