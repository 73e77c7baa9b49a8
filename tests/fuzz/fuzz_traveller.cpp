// Any bytes as the results of a library: travellers may come of them, and every record can be
// stepped through from its first card to its last and back.
#include "bench/quiet_host.h"
#include "formats/results/ranking.h"
#include "formats/results/traveller.h"
#include "play/replay.h"
#include "tests/fuzz/checks.h"

namespace tricklet::fuzz {
namespace {

void StepThrough(const RecordedPlay& record) {
  bench::QuietHost host;
  Replay replay(record, host);
  while (replay.ForwardEnabled()) replay.NextTrick();
  Require(!replay.PlaceText().empty());
  static_cast<void>(replay.ScoreText());
  while (replay.BackEnabled()) replay.Back();
  Require(replay.Shown() == 0);
}

/// Nobody is ranked without a place, and every percentage is one.
void Rank(const LinFile& file) {
  const Ranking ranking = MakeRanking(file, MakeTravellers(file));
  Require(!ranking.tables.empty() || !ranking.notRanked.empty());
  for (const RankingTable& table : ranking.tables) {
    Require(table.entrants.size() >= 2);
    for (const RankedEntrant& one : table.entrants) {
      Require(one.place >= 1 && one.boards >= 1 && !one.TotalText().empty());
      Require(one.percentage >= 0 && one.percentage < 100.001);
    }
  }
}

}  // namespace

void Check(std::string_view bytes) {
  const LinFile file = ParseLinFile(bytes);
  Rank(file);
  for (const int boardNumber : {1, 2}) {
    for (const TravellerRow& row : MakeTraveller(file, boardNumber).rows) {
      Require(!ReadLinBidding(row).empty());
      StepThrough(row.record);
    }
  }
}

}  // namespace tricklet::fuzz
