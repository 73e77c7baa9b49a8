#include "core/csv.h"

#include <string_view>

#include <gtest/gtest.h>

namespace tricklet::test {
namespace {

TEST(Csv, Cells) {
  struct Case {
    std::string_view text;
    std::string_view cell;
  };
  for (const Case& one :
       {Case{"Ann & Bob", "Ann & Bob"}, Case{"", ""}, Case{"a,b", "\"a,b\""},
        Case{"the \"Fox\"", "\"the \"\"Fox\"\"\""}, Case{"a\nb", "\"a\nb\""},
        Case{"-31.5", "-31.5"}, Case{"=1+1", "'=1+1"}, Case{"-1+1", "'-1+1"}, Case{"@x", "'@x"},
        Case{"+420", "'+420"}, Case{"=A1,\"b\"", "\"'=A1,\"\"b\"\"\""}, Case{"\tx", "'\tx"},
        Case{"-", "'-"}}) {
    EXPECT_EQ(CsvCell(one.text), one.cell);
  }
  EXPECT_EQ(CsvLine({"1", "", "a,b"}), "1,,\"a,b\"\r\n");
}

}  // namespace
}  // namespace tricklet::test
