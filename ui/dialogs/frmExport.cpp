#include "ui/dialogs/frmExport.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialogs/option_group.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

QComboBox* MakeNumbers(const QString& name, int highest, int chosen, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setEditable(true);
  combo->setCompleter(nullptr);
  combo->setInsertPolicy(QComboBox::NoInsert);
  QStringList numbers;
  for (int n = kFirstBoardNumber; n <= highest; ++n) numbers += QString::number(n);
  combo->addItems(numbers);
  combo->setEditText(QString::number(chosen));
  return combo;
}

}  // namespace

frmExport::frmExport(Session& session, QWidget* parent) : QDialog(parent), session_(session) {
  setObjectName(QStringLiteral("frmExport"));
  setWindowTitle(tr("Export hand records"));
  const LibraryState& library = session.library;
  cmbFrom = MakeNumbers(QStringLiteral("cmbFrom"), library.lastBoard, library.firstBoard, this);
  cmbTo = MakeNumbers(QStringLiteral("cmbTo"), library.lastBoard, library.lastBoard, this);

  auto* form = new QFormLayout;
  form->addRow(tr("&From board"), cmbFrom);
  form->addRow(tr("&To board"), cmbTo);
  form->addRow(tr("File type"), MakeTypes());

  auto* buttons = new QDialogButtonBox(this);
  auto* cmdGo = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
  cmdGo->setObjectName(QStringLiteral("cmdGo"));
  cmdGo->setDefault(true);
  auto* cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmExport::Go);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(buttons);
  cmbFrom->lineEdit()->selectAll();
}

QWidget* frmExport::MakeTypes() {
  auto* group = new QWidget(this);
  group->setAccessibleName(tr("File type"));
  auto* row = new QHBoxLayout(group);
  row->setContentsMargins(0, 0, 0, 0);
  QStringList texts;
  for (const std::string& type : ExportTypes()) texts += ToQt(type).toUpper();
  optType = MakeOptions(QStringLiteral("optType"), texts, group);
  for (QAbstractButton* option : optType->buttons()) row->addWidget(option);
  optType->button(0)->setChecked(true);
  row->addStretch(1);
  return group;
}

void frmExport::Go() {
  ExportRange range;
  if (!CheckRangeTexts(session_, FromQt(cmbFrom->currentText()), FromQt(cmbTo->currentText()),
                       range)) {
    return;
  }
  range.type = ExportTypes().at(static_cast<std::size_t>(optType->checkedId()));
  range_ = range;
  accept();
}

}  // namespace tricklet::ui
