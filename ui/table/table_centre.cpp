#include "ui/table/table_centre.h"

#include <algorithm>
#include <cstdint>

#include <QFontMetricsF>

#include "ui/style/qt_text.h"
#include "ui/style/theme.h"
#include "ui/table/descriptions.h"
#include "ui/table/table_words.h"

namespace tricklet::ui {
namespace {

QString SeatLetter(Seat seat) {
  switch (seat) {
    case Seat::North:
      return TableWords::tr("N");
    case Seat::East:
      return TableWords::tr("E");
    case Seat::South:
      return TableWords::tr("S");
    default:
      return TableWords::tr("W");
  }
}

/// Where the dealer's disc goes.
enum class DiscSide : std::uint8_t { Left, Right, Below };

/// The mark of one seat: a badge, red where vulnerable, and the dealer's disc beside it.
class SeatMark {
 public:
  SeatMark(const Board& board, Seat seat, const QFont& font, double unit, DiscSide discSide)
      : vulnerable_(IsVulnerable(board.Vulnerability(), SideOf(seat))),
        dealer_(board.Dealer() == seat),
        discSide_(discSide),
        text_(SeatLetter(seat)),
        font_(font),
        unit_(unit) {
    const bool oneLine = seat == Seat::North || seat == Seat::South;
    if (vulnerable_) text_ += (oneLine ? u' ' : u'\n') + TableWords::tr("vul");
    font_.setBold(true);
    font_.setPixelSize(std::max(1, static_cast<int>(unit)));
    const QSizeF text = QFontMetricsF(font_).size(0, text_);
    badge_ = {std::max(text.width() + 0.8 * unit, 1.4 * unit), text.height() + 0.15 * unit};
  }

  QSizeF BadgeSize() const { return badge_; }

  /// The badge round `middle`, the disc beside it.
  void Draw(QPainter& painter, QPointF middle, const TableColours& colours) const {
    QRectF badge(QPointF(), badge_);
    badge.moveCenter(middle);
    painter.setPen(Qt::NoPen);
    if (vulnerable_) {
      painter.setBrush(kVulnerableRed);
      painter.drawRoundedRect(badge, 0.5 * unit_, 0.5 * unit_);
    }
    painter.setFont(font_);
    painter.setPen(vulnerable_ ? QColor(Qt::white) : colours.text);
    painter.drawText(badge, Qt::AlignCenter, text_);
    if (!dealer_) return;
    QRectF disc(0, 0, 1.35 * unit_, 1.35 * unit_);
    disc.moveCenter(middle + ToDisc(disc.width()));
    DrawDisc(painter, disc);
  }

 private:
  /// From the middle of the badge to that of the disc.
  QPointF ToDisc(double disc) const {
    const double apart = 0.3 * unit_ + disc / 2;
    if (discSide_ == DiscSide::Below) return {0, badge_.height() / 2 + apart};
    const double across = badge_.width() / 2 + apart;
    return {discSide_ == DiscSide::Left ? -across : across, 0};
  }

  void DrawDisc(QPainter& painter, const QRectF& disc) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(kDealerYellow);
    painter.drawEllipse(disc);
    painter.setPen(ReadableOn(kDealerYellow, Qt::black));
    painter.setFont(Fitted(font_, {QStringLiteral("M")}, disc.size() * 0.85, disc.height()));
    painter.drawText(disc, Qt::AlignCenter, TableWords::tr("D", "dealer"));
  }

