// Work for the event loop's next turn, or for a later one.
#pragma once

#include <chrono>

#include <QTimer>

namespace tricklet::ui {

/// Calls `procedure` after `delay`, and not before the running event has been dealt with; not at
/// all when `context` is gone by then.
template <class Procedure>
void Later(QObject* context, Procedure procedure, std::chrono::milliseconds delay = {}) {
  auto* timer = new QTimer(context);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, context, procedure);
  QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
  timer->start(delay);
}

}  // namespace tricklet::ui
