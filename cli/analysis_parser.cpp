// The parser's side of the commands for double-dummy tables.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/analysis_commands.h"
#include "cli/command.h"

namespace tricklet::cli {

void AddAnalysisCommands(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<AnalyseArguments>();
  const CLI::Range boards(kFirstBoardNumber, kLastBoardNumber);
  auto* analyse = app.add_subcommand("analyse", "Compute missing double-dummy tables");
  analyse->add_option("FIRST", asked->first, "First board; none: the whole library")->check(boards);
  analyse->add_option("LAST", asked->last, "Last board")->check(boards);
  analyse->add_flag("--again", asked->again, "Compute the tables that are there too");
  analyse->add_flag("--show", asked->show, "Print the tables");
  WhenChosen(*analyse, command, [asked](const Context& context, const ConsoleHost&) {
    return Analyse(context, *asked);
  });
  const auto board = std::make_shared<int>(0);
  auto* link = app.add_subcommand("link", "Print the address of the online double-dummy page");
  AddBoardArgument(*link, *board);
  WhenChosen(*link, command,
             [board](const Context& context, const ConsoleHost&) { return Link(context, *board); });
}

}  // namespace tricklet::cli
