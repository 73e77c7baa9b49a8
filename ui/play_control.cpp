#include "ui/play_control.h"

namespace tricklet::ui {

QtTrickTimer::QtTrickTimer(QObject* parent) : QObject(parent) {
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
    : QObject(parent), session_(session), play_(session.board, session.host, timer_) {
  connect(&timer_, &QtTrickTimer::Elapsed, this, &PlayControl::QuitTrick);
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

}  // namespace tricklet::ui
