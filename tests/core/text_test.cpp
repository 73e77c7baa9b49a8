#include "core/text.h"

#include <limits>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(Text, SingleNumbersAreShortAndHaveNoExponent) {
  EXPECT_EQ(ShortestText(7), "7");
  EXPECT_EQ(ShortestText(-0.1F), "-0.1");
  EXPECT_EQ(ShortestText(12.25F), "12.25");
  EXPECT_EQ(ShortestText(1e-5F), "0.00001");
  EXPECT_EQ(ShortestText(std::numeric_limits<float>::max()).size(), 39U);
}

}  // namespace
}  // namespace tricklet
