// From a deal to its makeable table.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "core/board.h"
#include "core/host.h"

namespace tricklet {

/// The solver's record in the order of a makeable table.
MakeableTable ToMakeable(const SolverRecord& record);

/// Why a deal cannot be solved: "Warning - hand North - AK.2.3.4 has 5 cards." for the first hand
/// that does not hold 13 cards; empty when it can.
std::string DealWarning(const HandTable& hands);

/// Computes the board's table and flags the board as changed. False, with the old table in its
/// place, when a hand has a wrong number of cards or the solver is missing or fails; with
/// `showWarnings` the person is told why.
bool GetDDS(Board& board, Solver& solver, Host& host, bool showWarnings);

/// The tables of complete deals, at most `Solver::kBatch`, in their order. When the solver fails
/// the answer is empty and `failure` its text; else `failure` is empty.
std::vector<MakeableTable> SolveDeals(Solver& solver, const std::vector<HandTable>& deals,
                                      std::string& failure);

}  // namespace tricklet
