// Double-dummy tables, computed in the background.
#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include <QObject>

#include "library/session.h"
#include "ui/background/worker.h"

namespace tricklet::ui {

/// Computes the table of the current board when it lacks one, and puts it into that board's file,
/// even when another board is the current one by then. A table that the person asks for becomes a
/// change of the board instead, to be saved with it.
class BackgroundTables : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundTables(Session& session, QObject* parent = nullptr);

  /// Begins to compute the current board's table when it lacks one and the settings ask for it; to
  /// be called whenever the board or its hands may have changed.
  void ComputeMissing();

  /// `cmdDDS`: computes the current board's table, even if it has one, or tells why that is not
  /// possible.
  void ComputeAsked();

 signals:
  /// The current board has its table.
  void Changed();
  /// A table has failed or was not kept, and no message has said so.
  void Said(const QString& text);

 private:
  struct Job;

  void Post(bool asked);
  void Deliver(const std::shared_ptr<const Job>& job);
  void Take(const Job& job);
  void TakeAsked(const Job& job);
  void Show(const MakeableTable& table);
  bool IsCurrent(const Job& job) const;
  void TellFailure(const Job& job);

  Session& session_;
  Worker worker_;
  std::set<std::string> underWay_;  // files of the deals that are being solved or cannot be
};

}  // namespace tricklet::ui
