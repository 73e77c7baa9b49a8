#include "formats/look/import_plan.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace tricklet {
namespace {

/// Which numbers are taken, in each of the libraries that an import fills.
class FreeNumbers {
 public:
  explicit FreeNumbers(const BoardsThere& there) : there_(there) {}

  bool IsTaken(int part, int number) const {
    const auto at = static_cast<std::size_t>(part);
    return at < taken_.size() && taken_[at].at(static_cast<std::size_t>(number));
  }
  void Take(int part, int number) {
    const auto at = static_cast<std::size_t>(part);
    if (at >= taken_.size()) taken_.resize(at + 1);
    taken_[at].at(static_cast<std::size_t>(number)) = true;
  }
  bool IsThere(int part, int number) const {
    return part == 0 && there_.at(static_cast<std::size_t>(number));
  }
  bool IsFree(int part, int number) const {
    return !IsTaken(part, number) && !IsThere(part, number);
  }

 private:
  const BoardsThere& there_;
  std::vector<BoardsThere> taken_;
};

struct Place {
  int part = 0;
  int number = 0;
};

/// A number for each kind of deal: by its dealer and its vulnerability, which may not be known.
class PerKind {
 public:
  int& operator[](const FoundGame& game) {
    const std::size_t dealer = game.dealer ? static_cast<std::size_t>(*game.dealer) + 1 : 0;
    const std::size_t vulnerable =
        game.vulnerability ? static_cast<std::size_t>(*game.vulnerability) + 1 : 0;
    return numbers_.at(dealer * kKinds + vulnerable);
  }

 private:
  static constexpr std::size_t kKinds = 5;
  std::array<int, kKinds * kKinds> numbers_{};
};

/// The number goes with the dealer and the vulnerability that the file gives.
bool Fits(const FoundGame& game, int number) {
  return (!game.dealer || *game.dealer == DealerOfBoard(number)) &&
         (!game.vulnerability || *game.vulnerability == VulOfBoard(number));
}

class Planner {
 public:
  Planner(const FileContents& contents, const ImportChoices& choices, const BoardsThere& there)
      : contents_(contents), choices_(choices), free_(there) {}

  ImportPlan Make() {
    if (choices_.section >= contents_.sections.size()) return {};
    GatherBoards();
    for (std::size_t at = 0; at < plan_.boards.size(); ++at) Judge(at);
    choices_.numbers == Numbering::From ? NumberInOrder() : NumberByThemselves();
    Sum();
    return std::move(plan_);
  }

 private:
  const std::vector<FoundGame>& Games() const { return contents_.sections[choices_.section].games; }
  const FoundGame& FirstOf(const PlannedBoard& board) const { return Games()[board.games.front()]; }

  /// The record that tells most of the deal's place: who deals.
  const FoundGame& DealerGameOf(const PlannedBoard& board) const {
    for (const std::size_t game : board.games) {
      if (Games()[game].dealer) return Games()[game];
    }
    return FirstOf(board);
  }

  /// Equal hands under one number are one board; results without a deal belong to the first deal of
  /// their number.
  void GatherBoards() {
    std::map<int, std::vector<std::size_t>> ofNumber;
    for (std::size_t at = 0; at < Games().size(); ++at) {
      const FoundGame& game = Games()[at];
      std::vector<std::size_t>* known = game.number > 0 ? &ofNumber[game.number] : nullptr;
      if (const auto board = known != nullptr ? SameDeal(game, *known) : std::nullopt) {
        plan_.boards[*board].games.push_back(at);
        continue;
      }
      if (known != nullptr) known->push_back(plan_.boards.size());
      plan_.boards.emplace_back().games.push_back(at);
    }
  }

  std::optional<std::size_t> SameDeal(const FoundGame& game,
                                      const std::vector<std::size_t>& boards) const {
    const bool noCards = game.troubles.Has(DealTrouble::NoCards);
    for (const std::size_t board : boards) {
      if (noCards || FirstOf(plan_.boards[board]).board.hands == game.board.hands) return board;
    }
    return std::nullopt;
  }

  /// Gives the board its fate where that does not depend on the other boards.
  void Judge(std::size_t at) {
    PlannedBoard& board = plan_.boards[at];
    const FoundGame& game = FirstOf(board);
    const int fault = choices_.skipBad || contents_.unread.empty() ? std::numeric_limits<int>::max()
                                                                   : contents_.unread.front().line;
    board.otherDealer = IsStorable(game.number) && !Fits(DealerGameOf(board), game.number);
    if (game.line >= fault) {
      board.fate = Fate::AfterFault;
    } else if (game.troubles.Has(DealTrouble::Impossible) &&
               (game.records.empty() || !choices_.keepResults)) {
      board.fate = Fate::Impossible;
    } else if (game.troubles.Has(DealTrouble::OutsideRange)) {
      board.fate = Fate::Outside;
    } else if (game.troubles.Has(DealTrouble::NoCards) && game.records.empty()) {
      board.fate = Fate::Empty;
    } else if (choices_.unwanted.contains(at)) {
      board.fate = Fate::Unwanted;
    }
  }

  bool MustFit() const { return choices_.dealer == DealerBy::File; }

  void PutAt(PlannedBoard& board, Place place, Fate fate) {
    board.fate = fate;
    board.part = place.part;
    board.number = place.number;
    board.replaces = free_.IsThere(place.part, place.number);
    free_.Take(place.part, place.number);
  }

