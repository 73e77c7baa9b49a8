// Where in the source something was called.
#pragma once

#include <version>

#ifdef __cpp_lib_source_location
#include <source_location>
#endif

namespace tricklet {

#ifdef __cpp_lib_source_location
using SourceLocation = std::source_location;
#else
/// Stands in where the compiler (clang before 16) cannot fill the standard library's type.
class SourceLocation {
 public:
  static constexpr SourceLocation current(unsigned line = __builtin_LINE()) {
    SourceLocation here;
    here.line_ = line;
    return here;
  }
  constexpr unsigned line() const { return line_; }

 private:
  unsigned line_ = 0;
};
#endif

}  // namespace tricklet
