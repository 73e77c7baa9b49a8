#include "ui/style/symbols.h"

#include <algorithm>

#include <QRegularExpression>

namespace tricklet::ui {

void DrawWithSymbol(QPainter& painter, QRect room, const QString& text, const QColor& colour,
                    const QString& symbol, const QColor& symbolColour) {
  const QFontMetrics metrics = painter.fontMetrics();
  const int width = metrics.horizontalAdvance(text + symbol);
  room.setLeft(room.left() + std::max(0, (room.width() - width) / 2));
  painter.setPen(colour);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, text);
  room.setLeft(room.left() + metrics.horizontalAdvance(text));
  painter.setPen(symbolColour);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, symbol);
}

QString WithSymbols(QString text, const std::function<QString(Suit)>& symbol) {
  static const QString letters = QStringLiteral("SHDC");
  static const QRegularExpression strain(
      QStringLiteral("(?<=\\b[1-7])[SHDC](?=x{0,2}(?:[-+=]|\\b))"),
      QRegularExpression::CaseInsensitiveOption);
  qsizetype from = 0;
  for (auto match = strain.match(text); match.hasMatch(); match = strain.match(text, from)) {
    const QString shown = symbol(static_cast<Suit>(letters.indexOf(match.captured().toUpper())));
    text.replace(match.capturedStart(), 1, shown);
    from = match.capturedStart() + shown.size();
  }
  return text;
}

QString WithSymbols(const QString& text) {
  return WithSymbols(text, [](Suit suit) { return ToQt(SuitSymbol[suit]); });
}

}  // namespace tricklet::ui
