#include "ui/print/diagram.h"

#include <algorithm>

#include <QPainter>

#include "core/statistics.h"
#include "publish/sheet_text.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

// Measures of a diagram, as multiples of its font's size.
constexpr double kWidth = 21;
constexpr double kHandHeight = kSuits * kLineHeight;
constexpr double kGap = 0.75;  // between the hands and the compass
constexpr double kHeight = 3 * kHandHeight + 2 * kGap;
constexpr double kWidestGap = 1.5;  // in a room that is higher than that
constexpr double kCompass = 4.9;
constexpr double kNumber = 2.4;  // font of the board number
constexpr double kSmall = 0.85;  // font of what is beside the hands

// Where the columns begin, as parts of the width.
constexpr double kMiddle = 0.37;
constexpr double kRight = 0.66;

/// The place of a letter beside the side of `box` that `seat` faces.
QRectF AtSide(const QRectF& box, Seat seat, double size) {
  QRectF place(0, 0, size * kLineHeight, size * kLineHeight);
  const double off = (box.width() - place.width()) / 2;
  place.moveCenter(box.center());
  switch (seat) {
    case Seat::North:
      return place.translated(0, -off);
    case Seat::South:
      return place.translated(0, off);
    case Seat::East:
      return place.translated(off, 0);
    case Seat::West:
      return place.translated(-off, 0);
  }
  return place;
}

/// A vulnerable side is red and bold, or white in a black box.
void PaintSeat(QPainter& painter, const QRectF& place, Seat seat, bool vulnerable, double size,
               const PrintStyle& style) {
  TextStyle text{
      .size = size, .bold = vulnerable, .colour = style.Text(), .align = Qt::AlignHCenter};
  if (vulnerable && style.colours) text.colour = style.Vulnerable();
  if (vulnerable && !style.colours) {
    painter.fillRect(place, Qt::black);
    text.colour = Qt::white;
  }
  PaintLine(painter, place, ToQt(SeatLetter(seat)), text, style);
}

void PaintCompass(QPainter& painter, const HandsDiagram& diagram, const QRectF& box, double size,
                  const PrintStyle& style) {
  painter.save();
  painter.setPen(QPen(style.Text(), size * 0.06));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(box, size * 0.4, size * 0.4);
  painter.restore();
  const double inset = size * 0.15;
  const QRectF letters = box.adjusted(inset, inset, -inset, -inset);
  for (const Seat seat : kAllSeats) {
    const bool vulnerable = IsVulnerable(diagram.vulnerability, SideOf(seat));
    PaintSeat(painter, AtSide(letters, seat, size * kSmall), seat, vulnerable, size * kSmall,
              style);
    if (!diagram.trick[seat]) continue;
    const QRectF inner = letters.adjusted(size, size, -size, -size);
    QRectF place = AtSide(inner, seat, size * kSmall);
    place.adjust(-size, 0, size, 0);
    PaintLine(painter, place, ToQt(CardText(*diagram.trick[seat])),
              {.size = size * kSmall, .colour = style.Text(), .align = Qt::AlignHCenter}, style);
  }
}

void PaintTitle(QPainter& painter, const HandsDiagram& diagram, const DiagramPlaces& places,
                const PrintStyle& style) {
  const QString number = QString::number(diagram.boardNumber);
  const double size = places.size;
  const TextStyle numberStyle{.size = kNumber * size, .bold = true, .colour = style.Text()};
  const QRectF room = places.title;
  const double height = kNumber * size;
  const double width = PaintLine(painter, QRectF(room.left(), room.top(), room.width() / 2, height),
                                 number, numberStyle, style);
  QRectF line(room.left() + width + 0.5 * size, room.top() + 0.1 * size, 0, height / 2);
  line.setRight(room.right());
  const TextStyle small{.size = kSmall * size, .colour = style.Quiet()};
  PaintLine(painter, line, ToQt(DealerText(diagram.dealer)), small, style);
  PaintLine(painter, line.translated(0, height / 2), ToQt(VulShort[diagram.vulnerability]), small,
            style);
}

