#include "ui/print/board_picture.h"

#include <algorithm>

#include <QPainter>

#include "ui/print/diagram.h"
#include "ui/print/painted_calls.h"
#include "ui/print/print_style.h"
#include "ui/print/raster.h"
#include "ui/print/svg_page.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

// In points.
constexpr double kSize = 11;  // of the font
constexpr double kMargin = 9;
constexpr double kLine = kSize * kLineHeight;
constexpr double kSpace = kLine / 2;  // between hands, calls and foot

constexpr double kScreenDots = 96;  // to the inch

/// "North Ann · South Bob", "East Cy · West Di", of those who are known.
QStringList PlayersLines(const SeenBoard& seen) {
  QStringList lines;
  for (const Seat first : {Seat::North, Seat::East}) {
    QStringList pair;
    for (const Seat seat : {first, PartnerOf(first)}) {
      if (!seen.names[seat].empty()) pair += ToQt(SeatName[seat]) + u' ' + ToQt(seen.names[seat]);
    }
    if (!pair.isEmpty()) lines += pair.join(QStringLiteral(" \u00b7 "));
  }
  return lines;
}

QStringList FootLines(const SeenBoard& seen) {
  QStringList lines;
  for (const std::string& line : DiagramFoot(seen)) lines += ToQt(line);
  return lines + PlayersLines(seen);
}

HandsDiagram HandsOf(const SeenBoard& seen) {
  HandsDiagram hands = DiagramOf(seen.board);
  if (!IsStorable(hands.boardNumber)) {
    hands.boardNumber = 0;
    hands.vulnerability = Vulnerability::None;
  }
  hands.points.fill(std::nullopt);  // the table has its own way to tell them, or not
  for (const Seat seat : kAllSeats) hands.shown[seat] = HandSeen(seen, seat);
  if (seen.play) hands.trick = seen.play->trick;
  return hands;
}

CallColumns ColumnsOf(double width, const PrintStyle& style) {
  CallColumns columns{.headings = {}, .size = kSize, .row = kLine, .column = width / kSeats};
  for (std::size_t i = 0; i < kCallSeats.size(); ++i) {
    columns.headings.at(i) = {ToQt(SeatName[kCallSeats.at(i)]), style.Text()};
  }
  return columns;
}

}  // namespace

QSizeF BoardPictureSize(const SeenBoard& seen) {
  const QSizeF hands = DiagramSize(kSize);
  const auto rows = static_cast<double>(DiagramCalls(seen).size());
  const auto foot = static_cast<double>(FootLines(seen).size());
  const double calls = rows > 0 ? (rows + 1) * kLine + kSpace : 0;
  return {hands.width() + 2 * kMargin,
          hands.height() + kSpace + calls + foot * kLine + 2 * kMargin};
}

void PaintBoardPicture(QPainter& painter, const SeenBoard& seen, const PrintStyle& style) {
  // As paper, whatever lies under the picture where it is pasted.
  painter.fillRect(QRectF({}, BoardPictureSize(seen)), Qt::white);
  const QSizeF hands = DiagramSize(kSize);
  PaintDiagram(painter, HandsOf(seen), QRectF(QPointF(kMargin, kMargin), hands), style);
  double top = kMargin + hands.height() + kSpace;
  if (const auto calls = DiagramCalls(seen); !calls.empty()) {
    top = PaintCalls(painter, {kMargin, top}, calls, ColumnsOf(hands.width(), style), style);
    top += kSpace;
  }
  for (const QString& line : FootLines(seen)) {
    PaintLine(painter, QRectF(kMargin, top, hands.width(), kLine), line,
              {.size = kSize, .colour = style.Text()}, style);
    top += kLine;
  }
}

QImage BoardImage(const SeenBoard& seen, const PrintStyle& style, double scale) {
  return Raster(BoardPictureSize(seen), scale * kScreenDots,
                [&](QPainter& painter) { PaintBoardPicture(painter, seen, style); });
}

QByteArray BoardSvg(const SeenBoard& seen, const PrintStyle& style) {
  const auto heading = DiagramHeading(seen);
  SvgPage page(BoardPictureSize(seen), heading.empty() ? QString() : ToQt(heading.front()));
  QPainter painter(&page);
  PaintBoardPicture(painter, seen, style);
  painter.end();
  return page.Document();
}

}  // namespace tricklet::ui
