// A session of 36 boards at 15 tables as a web page, beside escaping as many bytes as the page has.
#include "bench/club_session.h"
#include "bench/measure.h"
#include "formats/results/traveller.h"
#include "publish/web/json_writer.h"
#include "publish/web/web_page.h"

namespace tricklet::bench {
namespace {

constexpr int kBoards = 36;
constexpr int kTables = 15;

const Published& Evening() {
  static const Published evening = [] {
    const ClubSession session = RandomSession(kBoards, kTables, 1);
    Published published;
    published.results = session.results;
    for (const Board& board : session.boards) {
      PublishedBoard& one = published.boards.emplace_back();
      one.board = board;
      one.complete = true;
      one.traveller = MakeTraveller(session.results, board.boardNumber);
    }
    return published;
  }();
  return evening;
}

void EscapeWebPage(benchmark::State& state) {
  const std::string page = WebPage(Evening(), {"Evening", "", NamesShown::Full});
  std::string escaped;
  Measure(
      state, [&] { escaped.clear(); }, [&] { escaped = JsonString(page); });
  benchmark::DoNotOptimize(escaped);
}

void MakeWebPage(benchmark::State& state) {
  std::string page;
  Evening();
  Measure(
      state, [&] { page.clear(); },
      [&] {
        page = WebPage(Evening(), {"Evening", "", NamesShown::Full});
      });
  benchmark::DoNotOptimize(page);
}

TRICKLET_BENCH(EscapeWebPage);
TRICKLET_BENCH(MakeWebPage);

}  // namespace
}  // namespace tricklet::bench
