// Numbers and names of a report in words.
#pragma once

#include <optional>

#include <QString>

#include "review/session_report.h"

namespace tricklet::ui {

/// "+120", "0", "\u2212170": rounded to whole points.
QString SignedText(double points);
/// "0.38": with two decimals, a point whatever the locale.
QString MeanText(double mean);

/// "Pairs", "Players", "Teams".
QString EntrantsTitle(Contestants contestants);
/// "Pair", "Player", "Team".
QString EntrantTitle(Contestants contestants);

/// "7 Ann & Bob", or as much of it as is known.
QString EntrantText(const SessionReport& report, int entrant);

/// "N-S", "E-W".
QString SideText(Side side);
/// The side on which `entrant` sat at `table`; nothing where it did not.
std::optional<Side> SideAt(const ReportTable& table, int entrant);

/// "4\u2660", "Pass"; empty where it is not known.
QString ContractText(const ReportTable& table);

/// Tricks that `side` gave away at a table; nothing where its play has not been reviewed.
std::optional<int> GivenBy(const ReportTable& table, Side side);

/// What `entrant` bid, made and missed, in sentences.
QString ContractsText(const ReportEntrant& entrant);

/// Par and who beat it on a board, and below it the leads that beat its contracts: those of a few.
QString BoardText(const SessionReport& report, const ReportBoard& board);

}  // namespace tricklet::ui
