// The command that prints boards as diagrams for letters and forums.
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "library/board_store.h"
#include "publish/diagram.h"
#include "publish/sheet_choices.h"

namespace tricklet::cli {
namespace {

struct DiagramOptions {
  int board = 0;  ///< 0 for all of the library
  bool html = false;
  std::string hands = "NESW";  ///< those that are shown
};

void Print(const Context& context, const Board& board, const DiagramOptions& options) {
  SeenBoard seen;
  seen.board = board;
  const PerSeat<bool> shown = SeatsOf(options.hands).value_or(PerSeat<bool>{});
  for (const Seat seat : kAllSeats) seen.hidden[seat] = !shown[seat];
  context.data << (options.html ? DiagramHtml(seen, context.session.settings.suitColour)
                                : DiagramText(seen));
}

ExitCode PrintLibrary(const Context& context, const DiagramOptions& options) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  bool allRead = true;
  bool first = true;
  for (int number = session.library.firstBoard; number <= session.library.lastBoard; ++number) {
    if (!session.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
    Board board;
    board.boardNumber = number;
    if (!ReadBoard(session, board)) {
      allRead = false;
      continue;
    }
    if (!first) context.data << (options.html ? "<hr>\n" : "\n\n");
    first = false;
    Print(context, board, options);
  }
  return allRead ? ExitCode::Done : ExitCode::Refused;
}

ExitCode DiagramOf(const Context& context, const DiagramOptions& options) {
  if (options.board == 0) return PrintLibrary(context, options);
  if (!LoadBoard(context, options.board)) return ExitCode::Refused;
  Print(context, context.session.board, options);
  return ExitCode::Done;
}

std::string NoSeats(const std::string& letters) {
  return SeatsOf(letters) ? "" : letters + " names no hands";
}

}  // namespace

void AddDiagramCommand(CLI::App& app, Command& command) {
  const auto options = std::make_shared<DiagramOptions>();
  auto* diagram = app.add_subcommand("diagram", "Boards as diagrams for letters and forums");
  diagram->add_option("N", options->board, "Board number; all boards without it")
      ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
  diagram->add_flag("--html", options->html, "As HTML, for a mail or a word processor");
  diagram->add_option("--hands", options->hands, "The hands that are shown, such as NS")
      ->check(NoSeats);
  WhenChosen(*diagram, command, [options](const Context& context, const ConsoleHost&) {
    return DiagramOf(context, *options);
  });
}

}  // namespace tricklet::cli
