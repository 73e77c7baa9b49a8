// One board as a diagram: the four hands round a compass.
#pragma once

#include <optional>

#include <QRectF>
#include <QSizeF>

#include "core/board.h"
#include "ui/print/print_style.h"

namespace tricklet::ui {

/// What a diagram shows.
struct HandsDiagram {
  int boardNumber = 0;  ///< 0: neither number nor dealer and vulnerability are written
  Seat dealer = Seat::North;
  tricklet::Vulnerability vulnerability = tricklet::Vulnerability::None;
  HandTable hands = {};
  PerSeat<bool> shown{true, true, true, true};  ///< those that are not stay empty
  PerSeat<std::optional<int>> points = {};      ///< high-card points, in the lower left corner
  PerSeat<std::optional<Card>> trick = {};      ///< cards on the table, inside the compass
};

/// The board as it was dealt, with number and points. A hand without cards is not shown.
HandsDiagram DiagramOf(const Board& board);

/// Paints a line for each suit from the upper edge of `room` on, in fonts of `size`, narrower where
/// its width asks for that.
void PaintHand(QPainter& painter, const PerSuit<Holding>& hand, const QRectF& room, double size,
               const PrintStyle& style);

/// Where the parts of a diagram stand.
struct DiagramPlaces {
  double size = 0;        ///< of the font that the hands are written in
  PerSeat<QRectF> hands;  ///< four lines each
  QRectF compass;
  QRectF title;  ///< upper left corner: number, dealer, vulnerability
  QRectF left;   ///< lower left corner: points
  QRectF right;  ///< lower right corner: empty
};

/// The room that a diagram needs in fonts of `size`.
QSizeF DiagramSize(double size);
/// The size of the font with which a diagram fits `room`.
double DiagramFontSize(QSizeF room);

/// Fills the width of `room`, which is as large as `DiagramSize(size)` at least; of a height with
/// room to spare the middle.
DiagramPlaces PlaceDiagram(const QRectF& room, double size);

void PaintDiagram(QPainter& painter, const HandsDiagram& diagram, const DiagramPlaces& places,
                  const PrintStyle& style);
/// As large as it fits `room`.
void PaintDiagram(QPainter& painter, const HandsDiagram& diagram, const QRectF& room,
                  const PrintStyle& style);

}  // namespace tricklet::ui
