#include "formats/pbn/pbn_lines.h"

#include <algorithm>

namespace tricklet {
namespace {

std::string_view SeparatorOf(std::string_view text) {
  for (const std::string_view separator : {"\r\n", "\r", "\n"}) {
    if (text.find(separator) != std::string_view::npos) return separator;
  }
  return {};
}

}  // namespace

PbnLines::PbnLines(std::string_view text) : text_(text), separator_(SeparatorOf(text)) {
  if (HasLines()) ReadNextLine();
}

void PbnLines::ReadNextLine() {
  if (next_ == std::string_view::npos) {
    pastEnd_ = true;
    return;
  }
  ++number_;
  const std::size_t end = text_.find(separator_, next_);
  line_ = text_.substr(next_, end - next_);
  next_ = end == std::string_view::npos ? end : end + separator_.size();
}

std::string_view PbnLines::Rest() const {
  return text_.substr(std::min(next_, text_.size()));
}

}  // namespace tricklet
