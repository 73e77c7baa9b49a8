#include "ui/panes/review_pane.h"

#include <QGridLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/panes/tricks_chart.h"
#include "ui/style/highlight.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kPlayerColumn = 0;
constexpr int kLeadColumn = 1;
constexpr int kPlayColumn = 2;
constexpr int kPlayerShare = 3;  // of the width; the numbers have one share each

QLabel* MakeText(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

void ShowText(QLabel* label, const QString& text) {
  label->setText(text);
  label->setAccessibleName(text);
  label->setVisible(!text.isEmpty());
}

}  // namespace

ReviewPane::ReviewPane(QWidget* parent)
    : FoldingSection(QStringLiteral("secReview"), QStringLiteral("cmdReview"),
                     {tr("Show the review"), tr("Show the review"), tr("Hide the review")}, parent),
      fraReview_(new QWidget(Content())),
      lblTricks_(new QLabel(fraReview_)),
      picReview_(new TricksChart(fraReview_)),
      table_(new QGridLayout),
      lblResult_(MakeText("lblReviewResult", fraReview_)),
      lblRemark_(MakeText("lblReviewRemark", fraReview_)),
      lblDoubleDummy_(MakeText("lblDoubleDummy", fraReview_)),
      lblWhy_(MakeText("lblNoReview", Content())) {
  SetTitle(tr("Review"));
  fraReview_->setObjectName(QStringLiteral("fraReview"));
  lblTricks_->setObjectName(QStringLiteral("lblReviewTricks"));
  lblTricks_->setWordWrap(true);
  auto* column = new QVBoxLayout(fraReview_);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(lblTricks_);
  column->addWidget(picReview_);
  BuildTable();
  column->addLayout(table_);
  for (QLabel* label : {lblResult_, lblRemark_, lblDoubleDummy_}) column->addWidget(label);
  MakeQuiet(lblDoubleDummy_);
  MakeQuiet(lblWhy_);
  ShowText(lblDoubleDummy_, ToQt(kDoubleDummyLabel));
  ContentLayout()->addWidget(fraReview_);
  ContentLayout()->addWidget(lblWhy_);
  connect(picReview_, &TricksChart::PlaceAsked, this, &ReviewPane::PlaceAsked);
}

void ReviewPane::BuildTable() {
  table_->setHorizontalSpacing(4);
  table_->setVerticalSpacing(3);
  table_->setColumnStretch(kPlayerColumn, kPlayerShare);
  table_->setColumnStretch(kLeadColumn, 1);
  table_->setColumnStretch(kPlayColumn, 1);
  const std::pair<int, QString> heads[] = {{kPlayerColumn, tr("Tricks given away")},
                                           {kLeadColumn, tr("lead")},
                                           {kPlayColumn, tr("play")}};
  for (const auto& [place, text] : heads) {
    auto* head = new QLabel(text, fraReview_);
    head->setWordWrap(true);
    MakeQuiet(head);
    table_->addWidget(head, 0, place);
  }
  int line = 0;
  for (Row& row : rows_) {
    ++line;
    row = {new QLabel(fraReview_), new QLabel(fraReview_), new QLabel(fraReview_)};
    row.lead->setObjectName(QStringLiteral("lblGivenInLead_%1").arg(line - 1));
    row.play->setObjectName(QStringLiteral("lblGivenInPlay_%1").arg(line - 1));
    row.player->setWordWrap(true);
    table_->addWidget(row.player, line, kPlayerColumn);
    table_->addWidget(row.lead, line, kLeadColumn);
    table_->addWidget(row.play, line, kPlayColumn);
  }
}

QList<QWidget*> ReviewPane::TabOrder() const {
  return {Button(), picReview_};
}

/// Bold and red where it is not 0.
void ReviewPane::ShowCount(QLabel* label, std::optional<int> count, const QString& what) {
  const bool given = count.value_or(0) > 0;
  label->setText(count ? QString::number(*count) : QStringLiteral("\u2013"));
  label->setAccessibleName(
      QStringLiteral("%1: %2").arg(what, count ? label->text() : tr("did not lead")));
  QFont font = this->font();
  font.setBold(given);
  label->setFont(font);
  QPalette colours = palette();
  if (given) colours.setColor(QPalette::WindowText, MistakeColour(colours));
  label->setPalette(colours);
}

void ReviewPane::ShowTable(const PlayReview& review) {
  const Seat players[] = {review.declarer, SeatAfter(review.declarer),
                          SeatAfter(review.declarer, kSeats - 1)};
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const QString name = ToQt(SeatName[players[i]]);
    const GivenAway& given = review.given[players[i]];
    rows_[i].player->setText(i == 0 ? tr("%1, declarer").arg(name) : name);
    ShowCount(rows_[i].lead, given.lead, tr("Tricks %1 gave away in the lead").arg(name));
    ShowCount(rows_[i].play, given.play, tr("Tricks %1 gave away in the play").arg(name));
  }
}

void ReviewPane::Show(const PlayReview& review, const PlayedAt& at, std::optional<int> place) {
  const QString title = TricksTitle(review);
  const QString need = NeedText(review);
  lblTricks_->setText(QStringLiteral("<b>%1</b> <span style=\"color:%2\">· %3</span>")
                          .arg(title.toHtmlEscaped(),
                               palette().color(QPalette::PlaceholderText).name(),
                               need.toHtmlEscaped()));
  lblTricks_->setAccessibleName(QStringLiteral("%1 · %2").arg(title, need));
  picReview_->Show(review, place);
  ShowTable(review);
  ShowText(lblResult_, ResultTexts(review, at).join(u'\n'));
  ShowText(lblRemark_, ToQt(review.remark));
  fraReview_->show();
  lblWhy_->hide();
}

void ReviewPane::ShowNone(const QString& why) {
  fraReview_->hide();
  ShowText(lblWhy_, why.isEmpty() ? tr("The play is being reviewed") : why);
}

}  // namespace tricklet::ui
