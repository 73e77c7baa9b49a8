#include "play/replay.h"

#include <utility>

#include "core/scoring.h"
#include "core/statistics.h"

namespace tricklet {
namespace {

bool CanBePlayed(const RecordedPlay& record) {
  return record.Board.ContractLevel > 0 && !record.Cards.empty() &&
         GetStats(record.Board.Hands).AllHandsComplete;
}

}  // namespace

Replay::Replay(RecordedPlay record, Host& host)
    : record_(std::move(record)), play_(record_.Board, host, timer_) {
  record_.Board.PlayMode = false;
  if (!CanBePlayed(record_) || !play_.Start()) return;
  for (const Card card : record_.Cards) {
    if (!play_.IsLegal(card)) break;
    play_.Play(card);
  }
  playable_ = play_.UndoTop();
  while (BackEnabled()) play_.Undo();
}

void Replay::Forward() {
  if (ForwardEnabled()) play_.Play(record_.Cards.at(static_cast<std::size_t>(Shown())));
}

void Replay::Back() {
  play_.Undo();
}

void Replay::NextTrick() {
  do {
    Forward();
  } while (ForwardEnabled() && play_.Now().CardsInTrick != 0);
}

void Replay::PreviousTrick() {
  do {
    Back();
  } while (BackEnabled() && play_.Now().CardsInTrick != 0);
}

bool Replay::Follow(Card card) {
  if (!ForwardEnabled() || record_.Cards.at(static_cast<std::size_t>(Shown())) != card) {
    return false;
  }
  Forward();
  return true;
}

std::string Replay::EndText() const {
  if (play_.Finished()) return "";
  const Seat onPlay = play_.Now().OnPlay.value_or(Seat::North);
  if (playable_ < static_cast<int>(record_.Cards.size())) {
    const Card card = record_.Cards.at(static_cast<std::size_t>(playable_));
    return "the record ends here, as " + std::string(SeatName[onPlay]) + " cannot play " +
           CardText(card);
  }
  return "the record ends here";
}

std::string Replay::PlaceText() const {
  if (record_.Board.Contract == kAllPass) return "Passed out";
  if (record_.Cards.empty()) return "The play was not recorded";
  if (!play_.PlayMode()) return "The record cannot be played: it lacks the deal or the contract";
  std::string text =
      "Card " + std::to_string(Shown()) + " of " + std::to_string(record_.Cards.size());
  const std::string end = ForwardEnabled() ? "" : EndText();
  return end.empty() ? text : text + ": " + end;
}

std::string Replay::ScoreText() const {
  if (play_.PlayMode() && ForwardEnabled()) return "";
  if (play_.Finished()) return play_.ScoreText();
  if (record_.Board.Contract == kAllPass) return ResultLine(record_.Board, 0);
  if (record_.Board.ContractLevel == 0 || !record_.Tricks) return "";
  return ResultLine(record_.Board, *record_.Tricks);
}

}  // namespace tricklet
