// The boards of the current library at a glance, read in the background.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <optional>

#include <QObject>

#include "formats/results/board_results.h"
#include "library/board_summary.h"
#include "library/session.h"
#include "ui/background/worker.h"

namespace tricklet::ui {

/// Reads the board files of the current library in small batches beside the window's thread, those
/// that the person sees first, and again where size or time of a file tell that it has changed.
/// Nothing is read while a command runs over the boards. The current board's row is that of the
/// session, with the changes that are not saved.
class BoardSummaries : public QObject {
  Q_OBJECT

 public:
  explicit BoardSummaries(const Session& session, QObject* parent = nullptr);
  ~BoardSummaries() override;

  /// Takes over the session's library and the results of its boards; to be called whenever either
  /// may be another.
  void Show(const std::shared_ptr<const LinFile>& results);

  /// What is known of a board, 1..999, of the current library.
  ListedBoard At(int boardNumber) const;

  /// The person sees these boards: they are looked at before all others, and by `LookAtSeen`.
  void SetSeen(int first, int last);

  /// The files of all boards, or of those that the person sees, may have changed.
  void LookAtAll() { LookAt(kFirstBoardNumber, kLastBoardNumber); }
  void LookAtSeen() { LookAt(firstSeen_, lastSeen_); }

 signals:
  /// `At` has something else to tell of these boards, as may be.
  void Changed(int first, int last);

 private:
  /// What tells one file from another without reading it.
  struct Stamp {
    bool exists = false;
    std::uintmax_t size = 0;
    std::filesystem::file_time_type written;
    friend bool operator==(const Stamp&, const Stamp&) = default;
  };
  struct Known {
    Stamp stamp;
    std::optional<BoardSummary> summary;
  };
  struct Look;
  struct Batch;

  static Stamp StampOf(const std::filesystem::path& path);
  static void Read(Batch& batch);
  bool IsStored(int boardNumber) const;
  void KeepCurrent();
  void LookAt(int first, int last);
  void PostNext();
  void Deliver(const Batch& batch);
  void ShowResults(const std::shared_ptr<const LinFile>& results);

  template <class Value>
  using PerBoard = std::array<Value, kLastBoardNumber + 1>;

  const Session& session_;
  std::filesystem::path folder_;
  PerBoard<Known> known_;
  PerBoard<bool> toLookAt_{};
  int firstSeen_ = kFirstBoardNumber;
  int lastSeen_ = kFirstBoardNumber;
  bool reading_ = false;  // a batch is on its way
  std::shared_ptr<const LinFile> resultFile_;
  std::shared_ptr<const ResultsByBoard> results_;  // of `resultFile_`, or still of the one before
  Worker worker_;
};

}  // namespace tricklet::ui
