#include "cli/run.h"

#include <algorithm>
#include <functional>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "cli/console_host.h"
#include "cli/play_commands.h"
#include "core/fault.h"
#include "core/text.h"
#include "core/version.h"
#include "play/card_play.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

/// What the arguments say; filled by the parser.
struct Arguments {
  std::string root;
  std::string library;
  bool yes = false;
  bool no = false;
  bool quiet = false;
  bool longForm = false;
  int board = 0;
  std::vector<std::string> files;
  std::string first;
  std::string last;
  std::string file;
  std::string key;
  std::optional<std::string> value;
  std::vector<std::string> calls;
  PlayArguments play;
  ScoreArguments score;
};

using Command = std::function<ExitCode(const Context&, const ConsoleHost&)>;

std::vector<fs::path> Paths(const std::vector<std::string>& texts) {
  std::vector<fs::path> paths;
  paths.reserve(texts.size());
  for (const std::string& text : texts) paths.push_back(PathFromText(text));
  return paths;
}

void DescribeOptions(CLI::App& app, Arguments& arguments) {
  app.description("Libraries of bridge deals on the command line");
  app.set_version_flag("--version", "tricklet-cli " + std::to_string(kVersionMajor) + "." +
                                        std::to_string(kVersionMinor) + "." +
                                        std::to_string(kVersionRevision));
  app.add_option("--root", arguments.root, "Folder of all libraries, for this call only")
      ->type_name("DIR");
  app.add_option("--library", arguments.library, "Library, for this call only")->type_name("NAME");
  auto* yes = app.add_flag("--yes", arguments.yes, "Answer every question with yes");
  app.add_flag("--no", arguments.no, "Answer every question with no")->excludes(yes);
  app.add_flag("--quiet", arguments.quiet, "Show no progress");
  app.require_subcommand(1);
}

/// The argument that names a board.
void AddBoard(CLI::App& command, int& board) {
  command.add_option("N", board, "Board number")
      ->required()
      ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
}

void DescribeListings(CLI::App& app, Arguments& arguments, Command& command) {
  app.add_subcommand("libraries", "Each library and its number of boards")->callback([&command] {
    command = [](const Context& context, const ConsoleHost&) { return Libraries(context); };
  });
  auto* boards = app.add_subcommand("boards", "The numbers of the boards present");
  boards->add_flag("--long", arguments.longForm,
                   "Add dealer, vulnerability, contract and whether there is a table");
  boards->callback([&] {
    command = [&arguments](const Context& context, const ConsoleHost&) {
      return Boards(context, arguments.longForm);
    };
  });
  auto* show = app.add_subcommand("show", "One board with auction, statistics and table");
  AddBoard(*show, arguments.board);
  show->callback([&] {
    command = [&arguments](const Context& context, const ConsoleHost&) {
      return Show(context, arguments.board);
    };
  });
}

void DescribeTransfers(CLI::App& app, Arguments& arguments, Command& command) {
  auto* import = app.add_subcommand("import", "Store the boards of hand-record files (pbn)");
  import->add_option("FILE", arguments.files, "Files, told apart by their ending")->required();
  import->callback([&] {
    command = [&arguments](const Context& context, const ConsoleHost& host) {
      return ImportFiles(context, Paths(arguments.files), [&host] { return host.Ended();
});
};  // namespace
}  // namespace tricklet::cli
);
auto* exportCommand = app.add_subcommand("export", "Write boards to a hand-record file (pbn)");
exportCommand->add_option("FIRST", arguments.first, "First board")->required();
exportCommand->add_option("LAST", arguments.last, "Last board")->required();
exportCommand->add_option("FILE", arguments.file, "File; its ending selects the format")
    ->required();
exportCommand->callback([&] {
  command = [&arguments](const Context& context, const ConsoleHost&) {
    return ExportBoards(context, arguments.first, arguments.last, PathFromText(arguments.file));
  };
});
}

void DescribeSettings(CLI::App& app, Arguments& arguments, Command& command) {
  auto* settings = app.add_subcommand("settings", "List, read or write settings");
  settings->add_option("KEY", arguments.key, "Name of a setting");
  settings->add_option("VALUE", arguments.value, "New value");
  settings->callback([&] {
    command = [&arguments](const Context& context, const ConsoleHost&) {
      return SettingsCommand(context, arguments.key, arguments.value);
    };
  });
}

