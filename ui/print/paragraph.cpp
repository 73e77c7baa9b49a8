#include "ui/print/paragraph.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace tricklet::ui {
namespace {

constexpr double kSmallest = 0.7;  // of the size that was asked for
constexpr double kStep = 0.95;
// More than fit any page in the smallest font: the time for a text has an end.
constexpr qsizetype kMostCharacters = 20'000;

/// Lays out lines of `width`, in pixels of the font, as far as they begin above `height`, and
/// returns the height of all that were laid out.
double LayOut(QTextLayout& layout, double width, double height) {
  const double line = kLineHeight * layout.font().pixelSize();
  double y = 0;
  layout.beginLayout();
  while (y + line <= height) {
    QTextLine next = layout.createLine();
    if (!next.isValid()) break;
    next.setLineWidth(width);
    next.setPosition({0, y});
    y += line;
  }
  layout.endLayout();
  return y;
}

QString Prepared(const QString& text) {
  QString lines = text.left(kMostCharacters);
  return lines.replace(u'\n', QChar(QChar::LineSeparator));
}

QTextOption Wrapping() {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  return option;
}

/// How much of the text the lines hold.
qsizetype EndOf(const QTextLayout& layout) {
  if (layout.lineCount() == 0) return 0;
  const QTextLine last = layout.lineAt(layout.lineCount() - 1);
  return last.textStart() + last.textLength();
}

/// `text` up to its last line in the layout, and of that what fits before "...".
QString Shortened(const QString& text, const QTextLayout& layout, double width) {
  const int start = layout.lineAt(layout.lineCount() - 1).textStart();
  QString rest = text.mid(start, 1000).replace(QChar(QChar::LineSeparator), u' ');
  rest += QString(200, u' ') + u'.';  // longer than a line in any case
  return text.left(start) + QFontMetricsF(layout.font()).elidedText(rest, Qt::ElideRight, width);
}

}  // namespace

double ParagraphHeight(const QString& text, double width, double size) {
  QTextLayout layout(Prepared(text), PrintFont(false));
  layout.setTextOption(Wrapping());
  const double scale = size / layout.font().pixelSize();
  return scale * LayOut(layout, width / scale, 1e6);
}

void PaintParagraph(QPainter& painter, const QRectF& room, const QString& text,
                    const TextStyle& style) {
  const QString prepared = Prepared(text);
  QTextLayout layout(prepared, PrintFont(style.bold));
  layout.setTextOption(Wrapping());
  double size = style.size;
  double scale = size / layout.font().pixelSize();
  LayOut(layout, room.width() / scale, room.height() / scale);
  while (EndOf(layout) < prepared.size() && size * kStep >= kSmallest * style.size) {
    size *= kStep;
    scale = size / layout.font().pixelSize();
    LayOut(layout, room.width() / scale, room.height() / scale);
  }
  if (layout.lineCount() == 0) return;
  if (EndOf(layout) < prepared.size() || text.size() > prepared.size()) {
    layout.setText(Shortened(prepared, layout, room.width() / scale));
    LayOut(layout, room.width() / scale, room.height() / scale);
  }
  painter.save();
  painter.translate(room.topLeft());
  painter.scale(scale, scale);
  painter.setPen(style.colour);
  layout.draw(&painter, {});
  painter.restore();
}

}  // namespace tricklet::ui
