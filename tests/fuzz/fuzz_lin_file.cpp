// Any bytes as a "LIN.txt": what is read is written and read again without change, and each board
// that it holds comes back from its own file.
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  CheckLinFile(ParseLinFile(bytes));
}
