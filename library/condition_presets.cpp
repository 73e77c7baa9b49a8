#include "library/condition_presets.h"

#include <algorithm>

#include "conditions/script.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/library_names.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPresetEnding = ".dlr";

fs::path PresetPath(const Session& session, std::string_view name) {
  return PresetsPath(session) / PathFromText(std::string(name) + std::string(kPresetEnding));
}

}  // namespace

fs::path PresetsPath(const Session& session) {
  return session.FileLocation() / ".conditions";
}

std::vector<std::string> PresetNames(const Session& session) {
  std::vector<std::string> names;
  const fs::path folder = PresetsPath(session);
  if (!FolderExists(folder)) return names;
  ForEachEntry(folder, [&names](const fs::directory_entry& entry) {
    const std::string file = PathText(entry.path().filename());
    if (!file.ends_with(kPresetEnding) || !IsValidUtf8(file)) return;
    std::string name = file.substr(0, file.size() - kPresetEnding.size());
    if (HasAllowedCharacters(name)) names.push_back(std::move(name));
  });
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return FoldCase(a) < FoldCase(b); });
  return names;
}

std::string LoadPreset(const Session& session, std::string_view name) {
  return ReadWholeFile(PresetPath(session, name), kLongestScript);
}

bool StorePreset(Session& session, std::string_view name, std::string_view text) {
  name = Trim(name);
  if (!HasAllowedCharacters(name) || name.size() + kPresetEnding.size() > kLongestLibraryName) {
    session.host.Tell(name.empty() ? "A preset needs a name"
                                   : "A preset cannot be named " + ShownName(name));
    return false;
  }
  try {
    const fs::path path = PresetPath(session, name);
    if (IsTaken(path) && session.host.Ask({.text = "There is a preset named " + ShownName(name) +
                                                   "\nDo you wish to replace it?",
                                           .safe = Answer::No}) != Answer::Yes) {
      return false;
    }
    MakeFolders(PresetsPath(session));
    ReplaceWholeFile(path, text);
    return true;
  } catch (const std::exception& failure) {
    ErrorReport(session.host, FaultFrom(failure));
    return false;
  }
}

bool RecyclePreset(Session& session, const std::string& name) {
  if (session.host.Ask(
          {.text = "Do you wish to send the preset " + ShownName(name) + " to the recycle bin?",
           .safe = Answer::No}) != Answer::Yes) {
    return false;
  }
  if (session.host.Recycle(PresetPath(session, name))) return true;
  session.host.TellError("The preset could not be sent to the recycle bin");
  return false;
}

}  // namespace tricklet
