// A table of a report for a view.
#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include "ui/report/report_grid.h"

namespace tricklet::ui {

class ReportModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role {
    /// double: the part of its column's greatest number, -1..1, with its sign; nothing where there
    /// is no picture.
    BarRole = Qt::UserRole,
    BarKindRole,   ///< int: `CellBar`
    BarWidthRole,  ///< double: `ReportColumn::barWidth`
    MarkRole,      ///< double: of `ReportCell::mark`, as `BarRole`
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// Takes the place of what is shown. Where the columns and the number of rows stay, so does
  /// whatever the view has chosen.
  void Show(ReportGrid grid);
  const ReportGrid& Grid() const { return grid_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  const ReportCell& At(const QModelIndex& index) const;
  const ReportColumn& ColumnAt(int column) const;
  QVariant BarOf(const QModelIndex& index, const std::optional<double>& value) const;
  QString TipOf(const QModelIndex& index) const;
  QString SpokenOf(const QModelIndex& index) const;
  void Measure();

  ReportGrid grid_;
  std::vector<double> greatest_;  // by column: the greatest number, whatever its sign
};

/// The rows in the order of a column, in their own without one. Where nothing is known comes last
/// in either direction.
class ReportOrder : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit ReportOrder(ReportModel* rows);

  /// Between a row of the model, -1 for none, and its place in the order.
  int RowOf(const QModelIndex& index) const;
  QModelIndex PlaceOf(int row) const;

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  const ReportModel& rows_;
};

}  // namespace tricklet::ui
