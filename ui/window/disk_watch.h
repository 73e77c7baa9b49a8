// Watches for what other programs do to the library that is shown.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include "library/board_on_disk.h"
#include "library/session.h"

namespace tricklet::ui {

/// Looks at the current board's file and at its folder every two seconds, and soon after the system
/// has told of a change in the folder, which it does not on every network share. What has changed
/// is read again where nothing of the person's is lost by that; where it would be, the status line
/// says so.
class DiskWatch : public QObject {
  Q_OBJECT

 public:
  /// What may be done just now.
  enum class Leave : std::uint8_t {
    Nothing,  ///< a command runs, a dialog is open, or the like
    Tell,     ///< say so in the status line, as the board is played or edited
    List,     ///< also list the boards again, but keep the board, whose edits can be undone
    Reload,   ///< also read the board again
  };

  /// `leave` is asked before each look.
  DiskWatch(Session& session, std::function<Leave()> leave, QObject* parent = nullptr);

  /// Does what the clock does every two seconds.
  void Look();

  /// What there is to say of the current board; empty when there is nothing.
  QString Text();

 signals:
  /// The session has changed, and so may have the text.
  void Changed();
  /// The folder has changed, and so may have the files of any boards.
  void FolderChanged();
  /// The clock has come round: files whose change no folder tells of may have changed.
  void Looked();
  /// The text, again at each look for as long as a change is not settled.
  void Said(const QString& text);

 private:
  /// What the system tells of a file or folder by one question.
  struct Stamp {
    QString path;
    bool exists = false;
    qint64 size = 0;
    QDateTime modified;  // its contents
    QDateTime changed;   // anything of it, also when a copy brought its old time along
    friend bool operator==(const Stamp&, const Stamp&) = default;
  };

  static Stamp StampOf(const std::filesystem::path& path);
  void WatchFolder();
  bool ListAgain();
  bool LookAtBoard(Leave leave);

  Session& session_;
  std::function<Leave()> leave_;
  QFileSystemWatcher watcher_;
  QTimer soon_;
  Stamp folder_;
  Stamp file_;
  int loaded_ = -1;                       // `boardsLoaded` at the time of `file_`
  DiskChange change_ = DiskChange::None;  // of the current board, and not read again
  int readAgain_ = -1;                    // `boardsLoaded` when a board was last read again
};

}  // namespace tricklet::ui
