// An editor for deal conditions.
#pragma once

#include <QPlainTextEdit>

#include "conditions/script.h"

class QCompleter;
class QTimer;

namespace tricklet::ui {

class ConditionHighlighter;

/// Colours what is written, completes the words of the language (after two letters, or by
/// Ctrl+Space) and underlines what cannot be read, a moment after the last key. Tab leaves it.
class ConditionEditor : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit ConditionEditor(QWidget* parent = nullptr);

  /// What the text says; read at once when that has not been done since the last key.
  const ReadOutcome& Outcome();

  /// The first thing that is wrong, for the person; empty when all can be read.
  QString FaultText();

  /// Puts the cursor where the first fault is.
  void GoToFault();

 signals:
  /// The text has been read: `Outcome` is about it.
  void WasRead();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Read();
  void ShowFaults();
  QString WordBeforeCursor() const;
  void OfferWords(bool asked);
  void Complete(const QString& word);
  QTextCursor CursorAt(const ScriptFault& fault) const;

  ConditionHighlighter* highlighter_;
  QCompleter* completer_;
  QTimer* pause_;
  ReadOutcome outcome_;
  bool upToDate_ = false;
};

}  // namespace tricklet::ui
