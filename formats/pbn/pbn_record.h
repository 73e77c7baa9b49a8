// The fields of a table record from values of PBN.
#pragma once

#include <optional>
#include <string>

#include "core/notation.h"
#include "formats/pbn/pbn_values.h"
#include "formats/results/table_record.h"

namespace tricklet {

/// "N"; empty where there is none.
std::string SeatLetter(std::optional<Seat> seat);

/// In shortest form; empty where there is none.
std::string NumberText(std::optional<float> number);

/// The score is there, and it shows whose it is.
bool IsOfSide(const PbnNumbers& score, std::optional<Seat> declarer);

/// Sets the tricks of `result`, and the score, of a record that has its contract and declarer.
/// Where the file has no score it is worked out as long as the file has the vulnerability: the
/// board may come to stand under a number with another one.
void SetResult(TableRecord& record, const std::string& result, const PbnNumbers& score);

/// Sets the match points of both sides; where there are none, their percentages, which are what a
/// side has of 100 points.
void SetMatchPoints(TableRecord& record, const PbnNumbers& matchPoints, const PbnNumbers& percent);

/// The declarer of a record.
std::optional<Seat> DeclarerOf(const TableRecord& record);

/// The record has a contract, a declarer, tricks or a score.
bool HasResult(const TableRecord& record);

bool HasPlayers(const TableRecord& record);

/// Contract, declarer and tricks are the same, and there is a contract.
bool SameResult(const TableRecord& a, const TableRecord& b);

bool SameContract(const std::string& a, const std::string& b);

}  // namespace tricklet
