#include "simulation/simulation_run.h"

#include <cmath>

#include <gtest/gtest.h>

#include "analysis/get_dds.h"
#include "analysis/solver_library.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"

namespace tricklet::test {
namespace {

const char* const kDeal = "N:K652.K73.K54.742 J8.J98.AT83.JT98 Q7.AQ2.QJ96.AKQ6 AT943.T654.72.53";

SimulationPlan LeadPlan() {
  SimulationPlan plan;
  plan.hands = HandsOf(kDeal);
  plan.contract = {3, Strain::NoTrump, Doubling::Undoubled, Seat::South};
  plan.limit.deals = 40;
  return plan;
}

/// To its end. `interrupt`: every step is broken off once before it has dealt all.
std::unique_ptr<SimulationRun> Finished(const SimulationPlan& plan, Solver& solver,
                                        bool interrupt = false) {
  std::string why;
  auto run = SimulationRun::Begin(plan, solver, why);
  EXPECT_TRUE(run) << why;
  int asked = 0;
  while (run && run->Step([&] { return !interrupt || ++asked % 7 != 0; })) {
  }
  return run;
}

/// The tables of the solver are found by another of its calls.
TEST(Simulation, AgreesWithTheTablesOfItsDeals) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  SimulationPlan plan = LeadPlan();
  plan.limit.deals = 12;
  plan.question = SimulatedQuestion::Contract;
  plan.against = SimulatedContract{4, Strain::Hearts, Doubling::Doubled, Seat::North};
  const auto run = Finished(plan, *solver);
  plan.question = SimulatedQuestion::Lead;
  const auto leads = Finished(plan, *solver);
  const auto tricksOf = [&](const SimulationRun& of, TableSeat seat, TableStrain strain) {
    TrickCounts counts{};
    for (const HandTable& deal : of.Deals()) {
      std::string failure;
      const auto tables = SolveDeals(*solver, {deal}, failure);
      if (!tables.empty()) ++counts.at(static_cast<std::size_t>(tables.front()[seat][strain]));
    }
    return counts;
  };
  const auto table = std::get<ContractTable>(run->Table());
  EXPECT_EQ(table.deals, plan.limit.deals);
  EXPECT_EQ(table.first.declarerTricks, tricksOf(*run, TableSeat::South, TableStrain::NoTrump));
  ASSERT_TRUE(table.second);
  EXPECT_EQ(table.second->declarerTricks, tricksOf(*run, TableSeat::North, TableStrain::Hearts));
  double least = 0;  // no lead holds declarer to less than the table says
  const TrickCounts best = tricksOf(*leads, TableSeat::South, TableStrain::NoTrump);
  for (std::size_t tricks = 0; tricks < best.size(); ++tricks) {
    least += static_cast<double>(tricks) * static_cast<double>(best.at(tricks)) / plan.limit.deals;
  }
  const auto cards = std::get<CardTable>(leads->Table());
  for (const CardRow& row : cards.rows) {
    EXPECT_LE(row.tricks.mean, kCardsInHand - least + 1e-9);
  }
}

/// Declarer has twelve tricks from the top and nothing to squeeze with, so the thirteenth comes
/// just when the spades break. How often they do is in every book (E. Borel and A. Chéron, "Théorie
/// mathématique du bridge", 1940).
TEST(Simulation, MakesAsManyAsThePublishedBreaksSay) {
  struct Break {
    const char* deal;
    double percent;
  };
  const Break breaks[] = {{"N:6543.5432.5432.2 - AKQ2.AKQJ.AKQJ.A -", 67.83},   // 3-2
                          {"N:543.5432.5432.32 - AKQ2.AKQJ.AKQJ.A -", 35.53},   // 3-3
                          {"N:3.5432.432.65432 - AKQJ2.AKQJ.AKQ.A -", 62.17}};  // 4-3
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  for (const auto& [deal, percent] : breaks) {
    SCOPED_TRACE(deal);
    SimulationPlan plan;
    plan.question = SimulatedQuestion::Contract;
    plan.hands = HandsOf(deal);
    plan.contract = {7, Strain::NoTrump, Doubling::Undoubled, Seat::South};
    plan.limit = {4000, false};
    const auto table = std::get<ContractTable>(Finished(plan, *solver)->Table());
    const TrickCounts& tricks = table.first.declarerTricks;
    const auto deals = static_cast<double>(table.deals);
    const double made = 100 * static_cast<double>(tricks.at(13)) / deals;
    EXPECT_NEAR(made, percent, 3 * std::sqrt(percent * (100 - percent) / deals));
    EXPECT_EQ(tricks.at(12) + tricks.at(13), table.deals);
  }
}

TEST(Simulation, TheSameSeedGivesTheSameTable) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  SimulationPlan plan = LeadPlan();
  plan.limit.deals = 20;
  const auto text = [&](bool interrupt) {
    return TabText(SheetOf(Finished(plan, *solver, interrupt)->Table()));
  };
  const std::string first = text(false);
  EXPECT_EQ(text(true), first) << "however often it is broken off";
  plan.seed = 2;
  EXPECT_NE(text(false), first);
}

