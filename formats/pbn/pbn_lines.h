// The lines of a PBN text, one after another.
#pragma once

#include <cstddef>
#include <string_view>

namespace tricklet {

/// A cursor that never copies: a line may be as long as the file.
class PbnLines {
 public:
  explicit PbnLines(std::string_view text);

  /// The text holds a line end at all.
  bool HasLines() const { return !separator_.empty(); }

  /// Moves to the next line; past the last one `Line` stays what it was.
  void ReadNextLine();

  bool PastEnd() const { return pastEnd_; }
  std::string_view Line() const { return line_; }

  /// Of the current line, the first being 1.
  int Number() const { return number_; }

  /// What follows the current line.
  std::string_view Rest() const;

 private:
  std::string_view text_;
  std::string_view separator_;
  std::size_t next_ = 0;  // where the next line begins; npos after the last
  std::string_view line_;
  int number_ = 0;
  bool pastEnd_ = false;
};

}  // namespace tricklet
