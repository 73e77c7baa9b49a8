// The parser's side of the commands for libraries, boards, files and settings.
#include <memory>
#include <utility>

#include <CLI/CLI.hpp>

#include "cli/board_commands.h"
#include "cli/command.h"
#include "core/text.h"
#include "formats/exchange/import.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Paths(const std::vector<std::string>& texts) {
  std::vector<fs::path> paths;
  paths.reserve(texts.size());
  for (const std::string& text : texts) paths.push_back(PathFromText(text));
  return paths;
}

void AddListings(CLI::App& app, Command& command) {
  WhenChosen(*app.add_subcommand("libraries", "Each library and its number of boards"), command,
             [](const Context& context, const ConsoleHost&) { return Libraries(context); });
  const auto longForm = std::make_shared<bool>(false);
  auto* boards = app.add_subcommand("boards", "The numbers of the boards present");
  boards->add_flag("--long", *longForm,
                   "Add dealer, vulnerability, contract and whether there is a table");
  WhenChosen(*boards, command, [longForm](const Context& context, const ConsoleHost&) {
    return Boards(context, *longForm);
  });
  const auto board = std::make_shared<int>(0);
  auto* show = app.add_subcommand("show", "One board with auction, statistics and table");
  AddBoardArgument(*show, *board);
  WhenChosen(*show, command,
             [board](const Context& context, const ConsoleHost&) { return Show(context, *board); });
}

void AddImporter(CLI::App& app, Command& command, const char* name, const char* description,
                 Importer import) {
  const auto files = std::make_shared<std::vector<std::string>>();
  auto* reader = app.add_subcommand(name, description);
  reader->add_option("FILE", *files, "Files, told apart by their ending")->required();
  WhenChosen(*reader, command, [files, import](const Context& context, const ConsoleHost& host) {
    return ImportFiles(context, import, Paths(*files), [&host] { return host.Ended(); });
  });
}

void AddExport(CLI::App& app, Command& command) {
  struct Range {
    std::string first;
    std::string last;
    std::string file;
  };
  const auto range = std::make_shared<Range>();
  auto* writer = app.add_subcommand("export", "Write boards to a hand-record file (pbn, dlm, lin)");
  writer->add_option("FIRST", range->first, "First board")->required();
  writer->add_option("LAST", range->last, "Last board")->required();
  writer->add_option("FILE", range->file, "File; its ending selects the format")->required();
  WhenChosen(*writer, command, [range](const Context& context, const ConsoleHost&) {
    return ExportBoards(context, range->first, range->last, PathFromText(range->file));
  });
}

void AddSettings(CLI::App& app, Command& command) {
  struct Setting {
    std::string key;
    std::optional<std::string> value;
  };
  const auto setting = std::make_shared<Setting>();
  auto* settings = app.add_subcommand("settings", "List, read or write settings");
  settings->add_option("KEY", setting->key, "Name of a setting");
  settings->add_option("VALUE", setting->value, "New value");
  WhenChosen(*settings, command, [setting](const Context& context, const ConsoleHost&) {
    return SettingsCommand(context, setting->key, setting->value);
  });
}

}  // namespace

void AddBoardArgument(CLI::App& command, int& board) {
  command.add_option("N", board, "Board number")
      ->required()
      ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
}

void WhenChosen(CLI::App& app, Command& command, Command procedure) {
  app.callback([&command, procedure = std::move(procedure)] { command = procedure; });
}

std::string NotEmpty(const std::string& text) {
  return text.empty() ? "it is empty" : "";
}

void AddBoardCommands(CLI::App& app, Command& command) {
  AddListings(app, command);
  AddImporter(app, command, "import", "Store the boards of hand-record files (pbn, dlm, xml)",
              ImportFile);
  AddImporter(app, command, "import-lin", "Store the boards and records of LIN files",
              ImportLinFile);
  AddExport(app, command);
  AddSettings(app, command);
}

}  // namespace tricklet::cli
