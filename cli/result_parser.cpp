// The parser's side of the commands for results.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/result_commands.h"

namespace tricklet::cli {

void AddResultCommands(CLI::App& app, Command& command) {
  const auto board = std::make_shared<int>(0);
  auto* traveller = app.add_subcommand("traveller", "The results of a board");
  AddBoardArgument(*traveller, *board);
  WhenChosen(*traveller, command, [board](const Context& context, const ConsoleHost&) {
    return TravellerOf(context, *board);
  });
}

}  // namespace tricklet::cli
