// Writing DLM files, the hand records of dealing machines.
//
// A sectioned text, CR LF after each line: a header with the range, then for each number from 1 to
// 99 its lines, then the settings of the machine. Boards above 99 cannot be written.
#pragma once

#include <string>

#include "core/board.h"

namespace tricklet {

inline constexpr int kLastDLMBoard = 99;

/// The lines before the first board. `first` and `last` are the range as asked for.
std::string DLMHeader(int first, int last);

/// The lines before a board's deal. `number`: 1..99.
std::string DLMBoardHead(int number);
/// A board's line "Board NN=" with its deal, or with the placeholder for boards outside the range.
std::string DLMBoardLine(int number, const HandTable& hands);
std::string DLMPlaceholderLine(int number);

/// The lines after the last board.
std::string DLMFooter();

}  // namespace tricklet
