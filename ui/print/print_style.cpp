#include "ui/print/print_style.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QFontMetricsF>
#include <QPainter>

#include "publish/sheet_text.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr double kFontPixels = 100;  // size at which texts are measured
constexpr double kSmallest = 0.7;    // of the size that was asked for
constexpr double kRounding = 1e-6;
constexpr double kAscent = 0.36;  // from the middle of a line to its baseline, of the size

// A reader of PDF takes a gap of a tenth of the size for a blank; poppler's limit is 0.1.
constexpr double kRankGap = 0.085;
constexpr double kTenWidth = 0.82;     // its digits are narrower, so that they read as one rank
constexpr double kSymbolWidth = 1.18;  // of a suit symbol with the gap after it

const QString kDash = QStringLiteral("\u2014");

const QFontMetricsF& Metrics(bool bold) {
  static const QFontMetricsF regular(PrintFont(false));
  static const QFontMetricsF strong(PrintFont(true));
  return bold ? strong : regular;
}

/// `text` without what would begin another line or shows as a box.
QString OnOneLine(QString text) {
  for (QChar& character : text) {
    const bool breaks = character == QChar::LineSeparator ||
                        character == QChar::ParagraphSeparator ||
                        character.category() == QChar::Other_Control;
    if (breaks) character = u' ';
  }
  return text;
}

/// A piece of text without suit symbols, or one symbol.
struct Piece {
  QString text;
  std::optional<Suit> suit;
};

std::optional<Suit> SuitOf(QChar symbol) {
  for (const Suit suit : kAllSuits) {
    if (ToQt(SuitSymbol[suit]) == symbol) return suit;
  }
  return std::nullopt;
}

std::vector<Piece> PiecesOf(const QString& text) {
  std::vector<Piece> pieces;
  for (const QChar character : text) {
    const auto suit = SuitOf(character);
    if (suit || pieces.empty() || pieces.back().suit) pieces.push_back({{}, suit});
    pieces.back().text += character;
  }
  return pieces;
}

double WidthOf(const std::vector<Piece>& pieces, double size, bool bold) {
  double width = 0;
  for (const Piece& piece : pieces) width += TextWidth(piece.text, size, bold);
  return width;
}

/// A rank is a digit or a letter, the ten alone has two.
double StretchOf(const QString& rank) {
  return rank.size() > 1 ? kTenWidth : 1;
}

double RankWidth(const QString& rank) {
  return StretchOf(rank) * TextWidth(rank, 1);
}

/// Paints ranks from the origin, in fonts of size 1, and leaves the gaps between them.
void PaintRanks(QPainter& painter, const std::vector<std::string_view>& ranks,
                const QColor& colour) {
  for (const std::string_view rank : ranks) {
    const QString text = ToQt(rank);
    painter.save();
    painter.scale(StretchOf(text), 1);
    PaintText(painter, {}, text, {.size = 1, .colour = colour});
    painter.restore();
    painter.translate(RankWidth(text) + kRankGap, 0);
  }
}

}  // namespace

QColor PrintStyle::Text() const {
  return colours ? QColor(0x11, 0x11, 0x11) : QColor(Qt::black);
}

QColor PrintStyle::Quiet() const {
  return colours ? QColor(0x44, 0x44, 0x44) : QColor(Qt::black);
}

QColor PrintStyle::Rule() const {
  return colours ? QColor(0x88, 0x88, 0x88) : QColor(Qt::black);
}

QColor PrintStyle::Vulnerable() const {
  return colours ? SuitColourOnCard(Suit::Hearts, true) : QColor(Qt::black);
}

QColor PrintStyle::OfSuit(Suit suit) const {
  return colours ? SuitColourOnCard(suit, fourColours) : QColor(Qt::black);
}

QFont PrintFont(bool bold) {
  // Both have the four suit symbols: one comes with Debian's desktops, the other with Windows.
  QFont font;
  font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")});
  font.setPixelSize(static_cast<int>(kFontPixels));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  // Letters that are spaced are not joined: who looks for "Dagfinn" in a PDF is to find it.
  constexpr double kInvisible = 0.02;  // the least is a 64th
  font.setLetterSpacing(QFont::AbsoluteSpacing, kInvisible);
  return font;
}

double TextWidth(const QString& text, double size, bool bold) {
  return Metrics(bold).horizontalAdvance(text) * size / kFontPixels;
}

void PaintText(QPainter& painter, QPointF at, const QString& text, const TextStyle& style) {
  painter.save();
  painter.translate(at);
  painter.scale(style.size / kFontPixels, style.size / kFontPixels);
  painter.setFont(PrintFont(style.bold));
  painter.setPen(style.colour);
  painter.drawText(QPointF(), text);
  painter.restore();
}

double PaintLine(QPainter& painter, const QRectF& room, const QString& text, const TextStyle& style,
                 const PrintStyle& colours) {
  const QString line = OnOneLine(text);
  std::vector<Piece> pieces = PiecesOf(line);
  double width = WidthOf(pieces, style.size, style.bold);
  TextStyle fitting = style;
  if (width > room.width()) {
    fitting.size = style.size * std::max(kSmallest, room.width() / width);
    if (fitting.size * width > room.width() * style.size * (1 + kRounding)) {
      pieces = PiecesOf(
          Metrics(style.bold)
              .elidedText(line, Qt::ElideRight, room.width() * kFontPixels / fitting.size));
    }
    width = WidthOf(pieces, fitting.size, fitting.bold);
  }
  double x = room.left();
  if ((style.align & Qt::AlignRight) != 0) x = room.right() - width;
  if ((style.align & Qt::AlignHCenter) != 0) x = room.center().x() - width / 2;
  for (const Piece& piece : pieces) {
    fitting.colour = piece.suit ? colours.OfSuit(*piece.suit) : style.colour;
    PaintText(painter, {x, room.center().y() + kAscent * fitting.size}, piece.text, fitting);
    x += TextWidth(piece.text, fitting.size, fitting.bold);
  }
  return width;
}

double PaintHolding(QPainter& painter, QPointF at, double room, Suit suit, Holding holding,
                    double size, const PrintStyle& colours) {
  std::vector<std::string_view> ranks = RanksOf(holding);
  double width = kSymbolWidth - kRankGap;
  for (const std::string_view rank : ranks) width += RankWidth(ToQt(rank)) + kRankGap;
  const std::string dash = FromQt(kDash);
  if (ranks.empty()) ranks.emplace_back(dash);
  if (holding.Empty()) width += TextWidth(kDash, 1) + kRankGap;
  width *= size;
  const double squeeze = std::min(1.0, room / width);
  painter.save();
  painter.translate(at);
  painter.scale(squeeze, 1);
  PaintText(painter, {}, ToQt(SuitSymbol[suit]), {.size = size, .colour = colours.OfSuit(suit)});
  painter.translate(kSymbolWidth * size, 0);
  painter.scale(size, size);
  PaintRanks(painter, ranks, colours.Text());
  painter.restore();
  return width * squeeze;
}

}  // namespace tricklet::ui
