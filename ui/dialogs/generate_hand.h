// One constrained hand in the generator's dialog.
#pragma once

#include <array>

#include <QGroupBox>

#include "generate/constraints.h"

class QBoxLayout;
class QButtonGroup;
class QComboBox;
class QFrame;

namespace tricklet::ui {

class NumberRange;

/// Shows and takes what is asked of one hand: direction, points, and suit lengths or a hand type.
/// Names of controls end in their indices: that of the hand, or those of the suit and the hand.
class GenerateHand : public QGroupBox {
  Q_OBJECT

 public:
  /// Begins with what `constraints` say of `hand`. Symbols of suits are in four colours or two.
  GenerateHand(GenHand hand, const Constraints& constraints, bool fourColours,
               QWidget* parent = nullptr);

  /// Puts the choices into `constraints`.
  void Take(Constraints& constraints) const;

  /// What the directions are called: seats, or steps from the dealer.
  void SetRelativeToDealer(bool relative);

  /// Puts the cursor where the constraints are to be changed; where that is disabled, because the
  /// lengths are those of a hand type, to the choice between the two.
  void FocusOn(ConstraintPart part, Suit suit);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  QString NameOf(const char* control) const;
  QString Title(const QString& what) const;
  void BuildDirection(QBoxLayout* column);
  void BuildPoints(QBoxLayout* column);
  void BuildLengths(QBoxLayout* column, bool fourColours);
  void BuildType(QBoxLayout* column);
  void Fill(const Constraints& constraints);
  void ShowTypeOptions();
  HandType Type() const;

  /// How many options a hand type has, if it has any.
  static constexpr int kTypeOptions = 2;

  GenHand hand_;
  QButtonGroup* optSuit;
  NumberRange* points_ = nullptr;
  QButtonGroup* optType;
  QFrame* fraSuitLength;
  PerSuit<NumberRange*> lengths_;
  QFrame* fraHandType;
  QComboBox* cmbHandType;
  QFrame* fraOptions;
  QButtonGroup* optHandType;
  EnumArray<HandType, int, kHandTypes> typeOptions_;  ///< the option chosen for each type
};

}  // namespace tricklet::ui
