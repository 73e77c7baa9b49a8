// Lessons and deal slips.
#include <set>

#include <gtest/gtest.h>

#include "tests/ui/print/painted_boards.h"
#include "tests/ui/print/recorded_page.h"
#include "ui/print/lesson_cell.h"
#include "ui/print/paragraph.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

QString AllText(const RecordedPage& page) {
  QString all;
  for (const RecordedText& text : page.Texts()) all += text.text;
  return all;
}

TEST(Lesson, PaintsNothingOutsideTheCellHoweverLongItsTextsAre) {
  PublishedBoard published = RandomBoards(1).boards[0];
  for (const int calls : {0, 6, CallList::kCapacity}) {
    published.board.calls.Clear();
    for (int i = 0; i < calls; ++i) published.board.calls.Add(Call::Unread(), "Long before");
    for (const std::string& notes :
         {std::string(), std::string("Lead a trump."), std::string(5000, 'W'),
          FromQt(QString(300, QChar(0x4E2D)) + QString(300, QChar(0x0634)))}) {
      published.notes = notes;
      for (const QSizeF size : {QSizeF(539, 740), QSizeF(539, 370), QSizeF(269, 370),
                                QSizeF(392, 240), QSizeF(269, 240)}) {
        const QRectF cell(QPointF(10, 10), size);
        RecordedPage page;
        QPainter painter(&page);
        PaintLesson(painter, published,
                    {.points = true, .table = true, .par = true, .auction = true, .notes = true},
                    cell, {});
        painter.end();
        for (const RecordedText& text : page.Texts())
          EXPECT_TRUE(Within(cell, text.place)) << FromQt(text.text.left(40)) << size.width();
        EXPECT_EQ(AllText(page).contains(ToQt("Lead a trump.")), notes.starts_with("Lead"));
      }
    }
  }
}

TEST(Lesson, AHiddenHandIsPaintedOnTheAnswersAlone) {
  const Published published = RandomBoards(1);
  SheetChoices choices{.layout = SheetLayout::Lesson, .perPage = 2};
  choices.hands = SeatsOf("E").value();
  const Sheets sheets(published, choices);
  ASSERT_EQ(sheets.Pages(), 2);
  RecordedPage lesson;
  Paint(lesson, sheets, 0);
  RecordedPage answers;
  Paint(answers, sheets, 1);
  EXPECT_EQ(AllText(lesson).count(ToQt("♠")), 1);
  EXPECT_FALSE(AllText(lesson).contains(ToQt("Par")));
  EXPECT_GE(AllText(answers).count(ToQt("♠")), 5);  // four hands and the table
}

TEST(Paragraph, ShrinksBeforeItIsCutShort) {
  const QString text = ToQt("Words that are to be broken into lines. ").repeated(12).trimmed();
  const auto painted = [&](double height) {
    RecordedPage page;
    QPainter painter(&page);
    PaintParagraph(painter, QRectF(0, 0, 200, height), text, {.size = 10});
    painter.end();
    for (const RecordedText& line : page.Texts()) {
      EXPECT_LE(line.place.bottom(), height + 0.01);
      EXPECT_LE(line.place.right(), 200.01);
    }
    return AllText(page).remove(u' ');
  };
  const double needed = ParagraphHeight(text, 200, 10);
  EXPECT_EQ(painted(needed + 0.01), QString(text).remove(u' '));
  EXPECT_EQ(painted(needed * 0.7), QString(text).remove(u' '));
  EXPECT_TRUE(painted(needed * 0.3).endsWith(QChar(0x2026)));
}

TEST(Slips, ThereIsOneForEveryHand) {
  const Published published = RandomBoards(13);
  for (const bool bySeat : {true, false}) {
    const Sheets sheets(published, {.layout = SheetLayout::Slips, .bySeat = bySeat});
    std::multiset<QString> found;
    for (int page = 0; page < sheets.Pages(); ++page) {
      RecordedPage device;
      Paint(device, sheets, page);
      QString slip;  // number, seat, holdings
      for (const RecordedText& text : device.Texts()) {
        if (text.text == ToQt("North") || text.text == ToQt("East") || text.text == ToQt("South") ||
            text.text == ToQt("West"))
          found.insert(slip + text.text);
        slip = text.text;
      }
    }
    EXPECT_EQ(found.size(), 52U);
    EXPECT_EQ(std::set<QString>(found.begin(), found.end()).size(), 52U);
    EXPECT_EQ(found.count(ToQt("13West")), 1U);
  }
}

}  // namespace
}  // namespace tricklet::ui
