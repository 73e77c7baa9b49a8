#include "conditions/rarity.h"

#include <gtest/gtest.h>

#include "conditions/examples.h"

namespace tricklet {
namespace {

TEST(Rarity, IsToldAsFarAsASampleTells) {
  const std::pair<Rarity, const char*> kCases[] = {{{0, 0}, ""},
                                                   {{500, 500}, "Every deal"},
                                                   {{1000, 400}, "About 1 deal in 2.5"},
                                                   {{152345, 400}, "About 1 deal in 380"},
                                                   {{9876543, 3}, "About 1 deal in 3,300,000"},
                                                   {{124000, 0}, "Fewer than 1 deal in 120,000"}};
  for (const auto& [rarity, text] : kCases) EXPECT_EQ(RarityText(rarity), text);
}

/// A hand has a void in 5.1 % of all deals, by counting.
TEST(Rarity, IsThatOfCounting) {
  const std::atomic<bool> go{false};
  const auto script = ReadScript("shape(north, any 0xxx)").script;
  const Rarity rarity = EstimateRarity(script, std::chrono::seconds(20), go);
  ASSERT_GE(rarity.accepted, 400);
  EXPECT_NEAR(static_cast<double>(rarity.accepted) / static_cast<double>(rarity.tried), 0.051,
              0.01);
}

TEST(ConditionExamples, CanBeReadAndDealt) {
  const std::atomic<bool> go{false};
  for (const ConditionExample& example : ConditionExamples()) {
    const auto script = ReadScript(example.text).script;
    ASSERT_TRUE(script) << example.name;
    EXPECT_GT(EstimateRarity(script, std::chrono::seconds(20), go).accepted, 0) << example.name;
  }
}

}  // namespace
}  // namespace tricklet
