#include "ui/dialogs/frmDeleteLib.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "library/library_transfer.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

frmDeleteLib::frmDeleteLib(Session& session, const std::vector<std::string>& names, QWidget* parent)
    : QDialog(parent), session_(session), cmbLibs(new QComboBox(this)) {
  setObjectName(QStringLiteral("frmDeleteLib"));
  setWindowTitle(tr("Delete library"));
  cmbLibs->setObjectName(QStringLiteral("cmbLibs"));
  cmbLibs->setAccessibleName(tr("Library to delete"));
  cmbLibs->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cmbLibs->setMinimumContentsLength(36);
  cmbLibs->setMaxVisibleItems(20);
  for (const std::string& name : names) cmbLibs->addItem(ToQt(ShownName(name)), ToQt(name));
  cmbLibs->setPlaceholderText(tr("Choose a library"));
  cmbLibs->setCurrentIndex(-1);
  auto* caption = new QLabel(tr("&Library to delete"), this);
  caption->setBuddy(cmbLibs);

  auto* buttons = new QDialogButtonBox(this);
  cmdOK = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(cmbLibs, &QComboBox::currentIndexChanged, this, &frmDeleteLib::ShowChoice);
  connect(buttons, &QDialogButtonBox::accepted, this, &frmDeleteLib::Delete);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* column = new QVBoxLayout(this);
  column->addWidget(caption);
  column->addWidget(cmbLibs);
  column->addWidget(buttons);
  ShowChoice();
}

void frmDeleteLib::ShowChoice() {
  const bool chosen = cmbLibs->currentIndex() >= 0;
  QString name = chosen ? cmbLibs->currentText() : QString();
  cmdOK->setToolTip(chosen ? tr("Recycle %1").arg(name) : QString());
  // The button stays as narrow as the list, and "&" in a name marks no key.
  name = fontMetrics().elidedText(name, Qt::ElideRight, fontMetrics().averageCharWidth() * 24);
  name.replace(u'&', QStringLiteral("&&"));
  cmdOK->setText(chosen ? tr("Recycle %1").arg(name) : tr("Recycle"));
  cmdOK->setEnabled(chosen);
  cmdOK->setDefault(chosen);
}

QString frmDeleteLib::Chosen() const {
  return cmbLibs->currentText();
}

void frmDeleteLib::Delete() {
  if (DeleteLibrary(session_, FromQt(cmbLibs->currentData().toString()))) accept();
}

}  // namespace tricklet::ui
