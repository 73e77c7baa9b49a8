// Travellers and rankings on paper.
#include "ui/print/traveller_sheets.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/ui/print/recorded_page.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Boards 1.. with a row for each of `names` and one more, in match points.
Published Session(int boards, const std::vector<std::string>& names) {
  Published published;
  published.results.boardScoringMethod = "MATCH_POINTS";
  for (int number = 1; number <= boards; ++number) {
    PublishedBoard one;
    one.board.boardNumber = number;
    one.traveller.boardNumber = number;
    one.traveller.scoring = "MP";
    for (const std::string& name : names) {
      TravellerRow row;
      row.score = static_cast<int>(one.traveller.rows.size()) * 10 - 50;
      row.contract = "3NTxx";
      row.players = {{name, name + "e", "South", "West"}};
      for (const Side side : {Side::NorthSouth, Side::EastWest}) {
        const auto seat = static_cast<Seat>(IndexOf(side));
        row.names[side] = row.players[seat] + " & " + row.players[PartnerOf(seat)];
      }
      one.traveller.rows.push_back(std::move(row));
    }
    published.boards.push_back(std::move(one));
  }
  return published;
}

/// The texts of all pages, each text within its page's room and above those that follow below.
QStringList PaintedTexts(const PageSource& pages, const QRectF& room) {
  QStringList texts;
  for (int page = 0; page < pages.Pages(); ++page) {
    RecordedPage device;
    QPainter painter(&device);
    pages.Paint(painter, room, page);
    painter.end();
    for (const RecordedText& text : device.Texts()) {
      EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(text.place)) << FromQt(text.text);
      texts += text.text;
    }
    EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(device.Shapes()));
  }
  return texts;
}

TEST(TravellerSheets, StayInTheirRoomWhateverTheNamesAre) {
  std::string arabic;
  std::string chinese;
  for (int i = 0; i < 50; ++i) arabic += "\u0645\u062d";
  for (int i = 0; i < 100; ++i) chinese += "\u6771\u65b9";
  const Published published =
      Session(5, {"Ann", arabic, chinese, std::string(200, 'W'), std::string(200, 'w') + " x & y"});
  for (const QSizeF size : {QSizeF(539, 740), QSizeF(780, 500), QSizeF(300, 200)}) {
    const auto pages = MakeTravellerPages(published, {}, size);
    EXPECT_GT(pages->Pages(), 1);
    EXPECT_TRUE(
        PaintedTexts(*pages, {QPointF(28, 60), size}).contains(QStringLiteral("Ann & South")));
  }
}

TEST(TravellerSheets, AreDividedBetweenTablesAndRepeatTheirHeadings) {
  const QSizeF size(539, 740);
  const QRectF room(QPointF(), size);
  std::vector<std::string> names(20);
  std::generate(names.begin(), names.end(),
                [pair = 0]() mutable { return "Pair" + std::to_string(pair++); });
  SheetChoices choices;
  choices.ranking = false;
  // 20 rows of 12 points with title and headings take 266 points, and the gap 14.
  auto pages = MakeTravellerPages(Session(5, names), choices, size);
  EXPECT_EQ(pages->Pages(), 3);
  EXPECT_EQ(FromQt(pages->Heading(0)), "Travellers, boards 1 to 2");
  EXPECT_EQ(FromQt(pages->Heading(2)), "Travellers, board 5");
  EXPECT_EQ(PaintedTexts(*pages, room).count(QStringLiteral("Contract")), 5);
  choices.ranking = true;
  pages = MakeTravellerPages(Session(5, names), choices, size);
  EXPECT_EQ(FromQt(pages->Heading(3)), "Ranking");
  names.resize(100, "Others");
  choices.ranking = false;
  pages = MakeTravellerPages(Session(1, names), choices, size);
  EXPECT_EQ(pages->Pages(), 2);
  const QStringList texts = PaintedTexts(*pages, room);
  EXPECT_EQ(texts.count(QStringLiteral("Contract")), 2);
  EXPECT_EQ(texts.count(QStringLiteral("3NTxx")), 100) << "each row once";
}

}  // namespace
}  // namespace tricklet::ui
