// A library root in a temporary folder, with a scripted host and settings in memory.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/text.h"
#include "library/board_file.h"
#include "library/library_scan.h"
#include "library/session.h"
#include "tests/support/hands.h"
#include "tests/support/scripted_host.h"

namespace tricklet::test {

/// A folder that is removed when the test ends. Its name has a blank and letters outside ASCII.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() /
            PathFromText("tricklet t\u00e9st \u2660 " + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void WriteFile(const std::filesystem::path& path, const std::string& data) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << data;
}

inline std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

/// The text of a board file with the hands of `OneSuitEach`.
inline std::string OneSuitEachText() {
  Board board;
  board.hands = OneSuitEach();
  return WriteBoardText(board);
}

template <class TestHost>
class LibraryTestBy : public testing::Test {
 protected:
  LibraryTestBy() : session(host, store) {
    session.settings.filelocation = FolderText(folder.Path());
    session.settings.library = "Club";
    std::filesystem::create_directories(session.LibraryPath());
    FindFiles(session);
  }

  /// Changes the current board; the next question is whether to save that.
  void ExpectUnsavedQuestion(Answer answer) {
    session.board.handChanged = true;
    host.ExpectAsk("Do you want to save changes to board " +
                       std::to_string(session.board.boardNumber) + " in library Club?",
                   "Save changes?", answer);
  }
  void PutBoard(int number) { WriteFile(session.BoardPath(number), OneSuitEachText()); }

  /// The board in the library's file of this number.
  Board Stored(int number) const {
    Board board;
    EXPECT_TRUE(ReadBoardText(ReadFile(session.BoardPath(number)), board, TableReading::Always));
    return board;
  }

  /// The current board, "*" where it has unsaved changes: "Club 3* of 24, 2 stored".
  std::string Shown() const {
    return session.LibraryName() + " " + std::to_string(session.board.boardNumber) +
           (session.board.handChanged ? "*" : "") + " of " +
           std::to_string(session.library.maxBoard) + ", " +
           std::to_string(session.library.boardCount) + " stored";
  }

  TempFolder folder;
  TestHost host;
  MemoryStore store;
  Session session;
};
using LibraryTest = LibraryTestBy<ScriptedHost>;

}  // namespace tricklet::test
