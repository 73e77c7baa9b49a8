#include "ui/dialogs/number_range.h"

#include <algorithm>

#include <QIntValidator>
#include <QLineEdit>
#include <QListView>

namespace tricklet::ui {
namespace {

/// Refuses numbers that are too high; puts the number before in place of an unfinished one.
class NumberValidator : public QIntValidator {
 public:
  NumberValidator(int lowest, int highest, NumberCombo* combo)
      : QIntValidator(lowest, highest, combo), combo_(combo) {}
  State validate(QString& text, int& cursor) const override {
    if (text.toInt() > top()) return Invalid;
    return QIntValidator::validate(text, cursor);
  }
  void fixup(QString& text) const override { text = QString::number(combo_->Value()); }

 private:
  const NumberCombo* combo_;
};

}  // namespace

NumberCombo::NumberCombo(const QString& name, const QString& title, int lowest, int highest,
                         QWidget* parent)
    : QComboBox(parent), value_(lowest) {
  setObjectName(name);
  setAccessibleName(title);
  setEditable(true);
  setCompleter(nullptr);
  setInsertPolicy(NoInsert);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(3);
  auto* list = new QListView(this);
  list->setUniformItemSizes(true);  // so that 999 boards are measured quickly
  setView(list);
  QStringList numbers;
  for (int number = lowest; number <= highest; ++number) numbers += QString::number(number);
  addItems(numbers);
  setValidator(new NumberValidator(lowest, highest, this));
  lineEdit()->setAccessibleName(title);
  connect(this, &QComboBox::editTextChanged, this, [this](const QString& text) {
    if (lineEdit()->hasAcceptableInput()) value_ = text.toInt();
  });
  connect(this, &QComboBox::activated, this, &NumberCombo::Settled);
  connect(lineEdit(), &QLineEdit::editingFinished, this, &NumberCombo::Settled);
}

void NumberCombo::SetValue(int value) {
  setCurrentText(QString::number(value));
}

NumberRange::NumberRange(NumberCombo* minimum, NumberCombo* maximum, QObject* parent)
    : QObject(parent), minimum_(minimum), maximum_(maximum) {
  connect(minimum, &NumberCombo::Settled, this, [this] {
    if (maximum_->Value() < minimum_->Value()) maximum_->SetValue(minimum_->Value());
  });
  connect(maximum, &NumberCombo::Settled, this, [this] {
    if (minimum_->Value() > maximum_->Value()) minimum_->SetValue(maximum_->Value());
  });
}

Limits NumberRange::Value() const {
  return {minimum_->Value(), std::max(minimum_->Value(), maximum_->Value())};
}

void NumberRange::SetValue(Limits limits) {
  minimum_->SetValue(limits.minimum);
  maximum_->SetValue(limits.maximum);
}

}  // namespace tricklet::ui
