#include "ui/updates/updates.h"

#include <utility>

#include "ui/style/qt_text.h"
#include "update/update_address.h"

namespace tricklet::ui {

Updates::Updates(const Settings& settings, std::unique_ptr<Fetcher> fetcher)
    : settings_(settings), fetcher_(std::move(fetcher)) {}

QString Updates::Obstacle() const {
  if (LeftOut()) return tr("This program is updated together with the system");
  return ToQt(UpdateAddressError(settings_.updateAddress));
}

QString Updates::StartText() const {
  return settings_.autoUpdate && LeftOut() ? Obstacle() : ToQt(UpdateText(settings_));
}

QString Updates::StartNotes() const {
  if (!settings_.autoUpdate || LeftOut() || !settings_.updateAddress.empty()) return {};
  return tr(
      "You need not do anything: the program works in full without one. The manual tells how to "
      "set it.");
}

void Updates::Ask() {
  asking_ = true;
  fetcher_->Fetch(settings_.updateAddress, [this](const Fetched& fetched) {
    asking_ = false;
    Settle(OutcomeOf(fetched, RunningVersion()));
    emit Settled();
  });
}

void Updates::Settle(const UpdateOutcome& outcome) {
  justFound_ = outcome.kind == UpdateOutcome::Kind::Newer;
  const QString running = ToQt(RunningVersion());
  switch (outcome.kind) {
    case UpdateOutcome::Kind::Newer:
      newer_ = outcome.answer;
      outcomeText_ = tr("Version %1 is there; this is version %2")
                         .arg(ToQt(outcome.answer.shownVersion), running);
      break;
    case UpdateOutcome::Kind::Newest:
      newer_.reset();
      outcomeText_ = tr("This is the newest version, %1").arg(running);
      break;
    case UpdateOutcome::Kind::NotUnderstood:
      outcomeText_ = tr("The answer could not be understood");
      break;
    case UpdateOutcome::Kind::NoAnswer:
      outcomeText_ = tr("There was no answer: %1").arg(ToQt(outcome.failure));
      break;
  }
}

}  // namespace tricklet::ui
