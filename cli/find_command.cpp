// The command that finds boards.
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/text.h"
#include "finding/find_boards.h"
#include "finding/found_text.h"
#include "finding/read_query.h"
#include "library/library_names.h"

namespace tricklet::cli {
namespace {

struct Asked {
  std::string what;  ///< a condition, or words
  std::string words;
  bool all = false;
};

/// A line for each board, in columns separated by tabs.
std::string LineOf(const FoundBoard& board, bool all) {
  const int number = board.listed.boardNumber;
  std::string line = all ? ShownName(board.library) + '\t' : std::string();
  line += std::to_string(number) + '\t' + SeatName[DealerOfBoard(number)].front() + '\t' +
          std::string(PBNVul[VulOfBoard(number)]) + '\t' + FoundContractText(board) + '\t' +
          FoundParText(board) + '\t' + FoundPointsText(board);
  for (const Seat seat : kAllSeats) line += '\t' + FoundShapeText(board, seat);
  return line + '\t' + std::to_string(board.tables) + '\t' + Showable(FoundNoteText(board)) + '\n';
}

ExitCode Find(const Context& context, const Asked& asked) {
  Session& session = context.session;
  const bool there = asked.all ? RootExists(context) : OpenLibrary(context, false);
  if (!there) return ExitCode::Refused;
  const QueryOutcome outcome = ReadQuery(asked.what, asked.words, session.getSolver);
  if (!outcome.query) {
    session.host.TellError(outcome.fault);
    return ExitCode::Refused;
  }
  FindScope scope{session.FileLocation(), {session.LibraryName()}};
  if (asked.all) scope.libraries = FoldersOf(scope.root);
  int found = 0;
  bool allRead = true;
  FindSink sink;
  sink.found = [&](const FoundBoard& board) {
    ++found;
    context.data << LineOf(board, asked.all);
  };
  sink.broken = [&](const std::filesystem::path& path, const std::string& why) {
    allRead = false;
    session.host.Tell(ShownPath(path) + ": " + why);
  };
  const WorkScope work(session.host);
  sink.goOn = [&](const FindProgress& progress) {
    return session.host.Step("Looking for boards", progress.libraries, progress.of);
  };
  const FindProgress end = FindBoards(scope, *outcome.query, sink);
  if (end.libraries < end.of) return ExitCode::Refused;
  if (found == 0) session.host.Tell("No board has been found");
  return allRead ? ExitCode::Done : ExitCode::Refused;
}

}  // namespace

void AddFindCommand(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<Asked>();
  auto* find = app.add_subcommand("find", "Find boards by what they hold, or by words");
  auto* what = find->add_option_group("what");
  what->add_option("CONDITION", asked->what,
                   "What the deal is like: 'hcp(south) > 15 and spades(south) > 4'; or words")
      ->check(NotEmpty);
  what->add_option("--words", asked->words, "Contract, par, dealer, players, notes: 'slam ann'")
      ->type_name("W")
      ->check(NotEmpty);
  what->require_option(1, 2);
  find->add_flag("--all", asked->all, "In all libraries of the root");
  WhenChosen(*find, command,
             [asked](const Context& context, const ConsoleHost&) { return Find(context, *asked); });
}

}  // namespace tricklet::cli
