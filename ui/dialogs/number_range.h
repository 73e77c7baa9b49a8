// Two combo boxes for the ends of a range of numbers.
#pragma once

#include <QComboBox>

#include "generate/constraints.h"

namespace tricklet::ui {

/// A number to be chosen or typed. Numbers above the range cannot be typed, and text that is left
/// unfinished goes back to the number before.
class NumberCombo : public QComboBox {
  Q_OBJECT

 public:
  /// Offers lowest..highest. `title` is the accessible name.
  NumberCombo(const QString& name, const QString& title, int lowest, int highest,
              QWidget* parent = nullptr);

  /// The number that was last chosen or typed to its end.
  int Value() const { return value_; }
  void SetValue(int value);

 signals:
  /// The person has finished typing or has chosen from the list.
  void Settled();

 private:
  int value_;
};

/// The lower and the upper end. The end that was changed last wins: the other one follows it, so
/// that the lower is never above the upper.
class NumberRange : public QObject {
  Q_OBJECT

 public:
  NumberRange(NumberCombo* minimum, NumberCombo* maximum, QObject* parent = nullptr);

  Limits Value() const;
  void SetValue(Limits limits);

  NumberCombo* Minimum() const { return minimum_; }
  NumberCombo* Maximum() const { return maximum_; }

 private:
  NumberCombo* minimum_;
  NumberCombo* maximum_;
};

}  // namespace tricklet::ui
