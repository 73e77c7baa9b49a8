#include "ui/dialogs/frmImport.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "library/library_names.h"
#include "library/session.h"
#include "ui/dialogs/import_rows_model.h"
#include "ui/dialogs/import_rows_view.h"
#include "ui/dialogs/name_filter.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

constexpr int kNameCharacters = 32;  // of a library's name that are in sight

/// Some game of the file has what `has` looks for.
template <class Has>
bool AnyGame(const FileContents& contents, const Has& has) {
  return std::any_of(contents.sections.begin(), contents.sections.end(),
                     [&has](const FoundSection& section) {
                       return std::any_of(section.games.begin(), section.games.end(), has);
                     });
}

bool TellsDealer(const FoundGame& game) {
  return game.dealer.has_value() || game.vulnerability.has_value();
}
bool HasResults(const FoundGame& game) {
  return !game.records.empty() || !game.notes.empty();
}

/// Adds a row to `grid`: a caption with a key, the field that it is for, and what belongs to it.
template <class Field>
Field* AddRow(QGridLayout* grid, const QString& caption, Field* field, const QString& name,
              QWidget* beside = nullptr) {
  auto* label = new QLabel(caption, grid->parentWidget());
  label->setBuddy(field);
  field->setObjectName(name);
  field->setAccessibleName(QString(caption).remove(u'&'));
  auto* fields = new QHBoxLayout;
  fields->addWidget(field);
  if (beside != nullptr) fields->addWidget(beside);
  fields->addStretch(1);
  const int row = grid->rowCount();
  grid->addWidget(label, row, 0);
  grid->addLayout(fields, row, 1);
  return field;
}

/// "PBN 2.1, UTF-8".
QString FormatText(const FileContents& contents) {
  const QString format = ToQt(Showable(contents.format));
  const QString encoding = ToQt(Showable(contents.encoding));
  return format + (format.isEmpty() || encoding.isEmpty() ? QString() : QStringLiteral(", ")) +
         encoding;
}

}  // namespace

