#include "ui/control/results.h"

#include "formats/results/call_remarks.h"

namespace tricklet::ui {

Results::Results(Session& session, QObject* parent) : QObject(parent), session_(session) {}

void Results::ReadTraveller() {
  const auto file = lin_.Of(session_);
  const int boardNumber = session_.board.boardNumber;
  const BoardNotes& notes = notes_.Of(session_);
  const auto note = notes.find(boardNumber);
  note_ = note == notes.end() ? std::string() : note->second;
  if (edition_ > 0 && file == file_ && traveller_.boardNumber == boardNumber) return;
  file_ = file;
  traveller_ = MakeTraveller(*file_, boardNumber);
  ++edition_;
  row_ = -1;
  replay_.reset();
}

CallRemarks Results::Remarks() const {
  return replay_ ? replay_->Record().remarks : RemarksOn(session_.board, traveller_);
}

bool Results::IsStillTheBoard() const {
  const Board& board = session_.board;
  return session_.LibraryName() == library_ && board.boardNumber == board_.boardNumber &&
         board.hands == board_.hands && board.calls == board_.calls;
}

void Results::Pause() {
  if (!replay_) return;
  const auto row = static_cast<std::size_t>(row_);
  paused_ = Place{row_, replay_->Shown(), traveller_.rows.at(row).lin};
}

void Results::Resume() {
  if (!paused_) return;
  const Place place = *paused_;
  paused_.reset();
  const auto row = static_cast<std::size_t>(place.row);
  if (!IsStillTheBoard() || row >= traveller_.rows.size() ||
      traveller_.rows[row].lin != place.lin) {
    return;
  }
  replay_ = std::make_unique<Replay>(traveller_.rows[row].record, session_.host);
  row_ = place.row;
  while (replay_->Shown() < place.shown && replay_->ForwardEnabled()) replay_->Forward();
}

void Results::DropStaleRecord(bool entering) {
  if (paused_ && !session_.board.playMode && !replay_ && !entering) Resume();
  if (!session_.board.playMode) paused_.reset();
  if (replay_ && (entering || session_.board.playMode || !IsStillTheBoard())) {
    row_ = -1;
    replay_.reset();
  }
}

void Results::ShowRecord(int row) {
  const bool known = row >= 0 && row < static_cast<int>(traveller_.rows.size());
  if (!known || session_.board.playMode) {
    session_.host.Beep();
  } else if (row != row_) {
    const TravellerRow& chosen = traveller_.rows.at(static_cast<std::size_t>(row));
    replay_ = std::make_unique<Replay>(chosen.record, session_.host);
    row_ = row;
    board_ = session_.board;
    library_ = session_.LibraryName();
  }
  emit Changed();
}

void Results::Leave() {
  row_ = -1;
  replay_.reset();
  emit Changed();
}

void Results::Step(const std::function<void(Replay&)>& step) {
  if (!replay_) return;
  step(*replay_);
  emit Changed();
}

void Results::Forward() {
  Step([](Replay& replay) { replay.Forward(); });
}
void Results::Back() {
  Step([](Replay& replay) { replay.Back(); });
}
void Results::NextTrick() {
  Step([](Replay& replay) { replay.NextTrick(); });
}
void Results::PreviousTrick() {
  Step([](Replay& replay) { replay.PreviousTrick(); });
}
void Results::GoTo(int cards) {
  Step([cards](Replay& replay) { replay.GoTo(cards); });
}

void Results::PlayCard(Card card) {
  Step([&](Replay& replay) {
    if (!replay.ForwardBy(card)) session_.host.Beep();
  });
}

}  // namespace tricklet::ui
