// How often values occur over deals: the table of a "frequency".
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "conditions/script.h"

namespace tricklet {

class ValueCounts {
 public:
  /// One range, or two: then rows and columns.
  explicit ValueCounts(std::vector<ValueRange> ranges);

  /// A value for each of the ranges; those outside of one are counted together, below and above.
  void Add(const std::int32_t* values);
  /// In the layout of the program dealer.
  void Write(std::ostream& out, const std::string& title) const;

 private:
  void WriteRow(std::ostream& out) const;
  void WriteRowsAndColumns(std::ostream& out) const;

  std::vector<ValueRange> ranges_;
  std::vector<std::int64_t> counts_;  // row by row, each with a place below its range and above
};

}  // namespace tricklet
