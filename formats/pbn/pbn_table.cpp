#include "formats/pbn/pbn_table.h"

#include <algorithm>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kBlanks = " \t\v\f";

/// Appends the cells of a line, those in quotes without them; no more than `most` in all.
void AddCells(std::string_view line, std::size_t most, std::vector<std::string_view>& cells) {
  while (cells.size() < most) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty()) return;
    const bool quoted = line.front() == '"';
    if (quoted) line.remove_prefix(1);
    const auto end = quoted ? line.find('"') : line.find_first_of(kBlanks);
    cells.push_back(line.substr(0, end));
    line.remove_prefix(std::min(cells.back().size() + (quoted ? 1 : 0), line.size()));
  }
}

/// "-Rank\3R" is "RANK".
std::string ColumnName(std::string_view column) {
  column = Trim(column.substr(0, column.find('\\')));
  if (column.starts_with('+') || column.starts_with('-')) column.remove_prefix(1);
  return ToUpper(column);
}

}  // namespace

PbnTable::PbnTable(const PbnGame& game, PbnTag tag)
    : game_(game), field_(game.fields[tag]), next_(field_.firstPiece) {
  // No table has more columns.
  constexpr std::size_t kMostColumns = 100;
  std::string_view rest = field_.value;
  while (!rest.empty() && columns_.size() < kMostColumns) {
    const std::string_view column = rest.substr(0, rest.find(';'));
    columns_.push_back(ColumnName(column));
    rest.remove_prefix(std::min(column.size() + 1, rest.size()));
  }
}

bool PbnTable::NextRow() {
  cells_.clear();
  while (next_ < field_.endPiece && game_.pieces[next_].text.empty()) {
    if (next_ > field_.firstPiece) return false;
    ++next_;
  }
  if (next_ >= field_.endPiece) return false;
  const int line = game_.pieces[next_].line;
  for (; next_ < field_.endPiece && game_.pieces[next_].line == line; ++next_) {
    AddCells(game_.pieces[next_].text, columns_.size(), cells_);
  }
  return true;
}

PbnTable::Column PbnTable::Find(std::initializer_list<std::string_view> names) const {
  for (const std::string_view name : names) {
    const auto column = std::find(columns_.begin(), columns_.end(), name);
    if (column != columns_.end()) return static_cast<std::size_t>(column - columns_.begin());
  }
  return std::nullopt;
}

std::string PbnTable::Cell(Column column) const {
  if (!column || *column >= cells_.size() || IsUnknownPbn(cells_[*column])) return {};
  std::string cell = PbnText(cells_[*column]);
  return IsUnknownPbn(cell) ? "" : cell;
}

}  // namespace tricklet
