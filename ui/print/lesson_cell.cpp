#include "ui/print/lesson_cell.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "publish/sheet_text.h"
#include "ui/print/painted_calls.h"
#include "ui/print/paragraph.h"
#include "ui/print/record_cell.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr double kPadding = 6;
constexpr double kRounding = 1e-6;
constexpr double kBeside = 0.58;      // of the width: the diagram that has the auction beside it
constexpr double kLargest = 1.5;      // font of the diagram, as a multiple of that of the texts
constexpr double kMuchLarger = 1.3;   // than that is a diagram that has the auction under it
constexpr double kNotesPart = 0.4;    // of the height: the most that notes take from the diagram
constexpr double kCallWidth = 4.5;    // of a column of the auction, as a multiple of its font
constexpr double kRow = 1.35;         // height of a row of the auction, the same
constexpr double kContractGap = 0.5;  // above the contract, the same
constexpr double kContractLines = kContractGap + 2 * kLineHeight;  // contract and lead

/// Fonts of 7.5 to 13 points, as the cell is small or large.
double TextSize(QSizeF cell) {
  return std::clamp(std::sqrt(cell.width() * cell.height()) / 36, 7.5, 13.0);
}

double AuctionHeight(const PublishedBoard& published, double size) {
  const auto rows = static_cast<double>(CallRows(published.board).size());
  return ((rows + 1) * kRow + kContractLines) * size;
}

/// The auction as large as it fits `room`, at the most in `size`.
CallColumns ColumnsIn(const QRectF& room, const Board& board, std::size_t rows, double size,
                      const PrintStyle& style) {
  CallColumns columns;
  columns.row = std::min(kRow * size, room.height() / static_cast<double>(rows + 1));
  columns.column = std::min(kCallWidth * size, room.width() / kSeats);
  columns.size = std::min(size, columns.row / kLineHeight);
  for (std::size_t i = 0; i < kCallSeats.size(); ++i) {
    const Seat seat = kCallSeats.at(i);
    const bool vulnerable = IsVulnerable(board.Vulnerability(), SideOf(seat));
    columns.headings.at(i) = {ToQt(SeatLetter(seat)),
                              vulnerable ? style.Vulnerable() : style.Text()};
  }
  return columns;
}

/// Calls, contract and lead.
void PaintAuction(QPainter& painter, const PublishedBoard& published, const QRectF& room,
                  double size, const PrintStyle& style) {
  QRectF calls = room;
  calls.setBottom(room.bottom() - kContractLines * size);
  const auto rows = CallRows(published.board);
  const double end = PaintCalls(painter, calls.topLeft(), rows,
                                ColumnsIn(calls, published.board, rows.size(), size, style), style);
  QRectF line(room.left(), end + kContractGap * size, room.width(), kLineHeight * size);
  for (const std::string& text : ContractLines(published)) {
    if (line.bottom() > room.bottom() + kRounding) return;
    PaintLine(painter, line, ToQt(text), {.size = size, .bold = true, .colour = style.Text()},
              style);
    line.moveTop(line.bottom());
  }
}

/// Where the parts of a lesson stand.
struct Places {
  QRectF record;
  QRectF auction;
  QRectF notes;
};

/// A diagram is not wider than its font allows, so that it does not fall apart.
QRectF RecordIn(const QRectF& room, double largest) {
  QRectF record = room;
  const double size = std::min(RecordFontSize(room.size()), largest);
  record.setHeight(std::min(room.height(), size / RecordFontSize({1e6, 1})));
  record.setWidth(std::min(room.width(), 1.15 * size / RecordFontSize({1, 1e6})));
  return record;
}

Places PlaceLesson(const PublishedBoard& published, const LessonParts& parts, const QRectF& room,
                   double size) {
  const QString notes = parts.notes ? ToQt(published.notes) : QString();
  const double notesHeight =
      notes.isEmpty()
          ? 0
          : std::min(ParagraphHeight(notes, room.width(), size) + size, kNotesPart * room.height());
  const double auction = parts.auction ? AuctionHeight(published, size) : 0;
  QRectF above = room.adjusted(0, 0, 0, -notesHeight);
  QRectF left = above;
  if (parts.auction) left.setWidth(kBeside * room.width());
  const QRectF beside = RecordIn(left, kLargest * size);
  // Under the diagram the auction has all the width, but takes of the height.
  const QRectF under =
      RecordIn(above.adjusted(0, 0, 0, -std::min(auction, 0.5 * above.height())), kLargest * size);
  Places places;
  if (under.width() > kMuchLarger * beside.width()) {
    places.record = under;
    places.auction =
        QRectF(above.left(), under.bottom(), above.width(), above.bottom() - under.bottom());
    places.auction.setHeight(std::min(places.auction.height(), auction));
  } else {
    places.record = beside;
    places.auction = above;
    places.auction.setLeft(left.right() + size);
    places.auction.setTop(above.top() + size);
    places.auction.setHeight(
        std::min(places.auction.height(), std::max(auction, beside.height() - size)));
  }
  const double end = std::max(places.record.bottom(),
                              parts.auction ? places.auction.bottom() : places.record.bottom());
  places.notes = QRectF(room.left(), end + size / 2, room.width(), room.bottom() - end - size / 2);
  return places;
}

}  // namespace

void PaintLesson(QPainter& painter, const PublishedBoard& published, const LessonParts& parts,
                 const QRectF& cell, const PrintStyle& style) {
  const QRectF room = cell.adjusted(kPadding, kPadding, -kPadding, -kPadding);
  const double size = TextSize(cell.size());
  const Places places = PlaceLesson(published, parts, room, size);
  PaintRecord(
      painter, published,
      {.hands = parts.hands, .points = parts.points, .table = parts.table, .par = parts.par},
      places.record, style);
  if (parts.auction) PaintAuction(painter, published, places.auction, size, style);
  if (parts.notes) {
    PaintParagraph(painter, places.notes, ToQt(published.notes),
                   {.size = size, .colour = style.Text()});
  }
}

}  // namespace tricklet::ui
