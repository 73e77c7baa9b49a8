// The options dialog.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include <QDialog>

#include "library/session.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QTabWidget;
class QVBoxLayout;

namespace tricklet::ui {

class FontEditor;
class TableView;

/// Edits a copy of the settings, and shows on the current board what they do. The caller takes the
/// copy over when the dialog was accepted.
class frmOptions : public QDialog {
  Q_OBJECT

 public:
  /// `updateObstacle` says why updates cannot be checked for; empty when they can.
  frmOptions(const Session& session, const QString& updateObstacle, QWidget* parent);

  Settings Chosen() const;

 private:
  struct Check {
    QCheckBox* box;
    bool Settings::*setting;
  };
  /// A setting chosen from a list; `get` and `set` go by the number of its entry.
  struct Choice {
    QComboBox* combo;
    std::function<int(const Settings&)> get;
    std::function<void(Settings&, int)> set;
  };

  void TurnPagesByKey(QTabWidget* tabs);
  QWidget* CardsPage();
  QWidget* WindowPage();
  QWidget* CaptionsPage();
  QWidget* FontsPage();
  QWidget* StartPage(const QString& updateObstacle);
  QWidget* FilesPage();
  QCheckBox* AddCheck(QVBoxLayout* page, const char* key, const QString& text,
                      bool Settings::*setting);
  /// A list with an entry for each value of `setting`, the first of which is `first`.
  template <class Value>
  QComboBox* AddChoice(QVBoxLayout* page, const char* key, const QString& caption,
                       const QStringList& texts, Value Settings::*setting, Value first);
  void Fill(const Settings& settings);
  void Preview();

  Board board_;
  Settings before_;  ///< for what is not edited here
  std::vector<Check> checks_;
  std::vector<Choice> choices_;
  QDoubleSpinBox* suitFontSize_ = nullptr;
  std::array<FontEditor*, 2> fonts_{};
  TableView* preview_;
  bool filling_ = false;
};

}  // namespace tricklet::ui
