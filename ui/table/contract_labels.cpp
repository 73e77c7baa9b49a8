#include "ui/table/contract_labels.h"

#include <algorithm>
#include <array>

#include <QFontMetricsF>
#include <QLabel>

#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/table/table_centre.h"

namespace tricklet::ui {
namespace {

constexpr double kTextInLine = 0.72;  // of the line's height
constexpr double kGap = 0.9;          // between two texts, of their size; the dot is in its middle
constexpr double kDot = 0.13;

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
  const QRectF& line = layout.line;
  const QString all = lblContract->text() + lblTricks[Side::NorthSouth]->text() +
                      lblTricks[Side::EastWest]->text() + QStringLiteral("MM");  // for the gaps
  const QFont bold = Fitted(Bold(font), {all}, line.size(), kTextInLine * line.height());
  QFont plain = bold;
  plain.setBold(false);
  lblContract->setFont(bold);
  for (QLabel* label : lblTricks) label->setFont(plain);
  PlaceInLine(line);
}

void ContractLabels::PlaceInLine(const QRectF& line) {
  const double gap = kGap * lblContract->font().pixelSize();
  const std::array<QLabel*, 3> labels{lblContract, lblTricks[Side::NorthSouth],
                                      lblTricks[Side::EastWest]};
  double width = 2 * gap;
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
  for (const QLabel* label : lblTricks) {
    const QPointF middle(label->x() - kGap / 2 * size, label->geometry().center().y() + 1);
    painter.drawEllipse(middle, kDot * size, kDot * size);
  }
}

}  // namespace tricklet::ui
