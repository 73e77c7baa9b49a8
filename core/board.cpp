#include "core/board.h"

#include <algorithm>

#include "core/text.h"

namespace tricklet {

int SeatHolding(const HandTable& hands, Card card) {
  for (const Seat seat : kAllSeats) {
    if (hands[seat][card.suit].Has(card.rank)) return IndexOf(seat);
  }
  return -1;
}

void AddCard(HandTable& hands, Card card, Seat seat) {
  hands[seat][card.suit].Add(card.rank);
}

bool IsPossible(const MakeableTable& table) {
  return std::all_of(table.begin(), table.end(), [](const auto& row) {
    return std::all_of(row.begin(), row.end(),
                       [](int tricks) { return tricks >= 0 && tricks <= kCardsInHand; });
  });
}

void GetHand(std::string_view& text, HandTable& hands, Seat seat) {
  const auto blank = text.find(' ');
  std::string_view hand = text.substr(0, blank);
  text = blank == std::string_view::npos ? std::string_view() : text.substr(blank + 1);
  for (const Suit suit : kAllSuits) {
    const auto dot = hand.find('.');
    hands[seat][suit] = AddSpace(hand.substr(0, dot));
    hand = dot == std::string_view::npos ? std::string_view() : hand.substr(dot + 1);
  }
}

int CardsIn(const PerSuit<Holding>& hand) {
  int cards = 0;
  for (const Holding holding : hand) cards += holding.Count();
  return cards;
}

bool IsComplete(const HandTable& hands) {
  PerSuit<Holding> dealt;
  for (const auto& hand : hands) {
    if (CardsIn(hand) != kCardsInHand) return false;
    for (const Suit suit : kAllSuits) dealt[suit] = dealt[suit] | hand[suit];
  }
  return CardsIn(dealt) == kCardsInPack;
}

bool HasCards(const PerSuit<Holding>& hand) {
  return std::any_of(hand.begin(), hand.end(), [](Holding holding) { return !holding.Empty(); });
}

bool HasCards(const HandTable& hands) {
  return std::any_of(hands.begin(), hands.end(),
                     [](const PerSuit<Holding>& hand) { return HasCards(hand); });
}

void GetContract(Board& board) {
  board.contract.clear();
  board.contractLevel = 0;
  PerSide<EnumArray<BidStrain, int, kStrains>> firstNamer;  // seat index, -1 when unset
  for (auto& strains : firstNamer) strains.fill(-1);
  bool doubled = false;
  bool redoubled = false;
  Call lastBid;
  Seat bidder = board.Dealer();
  Seat seat = board.Dealer();
  for (const Call call : board.calls) {
    if (call.IsDouble() || call.IsRedouble()) {
      doubled = call.IsDouble();
      redoubled = call.IsRedouble();
    } else if (call.IsBid()) {
      doubled = redoubled = false;
      lastBid = call;
      bidder = seat;
      int& namer = firstNamer[SideOf(seat)][call.Denomination()];
      if (namer < 0) namer = IndexOf(seat);
    }
    seat = SeatAfter(seat);
  }
  const bool allPasses =
      std::all_of(board.calls.begin(), board.calls.end(), [](Call call) { return call.IsPass(); });
  if (board.NumCalls() == kSeats && allPasses) {
    board.contract = kAllPass;
  } else if (lastBid.IsBid()) {
    board.contract = lastBid.Text() + (redoubled ? "xx" : doubled ? "x" : "");
    board.contractLevel = lastBid.Level();
    board.declarer = static_cast<Seat>(firstNamer[SideOf(bidder)][lastBid.Denomination()]);
    board.trumps = ToStrain(lastBid.Denomination());
  }
}

bool SetContract(Board& board, std::string_view text) {
  const std::string upper = ToUpper(text);
  const auto mark = upper.find_first_of("X*");
  const auto bid = Call::FromText(upper.substr(0, mark));
  if (!bid || !bid->IsBid()) return false;
  const std::string doubling = mark == std::string::npos ? "" : upper.substr(mark);
  if (doubling.size() > 2 || doubling.find_first_not_of("X*") != std::string::npos) return false;
  board.contractLevel = bid->Level();
  board.trumps = ToStrain(bid->Denomination());
  board.contract = bid->Text() + std::string(doubling.size(), 'x');
  return true;
}

std::string ContractLabel(const Board& board) {
  if (board.contract.empty() || board.contract == kAllPass) return board.contract;
  return board.contract + " by " + std::string(SeatName[board.declarer]);
}

void ClearAll(Board& board) {
  const int number = board.boardNumber;
  board = Board();
  board.boardNumber = number;
  board.handChanged = true;
}

}  // namespace tricklet
