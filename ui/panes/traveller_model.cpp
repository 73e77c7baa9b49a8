#include "ui/panes/traveller_model.h"

#include <QFont>

#include "ui/style/qt_text.h"

namespace tricklet::ui {

void TravellerModel::Show(const Traveller& traveller, bool fourColours, const QPalette& palette) {
  beginResetModel();
  marked_ = -1;
  rows_.assign(traveller.rows.size(), {});
  for (int column = 0; column < kTravellerColumns; ++column) {
    const auto place = static_cast<std::size_t>(column);
    const auto kind = static_cast<TravellerColumn>(column);
    heads_.at(place) = MakeTravellerHead(kind, traveller);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      rows_[row].cells.at(place) =
          MakeTravellerCell(kind, traveller.rows[row], fourColours, palette);
    }
  }
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    // As rich text with everything escaped, so that no part of it is taken for mark-up.
    rows_[row].tip = QStringLiteral("<span>%1</span>")
                         .arg(ToQt(ReadLinBidding(traveller.rows[row])).toHtmlEscaped());
  }
  endResetModel();
}

void TravellerModel::Mark(int row) {
  if (row == marked_) return;
  marked_ = row;
  if (rows_.empty()) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, kTravellerColumns - 1), {Qt::FontRole});
}

const TravellerCell& TravellerModel::At(const QModelIndex& index) const {
  return rows_.at(static_cast<std::size_t>(index.row()))
      .cells.at(static_cast<std::size_t>(index.column()));
}

int TravellerModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TravellerModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kTravellerColumns;
}

QVariant TravellerModel::data(const QModelIndex& index, int role) const {
  const TravellerCell& cell = At(index);
  switch (role) {
    case Qt::DisplayRole:
      return cell.text;
    case Qt::AccessibleTextRole:
      return cell.spoken.isEmpty() ? cell.text : cell.spoken;
    case Qt::ToolTipRole:
      return rows_.at(static_cast<std::size_t>(index.row())).tip;
    case Qt::TextAlignmentRole:
      return QVariant((cell.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
      return cell.colour.isValid() ? cell.colour : QVariant();
    case Qt::FontRole: {
      QFont font;  // all but its weight is the grid's
      font.setBold(index.row() == marked_);
      return font;
    }
    default:
      return {};
  }
}

QVariant TravellerModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return {};
  const TravellerHead& head = heads_.at(static_cast<std::size_t>(section));
  if (role == Qt::DisplayRole) return head.text;
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return head.tip;
  const bool names = section == static_cast<int>(TravellerColumn::Names);
  if (role == Qt::TextAlignmentRole && names) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return {};
}

TravellerOrder::TravellerOrder(TravellerModel* rows) : QSortFilterProxyModel(rows), rows_(*rows) {
  setSourceModel(rows);
}

bool TravellerOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const TravellerCell& a = rows_.At(left);
  const TravellerCell& b = rows_.At(right);
  return a.key != b.key ? a.key < b.key : a.text.localeAwareCompare(b.text) < 0;
}

}  // namespace tricklet::ui
