#include "generate/value_counts.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <utility>

namespace tricklet {
namespace {

std::size_t PlacesOf(const ValueRange& range) {
  return static_cast<std::size_t>(
      std::max<std::int64_t>(2, std::int64_t{range.high} - range.low + 3));
}

/// Where a value is counted: 0 below the range, the last place above it.
std::size_t PlaceOf(std::int32_t value, const ValueRange& range) {
  if (value < range.low) return 0;
  if (value > range.high) return PlacesOf(range) - 1;
  return static_cast<std::size_t>(std::int64_t{value} - range.low + 1);
}

bool IsOutside(std::size_t place, const ValueRange& range) {
  return place == 0 || place + 1 == PlacesOf(range);
}

/// "Low", a value, "High".
std::string Heading(std::size_t place, const ValueRange& range) {
  if (place == 0) return "Low";
  if (place + 1 == PlacesOf(range)) return "High";
  return std::to_string(range.low + static_cast<std::int64_t>(place) - 1);
}

constexpr int kCellWidth = 7;

}  // namespace

ValueCounts::ValueCounts(std::vector<ValueRange> ranges) : ranges_(std::move(ranges)) {
  std::size_t places = 1;
  for (const ValueRange& range : ranges_) places *= PlacesOf(range);
  counts_.resize(places);
}

void ValueCounts::Add(const std::int32_t* values) {
  std::size_t place = 0;
  for (const ValueRange& range : ranges_) {
    place = place * PlacesOf(range) + PlaceOf(*values++, range);
  }
  ++counts_[place];
}

void ValueCounts::Write(std::ostream& out, const std::string& title) const {
  out << "Frequency " << title << ":\n";
  if (ranges_.size() == 1) {
    WriteRow(out);
  } else {
    WriteRowsAndColumns(out);
  }
}

void ValueCounts::WriteRow(std::ostream& out) const {
  const ValueRange& range = ranges_.front();
  for (std::size_t place = 0; place < counts_.size(); ++place) {
    const bool outside = IsOutside(place, range);
    if (outside && counts_[place] == 0) continue;
    out << std::setw(outside ? 0 : 5) << Heading(place, range) << '\t' << std::setw(8)
        << counts_[place] << '\n';
  }
}

void ValueCounts::WriteRowsAndColumns(std::ostream& out) const {
  const ValueRange& rows = ranges_.front();
  const ValueRange& columns = ranges_.back();
  const std::size_t width = PlacesOf(columns);
  out << "    ";
  for (std::size_t column = 0; column < width; ++column) {
    out << std::setw(kCellWidth) << Heading(column, columns);
  }
  out << "    Sum\n";
  std::vector<std::int64_t> sums(width + 1);
  for (std::size_t row = 0; row < PlacesOf(rows); ++row) {
    out << (IsOutside(row, rows) ? std::left : std::right) << std::setw(4) << Heading(row, rows)
        << std::right;
    std::int64_t sum = 0;
    for (std::size_t column = 0; column < width; ++column) {
      const std::int64_t count = counts_[row * width + column];
      sum += count;
      sums[column] += count;
      out << std::setw(kCellWidth) << count;
    }
    sums[width] += sum;
    out << std::setw(kCellWidth) << sum << '\n';
  }
  out << "Sum ";
  for (const std::int64_t sum : sums) out << std::setw(kCellWidth) << sum;
  out << "\n\n";
}

}  // namespace tricklet
