#include "analysis/par.h"

#include <array>
#include <random>

#include <gtest/gtest.h>

#include "analysis/dds_types.h"
#include "analysis/get_dds.h"
#include "analysis/shared_library.h"
#include "analysis/solver_library.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

/// Tricks of North-South and of East-West in clubs, diamonds, hearts, spades, no-trump.
MakeableTable Table(std::array<std::int16_t, 5> northSouth, std::array<std::int16_t, 5> eastWest) {
  MakeableTable table;
  for (const TableStrain strain : kAllTableStrains) {
    const auto index = static_cast<std::size_t>(strain);
    table[TableSeat::North][strain] = table[TableSeat::South][strain] = northSouth.at(index);
    table[TableSeat::East][strain] = table[TableSeat::West][strain] = eastWest.at(index);
  }
  return table;
}

TEST(Par, HandWorkedCases) {
  MakeableTable oneDeclarer = Table({6, 6, 6, 6, 9}, {4, 4, 4, 4, 4});
  oneDeclarer[TableSeat::South][TableStrain::NoTrump] = 8;
  const MakeableTable bothMake1NT = Table({5, 5, 5, 5, 7}, {5, 5, 5, 5, 7});
  using enum Vulnerability;
  const struct {
    MakeableTable table;
    Seat dealer;
    Vulnerability vulnerability;
    const char* text;
  } kCases[] = {
      {Table({11, 6, 6, 6, 9}, {2, 3, 3, 3, 3}), Seat::North, None, "Par 3NT=, 5C= NS +400"},
      {Table({6, 6, 6, 6, 6}, {6, 6, 6, 6, 6}), Seat::South, All, "Par All Pass 0"},
      {bothMake1NT, Seat::South, All, "Par 1NT= NS +90"},
      {bothMake1NT, Seat::West, All, "Par 1NT= EW +90"},  // the dealer's side has it
      {Table({6, 6, 8, 6, 6}, {7, 7, 5, 8, 7}), Seat::North, None, "Par 3Hx-1 EW +100"},
      {oneDeclarer, Seat::North, None, "Par 3NT= by North NS +400"},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(ParText(ComputePar(c.table, c.dealer, c.vulnerability)), c.text);
  }
}

/// The solver library's own par, as a second opinion.
struct LibraryPar {
  std::int32_t number;
  std::int32_t score;
  std::array<std::array<char, 10>, 10> contracts;
};
using DealerPar = std::int32_t(dds::TableByStrain*, LibraryPar*, std::int32_t, std::int32_t);

TEST(Par, AgreesWithTheSolverLibrarysOwnOnRandomTables) {
  const auto solver = LoadSolver({});  // sees to it that the library's end does no harm
  ASSERT_EQ(solver->Missing(), "");
#ifdef _WIN32
  const SharedLibrary library("dds.dll");
#else
  const SharedLibrary library("libdds.so.0");
#endif
  auto* dealerPar = library.Entry<DealerPar>("DealerPar");
  ASSERT_NE(dealerPar, nullptr);
  std::mt19937 random(3);
  constexpr std::array kVulnerabilities{Vulnerability::None, Vulnerability::All,
                                        Vulnerability::NorthSouth, Vulnerability::EastWest};
  for (int round = 0; round < test::Repetitions(4000); ++round) {
    SolverRecord record{};
    dds::TableByStrain theirs{};
    for (std::size_t strain = 0; strain < kStrains; ++strain) {
      // What one side can take the other cannot, give or take the lead.
      const int northSouth = static_cast<int>(random() % 14);
      for (std::size_t seat = 0; seat < kSeats; ++seat) {
        int tricks = seat % 2 == 0 ? northSouth : 13 - northSouth;
        if (random() % 4 == 0 && tricks > 0) --tricks;
        record.at(seat * kStrains + strain) = theirs.tricks.at(strain).at(seat) = tricks;
      }
    }
    const MakeableTable table = ToMakeable(record);
    for (const Seat dealer : kAllSeats) {
      const auto code = random() % 4;
      LibraryPar par{};
      ASSERT_EQ(dealerPar(&theirs, &par, IndexOf(dealer), static_cast<std::int32_t>(code)), 1);
      const int ours = ComputePar(table, dealer, kVulnerabilities.at(code)).score;
      ASSERT_EQ(ours, par.score) << "round " << round << " dealer " << IndexOf(dealer);
    }
  }
}

}  // namespace
}  // namespace tricklet
