#include "ui/dialogs/name_filter.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "library/library_names.h"

namespace tricklet::ui {

NameFilter::NameFilter(QLineEdit* edit, Host& host, QWidget* receiver)
    : QObject(edit), edit_(edit), host_(host) {
  edit->installEventFilter(this);
  if (receiver != nullptr) receiver->installEventFilter(this);
}

bool NameFilter::Allows(const QString& typed) const {
  const int place = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
  bool first = place == 0;
  for (const uint character : typed.toUcs4()) {
    if (!AllowedInLibraryName(character, first)) return false;
    first = false;
  }
  return true;
}

bool NameFilter::eventFilter(QObject* watched, QEvent* event) {
  QString typed;
  if (event->type() == QEvent::KeyPress) {
    const QString text = static_cast<QKeyEvent*>(event)->text();
    if (!text.isEmpty() && text.at(0).isPrint()) typed = text;  // command keys print nothing
  } else if (event->type() == QEvent::InputMethod) {
    typed = static_cast<QInputMethodEvent*>(event)->commitString();
  }
  // While the text box is being destroyed, events without a text still come.
  if (typed.isEmpty() || Allows(typed)) return QObject::eventFilter(watched, event);
  host_.Beep();
  return true;
}

}  // namespace tricklet::ui
