#include "frequencies/library_frequencies.h"

#include <set>
#include <utility>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "library/library_scan.h"
#include "library/stored_boards.h"

namespace tricklet {
namespace {

std::string BoardsText(const std::set<int>& numbers, const std::string& one,
                       const std::string& several) {
  return (numbers.size() == 1 ? "Board " : "Boards ") + RangesText(numbers) + " " +
         (numbers.size() == 1 ? one : several);
}

struct Counted {
  DealTally deals;
  MakeableTally makeable;
  std::set<int> incomplete;
  std::set<int> withoutTable;
};

/// False when the person has cancelled.
bool Count(Session& session, Counted& counted) {
  CountHands(session);
  const WorkScope work(session.host);
  for (int number = kFirstBoardNumber; number <= session.library.lastBoard; ++number) {
    if (!session.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
    if (!session.host.Step("Reading board " + std::to_string(number), number,
                           session.library.lastBoard)) {
      return false;
    }
    const StoredBoard stored = ReadStoredBoard(session, number);
    if (!stored.complete) {
      counted.incomplete.insert(number);
      continue;
    }
    counted.deals.Add(stored.board.hands);
    if (stored.board.makeableValid) {
      counted.makeable.Add(stored.board.makeable);
    } else {
      counted.withoutTable.insert(number);
    }
  }
  return true;
}

}  // namespace

std::optional<LibraryTally> TallyLibrary(Session& session) {
  Counted counted;
  try {
    if (!Count(session, counted)) return std::nullopt;
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return std::nullopt;
  }
  if (counted.deals.deals == 0) {
    session.host.TellError("There are no complete deals in this library");
    return std::nullopt;
  }
  LibraryTally tally{counted.deals, counted.makeable, {}};
  if (!counted.incomplete.empty()) {
    tally.remarks.push_back(BoardsText(counted.incomplete, "is no complete deal and is left out",
                                       "are no complete deals and are left out"));
  }
  if (!counted.withoutTable.empty()) {
    tally.remarks.push_back(BoardsText(counted.withoutTable,
                                       "has no double-dummy table: its games are not counted",
                                       "have no double-dummy table: their games are not counted"));
  }
  return tally;
}

LibraryFrequencies FrequenciesOf(LibraryTally tally, const std::function<bool()>& goOn) {
  return {FrequenciesOf(tally.deals, tally.makeable, OrdinarinessOf(tally.deals, goOn)),
          std::move(tally.remarks)};
}

std::optional<LibraryFrequencies> CountLibrary(Session& session) {
  auto tally = TallyLibrary(session);
  if (!tally) return std::nullopt;
  return FrequenciesOf(std::move(*tally));
}

}  // namespace tricklet
