// Where a board is.
#pragma once

#include <string>

namespace tricklet {

/// A board of a library of the root.
struct BoardPlace {
  std::string library;
  int number = 0;
  friend bool operator==(const BoardPlace&, const BoardPlace&) = default;
};

}  // namespace tricklet
