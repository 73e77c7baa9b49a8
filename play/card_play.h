// Playing a board card by card, with undo and claim.
#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "core/board.h"
#include "core/host.h"
#include "core/recorded_play.h"
#include "core/trick.h"

namespace tricklet {

/// The clock of the finished trick, which lies on the table for a while and is then gathered.
class TrickTimer {
 public:
  TrickTimer() = default;
  TrickTimer(const TrickTimer&) = delete;
  TrickTimer& operator=(const TrickTimer&) = delete;
  virtual ~TrickTimer() = default;
  /// Calls `CardPlay::QuitTrick` once after `delay`, unless stopped before.
  virtual void Start(std::chrono::milliseconds delay) = 0;
  virtual void Stop() = 0;
};

/// For callers that do not wait: a finished trick stays until the next card is played.
class NoTimer : public TrickTimer {
 public:
  void Start(std::chrono::milliseconds /*delay*/) override {}
  void Stop() override {}
};

/// How long a finished trick lies on the table.
inline constexpr std::chrono::milliseconds kTrickDelay{2000};

inline constexpr int kTricks = 13;

/// The state of the play: a value, so that an undo record is a copy of it.
struct PlayState : Trick {
  std::optional<Seat> onPlay;  ///< nobody after a claim and after the last trick
  Side lastTrickSide = Side::NorthSouth;
  int tricksPlayed = 0;                     ///< 0..13
  PerSeat<std::optional<Card>> trickCards;  ///< on the table
  PerSeat<std::optional<Card>> lastTrick;   ///< the last complete trick, gathered or not
  PerSide<int> tricksWon;
  /// The side that won each trick so far, in order; `tricksPlayed` of them.
  std::array<Side, kTricks> trickSides{};
  HandTable cardsLeft;        ///< cards still in the hands
  bool trickGathered = true;  ///< the last trick has been cleared from the table
  bool claimed = false;
  /// After a claim: whose it was, and how many of the tricks left that side has; the others have
  /// the rest.
  Side claimSide = Side::NorthSouth;
  int claimTricks = 0;  ///< 0..13

  /// The seat on play, which holds `card`, plays it to the trick on the table.
  void PlayToTrick(Card card, Strain trumps);
  /// Clears the table.
  void Gather();
  /// `side` has the next of the tricks.
  void WinTrick(Side side);

  friend bool operator==(const PlayState&, const PlayState&) = default;
};

/// The play of the current board. It is on exactly while the board's `playMode` is set: loading
/// another board, clearing it or confirming an auction ends it too.
class CardPlay {
 public:
  CardPlay(Board& board, Host& host, TrickTimer& timer)
      : board_(board), host_(host), timer_(timer) {}

  /// The board has no contract to play: the auction dialog comes first.
  static bool NeedsAuction(const Board& board);

  /// `cmdPlay` after the auction dialog: starts at the opening lead. False, with "The bidding was
  /// All Pass" for a passed-out board, when the board cannot be played.
  bool Start();

  /// Why the play of `record` cannot become that of `board`: another deal, no contract, no hands. A
  /// sentence for the person; empty when it can.
  static std::string WhyNotPlayOn(const Board& board, const RecordedPlay& record);
  /// Starts with the first `cards` cards of `record` played, each of which `Undo` takes back; fewer
  /// where one of them is not legal. What is played is the contract of the record: the board keeps
  /// its own auction. False, after a message, when the play cannot become that of the board.
  bool PlayOn(const RecordedPlay& record, int cards);

  /// Ends the play; the board is as before it.
  void Stop();

  /// Ends the play so that the cards can be edited, after a question when some have been played
  /// and others not. False when the person wants to play on.
  bool EndForEditing();

  /// "The 17 cards played so far are not kept."; empty when none has been played. Cards that a
  /// record has, from its first one on, are not lost.
  std::string LossByStopping() const;
  /// The cards played, 0..52, without those that only follow the record that the play goes on from.
  int CardsToLose() const;

  bool PlayMode() const { return board_.playMode; }
  /// The deal with the auction and the contract that are played: the board, or the record's where a
  /// play goes on from a record.
  const Board& Played() const { return PlayMode() && recorded_ ? *recorded_ : board_; }
  const PlayState& Now() const { return state_; }

  /// `card` may be played now: the seat on play holds it, and it follows suit or the seat
  /// is void.
  bool IsLegal(Card card) const;
  /// The legal cards of the seat on play, suit by suit; none when nobody is on play.
  PerSuit<Holding> LegalCards() const;

  /// The one legal card; nothing when there are more, or none.
  std::optional<Card> OnlyLegalCard() const;

  /// Plays a card of the hand that holds it; gathers the finished trick first. True when it was
  /// played. When it is not legal there is a beep and no change; for a card that is in no hand
  /// there is not even a beep.
  bool Play(Card card);

  /// Gathers the finished trick from the table.
  void QuitTrick();

  bool UndoEnabled() const { return PlayMode() && undoTop_ > 0; }
  /// Takes back the claim, and the table is as it was before it; or else the last card.
  void Undo();

  bool ClaimEnabled() const { return PlayMode() && state_.onPlay.has_value(); }
  /// "Claim by South"; "Claim" when nobody is on play.
  std::string ClaimCaption() const;
  /// The side on play takes all tricks that are left. Nothing happens when nobody is on play.
  void Claim();

  /// The tricks, 0..13 in all, that `side` can still claim: those that it has, and with all that
  /// are left.
  int LeastClaim(Side side) const { return state_.tricksWon[side]; }
  int MostClaim(Side side) const { return state_.tricksWon[side] + kTricks - state_.tricksPlayed; }
  /// Ends the play with `tricks` in all for `side`; the other side has the rest. False, and nothing
  /// happens, when that cannot be or nobody is on play.
  bool ClaimTricks(Side side, int tricks);

  /// 13 tricks are played or claimed.
  bool Finished() const { return PlayMode() && state_.tricksPlayed == kTricks; }
  /// "NS: 4" and "EW: 2".
  std::string TricksText(Side side) const;
  /// The result line; empty while the play goes on.
  std::string ScoreText() const;

  /// How often `Undo` can be called: one for each card played and one for a claim, 0..52 in all, as
  /// a claim comes before the last card.
  int UndoTop() const { return undoTop_; }
  /// The state before a card or the claim, counted from 0 to `UndoTop` - 1; `Now` at `UndoTop`.
  /// Throws `std::out_of_range` beyond it.
  const PlayState& StateAt(int step) const;

 private:
  void Begin(Seat declarer);
  void Remember();

  Board& board_;
  Host& host_;
  TrickTimer& timer_;
  std::optional<Board> recorded_;    // with its own auction, where a play goes on from a record
  std::vector<Card> recordedCards_;  // of that record
  PlayState state_;
  int undoTop_ = 0;
  std::array<PlayState, kCardsInPack> undoRecords_{};  // before each card, and before the claim
};

}  // namespace tricklet
