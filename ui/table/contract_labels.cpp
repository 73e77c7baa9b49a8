#include "ui/table/contract_labels.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QLabel>

#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/table/table_centre.h"

namespace tricklet::ui {
namespace {

constexpr double kTextInLine = 0.72;  // of the line's height
constexpr double kGap = 0.9;          // between two texts, of their size; the dot is in its middle
constexpr double kDotSize = 0.13;

QLabel* MakeLabel(const QString& name, QWidget* table) {
  auto* label = new QLabel(table);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignCenter);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  label->hide();
  return label;
}

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

double WidthOf(const QLabel* label) {
  return std::ceil(QFontMetricsF(label->font()).horizontalAdvance(label->text())) + 1;
}

}  // namespace

ContractLabels::ContractLabels(QWidget* table)
    : lblContract(MakeLabel(QStringLiteral("lblContract"), table)) {
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    lblTricks[side] = MakeLabel(QStringLiteral("lblTricks_%1").arg(IndexOf(side)), table);
  }
}

void ContractLabels::Hide() {
  lblContract->hide();
  for (QLabel* label : lblTricks) label->hide();
}

void ContractLabels::Show(const TableScene& scene) {
  const std::string contract = ContractLabel(scene.board);
  lblContract->setText(WithSymbols(ToQt(contract)));
  lblContract->setAccessibleName(ToQt(contract));
  lblContract->setVisible(!contract.empty());
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    QString tricks = scene.play ? scene.play->tricks[side] : QString();
    if (scene.settings.captionStyle == CaptionStyle::Short) tricks.remove(u':');
    lblTricks[side]->setText(tricks);
    lblTricks[side]->setVisible(scene.play.has_value());
  }
}

void ContractLabels::Place(const TableScene& scene, const TableLayout& layout,
                           const TableColours& colours) {
  for (QLabel* label : {lblContract, lblTricks[Side::NorthSouth], lblTricks[Side::EastWest]}) {
    QPalette palette = label->palette();
    if (palette.color(QPalette::WindowText) == colours.text) continue;
    palette.setColor(QPalette::WindowText, colours.text);
    label->setPalette(palette);
  }
  const QFont font = lblContract->parentWidget()->font();
  if (!scene.play) {
    const QRectF room = ContractRoom(layout.centre, scene.board, font);
    lblContract->setFont(Fitted(font, {lblContract->text()}, room.size(), 0.8 * room.height()));
    lblContract->setGeometry(room.toRect());
    return;
  }
  rows_ = RowsFor(layout.linesInLine);
  QStringList texts;
  for (const std::vector<QLabel*>& row : rows_) {
    texts << QString(static_cast<int>(row.size()) - 1, u'M');  // for the gaps
    for (const QLabel* label : row) texts.back() += label->text();
  }
  QRectF line = layout.line;
  line.setHeight(line.height() / static_cast<double>(rows_.size()));
  const double most = std::max(kTextInLine * line.height(), layout.leastCaption);
  const QFont bold = Fitted(Bold(font), texts, line.size(), most);
  QFont plain = bold;
  plain.setBold(false);
  lblContract->setFont(bold);
  for (QLabel* label : lblTricks) label->setFont(plain);
  for (const std::vector<QLabel*>& row : rows_) {
    PlaceInLine(row, line);
    line.translate(0, line.height());
  }
}

/// Everything in one line, or the contract above the tricks.
std::vector<std::vector<QLabel*>> ContractLabels::RowsFor(int lines) const {
  const std::vector<QLabel*> tricks(lblTricks.begin(), lblTricks.end());
  if (lines > 1) return {{lblContract}, tricks};
  return {{lblContract, tricks.front(), tricks.back()}};
}

void ContractLabels::PlaceInLine(const std::vector<QLabel*>& labels, const QRectF& line) {
  const double gap = kGap * lblContract->font().pixelSize();
  double width = static_cast<double>(labels.size() - 1) * gap;
  for (const QLabel* label : labels) width += WidthOf(label);
  double x = line.center().x() - width / 2;
  for (QLabel* label : labels) {
    label->setGeometry(QRectF(x, line.top(), WidthOf(label), line.height()).toAlignedRect());
    x += WidthOf(label) + gap;
  }
}

void ContractLabels::DrawDots(QPainter& painter, const TableColours& colours) const {
  const double size = lblContract->font().pixelSize();
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours.text);
  for (const std::vector<QLabel*>& row : rows_) {
    for (const QLabel* label : row) {
      if (label == row.front()) continue;
      const QPointF middle(label->x() - kGap / 2 * size, label->geometry().center().y() + 1);
      painter.drawEllipse(middle, kDotSize * size, kDotSize * size);
    }
  }
}

}  // namespace tricklet::ui
