#include "ui/print/board_picture.h"

#include <algorithm>

#include <QPainter>

#include "ui/print/diagram.h"
#include "ui/print/print_style.h"
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
constexpr double kPointsToInch = 72;
constexpr double kMetresToInch = 0.0254;

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

/// Paints the calls below `top` and returns where they end.
double PaintCalls(QPainter& painter, const SeenBoard& seen, double top, double width,
                  const PrintStyle& style) {
  const auto rows = DiagramCalls(seen);
  if (rows.empty()) return top;
  const double column = width / kSeats;
  const auto row = [&](const CallRow& texts, bool bold) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const QRectF place(kMargin + static_cast<double>(i) * column, top, column, kLine);
      PaintLine(painter, place, ToQt(texts.at(i)),
                {.size = kSize, .bold = bold, .colour = style.Text()}, style);
    }
    top += kLine;
  };
  row({"West", "North", "East", "South"}, true);
  for (const CallRow& texts : rows) row(texts, false);
  return top + kSpace;
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
  top = PaintCalls(painter, seen, top, hands.width(), style);
  for (const QString& line : FootLines(seen)) {
    PaintLine(painter, QRectF(kMargin, top, hands.width(), kLine), line,
              {.size = kSize, .colour = style.Text()}, style);
    top += kLine;
  }
}

QImage BoardImage(const SeenBoard& seen, const PrintStyle& style, double scale) {
  const double dots = scale * kScreenDots / kPointsToInch;
  QImage image((BoardPictureSize(seen) * dots).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);  // to the last dot
  const int perMetre = qRound(scale * kScreenDots / kMetresToInch);
  image.setDotsPerMeterX(perMetre);
  image.setDotsPerMeterY(perMetre);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(dots, dots);
  PaintBoardPicture(painter, seen, style);
  return image;
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
