#include "ui/dialogs/library_name_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "library/library_names.h"
#include "ui/dialogs/name_filter.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

LibraryNameDialog::LibraryNameDialog(Session& session, const QString& label, const QString& prompt,
                                     const QString& name, QWidget* parent)
    : QDialog(parent),
      session_(session),
      before_(FromQt(name)),
      lblCopy(new QLabel(label, this)),
      txtLibName(new QLineEdit(name, this)) {
  lblCopy->setObjectName(QStringLiteral("lblCopy"));
  lblCopy->setTextFormat(Qt::PlainText);
  lblCopy->setWordWrap(true);
  txtLibName->setObjectName(QStringLiteral("txtLibName"));
  txtLibName->setAccessibleName(prompt);
  txtLibName->setPlaceholderText(prompt);
  txtLibName->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
  txtLibName->selectAll();
  new NameFilter(txtLibName, session.host);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setEnabled(!name.isEmpty());
  buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(txtLibName, &QLineEdit::textChanged, cmdOK,
          [this](const QString& text) { cmdOK->setEnabled(!text.trimmed().isEmpty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &LibraryNameDialog::TakeName);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* column = new QVBoxLayout(this);
  column->addWidget(lblCopy);
  column->addWidget(txtLibName);
  column->addWidget(buttons);
}

std::string LibraryNameDialog::Name() const {
  return FromQt(txtLibName->text().trimmed());
}

void LibraryNameDialog::TakeName() {
  if (Name() == before_ || AcceptNewName(session_, Name())) {
    accept();
    return;
  }
  txtLibName->setFocus();
  txtLibName->selectAll();
}

}  // namespace tricklet::ui
