// Which keys on the table play which card.
#include "ui/table/table_keys.h"

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/board.h"

namespace tricklet::ui {
namespace {

PerSuit<Holding> ToHand(std::string_view text) {
  HandTable hands;
  GetHand(text, hands, Seat::North);
  return hands[Seat::North];
}

struct KeyCase {
  std::string_view hand;
  std::string_view legal;
  std::string_view keys;      // '.' is Escape, '!' is Ctrl+A
  std::string_view expected;  // each key: "+" taken, "-" not ours, or the card
  friend void PrintTo(const KeyCase& c, std::ostream* out) { *out << c.hand << " " << c.keys; }
};

std::string Say(const TableKeys::Answer& answer) {
  if (!answer.card) return answer.ours ? "+" : "-";
  const Card card = *answer.card;
  return std::string(StrainLetter[ToStrain(card.suit)]) + std::string(RankText[card.rank]);
}

class TableKeysTest : public testing::TestWithParam<KeyCase> {};

TEST_P(TableKeysTest, AnswersEachKeyInTurn) {
  const auto& [handText, legalText, typed, expected] = GetParam();
  const PerSuit<Holding> hand = ToHand(handText);
  const PerSuit<Holding> legal = ToHand(legalText);
  TableKeys keys;
  std::string answers;
  for (const char character : typed) {
    int key = static_cast<unsigned char>(character);
    if (character == '.') key = Qt::Key_Escape;
    if (character == '!') key = Qt::Key_A;
    const auto modifiers = character == '!' ? Qt::ControlModifier : Qt::NoModifier;
    const bool foretold = keys.WouldTake(key, modifiers, hand, legal);
    const TableKeys::Answer answer = keys.Press(key, modifiers, hand, legal);
    EXPECT_EQ(foretold, answer.ours) << character;
    answers += (answers.empty() ? "" : " ") + Say(answer);
  }
  EXPECT_EQ(answers, expected);
}

constexpr std::string_view kHand = "AQ10.K2.109.A7";
constexpr std::string_view kNone = "...";

INSTANTIATE_TEST_SUITE_P(
    Keys, TableKeysTest,
    testing::Values(KeyCase{kHand, kHand, "SADACA", "+ SA + - + CA"},
                    KeyCase{kHand, kHand, "SHK", "+ + HK"},  // the later suit counts
                    KeyCase{kHand, kHand, "STS1DT", "+ S10 + S10 + D10"},
                    KeyCase{kHand, kHand, "S10D10", "+ S10 + + D10 +"},
                    KeyCase{kHand, kHand, "0S100", "- + S10 + -"},
                    KeyCase{kHand, kHand, "A2K", "- - -"},  // several suits are legal
                    KeyCase{kHand, "AQ10...", "AQ102", "SA SQ S10 + -"},
                    KeyCase{kHand, "...A7", "7A", "C7 CA"},
                    KeyCase{kHand, "...A7", "SQ7", "+ SQ C7"},  // not legal: refused by the play
                    KeyCase{kHand, "...A7", "HQK", "+ - HK"},   // no queen of hearts is held
                    KeyCase{kHand, kHand, ".S.A", "- + + -"},
                    KeyCase{kHand, kHand, "S!A", "+ - SA"}, KeyCase{kHand, kHand, "XP8", "- - -"},
                    KeyCase{"AQ10..109.A7", kHand, "H", "-"},
                    KeyCase{kNone, kNone, "SA10.", "- - - - -"}));

TEST(TableKeysStateTest, TellsAndForgetsTheHalfTypedSuit) {
  const PerSuit<Holding> hand = ToHand(kHand);
  TableKeys keys;
  keys.Press(Qt::Key_D, Qt::ShiftModifier, hand, hand);
  EXPECT_EQ(keys.HalfTyped(), Suit::Diamonds);
  keys.Forget();
  EXPECT_EQ(keys.HalfTyped(), std::nullopt);
  EXPECT_FALSE(keys.Press(Qt::Key_9, Qt::KeypadModifier, hand, hand).ours);
}

}  // namespace
}  // namespace tricklet::ui
