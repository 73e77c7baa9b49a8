// What stands on the sheets, and where.
#include "ui/print/sheets.h"

#include <map>
#include <set>

#include <QRegularExpression>
#include <gtest/gtest.h>

#include "tests/ui/print/painted_boards.h"
#include "tests/ui/print/recorded_page.h"
#include "ui/print/diagram.h"
#include "ui/print/record_cell.h"
#include "ui/print/svg_page.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// "♠AKQ107" for every holding of a board, with how often it is there.
std::map<QString, int> HoldingsOf(const Published& published, std::size_t from, std::size_t to) {
  std::map<QString, int> holdings;
  for (std::size_t i = from; i < to; ++i) {
    for (const Seat seat : kAllSeats) {
      for (const Suit suit : kAllSuits) {
        const Holding holding = published.boards[i].board.hands[seat][suit];
        const QString ranks = ToQt(HoldingText(holding)).remove(u' ');
        ++holdings[ToQt(SuitSymbol[suit]) + (holding.Empty() ? QStringLiteral("—") : ranks)];
      }
    }
  }
  return holdings;
}

TEST(Sheets, ShowEveryHoldingOfEveryBoardWithinThePage) {
  const Published published = RandomBoards(36);
  for (const bool landscape : {false, true}) {
    for (const Paper paper : {Paper::A4, Paper::Letter}) {
      const Sheets sheets(published, {.perPage = 18, .paper = paper, .landscape = landscape});
      ASSERT_EQ(sheets.Pages(), 2);
      RecordedPage device;
      Paint(device, sheets, 1);
      std::map<QString, int> painted;
      for (const QString& line : device.Lines()) ++painted[line];
      for (const auto& [holding, count] : HoldingsOf(published, 18, 36))
        EXPECT_EQ(painted[holding], count) << FromQt(holding);
      const QRectF paperRect = sheets.Layout().fullRect(QPageLayout::Point);
      for (const RecordedText& text : device.Texts())
        EXPECT_TRUE(Within(paperRect.adjusted(18, 18, -18, -18), text.place)) << FromQt(text.text);
    }
  }
}

/// Deals that need the most room, one in each direction.
Board LongSuits(const char* hand) {
  Board board;
  board.boardNumber = 128;
  for (const Seat seat : kAllSeats) {
    std::string_view text = hand;
    GetHand(text, board.hands, seat);
  }
  return board;
}

TEST(Sheets, PaintNothingOutsideTheCell) {
  PublishedBoard published = RandomBoards(1).boards[0];
  const auto table = published.board.makeable;
  for (const char* hand : {"AKQJ1098765432", "-.AKQJ1098765432", "AKQJ1098.76542.3.-"}) {
    published.board = LongSuits(hand);
    published.board.makeable = table;
    published.board.makeableValid = true;
    for (const QSizeF size :
         {QSizeF(179, 123), QSizeF(131, 163), QSizeF(60, 200), QSizeF(300, 60)}) {
      const QRectF cell(QPointF(100, 100), size);
      RecordedPage device;
      QPainter painter(&device);
      PaintRecord(painter, published, {}, cell, {});
      painter.end();
      EXPECT_GT(device.Texts().size(), 40U);
      for (const RecordedText& text : device.Texts())
        EXPECT_TRUE(Within(cell, text.place)) << FromQt(text.text) << " " << hand;
      EXPECT_TRUE(Within(cell, device.Shapes()));
    }
  }
}

TEST(Diagram, LeavesHiddenHandsOut) {
  HandsDiagram diagram = DiagramOf(RandomBoards(1).boards[0].board);
  diagram.shown = {false, true, false, false};
  diagram.points.fill(std::nullopt);
  RecordedPage device;
  QPainter painter(&device);
  PaintDiagram(painter, diagram, QRectF(0, 0, 300, 300), {});
  painter.end();
  QString all;
  for (const RecordedText& text : device.Texts()) all += text.text;
  QString hand;
  for (const Suit suit : kAllSuits) {
    const QString ranks = ToQt(HoldingText(diagram.hands[Seat::East][suit])).remove(u' ');
    hand += ToQt(SuitSymbol[suit]) + (ranks.isEmpty() ? QStringLiteral("—") : ranks);
  }
  EXPECT_EQ(all.left(hand.size()), hand);
  EXPECT_EQ(all.count(ToQt("♠")), 1);
}

TEST(Sheets, AHandThatIsNotKnownIsNotPaintedAsFourVoids) {
  Published published = RandomBoards(1);
  published.boards[0].board.hands[Seat::East] = {};
  for (const SheetLayout layout : {SheetLayout::Records, SheetLayout::Lesson, SheetLayout::Slips}) {
    const Sheets sheets(published, {.layout = layout, .perPage = 4, .table = false, .par = false});
    int spades = 0;
    for (int page = 0; page < sheets.Pages(); ++page) {
      RecordedPage device;
      Paint(device, sheets, page);
      for (const RecordedText& text : device.Texts()) spades += text.text == ToQt("♠") ? 1 : 0;
    }
    EXPECT_EQ(spades, 3);
  }
}

TEST(Sheets, BlackPrintingHasNoOtherColour) {
  const Published published = RandomBoards(4);
  static const QRegularExpression colour(ToQt("#[0-9a-f]{6}"));
  for (const SheetLayout layout : {SheetLayout::Records, SheetLayout::Lesson, SheetLayout::Slips}) {
    SheetChoices choices{.layout = layout, .perPage = 4, .colours = false};
    SvgPage page({595, 842}, {});
    Paint(page, {published, choices}, 0);
    std::set<QString> colours;
    const QString document = QString::fromUtf8(page.Document());
    for (auto found = colour.globalMatch(document); found.hasNext();)
      colours.insert(found.next().captured());
    // A vulnerable side is white in a black box.
    std::set<QString> expected{ToQt("#000000")};
    if (layout != SheetLayout::Slips) expected.insert(ToQt("#ffffff"));
    EXPECT_EQ(colours, expected);
  }
}

TEST(Sheets, LongTitlesStayOnThePage) {
  for (const QString& title :
       {QString(200, u'W'), QString(200, QChar(0x4E2D)), QString(200, QChar(0x0634))}) {
    const std::string text = FromQt(title);
    const Sheets sheets(RandomBoards(1), {.title = text, .subtitle = text});
    RecordedPage device;
    Paint(device, sheets, 0);
    for (const RecordedText& each : device.Texts()) {
      EXPECT_GE(each.place.left(), 18);
      EXPECT_LE(each.place.right(), 595 - 18);
    }
  }
}

}  // namespace
}  // namespace tricklet::ui
