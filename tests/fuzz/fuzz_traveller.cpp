// Any bytes as the results of a library: travellers may come of them, and every record can be
// stepped through from its first card to its last and back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "bench/quiet_host.h"
#include "formats/results/traveller.h"
#include "play/replay.h"

namespace {

void StepThrough(const tricklet::RecordedPlay& record) {
  tricklet::bench::QuietHost host;
  tricklet::Replay replay(record, host);
  while (replay.ForwardEnabled()) replay.NextTrick();
  if (replay.PlaceText().empty()) std::abort();
  static_cast<void>(replay.ScoreText());
  while (replay.BackEnabled()) replay.Back();
  if (replay.Shown() != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tricklet::LinFile file =
      tricklet::ParseLinFile({reinterpret_cast<const char*>(data), size});
  for (const int boardNumber : {1, 2}) {
    const tricklet::Traveller traveller = tricklet::MakeTraveller(file, boardNumber);
    for (const tricklet::TravellerRow& row : traveller.rows) {
      if (tricklet::ReadLinBidding(row).empty()) std::abort();
      StepThrough(row.record);
    }
  }
  return 0;
}
