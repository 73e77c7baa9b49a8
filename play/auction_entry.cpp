#include "play/auction_entry.h"

namespace tricklet {
namespace {

constexpr int kNoMoreBids = Call::kBids;
constexpr int kPassesAfterABid = 3;
constexpr int kPassesWithoutABid = 4;

/// The grid's limit: it is tied to the position in the grid, so it comes a few calls early when the
/// dealer is not North.
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
  state_.CallIndex = FirstCallIndex(board.Dealer());
  snapshots_[0] = state_;
  Replay(board.Calls);
}

void AuctionEntry::Replay(const CallList& stored) {
  int number = 0;
  for (const Call call : stored) {
    ++number;
    if (Make(call)) continue;
    if (AtLimit()) return;  // which has been told
    host_.Tell("The auction of this board breaks the rules at call " + std::to_string(number) +
               " (" + call.Text() + " by " + std::string(SeatName[ToCall()]) +
               ").\nOnly the calls before it are shown.");
    return;
  }
}

bool AuctionEntry::OKEnabled() const {
  return state_.OKEnabled || (calls_.Empty() && !board_.Calls.Empty());
}

bool AuctionEntry::AtLimit() const {
  return state_.CallIndex == kCallIndexLimit || calls_.Full();
}

bool AuctionEntry::CheckLimit() {
  if (!AtLimit()) return false;
  host_.Tell("Bid limit has been reached");
  return true;
}

void AuctionEntry::EnableBids(int index) {
  state_.LastBid = index;
}

void AuctionEntry::AddCall(Call call) {
  ++state_.CallsMade;
  ++state_.CallIndex;
  calls_.Add(call);
}

void AuctionEntry::Remember() {
  snapshots_.at(static_cast<std::size_t>(state_.CallsMade)) = state_;
}

void AuctionEntry::Bid(int index) {
  if (!BidEnabled(index) || CheckLimit()) return;
  const auto strain = static_cast<BidStrain>(index % kStrains);
  const Seat bidder = ToCall();
  state_.Strain = strain;
  state_.BidLevel = index / kStrains + 1;
  state_.BidderSeat = bidder;
  auto& namer = state_.FirstNamer[SideOf(bidder)][strain];
  if (!namer) namer = bidder;
  EnableBids(index);
  AddCall(Call::Bid(state_.BidLevel, strain));
  state_.SideToDouble = SideToCall(state_.CallsMade);
  state_.DblEnabled = true;
  state_.RdbEnabled = false;
  state_.OKEnabled = false;
  state_.Doubled = state_.Redoubled = false;
  state_.Passes = 0;
  Remember();
}

void AuctionEntry::pass() {
  if (!PassEnabled() || CheckLimit()) return;
  AddCall(Call::Pass());
  const bool opponents = SideToCall(state_.CallsMade) == state_.SideToDouble;
  state_.DblEnabled = opponents && !state_.Doubled;
  state_.RdbEnabled = !opponents && state_.Doubled && !state_.Redoubled;
  ++state_.Passes;
  const bool bidMade = state_.SideToDouble >= 1;
  if (state_.Passes == kPassesWithoutABid || (state_.Passes == kPassesAfterABid && bidMade)) {
    EnableBids(kNoMoreBids);
    state_.DblEnabled = state_.RdbEnabled = state_.PassEnabled = false;
    state_.OKEnabled = true;
  }
  Remember();
}

void AuctionEntry::AllPass() {
  while (PassEnabled()) {
    const int before = state_.CallsMade;
    pass();
    if (state_.CallsMade == before) return;  // the limit
  }
}

void AuctionEntry::CallDbl() {
  if (!DblEnabled() || CheckLimit()) return;
  AddCall(Call::Double());
  state_.Doubled = true;
  state_.Passes = 0;
  state_.DblEnabled = false;
  state_.RdbEnabled = true;
  state_.OKEnabled = false;
  Remember();
}

void AuctionEntry::CallRdb() {
  if (!RdbEnabled() || CheckLimit()) return;
  AddCall(Call::Redouble());
  state_.Redoubled = true;
  state_.Passes = 0;
  state_.DblEnabled = state_.RdbEnabled = false;
  state_.OKEnabled = false;
  Remember();
}

bool AuctionEntry::Make(Call call) {
  const int before = state_.CallsMade;
  if (call.IsPass()) {
    pass();
  } else if (call.IsDouble()) {
    CallDbl();
  } else if (call.IsRedouble()) {
    CallRdb();
  } else {
    Bid(call.BidIndex());
  }
  return state_.CallsMade > before;
}

void AuctionEntry::UnCall() {
  if (!UndoEnabled()) return;
  calls_.RemoveLast();
  state_ = snapshots_.at(static_cast<std::size_t>(state_.CallsMade - 1));
}

void AuctionEntry::Clear() {
  while (UndoEnabled()) UnCall();
}

bool AuctionEntry::OK() {
  if (!OKEnabled()) return false;
  const bool changed = !(calls_ == board_.Calls);
  board_.Calls = calls_;
  board_.PlayMode = false;
  board_.HandChanged = board_.HandChanged || changed;
  CommitContract();
  return true;
}

void AuctionEntry::CommitContract() {
  board_.Contract.clear();
  board_.ContractLevel = 0;
  if (calls_.Count() == kPassesWithoutABid && calls_[0].IsPass()) {
    board_.Contract = kAllPass;
  } else if (state_.Strain) {
    const BidStrain strain = *state_.Strain;
    const std::string doubling = state_.Redoubled ? "xx" : state_.Doubled ? "x" : "";
    board_.ContractLevel = state_.BidLevel;
    board_.Contract = Call::Bid(state_.BidLevel, strain).Text() + doubling;
    board_.Declarer =
        state_.FirstNamer[SideOf(state_.BidderSeat)][strain].value_or(state_.BidderSeat);
    board_.Trumps = ToStrain(strain);
  }
}

bool AuctionEntry::Cancel() {
  return host_.Ask("Any bidding changes will be lost", std::string(kProgramName),
                   Buttons::OKCancel) == Answer::OK;
}

}  // namespace tricklet
