#include "analysis/solve_plays.h"

#include <algorithm>

#include "core/trick.h"

namespace tricklet {
namespace {

/// Goes through a play, card by card.
class Positions {
 public:
  explicit Positions(const SolverPlay& play) : declarers_(SideOf(play.declarer)) {
    now_.trumps = play.trumps;
    now_.leader = onPlay_ = SeatAfter(play.declarer);
    now_.cardsLeft = play.hands;
  }

  const SolverPosition& Now() const { return now_; }
  bool DeclarersToPlay() const { return SideOf(onPlay_) == declarers_; }
  /// Tricks of the declaring side so far.
  int Won() const { return won_; }
  int TricksLeft() const { return kCardsInHand - played_; }

  void Play(Card card) {
    now_.cardsLeft[onPlay_][card.suit].Remove(card.rank);
    now_.trick.push_back(card);
    trick_.Add(card, onPlay_, now_.trumps);
    onPlay_ = SeatAfter(onPlay_);
    if (trick_.cardsInTrick < kSeats) return;
    now_.leader = onPlay_ = trick_.trickWinner;
    now_.trick.clear();
    trick_.cardsInTrick = 0;
    ++played_;
    if (SideOf(onPlay_) == declarers_) ++won_;
  }

 private:
  SolverPosition now_;
  Trick trick_;
  Seat onPlay_ = Seat::North;
  Side declarers_;
  int won_ = 0;
  int played_ = 0;
};

}  // namespace

std::string SolveByPositions(Solver& solver, const SolverPlay& play, PlayTricks& tricks) {
  tricks.clear();
  Positions positions(play);
  for (std::size_t i = 0; i <= play.cards.size(); ++i) {
    if (i > 0) positions.Play(play.cards[i - 1]);
    if (i > kCardsBeforeLastTrick) {
      tricks.push_back(tricks.back());
      continue;
    }
    const auto scores = solver.SolveCards(positions.Now());
    const auto best = std::max_element(
        scores.begin(), scores.end(),
        [](const CardScore& a, const CardScore& b) { return a.tricks < b.tricks; });
    if (best == scores.end()) return "The double-dummy solver gave no answer";
    tricks.push_back(positions.Won() + (positions.DeclarersToPlay()
                                            ? best->tricks
                                            : positions.TricksLeft() - best->tricks));
  }
  return {};
}

void Solver::SolveCardsOfAll(std::span<const SolverPosition> positions, CardsWanted /*wanted*/,
                             std::span<std::vector<CardScore>> scores) {
  for (std::size_t i = 0; i < positions.size(); ++i) scores[i] = SolveCards(positions[i]);
}

std::string Solver::SolvePlays(std::span<const SolverPlay> plays, std::span<PlayTricks> tricks) {
  for (std::size_t i = 0; i < plays.size(); ++i) {
    std::string failure = SolveByPositions(*this, plays[i], tricks[i]);
    if (!failure.empty()) return failure;
  }
  return {};
}

}  // namespace tricklet