frmImport::frmImport(const Session& session, const ImportLook& look, QWidget* parent)
    : QDialog(parent),
      session_(session),
      look_(look),
      choices_(look.choices),
      rows_(new ImportRowsModel(look, this)) {
  setObjectName(QStringLiteral("frmImport"));
  setWindowTitle(tr("Import with a look first"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeHead());
  auto* form = new QWidget(this);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  AddInto(grid);
  AddNumbers(grid);
  AddDealer(grid);
  AddSection(grid);
  AddMarks(grid);
  grid->setColumnStretch(1, 1);
  column->addWidget(form);
  grdBoards = new ImportRowsView(rows_, session.settings.suitColour, this);
  column->addWidget(grdBoards, 1);
  column->addWidget(MakeButtons());
  Connect();
  SetTabOrder();
  Choose();
  // The keys begin at the first row, but nobody has chosen it.
  grdBoards->selectionModel()->setCurrentIndex(rows_->index(0, 0), QItemSelectionModel::NoUpdate);
  cmbInto->setFocus();
  SetFirstSize();
}

/// The name of the file, and what was found in it.
QWidget* frmImport::MakeHead() {
  auto* head = new QWidget(this);
  auto* column = new QVBoxLayout(head);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  const bool text = look_.file.empty();
  auto* lblFile = new ElidedLabel(head);
  lblFile->setObjectName(QStringLiteral("lblFile"));
  lblFile->setText(text ? tr("The text that was pasted") : ToQt(ShownPath(look_.file.filename())));
  if (!text) lblFile->setToolTip(ToQt(ShownPath(look_.file)));
  QFont bold = lblFile->font();
  bold.setBold(true);
  lblFile->setFont(bold);
  lblSummary = new ElidedLabel(head);
  lblSummary->setObjectName(QStringLiteral("lblSummary"));
  MakeQuiet(lblSummary);
  column->addWidget(lblFile);
  column->addWidget(lblSummary);
  return head;
}

void frmImport::AddInto(QGridLayout* grid) {
  const std::string& name =
      choices_.newLibrary.empty() ? look_.suggestedLibrary : choices_.newLibrary;
  txtLibName = new QLineEdit(ToQt(name), this);
  txtLibName->setObjectName(QStringLiteral("txtLibName"));
  txtLibName->setAccessibleName(tr("Name of the new library"));
  txtLibName->setPlaceholderText(tr("Name"));
  new NameFilter(txtLibName, session_.host);
  auto* into = new QComboBox(this);
  const int room = fontMetrics().averageCharWidth() * kNameCharacters;
  into->addItem(tr("the open library, %1")
                    .arg(fontMetrics().elidedText(ToQt(look_.library), Qt::ElideRight, room)));
  txtLibName->setMinimumWidth(room);
  into->addItem(tr("a new library"));
  into->setCurrentIndex(choices_.newLibrary.empty() ? 0 : 1);
  cmbInto = AddRow(grid, tr("&Into"), into, QStringLiteral("cmbInto"), txtLibName);
}

void frmImport::AddNumbers(QGridLayout* grid) {
  spnFrom = new QSpinBox(this);
  spnFrom->setObjectName(QStringLiteral("spnFrom"));
  spnFrom->setAccessibleName(tr("Number of the first board"));
  spnFrom->setRange(kFirstBoardNumber, kLastBoardNumber);
  spnFrom->setValue(choices_.from);
  auto* numbers = new QComboBox(this);
  numbers->addItem(tr("keep; a later board replaces an earlier one"));
  numbers->addItem(tr("keep; the first board of each number"));
  numbers->addItem(tr("keep; repeated and missing ones get the next free number"));
  numbers->addItem(tr("number all boards in the order of the file, from"));
  numbers->setCurrentIndex(static_cast<int>(choices_.numbers));
  cmbNumbers = AddRow(grid, tr("&Numbers"), numbers, QStringLiteral("cmbNumbers"), spnFrom);
}

void frmImport::AddDealer(QGridLayout* grid) {
  if (!AnyGame(look_.contents, TellsDealer)) return;
  cmbDealer = AddRow(grid, tr("&Dealer and vulnerability"), new QComboBox(this),
                     QStringLiteral("cmbDealer"));
  cmbDealer->addItem(tr("those of the number, whatever the file has"));
  cmbDealer->addItem(tr("those of the file: the next number that has them"));
  cmbDealer->setCurrentIndex(static_cast<int>(choices_.dealer));
}

void frmImport::AddSection(QGridLayout* grid) {
  const auto& sections = look_.contents.sections;
  if (sections.size() < 2) return;
  cmbSection = AddRow(grid, tr("&Section"), new QComboBox(this), QStringLiteral("cmbSection"));
  int number = 0;
  for (const FoundSection& section : sections) {
    ++number;
    cmbSection->addItem(section.name.empty() ? tr("Section %1").arg(number)
                                             : ToQt(Showable(section.name, 60)));
  }
  cmbSection->addItem(tr("each in a new library of its own"));
  const bool every = choices_.section == kEverySection;
  cmbSection->setCurrentIndex(every ? cmbSection->count() - 1 : static_cast<int>(choices_.section));
}

void frmImport::AddMarks(QGridLayout* grid) {
  const auto add = [&](const QString& name, const QString& text, bool checked) {
    auto* mark = new QCheckBox(text, this);
    mark->setObjectName(name);
    mark->setChecked(checked);
    grid->addWidget(mark, grid->rowCount(), 1);
    return mark;
  };
  if (!look_.contents.unread.empty()) {
    chkSkipBad = add(QStringLiteral("chkSkipBad"),
                     tr("&Leave out what cannot be read and import the rest"), choices_.skipBad);
  }
  if (AnyGame(look_.contents, HasResults)) {
    chkResults = add(QStringLiteral("chkResults"), tr("Keep &results, play and notes"),
                     choices_.keepResults);
  }
}

/// Why nothing can be imported stands beside the buttons.
QWidget* frmImport::MakeButtons() {
  auto* foot = new QWidget(this);
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  lblObstacle = new QLabel(foot);
  lblObstacle->setObjectName(QStringLiteral("lblObstacle"));
  lblObstacle->setTextFormat(Qt::PlainText);
  auto* buttons = new QDialogButtonBox(foot);
  cmdImport = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
  cmdImport->setObjectName(QStringLiteral("cmdImport"));
  cmdImport->setDefault(true);
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  row->addWidget(lblObstacle, 1);
  row->addWidget(buttons);
  return foot;
}

void frmImport::Connect() {
  for (QComboBox* choice : {cmbInto, cmbNumbers, cmbDealer}) {
    if (choice == nullptr) continue;
    connect(choice, &QComboBox::currentIndexChanged, this, &frmImport::Choose);
  }
  for (QCheckBox* mark : {chkSkipBad, chkResults}) {
    if (mark != nullptr) connect(mark, &QCheckBox::toggled, this, &frmImport::Choose);
  }
  if (cmbSection != nullptr) {
    connect(cmbSection, &QComboBox::currentIndexChanged, this, &frmImport::ChooseSection);
  }
  connect(txtLibName, &QLineEdit::textChanged, this, &frmImport::Choose);
  connect(spnFrom, &QSpinBox::valueChanged, this, &frmImport::Choose);
  connect(rows_, &ImportRowsModel::Wanted, this, &frmImport::Want);
}

/// From top to bottom; without this it would be as the controls were made.
void frmImport::SetTabOrder() {
  QWidget* before = cmbInto;
  for (QWidget* next :
       std::initializer_list<QWidget*>{txtLibName, cmbNumbers, spnFrom, cmbDealer, cmbSection,
                                       chkSkipBad, chkResults, grdBoards, cmdImport}) {
    if (next == nullptr) continue;
    setTabOrder(before, next);
    before = next;
  }
}

/// As large as its table would like to be, but never larger than the screen.
void frmImport::SetFirstSize() {
  const QSize room = RoomForDialog(*this);
  resize(sizeHint().boundedTo(room));
}

/// Takes over what the controls say.
void frmImport::Choose() {
  const bool every = choices_.section == kEverySection;
  const bool intoNew = cmbInto->currentIndex() == 1;
  cmbInto->setEnabled(!every);
  txtLibName->setVisible(intoNew && !every);
  choices_.newLibrary = intoNew && !every ? FromQt(txtLibName->text().trimmed()) : std::string();
  choices_.numbers = static_cast<Numbering>(cmbNumbers->currentIndex());
  choices_.from = spnFrom->value();
  spnFrom->setVisible(choices_.numbers == Numbering::From);
  if (cmbDealer != nullptr) choices_.dealer = static_cast<DealerBy>(cmbDealer->currentIndex());
  if (chkSkipBad != nullptr) choices_.skipBad = chkSkipBad->isChecked();
  if (chkResults != nullptr) choices_.keepResults = chkResults->isChecked();
  Show();
  grdBoards->FitColumns();
}

/// The boards that were left out were those of another section.
void frmImport::ChooseSection() {
  const int chosen = cmbSection->currentIndex();
  const bool every = chosen == cmbSection->count() - 1;
  choices_.section = every ? kEverySection : static_cast<std::size_t>(chosen);
  choices_.unwanted.clear();
  Choose();
}

void frmImport::Want(const QList<std::size_t>& boards, bool wanted) {
  for (const std::size_t board : boards) {
    if (wanted) {
      choices_.unwanted.erase(board);
    } else {
      choices_.unwanted.insert(board);
    }
  }
  Show();
}

void frmImport::Show() {
  rows_->Show(choices_);
  const QString found = ToQt(PlanSummary(look_.contents, rows_->Plan()));
  const QString format = FormatText(look_.contents);
  lblSummary->setText(format.isEmpty() ? found : found + QStringLiteral(" \u00B7 ") + format);
  ShowButton();
}

void frmImport::ShowButton() {
  const int boards = rows_->Plan().stored;
  cmdImport->setText(boards == 1 ? tr("I&mport 1 board") : tr("I&mport %1 boards").arg(boards));
  const QString obstacle = Obstacle();
  lblObstacle->setText(obstacle);
  txtLibName->setAccessibleDescription(obstacle);  // a screen reader does not come to the label
  cmdImport->setEnabled(obstacle.isEmpty());
}

/// Why nothing can be imported; empty when something can.
QString frmImport::Obstacle() const {
  if (cmbInto->currentIndex() == 1 && choices_.section != kEverySection) {
    const std::string& name = choices_.newLibrary;
    if (name.empty()) return tr("The new library needs a name");
    if (!HasAllowedCharacters(name)) return tr("No library can have this name");
    if (!IsNewLibraryName(session_, name)) return tr("There is a library of this name");
  }
  return rows_->Plan().stored == 0 ? tr("No board would be stored") : QString();
}

Looker LookDialog(QWidget* parent, const Session& session) {
  Looker looker;
  looker.decide = [window = QPointer<QWidget>(parent),
                   &session](const ImportLook& look) -> std::optional<ImportChoices> {
    frmImport dialog(session, look, window);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.Choices();
  };
  return looker;
}

}  // namespace tricklet::ui
