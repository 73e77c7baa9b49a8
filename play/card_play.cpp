#include "play/card_play.h"

#include <algorithm>
#include <span>
#include <stdexcept>

#include "core/scoring.h"
#include "core/statistics.h"

namespace tricklet {

void PlayState::PlayToTrick(Card card, Strain trumps) {
  const Seat seat = onPlay.value_or(Seat::North);
  trickGathered = false;
  trickCards[seat] = card;
  cardsLeft[seat][card.suit].Remove(card.rank);
  Add(card, seat, trumps);
  onPlay = SeatAfter(seat);
  if (cardsInTrick < kSeats) return;
  cardsInTrick = 0;
  lastTrick = trickCards;
  WinTrick(SideOf(trickWinner));
  onPlay = trickWinner;
  if (tricksPlayed == kTricks) onPlay.reset();
}

void PlayState::Gather() {
  trickCards.fill(std::nullopt);
  trickGathered = true;
}

void PlayState::WinTrick(Side side) {
  lastTrickSide = side;
  ++tricksWon[side];
  trickSides.at(static_cast<std::size_t>(tricksPlayed++)) = side;
}

bool CardPlay::NeedsAuction(const Board& board) {
  return board.contractLevel == 0;
}

bool CardPlay::Start() {
  if (board_.contract == kAllPass) {
    host_.Tell("The bidding was All Pass");
    return false;
  }
  if (board_.contractLevel == 0 || !GetStats(board_.hands).allHandsComplete) return false;
  recorded_.reset();
  recordedCards_.clear();
  Begin(board_.declarer);
  return true;
}

void CardPlay::Begin(Seat declarer) {
  timer_.Stop();
  state_ = PlayState();
  state_.onPlay = SeatAfter(declarer);
  state_.cardsLeft = board_.hands;
  undoTop_ = 0;
  board_.playMode = true;
}

std::string CardPlay::WhyNotPlayOn(const Board& board, const RecordedPlay& record) {
  if (record.board.contract == kAllPass) return "The board was passed out at this table";
  if (record.board.contractLevel == 0) return "The record has no contract to play";
  if (!GetStats(record.board.hands).allHandsComplete) {
    return "The record has not all four hands";
  }
  if (record.board.hands != board.hands) return "The record is of another deal than the board";
  return "";
}

bool CardPlay::PlayOn(const RecordedPlay& record, int cards) {
  if (const std::string why = WhyNotPlayOn(board_, record); !why.empty()) {
    host_.Tell(why);
    return false;
  }
  recorded_ = record.board;
  recordedCards_ = record.cards;
  Begin(record.board.declarer);
  for (const Card card :
       std::span(record.cards)
           .first(std::min(record.cards.size(), static_cast<std::size_t>(std::max(cards, 0))))) {
    if (!IsLegal(card)) break;
    Play(card);
  }
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

int CardPlay::CardsToLose() const {
  if (!PlayMode()) return 0;
  const int played = state_.claimed ? undoTop_ - 1 : undoTop_;
  if (!recorded_) return played;
  for (int step = 0; step < played; ++step) {
    const auto at = static_cast<std::size_t>(step);
    const bool follows = at < recordedCards_.size() &&
                         SeatHolding(StateAt(step).cardsLeft, recordedCards_[at]) >= 0 &&
                         SeatHolding(StateAt(step + 1).cardsLeft, recordedCards_[at]) < 0;
    if (!follows) return played - step;
  }
  return 0;
}

std::string CardPlay::LossByStopping() const {
  const int cards = CardsToLose();
  if (cards == 0) return "";
  if (cards == 1) return "The card played so far is not kept.";
  return "The " + std::to_string(cards) + " cards played so far are not kept.";
}

PerSuit<Holding> CardPlay::LegalCards() const {
  if (!PlayMode() || !state_.onPlay) return {};
  return state_.LegalCards(state_.cardsLeft[*state_.onPlay]);
}

bool CardPlay::IsLegal(Card card) const {
  return LegalCards()[card.suit].Has(card.rank);
}

std::optional<Card> CardPlay::OnlyLegalCard() const {
  return OnlyCardOf(LegalCards());
}

bool CardPlay::Play(Card card) {
  if (!PlayMode() || SeatHolding(state_.cardsLeft, card) < 0) return false;
  if (!IsLegal(card)) {
    host_.Beep();
    return false;
  }
  Remember();
  if (state_.cardsInTrick == 0 && state_.tricksPlayed > 0) QuitTrick();
  state_.PlayToTrick(card, Played().trumps);
  if (state_.cardsInTrick == 0) timer_.Start(kTrickDelay);
  return true;
}

void CardPlay::Remember() {
  undoRecords_.at(static_cast<std::size_t>(undoTop_++)) = state_;
}

void CardPlay::QuitTrick() {
  timer_.Stop();
  if (!PlayMode() || state_.cardsInTrick != 0) return;
  state_.Gather();
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
  ClaimTricks(side, MostClaim(side));
}

bool CardPlay::ClaimTricks(Side side, int tricks) {
  if (!ClaimEnabled() || tricks < LeastClaim(side) || tricks > MostClaim(side)) return false;
  timer_.Stop();
  Remember();
  state_.cardsInTrick = 0;
  state_.Gather();
  state_.claimed = true;
  state_.claimSide = side;
  state_.claimTricks = tricks - state_.tricksWon[side];
  while (state_.tricksWon[side] < tricks) state_.WinTrick(side);
  const Side other = side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth;
  while (state_.tricksPlayed < kTricks) state_.WinTrick(other);
  state_.onPlay.reset();
  return true;
}

std::string CardPlay::TricksText(Side side) const {
  return (side == Side::NorthSouth ? "NS: " : "EW: ") + std::to_string(state_.tricksWon[side]);
}

std::string CardPlay::ScoreText() const {
  const Board& played = Played();
  return Finished() ? ResultLine(played, state_.tricksWon[SideOf(played.declarer)]) : "";
}

}  // namespace tricklet
