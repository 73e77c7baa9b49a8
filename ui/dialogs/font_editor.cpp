#include "ui/dialogs/font_editor.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {

FontEditor::FontEditor(const QString& title, QWidget* parent)
    : QWidget(parent),
      family_(new QFontComboBox(this)),
      size_(new QDoubleSpinBox(this)),
      bold_(MakeStyle(tr("Bold"), "Bold")),
      italic_(MakeStyle(tr("Italic"), "Italic")),
      strikethrough_(MakeStyle(tr("Strikethrough"), "Strikethrough")),
      underline_(MakeStyle(tr("Underline"), "Underline")),
      colourButton_(new QPushButton(tr("Colour..."), this)),
      windowColour_(new QToolButton(this)) {
  family_->setObjectName(QStringLiteral("Name"));
  family_->setAccessibleName(tr("Font family"));
  family_->setMinimumContentsLength(12);
  family_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  size_->setObjectName(QStringLiteral("Size"));
  size_->setAccessibleName(tr("Font size in points"));
  size_->setDecimals(1);
  if (const SettingEntry* limits = FindSetting("HGFont0/Size")) {
    size_->setRange(limits->lowest, limits->highest);
  }
  colourButton_->setObjectName(QStringLiteral("Forecolour"));
  windowColour_->setText(tr("As the window"));
  windowColour_->setToolTip(tr("Use the colour of the window's text"));

  connect(family_, &QComboBox::currentTextChanged, this, &FontEditor::Changed);
  connect(size_, &QDoubleSpinBox::valueChanged, this, &FontEditor::Changed);
  connect(colourButton_, &QPushButton::clicked, this, &FontEditor::ChooseColour);
  connect(windowColour_, &QToolButton::clicked, this, [this] { SetColour(kWindowTextColour); });

  auto* box = new QGroupBox(title, this);
  auto* grid = new QGridLayout(box);
  grid->addWidget(family_, 0, 0, 1, 2);
  grid->addWidget(size_, 0, 2);
  grid->addWidget(bold_, 1, 0);
  grid->addWidget(italic_, 1, 1);
  grid->addWidget(strikethrough_, 2, 0);
  grid->addWidget(underline_, 2, 1);
  grid->addWidget(colourButton_, 3, 0);
  grid->addWidget(windowColour_, 3, 1, 1, 2, Qt::AlignLeft);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(box);
}

QCheckBox* FontEditor::MakeStyle(const QString& text, const char* name) {
  auto* box = new QCheckBox(text, this);
  box->setObjectName(QString::fromLatin1(name));
  connect(box, &QCheckBox::toggled, this, &FontEditor::Changed);
  return box;
}

void FontEditor::SetValue(const FontSetting& value) {
  family_->setCurrentFont(QFont(ToQt(value.name)));
  family_->setEditText(ToQt(value.name));  // a family that this machine lacks keeps its name
  size_->setValue(value.size);
  bold_->setChecked(value.bold);
  italic_->setChecked(value.italic);
  strikethrough_->setChecked(value.strikethrough);
  underline_->setChecked(value.underline);
  SetColour(value.forecolour);
}

FontSetting FontEditor::Value() const {
  FontSetting value;
  value.name = FromQt(family_->currentText());
  value.size = size_->value();
  value.bold = bold_->isChecked();
  value.italic = italic_->isChecked();
  value.strikethrough = strikethrough_->isChecked();
  value.underline = underline_->isChecked();
  value.forecolour = colour_;
  return value;
}

void FontEditor::ChooseColour() {
  const QColor chosen = QColorDialog::getColor(ToColour(colour_, palette()), this);
  if (chosen.isValid()) SetColour(FromColour(chosen));
}

void FontEditor::SetColour(ColourNumber colour) {
  colour_ = colour;
  QPixmap swatch(16, 16);
  swatch.fill(ToColour(colour, palette()));
  colourButton_->setIcon(swatch);
  windowColour_->setEnabled(!(colour == kWindowTextColour));
  emit Changed();
}

}  // namespace tricklet::ui
