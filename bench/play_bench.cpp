// Playing a board with all its state, and taking it back.
#include <bit>
#include <random>

#include <benchmark/benchmark.h>

#include "bench/quiet_host.h"
#include "bench/random_board.h"
#include "play/card_play.h"

namespace tricklet::bench {
namespace {

/// A random deal in 3NT.
struct Table {
  Table() {
    std::mt19937 random(7);
    board = RandomBoard(1, random);
    play.Start();
  }

  /// Each hand plays its first legal card.
  void PlayAll() {
    while (!play.Finished()) {
      const PerSuit<Holding> legal = play.LegalCards();
      for (const Suit suit : kAllSuits) {
        if (legal[suit].Empty()) continue;
        play.Play({suit, static_cast<Rank>(std::countr_zero(legal[suit].Bits()))});
        break;
      }
    }
  }

  Board board;
  QuietHost host;
  NoTimer timer;
  CardPlay play{board, host, timer};
};

/// A card: its legality, the undo record, the winner, the count of tricks.
void PlayCards(benchmark::State& state) {
  Table table;
  for ([[maybe_unused]] auto _ : state) {
    table.play.Start();
    table.PlayAll();
  }
  state.SetItemsProcessed(state.iterations() * kCardsInPack);
}

void PlayAndTakeBackCards(benchmark::State& state) {
  Table table;
  for ([[maybe_unused]] auto _ : state) {
    table.PlayAll();
    while (table.play.UndoEnabled()) table.play.Undo();
  }
  if (table.play.Now().tricksPlayed != 0) state.SkipWithError("not all cards were taken back");
  state.SetItemsProcessed(state.iterations() * kCardsInPack);
}

BENCHMARK(PlayCards)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlayAndTakeBackCards)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tricklet::bench
