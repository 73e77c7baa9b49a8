// In which line of a text a byte stands.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tricklet {

/// Counts the lines before every few thousandth byte once, so that asking costs no more than
/// looking through so many bytes.
class LineIndex {
 public:
  /// `text` must outlive this. Lines end in LF, CR LF or CR.
  explicit LineIndex(std::string_view text);

  /// The first line being 1; 0 for an offset outside the text.
  int LineAt(std::ptrdiff_t offset) const;

 private:
  int EndsBetween(std::size_t begin, std::size_t end) const;

  std::string_view text_;
  std::vector<int> before_;  // line ends before each block of bytes
};

}  // namespace tricklet
