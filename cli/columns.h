// Text in columns, for a terminal.
#pragma once

#include <cstddef>
#include <string>

namespace tricklet::cli {

/// Filled up with blanks to `width` characters; longer text stays whole.
std::string PadRight(std::string text, std::size_t width);
std::string PadLeft(const std::string& text, std::size_t width);

/// Appends `line` without the blanks at its end, and a line end.
void AppendLine(std::string& text, std::string line);

/// Characters, not bytes: suit symbols take three bytes each.
std::size_t Width(const std::string& text);

}  // namespace tricklet::cli
