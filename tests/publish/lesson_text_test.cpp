#include "publish/lesson_text.h"

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(LessonText, WhatIsLeftOutIsAmongTheAnswersAndNothingElseTellsOfIt) {
  SheetChoices choices{.layout = SheetLayout::Lesson};
  EXPECT_EQ(
      LessonPartsOf(choices),
      (LessonParts{.points = true, .table = true, .par = true, .auction = true, .notes = true}));
  choices.hands = SeatsOf("NE").value();
  choices.notes = false;
  EXPECT_EQ(LessonPartsOf(choices),
            (LessonParts{.hands = {true, true, false, false}, .auction = true}));
  EXPECT_EQ(AnswerPartsOf(choices),
            (LessonParts{.points = true, .table = true, .par = true, .notes = true}));
}

TEST(LessonText, TheLeadIsThatOfATableWithTheContractOfTheBoard) {
  PublishedBoard published;
  Board& board = published.board;
  for (const char* call : {"1S", "Pass", "4S", "Pass", "Pass", "Pass"})
    board.calls.Add(Call::FromText(call).value());
  GetContract(board);
  const Card held{Suit::Hearts, Rank::King};
  AddCard(board.hands, held, Seat::East);
  const auto add = [&](const char* contract, Seat declarer, std::optional<Card> lead) {
    TravellerRow& row = published.traveller.rows.emplace_back();
    row.contract = contract;
    row.declarer = declarer;
    row.lead = lead;
  };
  add("3NT", Seat::North, held);
  add("4S", Seat::South, held);
  add("4S", Seat::North, std::nullopt);
  add("4S", Seat::North, Card{Suit::Clubs, Rank::Ace});  // which East does not hold
  EXPECT_EQ(ContractLines(published), std::vector<std::string>{"4♠ by North"});
  add("4S", Seat::North, held);
  EXPECT_EQ(ContractLines(published), (std::vector<std::string>{"4♠ by North", "Lead ♥K"}));
}

}  // namespace
}  // namespace tricklet
