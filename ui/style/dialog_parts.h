// What dialogs that stay open have in common.
#pragma once

#include <QPushButton>
#include <QScreen>

namespace tricklet::ui {

/// The largest that `dialog` can be on its screen, with room for the title bar and borders.
inline QSize RoomForDialog(const QWidget& dialog) {
  constexpr int kFrame = 48;
  return dialog.screen()->availableSize() - QSize(kFrame, kFrame);
}

/// A button that Enter does not press while something else has the focus: there it has a meaning of
/// its own.
inline QPushButton* MakeCommandButton(const char* name, const QString& text, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAutoDefault(false);
  return button;
}

}  // namespace tricklet::ui
