// Which keys on the table play which card.
#include "ui/table/table_keys.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/hands.h"

namespace tricklet::ui {
namespace {

PerSuit<Holding> ToHand(std::string_view text) {
  return test::HandsOf("N:" + std::string(text) + " - - -")[Seat::North];
}

std::string Say(const TableKeys::Answer& answer) {
  if (!answer.card) return answer.ours ? "+" : "-";
  const Card card = *answer.card;
  return std::string(StrainLetter[ToStrain(card.suit)]) + std::string(RankText[card.rank]);
}

constexpr std::string_view kHand = "AQ10.K2.109.A7";

TEST(TableKeysTest, AnswersEachKeyInTurn) {
  const struct {
    std::string_view hand;
    std::string_view legal;
    std::string_view keys;  // '.' is Escape, '!' is Ctrl+A
    const char* expected;   // each key: "+" taken, "-" not ours, or the card
  } cases[] = {
      {kHand, kHand, "SADACA", "+ SA + - + CA"},
      {kHand, kHand, "SHK", "+ + HK"},  // the later suit counts
      {kHand, kHand, "STS1DT", "+ S10 + S10 + D10"},
      {kHand, kHand, "S10D10", "+ S10 + + D10 +"},
      {kHand, kHand, "0S100", "- + S10 + -"},
      {kHand, kHand, "A2K", "- - -"},  // several suits are legal
      {kHand, "AQ10...", "AQ102", "SA SQ S10 + -"},
      {kHand, "...A7", "SQ7", "+ SQ C7"},  // not legal: refused by the play
      {kHand, "...A7", "HQK", "+ - HK"},   // no queen of hearts is held
      {kHand, kHand, ".S.A", "- + + -"},
      {kHand, kHand, "S!A", "+ - SA"},
      {kHand, kHand, "XP8", "- - -"},
      {"AQ10..109.A7", kHand, "H", "-"},
  };
  for (const auto& [handText, legalText, typed, expected] : cases) {
    const PerSuit<Holding> hand = ToHand(handText);
    const PerSuit<Holding> legal = ToHand(legalText);
    TableKeys keys;
    std::string answers;
    for (const char character : typed) {
      int key = static_cast<unsigned char>(character);
      if (character == '.') key = Qt::Key_Escape;
      if (character == '!') key = Qt::Key_A;
      const auto modifiers = character == '!' ? Qt::KeyboardModifiers(Qt::ControlModifier)
                                              : Qt::ShiftModifier | Qt::KeypadModifier;
      const bool foretold = keys.WouldTake(key, modifiers, hand, legal);
      const TableKeys::Answer answer = keys.Press(key, modifiers, hand, legal);
      EXPECT_EQ(foretold, answer.ours) << typed << " at " << character;
      answers += (answers.empty() ? "" : " ") + Say(answer);
    }
    EXPECT_EQ(answers, expected) << handText << " " << typed;
  }
}

}  // namespace
}  // namespace tricklet::ui
