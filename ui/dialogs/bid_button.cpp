#include "ui/dialogs/bid_button.h"

#include <array>

#include <QCoreApplication>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

bool IsNoTrump(Call bid) {
  return bid.Denomination() == BidStrain::NoTrump;
}

Suit SuitOf(Call bid) {
  return ToSuit(ToStrain(bid.Denomination()));
}

/// "One club", "Seven no-trumps".
QString InWords(Call bid) {
  static const std::array levels{
      QT_TRANSLATE_NOOP("BidButton", "One"),   QT_TRANSLATE_NOOP("BidButton", "Two"),
      QT_TRANSLATE_NOOP("BidButton", "Three"), QT_TRANSLATE_NOOP("BidButton", "Four"),
      QT_TRANSLATE_NOOP("BidButton", "Five"),  QT_TRANSLATE_NOOP("BidButton", "Six"),
      QT_TRANSLATE_NOOP("BidButton", "Seven")};
  static const std::array one{
      QT_TRANSLATE_NOOP("BidButton", "club"), QT_TRANSLATE_NOOP("BidButton", "diamond"),
      QT_TRANSLATE_NOOP("BidButton", "heart"), QT_TRANSLATE_NOOP("BidButton", "spade"),
      QT_TRANSLATE_NOOP("BidButton", "no-trump")};
  static const std::array more{
      QT_TRANSLATE_NOOP("BidButton", "clubs"), QT_TRANSLATE_NOOP("BidButton", "diamonds"),
      QT_TRANSLATE_NOOP("BidButton", "hearts"), QT_TRANSLATE_NOOP("BidButton", "spades"),
      QT_TRANSLATE_NOOP("BidButton", "no-trumps")};
  const auto level = static_cast<std::size_t>(bid.Level() - 1);
  const auto strain = static_cast<std::size_t>(bid.Denomination());
  const auto translated = [](const char* text) {
    return QCoreApplication::translate("BidButton", text);
  };
  return QStringLiteral("%1 %2").arg(translated(levels.at(level)),
                                     translated((level == 0 ? one : more).at(strain)));
}

}  // namespace

BidButton::BidButton(Call bid, bool fourColours, QWidget* parent)
    : QPushButton(parent),
      bid_(bid),
      fourColours_(fourColours),
      symbol_(IsNoTrump(bid) ? tr("NT") : ToQt(SuitSymbol[SuitOf(bid)])) {
  setObjectName(QStringLiteral("cmdBid_%1").arg(bid.BidIndex()));
  setText(QString::number(bid.Level()) + symbol_);
  setAccessibleName(InWords(bid));
  setAutoDefault(false);
  // A click leaves the focus where it is: the button that is pressed is disabled for the next
  // player.
  setFocusPolicy(Qt::TabFocus);
}

QSize BidButton::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {metrics.horizontalAdvance(QStringLiteral("7NT")) + 12, metrics.height() + 10};
}

QColor BidButton::SymbolColour() const {
  const QColor plain = palette().color(QPalette::ButtonText);
  if (!isEnabled() || IsNoTrump(bid_)) return plain;
  return SuitColourOnWindow(SuitOf(bid_), fourColours_, palette());
}

void BidButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);

  DrawWithSymbol(painter, rect(), QString::number(bid_.Level()),
                 palette().color(QPalette::ButtonText), symbol_, SymbolColour());
}

}  // namespace tricklet::ui
