#include "cli/shown_stream.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/text.h"

namespace tricklet::cli {

ShownLines::~ShownLines() {
  PassOn();
}

bool ShownLines::PassOn() {
  // Standard output has the line ends of the system, whatever those of a table for a file are.
  if (line_.ends_with("\r\n")) line_.erase(line_.size() - 2, 1);
  below_ << ShowableLines(std::exchange(line_, std::string()));
  return below_.good();
}

ShownLines::int_type ShownLines::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  if (traits_type::to_char_type(c) == '\f') {
    // A page ends. To a terminal that is an empty line, and no order.
    return PassOn() && below_.put('\f') ? c : traits_type::eof();
  }
  line_ += traits_type::to_char_type(c);
  return line_.back() != '\n' || PassOn() ? c : traits_type::eof();
}

/// What `overflow` would make of each character, but a line at a time.
std::streamsize ShownLines::xsputn(const char* text, std::streamsize size) {
  std::string_view rest(text, static_cast<std::size_t>(size));
  const auto isEnd = [](char c) { return c == '\n' || c == '\f'; };
  while (!rest.empty()) {
    const auto end = std::find_if(rest.begin(), rest.end(), isEnd);
    line_.append(rest.begin(), end);
    rest.remove_prefix(static_cast<std::size_t>(end - rest.begin()));
    if (rest.empty()) break;
    const int_type taken = overflow(traits_type::to_int_type(rest.front()));
    if (traits_type::eq_int_type(taken, traits_type::eof())) break;
    rest.remove_prefix(1);
  }
  return size - static_cast<std::streamsize>(rest.size());
}

int ShownLines::sync() {
  return PassOn() ? 0 : -1;
}

}  // namespace tricklet::cli
