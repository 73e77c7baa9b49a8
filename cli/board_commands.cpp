// The commands for the boards of a library, for files of boards and for settings, each over the
// engine's own procedures.
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/board_text.h"
#include "cli/command.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"
#include "formats/exchange/export.h"
#include "library/board_notes.h"
#include "library/board_store.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "library/transfer_steps.h"
#include "update/update_address.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

/// The name by which a setting is listed: with its section only where the key alone is not enough.
std::string ListedName(const SettingEntry& entry) {
  const bool alone = FindSetting(entry.key) == &entry;
  return (alone ? "" : std::string(entry.section) + "/") + std::string(entry.key);
}

ExitCode WriteSetting(const Context& context, const SettingEntry& entry, std::string value) {
  Session& session = context.session;
  if (entry.key == "filelocation") {
    const fs::path root = FolderNamed(PathFromText(value));
    if (!AcceptLibraryRoot(session.host, root)) return ExitCode::Refused;
    value = FolderText(root);
  }
  if (entry.key == "library" && !AcceptLibraryName(session.host, value)) return ExitCode::Refused;
  if (entry.key == "UpdateAddress" && !value.empty()) {
    if (const std::string error = UpdateAddressError(value); !error.empty()) {
      session.host.Tell(error);
      return ExitCode::Refused;
    }
  }
  if (!SetFromText(session.settings, entry, value)) {
    session.host.Tell(ShownName(value) + " is no value of " + ListedName(entry));
    return ExitCode::Refused;
  }
  SaveSetting(session.settings, entry, session.store);
  return StoreSettings(session) ? ExitCode::Done : ExitCode::Refused;
}

ExitCode Libraries(const Context& context) {
  if (!RootExists(context)) return ExitCode::Refused;
  const fs::path root = context.session.FileLocation();
  bool allListed = true;
  for (const std::string& name : FoldersOf(root)) {
    try {
      const int boards = ScanLibrary(root / PathFromText(name)).boardCount;
      context.data << ShownName(name) << '\t' << boards << '\n';
    } catch (const Fault& fault) {
      context.session.host.Tell(fault.Description());
      allListed = false;
    }
  }
  return allListed ? ExitCode::Done : ExitCode::Refused;
}

ExitCode Boards(const Context& context, bool longForm) {
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  bool allRead = true;
  Board board;
  for (int number = kFirstBoardNumber; number <= context.session.library.lastBoard; ++number) {
    if (!context.session.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
    context.data << number;
    if (longForm) {
      board.boardNumber = number;
      allRead = ReadBoard(context.session, board) && allRead;
      context.data << '\t' << SeatName[board.Dealer()] << '\t' << VulShort[board.Vulnerability()]
                   << '\t' << (board.contract.empty() ? "-" : ContractLabel(board)) << '\t'
                   << (board.makeableValid ? "yes" : "no");
    }
    context.data << '\n';
  }
  return allRead ? ExitCode::Done : ExitCode::Refused;
}

ExitCode Show(const Context& context, int boardNumber) {
  const Session& session = context.session;
  if (!LoadBoard(context, boardNumber)) return ExitCode::Refused;
  context.data << BoardText(session.board, session.ShownLibrary(), session.settings);
  const BoardNotes notes = LoadNotes(session);
  if (const auto note = notes.find(boardNumber); note != notes.end()) {
    context.data << "\nNotes:\n" << note->second << '\n';
  }
  return ExitCode::Done;
}

ExitCode ExportBoards(const Context& context, const std::string& first, const std::string& last,
                      const fs::path& file) {
  Session& session = context.session;
  ExportRange range;
  if (!OpenLibrary(context, false) || !HasHandsToExport(session) ||
      !CheckRangeTexts(session, first, last, range)) {
    return ExitCode::Refused;
  }
  if (FileExists(file) &&
      session.host.Ask({.text = ShownPath(file) + " already exists\nDo you want to replace it?",
                        .safe = Answer::No,
                        .agree = "Replace the file",
                        .refuse = "Keep it"}) != Answer::Yes) {
    return ExitCode::Refused;
  }
  return ExportFile(session, range, file) ? ExitCode::Done : ExitCode::Refused;
}

ExitCode SettingsCommand(const Context& context, const std::string& key,
                         const std::optional<std::string>& value) {
  const Session& session = context.session;
  // The defaults that hold instead are no answer to what is stored.
  const ExitCode listed = session.store.Failure().empty() ? ExitCode::Done : ExitCode::Refused;
  if (key.empty()) {
    for (const SettingEntry& entry : SettingTable()) {
      context.data << ListedName(entry) << '=' << ShownName(SettingText(session.settings, entry))
                   << '\n';
    }
    return listed;
  }
  const SettingEntry* entry = FindSetting(key);
  if (entry == nullptr) {
    session.host.Tell("There is no setting " + ShownName(key));
    return ExitCode::Refused;
  }
  if (value) return WriteSetting(context, *entry, *value);
  context.data << ShownName(SettingText(session.settings, *entry)) << '\n';
  return listed;
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

void AddBoardCommands(CLI::App& app, Command& command) {
  AddListings(app, command);
  AddExport(app, command);
  AddSettings(app, command);
}

}  // namespace tricklet::cli
