#include "ui/frmCopyLib.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "library/library_store.h"
#include "ui/name_filter.h"
#include "ui/text.h"

namespace tricklet::ui {

frmCopyLib::frmCopyLib(Session& session, QWidget* parent)
    : QDialog(parent),
      session_(session),
      lblCopy(new QLabel(this)),
      txtLibName(new QLineEdit(this)) {
  setObjectName(QStringLiteral("frmCopyLib"));
  setWindowTitle(tr("Copy library"));
  lblCopy->setObjectName(QStringLiteral("lblCopy"));
  lblCopy->setTextFormat(Qt::PlainText);
  lblCopy->setWordWrap(true);
  lblCopy->setText(tr("Copy library %1").arg(ToQt(session.LibraryName())));
  txtLibName->setObjectName(QStringLiteral("txtLibName"));
  txtLibName->setAccessibleName(tr("Name of the copy"));
  txtLibName->setPlaceholderText(tr("Name of the copy"));
  txtLibName->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
  new NameFilter(txtLibName, session.host);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setEnabled(false);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(txtLibName, &QLineEdit::textChanged, cmdOK,
          [this](const QString& text) { cmdOK->setEnabled(!text.trimmed().isEmpty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &frmCopyLib::TakeName);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* column = new QVBoxLayout(this);
  column->addWidget(lblCopy);
  column->addWidget(txtLibName);
  column->addWidget(buttons);
}

std::string frmCopyLib::Name() const {
  return FromQt(txtLibName->text().trimmed());
}

void frmCopyLib::TakeName() {
  if (AcceptNewName(session_, Name())) {
    accept();
    return;
  }
  txtLibName->setFocus();
  txtLibName->selectAll();
}

}  // namespace tricklet::ui
