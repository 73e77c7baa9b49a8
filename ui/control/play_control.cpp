#include "ui/control/play_control.h"

#include <algorithm>
#include <utility>

#include "core/statistics.h"
#include "play/played_record.h"

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

bool PlayControl::UnderWay() const {
  return Unfinished() && play_.CardsToLose() > 0 && RecordOfPlay(play_).cards != kept_;
}

void PlayControl::NoteKept() {
  kept_ = RecordOfPlay(play_).cards;
}

bool PlayControl::TrickComplete() const {
  return play_.PlayMode() && play_.Now().cardsInTrick == 0 && !play_.Now().trickGathered;
}

void PlayControl::Begin() {
  undone_.clear();
  answers_.assign(static_cast<std::size_t>(play_.UndoTop()), false);
  program_ = ProgramHands::None;
  asked_.reset();
  players_ = {};
  kept_.clear();
}

bool PlayControl::Start() {
  const bool started = play_.Start();
  Begin();
  emit Changed();
  return started;
}

bool PlayControl::PlayOn(const RecordedPlay& record, int cards,
                         const PerSeat<std::string>& players) {
  if (!play_.PlayOn(record, cards)) return false;
  Begin();
  players_ = players;
  emit Changed();
  return true;
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

void PlayControl::PlayOne(Card card, bool answer) {
  if (!play_.Play(card)) return;
  undone_.clear();
  answers_.push_back(answer);
}

void PlayControl::PlayCard(Card card) {
  if (IsProgramsHand()) {
    session_.host.Beep();
    return;
  }
  asked_.reset();
  PlayOne(card, false);
  emit Changed();
}

void PlayControl::PlayOnlyCard() {
  if (const auto card = play_.OnlyLegalCard()) {
    PlayCard(*card);
  } else {
    session_.host.Beep();
  }
}

bool PlayControl::IsProgramsHand() const {
  const auto onPlay = play_.Now().onPlay;
  if (!onPlay || Program() == ProgramHands::None) return false;
  const bool declaring = SideOf(*onPlay) == SideOf(play_.Played().declarer);
  return declaring == (program_ == ProgramHands::Declarer);
}

void PlayControl::SetProgram(ProgramHands hands) {
  program_ = hands;
  asked_.reset();
  emit Changed();
}

Seat PlayControl::OwnSeat() const {
  const Seat declarer = play_.Played().declarer;
  return Program() == ProgramHands::Declarer ? SeatAfter(declarer) : declarer;
}

void PlayControl::AskProgram(bool toEnd) {
  asked_ = toEnd;
  emit Changed();
}

std::optional<ProgramTurn> PlayControl::Turn() const {
  if (!Unfinished()) return std::nullopt;
  const PlayState& now = play_.Now();
  const ProgramTurn turn{now, play_.Played().trumps, asked_.value_or(false)};
  if (asked_) return turn;
  return IsProgramsHand() && !TrickComplete() ? std::optional(turn) : std::nullopt;
}

void PlayControl::PlayProgram(const ProgramTurn& turn, const std::vector<Card>& cards) {
  const auto now = Turn();
  if (!now || !turn.SameAs(*now)) return;
  const bool answer = !asked_;
  asked_.reset();
  for (const Card card : cards) PlayOne(card, answer);
  if (cards.empty()) program_ = ProgramHands::None;
  emit Changed();
}

bool PlayControl::CanUndo() const {
  if (!play_.UndoEnabled()) return false;
  return Program() == ProgramHands::None || std::ranges::find(answers_, false) != answers_.end();
}

PlayControl::Step PlayControl::TakeBack() {
  Step step;
  const PlayState after = play_.Now();
  play_.Undo();
  step.card = CardBetween(play_.Now(), after);
  step.side = after.claimSide;
  step.tricks = after.tricksWon[after.claimSide];
  step.answer = answers_.back();
  answers_.pop_back();
  return step;
}

void PlayControl::Undo() {
  asked_.reset();
  if (CanUndo()) {
    do {
      undone_.push_back(TakeBack());
    } while (undone_.back().answer && Program() != ProgramHands::None);
  }
  emit Changed();
}

void PlayControl::DoAgain(const Step& step) {
  if (step.card) {
    play_.Play(*step.card);
  } else {
    play_.ClaimTricks(step.side, step.tricks);
  }
  answers_.push_back(step.answer);
}

void PlayControl::Redo() {
  asked_.reset();
  if (CanRedo()) {
    do {
      DoAgain(undone_.back());
      undone_.pop_back();
    } while (CanRedo() && undone_.back().answer && Program() != ProgramHands::None);
  }
  emit Changed();
}

void PlayControl::Claim() {
  const auto onPlay = play_.Now().onPlay;
  if (!play_.ClaimEnabled() || !onPlay) return;
  ClaimTricks(SideOf(*onPlay), play_.MostClaim(SideOf(*onPlay)));
}

void PlayControl::ClaimTricks(Side side, int tricks) {
  asked_.reset();
  if (play_.ClaimTricks(side, tricks)) {
    undone_.clear();
    answers_.push_back(false);
  }
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
