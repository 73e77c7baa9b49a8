#include "cli/run.h"

#include <algorithm>
#include <istream>
#include <sstream>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/shown_stream.h"
#include "core/fault.h"
#include "core/text.h"
#include "core/version.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

/// What goes before the command, or after it where it has no such option of its own.
struct Arguments {
  std::string root;
  std::string library;
  bool yes = false;
  bool no = false;
  bool quiet = false;
};

void DescribeOptions(CLI::App& app, Arguments& arguments) {
  app.description("Libraries of bridge deals on the command line");
  app.set_version_flag("--version", "tricklet-cli " + std::to_string(kVersionMajor) + "." +
                                        std::to_string(kVersionMinor) + "." +
                                        std::to_string(kVersionRevision));
  app.add_option("--root", arguments.root, "Folder of all libraries, for this call only")
      ->type_name("DIR")
      ->check(NotEmpty);
  app.add_option("--library", arguments.library, "Library, for this call only")
      ->type_name("NAME")
      ->check(NotEmpty);
  auto* yes = app.add_flag("--yes", arguments.yes, "Answer every question with yes");
  app.add_flag("--no", arguments.no, "Answer every question with no")->excludes(yes);
  app.add_flag("--quiet", arguments.quiet, "Show no progress");
  app.require_subcommand(1);
  app.fallthrough();
}

ConsoleOptions OptionsFrom(const Arguments& arguments, const Console& console) {
  ConsoleOptions options;
  if (arguments.yes || arguments.no) options.answer = arguments.yes;
  options.quiet = arguments.quiet;
  options.terminal = console.terminal;
  return options;
}

/// The parser's own output, which repeats words of the command line.
int Print(const CLI::App& app, const CLI::Error& error, const Console& console) {
  std::ostringstream data;
  std::ostringstream messages;
  const int code = app.exit(error, data, messages);
  console.data << ShowableLines(data.str());
  console.messages << ShowableLines(messages.str());
  return code;
}

/// Tells what is wrong with the arguments. An unknown word is reported before a missing command or
/// file: most likely it is the missing one, misspelt.
int Tell(const CLI::App& app, const CLI::ParseError& error, const Console& console) {
  std::vector<std::string> unknown = app.remaining(true);
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError) &&
      !unknown.empty()) {
    std::reverse(unknown.begin(), unknown.end());  // as the error takes them, the last word first
    return Print(app, CLI::ExtrasError(unknown), console);
  }
  return Print(app, error, console);
}

int Execute(const Command& command, const Arguments& arguments, SettingsStore& store,
            const Console& console) {
  OverlayStore overlay(store);
  const bool named = !arguments.root.empty() || !arguments.library.empty();
  if (!arguments.root.empty()) {
    overlay.Name("filelocation", FolderText(fs::absolute(PathFromText(arguments.root))));
  }
  if (!arguments.library.empty()) overlay.Name("library", arguments.library);
  ConsoleHost host(console.in, console.messages, OptionsFrom(arguments, console),
                   console.interrupted);
  ShownLines lines(console.data);
  std::ostream data(&lines);
  Session session(host, named ? static_cast<SettingsStore&>(overlay) : store);
  session.getSolver = console.solver;
  TellUnreadSettings(session);
  try {
    const ExitCode code = command({session, data, !arguments.root.empty()}, host);
    return static_cast<int>(host.Ended() || host.Failed() ? ExitCode::Refused : code);
  } catch (const std::exception& failure) {
    ErrorReport(host, FaultFrom(failure));
    return static_cast<int>(ExitCode::Refused);
  }
}

/// All that was printed has arrived where it goes; else says so as far as that is possible.
bool HasArrived(const Console& console) {
  if (!console.data.flush()) console.messages << "The output could not be written\n";
  return console.data.good() && console.messages.flush().good();
}

/// A hand that begins with a void, "-.A.-.-", would be taken for an option: ".A.-.-" is the same.
void UnlikeOptions(std::vector<std::string>& words) {
  const auto edit = std::find(words.begin(), words.end(), "edit");
  for (auto word = std::find(edit, words.end(), "hand"); word != words.end(); ++word) {
    if (word->starts_with("-.")) word->erase(0, 1);
  }
}

int ParseAndExecute(const std::vector<std::string>& arguments, SettingsStore& store,
                    const Console& console) {
  Arguments parsed;
  Command command;
  CLI::App app;
  app.name("tricklet-cli");
  DescribeOptions(app, parsed);
  AddBoardCommands(app, command);
  AddNotesCommand(app, command);
  AddImportCommands(app, command);
  AddLibraryCommands(app, command);
  AddPlayCommands(app, command);
  AddDiagramCommand(app, command);
  AddResultCommands(app, command);
  AddReviewCommand(app, command);
  AddSimulateCommand(app, command);
  AddReportCommand(app, command);
  AddStatisticsCommand(app, command);
  AddFindCommand(app, command);
  AddPublishCommands(app, command);
  AddAnalysisCommands(app, command);
  AddEditCommands(app, command);
  AddDealCommand(app, command);
  AddGenerateCommands(app, command);
  try {
    std::vector<std::string> words = arguments;
    UnlikeOptions(words);
    std::reverse(words.begin(), words.end());
    app.parse(words);
  } catch (const CLI::ParseError& error) {
    const bool asked = Tell(app, error, console) == 0;
    return static_cast<int>(asked ? ExitCode::Done : ExitCode::Usage);
  }
  return Execute(command, parsed, store, console);
}

}  // namespace

int Run(const std::vector<std::string>& arguments, SettingsStore& store, const Console& console) {
  const int code = ParseAndExecute(arguments, store, console);
  const bool arrived = HasArrived(console);
  return arrived || code != 0 ? code : static_cast<int>(ExitCode::Refused);
}

}  // namespace tricklet::cli
