// The status line of the main window.
#pragma once

#include <QStatusBar>

class QLabel;

namespace tricklet::ui {

class ElidedLabel;

/// What a command has done or what the board is about, then a newer version when one is known, and
/// the two keys that a newcomer needs.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  void Say(const QString& text);
  QString Said() const;
  /// The number of a newer version; empty when none is known.
  void ShowNewVersion(const QString& version);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ElidedLabel* status_;
  QLabel* newVersion_;
};

}  // namespace tricklet::ui
