// The commands that edit the hands.
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/dialogs/frmSwap.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

void Commands::Undo() {
  if (session_.board.playMode) {
    UndoCard();
  } else {
    Run([this] { edit_.Undo(); });
  }
}

void Commands::Redo() {
  if (session_.board.playMode) {
    Attempt([this] { play_.Redo(); });
  } else {
    Run([this] { edit_.Redo(); });
  }
}

void Commands::Revert() {
  RunUntyped([this] { edit_.Revert(); });
}

void Commands::EditOrStop() {
  Run([this] {
    if (edit_.Editing()) {
      edit_.Stop();
    } else if (edit_.Start()) {
      emit EditStarted();
    }
  });
}

void Commands::Swap() {
  Run([this] {
    frmSwap dialog(session_, edit_, window_);
    connect(&dialog, &frmSwap::Changed, this, &Commands::HandsChanged);
    emit SwapOpened(&dialog);
    dialog.exec();
  });
}

void Commands::ClearHands() {
  RunUntyped([this] { edit_.Clear(); });
}
void Commands::UndoClear() {
  RunUntyped([this] { edit_.UndoClear(); });
}
void Commands::RandomFill() {
  Run([this] { edit_.Fill(); });
}
void Commands::UndoFill() {
  Run([this] { edit_.UndoFill(); });
}
void Commands::FillFourth() {
  Run([this] { edit_.FillFourth(); });
}

void Commands::MoveCard(Card card, std::optional<Seat> to) {
  Run([&] { edit_.MoveCard(card, to); });
}

bool Commands::TypeHand(Seat seat, const QString& text) {
  bool taken = false;
  if (Attempt([&] { taken = edit_.TypeHand(seat, FromQt(text)); })) emit Done();
  return taken;
}

void Commands::SetEditMethod(EditMethod method) {
  Run([&] {
    session_.settings.editMethod = method;
    SaveSetting(session_, &Settings::editMethod);
  });
}

}  // namespace tricklet::ui
