// The right column: what is written about the board.
#pragma once

#include <functional>
#include <string>

#include "library/session.h"
#include "ui/style/section.h"

class QPlainTextEdit;
class QTimer;

namespace tricklet::ui {

/// The notes of the board, to be read and written. What is typed is stored by itself: when the
/// focus goes elsewhere, some seconds after the last key, and by `FinishTyping`. Until that has
/// been done it stays in the pane, whatever is shown.
class NotesPane : public Section {
  Q_OBJECT

 public:
  explicit NotesPane(Session& session, QWidget* parent = nullptr);

  /// Shows the notes of the current board. What is being typed for this board stays.
  void Show(const std::string& note);
  /// Puts the cursor behind the text.
  void BeginTyping();
  /// What has been typed is not stored yet.
  bool Typing() const;
  /// Stores what has been typed. Where that fails, asks whether it is to be given up; false when
  /// it is not.
  bool FinishTyping();

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  /// The person is done here: `empty` without a text.
  void Left(bool empty);
  /// The library has other notes now.
  void Stored();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Store();
  void StoreQuietly();
  void SetText(const QString& text);
  void FitHeight();

  Session& session_;
  QPlainTextEdit* txtNotes;
  QTimer* clock_;
  std::string seen_;  // what is stored, as far as is known
  int board_ = 0;     // that `txtNotes` is about, and its library
  std::string library_;
  bool failed_ = false;  // the last attempt to store what is typed
};

}  // namespace tricklet::ui