/// West leads: a spade always beats 3NT by one; a diamond does, by two, on every other deal, and
/// else lets it make with an overtrick; the rest lets it make.
TEST(Simulation, ComparesTheCardsOfEachDeal) {
  FakeSolver solver;
  int asked = 0;
  solver.solveCards = [&](const SolverPosition& position) {
    std::vector<CardScore> scores;
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (!position.cardsLeft[position.leader][card.suit].Has(card.rank)) continue;
      const bool diamond = card.suit == Suit::Diamonds;
      const int often = asked % 2 == 0 ? 6 : 3;
      scores.push_back({card, card.suit == Suit::Spades ? 5 : diamond ? often : 4});
    }
    ++asked;
    return scores;
  };
  const auto table = std::get<CardTable>(Finished(LeadPlan(), solver)->Table());
  ASSERT_EQ(table.rows.size(), 4U) << "one of each suit";
  const CardRow& spades = table.rows[0];
  const CardRow& diamonds = table.rows[1];
  EXPECT_EQ(spades.cards.size(), 5U);
  EXPECT_EQ(diamonds.cards.front(), CardOf("D7"));
  EXPECT_EQ(spades.success.mean, 100);
  EXPECT_EQ(diamonds.success.mean, 50);
  EXPECT_EQ(diamonds.tricks.mean, 4.5);
  EXPECT_EQ(diamonds.tricksBehind.mean, 0.5);
  // Half the differences are 2, half -1, of 40: a standard error of 1.5 * sqrt(1 / 39).
  EXPECT_NEAR(diamonds.tricksBehind.error, 1.959964 * 1.5 / std::sqrt(39), 1e-6);
  // Of 12 other cards 4 are spades. 4 x 50 and 2 or none of the diamonds, and the six others
  // beaten.
  EXPECT_NEAR(spades.matchpoints.mean, (4 * 50 + 2 * 50 + 6 * 100) / 12.0, 1e-9);
  // +50 against +100, then against -430; +50 against -400: 2, 10 and 10 IMPs.
  EXPECT_NEAR(spades.imps.mean, (2 * (-2 + 10) / 2.0 + 6 * 10) / 12, 1e-9);
  EXPECT_EQ(diamonds.declarerTricks.at(7), 20);
  EXPECT_EQ(diamonds.declarerTricks.at(10), 20);
}

/// All deals are alike, so it ends by itself as soon as it may.
TEST(Simulation, EndsWhenTheErrorsAreSmall) {
  FakeSolver solver;
  solver.solveCards = [](const SolverPosition& position) {
    std::vector<CardScore> scores;
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (position.cardsLeft[position.leader][card.suit].Has(card.rank)) {
        scores.push_back({card, 4});
      }
    }
    return scores;
  };
  SimulationPlan plan = LeadPlan();
  plan.limit.deals = 5000;
  EXPECT_EQ(Finished(plan, solver)->Progress().end, SimulationEnd::Precise);
  EXPECT_EQ(Finished(plan, solver)->Progress().deals, 100);
  plan.limit = {150, false};
  EXPECT_EQ(Finished(plan, solver)->Progress().deals, 150);
  std::string why;
  plan.condition = "hcp(north) > 20 && hcp(south) > 20";
  const auto never = SimulationRun::Begin(plan, solver, why);
  ASSERT_TRUE(never);
  int asked = 0;
  EXPECT_TRUE(never->Step([&] { return ++asked < 5; })) << "can be broken off while it deals";
  plan.condition = "predeal north DAK\npredeal clubs(south) == 5\nhearts(east) == 4";
  const auto predealt = Finished(plan, solver);
  for (const HandTable& deal : predealt->Deals()) {
    EXPECT_TRUE(deal[Seat::North][Suit::Diamonds].Has(Rank::Ace));
    EXPECT_EQ(deal[Seat::South][Suit::Clubs].Count(), 5);
    EXPECT_EQ(deal[Seat::East][Suit::Hearts].Count(), 4);
  }
  solver.solveCards = {};
  EXPECT_EQ(Finished(plan, solver)->Progress().end, SimulationEnd::Failed);
}

TEST(Simulation, SaysWhatCannotBe) {
  FakeSolver solver;
  const auto whyNot = [&](auto change) {
    SimulationPlan plan = LeadPlan();
    plan.question = SimulatedQuestion::Play;
    change(plan);
    std::string why;
    EXPECT_EQ(SimulationRun::Begin(plan, solver, why), nullptr);
    return why;
  };
  PerSeat<bool> all;
  all.fill(true);
  EXPECT_EQ(whyNot([](auto& plan) { plan.cards = {CardOf("SJ")}; }),
            "\u2660J cannot be played by West now");
  EXPECT_EQ(whyNot([](auto& plan) { plan.hands[Seat::West][Suit::Clubs] = {}; }),
            "West is on play: all 13 cards of that hand must be known");
  EXPECT_EQ(whyNot([&](auto& plan) { plan.known = all; }),
            "All cards are known: there is nothing to deal");
  EXPECT_EQ(whyNot([](auto& plan) { plan.condition = "predeal north SA"; }),
            "The \u2660A is known to be with West");
  EXPECT_EQ(whyNot([](auto& plan) { plan.condition = "predeal spades(west) == 3"; }),
            "No deal agrees with the cards that are known");
  EXPECT_EQ(whyNot([](auto& plan) { plan.condition = "hcp(nort)"; }).substr(0, 16),
            "Line 1, column 5");
  all[Seat::West] = false;
  EXPECT_EQ(whyNot([&](auto& plan) { plan.known = all; }),
            "West is on play, so its cards must be known");
}

}  // namespace
}  // namespace tricklet::test
