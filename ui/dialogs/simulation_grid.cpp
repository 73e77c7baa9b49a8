#include "ui/dialogs/simulation_grid.h"

#include <QCoreApplication>

#include "core/text.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(frmSimulate)
};

ReportCell Number(const Estimate& estimate, int decimals) {
  QString text = ToQt(DecimalText(estimate.mean, decimals)) + QStringLiteral(" \u00B1 ") +
                 ToQt(DecimalText(estimate.error, decimals));
  text.replace(u'-', u'\u2212');  // the minus sign of scores
  return {text, estimate.mean};
}

ReportCell Text(const std::string& text) {
  return {ToQt(text), std::nullopt};
}

/// "♠ Q J"
std::string CardsText(const std::vector<Card>& cards) {
  std::string text(SuitSymbol[cards.front().suit]);
  for (const Card card : cards) text += " " + std::string(RankText[card.rank]);
  return text;
}

ReportGrid GridOfCards(const CardTable& table) {
  ReportGrid grid;
  const QString often = table.declaring ? Words::tr("Makes it %") : Words::tr("Beats it %");
  grid.columns = {
      {Words::tr("Card"),
       Words::tr("Adjacent cards that led to the same on all deals are one row."), false},
      {often, Words::tr("How often the side of the card makes, or beats, the contract."), true,
       false, CellBar::FromLeft},
      {Words::tr("Tricks"), Words::tr("Tricks of the side of the card, on average.")},
      {Words::tr("Behind"),
       Words::tr("Tricks less than the first row, by the differences on the same deals.")},
      {Words::tr("MP %"),
       Words::tr("Match points against each other card that could be played on the same deal.")},
      {Words::tr("IMPs"),
       Words::tr("IMPs against each other card that could be played on the same deal.")}};
  grid.rows.reserve(table.rows.size());
  for (const CardRow& row : table.rows) {
    grid.rows.push_back({Text(CardsText(row.cards)), Number(row.success, 1), Number(row.tricks, 2),
                         Number(row.tricksBehind, 2), Number(row.matchpoints, 1),
                         Number(row.imps, 2)});
  }
  return grid;
}

ReportGrid GridOfContracts(const ContractTable& table) {
  ReportGrid grid;
  grid.columns = {
      {Words::tr("Contract"), Words::tr("The contract and its declarer."), false},
      {Words::tr("Makes %"), Words::tr("How often it makes."), true, false, CellBar::FromLeft},
      {Words::tr("Tricks"), Words::tr("Tricks of declarer, on average.")},
      {Words::tr("Score"), Words::tr("Score of the declaring side, on average.")},
      {Words::tr("Game %"), Words::tr("How often there are the tricks of a game.")},
      {Words::tr("Slam %"), Words::tr("How often there are twelve tricks.")},
      {Words::tr("Grand %"), Words::tr("How often there are thirteen tricks.")}};
  const auto append = [&grid](const ContractFigures& figures) {
    const std::string name = ContractName(figures.contract) + " " +
                             std::string(SeatName[figures.contract.declarer].substr(0, 1));
    grid.rows.push_back({Text(name), Number(figures.makes, 1), Number(figures.tricks, 2),
                         Number(figures.score, 0), Number(figures.game, 1), Number(figures.slam, 1),
                         Number(figures.grandSlam, 1)});
  };
  if (table.deals == 0) return grid;
  append(table.first);
  if (table.second) append(*table.second);
  return grid;
}

const CardRow* CardRowOf(const CardTable& table, int row) {
  if (table.rows.empty()) return nullptr;
  const bool there = row >= 0 && row < static_cast<int>(table.rows.size());
  return &table.rows[there ? static_cast<std::size_t>(row) : 0];
}

const ContractFigures& FiguresOf(const ContractTable& table, int row) {
  return row == 1 && table.second ? *table.second : table.first;
}

}  // namespace

ReportGrid GridOf(const SimulationTable& table) {
  if (const auto* cards = std::get_if<CardTable>(&table)) return GridOfCards(*cards);
  return GridOfContracts(std::get<ContractTable>(table));
}

QString TitleOf(const SimulationTable& table) {
  return std::visit([](const auto& each) { return ToQt(tricklet::TitleOf(each)); }, table);
}

TrickCounts CountsOf(const SimulationTable& table, int row) {
  if (const auto* cards = std::get_if<CardTable>(&table)) {
    const CardRow* found = CardRowOf(*cards, row);
    return found != nullptr ? found->declarerTricks : TrickCounts{};
  }
  return FiguresOf(std::get<ContractTable>(table), row).declarerTricks;
}

int NeededIn(const SimulationTable& table, int row) {
  if (const auto* cards = std::get_if<CardTable>(&table)) return cards->contract.TricksNeeded();
  return FiguresOf(std::get<ContractTable>(table), row).contract.TricksNeeded();
}

}  // namespace tricklet::ui
