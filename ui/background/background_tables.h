// Double-dummy tables computed while the window goes on.
#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include <QObject>

#include "library/session.h"
#include "ui/background/worker.h"

namespace tricklet::ui {

/// Computes the table of the board in hand when it lacks one, and puts it into the file of the
/// board that was asked about, whichever board is in hand by then.
class BackgroundTables : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundTables(Session& session, QObject* parent = nullptr);

  /// Looks at the board in hand; to be called whenever it may be another or have other hands.
  void Look();

  /// `cmdDDS`: computes the table of the board in hand again, and says why when that cannot be.
  void Ask();

 signals:
  /// The board in hand has its table.
  void Changed();

 private:
  struct Job;

  void Post(bool asked);
  void Take(const Job& job);

  Session& session_;
  Worker worker_;
  std::set<std::string> underWay_;  // files of the deals that are being solved or cannot be
};

}  // namespace tricklet::ui
