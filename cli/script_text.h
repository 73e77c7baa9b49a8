// Texts in the language of deal conditions that are named on the command line.
#pragma once

#include <optional>
#include <string>

#include "core/host.h"

namespace tricklet::cli {

/// The text of a file, or with "-" of standard input; one byte more than a script can have of what
/// is longer there. Nothing after a message.
std::optional<std::string> ReadScriptText(Host& host, const std::string& file);

/// The file as it is called in messages: its path, or "standard input".
std::string ShownScript(const std::string& file);

}  // namespace tricklet::cli
