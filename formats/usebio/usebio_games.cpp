#include "formats/usebio/usebio_games.h"

#include <limits>
#include <utility>

#include "core/statistics.h"
#include "formats/lin/lin_record.h"

namespace tricklet {
namespace {

DealRank RankOfHands(const UsebioHands& hands) {
  FoundGame game;
  game.board.hands = hands.hands;
  NoteDealTroubles(game);
  if (hands.repeatsCard || game.troubles.Has(DealTrouble::Impossible)) return DealRank::Any;
  if (game.troubles.Has(DealTrouble::NoCards)) return DealRank::None;
  return game.troubles.None() ? DealRank::Complete : DealRank::Possible;
}

/// Gives the board the calls, and the contract that they lead to when `dealer` begins.
void SetCalls(const std::vector<Call>& calls, Seat dealer, FoundGame& game) {
  if (calls.size() > CallList::kCapacity) {
    game.troubles.Add(DealTrouble::OverlongAuction);
    return;
  }
  for (const Call call : calls) game.board.calls.Add(call);
  game.board.boardNumber = kFirstBoardNumber + IndexOf(dealer);
  GetContract(game.board);
  game.board.boardNumber = kFirstBoardNumber;
}

}  // namespace

std::size_t UsebioGames::Open(const BoardLabel& label, int line) {
  const auto known = byLabel_.find(label);
  if (known != byLabel_.end()) return known->second;
  boards_.emplace_back();
  boards_.back().label = label;
  boards_.back().line = line;
  if (!label.text.empty()) byLabel_.emplace(label, boards_.size() - 1);
  return boards_.size() - 1;
}

UsebioGames::DealKey UsebioGames::KeyOf(const HandTable& hands) {
  DealKey key{};
  std::size_t at = 0;
  for (const auto& hand : hands) {
    for (const Holding holding : hand) key.at(at++) = static_cast<std::uint16_t>(holding.Bits());
  }
  return key;
}

std::size_t UsebioGames::AddComplete(Board& board, Deal deal) {
  const auto [known, isNew] = board.known.try_emplace(KeyOf(deal.hands), board.complete.size());
  const std::size_t at = known->second;
  if (isNew) {
    board.complete.push_back(std::move(deal));
  } else if (deal.fromLin && !board.complete[at].fromLin) {
    board.complete[at] = std::move(deal);
  }
  return at;
}

bool UsebioGames::AddDeal(std::size_t board, const UsebioHands& hands) {
  Board& to = boards_[board];
  Deal deal;
  deal.rank = RankOfHands(hands);
  deal.hands = hands.hands;
  deal.repeatsCard = hands.repeatsCard;
  if (deal.rank == DealRank::Complete) {
    AddComplete(to, std::move(deal));
    return true;
  }
  to.badHands = true;
  if (deal.rank > to.best.rank) to.best = std::move(deal);
  return false;
}

void UsebioGames::AddLinTable(std::size_t board, std::string line) {
  Board& to = boards_[board];
  LinRecord record = ParseLinRecord(line);
  Deal deal{RankOf(record),    record.hands,  record.repeatsCard,     true,
            record.hasAuction, record.dealer, std::move(record.calls)};
  std::size_t at = 0;
  if (deal.rank == DealRank::Complete) {
    at = AddComplete(to, std::move(deal));
  } else if (deal.rank > to.best.rank) {
    to.best = std::move(deal);
  }
  to.tables.push_back({std::move(line), at});
}

void UsebioGames::AddTable(std::size_t board, std::string line, const HandTable* deal) {
  Board& to = boards_[board];
  const auto known = deal == nullptr ? to.known.end() : to.known.find(KeyOf(*deal));
  to.tables.push_back({std::move(line), known == to.known.end() ? 0 : known->second});
}

void UsebioGames::AddNote(std::size_t board, const std::string& note) {
  std::string& notes = boards_[board].notes;
  notes += (notes.empty() ? "" : "\n") + note;
}

/// An import reads auctions only if the first board's record has one.
bool UsebioGames::AuctionsCount() const {
  int first = std::numeric_limits<int>::max();
  bool count = true;
  for (const Board& board : boards_) {
    const Deal& deal = board.complete.empty() ? board.best : board.complete.front();
    const int number = board.label.number;
    if (!IsStorable(number) || number >= first) continue;
    if (!deal.fromLin || deal.rank < DealRank::Possible) continue;
    first = number;
    count = deal.hasAuction;
  }
  return count;
}

FoundGame UsebioGames::GameOf(const Board& board, const Deal& deal, bool auctions) {
  FoundGame game;
  game.label = board.label.text;
  game.number = board.label.number;
  game.line = board.line;
  game.board.hands = deal.hands;
  game.dealer = deal.dealer;
  if (deal.repeatsCard) {
    game.troubles.Add(DealTrouble::Impossible);
  } else {
    NoteDealTroubles(game);
  }
  if (auctions) SetCalls(deal.calls, deal.dealer.value_or(DealerOfBoard(game.number)), game);
  return game;
}

std::vector<FoundGame> UsebioGames::Games(std::vector<UnreadPart>& unread) {
  const bool auctions = AuctionsCount();
  std::vector<FoundGame> games;
  for (Board& board : boards_) {
    const std::size_t first = games.size();
    for (const Deal& deal : board.complete) games.push_back(GameOf(board, deal, auctions));
    if (board.complete.empty()) games.push_back(GameOf(board, board.best, auctions));
    if (board.badHands && !board.complete.empty()) {
      unread.push_back({board.line, board.label.text, "", "hands that are no complete deal"});
    }
    games[first].notes = std::move(board.notes);
    for (Table& table : board.tables) {
      games[first + table.deal].records.push_back(std::move(table.line));
    }
    const FoundGame& only = games.back();
    const bool empty =
        only.troubles.Has(DealTrouble::NoCards) && only.records.empty() && only.notes.empty();
    if (empty && games.size() == first + 1) games.pop_back();
  }
  return games;
}

}  // namespace tricklet
