// How a command is chosen on the command line and then carried out.
#pragma once

#include <functional>
#include <string>

#include "cli/console_host.h"
#include "cli/context.h"

namespace CLI {
class App;
}

namespace tricklet::cli {

/// What the parser leaves behind: the command that was named, with its arguments.
using Command = std::function<ExitCode(const Context&, const ConsoleHost&)>;

/// What `app` carries out when it is chosen.
void WhenChosen(CLI::App& app, Command& command, Command procedure);

/// A check for options that are names or folders: an empty variable of a script must not lead to
/// another library. Returns the complaint, empty when there is none.
std::string NotEmpty(const std::string& text);

/// Adds the argument N, a board number 1..999.
void AddBoardArgument(CLI::App& command, int& board);

/// libraries, boards, show, export, settings.
void AddBoardCommands(CLI::App& app, Command& command);
/// notes.
void AddNotesCommand(CLI::App& app, Command& command);
/// import, import-lin.
void AddImportCommands(CLI::App& app, Command& command);
/// library.
void AddLibraryCommands(CLI::App& app, Command& command);
/// auction, play, score.
void AddPlayCommands(CLI::App& app, Command& command);
/// diagram.
void AddDiagramCommand(CLI::App& app, Command& command);
/// traveller.
void AddResultCommands(CLI::App& app, Command& command);
/// review.
void AddReviewCommand(CLI::App& app, Command& command);
/// simulate.
void AddSimulateCommand(CLI::App& app, Command& command);
/// report.
void AddReportCommand(CLI::App& app, Command& command);
/// statistics.
void AddStatisticsCommand(CLI::App& app, Command& command);
/// find.
void AddFindCommand(CLI::App& app, Command& command);
/// publish.
void AddPublishCommands(CLI::App& app, Command& command);
/// analyse, link.
void AddAnalysisCommands(CLI::App& app, Command& command);
/// edit.
void AddEditCommands(CLI::App& app, Command& command);
/// deal.
void AddDealCommand(CLI::App& app, Command& command);
/// generate.
void AddGenerateCommands(CLI::App& app, Command& command);

}  // namespace tricklet::cli
