// A deal as it is written in a DLM file (the hand records of dealing machines).
//
// 26 letters, "a" to "p": letter k stands for the cards 2k and 2k + 1, numbered suit x 13 + rank.
// Its place in the alphabet (from 0) is 4 times the seat of the first plus the seat of the second.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

inline constexpr std::size_t kDLMDealLetters = kCardsInPack / 2;

/// The deal written for a board outside the range of a file: each seat holds one suit.
inline constexpr std::string_view kDLMPlaceholderDeal = "aaaaaabffffffkkkkkklpppppp";

/// `letter` stands for two seats.
constexpr bool IsDLMLetter(char letter) {
  return letter >= 'a' && letter < 'a' + kSeats * kSeats;
}

/// The board number combined by exclusive or with the code of each letter: 0..127 for the numbers
/// 1..99 and 26 letters.
int DLMChecksum(int boardNumber, std::string_view dealLetters);

/// The letters, and their check value with three digits. A card that no hand holds counts as
/// North's.
std::string EncodeDLMDeal(int boardNumber, const HandTable& hands);
std::string WithDLMChecksum(int boardNumber, std::string_view dealLetters);

/// The hands of 26 letters. Throws `Fault` FaultNumber::SubscriptOutOfRange for a letter outside
/// "a" to "p".
HandTable DecodeDLMDeal(std::string_view dealLetters);

}  // namespace tricklet
