#include "formats/sink/board_sink.h"

namespace tricklet {

int ThousandthsRead(std::string_view text, std::string_view rest) {
  if (text.empty()) return kWholeText;
  const auto read = static_cast<double>(text.size() - rest.size());
  return static_cast<int>(read / static_cast<double>(text.size()) * kWholeText);
}

}  // namespace tricklet
