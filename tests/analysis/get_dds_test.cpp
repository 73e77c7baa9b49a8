#include "analysis/get_dds.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/solver_library.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/support/library_fixture.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

using test::HandsOf;

constexpr const char* kDeal =
    "N:AKQ..JT9876.5432 J32.AKQJ.5.AKQJT T9876.T98.AKQ.98 54.765432.432.76";

TEST(GetDDS, WarnsOrTellsTheSolversOwnWords) {
  Board board;
  board.hands = HandsOf("N:AKQ..JT987.5432 J32.AKQJ.5.AKQJT T9876.T98.AKQ.98 54.765432.432.76");
  board.makeableValid = true;
  test::FakeSolver solver;
  test::ScriptedHost host;
  EXPECT_FALSE(GetDDS(board, solver, host, false));
  host.ExpectTell("Warning - hand North - AKQ..JT987.5432 has 12 cards.");
  EXPECT_FALSE(GetDDS(board, solver, host, true));
  EXPECT_TRUE(solver.solved.empty());
  board.hands = HandsOf(kDeal);
  solver.failure = "Too many tables";
  host.ExpectTell("Too many tables");
  EXPECT_FALSE(GetDDS(board, solver, host, true));
  EXPECT_EQ(board.makeable, MakeableTable());
  EXPECT_TRUE(board.makeableValid && !board.handChanged) << "the old table stays";
  board.makeableValid = false;
  solver.failure.clear();
  EXPECT_TRUE(GetDDS(board, solver, host, true));
  EXPECT_TRUE(board.makeableValid && board.handChanged);
  EXPECT_EQ(board.makeable, ToMakeable(test::FakeSolver::RecordOf(kDeal)));
}

#ifndef _WIN32
std::unique_ptr<Solver> LoadNamed(const char* library) {
  setenv("TRICKLET_SOLVER", library, 1);
  auto solver = LoadSolver("/nowhere/program");
  unsetenv("TRICKLET_SOLVER");
  return solver;
}

TEST(SolverLibrary, OneThatIsNamedIsUsedOrRefusedWithTheReason) {
  const test::TempFolder folder;
  const std::string whole = test::ReadFile(TRICKLET_FOREIGN_SOLVER);
  for (const std::size_t size : {10U, 64U, 200U, 5000U}) {
    test::WriteFile(folder.Path() / std::to_string(size), whole.substr(0, size));
  }
  test::WriteFile(folder.Path() / "text", std::string(100, 'x'));
  ASSERT_EQ(mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  const std::pair<const char*, const char*> kRefused[] = {
      {"none", "No such file"}, {"", "Not a file"},     {"pipe", "Not a file"},
      {"10", "incomplete"},     {"64", "incomplete"},   {"200", "incomplete"},
      {"5000", "incomplete"},   {"text", "invalid ELF"}};
  for (const auto& [name, reason] : kRefused) {
    const std::string path = (folder.Path() / name).string();
    const std::string missing = LoadNamed(path.c_str())->Missing();
    EXPECT_TRUE(missing.starts_with("TRICKLET_SOLVER names " + path + ",")) << missing;
    EXPECT_NE(missing.find(reason), std::string::npos) << missing;
  }
}

TEST(SolverLibrary, IsNotBelievedEverything) {
  const auto solver = LoadNamed(TRICKLET_FOREIGN_SOLVER);
  for (const auto& [answer, believed] : {std::pair("-1", false), {"0", true}, {"14", false}}) {
    const std::string deal = answer;
    SolverRecord record{};
    EXPECT_EQ(solver->Solve({&deal, 1}, {&record, 1}).empty(), believed) << answer;
  }
}
#endif

TEST(SolverLibrary, AgreesWithPublishedTables) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  std::ifstream file(TRICKLET_TEST_DATA "/double_dummy.txt");
  const auto most = static_cast<std::size_t>(std::max(2, test::Repetitions(10)));
  std::vector<HandTable> deals;
  std::vector<MakeableTable> expected;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#' || deals.size() == most) continue;
    deals.push_back(HandsOf(line.substr(0, line.find(';'))));
    std::istringstream numbers(line.substr(line.find(';') + 1));
    MakeableTable table;
    for (const Strain strain :
         {Strain::Spades, Strain::Hearts, Strain::Diamonds, Strain::Clubs, Strain::NoTrump}) {
      for (const Seat seat : kAllSeats) numbers >> table[ToTableSeat(seat)][ToTableStrain(strain)];
    }
    ASSERT_TRUE(numbers) << line;
    expected.push_back(table);
  }
  ASSERT_EQ(deals.size(), most);
  std::string failure;
  EXPECT_EQ(SolveDeals(*solver, deals, failure), expected);
  // one alone goes another way into the library
  Board board;
  board.hands = deals[0];
  test::ScriptedHost host;
  ASSERT_TRUE(GetDDS(board, *solver, host, true));
  EXPECT_EQ(board.makeable, expected[0]);
}

}  // namespace
}  // namespace tricklet
