// The rules of the auction dialog: which calls may be made, and what the finished auction means.
#pragma once

#include <array>

#include "core/board.h"
#include "core/host.h"

namespace tricklet {

/// Entering the auction of one board. The calls are the entry's own until `OK` hands them to the
/// board, so that the board keeps its auction whatever happens before that. Every call procedure
/// does nothing when its call is not legal; ask first what is enabled.
class AuctionEntry {
 public:
  /// What a call changes, and an undo brings back.
  struct State {
    int callIndex = 0;  ///< modulo 4: the seat to call, and the column of the last call (W N E S)
    int callsMade = 0;
    int sideToDouble = 0;  ///< opponents of the last bidder: 1 dealer's side, 2 the other; 0 none
    bool doubled = false;
    bool redoubled = false;
    int passes = 0;    ///< since the last bid, double or redouble
    int lastBid = -1;  ///< index of the last bid; -1 none; 35 when no bid can follow
    bool dblEnabled = false;
    bool rdbEnabled = false;
    bool passEnabled = true;
    bool okEnabled = false;
    friend bool operator==(const State&, const State&) = default;
  };

  /// Begins with the board's stored calls, up to the first that was not read or is not legal; that
  /// one is told.
  AuctionEntry(Board& board, Host& host);

  // The buttons.
  bool BidEnabled(int index) const { return index > state_.lastBid && index < Call::kBids; }
  bool DblEnabled() const { return state_.dblEnabled; }
  bool RdbEnabled() const { return state_.rdbEnabled; }
  bool PassEnabled() const { return state_.passEnabled; }
  bool AllPassEnabled() const { return state_.passEnabled; }
  bool UndoEnabled() const { return state_.callsMade > 0; }
  bool ClearEnabled() const { return UndoEnabled(); }
  /// The auction is complete; or it is empty and the board's is not, so that it can be taken away.
  bool OKEnabled() const;

  /// Bid `index`: (level - 1) * 5 + strain, 0..34.
  void Bid(int index);
  void pass();
  /// Passes until the auction is over.
  void AllPass();
  void CallDbl();
  void CallRdb();
  /// Makes any call; false, and nothing changed, when it is not legal now.
  bool Make(Call call);
  /// Takes back the last call.
  void UnCall();
  /// Takes back every call.
  void Clear();

  /// Commits: the board has these calls and their contract, play in progress ends, and the board
  /// counts as changed when its auction differs from before. False when not enabled.
  bool OK();
  /// Asks "Any bidding changes will be lost"; true when the person agrees. The board is unchanged.
  bool Cancel();

  const CallList& Calls() const { return calls_; }
  const State& Now() const { return state_; }
  /// The player to call (`BidColour` marks it).
  Seat ToCall() const { return static_cast<Seat>(static_cast<unsigned>(state_.callIndex) & 3U); }
  bool Over() const { return !state_.passEnabled; }
  /// The auction is as long as it can be: one more call is refused with a message.
  bool AtLimit() const;

 private:
  /// What `Cancel` would lose; empty when that is nothing.
  std::string LossByCancel() const;
  void EnableBids(int index);
  void AddCall(Call call);
  void Remember();
  /// `AtLimit`, with its message.
  bool CheckLimit();
  void Replay(const CallList& stored);

  Board& board_;
  Host& host_;
  CallList calls_;
  State state_;
  std::array<State, CallList::kCapacity + 1> snapshots_{};  // by calls made
};

}  // namespace tricklet
