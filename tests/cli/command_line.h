// Runs command lines on a library root of their own.
#pragma once

#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/run.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {

/// Settings on a disk that may be full.
struct DiskStore : MemoryStore {
  bool Sync() override { return !full; }
  std::string Failure() const override { return failure; }
  bool full = false;
  std::string failure;
};

/// The settings name a root, which is empty; "in.pbn" beside it has board 7.
class CommandLine : public testing::Test {
 protected:
  CommandLine() {
    std::filesystem::create_directories(Root());
    store.Write("macro", "filelocation", FolderText(Root()));
    WriteFile(folder.Path() / "in.pbn",
              "% PBN 2.1\n[Board \"7\"]\n"
              "[Deal \"N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96\"]\n"
              "[Auction \"S\"]\n1NT AP\n[DoubleDummyTricks \"7AA557AA565337753377\"]\n");
  }
  /// The exit code of the words of `line`; `out` and `err` hold what was printed. A word with
  /// blanks stands in single quotes; "@" is the test's folder.
  int Run(const std::string& line, const std::string& typed = "", bool terminal = false) {
    std::istringstream words(line);
    std::vector<std::string> arguments;
    for (std::string word; words >> std::quoted(word, '\''); arguments.push_back(word)) {
      if (const auto at = word.find('@'); at < word.size()) word.replace(at, 1, File(""));
    }
    std::istringstream in(typed);
    std::ostringstream data;
    std::ostringstream messages;
    const int code =
        cli::Run(arguments, store, {in, data, messages, terminal, interrupted, solver});
    out = data.str();
    err = messages.str();
    return code;
  }
  /// The exit code and all that was printed: "1 There is no board 8\n".
  std::string Answer(const std::string& line) {
    const int code = Run(line);
    return std::to_string(code) + " " + out + err;
  }
  std::filesystem::path Root() const { return folder.Path() / "root"; }
  std::string File(const char* name) const { return FolderText(folder.Path()) + name; }
  bool Exists(const char* name) const {
    return std::filesystem::exists(folder.Path() / PathFromText(name));
  }

  TempFolder folder;
  DiskStore store;
  std::atomic<bool> interrupted{false};
  std::function<Solver&()> solver;
  std::string out;
  std::string err;
};

}  // namespace tricklet::test
