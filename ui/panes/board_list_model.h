// The boards of a library as rows.
#pragma once

#include <array>
#include <cstdint>

#include <QAbstractTableModel>

#include "library/board_summary.h"
#include "library/session.h"

namespace tricklet::ui {

class BoardSummaries;

enum class BoardColumn : std::uint8_t {
  Number,
  Dealer,
  Vulnerability,
  Contract,
  Score,
  Entry,  ///< "Board 7", for a list that has no other columns
};

/// Boards 1..MaxBoard, row 0 being board 1. Those without a file are marked in words and in grey;
/// the accessible text and the tool tip of the number say all that the row shows in words.
class BoardListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Whether the cell tells of a side that is vulnerable, on a board that is there.
  static constexpr int kVulnerableRole = Qt::UserRole;

  BoardListModel(const Session& session, const BoardSummaries& summaries,
                 QObject* parent = nullptr);

  /// Takes over how many boards there are and which is the current one.
  void Show();

  /// What the row of a board shows.
  ListedBoard At(int boardNumber) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void ShowCount();
  void TellChanged(int firstBoard, int lastBoard);

  const Session& session_;
  const BoardSummaries& summaries_;
  std::array<bool, kLastBoardNumber + 1> present_{};
  int maxBoard_ = 0;
  int current_ = kFirstBoardNumber;
};

}  // namespace tricklet::ui
