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

  /// The position of a column; nothing for one that the table has not.
  using Column = std::optional<std::size_t>;
  /// The first of these, their names in upper case, that the table has.
  Column Find(std::initializer_list<std::string_view> names) const;

  /// The cell of the current row without the quotes, escapes and blanks around it; empty where it
  /// is unknown or not there.
  std::string Cell(Column column) const;

 private:
  const PbnGame& game_;
  const PbnField& field_;
  std::vector<std::string> columns_;  // in upper case, without what is said of order and width
  std::vector<std::string_view> cells_;
  std::size_t next_ = 0;  // piece
};

}  // namespace tricklet
