// Text in columns, for a font in which all characters are equally wide.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tricklet {

/// Characters, not bytes: suit symbols take three bytes each.
std::size_t CharacterCount(std::string_view text);

/// Filled up with blanks to `width` characters; longer text stays whole.
std::string PadRight(std::string text, std::size_t width);
std::string PadLeft(const std::string& text, std::size_t width);

/// Appends `line` without the blanks at its end, and a line end.
void AppendLine(std::string& text, std::string line);

/// The lines in columns as wide as their widest cell, two blanks between them; columns without any
/// text are left out. Words stand at the left of their column (`left`), numbers at the right. All
/// lines have a cell for each column.
std::string AlignedLines(const std::vector<std::vector<std::string>>& lines,
                         const std::vector<bool>& left);

}  // namespace tricklet
