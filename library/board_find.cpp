#include "library/board_find.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "core/scoring.h"
#include "core/text.h"

namespace tricklet {
namespace {

using Contract = std::pair<int, Strain>;  // level and trumps

std::optional<Contract> ContractOf(const ListedBoard& board) {
  if (!board.summary || board.summary->contractLevel == 0) return std::nullopt;
  return Contract{board.summary->contractLevel, board.summary->trumps};
}

template <Doubling kDoubling>
bool IsDoubled(const ListedBoard& board) {
  return board.summary && board.summary->contractLevel > 0 &&
         DoublingOf(board.summary->contract) == kDoubling;
}

bool IsPassedOut(const ListedBoard& board) {
  return board.summary && board.summary->contract == kAllPass;
}

/// The contract's tricks count 100 points or more (Laws of Duplicate Bridge, 77), doubling aside.
bool IsGame(const Contract& contract) {
  const auto [level, trumps] = contract;
  const bool minor = trumps == Strain::Diamonds || trumps == Strain::Clubs;
  return level >= (trumps == Strain::NoTrump ? 3 : minor ? 5 : 4);
}

bool IsSlam(const Contract& contract) {
  return contract.first >= 6;
}

struct Word {
  std::string_view text;
  bool (*fits)(const ListedBoard&);
};

template <Seat kSeat>
bool IsDealtBy(const ListedBoard& board) {
  return DealerOfBoard(board.boardNumber) == kSeat;
}

template <Vulnerability kVulnerability>
bool IsOf(const ListedBoard& board) {
  return VulOfBoard(board.boardNumber) == kVulnerability;
}

template <Strain kStrain>
bool IsIn(const ListedBoard& board) {
  const auto contract = ContractOf(board);
  return contract && contract->second == kStrain;
}

template <bool (*kHolds)(const Contract&), bool kWanted = true>
bool IsWorth(const ListedBoard& board) {
  const auto contract = ContractOf(board);
  return contract && kHolds(*contract) == kWanted;
}

/// Of several that a word cut short may stand for, the first is taken.
constexpr std::array kWords{
    Word{"north", IsDealtBy<Seat::North>},
    Word{"east", IsDealtBy<Seat::East>},
    Word{"south", IsDealtBy<Seat::South>},
    Word{"west", IsDealtBy<Seat::West>},
    Word{"none", IsOf<Vulnerability::None>},
    Word{"ns", IsOf<Vulnerability::NorthSouth>},
    Word{"ew", IsOf<Vulnerability::EastWest>},
    Word{"all", IsOf<Vulnerability::All>},
    Word{"spades", IsIn<Strain::Spades>},
    Word{"hearts", IsIn<Strain::Hearts>},
    Word{"diamonds", IsIn<Strain::Diamonds>},
    Word{"clubs", IsIn<Strain::Clubs>},
    Word{"nt", IsIn<Strain::NoTrump>},
    Word{"notrump", IsIn<Strain::NoTrump>},
    Word{"part", IsWorth<IsGame, false>},
    Word{"game", IsWorth<IsGame>},
    Word{"slam", IsWorth<IsSlam>},
    Word{"doubled", IsDoubled<Doubling::Doubled>},
    Word{"redoubled", IsDoubled<Doubling::Redoubled>},
    Word{"passed", IsPassedOut},
    Word{"bid", [](const ListedBoard& b) { return ContractOf(b) || IsPassedOut(b); }},
    Word{"played", [](const ListedBoard& b) { return b.HasResult(); }},
    Word{"unplayed", [](const ListedBoard& b) { return !b.HasResult(); }},
    Word{"empty", [](const ListedBoard& b) { return b.Empty(); }},
    Word{"dealt", [](const ListedBoard& b) { return b.summary && b.summary->dealt; }},
    Word{"changed", [](const ListedBoard& b) { return b.changed; }},
};

/// "7" or "5-12"; "5-" is 5 and all that follow.
std::optional<std::pair<int, int>> RangeOf(std::string_view word) {
  const auto dash = word.find('-');
  const auto first = NumberFromText(word.substr(0, dash));
  if (!first || *first < 0) return std::nullopt;
  if (dash == std::string_view::npos) return std::pair{*first, *first};
  if (dash + 1 == word.size()) return std::pair{*first, kLastBoardNumber};
  const auto last = NumberFromText(word.substr(dash + 1));
  if (!last) return std::nullopt;
  return std::pair{*first, *last};
}

}  // namespace

BoardQuery::BoardQuery(std::string_view text) {
  while (!(text = Trim(text)).empty()) {
    const auto end = std::min(text.find_first_of(" \t"), text.size());
    words_.push_back(TestOf(text.substr(0, end)));
    text.remove_prefix(end);
  }
}

BoardQuery::Test BoardQuery::TestOf(std::string_view word) {
  if (const auto range = RangeOf(word)) {
    return [range](const ListedBoard& board) {
      return board.boardNumber >= range->first && board.boardNumber <= range->second;
    };
  }
  if (Board wanted; SetContract(wanted, word)) {
    const Doubling doubling = DoublingOf(wanted.contract);
    return [contract = Contract{wanted.contractLevel, wanted.trumps}, doubling](const auto& board) {
      return board.summary && ContractOf(board) == contract &&
             (doubling == Doubling::Undoubled || DoublingOf(board.summary->contract) == doubling);
    };
  }
  const auto begins = [word](const Word& known) {
    return word.size() <= known.text.size() && EqualNoCase(known.text.substr(0, word.size()), word);
  };
  const auto* const found = std::find_if(kWords.begin(), kWords.end(), begins);
  if (found == kWords.end()) return [](const ListedBoard&) { return false; };
  return found->fits;
}

bool BoardQuery::Knows(std::string_view word) {
  Board wanted;
  return RangeOf(word) || SetContract(wanted, word) ||
         std::any_of(kWords.begin(), kWords.end(),
                     [word](const Word& known) { return EqualNoCase(known.text, word); });
}

bool BoardQuery::Matches(const ListedBoard& board) const {
  return std::all_of(words_.begin(), words_.end(), [&](const Test& fits) { return fits(board); });
}

}  // namespace tricklet
