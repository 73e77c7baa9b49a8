// A traveller as a table for the grid.
#pragma once

#include <array>
#include <vector>

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include "ui/panes/traveller_cells.h"

namespace tricklet::ui {

/// The rows of a traveller in its own order, a column for each `TravellerColumn`.
class TravellerModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Copies what is to be shown of `traveller`, and resets the model.
  void Show(const Traveller& traveller, bool fourColours, const QPalette& palette);
  /// Sets a row in bold: that of the play record which is being looked at; -1 for none.
  void Mark(int row);

  const TravellerCell& At(const QModelIndex& index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  struct Row {
    std::array<TravellerCell, kTravellerColumns> cells;
    QString tip;  // the auction in one line
  };

  std::vector<Row> rows_;
  std::array<TravellerHead, kTravellerColumns> heads_;
  int marked_ = -1;
};

/// The rows of a `TravellerModel` in the order of a column; in their own without one.
class TravellerOrder : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit TravellerOrder(TravellerModel* rows);

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  const TravellerModel& rows_;
};

}  // namespace tricklet::ui
