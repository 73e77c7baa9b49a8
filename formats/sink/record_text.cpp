#include "formats/sink/record_text.h"

#include "core/text.h"

namespace tricklet {

std::string_view WithoutUtf8Mark(std::string_view text) {
  return text.substr(text.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0);
}

int ThousandthsRead(std::string_view text, std::string_view rest) {
  if (text.empty()) return kWholeText;
  const auto read = static_cast<double>(text.size() - rest.size());
  return static_cast<int>(read / static_cast<double>(text.size()) * kWholeText);
}

}  // namespace tricklet
