#include "ui/panes/library_pane.h"

#include <algorithm>

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "ui/dialogs/name_filter.h"
#include "ui/panes/board_list.h"
#include "ui/panes/board_list_model.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

/// Of the height that is left in the column, against 1 for the empty room at its end.
constexpr int kStretch = 100;

/// Lets 1..999 be typed, and puts the highest board back when the text is left as something else.
class HighestBoardValidator : public QIntValidator {
 public:
  HighestBoardValidator(const Session& session, QObject* parent)
      : QIntValidator(kFirstBoardNumber, kLastBoardNumber, parent), session_(session) {}
  void fixup(QString& text) const override { text = QString::number(session_.library.maxBoard); }

 private:
  const Session& session_;
};

QToolButton* MakeStepButton(const QString& name, Qt::ArrowType arrow, const QString& title,
                            QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setArrowType(arrow);
  button->setAccessibleName(title);
  button->setToolTip(title);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

/// A combo box of a narrow column: long entries are cut, its list is quick to measure.
QComboBox* MakeCombo(const QString& name, const QString& title, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setAccessibleName(title);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(3);
  combo->setMaxVisibleItems(20);
  combo->setInsertPolicy(QComboBox::NoInsert);
  auto* list = new QListView(combo);
  list->setUniformItemSizes(true);
  combo->setView(list);
  return combo;
}

void MakeTypable(QComboBox* combo) {
  combo->setEditable(true);
  combo->setCompleter(nullptr);
  combo->lineEdit()->setObjectName(combo->objectName() + QStringLiteral("Text"));
  combo->lineEdit()->setAccessibleName(combo->accessibleName());
}

}  // namespace

LibraryPane::LibraryPane(Session& session, BoardSummaries& summaries, QWidget* parent)
    : QWidget(parent),
      session_(session),
      fraLibrary(new Section(QStringLiteral("fraLibrary"), this)),
      list_(new BoardList(session, summaries, this)) {
  BuildLibrary(session);
  fraLibrary->Body()->addWidget(list_, 1);
  BuildHighest();
  BuildBoard();
  connect(list_, &BoardList::BoardChosen, this, &LibraryPane::BoardChosen);
  connect(list_, &BoardList::Left, this, &LibraryPane::Left);
  // The list takes the height that the column has left.
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setVerticalStretch(kStretch);
  setSizePolicy(policy);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(10);
  column->addWidget(fraLibrary);
}

void LibraryPane::BuildLibrary(Session& session) {
  cmbLibs = MakeCombo(QStringLiteral("cmbLibs"), tr("Library"), this);
  MakeTypable(cmbLibs);
  cmbLibs->lineEdit()->setPlaceholderText(tr("Name of a new library"));
  new NameFilter(cmbLibs->lineEdit(), session.host, cmbLibs);
  new QShortcut(
      Qt::Key_Escape, cmbLibs, this,
      [this] {
        ShowNames(session_);
        emit Left();
      },
      Qt::WidgetWithChildrenShortcut);
  cmdChange = new QPushButton(tr("Create"), this);
  cmdChange->setObjectName(QStringLiteral("cmdChange"));
  cmdChange->setToolTip(tr("Create a new library of the name typed"));
  cmdChange->setEnabled(false);
  cmdChange->hide();
  lblLibrary = new QLabel(this);
  lblLibrary->setObjectName(QStringLiteral("lblLibrary"));
  MakeQuiet(lblLibrary);

  // The box would take the keys of commands for letters of a name.
  connect(cmbLibs, &QComboBox::activated, this, [this](int index) {
    emit LibraryChosen(index);
    emit Left();
  });
  connect(cmbLibs->lineEdit(), &QLineEdit::textChanged, this, &LibraryPane::NameTyped);
  connect(cmbLibs->lineEdit(), &QLineEdit::returnPressed, this, &LibraryPane::TakeName);
  connect(cmbLibs->lineEdit(), &QLineEdit::editingFinished, this, [this] {
    if (!cmdChange->isEnabled()) ShowNames(session_);
  });
  connect(cmdChange, &QPushButton::clicked, this, [this] {
    emit LibraryNamed(cmbLibs->currentText());
    emit Left();
  });

  auto* row = new QHBoxLayout;
  row->addWidget(cmbLibs, 1);
  row->addWidget(cmdChange);
  fraLibrary->Body()->addLayout(row);
}

/// A row below the list: "33 boards in library of 36".
void LibraryPane::BuildHighest() {
  cmbMaxBoard = MakeCombo(QStringLiteral("cmbMaxBoard"), tr("Highest board"), this);
  cmbMaxBoard->setToolTip(tr("Highest board"));
  cmbMaxBoard->setMinimumContentsLength(2);
  MakeTypable(cmbMaxBoard);
  QStringList numbers;
  for (int n = kFirstBoardNumber; n <= kLastBoardNumber; ++n) numbers += QString::number(n);
  cmbMaxBoard->addItems(numbers);
  cmbMaxBoard->setValidator(new HighestBoardValidator(session_, cmbMaxBoard));
  connect(cmbMaxBoard, &QComboBox::activated, this,
          [this](int index) { emit HighestChosen(index + 1); });

  auto* caption = new QLabel(tr("of"), this);
  caption->setBuddy(cmbMaxBoard);
  MakeQuiet(caption);
  auto* row = new QHBoxLayout;
  row->addWidget(lblLibrary, 1);
  row->addWidget(caption);
  row->addWidget(cmbMaxBoard);
  fraLibrary->Body()->addLayout(row);
}

