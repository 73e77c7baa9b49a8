// The keys that may be typed into the name of a library.
#pragma once

#include <QObject>

#include "core/host.h"

class QLineEdit;
class QWidget;

namespace tricklet::ui {

/// Refuses, with a beep, the characters that the engine does not allow in a library's name.
class NameFilter : public QObject {
  Q_OBJECT

 public:
  /// Watches `edit` and belongs to it. `receiver` gets the keys in its place, as an editable combo
  /// box does for its text.
  NameFilter(QLineEdit* edit, Host& host, QWidget* receiver = nullptr);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Allows(const QString& typed) const;

  QLineEdit* edit_;
  Host& host_;
};

}  // namespace tricklet::ui
