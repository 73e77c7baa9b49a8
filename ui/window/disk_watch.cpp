#include "ui/window/disk_watch.h"

#include <chrono>
#include <utility>

#include <QFileInfo>

#include "core/fault.h"
#include "library/library_scan.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr std::chrono::seconds kBetweenLooks{2};
/// A command of another program changes many files one after the other: one look is for all of
/// them.
constexpr std::chrono::milliseconds kAfterChange{200};

}  // namespace

DiskWatch::DiskWatch(Session& session, std::function<Leave()> leave, QObject* parent)
    : QObject(parent), session_(session), leave_(std::move(leave)) {
  auto* clock = new QTimer(this);
  connect(clock, &QTimer::timeout, this, &DiskWatch::Look);
  clock->start(kBetweenLooks);
  soon_.setSingleShot(true);
  soon_.setInterval(kAfterChange);
  connect(&soon_, &QTimer::timeout, this, &DiskWatch::Look);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!soon_.isActive()) soon_.start();
  });
}

/// Watches the folder of the current library, and no other. A folder that is removed and made again
/// is watched again at the next look.
void DiskWatch::WatchFolder() {
  const QString folder = PathToQt(session_.LibraryPath());
  const QStringList watched = watcher_.directories();
  if (watched == QStringList{folder}) return;
  if (!watched.isEmpty()) watcher_.removePaths(watched);
  if (QFileInfo(folder).isDir()) watcher_.addPath(folder);
}

void DiskWatch::Look() {
  const Leave leave = leave_();
  if (leave == Leave::Nothing) return;
  WatchFolder();
  emit Looked();
  const bool listed = leave >= Leave::List && ListAgain();
  const bool changed = LookAtBoard(leave);
  if (listed || changed) emit Changed();
  if (change_ != DiskChange::None) emit Said(Text());
}

QString DiskWatch::Text() {
  const Board& board = session_.board;
  if (board.handChanged) readAgain_ = -1;
  // The board may have been saved or left since the last look.
  if (change_ != DiskChange::None) change_ = ChangeOnDisk(session_);
  if (change_ == DiskChange::Removed) {
    return tr("Board %1 was removed by another program: save it to keep it").arg(board.boardNumber);
  }
  if (change_ != DiskChange::None) {
    const QString text =
        board.handChanged
            ? tr("Board %1 was changed on disk by another program; the changes here are not saved")
            : tr("Board %1 was changed on disk by another program; F5 reads it again");
    return text.arg(board.boardNumber);
  }
  if (readAgain_ != session_.boardsLoaded) return {};
  return tr("Board %1 was changed by another program and has been read again")
      .arg(board.boardNumber);
}

DiskWatch::Stamp DiskWatch::StampOf(const std::filesystem::path& path) {
  const QFileInfo file(PathToQt(path));
  return {file.filePath(), file.exists(), file.size(), file.lastModified(),
          file.metadataChangeTime()};
}

/// True when the library has other boards than are listed.
bool DiskWatch::ListAgain() {
  const Stamp now = StampOf(session_.LibraryPath());
  if (now == folder_) return false;
  try {
    const bool others = ListAddedBoards(session_);
    folder_ = now;
    emit FolderChanged();
    return others;
  } catch (const Fault&) {
    return false;  // what cannot be listed just now stays listed as it was
  }
}

/// True when the session has changed.
bool DiskWatch::LookAtBoard(Leave leave) {
  const Stamp now = StampOf(session_.BoardPath(session_.board.boardNumber));
  const bool known = now == file_ && loaded_ == session_.boardsLoaded;
  if (known && change_ == DiskChange::None) return false;
  file_ = now;
  loaded_ = session_.boardsLoaded;
  change_ = ChangeOnDisk(session_);
  Board& board = session_.board;
  if (board.handChanged || leave < Leave::List) return false;
  if (change_ == DiskChange::Removed && HasCards(board.hands)) {
    board.handChanged = true;  // nothing but the window has it any more
    return true;
  }
  if (leave < Leave::Reload || !LoadChangedHand(session_)) return false;
  change_ = DiskChange::None;
  readAgain_ = session_.boardsLoaded;
  return true;
}

}  // namespace tricklet::ui
