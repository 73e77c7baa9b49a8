#include "formats/exchange/file_type.h"

#include <algorithm>

#include "core/text.h"

namespace tricklet {

std::string FileTypeOf(const std::filesystem::path& path) {
  constexpr std::size_t kTypeLength = 3;
  const std::string text = PathText(path);
  std::string type = text.substr(text.size() - std::min(text.size(), kTypeLength));
  for (char& c : type) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return type;
}

}  // namespace tricklet
