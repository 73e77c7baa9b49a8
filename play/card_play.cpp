#include "play/card_play.h"

#include <bit>
#include <stdexcept>

#include "core/scoring.h"
#include "core/statistics.h"

namespace tricklet {

bool CardPlay::NeedsAuction(const Board& board) {
  return board.contractLevel == 0;
}

bool CardPlay::Start() {
  if (board_.contract == kAllPass) {
    host_.Tell("The bidding was All Pass");
    return false;
  }
  if (board_.contractLevel == 0 || !GetStats(board_.hands).allHandsComplete) return false;
  timer_.Stop();
  state_ = PlayState();
  state_.onPlay = SeatAfter(board_.declarer);
  state_.cardsLeft = board_.hands;
  undoTop_ = 0;
  board_.playMode = true;
  return true;
}

void CardPlay::Stop() {
  timer_.Stop();
  board_.playMode = false;
}

bool CardPlay::EndForEditing() {
  if (PlayMode() && undoTop_ > 0 && state_.tricksPlayed < kTricks &&
      host_.Ask({.text = "Confirm that you wish to edit this hand",
                 .safe = Answer::No,
                 .detail = LossByStopping()}) != Answer::Yes) {
    return false;
  }
  Stop();
  return true;
}

std::string CardPlay::LossByStopping() const {
  int left = 0;
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) left += state_.cardsLeft[seat][suit].Count();
  }
  const int played = kCardsInPack - left;
  if (!PlayMode() || played == 0) return "";
  if (played == 1) return "The card played so far is not kept.";
  return "The " + std::to_string(played) + " cards played so far are not kept.";
}

PerSuit<Holding> CardPlay::LegalCards() const {
  if (!PlayMode() || !state_.onPlay) return {};
  return state_.LegalCards(state_.cardsLeft[*state_.onPlay]);
}

bool CardPlay::IsLegal(Card card) const {
  return LegalCards()[card.suit].Has(card.rank);
}

std::optional<Card> CardPlay::OnlyLegalCard() const {
  std::optional<Card> only;
  const PerSuit<Holding> legal = LegalCards();
  for (const Suit suit : kAllSuits) {
    if (legal[suit].Empty()) continue;
    if (only || legal[suit].Count() > 1) return std::nullopt;
    only = Card{suit, static_cast<Rank>(std::countr_zero(legal[suit].Bits()))};
  }
  return only;
}

bool CardPlay::Play(Card card) {
  if (!PlayMode() || SeatHolding(state_.cardsLeft, card) < 0) return false;
  const Seat onPlay = state_.onPlay.value_or(Seat::North);
  if (!IsLegal(card)) {
    host_.Beep();
    return false;
  }
  Remember();
  if (state_.cardsInTrick == 0 && state_.tricksPlayed > 0) QuitTrick();
  PutOnTable(card, onPlay);
  return true;
}

void CardPlay::Remember() {
  undoRecords_.at(static_cast<std::size_t>(undoTop_++)) = state_;
}

void CardPlay::PutOnTable(Card card, Seat seat) {
  state_.trickGathered = false;
  state_.trickCards[seat] = card;
  state_.cardsLeft[seat][card.suit].Remove(card.rank);
  state_.Add(card, seat, board_.trumps);
  if (state_.cardsInTrick == kSeats) {
    FinishTrick();
  } else {
    state_.onPlay = SeatAfter(seat);
  }
}

void CardPlay::WinTrick(Side side) {
  state_.lastTrickSide = side;
  ++state_.tricksWon[side];
  state_.trickSides.at(static_cast<std::size_t>(state_.tricksPlayed++)) = side;
}

void CardPlay::FinishTrick() {
  state_.cardsInTrick = 0;
  state_.lastTrick = state_.trickCards;
  WinTrick(SideOf(state_.trickWinner));
  state_.onPlay = state_.trickWinner;
  if (state_.tricksPlayed == kTricks) state_.onPlay.reset();
  timer_.Start(kTrickDelay);
}

void CardPlay::QuitTrick() {
  timer_.Stop();
  if (!PlayMode() || state_.cardsInTrick != 0) return;
  state_.trickCards.fill(std::nullopt);
  state_.trickGathered = true;
}

void CardPlay::Undo() {
  if (!UndoEnabled()) return;
  timer_.Stop();
  const bool claimed = state_.claimed;
  state_ = undoRecords_.at(static_cast<std::size_t>(--undoTop_));
  if (!claimed && state_.cardsInTrick == 0 && state_.tricksPlayed > 0) {
    // Before a lead, the previous trick lies on the table again, even if it had been gathered.
    state_.trickCards = state_.lastTrick;
    state_.trickGathered = false;
  }
}

const PlayState& CardPlay::StateAt(int step) const {
  if (step < 0 || step > undoTop_) throw std::out_of_range("no such step of the play");
  return step == undoTop_ ? state_ : undoRecords_.at(static_cast<std::size_t>(step));
}

std::string CardPlay::ClaimCaption() const {
  return state_.onPlay ? "Claim by " + std::string(SeatName[*state_.onPlay]) : "Claim";
}

void CardPlay::Claim() {
  if (!PlayMode() || !state_.onPlay) return;
  const Side side = SideOf(*state_.onPlay);
  timer_.Stop();
  Remember();
  state_.trickCards.fill(std::nullopt);
  state_.cardsInTrick = 0;
  state_.trickGathered = true;
  while (state_.tricksPlayed < kTricks) WinTrick(side);
  state_.onPlay.reset();
  state_.claimed = true;
}

std::string CardPlay::TricksText(Side side) const {
  return (side == Side::NorthSouth ? "NS: " : "EW: ") + std::to_string(state_.tricksWon[side]);
}

std::string CardPlay::ScoreText() const {
  return Finished() ? ResultLine(board_, state_.tricksWon[SideOf(board_.declarer)]) : "";
}

}  // namespace tricklet
