// The tables of PBN: rows of cells under the columns that the tag names.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/pbn/pbn_games.h"

namespace tricklet {

/// A cursor over the rows of the table of one tag of a game, which must outlive it.
class PbnTable {
 public:
  PbnTable(const PbnGame& game, PbnTag tag);

  /// Moves to the next row; false past the last. An empty line ends the table.
  bool NextRow();

  /// The cell of the current row under the first of these columns that knows it: in any letter
  /// case, without the quotes, escapes and blanks around it. Empty where none does.
  std::string Cell(std::initializer_list<std::string_view> columns) const;

 private:
  const PbnGame& game_;
  const PbnField& field_;
  std::vector<std::string> columns_;  // in upper case, without what is said of order and width
  std::vector<std::string_view> cells_;
  std::size_t next_ = 0;  // piece
};

}  // namespace tricklet
