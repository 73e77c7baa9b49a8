#include "ui/style/progress_frame.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

/// Steps can come by the thousand; drawing each would take longer than the work.
constexpr int kMillisecondsBetweenDrawings = 50;

}  // namespace

ProgressFrame::ProgressFrame(QWidget* parent)
    : QFrame(parent),
      lblWait(new QLabel(tr("Please wait"), this)),
      lblProgress(new ElidedLabel(this)),
      bar_(new QProgressBar(this)),
      cmdCancelImport(new QPushButton(tr("Cancel"), this)) {
  setObjectName(QStringLiteral("fraProgress"));
  setAccessibleName(tr("Progress"));
  lblWait->setObjectName(QStringLiteral("lblWait"));
  lblWait->hide();
  lblProgress->setObjectName(QStringLiteral("lblProgress"));
  lblProgress->setMinimumWidth(fontMetrics().horizontalAdvance(tr("Generating board 999")));
  lblProgress->setMaximumWidth(2 * lblProgress->minimumWidth());  // names of libraries can be long
  bar_->setObjectName(QStringLiteral("barProgress"));
  bar_->setAccessibleName(tr("Boards done"));
  bar_->setTextVisible(false);
  bar_->setMaximumHeight(fontMetrics().height() * 3 / 4);
  cmdCancelImport->setObjectName(QStringLiteral("cmdCancelImport"));
  cmdCancelImport->setAutoDefault(false);
  new QShortcut(Qt::Key_Escape, this, this, &ProgressFrame::Cancel);  // works while visible
  connect(cmdCancelImport, &QPushButton::clicked, this, &ProgressFrame::Cancel);

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(16);
  row->addWidget(lblWait);
  row->addWidget(lblProgress);
  row->addWidget(bar_, 1);
  row->addWidget(cmdCancelImport);
  hide();
}

ProgressFrame* ProgressFrame::InFront(ProgressFrame* ofWindow) {
  const QWidget* modal = QApplication::activeModalWidget();
  auto* ofDialog = modal != nullptr ? modal->findChild<ProgressFrame*>() : nullptr;
  return ofDialog != nullptr ? ofDialog : ofWindow;
}

void ProgressFrame::Begin() {
  if (++depth_ > 1) return;
  cancelled_ = false;
  sinceDrawn_.invalidate();
  lblProgress->clear();
  bar_->setRange(0, 0);
  cmdCancelImport->setEnabled(true);
  show();
  emit Begun();
}

void ProgressFrame::End() {
  if (depth_ == 0 || --depth_ > 0) return;
  hide();
  emit Ended();
}

bool ProgressFrame::Step(const QString& text, int done, int total) {
  const bool due = !sinceDrawn_.isValid() || done + 1 == total ||
                   sinceDrawn_.elapsed() >= kMillisecondsBetweenDrawings;
  if (due) {
    if (!cancelled_) lblProgress->setText(text);
    bar_->setRange(0, total);
    bar_->setValue(done);
    emit Drawn();
    sinceDrawn_.start();
  }
  QCoreApplication::processEvents();
  return !cancelled_;
}

void ProgressFrame::SetWaiting(bool waiting) {
  lblWait->setVisible(waiting);
}

void ProgressFrame::Cancel() {
  cancelled_ = true;
  lblProgress->setText(tr("Cancelling..."));
  cmdCancelImport->setEnabled(false);
}

}  // namespace tricklet::ui