void PaintPoints(QPainter& painter, const HandsDiagram& diagram, const DiagramPlaces& places,
                 const PrintStyle& style) {
  const double size = places.size * kSmall;
  QRectF box(places.left.left() + size / 2, 0, 5.2 * size, 5.2 * size);
  box.moveBottom(places.left.bottom());
  for (const Seat seat : kAllSeats) {
    if (!diagram.points[seat]) continue;
    const QRectF place = AtSide(box, seat, size).adjusted(-size / 2, 0, size / 2, 0);
    PaintLine(painter, place, QString::number(*diagram.points[seat]),
              {.size = size, .colour = style.Text(), .align = Qt::AlignHCenter}, style);
  }
}

}  // namespace

void PaintHand(QPainter& painter, const PerSuit<Holding>& hand, const QRectF& room, double size,
               const PrintStyle& style) {
  double baseline = room.top() + (kLineHeight + 0.72) / 2 * size;
  for (const Suit suit : kAllSuits) {
    PaintHolding(painter, {room.left(), baseline}, room.width(), suit, hand[suit], size, style);
    baseline += kLineHeight * size;
  }
}

HandsDiagram DiagramOf(const Board& board) {
  HandsDiagram diagram{.boardNumber = board.boardNumber,
                       .dealer = board.Dealer(),
                       .vulnerability = board.Vulnerability(),
                       .hands = board.hands};
  const Statistics statistics = GetStats(board.hands);
  for (const Seat seat : kAllSeats) {
    // A hand without cards is not known, and no four voids.
    diagram.shown[seat] = HasCards(board.hands[seat]);
    if (diagram.shown[seat]) diagram.points[seat] = statistics.seatHcp[seat];
  }
  return diagram;
}

QSizeF DiagramSize(double size) {
  return {kWidth * size, kHeight * size};
}

double DiagramFontSize(QSizeF room) {
  return std::min(room.width() / kWidth, room.height() / kHeight);
}

DiagramPlaces PlaceDiagram(const QRectF& room, double size) {
  DiagramPlaces places;
  places.size = size;
  const double hand = kHandHeight * size;
  const double gap = std::min((room.height() - 3 * hand) / 2, kWidestGap * size);
  const double middle = room.left() + kMiddle * room.width();
  const double right = room.left() + kRight * room.width();
  const double space = 0.4 * size;
  const double first = room.top() + (room.height() - 3 * hand - 2 * gap) / 2;
  const double second = first + hand + gap;
  const double third = second + hand + gap;
  const auto box = [hand](double left, double top, double end) {
    return QRectF(left, top, end - left, hand);
  };
  places.hands[Seat::North] = box(middle, first, room.right());
  places.hands[Seat::West] = box(room.left(), second, middle - space);
  places.hands[Seat::East] = box(right, second, room.right());
  places.hands[Seat::South] = box(middle, third, right - space);
  places.compass = QRectF(0, 0, kCompass * size, kCompass * size);
  places.compass.moveCenter({(middle + right - space) / 2, second + hand / 2});
  places.title = box(room.left(), first, middle - space);
  places.left = box(room.left(), third, middle - space);
  places.right = box(right, third, room.right());
  return places;
}

void PaintDiagram(QPainter& painter, const HandsDiagram& diagram, const DiagramPlaces& places,
                  const PrintStyle& style) {
  for (const Seat seat : kAllSeats) {
    if (diagram.shown[seat])
      PaintHand(painter, diagram.hands[seat], places.hands[seat], places.size, style);
  }
  PaintCompass(painter, diagram, places.compass, places.size, style);
  if (diagram.boardNumber != 0) PaintTitle(painter, diagram, places, style);
  PaintPoints(painter, diagram, places, style);
}

void PaintDiagram(QPainter& painter, const HandsDiagram& diagram, const QRectF& room,
                  const PrintStyle& style) {
  PaintDiagram(painter, diagram, PlaceDiagram(room, DiagramFontSize(room.size())), style);
}

}  // namespace tricklet::ui
