// A traveller as a table for the grid.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QAbstractTableModel>
#include <QColor>
#include <QPalette>
#include <QSortFilterProxyModel>

#include "ui/panes/traveller_cells.h"

namespace tricklet::ui {

/// The rows of a traveller in its own order, a column for each `TravellerColumn`; and par, which
/// can be read but not chosen, before the first row with a lower score.
class TravellerModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role {
    ParRole = Qt::UserRole,  ///< bool: the line of par
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// Copies what is to be shown of `traveller`, and resets the model. Leads from the `hidden` hands
  /// are left out.
  void Show(const Traveller& traveller, const std::optional<Par>& par, const PerSeat<bool>& hidden,
            const QPalette& palette);
  /// Sets a row of the traveller in bold: that of the play record which is being looked at; -1 for
  /// none.
  void Mark(int row);

  /// Whether the names of both sides take two lines, below short headings.
  void SetTwoLines(bool twoLines);

  const TravellerCell& At(const QModelIndex& index) const;
  /// The row of the traveller; -1 for par.
  int RowOf(const QModelIndex& index) const;
  /// The first cell of that row; invalid where there is none.
  QModelIndex PlaceOf(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    std::array<TravellerCell, kTravellerColumns> cells;
    QString tip;   // the auction in one line, or par
    int row = -1;  // of the traveller
  };

  void InsertPar(const Traveller& traveller, const Par& par);
  QVariant FontOf(const QModelIndex& index) const;
  QString TipOf(const QModelIndex& index) const;

  std::vector<Row> rows_;
  std::array<TravellerHead, kTravellerColumns> heads_;
  QColor quiet_;
  int marked_ = -1;
  bool twoLines_ = false;
};

/// The rows of a `TravellerModel` in the order of a column; in their own without one. Par is last
/// unless they are sorted by score.
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
