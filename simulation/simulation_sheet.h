// The tables of a simulation as texts, for the command line, files and the clipboard.
#pragma once

#include <string>
#include <vector>

#include "simulation/card_tally.h"
#include "simulation/contract_tally.h"

namespace tricklet {

struct SimulationSheet {
  std::string title;                           ///< "Opening lead by West against 3NT by South"
  std::vector<std::string> remarks;            ///< how to read it, whole sentences
  std::vector<std::string> header;             ///< "Error" is of the column before
  std::vector<std::vector<std::string>> rows;  ///< a cell for each column; cards as "SQJ"
};

SimulationSheet SheetOf(const CardTable& table);
SimulationSheet SheetOf(const ContractTable& table);

/// "Opening lead by West against 3NT by South", "Card of West after 17 in 3NT by South".
std::string TitleOf(const CardTable& table);
/// "3NT by South", "3NT by South against 4♥ by South".
std::string TitleOf(const ContractTable& table);

/// Header and rows with tabs between the cells.
std::string TabText(const SimulationSheet& sheet);
/// Header and rows as comma-separated values, the title and the remarks below them.
std::string CsvText(const SimulationSheet& sheet);

}  // namespace tricklet
