#include "ui/dialogs/frmPublish.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/text.h"
#include "ui/dialogs/option_group.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kLongestTitle = 200;

QLineEdit* MakeLine(const QString& name, const QString& text, QWidget* parent) {
  auto* line = new QLineEdit(text, parent);
  line->setObjectName(name);
  return line;
}

}  // namespace

frmPublish::frmPublish(Session& session, const PublishChoices& proposed, QWidget* parent)
    : QDialog(parent), session_(session), choices_(proposed) {
  setObjectName(QStringLiteral("frmPublish"));
  setWindowTitle(tr("Publish as web page"));
  txtBoards = MakeLine(QStringLiteral("txtBoards"), ToQt(BoardRangeText(proposed.boards)), this);
  txtTitle = MakeLine(QStringLiteral("txtTitle"), ToQt(proposed.title), this);
  txtTitle->setMaxLength(kLongestTitle);

  auto* form = new QFormLayout;
  form->addRow(tr("&Boards"), txtBoards);
  form->addRow(tr("&Title"), txtTitle);
  form->addRow(tr("Names of players"), MakeNames());
  chkNotes = new QCheckBox(tr("N&otes to the boards, as they are: they may name players"), this);
  chkNotes->setObjectName(QStringLiteral("chkNotes"));
  form->addRow(QString(), chkNotes);
  chkReport = new QCheckBox(tr("&Report of the session: every play is reviewed"), this);
  chkReport->setObjectName(QStringLiteral("chkReport"));
  chkReport->setChecked(proposed.report);
  chkReport->setToolTip(
      tr("Who lost what against double-dummy play. The first time it takes a while."));
  form->addRow(QString(), chkReport);
  auto* folder = MakeFolder();
  form->addRow(tr("&Folder"), folder);
  qobject_cast<QLabel*>(form->labelForField(folder))->setBuddy(txtFolder);

  auto* buttons = new QDialogButtonBox(this);
  auto* cmdGo = buttons->addButton(tr("&Publish"), QDialogButtonBox::AcceptRole);
  cmdGo->setObjectName(QStringLiteral("cmdGo"));
  cmdGo->setDefault(true);
  auto* cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmPublish::Go);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(buttons);
  txtTitle->setFocus();
}

QWidget* frmPublish::MakeNames() {
  auto* group = new QWidget(this);
  group->setAccessibleName(tr("Names of players"));
  auto* row = new QHBoxLayout(group);
  row->setContentsMargins(0, 0, 0, 0);
  optNames = MakeOptions(QStringLiteral("optNames"),
                         {tr("In f&ull"), tr("&Initials"), tr("&None, pair numbers alone")}, group);
  for (QAbstractButton* option : optNames->buttons()) row->addWidget(option);
  optNames->button(static_cast<int>(choices_.names))->setChecked(true);
  row->addStretch(1);
  return group;
}

QWidget* frmPublish::MakeFolder() {
  auto* pair = new QWidget(this);
  auto* row = new QHBoxLayout(pair);
  row->setContentsMargins(0, 0, 0, 0);
  constexpr int kWidth = 40;  // characters of a path in sight
  txtFolder = MakeLine(QStringLiteral("txtFolder"),
                       QDir::toNativeSeparators(ToQt(PathText(choices_.folder))), pair);
  txtFolder->setAccessibleName(tr("Folder"));
  txtFolder->setMinimumWidth(txtFolder->fontMetrics().averageCharWidth() * kWidth);
  auto* cmdFolder = new QPushButton(tr("&Choose..."), pair);
  cmdFolder->setObjectName(QStringLiteral("cmdFolder"));
  cmdFolder->setAccessibleName(tr("Choose the folder"));
  connect(cmdFolder, &QPushButton::clicked, this, &frmPublish::ChooseFolder);
  row->addWidget(txtFolder, 1);
  row->addWidget(cmdFolder);
  return pair;
}

void frmPublish::ChooseFolder() {
  const auto folder = session_.host.ChooseFolder(FromQt(tr("Folder of the web page")),
                                                 PathFromText(FromQt(txtFolder->text())));
  if (folder) txtFolder->setText(QDir::toNativeSeparators(ToQt(PathText(*folder))));
}

void frmPublish::Go() {
  const auto boards = ReadBoardRange(FromQt(txtBoards->text()));
  if (!boards) {
    session_.host.Tell(kInvalidRange);
    txtBoards->setFocus();
    return;
  }
  if (txtFolder->text().trimmed().isEmpty()) ChooseFolder();
  const QString folder = QDir::fromNativeSeparators(txtFolder->text().trimmed());
  if (folder.isEmpty()) return;
  if (!QDir::isAbsolutePath(folder)) {
    session_.host.TellError(FromQt(tr("Please name the folder with its whole path")));
    txtFolder->setFocus();
    return;
  }
  choices_.boards = *boards;
  choices_.title = FromQt(txtTitle->text().trimmed());
  choices_.names = static_cast<NamesShown>(optNames->checkedId());
  choices_.notes = chkNotes->isChecked();
  choices_.report = chkReport->isChecked();
  choices_.folder = PathFromText(FromQt(folder));
  accept();
}

}  // namespace tricklet::ui
