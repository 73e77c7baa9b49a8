// Work for the event loop's next turn.
#pragma once

#include <QTimer>

namespace tricklet::ui {

/// Calls `procedure` when the running event has been dealt with; not at all when `context` is gone
/// by then.
template <class Procedure>
void Later(QObject* context, Procedure procedure) {
  auto* timer = new QTimer(context);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, context, procedure);
  QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
  timer->start(0);
}

}  // namespace tricklet::ui
