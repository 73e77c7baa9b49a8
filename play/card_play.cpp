#include "play/card_play.h"

#include <bit>

#include "core/scoring.h"
#include "core/statistics.h"

namespace tricklet {

bool CardPlay::NeedsAuction(const Board& board) {
  return board.ContractLevel == 0;
}

bool CardPlay::Start() {
  if (board_.Contract == kAllPass) {
    host_.Tell("The bidding was All Pass");
    return false;
  }
  if (board_.ContractLevel == 0 || !GetStats(board_.Hands).AllHandsComplete) return false;
  timer_.Stop();
  state_ = PlayState();
  state_.OnPlay = SeatAfter(board_.Declarer);
  state_.CardsLeft = board_.Hands;
  UndoTop_ = 0;
  board_.PlayMode = true;
  return true;
}

void CardPlay::Stop() {
  timer_.Stop();
  board_.PlayMode = false;
}

bool CardPlay::EndForEditing() {
  if (PlayMode() && UndoTop_ > 0 && state_.TricksPlayed < kTricks &&
      host_.Ask("Confirm that you wish to edit this hand", std::string(kProgramName),
                Buttons::YesNo) != Answer::Yes) {
    return false;
  }
  Stop();
  return true;
}

PerSuit<Holding> CardPlay::LegalCards() const {
  if (!PlayMode() || !state_.OnPlay) return {};
  return state_.LegalCards(state_.CardsLeft[*state_.OnPlay]);
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
  if (!PlayMode() || SeatHolding(state_.CardsLeft, card) < 0) return false;
  const Seat onPlay = state_.OnPlay.value_or(Seat::North);
  if (!IsLegal(card)) {
    host_.Beep();
    return false;
  }
  undoRecords_.at(static_cast<std::size_t>(UndoTop_++)) = state_;
  if (state_.CardsInTrick == 0 && state_.TricksPlayed > 0) QuitTrick();
  PutOnTable(card, onPlay);
  return true;
}

void CardPlay::PutOnTable(Card card, Seat seat) {
  state_.TrickGathered = false;
  state_.TrickCards[seat] = card;
  state_.CardsLeft[seat][card.suit].Remove(card.rank);
  state_.Add(card, seat, board_.Trumps);
  if (state_.CardsInTrick == kSeats) {
    FinishTrick();
  } else {
    state_.OnPlay = SeatAfter(seat);
  }
}

void CardPlay::WinTrick(Side side) {
  state_.LastTrickSide = side;
  ++state_.TricksWon[side];
  state_.TrickSides.at(static_cast<std::size_t>(state_.TricksPlayed++)) = side;
}

void CardPlay::FinishTrick() {
  state_.CardsInTrick = 0;
  state_.LastTrick = state_.TrickCards;
  WinTrick(SideOf(state_.TrickWinner));
  state_.OnPlay = state_.TrickWinner;
  if (state_.TricksPlayed == kTricks) state_.OnPlay.reset();
  timer_.Start(kTrickDelay);
}

void CardPlay::QuitTrick() {
  timer_.Stop();
  if (!PlayMode() || state_.CardsInTrick != 0) return;
  state_.TrickCards.fill(std::nullopt);
  state_.TrickGathered = true;
}

void CardPlay::Undo() {
  if (!UndoEnabled()) return;
  timer_.Stop();
  state_ = undoRecords_.at(static_cast<std::size_t>(--UndoTop_));
  if (state_.CardsInTrick == 0 && state_.TricksPlayed > 0) {
    // Before a lead the trick before it lies on the table again, even if it had been gathered.
    state_.TrickCards = state_.LastTrick;
    state_.TrickGathered = false;
  }
}

std::string CardPlay::ClaimCaption() const {
  return state_.OnPlay ? "Claim by " + std::string(SeatName[*state_.OnPlay]) : "Claim";
}

void CardPlay::Claim() {
  if (!PlayMode() || !state_.OnPlay) return;
  const Side side = SideOf(*state_.OnPlay);
  timer_.Stop();
  state_.TrickCards.fill(std::nullopt);
  state_.CardsInTrick = 0;
  state_.TrickGathered = true;
  while (state_.TricksPlayed < kTricks) WinTrick(side);
  state_.OnPlay.reset();
  state_.Claimed = true;
}

std::string CardPlay::TricksText(Side side) const {
  return (side == Side::NorthSouth ? "NS: " : "EW: ") + std::to_string(state_.TricksWon[side]);
}

std::string CardPlay::ScoreText() const {
  return Finished() ? ResultLine(board_, state_.TricksWon[SideOf(board_.Declarer)]) : "";
}

}  // namespace tricklet
