// Colours for the words of the language of deal conditions.
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>

namespace tricklet::ui {

/// Colours a text as it is typed, readable on the palette's base, light or dark.
class ConditionHighlighter : public QSyntaxHighlighter {
  Q_OBJECT

 public:
  ConditionHighlighter(QTextDocument* document, const QPalette& palette);

  /// Takes the colours that fit another palette.
  void SetPalette(const QPalette& palette);

 protected:
  void highlightBlock(const QString& text) override;

 private:
  QPalette palette_;
};

}  // namespace tricklet::ui
