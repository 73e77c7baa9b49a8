// The fields in which a person says what is printed, and how.
#pragma once

#include <vector>

#include <QWidget>

#include "publish/remembered_sheets.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

namespace tricklet::ui {

/// Each layout offers what it has, and no more.
class SheetOptions : public QWidget {
  Q_OBJECT

 public:
  /// Begins with what `remembered` has for `proposal`.
  SheetOptions(const PrintSettings& remembered, const SheetProposal& proposal, QWidget* parent);

  SheetChoices Choices() const;
  /// The ends of the range as they are typed.
  QString From() const;
  QString To() const;
  /// The field of the first board, for a range that was refused.
  QComboBox* FirstField() const { return cmbFrom; }
  QList<QWidget*> TabOrder() const;

 signals:
  /// A field has changed, by every letter that is typed.
  void Changed();

 private:
  void AddRange(const SheetRequest& begin, const BoardRange& whole);
  void AddPage(const SheetRequest& begin);
  void AddWording(const SheetChoices& begin);
  void AddHands(const SheetChoices& begin);
  void AddMarks(const SheetChoices& begin);
  QComboBox* AddChoice(const char* name, const QString& caption, const QStringList& texts,
                       int chosen);
  QLineEdit* AddLine(const char* name, const QString& caption, const std::string& text);
  void Connect();
  void ShowLayout();
  SheetLayout Layout() const;

  PrintSettings remembered_;  // of the layouts that are not chosen now
  QFormLayout* form_;
  QComboBox* cmbFrom = nullptr;
  QComboBox* cmbTo = nullptr;
  QComboBox* cmbLayout = nullptr;
  QComboBox* cmbPerPage = nullptr;
  QComboBox* cmbPaper = nullptr;
  QComboBox* cmbOrientation = nullptr;
  QComboBox* cmbColours = nullptr;
  QComboBox* cmbSlips = nullptr;
  QLineEdit* txtTitle = nullptr;
  QLineEdit* txtSubtitle = nullptr;
  QWidget* fraHands = nullptr;
  QWidget* fraShow = nullptr;
  PerSeat<QCheckBox*> chkHands{};
  std::vector<QCheckBox*> marks_;  // as the table of what can be shown
};

}  // namespace tricklet::ui
