#include "ui/dialogs/frmUpdate.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/style/qt_text.h"
#include "ui/style/section.h"
#include "ui/updates/updates.h"

namespace tricklet::ui {
namespace {

/// However long the words are.
constexpr int kTextWidth = 380;

QLabel* AddText(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setFixedWidth(kTextWidth);
  return label;
}

}  // namespace

frmUpdate::frmUpdate(Updates& updates, QWidget* parent)
    : QDialog(parent),
      updates_(updates),
      lblUpdate(AddText(this, "lblUpdate")),
      lblNotes(AddText(this, "lblNotes")),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Close, this)),
      cmdOpenPage(buttons_->addButton(tr("&Open its page"), QDialogButtonBox::AcceptRole)) {
  setObjectName(QStringLiteral("frmUpdate"));
  setWindowTitle(tr("Check for updates"));
  cmdOpenPage->setObjectName(QStringLiteral("cmdOpenPage"));
  QPushButton* cmdClose = buttons_->button(QDialogButtonBox::Close);
  cmdClose->setObjectName(QStringLiteral("cmdClose"));
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(&updates_, &Updates::Settled, this, &frmUpdate::Show);

  MakeQuiet(lblNotes);
  auto* column = new QVBoxLayout(this);
  column->addWidget(lblUpdate);
  column->addWidget(lblNotes);
  column->addStretch(1);
  column->addWidget(buttons_);
  cmdClose->setFocus();
  updates_.Ask();
  Show();
}

void frmUpdate::Show() {
  const bool asking = updates_.Asking();
  const UpdateAnswer* newer = asking ? nullptr : updates_.JustFound();
  lblUpdate->setText(asking ? tr("Looking for a newer version") : updates_.OutcomeText());
  lblNotes->setText(newer == nullptr ? QString() : ToQt(newer->notes));
  lblNotes->setVisible(!lblNotes->text().isEmpty());
  cmdOpenPage->setVisible(newer != nullptr);
  cmdOpenPage->setToolTip(newer == nullptr ? QString() : ToQt(newer->page));
  adjustSize();
  // What has the focus is read out, and with it what has been found.
  buttons_->button(QDialogButtonBox::Close)->setAccessibleDescription(lblUpdate->text());
}

}  // namespace tricklet::ui
