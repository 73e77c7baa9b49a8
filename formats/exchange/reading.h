// A hand-record file on its way into a library.
#pragma once

#include <filesystem>
#include <string>

#include "formats/results/lin_file.h"
#include "formats/sink/board_sink.h"
#include "library/board_notes.h"

namespace tricklet {

struct RecordSource {
  std::filesystem::path path;  ///< for messages; empty for a text that is in no file
  std::string bytes;
};

/// What is read of a file beside the boards, which go to a sink. A reader fills it as it goes on,
/// so that it holds what had been read when an exception ends the reading.
struct Reading {
  ReadResult result;
  LinFile results;       ///< of the boards, for "LIN.txt"
  std::string extended;  ///< bytes for "QENXML.xml"; empty when none is needed
  BoardNotes notes;      ///< of the boards, for "Notes.txt"
  std::string summary;   ///< what is told after the count of boards; may be empty
};

}  // namespace tricklet
