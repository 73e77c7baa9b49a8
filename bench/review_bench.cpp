// The review of plays of 52 cards, one by one, beside the solver library alone: its call for a
// play, of the same plays in memory.
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "analysis/solver_library.h"
#include "bench/bare_play.h"
#include "bench/measure.h"
#include "bench/random_board.h"
#include "bench/solver_call.h"
#include "core/trick.h"
#include "review/play_review.h"

namespace tricklet::bench {
namespace {

constexpr int kPlays = 12;
/// Each takes about a second.
constexpr int kSomeRepetitions = 7;

using AnalysePlay = std::int32_t(dds::BinaryDeal, dds::PlayedCards, dds::PlayOutcome*,
                                 std::int32_t);

/// Any of the legal cards.
Card AnyOf(const PerSuit<Holding>& legal, std::mt19937& random) {
  std::vector<Card> cards;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (legal[card.suit].Has(card.rank)) cards.push_back(card);
  }
  return cards[random() % cards.size()];
}

/// A random deal in 3NT, played at random to its end.
RecordedPlay RandomPlay(std::mt19937& random) {
  RecordedPlay record;
  record.board = RandomBoard(1, random);
  HandTable left = record.board.hands;
  Seat onPlay = SeatAfter(record.board.declarer);
  Trick trick;
  for (int i = 0; i < kCardsInPack; ++i) {
    const Card card = AnyOf(trick.LegalCards(left[onPlay]), random);
    record.cards.push_back(card);
    left[onPlay][card.suit].Remove(card.rank);
    trick.Add(card, onPlay, record.board.trumps);
    onPlay = trick.cardsInTrick == kSeats ? trick.trickWinner : SeatAfter(onPlay);
    trick.cardsInTrick %= kSeats;
  }
  return record;
}

/// The same plays for both.
struct Plays {
  Plays() {
    std::mt19937 random(16);
    for (int i = 0; i < kPlays; ++i) records.push_back(RandomPlay(random));
  }
  std::vector<RecordedPlay> records;
};

const std::vector<RecordedPlay>& Records() {
  static const Plays plays;
  return plays.records;
}

void PlayAloneFloor(benchmark::State& state) {
  AnalysePlay* call = SolverCall<AnalysePlay>("AnalysePlayBin");
  if (call == nullptr) {
    state.SkipWithError("the solver library has no call for plays");
    return;
  }
  std::vector<BarePlay> plays;
  for (const RecordedPlay& record : Records()) plays.push_back(ToBare(record));
  bool solved = true;
  Measure(
      state, [] {},
      [&] {
        for (const BarePlay& play : plays) {
          dds::PlayOutcome outcome{};
          solved = call(play.deal, play.cards, &outcome, 0) == dds::kNoFault && solved;
        }
      });
  if (!solved) state.SkipWithError("the solver library failed");
}

void ReviewPlays(benchmark::State& state) {
  static const auto solver = LoadSolver({});
  std::size_t cards = 0;
  Measure(
      state, [&] { cards = 0; },
      [&] {
        for (const RecordedPlay& record : Records()) {
          std::string failure;
          if (const auto review = ReviewPlay(*solver, record, failure)) {
            cards += review->cards.size();
          }
        }
      });
  if (cards != Records().size() * kCardsInPack) state.SkipWithError("not all plays are reviewed");
}

TRICKLET_BENCH_TIMES(PlayAloneFloor, kSomeRepetitions);
TRICKLET_BENCH_TIMES(ReviewPlays, kSomeRepetitions);

}  // namespace
}  // namespace tricklet::bench
