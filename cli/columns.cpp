#include "cli/columns.h"

namespace tricklet::cli {

std::size_t Width(const std::string& text) {
  std::size_t width = 0;
  for (const char c : text) width += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
  return width;
}

std::string PadRight(std::string text, std::size_t width) {
  const std::size_t have = Width(text);
  if (have < width) text.append(width - have, ' ');
  return text;
}

std::string PadLeft(const std::string& text, std::size_t width) {
  const std::size_t have = Width(text);
  return have < width ? std::string(width - have, ' ') + text : text;
}

void AppendLine(std::string& text, std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  text += line + "\n";
}

}  // namespace tricklet::cli