  /// The first number from `from` on, in one library after another, of which `usable` says yes.
  template <class Usable>
  Place Find(Place from, const PlannedBoard& board, Usable usable) const {
    const FoundGame& game = DealerGameOf(board);
    for (;; ++from.part, from.number = kFirstBoardNumber) {
      for (; from.number <= kLastBoardNumber; ++from.number) {
        if (usable(from.part, from.number) && (!MustFit() || Fits(game, from.number))) return from;
      }
    }
  }

  /// The first free number from `number` on; before a further library is begun, the gaps of the
  /// first one are filled.
  Place FindFree(int number, const PlannedBoard& board) {
    const auto isFree = [this](int part, int free) { return free_.IsFree(part, free); };
    const auto isFreeHere = [&](int part, int free) { return part > 0 || isFree(part, free); };
    for (const int from : {number, kFirstBoardNumber}) {
      if (const Place place = Find({0, from}, board, isFreeHere); place.part == 0) return place;
    }
    // All numbers that fit such a deal are taken in the libraries before the one found last.
    int& open = openPart_[DealerGameOf(board)];
    const Place place = Find({std::max(open, 1), kFirstBoardNumber}, board, isFree);
    open = place.part;
    return place;
  }

  /// `Numbering::From`: one number after another, whatever the library has there.
  void NumberInOrder() {
    Place next{0, choices_.from};
    for (PlannedBoard& board : plan_.boards) {
      if (!IsStored(board.fate)) continue;
      const Place place = Find(next, board, [](int, int) { return true; });
      PutAt(board, place, FirstOf(board).number == place.number ? Fate::Stored : Fate::Moved);
      next = {place.part, place.number + 1};
    }
  }

  void NumberByThemselves() {
    std::vector<std::size_t> rest;
    std::map<int, std::size_t> holder;  // by number: the board that has it
    for (std::size_t at = 0; at < plan_.boards.size(); ++at) {
      PlannedBoard& board = plan_.boards[at];
      if (!IsStored(board.fate)) continue;
      const int number = FirstOf(board).number;
      if (!IsStorable(number)) {
        rest.push_back(at);
        continue;
      }
      highest_ = std::max(highest_, number);
      const auto [known, first] = holder.try_emplace(number, at);
      board.repeats = !first;
      if (board.otherDealer && MustFit()) {
        if (first) holder.erase(known);
        rest.push_back(at);
      } else if (first) {
        PutAt(board, {0, number}, Fate::Stored);
      } else {
        Repeat(at, known->second, rest);
      }
    }
    for (const std::size_t at : rest) PutNext(plan_.boards[at]);
  }

  /// Settles what becomes of the board at `at`, whose number the one at `before` has.
  void Repeat(std::size_t at, std::size_t& before, std::vector<std::size_t>& rest) {
    PlannedBoard& board = plan_.boards[at];
    if (choices_.numbers == Numbering::Next) {
      rest.push_back(at);
    } else if (choices_.numbers == Numbering::First) {
      board.fate = Fate::Repeated;
    } else {
      PlannedBoard& earlier = plan_.boards[std::exchange(before, at)];
      PutAt(board, {0, earlier.number}, Fate::Stored);
      earlier.fate = Fate::Replaced;
      earlier.replaces = false;
      earlier.number = 0;
    }
  }

  /// Gives the next free number to a board without one of its own.
  void PutNext(PlannedBoard& board) {
    const int own = FirstOf(board).number;
    const bool numbered = IsStorable(own);
    if (!numbered && choices_.numbers != Numbering::Next) {
      board.fate = Fate::NoNumber;
      return;
    }
    const int from = numbered && !board.repeats ? own : highest_ + 1;
    PutAt(board, FindFree(from, board), numbered ? Fate::Moved : Fate::Numbered);
  }

  void Sum() {
    for (const PlannedBoard& board : plan_.boards) {
      if (!IsStored(board.fate)) continue;
      ++plan_.stored;
      plan_.parts = std::max(plan_.parts, board.part + 1);
      for (const std::size_t game : board.games) {
        plan_.tables += static_cast<int>(Games()[game].records.size());
      }
    }
    if (!choices_.keepResults) plan_.tables = 0;
  }

  const FileContents& contents_;
  const ImportChoices& choices_;
  FreeNumbers free_;
  int highest_ = 0;  // number of the file that a library can hold
  PerKind openPart_;
  ImportPlan plan_;
};

}  // namespace

Board StorableBoard(const FoundGame& game, int boardNumber) {
  Board board = game.board;
  if (game.troubles.Has(DealTrouble::Impossible)) board = Board();
  board.boardNumber = boardNumber;
  GetContract(board);
  return board;
}

ImportChoices WithoutALook() {
  return {.numbers = Numbering::Keep,
          .dealer = DealerBy::Number,
          .skipBad = false,
          .keepResults = false,
          .unwanted = {},
          .newLibrary = {}};
}

bool IsWithoutALook(const ImportChoices& choices) {
  return choices.numbers == Numbering::Keep && choices.dealer == DealerBy::Number &&
         !choices.skipBad && !choices.keepResults && choices.section == 0 &&
         choices.unwanted.empty();
}

ImportPlan PlanImport(const FileContents& contents, const ImportChoices& choices,
                      const BoardsThere& there) {
  return Planner(contents, choices, there).Make();
}

}  // namespace tricklet