/// The last row: "< Board 7 >".
void LibraryPane::BuildBoard() {
  lblPrevious =
      MakeStepButton(QStringLiteral("lblPrevious"), Qt::LeftArrow, tr("Previous board"), this);
  cmbBoard = MakeCombo(QStringLiteral("cmbBoard"), tr("Board"), this);
  cmbBoard->setModel(list_->Boards());
  cmbBoard->setModelColumn(static_cast<int>(BoardColumn::Entry));
  lblNext = MakeStepButton(QStringLiteral("lblNext"), Qt::RightArrow, tr("Next board"), this);

  connect(lblPrevious, &QToolButton::clicked, this, [this] { emit StepAsked(true); });
  connect(lblNext, &QToolButton::clicked, this, [this] { emit StepAsked(false); });
  connect(cmbBoard, &QComboBox::activated, this,
          [this](int index) { emit BoardChosen(index + 1); });

  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  row->addWidget(lblPrevious);
  row->addWidget(cmbBoard, 1);
  row->addWidget(lblNext);
  for (QToolButton* button : {lblPrevious, lblNext}) {
    button->setFixedHeight(cmbBoard->sizeHint().height());
    button->setFixedWidth(cmbBoard->sizeHint().height() * 4 / 5);
  }
  fraLibrary->Body()->addLayout(row);
}

QList<QWidget*> LibraryPane::TabOrder() const {
  return QList<QWidget*>{cmbLibs, cmdChange} + list_->TabOrder() +
         QList<QWidget*>{cmbMaxBoard, lblPrevious, cmbBoard, lblNext};
}

void LibraryPane::Show(const Session& session) {
  fraLibrary->SetTitle(ToQt(LibraryCaption(session)));
  lblLibrary->setText(ToQt(LibraryCountText(session)));
  ShowNames(session);

  list_->Show();
  cmbBoard->setCurrentIndex(session.board.boardNumber - 1);
  const QSignalBlocker quiet(cmbMaxBoard);
  cmbMaxBoard->setCurrentIndex(session.library.maxBoard - 1);
  cmbMaxBoard->setEditText(QString::number(session.library.maxBoard));
  const bool steps = session.library.maxBoard > 0;
  lblPrevious->setEnabled(steps);
  lblNext->setEnabled(steps);
}

void LibraryPane::OfferNext(bool offer) {
  QPalette colours;
  if (offer) {
    colours.setBrush(QPalette::Button, palette().brush(QPalette::Highlight));
    colours.setBrush(QPalette::ButtonText, palette().brush(QPalette::HighlightedText));
  }
  if (lblNext->palette() != colours) lblNext->setPalette(colours);
}

void LibraryPane::ShowNames(const Session& session) {
  QStringList names;
  for (const std::string& name : session.libraryNames) names += ToQt(ShownName(name));
  QStringList listed;
  for (int i = 0; i < cmbLibs->count(); ++i) listed += cmbLibs->itemText(i);
  const QSignalBlocker quiet(cmbLibs);
  if (names != listed) {
    cmbLibs->clear();
    cmbLibs->addItems(names);
  }
  cmbLibs->setCurrentIndex(session.libIndex);
  cmbLibs->setEditText(ToQt(session.ShownLibrary()));
  cmbLibs->lineEdit()->setCursorPosition(0);  // shows the beginning of a long name
  cmbLibs->setToolTip(ToQt(session.ShownLibrary()));
  NameTyped(cmbLibs->currentText());
}

bool LibraryPane::Typing(const Session& session) const {
  return cmbLibs->currentText() != ToQt(session.LibraryName()) ||
         cmbMaxBoard->currentText() != QString::number(session.library.maxBoard);
}

void LibraryPane::BeginNewLibrary() {
  cmbLibs->setFocus(Qt::ShortcutFocusReason);
  cmbLibs->clearEditText();
}

/// A new name makes a library; that of another library, in whatever letter case, chooses it.
void LibraryPane::TakeName() {
  const int index = LibraryIndex(session_, FromQt(cmbLibs->currentText()));
  if (cmdChange->isEnabled()) {
    cmdChange->click();
  } else {
    if (index >= 0 && index != session_.libIndex) emit LibraryChosen(index);
    emit Left();
  }
}

void LibraryPane::NameTyped(const QString& text) {
  const std::string name = FromQt(text);
  const bool isNew = name != session_.ShownLibrary() && IsNewLibraryName(session_, name);
  cmdChange->setEnabled(isNew);
  cmdChange->setVisible(isNew);  // else the room is the name's
}

}  // namespace tricklet::ui
