#include "ui/table/table_keys.h"

namespace tricklet::ui {
namespace {

std::optional<Suit> SuitOf(int key) {
  switch (key) {
    case Qt::Key_S:
      return Suit::Spades;
    case Qt::Key_H:
      return Suit::Hearts;
    case Qt::Key_D:
      return Suit::Diamonds;
    case Qt::Key_C:
      return Suit::Clubs;
    default:
      return std::nullopt;
  }
}

std::optional<Rank> RankOf(int key) {
  if (key >= Qt::Key_2 && key <= Qt::Key_9) {
    return static_cast<Rank>(IndexOf(Rank::Two) - (key - Qt::Key_2));
  }
  switch (key) {
    case Qt::Key_A:
      return Rank::Ace;
    case Qt::Key_K:
      return Rank::King;
    case Qt::Key_Q:
      return Rank::Queen;
    case Qt::Key_J:
      return Rank::Jack;
    case Qt::Key_T:
    case Qt::Key_1:
      return Rank::Ten;
    default:
      return std::nullopt;
  }
}

/// The suit that has all the legal cards.
std::optional<Suit> OnlySuit(const PerSuit<Holding>& legal) {
  std::optional<Suit> only;
  for (const Suit suit : kAllSuits) {
    if (legal[suit].Empty()) continue;
    if (only) return std::nullopt;
    only = suit;
  }
  return only;
}

}  // namespace

TableKeys::Answer TableKeys::Press(int key, Qt::KeyboardModifiers modifiers,
                                   const PerSuit<Holding>& hand, const PerSuit<Holding>& legal) {
  constexpr Qt::KeyboardModifiers kHarmless = Qt::ShiftModifier | Qt::KeypadModifier;
  if ((modifiers & ~kHarmless) != 0) return {};
  const bool restOfTen = one_ && key == Qt::Key_0;
  one_ = false;
  if (restOfTen) return {true, std::nullopt};
  if (key == Qt::Key_Escape) {
    const bool halfTyped = suit_.has_value();
    suit_.reset();
    return {halfTyped, std::nullopt};
  }
  if (const auto suit = SuitOf(key)) {
    if (hand[*suit].Empty()) return {};
    suit_ = suit;
    return {true, std::nullopt};
  }
  const auto rank = RankOf(key);
  const auto suit = suit_ ? suit_ : OnlySuit(legal);
  if (!rank || !suit || !hand[*suit].Has(*rank)) return {};
  suit_.reset();
  one_ = key == Qt::Key_1;
  return {true, Card{*suit, *rank}};
}

bool TableKeys::WouldTake(int key, Qt::KeyboardModifiers modifiers, const PerSuit<Holding>& hand,
                          const PerSuit<Holding>& legal) const {
  return TableKeys(*this).Press(key, modifiers, hand, legal).ours;
}

}  // namespace tricklet::ui
