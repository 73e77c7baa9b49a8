// The command-line program: connects `cli::Run` to the process.
#include <filesystem>
#include <iostream>

#include "analysis/solver_library.h"
#include "cli/run.h"
#include "platform/settings_store.h"
#include "platform/signals.h"
#include "platform/terminal.h"

int main(int argc, char** argv) {
  tricklet::platform::IgnoreFileSizeSignal();
  const std::vector<std::string> arguments = tricklet::platform::PrepareConsole(argc, argv);
  const auto store = tricklet::platform::MakeSettingsStore();
  const std::filesystem::path folder = std::filesystem::path(argv[0]).parent_path();
  const tricklet::cli::Console console{std::cin,
                                       std::cout,
                                       std::cerr,
                                       tricklet::platform::IsTerminal(),
                                       tricklet::platform::CatchInterrupt(),
                                       tricklet::SolverOnDemand(folder)};
  return tricklet::cli::Run(arguments, *store, console);
}
