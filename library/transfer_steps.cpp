#include "library/transfer_steps.h"

#include <memory>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// One folder and the folder that its copy will be.
struct Pair {
  fs::path from;
  fs::path into;
  std::string name;
};

bool MayCopy(Session& session, const Pair& pair) {
  const fs::path to = pair.into / PathFromText(pair.name);
  if (!FoldersOverlap(pair.from, to)) return true;
  session.host.TellError("A folder cannot be copied into itself:\n" + ShownPath(pair.from) +
                         "\nto " + ShownPath(to));
  return false;
}

/// Takes the locks of folders into which there is to be copied.
bool LockTargets(Session& session, const std::vector<Pair>& pairs,
                 std::vector<std::unique_ptr<WriteLock>>& locks) {
  for (const Pair& pair : pairs) {
    const fs::path to = pair.into / PathFromText(pair.name);
    if (!FolderExists(to)) continue;
    std::string holder;
    locks.push_back(WriteLock::Take(to, WriteLock::kPatience, holder));
    if (locks.back()) continue;
    session.host.TellError(BusyText(pair.name, holder));
    return false;
  }
  return true;
}

Copied Copy(Session& session, const std::vector<Pair>& pairs, const fs::path& into,
            CopyManner manner) {
  FolderCopy copy(session.host, into);
  for (const Pair& pair : pairs) {
    if (!MayCopy(session, pair)) return Copied::Nothing;
    copy.Add(pair.from, pair.name, manner.files);
  }
  if (manner.unsaved == Unsaved::Settled && !SettleChanges(session)) return Copied::Nothing;
  std::vector<std::unique_ptr<WriteLock>> locks;
  if (!LockTargets(session, pairs, locks)) return Copied::Nothing;
  try {
    if (!copy.Run()) {
      session.host.TellResult("Copying cancelled");
      return Copied::Nothing;
    }
  } catch (const std::exception& failure) {
    ErrorReport(session.host, FaultFrom(failure));
    return Copied::Nothing;
  }
  if (copy.LeftOut() == 0) return Copied::Whole;
  session.host.TellError(
      "Links and special files are not copied: " + std::to_string(copy.LeftOut()) + " left out");
  return Copied::Partly;
}

}  // namespace

std::optional<fs::path> BrowseFolder(Session& session, const std::string& title) {
  const fs::path root = FolderNamed(session.FileLocation());
  const auto chosen = session.host.ChooseFolder(title, root.parent_path());
  if (!chosen || chosen->empty()) return std::nullopt;
  return FolderNamed(*chosen);
}

fs::path FolderNamed(const fs::path& folder) {
  if (folder.empty()) throw Fault(FaultNumber::PathNotFound, "No folder was named");
  const fs::path whole = fs::absolute(folder).lexically_normal();
  return whole.has_filename() || IsDriveRoot(whole) ? whole : whole.parent_path();
}

bool AskToChoose(Session& session, const std::string& text) {
  return session.host.Ask(text, std::string(kProgramName), Buttons::OKCancel) == Answer::OK;
}

Copied CopyLibraries(Session& session, const fs::path& from, const std::vector<std::string>& names,
                     const fs::path& to, CopyManner manner) {
  std::vector<Pair> pairs;
  pairs.reserve(names.size());
  for (const std::string& name : names) pairs.push_back({from / PathFromText(name), to, name});
  return Copy(session, pairs, to, manner);
}

Copied CopyLibraryFolder(Session& session, const fs::path& from, const fs::path& to,
                         const std::string& name, CopyManner manner) {
  return Copy(session, {{from, to, name}}, to, manner);
}

}  // namespace tricklet
