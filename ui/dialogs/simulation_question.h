// What a simulation is to find out, and of which deals.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <QWidget>

#include "core/recorded_play.h"
#include "library/session.h"
#include "simulation/simulation_run.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace tricklet::ui {

class ConditionPanel;

/// The left side of the dialog: question, contracts, known hands, condition, number of deals.
class SimulationQuestion : public QWidget {
  Q_OBJECT

 public:
  /// Of the deal of `record`, and of the point that its cards have reached. The cards of hands that
  /// lie face down are not shown.
  SimulationQuestion(Session& session, const RecordedPlay& record, const PerSeat<bool>& faceDown,
                     QWidget* parent);

  /// What is asked; nothing, and why in a sentence for the person, when a contract is none.
  std::optional<SimulationPlan> Plan(std::string& why) const;

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  QFormLayout* MakeContracts();
  QGroupBox* MakeHands();
  QFormLayout* MakeNumbers();
  QComboBox* MakeSeats(const char* name, const QString& title);

  SimulatedQuestion Question() const;
  std::optional<SimulatedContract> ReadContract(const QLineEdit* text, const QComboBox* declarer,
                                                std::string& why) const;
  std::shared_ptr<const Script> DealsAsked(std::string& why) const;
  void ShowUsualHands();
  void ShowHands();

  Session& session_;
  RecordedPlay record_;
  PerSeat<bool> faceDown_;
  QComboBox* cmbQuestion = nullptr;
  QLineEdit* txtContract = nullptr;
  QComboBox* cmbDeclarer = nullptr;
  QLineEdit* txtAgainst = nullptr;
  QComboBox* cmbAgainst = nullptr;
  PerSeat<QCheckBox*> chkKnown;
  PerSeat<QLabel*> lblHand;
  ConditionPanel* condition_ = nullptr;
  QSpinBox* spnDeals = nullptr;
  QCheckBox* chkPrecise = nullptr;
  QSpinBox* spnSeed = nullptr;
};

}  // namespace tricklet::ui
