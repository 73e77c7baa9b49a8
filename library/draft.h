// Changes that have not been saved, kept in their library until they are saved or given up.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/board.h"
#include "library/session.h"

namespace tricklet {

/// Keeps the changes to the current board of one window. Each keeper has a hidden folder of its own
/// in the library, so that two windows do not meet; it holds the board as a board file and, as
/// "base.txt", the file that it would replace.
class DraftKeeper {
 public:
  explicit DraftKeeper(Session& session) : session_(session) {}
  DraftKeeper(const DraftKeeper&) = delete;
  DraftKeeper& operator=(const DraftKeeper&) = delete;
  /// Keeps what is there to be kept.
  ~DraftKeeper();

  /// Keeps the current board where it has changes that are not saved; else drops what was kept. To
  /// be called every few seconds. Writes only what is new, whole and so that it lasts. Never
  /// throws; nothing happens during a batch.
  void Keep();

  /// Why the changes cannot be kept; empty when they are, or there are none.
  const std::string& Problem() const { return problem_; }

 private:
  void Begin(const std::filesystem::path& board);
  void Write(const std::string& text);
  void Drop();

  Session& session_;
  std::filesystem::path folder_;  // empty when nothing is kept
  std::filesystem::path board_;   // the file of the board that is kept
  std::string text_;
  std::chrono::steady_clock::time_point written_;
  std::string problem_;
};

/// What a window that has ended has left.
struct Draft {
  std::filesystem::path folder;
  std::string library;
  Board board;
  std::optional<std::string> base;  ///< the file that it was to replace; nothing: there was none
  bool fileChanged = false;         ///< that file is another one now
  std::string time;                 ///< of the last change: "2026-11-22 10.31"
};

/// The drafts in all libraries of the root, those of the current library first. Drafts of windows
/// that are still open are not among them; a draft of what has been saved since is dropped.
std::vector<Draft> FindDrafts(const Session& session);

/// Asks about each draft until one has been restored, which is then the current board, with changes
/// that are not saved. What is discarded goes to the recycle bin; what nobody decides about stays.
/// True when the session has changed.
bool OfferDrafts(Session& session, DraftKeeper& keeper);

}  // namespace tricklet
