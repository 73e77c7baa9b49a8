// The status line of the main window.
#pragma once

#include <QObject>

class QLabel;
class QStatusBar;

namespace tricklet::ui {

class ElidedLabel;

/// What a command has done or what the board is about, then a newer version when one is known, and
/// the two keys that a newcomer needs.
class StatusLine : public QObject {
  Q_OBJECT

 public:
  explicit StatusLine(QStatusBar* bar);

  void Say(const QString& text);
  /// The number of a newer version; empty when none is known.
  void ShowNewVersion(const QString& version);
  void SetVisible(bool visible);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Style();

  QStatusBar* bar_;
  ElidedLabel* status_;
  QLabel* newVersion_;
};

}  // namespace tricklet::ui
