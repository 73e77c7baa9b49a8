#include "ui/dialogs/sheet_options.h"

#include <algorithm>
#include <array>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// What can be shown beside the hands, and on which layouts.
struct Mark {
  const char* name;
  const char* text;
  bool SheetChoices::*shown;
  std::array<bool, 4> offered;  ///< by layout: records, lesson, slips, travellers
};
constexpr std::array kMarks{
    Mark{"chkPoints",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "Poi&nts"),
         &SheetChoices::points,
         {true, true, false, false}},
    Mark{"chkTable",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "Ma&keable tricks"),
         &SheetChoices::table,
         {true, true, false, false}},
    Mark{"chkPar",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "Pa&r"),
         &SheetChoices::par,
         {true, true, false, true}},
    Mark{"chkAuction",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "A&uction and contract"),
         &SheetChoices::auction,
         {false, true, false, false}},
    Mark{"chkNotes",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "Not&es"),
         &SheetChoices::notes,
         {false, true, false, false}},
    Mark{"chkAnswers",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "Ans&wers at the end"),
         &SheetChoices::answers,
         {false, true, false, false}},
    Mark{"chkRanking",
         QT_TRANSLATE_NOOP("tricklet::ui::SheetOptions", "Ran&king"),
         &SheetChoices::ranking,
         {false, false, false, true}},
};

constexpr int kTitleLength = 200;  // characters: more than any sheet has room for

/// A board number that can be chosen or typed, also one that is not in the list.
QComboBox* MakeNumbers(const char* name, const QString& title, const BoardRange& whole, int chosen,
                       QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(QString::fromLatin1(name));
  combo->setAccessibleName(title);
  combo->setEditable(true);
  combo->setCompleter(nullptr);
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(3);
  combo->lineEdit()->setAccessibleName(title);
  QStringList numbers;
  for (int n = whole.first; n <= whole.last; ++n) numbers += QString::number(n);
  combo->addItems(numbers);
  combo->setEditText(QString::number(chosen));
  return combo;
}

}  // namespace

SheetOptions::SheetOptions(const PrintSettings& remembered, const SheetProposal& proposal,
                           QWidget* parent)
    : QWidget(parent), remembered_(remembered), form_(new QFormLayout(this)) {
  const SheetRequest begin = RememberedSheets(remembered, proposal);
  form_->setContentsMargins(0, 0, 0, 0);
  form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  AddRange(begin, proposal.range);
  AddPage(begin);
  AddWording(begin.choices);
  cmbColours = AddChoice("cmbColours", tr("&Colours"), {tr("In colours"), tr("Black alone")},
                         begin.choices.colours ? 0 : 1);
  cmbSlips = AddChoice("cmbSlips", tr("On a pa&ge"), {tr("One seat"), tr("All hands of a board")},
                       begin.choices.bySeat ? 0 : 1);
  AddHands(begin.choices);
  AddMarks(begin.choices);
  ShowLayout();
  Connect();
}

void SheetOptions::Connect() {
  connect(cmbLayout, &QComboBox::activated, this, &SheetOptions::ShowLayout);
  connect(cmbPerPage, &QComboBox::activated, this, [this] {
    int& kept =
        Layout() == SheetLayout::Lesson ? remembered_.lessonPerPage : remembered_.recordsPerPage;
    kept = cmbPerPage->currentData().toInt();
  });
  for (const QComboBox* end : {cmbFrom, cmbTo})
    connect(end, &QComboBox::editTextChanged, this, &SheetOptions::Changed);
  for (const QComboBox* choice :
       {cmbLayout, cmbPerPage, cmbPaper, cmbOrientation, cmbColours, cmbSlips})
    connect(choice, &QComboBox::activated, this, &SheetOptions::Changed);
  for (const QLineEdit* line : {txtTitle, txtSubtitle})
    connect(line, &QLineEdit::textChanged, this, &SheetOptions::Changed);
  for (const QCheckBox* hand : chkHands)
    connect(hand, &QCheckBox::toggled, this, &SheetOptions::Changed);
  for (const QCheckBox* mark : marks_)
    connect(mark, &QCheckBox::toggled, this, &SheetOptions::Changed);
}

void SheetOptions::AddRange(const SheetRequest& begin, const BoardRange& whole) {
  cmbFrom = MakeNumbers("cmbFrom", tr("First board"), whole, begin.range.first, this);
  cmbTo = MakeNumbers("cmbTo", tr("Last board"), whole, begin.range.last, this);
  auto* row = new QHBoxLayout;
  row->addWidget(cmbFrom);
  row->addWidget(new QLabel(tr("to"), this));
  row->addWidget(cmbTo);
  row->addStretch(1);
  auto* caption = new QLabel(tr("&Boards"), this);
  caption->setBuddy(cmbFrom);
  form_->addRow(caption, row);
}

void SheetOptions::AddPage(const SheetRequest& begin) {
  const SheetChoices& choices = begin.choices;
  cmbLayout = AddChoice("cmbLayout", tr("&Layout"),
                        {tr("Hand records"), tr("Lesson"), tr("Deal slips"), tr("Travellers")},
                        IndexOf(choices.layout));
  cmbPerPage = AddChoice("cmbPerPage", tr("Boards on a pa&ge"), {}, -1);
  cmbPaper = AddChoice("cmbPaper", tr("P&aper"), {tr("A4"), tr("Letter")}, IndexOf(choices.paper));
  cmbOrientation = AddChoice("cmbOrientation", tr("&Orientation"),
                             {tr("Portrait"), tr("Landscape")}, choices.landscape ? 1 : 0);
}

