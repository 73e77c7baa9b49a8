#include "ui/print/record_cell.h"

#include <algorithm>
#include <array>
#include <optional>

#include <QPainter>

#include "publish/sheet_text.h"
#include "ui/print/diagram.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

// As multiples of the size of the font of the hands.
constexpr double kPadding = 0.6;
constexpr double kParLine = 1.2;
constexpr double kSmall = 0.85;

// Of a table, as multiples of the size of its font.
constexpr double kLabelColumn = 1.4;
constexpr double kColumn = 1.75;
constexpr double kRow = 1.2;
constexpr double kTableWidth = kLabelColumn + kStrains * kColumn;

constexpr std::array kColumns{Strain::NoTrump, Strain::Spades, Strain::Hearts, Strain::Diamonds,
                              Strain::Clubs};
constexpr std::array kRows{Seat::North, Seat::South, Seat::East, Seat::West};

}  // namespace

double RecordFontSize(QSizeF cell) {
  const QSizeF diagram = DiagramSize(1);
  return std::min(cell.width() / (diagram.width() + 2 * kPadding),
                  cell.height() / (diagram.height() + kParLine + 2 * kPadding));
}

void PaintTable(QPainter& painter, const MakeableTable& table, const QRectF& room, double size,
                const PrintStyle& style) {
  const double font = std::min(size, room.width() / kTableWidth);
  const QPointF origin(room.right() - kTableWidth * font,
                       room.bottom() - (kSeats + 1) * kRow * font);
  const auto place = [&](int column, int row) {
    return QRectF(origin.x() + (column < 0 ? 0 : kLabelColumn + column * kColumn) * font,
                  origin.y() + row * kRow * font, (column < 0 ? kLabelColumn : kColumn) * font,
                  kRow * font);
  };
  TextStyle text{.size = font, .colour = style.Text(), .align = Qt::AlignHCenter};
  int row = 0;
  for (const Seat seat : kRows) {
    PaintLine(painter, place(-1, ++row), ToQt(SeatLetter(seat)),
              {.size = font, .colour = style.Text()}, style);
    for (int column = 0; column < kStrains; ++column) {
      const Strain strain = kColumns.at(static_cast<std::size_t>(column));
      text.bold = true;
      if (row == 1) PaintLine(painter, place(column, 0), ToQt(StrainSymbol(strain)), text, style);
      text.bold = false;
      const int tricks = table[ToTableSeat(seat)][ToTableStrain(strain)];
      PaintLine(painter, place(column, row), ToQt(TricksText(tricks)), text, style);
    }
  }
}

void PaintRecord(QPainter& painter, const PublishedBoard& published, const RecordParts& parts,
                 const QRectF& cell, const PrintStyle& style) {
  const double size = RecordFontSize(cell.size());
  const double padding = kPadding * size;
  const QRectF room = cell.adjusted(padding, padding, -padding, -padding - kParLine * size);
  const DiagramPlaces places = PlaceDiagram(room, size);
  const QRectF par(room.left(), places.right.bottom(), room.width(), kParLine * size);
  HandsDiagram diagram = DiagramOf(published.board);
  for (const Seat seat : kAllSeats) diagram.shown[seat] = diagram.shown[seat] && parts.hands[seat];
  if (!parts.points) diagram.points.fill(std::nullopt);
  PaintDiagram(painter, diagram, places, style);
  if (parts.table && published.board.makeableValid)
    PaintTable(painter, published.board.makeable, places.right, kSmall * size, style);
  if (parts.par && published.par) {
    PaintLine(painter, par, ToQt(ParSymbols(*published.par)),
              {.size = kSmall * size, .colour = style.Quiet(), .align = Qt::AlignRight}, style);
  }
}

}  // namespace tricklet::ui
