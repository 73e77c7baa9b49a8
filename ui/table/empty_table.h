// What an empty library offers in the place of a deal.
#pragma once

#include <QList>
#include <QWidget>

class QLabel;
class QPushButton;

namespace tricklet::ui {

/// Three large choices on the felt: open a file, generate deals, drop a file. The drop itself is
/// left to the window.
class EmptyTable : public QWidget {
  Q_OBJECT

 public:
  explicit EmptyTable(QWidget* table);

  /// The choices in the order of the tab key.
  QList<QWidget*> TabOrder() const;
  /// Text of `pixels` in size, in `colour`, which can be read on the felt.
  void SetLook(int pixels, const QColor& colour);

 signals:
  void OpenAsked();
  void GenerateAsked();

 private:
  QLabel* title_;
  QPushButton* open_;
  QPushButton* generate_;
  QLabel* drop_;
};

}  // namespace tricklet::ui
