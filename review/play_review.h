// Where a play lost its tricks: every card of it against double-dummy play, which sees all hands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "core/recorded_play.h"

namespace tricklet {

struct ReviewedCard {
  Card card;
  Seat seat = Seat::North;
  int trick = 0;           ///< 0..12
  bool led = false;        ///< the first card of its trick
  bool wins = false;       ///< the trick; false in one that is not complete
  int declarerTricks = 0;  ///< what declarer can still end with after it, 0..13
  int given = 0;           ///< tricks that it gave to the other side, 0..13
  friend bool operator==(const ReviewedCard&, const ReviewedCard&) = default;
};

/// Tricks given away by a hand; dummy's are declarer's, who plays them.
struct GivenAway {
  std::optional<int> lead;  ///< in the opening lead; only of the hand that made it
  int play = 0;             ///< in all other cards
  int Total() const { return lead.value_or(0) + play; }
  friend bool operator==(const GivenAway&, const GivenAway&) = default;
};

struct PlayReview {
  Seat declarer = Seat::North;
  int needed = 0;                   ///< declarer's tricks that make the contract, 7..13
  int doubleDummy = 0;              ///< declarer's before the opening lead, 0..13
  std::vector<ReviewedCard> cards;  ///< those before the first illegal one, 0..52
  /// Who gave away what; dummy has nothing.
  PerSeat<GivenAway> given;
  /// Declarer's tricks as the record has them; nothing where it does not tell.
  std::optional<int> tricks;
  /// What declarer got by a claim beyond what could still be had (negative: less); 0 without one.
  int claimed = 0;
  /// Why the review ends early, a sentence for the person: "Card 17, the ♠5 by West, is against the
  /// rules: reviewed up to there". Empty where it does not.
  std::string remark;

  /// What declarer can end with after so many cards, 0..`cards.size()`.
  int TricksAfter(std::size_t cardsPlayed) const;
  /// The first card at or after `from` that gave tricks away, or the last before `from`; counted
  /// from 0. Nothing when there is none.
  std::optional<std::size_t> MistakeFrom(std::size_t from) const;
  std::optional<std::size_t> MistakeBefore(std::size_t from) const;
  friend bool operator==(const PlayReview&, const PlayReview&) = default;
};

/// Why there is nothing to review: no contract, hands that are not complete, no card. A sentence
/// for the person; empty when there is.
std::string WhyNoReview(const RecordedPlay& record);

/// What the solver is to be asked: the cards before the first illegal one. `record` can be
/// reviewed.
SolverPlay PlayToSolve(const RecordedPlay& record);

/// The review, from the solver's answer to `PlayToSolve(record)`.
PlayReview MakeReview(const RecordedPlay& record, const PlayTricks& tricks);

/// All of it. Nothing, with the reason in `failure`, where there is nothing to review or the solver
/// fails. May be called from any thread.
std::optional<PlayReview> ReviewPlay(Solver& solver, const RecordedPlay& record,
                                     std::string& failure);

/// Always shown with a review: "Double-dummy: every card seen."
inline constexpr const char* kDoubleDummyLabel = "Double-dummy: every card seen.";

}  // namespace tricklet
