// Conditions that a person has kept: files of text beside the libraries.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "library/session.h"

namespace tricklet {

/// The folder ".conditions" of the root, which is no library as its name begins with a full stop.
std::filesystem::path PresetsPath(const Session& session);

/// The names of the presets, by letters: those of the files "NAME.dlr". None when there is no such
/// folder. Throws `Fault` when it cannot be listed.
std::vector<std::string> PresetNames(const Session& session);

/// The text of a preset of this name. Throws `Fault`, also when it is longer than a script can be.
std::string LoadPreset(const Session& session, std::string_view name);

/// Keeps `text` under the name, without blanks around it; asks before another is replaced. False,
/// and nothing changed, when the person says no, when the name cannot be that of a file (which is
/// told), or after a message of what failed.
bool StorePreset(Session& session, std::string_view name, std::string_view text);

/// Sends the preset to the recycle bin, after a question. False when it is still there.
bool RecyclePreset(Session& session, const std::string& name);

}  // namespace tricklet
