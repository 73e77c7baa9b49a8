// Edits one font of the settings.
#pragma once

#include <QWidget>

#include "core/settings.h"

class QCheckBox;
class QDoubleSpinBox;
class QFontComboBox;
class QPushButton;
class QToolButton;

namespace tricklet::ui {

/// Family, size, style and colour of a font.
class FontEditor : public QWidget {
  Q_OBJECT

 public:
  explicit FontEditor(const QString& title, QWidget* parent = nullptr);

  void SetValue(const FontSetting& value);
  FontSetting Value() const;

 signals:
  void Changed();

 private:
  QCheckBox* MakeStyle(const QString& text, const char* name);
  void ChooseColour();
  void SetColour(ColourNumber colour);

  QFontComboBox* family_;
  QDoubleSpinBox* size_;
  QCheckBox* bold_;
  QCheckBox* italic_;
  QCheckBox* strikethrough_;
  QCheckBox* underline_;
  QPushButton* colourButton_;
  QToolButton* windowColour_;
  ColourNumber colour_ = kWindowTextColour;
};

}  // namespace tricklet::ui
