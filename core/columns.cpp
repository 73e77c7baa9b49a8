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

}  // namespace tricklet
