#include "ui/style/symbols.h"

#include <QRegularExpression>

namespace tricklet::ui {

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
