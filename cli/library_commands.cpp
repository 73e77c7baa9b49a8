// The commands for whole libraries.
#include <filesystem>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/text.h"
#include "library/library_transfer.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

ExitCode Code(bool done) {
  return done ? ExitCode::Done : ExitCode::Refused;
}

ExitCode CopyLibraryAs(const Context& context, const std::string& name) {
  return Code(OpenLibrary(context, false) && CopyLibrary(context.session, name));
}

ExitCode ExportFolder(const Context& context, const fs::path& folder, bool all) {
  if (all) return Code(RootExists(context) && ExportLibrariesTo(context.session, folder));
  return Code(OpenLibrary(context, false) && ExportLibraryTo(context.session, folder));
}

ExitCode ImportFolder(const Context& context, const fs::path& folder, bool all) {
  if (!RootExists(context)) return ExitCode::Refused;
  return Code(all ? ImportLibrariesFrom(context.session, folder)
                  : ImportLibraryFrom(context.session, folder));
}

ExitCode MoveRoot(const Context& context, const fs::path& folder) {
  return Code(RootExists(context) && MoveLibrariesTo(context.session, folder));
}

ExitCode DeleteLibraryNamed(const Context& context, const std::string& name) {
  return Code(RootExists(context) && DeleteLibrary(context.session, name));
}

/// The argument of a command, as its help shows it.
struct Target {
  std::string name;
  std::string description;
};

/// What the commands take: a folder or a name, and whether all libraries are meant.
struct FolderArguments {
  std::string target;
  bool all = false;
};

using Action = ExitCode (*)(const Context&, const FolderArguments&);

void AddAction(CLI::App& library, Command& command, const std::string& name,
               const std::string& description, const Target& target, const std::string& all,
               Action action) {
  const auto asked = std::make_shared<FolderArguments>();
  CLI::App& each = *library.add_subcommand(name, description);
  each.add_option(target.name, asked->target, target.description)->required()->check(NotEmpty);
  if (!all.empty()) each.add_flag("--all", asked->all, all);
  WhenChosen(each, command, [asked, action](const Context& context, const ConsoleHost&) {
    // A board that is loaded along the way is not to be solved here.
    context.session.getSolver = {};
    return action(context, *asked);
  });
}

}  // namespace

void AddLibraryCommands(CLI::App& app, Command& command) {
  CLI::App& library =
      *app.add_subcommand("library", "Copy, export, import, move or delete libraries");
  library.require_subcommand(1);
  AddAction(library, command, "copy", "Copy the library under a new name",
            {"NAME", "The name of the copy"}, "",
            [](const Context& context, const FolderArguments& asked) {
              return CopyLibraryAs(context, asked.target);
            });
  AddAction(library, command, "export", "Copy the library into a folder",
            {"FOLDER", "Where the copy goes; made when it is missing"}, "All libraries of the root",
            [](const Context& context, const FolderArguments& asked) {
              return ExportFolder(context, PathFromText(asked.target), asked.all);
            });
  AddAction(library, command, "import", "Copy a folder of boards into the root as a library",
            {"FOLDER", "The folder of boards, or of libraries with --all"},
            "Every library that the folder holds",
            [](const Context& context, const FolderArguments& asked) {
              return ImportFolder(context, PathFromText(asked.target), asked.all);
            });
  AddAction(library, command, "move", "Make another folder the library root",
            {"FOLDER", "The new root"}, "",
            [](const Context& context, const FolderArguments& asked) {
              return MoveRoot(context, PathFromText(asked.target));
            });
  AddAction(library, command, "delete", "Send a library to the recycle bin",
            {"NAME", "A library other than the current one"}, "",
            [](const Context& context, const FolderArguments& asked) {
              return DeleteLibraryNamed(context, asked.target);
            });
}

}  // namespace tricklet::cli
