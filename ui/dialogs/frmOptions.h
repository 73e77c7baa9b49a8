// The options dialog.
#pragma once

#include <vector>

#include <QDialog>

#include "library/session.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QVBoxLayout;

namespace tricklet::ui {

class FontEditor;
class TableView;

/// Edits a copy of the settings, and shows on the current board what they do. The caller takes the
/// copy over when the dialog was accepted.
class frmOptions : public QDialog {
  Q_OBJECT

 public:
  frmOptions(const Session& session, QWidget* parent);

  Settings Chosen() const;

 private:
  struct Check {
    QCheckBox* box;
    bool Settings::*setting;
  };
  struct Choice {
    QComboBox* combo;
    int Settings::*setting;
    int first;  ///< value of the first entry
  };

  QWidget* CardsPage();
  QWidget* CaptionsPage();
  QWidget* FontsPage();
  QWidget* StartPage();
  QWidget* ExportPage();
  void AddCheck(QVBoxLayout* page, const char* key, const QString& text, bool Settings::*setting);
  QComboBox* AddChoice(QVBoxLayout* page, const char* key, const QString& caption,
                       const QStringList& texts, int Settings::*setting, int first);
  void Fill(const Settings& settings);
  void Preview();

  Board board_;
  Settings before_;  ///< gives what is not edited here
  std::vector<Check> checks_;
  std::vector<Choice> choices_;
  QDoubleSpinBox* suitFontSize_ = nullptr;
  std::array<FontEditor*, 2> fonts_{};
  TableView* preview_;
  bool filling_ = false;
};

}  // namespace tricklet::ui
