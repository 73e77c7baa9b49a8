// Found boards as rows, and their order.
#pragma once

#include <cstdint>
#include <vector>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include "finding/found_board.h"

namespace tricklet::ui {

enum class FoundColumn : std::uint8_t {
  Library,
  Number,
  Dealer,
  Vulnerability,
  Contract,
  Par,
  Points,
  Shape,
  Notes,
  Results
};
inline constexpr int kFoundColumns = 10;

/// Grows while a search goes on.
class FoundBoardsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Clear();
  void Append(const std::vector<FoundBoard>& boards);
  const FoundBoard& At(int row) const { return boards_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  std::vector<FoundBoard> boards_;
};

/// The rows in the order of a column, those that are equal there as they were found, and those of
/// which nothing is known last in either direction.
class FoundOrder : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit FoundOrder(FoundBoardsModel* boards);

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  const FoundBoardsModel& boards_;
};

}  // namespace tricklet::ui
