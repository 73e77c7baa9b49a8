#include "play/replay.h"

#include <utility>

#include "core/scoring.h"
#include "core/statistics.h"

namespace tricklet {
namespace {

bool CanBePlayed(const RecordedPlay& record) {
  return record.board.contractLevel > 0 && !record.cards.empty() &&
         GetStats(record.board.hands).allHandsComplete;
}

}  // namespace

Replay::Replay(RecordedPlay record, Host& host)
    : record_(std::move(record)), play_(record_.board, host, timer_) {
  record_.board.playMode = false;
  if (!CanBePlayed(record_) || !play_.Start()) return;
  for (const Card card : record_.cards) {
    if (!play_.IsLegal(card)) break;
    play_.Play(card);
  }
  playable_ = play_.UndoTop();
  while (BackEnabled()) play_.Undo();
}

void Replay::Forward() {
  if (ForwardEnabled()) play_.Play(record_.cards.at(static_cast<std::size_t>(Shown())));
}

void Replay::Back() {
  play_.Undo();
}

void Replay::NextTrick() {
  do {
    Forward();
  } while (ForwardEnabled() && play_.Now().cardsInTrick != 0);
}

void Replay::PreviousTrick() {
  do {
    Back();
  } while (BackEnabled() && play_.Now().cardsInTrick != 0);
}

void Replay::GoTo(int cards) {
  while (BackEnabled() && Shown() > cards) Back();
  while (ForwardEnabled() && Shown() < cards) Forward();
}

bool Replay::ForwardBy(Card card) {
  if (!ForwardEnabled() || record_.cards.at(static_cast<std::size_t>(Shown())) != card) {
    return false;
  }
  Forward();
  return true;
}

std::string Replay::EndText() const {
  if (play_.Finished()) return "";
  const Seat onPlay = play_.Now().onPlay.value_or(Seat::North);
  if (playable_ < static_cast<int>(record_.cards.size())) {
    const Card card = record_.cards.at(static_cast<std::size_t>(playable_));
    return "the record ends here, as " + std::string(SeatName[onPlay]) + " cannot play " +
           CardText(card);
  }
  return "the record ends here";
}

std::string Replay::PlaceText() const {
  if (record_.board.contract == kAllPass) return "Passed out";
  if (record_.cards.empty()) return "The play was not recorded";
  if (!play_.PlayMode()) return "The record cannot be played: it lacks the deal or the contract";
  std::string text =
      "Card " + std::to_string(Shown()) + " of " + std::to_string(record_.cards.size());
  const std::string end = ForwardEnabled() ? "" : EndText();
  return end.empty() ? text : text + ": " + end;
}

std::string Replay::ScoreText() const {
  if (play_.PlayMode() && ForwardEnabled()) return "";
  if (play_.Finished()) return play_.ScoreText();
  if (record_.board.contract == kAllPass) return ResultLine(record_.board, 0);
  if (record_.board.contractLevel == 0 || !record_.tricks) return "";
  return ResultLine(record_.board, *record_.tricks);
}

}  // namespace tricklet
