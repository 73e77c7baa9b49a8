#include "cli/shown_stream.h"

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

int ShownLines::sync() {
  return PassOn() ? 0 : -1;
}

}  // namespace tricklet::cli
