#include "library/loss_text.h"

#include <set>
#include <vector>

#include "core/bounded_list.h"
#include "library/board_file.h"
#include "library/library_scan.h"

namespace tricklet {
namespace {

/// The board as its file held it when it was last read or stored; an empty board without one.
Board StoredBoard(const Session& session) {
  Board stored;
  stored.boardNumber = session.board.boardNumber;
  const SeenFile& seen = session.seenFile;
  const bool ours = seen.path == session.BoardPath(stored.boardNumber);
  if (ours && seen.bytes) ReadBoardText(*seen.bytes, stored, TableReading::Always);
  return stored;
}

/// "deal, auction and table", with `article` before each.
std::string Joined(const std::vector<std::string>& things, const std::string& article) {
  std::string text;
  for (std::size_t i = 0; i < things.size(); ++i) {
    if (i > 0) text += i + 1 == things.size() ? " and " : ", ";
    text += article + things[i];
  }
  return text;
}

struct Difference {
  bool deal;
  bool auction;
};

Difference DifferenceOf(const Board& stored, const Board& shown) {
  return {.deal = stored.hands != shown.hands, .auction = !(stored.calls == shown.calls)};
}

}  // namespace

std::string BoardsAtStake(const LibraryState& library, int first, int last,
                          const std::string& fate) {
  const std::set<int> numbers = BoardsIn(library, first, last);
  if (numbers.empty()) return "";
  return std::to_string(numbers.size()) + (numbers.size() == 1 ? " board " : " boards ") + fate +
         ": " + RangesText(numbers) + ".";
}

std::string FateOfReplaced(const Settings& settings) {
  return settings.recycleReplaced ? " What is replaced goes to the recycle bin."
                                  : " What is replaced cannot be brought back.";
}

std::string UnsavedText(const Session& session) {
  const auto [deal, auction] = DifferenceOf(StoredBoard(session), session.board);
  std::vector<std::string> things;
  if (deal) things.emplace_back("deal");
  if (auction) things.emplace_back("auction");
  if (things.empty()) return "";
  return "Not saved: " + Joined(things, "the ") + ".";
}

std::string ReplacedText(const Session& session) {
  const Board stored = StoredBoard(session);
  const auto [deal, auction] = DifferenceOf(stored, session.board);
  std::vector<std::string> things;
  if (deal && HasCards(stored.hands)) things.emplace_back("deal");
  if (auction && stored.NumCalls() > 0) things.emplace_back("auction");
  if (things.empty()) return "";
  return "The stored " + Joined(things, "") + " would be replaced.";
}

}  // namespace tricklet
