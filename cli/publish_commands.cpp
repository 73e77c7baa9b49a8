// The commands that put a session where others can see it.
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/text.h"
#include "publish/web/publish_web.h"

namespace tricklet::cli {
namespace {

/// What stands on the command line.
struct Words {
  std::string folder;
  std::string boards;
  std::string title;
  std::string names = std::string(NamesShownName(NamesShown::Full));
  bool notes = false;
  bool force = false;
  bool report = false;
};

std::string CheckBoards(const std::string& text) {
  return ReadBoardRange(text) ? "" : "no range of boards within 1-999: " + text;
}

std::string CheckNames(const std::string& text) {
  return NamesShownOf(text) ? "" : "not full, initials or none: " + text;
}

ExitCode Publish(const Context& context, const Words& words) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  PublishChoices choices;
  if (const auto boards = ReadBoardRange(words.boards)) choices.boards = *boards;
  choices.title = words.title;
  choices.names = NamesShownOf(words.names).value_or(NamesShown::None);
  choices.notes = words.notes;
  choices.folder = PathFromText(words.folder);
  choices.replaceForeign = words.force;
  choices.report = words.report;
  const auto page = PublishWebPage(session, choices);
  if (!page) return ExitCode::Refused;
  context.data << PathText(*page) << '\n';
  return ExitCode::Done;
}

}  // namespace

void AddPublishCommands(CLI::App& app, Command& command) {
  const auto words = std::make_shared<Words>();
  auto* publish = app.add_subcommand("publish", "Write the boards as a web page");
  publish->add_option("DIR", words->folder, "Folder of the page, made when it is missing")
      ->required()
      ->check(NotEmpty);
  publish->add_option("--boards", words->boards, "Boards, 7 or 1-36 or 1-3,7; all when not given")
      ->type_name("A-B")
      ->check(CheckBoards);
  publish->add_option("--title", words->title, "Title; the library's name when not given")
      ->type_name("TEXT");
  publish->add_option("--names", words->names, "Names of players: full, initials or none")
      ->type_name("full|initials|none")
      ->check(CheckNames);
  publish->add_flag("--report", words->report, "Review the plays, and show the session report");
  publish->add_flag("--notes", words->notes, "Publish the notes to the boards too");
  publish->add_flag("--force", words->force, "Replace an index.html that is no page of Tricklet's");
  WhenChosen(*publish, command, [words](const Context& context, const ConsoleHost&) {
    return Publish(context, *words);
  });
}

}  // namespace tricklet::cli
