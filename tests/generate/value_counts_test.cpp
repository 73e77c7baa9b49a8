#include "generate/value_counts.h"

#include <sstream>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

std::string Counted(const std::vector<ValueRange>& ranges,
                    const std::vector<std::vector<std::int32_t>>& values) {
  ValueCounts counts(ranges);
  for (const auto& each : values) counts.Add(each.data());
  std::ostringstream out;
  counts.Write(out, "t");
  return out.str();
}

/// The layouts are those that dealer (Debian 20211121) prints.
TEST(ValueCounts, AreWrittenAsByDealer) {
  const ValueRange rows{.low = 9, .high = 10};
  const ValueRange columns{.low = 2, .high = 2};
  EXPECT_EQ(Counted({rows}, {{9}, {11}, {12}, {9}}),
            "Frequency t:\n"
            "    9\t       2\n"
            "   10\t       0\n"
            "High\t       2\n");
  EXPECT_EQ(Counted({rows, columns}, {{9, 2}, {2000000000, 2}, {-2000000000, 1}, {9, 3}, {9, 3}}),
            "Frequency t:\n"
            "        Low      2   High    Sum\n"
            "Low       1      0      0      1\n"
            "   9      0      1      2      3\n"
            "  10      0      0      0      0\n"
            "High      0      1      0      1\n"
            "Sum       1      2      2      5\n"
            "\n");
}

}  // namespace
}  // namespace tricklet
