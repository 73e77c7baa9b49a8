#include "ui/control/play_control.h"

#include "core/statistics.h"

namespace tricklet::ui {
namespace {

/// The card that has come back to a hand; none when a claim has been taken back.
std::optional<Card> CardBack(const HandTable& before, const HandTable& after) {
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (SeatHolding(before, card) < 0 && SeatHolding(after, card) >= 0) return card;
  }
  return std::nullopt;
}

}  // namespace

QtTrickTimer::QtTrickTimer(QObject* parent) : QObject(parent), timQuit(this) {
  timQuit.setObjectName(QStringLiteral("timQuit"));
  timQuit.setSingleShot(true);
  connect(&timQuit, &QTimer::timeout, this, &QtTrickTimer::Elapsed);
}

void QtTrickTimer::Start(std::chrono::milliseconds delay) {
  timQuit.start(delay);
}

void QtTrickTimer::Stop() {
  timQuit.stop();
}

PlayControl::PlayControl(Session& session, QObject* parent)
    : QObject(parent), session_(session), timer_(this), play_(session.board, session.host, timer_) {
  connect(&timer_, &QtTrickTimer::Elapsed, this, &PlayControl::QuitTrick);
}

bool PlayControl::CanStart() const {
  return GetStats(session_.board.hands).allHandsComplete;
}

bool PlayControl::TrickComplete() const {
  return play_.PlayMode() && play_.Now().cardsInTrick == 0 && !play_.Now().trickGathered;
}

bool PlayControl::Start() {
  undone_.clear();
  const bool started = play_.Start();
  emit Changed();
  return started;
}

void PlayControl::Stop() {
  play_.Stop();
  emit Changed();
}

bool PlayControl::Leave() {
  if (!UnderWay()) return true;
  const QString question = tr("Do you wish to stop the play of board %1?");
  if (session_.host.Ask({.text = question.arg(session_.board.boardNumber).toStdString(),
                         .safe = Answer::No,
                         .detail = play_.LossByStopping(),
                         .agree = tr("Stop the play").toStdString(),
                         .refuse = tr("Go on playing").toStdString()}) != Answer::Yes) {
    return false;
  }
  Stop();
  return true;
}

bool PlayControl::EndForEditing() {
  const bool ended = play_.EndForEditing();
  emit Changed();
  return ended;
}

void PlayControl::PlayCard(Card card) {
  if (play_.Play(card)) undone_.clear();
  emit Changed();
}

void PlayControl::PlayOnlyCard() {
  if (const auto card = play_.OnlyLegalCard()) {
    PlayCard(*card);
  } else {
    session_.host.Beep();
  }
}

void PlayControl::Undo() {
  if (play_.UndoEnabled()) {
    const HandTable before = play_.Now().cardsLeft;
    play_.Undo();
    undone_.push_back(CardBack(before, play_.Now().cardsLeft));
  }
  emit Changed();
}

void PlayControl::Redo() {
  if (CanRedo()) {
    const std::optional<Card> card = undone_.back();
    undone_.pop_back();
    card ? static_cast<void>(play_.Play(*card)) : play_.Claim();
  }
  emit Changed();
}

void PlayControl::Claim() {
  undone_.clear();
  play_.Claim();
  emit Changed();
}

void PlayControl::QuitTrick() {
  play_.QuitTrick();
  emit Changed();
}

void PlayControl::StopClockOfEndedPlay() {
  if (!play_.PlayMode()) timer_.Stop();
}

}  // namespace tricklet::ui
