#include "ui/style/focus_ring.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QPainter>

namespace tricklet::ui {

FocusRing::FocusRing(QAbstractItemView* list) : QWidget(list) {
  setObjectName(QStringLiteral("focusRing"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
  list->installEventFilter(this);
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
  constexpr int kWeight = 2;
  QPainter painter(this);
  // The program's colour: a list may mark its rows in a paler one.
  QPen pen(QGuiApplication::palette().color(QPalette::Highlight), kWeight);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  painter.drawRect(rect().adjusted(kWeight / 2, kWeight / 2, -kWeight / 2, -kWeight / 2));
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    setVisible(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
               reason == Qt::ShortcutFocusReason);
    raise();
  } else if (event->type() == QEvent::FocusOut) {
    hide();
  }
  if (event->type() == QEvent::Resize || event->type() == QEvent::FocusIn) {
    setGeometry(parentWidget()->rect());
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tricklet::ui
