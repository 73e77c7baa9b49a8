#include "analysis/makeable_view.h"

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(MakeableView, ShowsContractsOrTricks) {
  using Cells = std::array<std::string, kStrains>;
  MakeableTable table;
  table[TableSeat::South][TableStrain::Spades] = 10;
  table[TableSeat::East][TableStrain::NoTrump] = 6;
  table[TableSeat::East][TableStrain::Clubs] = 13;
  const MakeableView contracts = MakeMakeableView(table, true);
  EXPECT_EQ(contracts.caption, "Makeable contracts");
  EXPECT_EQ(contracts.rows[1].cells, (Cells{"-", "-", "-", "7", "-"}));
  EXPECT_EQ(contracts.rows[2].seat, "South");
  EXPECT_EQ(contracts.rows[2].cells, (Cells{"4", "-", "-", "-", "-"}));
  const MakeableView tricks = MakeMakeableView(table, false);
  EXPECT_EQ(tricks.caption, "Makeable tricks");
  EXPECT_EQ(tricks.rows[1].cells, (Cells{"-", "-", "-", "13", "6"}));
}

}  // namespace
}  // namespace tricklet
