// The way of the data that commands print.
#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace tricklet::cli {

/// The buffer of a stream whose lines come out of another as `ShowableLines` gives them, so that
/// nothing of a library or a file is an order to the terminal; form feeds pass. When the other
/// fails, so does it.
class ShownLines : public std::streambuf {
 public:
  explicit ShownLines(std::ostream& below) : below_(below) {}
  /// Passes on what is left.
  ~ShownLines() override;
  ShownLines(const ShownLines&) = delete;
  ShownLines& operator=(const ShownLines&) = delete;

 private:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int sync() override;
  bool PassOn();

  std::ostream& below_;
  std::string line_;
};

}  // namespace tricklet::cli
