#include "update/update_outcome.h"

#include "core/text.h"
#include "core/version.h"
#include "update/update_address.h"

namespace tricklet {

std::string RunningVersion() {
  return std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
         std::to_string(kVersionRevision);
}

std::string UpdateText(const Settings& settings) {
  if (!settings.autoUpdate) return "Option to check for updates is switched off";
  const std::string error = UpdateAddressError(settings.updateAddress);
  return error.empty() ? "Looking for a newer version" : error;
}

UpdateOutcome OutcomeOf(const Fetched& fetched, std::string_view running) {
  using Kind = UpdateOutcome::Kind;
  if (!fetched.failure.empty()) return {Kind::NoAnswer, {}, Showable(fetched.failure)};
  const auto own = ParseVersion(running);
  const auto answer = ReadUpdateAnswer(fetched.bytes);
  if (!own || !answer) return {Kind::NotUnderstood, {}, {}};
  const bool newer = ComparePrecedence(answer->version, *own) == std::strong_ordering::greater;
  return newer ? UpdateOutcome{Kind::Newer, *answer, {}} : UpdateOutcome{Kind::Newest, {}, {}};
}

}  // namespace tricklet
