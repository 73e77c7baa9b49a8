// The commands for the auction and the play.
#include <QInputDialog>

#include "analysis/solver.h"
#include "formats/results/kept_play.h"
#include "library/tables.h"
#include "play/played_record.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmBidding.h"
#include "ui/dialogs/frmClaim.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Where the name of the last play kept is remembered.
constexpr std::string_view kPlaySection = "Play";
constexpr std::string_view kKeptNameKey = "KeptName";

}  // namespace

void Commands::Bidding() {
  Run([this] { EnterAuction(); });
}

void Commands::EnterAuction() {
  frmBidding dialog(session_, window_);
  connect(&dialog, &frmBidding::AuctionChanged, this, &Commands::AuctionChanged);
  auction_ = &dialog.Entry();
  emit AuctionChanged();
  emit AuctionOpened(&dialog);
  dialog.exec();
  auction_ = nullptr;
  edit_.Note("auction");
  emit AuctionChanged();
}

void Commands::PlayOrStop() {
  Run([this] {
    if (session_.board.playMode) {
      if (play_.Leave()) play_.Stop();
      return;
    }
    edit_.Stop();
    if (CardPlay::NeedsAuction(session_.board)) EnterAuction();
    if (play_.Start()) emit PlayStarted();
  });
}

void Commands::PlayCard(Card card) {
  Attempt([&] { play_.PlayCard(card); });
}
void Commands::PlayOnlyCard() {
  Attempt([this] { play_.PlayOnlyCard(); });
}
void Commands::UndoCard() {
  Attempt([this] { play_.Undo(); });
}
void Commands::Claim() {
  Attempt([this] { play_.Claim(); });
}
void Commands::ClaimTricks() {
  Run([this] {
    if (!play_.Play().ClaimEnabled()) return;
    frmClaim dialog(session_, play_.Play(), window_);
    if (dialog.exec() == QDialog::Accepted) {
      play_.ClaimTricks(dialog.ClaimingSide(), dialog.Tricks());
    }
  });
}

void Commands::KeepPlay() {
  QString said;
  Run([&] {
    const RecordedPlay play = RecordOfPlay(play_.Play());
    if (play.cards.empty()) return;
    const Seat seat = play_.OwnSeat();
    QInputDialog dialog(window_);
    dialog.setObjectName(QStringLiteral("dlgKeepPlay"));
    dialog.setWindowTitle(tr("Keep this play"));
    dialog.setLabelText(tr("Name of %1 in the traveller").arg(ToQt(SeatName[seat])));
    dialog.setTextValue(ToQt(session_.store.Read(kPlaySection, kKeptNameKey).value_or("")));
    if (dialog.exec() != QDialog::Accepted) return;
    const std::string name = FromQt(dialog.textValue().trimmed());
    if (!tricklet::KeepPlay(session_, play, seat, name)) return;
    play_.NoteKept();
    said =
        tr("The play is kept in the traveller of board %1; it has no score there and is compared "
           "with none")
            .arg(play.board.boardNumber);
    session_.store.Write(kPlaySection, kKeptNameKey, name);
    StoreSettings(session_);
  });
  if (!said.isEmpty()) emit Said(said);
}

void Commands::QuitTrick() {
  Attempt([this] { play_.QuitTrick(); });
}

/// A play that goes on from a record leaves the board as it is stored, and its editing ends.
void Commands::PlayOn(const RecordedPlay& record, int cards, const PerSeat<std::string>& players) {
  bool started = false;
  Run([&] {
    edit_.Stop();
    started = play_.PlayOn(record, cards, players);
  });
  if (started) emit PlayStarted();
}

void Commands::ProgramCard() {
  AskProgram(false);
}
void Commands::BestLine() {
  AskProgram(true);
}

void Commands::AskProgram(bool toEnd) {
  Attempt([&] {
    if (play_.Unfinished() && RequireSolver(session_)) play_.AskProgram(toEnd);
  });
}

void Commands::DefendBest() {
  ToggleProgram(ProgramHands::Defenders);
}
void Commands::DeclareBest() {
  ToggleProgram(ProgramHands::Declarer);
}

void Commands::ToggleProgram(ProgramHands hands) {
  Attempt([&] {
    if (play_.Program() == hands) {
      play_.SetProgram(ProgramHands::None);
    } else if (RequireSolver(session_)) {
      play_.SetProgram(hands);
    } else {
      play_.SetProgram(play_.Program());  // the action's mark is as it was
    }
  });
}

void Commands::TellNoCard() {
  const std::string missing = session_.getSolver ? session_.getSolver().Missing() : std::string();
  session_.host.TellError(missing.empty() ? "The solver could not find a card to play" : missing);
}

void Commands::PlayProgram(const ProgramTurn& turn, const std::vector<Card>& cards) {
  Attempt([&] {
    play_.PlayProgram(turn, cards);
    if (cards.empty()) TellNoCard();
  });
}

}  // namespace tricklet::ui
