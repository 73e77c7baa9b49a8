// The command that tells what the deals of a library look like.
#include <algorithm>
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "frequencies/frequency_sheet.h"
#include "frequencies/library_frequencies.h"

namespace tricklet::cli {
namespace {

ExitCode ShowStatistics(const Context& context, bool csv) {
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  const auto library = CountLibrary(context.session);
  if (!library) return ExitCode::Refused;
  context.data << (csv ? CsvFrequencies(library->frequencies)
                       : AlignedFrequencies(library->frequencies));
  for (const std::string& remark : library->remarks) context.session.host.Tell(remark);
  return ExitCode::Done;
}

}  // namespace

void AddStatisticsCommand(CLI::App& app, Command& command) {
  const auto csv = std::make_shared<bool>(false);
  auto* statistics = app.add_subcommand(
      "statistics", "What the deals of the library look like beside what is expected");
  statistics->add_flag("--csv", *csv, "Comma-separated values, for a spreadsheet");
  WhenChosen(*statistics, command, [csv](const Context& context, const ConsoleHost&) {
    return ShowStatistics(context, *csv);
  });
}

}  // namespace tricklet::cli