  bool vulnerable_;
  bool dealer_;
  DiscSide discSide_;
  QString text_;
  QFont font_;
  double unit_;
  QSizeF badge_;
};

/// Lines of one size in the middle of `room`.
void DrawLines(QPainter& painter, const QRectF& room, const QStringList& lines, const QColor& ink,
               const QFont& font, double mostPixels) {
  if (lines.isEmpty()) return;
  const auto count = static_cast<double>(lines.size());
  const double each = room.height() / count;
  const QFont fitted = Fitted(font, lines, {room.width(), each}, mostPixels);
  const double line = std::min(each, QFontMetricsF(fitted).height() * 1.1);
  painter.setFont(fitted);
  painter.setPen(ink);
  QRectF place(room.left(), room.center().y() - line * count / 2, room.width(), line);
  for (const QString& text : lines) {
    painter.drawText(place, Qt::AlignCenter, text);
    place.translate(0, line);
  }
}

void DrawPanel(QPainter& painter, const QRectF& panel, const TableColours& colours) {
  painter.setPen(QPen(colours.line, 1));
  painter.setBrush(colours.centre);
  painter.drawRoundedRect(panel.adjusted(0.5, 0.5, -0.5, -0.5), 12, 12);
}

/// The marks of the four seats and the lines between them.
struct CentreParts {
  double unit;
  PerSeat<SeatMark> marks;
  PerSeat<QPointF> middles;
  QRectF board;     ///< above the line from West to East
  QRectF contract;  ///< below the board
  QRectF dealer;    ///< below the line: dealer and vulnerability
};

// Of the height of a wide panel's lines; dealer and vulnerability share the rest.
constexpr double kBoardLine = 0.28;
constexpr double kContractLine = 0.3;

CentreParts PartsOf(const QRectF& panel, const Board& board, const QFont& font) {
  const double unit = std::clamp(std::min(panel.width(), panel.height()) * 0.095, 5.0, 48.0);
  const bool wide = panel.width() >= kWideCentre * panel.height();
  const auto mark = [&](Seat seat) {
    const bool atSide = seat == Seat::West || seat == Seat::East;
    // Beside the text between West and East there is no room for the disc.
    const DiscSide discSide = atSide && wide       ? DiscSide::Below
                              : seat == Seat::East ? DiscSide::Left
                                                   : DiscSide::Right;
    return SeatMark(board, seat, font, unit, discSide);
  };
  CentreParts parts{
      unit, {{mark(Seat::North), mark(Seat::East), mark(Seat::South), mark(Seat::West)}},
      {},   {},
      {},   {}};
  const auto size = [&](Seat seat) { return parts.marks[seat].BadgeSize(); };
  const double pad = 0.5 * unit;
  const double ends = std::max(size(Seat::North).height(), size(Seat::South).height());
  const double sides = std::max(size(Seat::West).width(), size(Seat::East).width());
  const QPointF middle = panel.center();
  parts.middles = {{QPointF(middle.x(), panel.top() + pad + ends / 2),
                    QPointF(panel.right() - pad - sides / 2, middle.y()),
                    QPointF(middle.x(), panel.bottom() - pad - ends / 2),
                    QPointF(panel.left() + pad + sides / 2, middle.y())}};
  const double down = ends + 1.4 * pad;
  const double half = std::max(size(Seat::West).height(), size(Seat::East).height()) / 2;
  const QRectF inner = panel.adjusted(pad, down, -pad, -down);
  if (wide) {
    // Room enough between West and East for all lines, so that their line need not be kept free.
    const double aside = sides + pad;
    const QRectF lines = inner.adjusted(aside, 0, -aside, 0);
    parts.board = {lines.left(), lines.top(), lines.width(), kBoardLine * lines.height()};
    parts.contract = {lines.left(), parts.board.bottom(), lines.width(),
                      kContractLine * lines.height()};
    parts.dealer = {lines.left(), parts.contract.bottom(), lines.width(),
                    lines.bottom() - parts.contract.bottom()};
    return parts;
  }
  const double above = middle.y() - half - inner.top();
  constexpr double kBoard = 0.56;
  parts.board = {inner.left(), inner.top(), inner.width(), kBoard * above};
  parts.contract = {inner.left(), parts.board.bottom(), inner.width(), (1 - kBoard) * above};
  parts.dealer = QRectF(QPointF(inner.left(), middle.y() + half), inner.bottomRight());
  return parts;
}

constexpr double kTrickMargin = 6;
constexpr double kLeastCornerText = 9;  // pixels; smaller ones are left out

}  // namespace

QRectF TrickRoom(const QRectF& panel) {
  return panel.adjusted(kTrickMargin, kTrickMargin, -kTrickMargin, -kTrickMargin);
}

QRectF ContractRoom(const QRectF& panel, const Board& board, const QFont& font) {
  return PartsOf(panel, board, font).contract;
}

void DrawCentreInPlay(QPainter& painter, const QRectF& panel, const QRectF& corner,
                      const Board& board, const TableColours& colours, const QFont& font) {
  DrawPanel(painter, panel, colours);
  const QStringList lines = BoardLine(board) + QStringList{ToQt(VulShort[board.Vulnerability()])};
  const double each = corner.height() / static_cast<double>(lines.size());
  const QFont fitted = Fitted(font, lines, {corner.width(), each}, 0.42 * corner.height());
  if (fitted.pixelSize() < kLeastCornerText) return;
  painter.setFont(fitted);
  painter.setPen(colours.dimText);
  painter.drawText(corner, Qt::AlignLeft | Qt::AlignTop, lines.join(u'\n'));
}

void DrawCentre(QPainter& painter, const QRectF& panel, const Board& board,
                const TableColours& colours, const QFont& font) {
  DrawPanel(painter, panel, colours);
  const CentreParts parts = PartsOf(panel, board, font);
  for (const Seat seat : kAllSeats) parts.marks[seat].Draw(painter, parts.middles[seat], colours);
  QFont bold = font;
  bold.setBold(true);
  DrawLines(painter, parts.board, BoardLine(board), colours.text, bold, 1.5 * parts.unit);
  DrawLines(painter, parts.dealer, DealerLines(board), colours.dimText, font, 1.1 * parts.unit);
}

}  // namespace tricklet::ui
