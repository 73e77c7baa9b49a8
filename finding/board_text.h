// The text of a board's file for another number.
#pragma once

#include <filesystem>
#include <string>

#include "core/board.h"

namespace tricklet {

/// A board file as it is stored.
struct BoardText {
  Board board;
  std::string text;

  /// The board would have another dealer there, so that its auction would be somebody else's.
  bool LosesAuction(int number) const;
  /// What to store under `number`: the file as it is, or without the auction that it loses.
  std::string ForNumber(int number) const;
};

/// Reads the file of board `number`. Throws `Fault` when the disk does not give it or it is none.
BoardText ReadBoardFile(const std::filesystem::path& file, int number);

}  // namespace tricklet
