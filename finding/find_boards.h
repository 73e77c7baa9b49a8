// Finding boards in libraries: each board file, and each library's results and notes, is read once.
// Needs no session, so that it can run beside the window's thread.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "finding/find_query.h"

namespace tricklet {

/// Where to look.
struct FindScope {
  std::filesystem::path root;
  std::vector<std::string> libraries;  ///< names of folders of the root, in the order of the answer
};

struct FindProgress {
  int libraries = 0;  ///< that have been read
  int of = 0;         ///< in the scope
  int boards = 0;     ///< that have been looked at
};

/// What is told while the boards are read, on the thread that reads them.
struct FindSink {
  /// A board that was asked for: library by library, in the order of their numbers.
  std::function<void(FoundBoard)> found;
  /// A file or folder that cannot be read, and why; the search goes on.
  std::function<void(const std::filesystem::path&, const std::string&)> broken;
  /// Asked before each library and every few boards: whether to go on.
  std::function<bool(const FindProgress&)> goOn;
};

/// How far it has come: all libraries, unless `goOn` said no.
FindProgress FindBoards(const FindScope& scope, const FindQuery& query, const FindSink& sink);

}  // namespace tricklet
