#include "ui/app/application.h"

#include "core/fault.h"
#include "core/host.h"

namespace tricklet::ui {

bool Application::notify(QObject* receiver, QEvent* event) {
  if (host == nullptr) return QApplication::notify(receiver, event);
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    ErrorReport(*host, FaultFrom(failure));
    return true;
  }
}

}  // namespace tricklet::ui
