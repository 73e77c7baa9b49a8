// The progress display at the foot of the window.
#pragma once

#include <QElapsedTimer>
#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tricklet::ui {

/// Shown while long work runs: what is being done, how far it is, and a way to cancel it.
class ProgressFrame : public QFrame {
  Q_OBJECT

 public:
  explicit ProgressFrame(QWidget* parent = nullptr);

  /// Where work that begins now shows its progress: in the dialog in front when that has a frame
  /// of its own, since nobody can reach another one; else in `ofWindow`, which may be null.
  static ProgressFrame* InFront(ProgressFrame* ofWindow);

  /// Begin and end long work; pairs may be nested, and only the outermost shows and hides the
  /// frame.
  void Begin();
  void End();
  bool IsWorking() const { return depth_ > 0; }

  /// Shows a step and lets pending events run once. `total` is 0 where the number of steps is not
  /// known. Steps may come faster than the eye can follow: not each of them is drawn, but the last
  /// one is. False when the person has cancelled since `Begin`.
  bool Step(const QString& text, int done, int total);

  /// Shows `lblWait` beside the progress from now on, or hides it.
  void SetWaiting(bool waiting);

  /// What `cmdCancelImport` does.
  void Cancel();

 signals:
  void Begun();
  /// A step has been drawn, which not every step is: what the work has reached can be shown too.
  void Drawn();
  void Ended();

 private:
  QLabel* lblWait;
  QLabel* lblProgress;
  QProgressBar* bar_;
  QPushButton* cmdCancelImport;
  QElapsedTimer sinceDrawn_;
  int depth_ = 0;
  bool cancelled_ = false;
};

}  // namespace tricklet::ui
