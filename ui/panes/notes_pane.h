// The right column: what is written about the board.
#pragma once

#include <string>

#include "ui/style/section.h"

namespace tricklet::ui {

/// The notes of the board that came with its file, to be read and copied.
class NotesPane : public Section {
  Q_OBJECT

 public:
  explicit NotesPane(QWidget* parent = nullptr);

  void Show(const std::string& note);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const { return {lblNotes}; }

 private:
  QLabel* lblNotes;
};

}  // namespace tricklet::ui
