#include "simulation/simulation_sheet.h"

#include "core/csv.h"
#include "core/text.h"
#include "simulation/simulation.h"

namespace tricklet {
namespace {

void AppendEstimate(std::vector<std::string>& cells, const Estimate& estimate, int decimals) {
  cells.push_back(DecimalText(estimate.mean, decimals));
  cells.push_back(DecimalText(estimate.error, decimals));
}

/// "SQJ", "H10".
std::string LettersOf(const std::vector<Card>& cards) {
  std::string text(StrainLetter[ToStrain(cards.front().suit)]);
  for (const Card card : cards) text += RankText[card.rank];
  return text;
}

std::string ByDeclarer(const SimulatedContract& contract) {
  return ContractName(contract) + " by " + std::string(SeatName[contract.declarer]);
}

/// In letters, which every spreadsheet has: "4Hx".
std::string PlainName(const SimulatedContract& contract) {
  return std::to_string(contract.level) + std::string(StrainLetter[contract.strain]) +
         std::string(static_cast<std::size_t>(contract.doubling), 'x');
}

constexpr const char* kErrors = "Error: half the width of the interval of 95 %.";

std::vector<std::string> RowOf(const ContractFigures& figures, const Estimate* imps,
                               const Estimate* matchpoints) {
  constexpr int kPlaces = 2;
  std::vector<std::string> cells{PlainName(figures.contract),
                                 std::string(SeatName[figures.contract.declarer])};
  AppendEstimate(cells, figures.makes, 1);
  AppendEstimate(cells, figures.tricks, kPlaces);
  AppendEstimate(cells, figures.score, 0);
  AppendEstimate(cells, figures.game, 1);
  AppendEstimate(cells, figures.slam, 1);
  AppendEstimate(cells, figures.grandSlam, 1);
  if (imps != nullptr) AppendEstimate(cells, *imps, kPlaces);
  if (matchpoints != nullptr) AppendEstimate(cells, *matchpoints, 1);
  for (const std::int64_t deals : figures.declarerTricks) cells.push_back(std::to_string(deals));
  return cells;
}

}  // namespace

std::string TitleOf(const CardTable& table) {
  const std::string seat(SeatName[table.onPlay]);
  if (table.cardsPlayed == 0) {
    return "Opening lead by " + seat + " against " + ByDeclarer(table.contract);
  }
  return "Card of " + seat + " after " + std::to_string(table.cardsPlayed) + " in " +
         ByDeclarer(table.contract);
}

constexpr const char* kAgainstOthers =
    "MP and IMPs: against each other card that could be played on the same deal, averaged; 50 % "
    "and 0 where all are equal.";

std::string TitleOf(const ContractTable& table) {
  const std::string first = ByDeclarer(table.first.contract);
  return table.second ? first + " against " + ByDeclarer(table.second->contract) : first;
}

SimulationSheet SheetOf(const CardTable& table) {
  SimulationSheet sheet;
  sheet.title = TitleOf(table);
  sheet.remarks = {std::string(kEachDealDoubleDummy), kErrors,
                   "Behind: the first row less this one, by differences on the same deals.",
                   kAgainstOthers, "Adjacent cards that led to the same on all deals are one row."};
  sheet.header = {"Card",  table.declaring ? "Makes %" : "Beats %",
                  "Error", "Tricks",
                  "Error", "Behind %",
                  "Error", "Behind tricks",
                  "Error", "MP %",
                  "Error", "IMPs",
                  "Error"};
  constexpr int kPlaces = 2;
  sheet.rows.reserve(table.rows.size());
  for (const CardRow& row : table.rows) {
    std::vector<std::string> cells{LettersOf(row.cards)};
    AppendEstimate(cells, row.success, 1);
    AppendEstimate(cells, row.tricks, kPlaces);
    AppendEstimate(cells, row.successBehind, 1);
    AppendEstimate(cells, row.tricksBehind, kPlaces);
    AppendEstimate(cells, row.matchpoints, 1);
    AppendEstimate(cells, row.imps, kPlaces);
    sheet.rows.push_back(std::move(cells));
  }
  return sheet;
}

SimulationSheet SheetOf(const ContractTable& table) {
  SimulationSheet sheet;
  sheet.title = TitleOf(table) + ", " + std::string(VulText[table.vulnerability]);
  sheet.remarks = {std::string(kEachDealDoubleDummy), kErrors};
  sheet.header = {"Contract", "By",     "Makes %", "Error",  "Tricks", "Error",   "Score",
                  "Error",    "Game %", "Error",   "Slam %", "Error",  "Grand %", "Error"};
  if (table.comparison) {
    for (const char* name : {"IMPs", "Error", "MP %", "Error"}) sheet.header.emplace_back(name);
  }
  for (std::size_t tricks = 0; tricks < table.first.declarerTricks.size(); ++tricks) {
    sheet.header.push_back(std::to_string(tricks));
  }
  if (table.deals == 0) return sheet;
  if (!table.comparison || !table.second) {
    sheet.rows = {RowOf(table.first, nullptr, nullptr)};
    return sheet;
  }
  const ContractComparison& comparison = *table.comparison;
  constexpr double kAll = 100;
  const Estimate otherImps{-comparison.imps.mean, comparison.imps.error};
  const Estimate otherPoints{kAll - comparison.matchpoints.mean, comparison.matchpoints.error};
  sheet.rows = {RowOf(table.first, &comparison.imps, &comparison.matchpoints),
                RowOf(*table.second, &otherImps, &otherPoints)};
  sheet.remarks.emplace_back(
      "IMPs and MP (100, 50 or 0 % on a deal): against the other contract on the same deals.");
  sheet.remarks.push_back(ComparisonText(table) + ".");
  return sheet;
}

std::string TabText(const SimulationSheet& sheet) {
  std::string text;
  const auto append = [&text](const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) text += (i > 0 ? "\t" : "") + cells[i];
    text += '\n';
  };
  append(sheet.header);
  for (const auto& row : sheet.rows) append(row);
  return text;
}

std::string CsvText(const SimulationSheet& sheet) {
  std::string text = CsvLine(sheet.header);
  for (const auto& row : sheet.rows) text += CsvLine(row);
  text += CsvLine({sheet.title});
  for (const std::string& remark : sheet.remarks) text += CsvLine({remark});
  return text;
}

}  // namespace tricklet
