#include "cli/shown_stream.h"

#include <utility>

#include "core/text.h"

namespace tricklet::cli {

ShownLines::~ShownLines() {
  PassOn();
}

bool ShownLines::PassOn() {
  below_ << ShowableLines(std::exchange(line_, std::string()));
  return below_.good();
}

ShownLines::int_type ShownLines::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  line_ += traits_type::to_char_type(c);
  return line_.back() != '\n' || PassOn() ? c : traits_type::eof();
}

int ShownLines::sync() {
  return PassOn() ? 0 : -1;
}

}  // namespace tricklet::cli
