// The values of PBN tags and of the cells of PBN tables.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// A letter or a word, "^S" of an irregular declarer too.
std::optional<Seat> PbnSeat(std::string_view text);

/// "None", "Love", "-", "NS", "EW", "All", "Both", in any letter case.
std::optional<tricklet::Vulnerability> PbnVulnerability(std::string_view text);

/// Reads "N:" and the hands, clockwise; seats whose hand is "-" or is not there have no cards.
/// False, and `hands` unchanged, when `text` does not name the seat of the first hand or holds no
/// hand.
bool ReadPbnDeal(std::string_view text, HandTable& hands);

/// A contract as "LIN.txt" has it: "4Hx", "3N" as it stands there, "PASS"; empty where it is
/// unknown. Nothing when it is no contract.
std::optional<std::string> PbnContract(std::string_view text);

/// The contract was "PASS".
bool IsPassedOut(std::string_view contract);

/// Numbers of one side, of both, or of the side that a value is written for: "NS 9 EW 4", "EW -50",
/// "^9", "+3.5", "49,5%".
struct PbnNumbers {
  PerSide<std::optional<float>> of;
  std::optional<float> own;  ///< without a side
};
/// Words that are no number count for nothing.
PbnNumbers ReadPbnNumbers(std::string_view text);

/// North-South's of two opposite numbers. One without a side is the declarer's; without a declarer
/// it is North-South's.
std::optional<float> NorthSouthOf(const PbnNumbers& numbers, std::optional<Seat> declarer);

/// The declarer's tricks, 0..13: "9", "NS 11", "EW 2", or relative to the contract, "+1", "=".
std::optional<int> PbnTricks(std::string_view text, std::optional<Seat> declarer,
                             std::string_view contract);

}  // namespace tricklet
