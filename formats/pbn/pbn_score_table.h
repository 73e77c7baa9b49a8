// The ScoreTable of a PBN game: what each pair of pairs did with the board.
#pragma once

#include <cstddef>
#include <string>

#include "core/notation.h"
#include "formats/pbn/pbn_games.h"
#include "formats/pbn/pbn_pairs.h"
#include "formats/pbn/pbn_table.h"
#include "formats/pbn/pbn_values.h"
#include "formats/results/pair_names.h"
#include "formats/results/table_record.h"

namespace tricklet {

/// The pairs of a file by their numbers.
struct PbnSession {
  PbnPairs pairs;
  PairNames names;  ///< of `pairs`
};

/// A cursor over the rows of the table. Game and session must outlive it.
class PbnScoreTable {
 public:
  PbnScoreTable(const PbnGame& game, const PbnSession& session);

  /// Moves to the next row; false past the last.
  bool NextRow() { return table_.NextRow(); }

  /// `common` with what the row knows of its table. A score that is no number is kept as a ruling.
  TableRecord Record(const TableRecord& common) const;

  /// How many tables the row stands for, at least 1.
  std::size_t Tables() const;

 private:
  using Column = PbnTable::Column;
  /// "Score", "Score_NS", "Score_EW".
  struct NumberColumns {
    Column own;
    PerSide<Column> of;
  };

  NumberColumns FindNumbers(const std::string& name) const;
  PbnNumbers Numbers(const NumberColumns& columns) const;
  std::string Ruling() const;
  void SetPlayers(TableRecord& record) const;

  PbnTable table_;
  const PbnSession& session_;
  Column contract_, declarer_, result_, lead_, room_, multiplicity_;
  NumberColumns score_, matchPoints_, percentage_, imps_;
  PerSide<Column> names_;
  PerSide<Column> pairs_;
  PerSeat<Column> players_;
  PerSeat<Column> playerNumbers_;
};

}  // namespace tricklet
