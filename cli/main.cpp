// The command line program: gives the command line its process.
#include <filesystem>
#include <iostream>
#include <memory>

#include "analysis/solver_library.h"
#include "cli/run.h"
#include "platform/settings_store.h"
#include "platform/signals.h"
#include "platform/terminal.h"

namespace {

/// Loads the solver when it is first asked for: it takes memory and threads that most commands need
/// not pay for.
std::function<tricklet::Solver&()> SolverBeside(const char* program) {
  const std::filesystem::path folder = std::filesystem::path(program).parent_path();
  return [folder, solver = std::shared_ptr<tricklet::Solver>()]() mutable -> tricklet::Solver& {
    if (!solver) solver = tricklet::LoadSolver(folder);
    return *solver;
  };
}

}  // namespace

int main(int argc, char** argv) {
  tricklet::platform::IgnoreFileSizeSignal();
  const std::vector<std::string> arguments = tricklet::platform::PrepareConsole(argc, argv);
  const auto store = tricklet::platform::MakeSettingsStore();
  const tricklet::cli::Console console{std::cin,
                                       std::cout,
                                       std::cerr,
                                       tricklet::platform::IsTerminal(),
                                       tricklet::platform::CatchInterrupt(),
                                       SolverBeside(argv[0])};
  return tricklet::cli::Run(arguments, *store, console);
}