void SheetOptions::AddWording(const SheetChoices& begin) {
  txtTitle = AddLine("txtTitle", tr("&Title"), begin.title);
  txtSubtitle = AddLine("txtSubtitle", tr("Subt&itle"), begin.subtitle);
}

QComboBox* SheetOptions::AddChoice(const char* name, const QString& caption,
                                   const QStringList& texts, int chosen) {
  auto* combo = new QComboBox(this);
  combo->setObjectName(QString::fromLatin1(name));
  combo->setAccessibleName(QString(caption).remove(u'&'));
  combo->addItems(texts);
  combo->setCurrentIndex(chosen);
  form_->addRow(caption, combo);
  return combo;
}

QLineEdit* SheetOptions::AddLine(const char* name, const QString& caption,
                                 const std::string& text) {
  auto* line = new QLineEdit(ToQt(text), this);
  line->setObjectName(QString::fromLatin1(name));
  line->setAccessibleName(QString(caption).remove(u'&'));
  line->setMaxLength(kTitleLength);
  line->setCursorPosition(0);  // a long text is seen from its beginning
  form_->addRow(caption, line);
  return line;
}

/// The hands of a lesson.
void SheetOptions::AddHands(const SheetChoices& begin) {
  fraHands = new QWidget(this);
  fraHands->setObjectName(QStringLiteral("fraHands"));
  fraHands->setAccessibleName(tr("Hands"));
  auto* row = new QHBoxLayout(fraHands);
  row->setContentsMargins(0, 0, 0, 0);
  for (const Seat seat : kAllSeats) {
    const QString name = ToQt(SeatName[seat]);
    auto* box = new QCheckBox(name.left(1), fraHands);
    box->setObjectName(QStringLiteral("chkHand_%1").arg(IndexOf(seat)));
    box->setAccessibleName(tr("%1's hand").arg(name));
    box->setToolTip(tr("%1's hand").arg(name));
    box->setChecked(begin.hands[seat]);
    row->addWidget(box);
    chkHands[seat] = box;
  }
  row->addStretch(1);
  auto* caption = new QLabel(tr("&Hands"), this);
  caption->setBuddy(chkHands[Seat::North]);
  form_->addRow(caption, fraHands);
}

void SheetOptions::AddMarks(const SheetChoices& begin) {
  fraShow = new QWidget(this);
  fraShow->setObjectName(QStringLiteral("fraShow"));
  fraShow->setAccessibleName(tr("Show"));
  auto* column = new QVBoxLayout(fraShow);
  column->setContentsMargins(0, 0, 0, 0);
  for (const Mark& mark : kMarks) {
    auto* box = new QCheckBox(tr(mark.text), fraShow);
    box->setObjectName(QString::fromLatin1(mark.name));
    box->setChecked(begin.*mark.shown);
    column->addWidget(box);
    marks_.push_back(box);
  }
  form_->addRow(tr("Show"), fraShow);
}

SheetLayout SheetOptions::Layout() const {
  return static_cast<SheetLayout>(std::max(cmbLayout->currentIndex(), 0));
}

/// Offers what the chosen layout has.
void SheetOptions::ShowLayout() {
  const SheetLayout layout = Layout();
  const auto numbers = BoardsPerPage(layout);
  cmbPerPage->clear();
  for (const int number : numbers) cmbPerPage->addItem(QString::number(number), number);
  cmbPerPage->setCurrentIndex(cmbPerPage->findData(RememberedPerPage(remembered_, layout)));
  form_->setRowVisible(cmbPerPage, !numbers.empty());
  form_->setRowVisible(cmbSlips, layout == SheetLayout::Slips);
  form_->setRowVisible(fraHands, layout == SheetLayout::Lesson);
  bool any = false;
  for (std::size_t i = 0; i < kMarks.size(); ++i) {
    const bool offered = kMarks.at(i).offered.at(static_cast<std::size_t>(layout));
    marks_.at(i)->setVisible(offered);
    any = any || offered;
  }
  form_->setRowVisible(fraShow, any);
}

QList<QWidget*> SheetOptions::TabOrder() const {
  QList<QWidget*> order{cmbFrom,        cmbTo,    cmbLayout,   cmbPerPage, cmbPaper,
                        cmbOrientation, txtTitle, txtSubtitle, cmbColours, cmbSlips};
  for (QCheckBox* hand : chkHands) order += hand;
  for (QCheckBox* mark : marks_) order += mark;
  return order;
}

QString SheetOptions::From() const {
  return cmbFrom->currentText();
}
QString SheetOptions::To() const {
  return cmbTo->currentText();
}

SheetChoices SheetOptions::Choices() const {
  SheetChoices choices;
  choices.layout = Layout();
  choices.perPage = cmbPerPage->currentData().toInt();
  choices.paper = static_cast<Paper>(cmbPaper->currentIndex());
  choices.landscape = cmbOrientation->currentIndex() == 1;
  choices.title = FromQt(txtTitle->text());
  choices.subtitle = FromQt(txtSubtitle->text());
  choices.colours = cmbColours->currentIndex() == 0;
  choices.bySeat = cmbSlips->currentIndex() == 0;
  for (const Seat seat : kAllSeats) choices.hands[seat] = chkHands[seat]->isChecked();
  for (std::size_t i = 0; i < kMarks.size(); ++i)
    choices.*kMarks.at(i).shown = marks_.at(i)->isChecked();
  return choices;
}

}  // namespace tricklet::ui
