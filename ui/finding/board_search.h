// A search for boards beside the window's thread.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QObject>

#include "finding/find_boards.h"

class QTimer;

namespace tricklet::ui {

class Worker;

/// One search at a time. What it finds is given in batches, on the window's thread, a few times a
/// second.
class BoardSearch : public QObject {
  Q_OBJECT

 public:
  explicit BoardSearch(QObject* parent = nullptr);
  /// Ends the search and waits until it has.
  ~BoardSearch() override;

  /// Ends the search before and begins another one. Of the earlier one nothing more is given.
  void Begin(FindScope scope, FindQuery query);
  void Stop();
  bool Running() const { return run_ != nullptr; }

 signals:
  /// What has been found since the signal before, in the order of `FindBoards`, and how far it is.
  void Went(const std::vector<tricklet::FoundBoard>& found, const tricklet::FindProgress& progress);
  /// A file that could not be read, and why.
  void Broken(const QString& what);
  /// All has been looked at, and given.
  void Ended();

 private:
  struct Run;

  void Give();

  std::shared_ptr<Run> run_;  // null while nothing is looked for
  QTimer* often_;
  std::unique_ptr<Worker> worker_;
};

}  // namespace tricklet::ui
