// What must hold of the files of a root whatever a person does with the program.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "library/board_file.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {

/// Looks at everything under one folder, which holds the roots, the recycle bin and what was
/// exported.
class LibraryModel {
 public:
  explicit LibraryModel(std::filesystem::path top) : top_(std::move(top)) { boards_ = Boards(); }

  /// What is wrong with the files since the last look; empty when nothing is. `agreed` says whether
  /// a person has agreed to something since.
  std::string Look(bool agreed) {
    std::map<std::filesystem::path, std::string> now = Boards();
    std::string wrong = Torn(now) + Lost(now);
    if (!agreed) wrong += Overwritten(now);
    boards_ = std::move(now);
    return wrong;
  }

  /// Another program has changed files.
  void TakeAsSeen() { boards_ = Boards(); }

 private:
  using Files = std::map<std::filesystem::path, std::string>;

  Files Boards() const {
    Files files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(top_)) {
      const std::string name = entry.path().filename().string();
      // What is not saved comes and goes.
      if (entry.path().string().find(".tricklet-draft-") != std::string::npos) continue;
      const bool ours =
          name.starts_with(".tricklet-") &&
          entry.path().parent_path().parent_path() != top_ / "bin";  // copies not finished
      if (ours || (entry.is_regular_file() && BoardNumberOfFile(name) != 0)) {
        files[entry.path()] = entry.is_regular_file() ? ReadFile(entry.path()) : "";
      }
    }
    return files;
  }

  /// Files that are no board, and what the program has left behind.
  static std::string Torn(const Files& now) {
    std::string wrong;
    for (const auto& [path, text] : now) {
      Board board;
      if (path.filename().string().starts_with(".tricklet-")) {
        wrong += "left behind: " + path.string() + "\n";
      } else if (!ReadBoardText(text, board, TableReading::Always)) {
        wrong += "torn: " + path.string() + "\n";
      }
    }
    return wrong;
  }

  /// Boards that are neither where they were nor, under their name, anywhere else.
  std::string Lost(const Files& now) const {
    std::multimap<std::string, std::string> found;
    for (const auto& [path, text] : now) found.emplace(path.filename().string(), text);
    std::string wrong;
    for (const auto& [path, text] : boards_) {
      if (now.contains(path)) continue;
      const auto [first, last] = found.equal_range(path.filename().string());
      const bool kept =
          std::any_of(first, last, [&](const auto& file) { return file.second == text; });
      if (!kept) wrong += "lost: " + path.string() + "\n";
    }
    return wrong;
  }

  /// Files whose board is another one, which nobody has agreed to. A new table is none.
  std::string Overwritten(const Files& now) const {
    std::string wrong;
    for (const auto& [path, text] : boards_) {
      const auto file = now.find(path);
      if (file == now.end() || file->second == text) continue;
      if (WithoutTable(file->second) != WithoutTable(text)) {
        wrong += "overwritten without a question: " + path.string() + "\n";
      }
    }
    return wrong;
  }

  static std::string WithoutTable(const std::string& text) {
    Board board;
    ReadBoardText(text, board, TableReading::Always);
    board.makeableValid = false;
    return WriteBoardText(board);
  }

  std::filesystem::path top_;
  Files boards_;
};

}  // namespace tricklet::test
