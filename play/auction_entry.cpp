#include "play/auction_entry.h"

namespace tricklet {
namespace {

constexpr int kNoMoreBids = Call::kBids;
constexpr int kPassesAfterABid = 3;
constexpr int kPassesWithoutABid = 4;

/// The grid's limit: it is tied to the position in the grid, so it comes a call or two early when
/// the dealer is East or South.
constexpr int kCallIndexLimit = 100;

/// 1: the dealer's side is to call; 2: the other side is.
int SideToCall(int callsMade) {
  return callsMade % 2 + 1;
}

/// Where in the grid the dealer's call goes, less one: West -1, North 0, East 1, South 2.
int FirstCallIndex(Seat dealer) {
  return (IndexOf(dealer) + 1) % kSeats - 1;
}

}  // namespace

AuctionEntry::AuctionEntry(Board& board, Host& host) : board_(board), host_(host) {
  state_.callIndex = FirstCallIndex(board.Dealer());
  snapshots_[0] = state_;
  Replay(board.calls);
}

void AuctionEntry::Replay(const CallList& stored) {
  for (int i = 0; i < stored.Count(); ++i) {
    const bool read = !stored[i].IsUnread();
    if (read && Make(stored[i])) continue;
    if (read && AtLimit()) return;  // the message has been shown
    host_.Tell("The auction of this board breaks the rules at call " + std::to_string(i + 1) +
               " (" + stored.ShownAt(i) + " by " + std::string(SeatName[ToCall()]) +
               ").\nOnly the calls before it are shown.");
    return;
  }
}

bool AuctionEntry::OKEnabled() const {
  return state_.okEnabled || (calls_.Empty() && !board_.calls.Empty());
}

bool AuctionEntry::AtLimit() const {
  return state_.callIndex == kCallIndexLimit || calls_.Full();
}

bool AuctionEntry::CheckLimit() {
  if (!AtLimit()) return false;
  host_.Tell("Bid limit has been reached");
  return true;
}

void AuctionEntry::EnableBids(int index) {
  state_.lastBid = index;
}

void AuctionEntry::AddCall(Call call) {
  ++state_.callsMade;
  ++state_.callIndex;
  calls_.Add(call);
}

void AuctionEntry::Remember() {
  snapshots_.at(static_cast<std::size_t>(state_.callsMade)) = state_;
}

void AuctionEntry::Bid(int index) {
  if (!BidEnabled(index) || CheckLimit()) return;
  EnableBids(index);
  AddCall(Call::Bid(index / kStrains + 1, static_cast<BidStrain>(index % kStrains)));
  state_.sideToDouble = SideToCall(state_.callsMade);
  state_.dblEnabled = true;
  state_.rdbEnabled = false;
  state_.okEnabled = false;
  state_.doubled = state_.redoubled = false;
  state_.passes = 0;
  Remember();
}

void AuctionEntry::pass() {
  if (!PassEnabled() || CheckLimit()) return;
  AddCall(Call::Pass());
  const bool opponents = SideToCall(state_.callsMade) == state_.sideToDouble;
  state_.dblEnabled = opponents && !state_.doubled;
  state_.rdbEnabled = !opponents && state_.doubled && !state_.redoubled;
  ++state_.passes;
  const bool bidMade = state_.sideToDouble >= 1;
  if (state_.passes == kPassesWithoutABid || (state_.passes == kPassesAfterABid && bidMade)) {
    EnableBids(kNoMoreBids);
    state_.dblEnabled = state_.rdbEnabled = state_.passEnabled = false;
    state_.okEnabled = true;
  }
  Remember();
}

void AuctionEntry::AllPass() {
  while (PassEnabled()) {
    const int before = state_.callsMade;
    pass();
    if (state_.callsMade == before) return;  // the limit
  }
}

void AuctionEntry::CallDbl() {
  if (!DblEnabled() || CheckLimit()) return;
  AddCall(Call::Double());
  state_.doubled = true;
  state_.passes = 0;
  state_.dblEnabled = false;
  state_.rdbEnabled = true;
  state_.okEnabled = false;
  Remember();
}

void AuctionEntry::CallRdb() {
  if (!RdbEnabled() || CheckLimit()) return;
  AddCall(Call::Redouble());
  state_.redoubled = true;
  state_.passes = 0;
  state_.dblEnabled = state_.rdbEnabled = false;
  state_.okEnabled = false;
  Remember();
}

bool AuctionEntry::Make(Call call) {
  const int before = state_.callsMade;
  if (call.IsPass()) {
    pass();
  } else if (call.IsDouble()) {
    CallDbl();
  } else if (call.IsRedouble()) {
    CallRdb();
  } else {
    Bid(call.BidIndex());
  }
  return state_.callsMade > before;
}

void AuctionEntry::UnCall() {
  if (!UndoEnabled()) return;
  calls_.RemoveLast();
  state_ = snapshots_.at(static_cast<std::size_t>(state_.callsMade - 1));
}

void AuctionEntry::Clear() {
  while (UndoEnabled()) UnCall();
}

bool AuctionEntry::OK() {
  if (!OKEnabled()) return false;
  const bool changed = !(calls_ == board_.calls);
  board_.calls = calls_;
  board_.playMode = false;
  board_.handChanged = board_.handChanged || changed;
  GetContract(board_);
  return true;
}

std::string AuctionEntry::LossByCancel() const {
  if (calls_ == board_.calls) return "";
  const int kept = board_.NumCalls();
  return kept == 0 ? "The board keeps no auction."
                   : "The board keeps the auction that it had, of " + std::to_string(kept) +
                         (kept == 1 ? " call." : " calls.");
}

bool AuctionEntry::Cancel() {
  return host_.Ask({.text = "Any bidding changes will be lost",
                    .buttons = Buttons::OKCancel,
                    .safe = Answer::Cancel,
                    .detail = LossByCancel()}) == Answer::OK;
}

}  // namespace tricklet
