#include "publish/sheet_pages.h"

#include <gtest/gtest.h>

namespace tricklet {
namespace {

Published Boards(int first, int count) {
  Published published;
  for (int i = 0; i < count; ++i) {
    PublishedBoard one;
    one.board.boardNumber = first + i;
    published.boards.push_back(std::move(one));
  }
  return published;
}

SheetChoices Choices(SheetLayout layout, int perPage, const char* hands = "NESW") {
  SheetChoices choices{.layout = layout, .perPage = perPage};
  choices.hands = SeatsOf(hands).value();
  return choices;
}

TEST(SheetPages, HoldTheBoardsInTheirOrder) {
  using enum SheetLayout;
  const struct {
    SheetChoices choices;
    int boards;
    std::vector<const char*> headings;
  } rows[]{
      {Choices(Records, 18), 36, {"Hand records, boards 5 to 22", "Hand records, boards 23 to 40"}},
      {Choices(Records, 4), 5, {"Hand records, boards 5 to 8", "Hand records, board 9"}},
      {Choices(Lesson, 2), 2, {"Lesson, boards 5 to 6"}},
      {Choices(Lesson, 4, "N"),
       7,
       {"Lesson, boards 5 to 8", "Lesson, boards 9 to 11", "Answers, boards 5 to 10",
        "Answers, board 11"}},
      {Choices(Slips, 0),
       1,
       {"Deal slips of North, board 5", "Deal slips of East, board 5",
        "Deal slips of South, board 5", "Deal slips of West, board 5"}},
      {Choices(Records, 18), 0, {}},
  };
  for (const auto& row : rows) {
    const Published published = Boards(5, row.boards);
    const auto pages = PlanSheets(published, row.choices);
    ASSERT_EQ(pages.size(), row.headings.size());
    for (std::size_t i = 0; i < pages.size(); ++i) EXPECT_EQ(pages[i].heading, row.headings[i]);
  }
}

TEST(SheetPages, SlipsOfABoardAreTogetherOrWithTheirSeat) {
  SheetChoices choices = Choices(SheetLayout::Slips, 0);
  const Published published = Boards(1, 14);
  const auto bySeat = PlanSheets(published, choices);
  ASSERT_EQ(bySeat.size(), 8U);
  EXPECT_EQ(bySeat[3].items, (std::vector<SheetItem>{{12, Seat::East}, {13, Seat::East}}));
  choices.bySeat = false;
  const auto byBoard = PlanSheets(published, choices);
  ASSERT_EQ(byBoard.size(), 5U);
  EXPECT_EQ(byBoard[1].items[4], (SheetItem{4, Seat::North}));
  EXPECT_EQ(byBoard[1].heading, "Deal slips, boards 4 to 6");
}

TEST(SheetPages, ALessonHasAnswersWhereItLeavesHandsOut) {
  EXPECT_FALSE(HasAnswers(Choices(SheetLayout::Lesson, 2)));
  EXPECT_FALSE(HasAnswers(Choices(SheetLayout::Records, 18, "N")));
  SheetChoices choices = Choices(SheetLayout::Lesson, 2, "N");
  EXPECT_TRUE(HasAnswers(choices));
  choices.answers = false;
  EXPECT_FALSE(HasAnswers(choices));
}

TEST(SheetPages, SayWhatIsMissing) {
  EXPECT_EQ(WhyNothingToPrint({}, {}), kNothingToPublish);
  EXPECT_EQ(WhyNothingToPrint(Boards(1, 1), Choices(SheetLayout::Travellers, 0)),
            "There are no results of these boards");
  EXPECT_EQ(WhyNothingToPrint(Boards(1, 1), {}), "");
}

}  // namespace
}  // namespace tricklet
