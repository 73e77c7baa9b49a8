// The command for what is written about a board.
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "library/board_notes.h"

namespace tricklet::cli {
namespace {

struct Words {
  int board = 0;
  std::optional<std::string> text;
  bool clear = false;
};

ExitCode Notes(const Context& context, const Words& words) {
  Session& session = context.session;
  if (!LoadBoard(context, words.board)) return ExitCode::Refused;
  const BoardNotes notes = LoadNotes(session);
  const auto found = notes.find(words.board);
  const std::string note = found == notes.end() ? "" : found->second;
  if (words.clear || words.text) {
    const std::string text = words.text.value_or("");
    return StoreNote(session, words.board, text, note) ? ExitCode::Done : ExitCode::Refused;
  }
  if (!note.empty()) context.data << note << '\n';
  return ExitCode::Done;
}

}  // namespace

void AddNotesCommand(CLI::App& app, Command& command) {
  const auto words = std::make_shared<Words>();
  auto* notes = app.add_subcommand("notes", "Print, replace or remove the notes of a board");
  AddBoardArgument(*notes, words->board);
  auto* set = notes->add_option("--set", words->text, "Replace them by this text");
  set->type_name("TEXT");
  notes->add_flag("--clear", words->clear, "Remove them")->excludes(set);
  WhenChosen(*notes, command, [words](const Context& context, const ConsoleHost&) {
    return Notes(context, *words);
  });
}

}  // namespace tricklet::cli