void DescribePlay(CLI::App& app, Arguments& arguments, Command& command) {
  auto* auction = app.add_subcommand("auction", "Show the auction, or replace it and save");
  AddBoard(*auction, arguments.board);
  auction->add_option("CALL", arguments.calls, "Calls from the dealer on: 1n 4s p x xx ap");
  auction->callback([&] {
    command = [&arguments](const Context& context, const ConsoleHost&) {
      return Auction(context, arguments.board, arguments.calls);
    };
  });
  auto* play = app.add_subcommand("play", "Play cards and show the table after them");
  AddBoard(*play, arguments.play.board);
  play->add_option("CARD", arguments.play.cards, "Cards from the opening lead on: SA h10 HT c2");
  play->add_option("--undo", arguments.play.undo, "Take back the last K cards")
      ->type_name("K")
      ->check(CLI::Range(0, kCardsInPack));
  play->add_option("--claim", arguments.play.claim, "The seat on play takes the rest")
      ->type_name("SEAT");
  play->callback([&] {
    command = [&arguments](const Context& context, const ConsoleHost&) {
      return Play(context, arguments.play);
    };
  });
}

void DescribeScore(CLI::App& app, Arguments& arguments, Command& command) {
  ScoreArguments& asked = arguments.score;
  auto* score = app.add_subcommand("score", "Score a contract");
  score->add_option("CONTRACT", asked.contract, "4S, 3NTx, 1Cxx")->required();
  score->add_option("DECLARER", asked.declarer, "N, E, S or W")->required();
  score->add_option("TRICKS", asked.tricks, "Tricks of the declaring side")
      ->required()
      ->check(CLI::Range(0, kTricks));
  auto* board = score->add_option("--board", asked.board, "Board that gives the vulnerability")
                    ->type_name("N")
                    ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
  score->add_option("--vul", asked.vulnerability, "Vulnerability")
      ->excludes(board)
      ->check(CLI::IsMember({"none", "ns", "ew", "all"}, CLI::ignore_case));
  score->callback([&] {
    command = [&asked](const Context& context, const ConsoleHost&) {
      return Score(context, asked);
    };
  });
}

ConsoleOptions OptionsFrom(const Arguments& arguments, const Console& console) {
  ConsoleOptions options;
  if (arguments.yes || arguments.no) options.answer = arguments.yes;
  options.quiet = arguments.quiet;
  options.terminal = console.terminal;
  return options;
}

int Execute(const Command& command, const Arguments& arguments, SettingsStore& store,
            const Console& console) {
  OverlayStore overlay(store);
  const bool named = !arguments.root.empty() || !arguments.library.empty();
  if (!arguments.root.empty()) {
    overlay.Write("macro", "filelocation", FolderText(fs::absolute(PathFromText(arguments.root))));
  }
  if (!arguments.library.empty()) overlay.Write("macro", "library", arguments.library);
  ConsoleHost host(console.in, console.messages, OptionsFrom(arguments, console),
                   console.interrupted);
  Session session(host, named ? static_cast<SettingsStore&>(overlay) : store);
  try {
    const ExitCode code = command({session, console.data}, host);
    return static_cast<int>(host.Ended() ? ExitCode::Refused : code);
  } catch (const std::exception& failure) {
    ErrorReport(host, FaultFrom(failure));
    return static_cast<int>(ExitCode::Refused);
  }
}

}  // namespace

int Run(const std::vector<std::string>& arguments, SettingsStore& store, const Console& console) {
  Arguments parsed;
  Command command;
  CLI::App app;
  app.name("tricklet-cli");
  DescribeOptions(app, parsed);
  DescribeListings(app, parsed, command);
  DescribeTransfers(app, parsed, command);
  DescribePlay(app, parsed, command);
  DescribeScore(app, parsed, command);
  DescribeSettings(app, parsed, command);
  try {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    app.parse(reversed);
  } catch (const CLI::ParseError& error) {
    const bool asked = app.exit(error, console.data, console.messages) == 0;
    return static_cast<int>(asked ? ExitCode::Done : ExitCode::Usage);
  }
  return Execute(command, parsed, store, console);
}

}  // namespace tricklet::cli
