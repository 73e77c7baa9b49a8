// A condition for deals: the editor, what is wrong in it or how rare it is, examples and presets.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <QColor>
#include <QWidget>

#include "conditions/script.h"
#include "library/session.h"

class QLabel;
class QMenu;
class QToolButton;

namespace tricklet::ui {

class ConditionEditor;
class Worker;

class ConditionPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ConditionPanel(Session& session, QWidget* parent = nullptr);
  ~ConditionPanel() override;

  std::string Text() const;
  void SetText(const std::string& text);
  ConditionEditor* Editor() const { return txtCondition; }

  /// What deals are asked for, when it is not the script alone that says so; how rare they are is
  /// told of these. Null, and why in a sentence for the person, when there can be none.
  using Deals = std::function<std::shared_ptr<const Script>(std::string& why)>;
  void SetDeals(Deals deals) { deals_ = std::move(deals); }
  /// To be called when other deals are asked for although the text is the same.
  void DealsChanged();

  /// The script. Where it cannot be read there is none: the first fault is told, and the cursor put
  /// where it is.
  std::shared_ptr<const Script> Take();

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  void ShowOutcome();
  /// `colour` may be that of a fault.
  void Say(const QString& text, const QColor& colour = {});
  void FillExamples(QMenu* menu);
  void FillPresets(QMenu* menu);
  void SavePreset();
  void LoadPresetNamed(const std::string& name);

  Session& session_;
  Deals deals_;
  ConditionEditor* txtCondition;
  QLabel* lblCondition;
  QToolButton* cmdExamples;
  QToolButton* cmdPresets;
  std::shared_ptr<std::atomic<bool>> stop_;  // of the sample being dealt
  std::unique_ptr<Worker> worker_;
};

}  // namespace tricklet::ui
