#include "ui/control/play_control.h"

#include "core/statistics.h"

namespace tricklet::ui {

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
  play_.Play(card);
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
  play_.Undo();
  emit Changed();
}

void PlayControl::Claim() {
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
