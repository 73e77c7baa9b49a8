#include "cli/library_commands.h"

#include "library/library_transfer.h"

namespace tricklet::cli {
namespace {

namespace fs = std::filesystem;

ExitCode Code(bool done) {
  return done ? ExitCode::Done : ExitCode::Refused;
}

}  // namespace

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

}  // namespace tricklet::cli
