#include "core/columns.h"

#include <algorithm>

namespace tricklet {

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

std::string PadRight(std::string text, std::size_t width) {
  const std::size_t have = CharacterCount(text);
  if (have < width) text.append(width - have, ' ');
  return text;
}

std::string PadLeft(const std::string& text, std::size_t width) {
  const std::size_t have = CharacterCount(text);
  return have < width ? std::string(width - have, ' ') + text : text;
}

void AppendLine(std::string& text, std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  text += line + "\n";
}

std::string AlignedLines(const std::vector<std::vector<std::string>>& lines,
                         const std::vector<bool>& left) {
  std::vector<std::size_t> widths(left.size());
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
      widths[i] = std::max(widths[i], CharacterCount(line.at(i)));
    }
  }
  std::string text;
  for (const auto& line : lines) {
    std::string aligned;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      if (widths[i] == 0) continue;
      aligned += (i == 0 ? "" : "  ") +
                 (left[i] ? PadRight(line[i], widths[i]) : PadLeft(line[i], widths[i]));
    }
    AppendLine(text, aligned);
  }
  return text;
}

}  // namespace tricklet
