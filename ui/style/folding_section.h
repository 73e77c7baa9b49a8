// A section whose contents can be folded away.
#pragma once

#include "ui/style/section.h"

class QToolButton;

namespace tricklet::ui {

/// The button at the end of the title has the text "v" while the contents are shown and "^" while
/// they are folded away.
class FoldingSection : public Section {
  Q_OBJECT

 public:
  struct Texts {
    QString name;  ///< the button's accessible name
    QString show;  ///< its tool tips
    QString hide;
  };

  FoldingSection(const QString& name, const QString& button, Texts texts, QWidget* parent);

  QToolButton* Button() const { return button_; }
  /// What is folded away.
  QWidget* Content() const { return content_; }
  QVBoxLayout* ContentLayout() const { return column_; }

  bool Unfolded() const;
  /// What the state says; emits nothing.
  void SetUnfolded(bool unfolded);
  /// As a click on the button.
  void Toggle();

 signals:
  /// The person has folded the contents away, or unfolded them.
  void Folded(bool unfolded);

 private:
  void ShowFold(bool unfolded);

  Texts texts_;
  QToolButton* button_;
  QWidget* content_;
  QVBoxLayout* column_;
};

}  // namespace tricklet::ui
