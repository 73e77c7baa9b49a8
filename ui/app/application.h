// The Qt application of the program.
#pragma once

#include <QApplication>

namespace tricklet {
class Host;
}

namespace tricklet::ui {

/// Reports what is thrown while an event is handled, wherever that is: Qt itself would end the
/// program, and unsaved changes with it.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  /// Where failures are reported; without one they are not caught.
  Host* host = nullptr;

  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace tricklet::ui
