// Runs command lines on a library root of their own.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/run.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {

class CommandLine : public testing::Test {
 protected:
  /// Runs with --root on the test's folder; `out` and `err` hold what was printed.
  int Run(std::vector<std::string> arguments, const std::string& typed = "",
          bool terminal = false) {
    arguments.insert(arguments.begin(), {"--root", PathText(Root())});
    return RunBare(arguments, typed, terminal);
  }
  /// Words with blanks between them, for commands that name no file.
  int RunLine(const std::string& line) {
    std::istringstream words(line);
    std::vector<std::string> arguments;
    for (std::string word; words >> word;) arguments.push_back(word);
    return Run(arguments);
  }
  int RunBare(const std::vector<std::string>& arguments, const std::string& typed = "",
              bool terminal = false) {
    std::istringstream in(typed);
    std::ostringstream data;
    std::ostringstream messages;
    const cli::Console console{in, data, messages, terminal, interrupted, solver};
    const int code = cli::Run(arguments, store, console);
    out = data.str();
    err = messages.str();
    return code;
  }
  std::filesystem::path Root() const { return folder.Path() / "root"; }
  std::string File(const char* name) const { return PathText(folder.Path() / PathFromText(name)); }

  TempFolder folder;
  MemoryStore store;
  std::atomic<bool> interrupted{false};
  std::function<Solver&()> solver;
  std::string out;
  std::string err;
};

}  // namespace tricklet::test
