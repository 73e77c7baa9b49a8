#include "ui/window/review_display.h"

#include "play/played_record.h"
#include "play/trick_grid.h"
#include "ui/background/review_finder.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"
#include "ui/panes/review_pane.h"
#include "ui/panes/trick_pane.h"
#include "ui/style/qt_text.h"
#include "ui/window/panes.h"

namespace tricklet::ui {
namespace {

std::vector<int> GivenBy(const PlayReview* review) {
  std::vector<int> given;
  if (review == nullptr) return given;
  for (const ReviewedCard& card : review->cards) given.push_back(card.given);
  return given;
}

}  // namespace

ReviewDisplay::ReviewDisplay(Session& session, const PlayControl& play, Results& results,
                             const Panes& panes, QObject* parent)
    : QObject(parent),
      session_(session),
      play_(play),
      results_(results),
      panes_(panes),
      finder_(new ReviewFinder(session, this)) {
  connect(finder_, &ReviewFinder::Changed, this, &ReviewDisplay::Changed);
  connect(panes.tricks, &TrickPane::PlaceAsked, &results, &Results::GoTo);
  connect(panes.review, &ReviewPane::PlaceAsked, &results, &Results::GoTo);
  connect(panes.tricks, &TrickPane::Pointed, this, [this](int number) {
    pointed_ = number;
    Tell();
  });
}

void ReviewDisplay::Show(const WindowState& state) {
  reviewing_ = state.Reviewing();
  FindReview();
  ShowTricks(state);
  ShowReview();
  if (last_ != LastCard()) pointed_ = -1;
  last_ = LastCard();
  Tell();
}

int ReviewDisplay::LastCard() const {
  const Replay* record = results_.Record();
  return (record != nullptr ? record->Shown() : play_.Play().UndoTop()) - 1;
}

void ReviewDisplay::FindReview() {
  if (!reviewing_) {
    finder_->Forget();
  } else if (const Replay* record = results_.Record()) {
    finder_->Find(record->Record());
  } else {
    finder_->Find(RecordOfPlay(play_.Play()));
  }
}

/// A part of a review is told only of a play that goes on: of a record the whole comes soon.
const PlayReview* ReviewDisplay::Shown() const {
  const bool whole = finder_->Complete() || results_.Record() == nullptr;
  return whole ? finder_->Review() : nullptr;
}

void ReviewDisplay::ShowTricks(const WindowState& state) {
  using Leaving = TrickPane::Leaving;
  const std::vector<int> given = GivenBy(Shown());
  if (const Replay* record = results_.Record()) {
    panes_.tricks->Show(
        session_, record->Record().board,
        state.AnyHidden() ? MakeTrickGrid(record->Play(), given) : MakeRecordGrid(*record, given),
        Leaving::Record);
    return;
  }
  const CardPlay& play = play_.Play();
  panes_.tricks->Show(session_, play.Played(), MakeTrickGrid(play, given),
                      play.Finished() ? Leaving::FinishedPlay : Leaving::Play);
}

PlayedAt ReviewDisplay::At() const {
  const Replay* record = results_.Record();
  return {results_.OfBoard(), results_.Row(),
          record != nullptr ? record->Record().board : play_.Play().Played()};
}

void ReviewDisplay::ShowReview() {
  panes_.review->SetUnfolded(session_.settings.showReview);
  const PlayReview* review = Shown();
  if (review == nullptr) {
    panes_.review->ShowNone(ToQt(finder_->Why()));
    return;
  }
  const Replay* record = results_.Record();
  panes_.review->Show(*review, At(),
                      record != nullptr ? std::optional(record->Shown()) : std::nullopt);
}

/// What the card under the mouse or the keys cost, or else the one that was played last.
void ReviewDisplay::Tell() {
  const PlayReview* review = Shown();
  QString text;
  for (const int number : {pointed_, last_}) {
    const auto place = static_cast<std::size_t>(number);
    const bool known = review != nullptr && number >= 0 && place < review->cards.size();
    if (!known || review->cards[place].given == 0) continue;
    text = MistakeText(review->cards[place], *review, At());
    break;
  }
  if (text == told_) return;
  told_ = text;
  emit Told(text);
}

std::optional<std::size_t> ReviewDisplay::MistakeAfter() const {
  const Replay* record = results_.Record();
  if (record == nullptr || Shown() == nullptr) return std::nullopt;
  return Shown()->MistakeFrom(static_cast<std::size_t>(record->Shown()));
}

std::optional<std::size_t> ReviewDisplay::MistakeBefore() const {
  const Replay* record = results_.Record();
  if (record == nullptr || Shown() == nullptr || record->Shown() == 0) return std::nullopt;
  return Shown()->MistakeBefore(static_cast<std::size_t>(record->Shown() - 1));
}

void ReviewDisplay::ToNextMistake() {
  if (const auto card = MistakeAfter()) results_.GoTo(static_cast<int>(*card) + 1);
}

void ReviewDisplay::ToPreviousMistake() {
  if (const auto card = MistakeBefore()) results_.GoTo(static_cast<int>(*card) + 1);
}

}  // namespace tricklet::ui
