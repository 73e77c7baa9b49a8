// Cards played by keys: a suit and a rank, or a rank alone.
#pragma once

#include <optional>

#include <QKeyEvent>

#include "core/holding.h"
#include "core/notation.h"

namespace tricklet::ui {

/// Turns the keys of S, H, D and C and of the ranks (the ten as T, 1 or 10) into cards of the hand
/// on play. A rank needs no suit where all legal cards are of one suit.
class TableKeys {
 public:
  struct Answer {
    bool ours = false;  ///< false: the key is left to others
    std::optional<Card> card;
    friend bool operator==(const Answer&, const Answer&) = default;
  };

  /// `hand` is what the hand on play still holds, `legal` what of it may be played now. A card of
  /// the hand that is not legal is given when its suit was typed, so that it can be refused aloud.
  Answer Press(int key, Qt::KeyboardModifiers modifiers, const PerSuit<Holding>& hand,
               const PerSuit<Holding>& legal);
  /// Whether `Press` would take the key; types nothing.
  bool WouldTake(int key, Qt::KeyboardModifiers modifiers, const PerSuit<Holding>& hand,
                 const PerSuit<Holding>& legal) const;

  /// The suit that waits for its rank.
  std::optional<Suit> HalfTyped() const { return suit_; }
  void Forget() { suit_.reset(); }

 private:
  std::optional<Suit> suit_;
  bool one_ = false;  // the last key was a 1, so that a 0 belongs to it
};

}  // namespace tricklet::ui
