#include "ui/panes/traveller_model.h"

#include <algorithm>

#include <QFont>

#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

bool HasNames(int column) {
  return column == static_cast<int>(TravellerColumn::NorthSouth) ||
         column == static_cast<int>(TravellerColumn::EastWest);
}

/// The lead lies in a hand that is turned face down, or may do so.
bool IsLeadSecret(const TravellerRow& row, const PerSeat<bool>& hidden) {
  if (row.declarer) return hidden[SeatAfter(*row.declarer)];
  return std::any_of(hidden.begin(), hidden.end(), [](bool each) { return each; });
}

}  // namespace

void TravellerModel::Show(const Traveller& traveller, const std::optional<Par>& par,
                          const PerSeat<bool>& hidden, const QPalette& palette) {
  beginResetModel();
  marked_ = -1;
  quiet_ = palette.color(QPalette::PlaceholderText);
  rows_.assign(traveller.rows.size(), {});
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    rows_[row].row = static_cast<int>(row);
    rows_[row].tip = ToQt(ReadLinBidding(traveller.rows[row]));
  }
  for (int column = 0; column < kTravellerColumns; ++column) {
    const auto place = static_cast<std::size_t>(column);
    const auto kind = static_cast<TravellerColumn>(column);
    heads_.at(place) = MakeTravellerHead(kind, traveller);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      const TravellerRow& from = traveller.rows[row];
      const bool secret = kind == TravellerColumn::Lead && IsLeadSecret(from, hidden);
      rows_[row].cells.at(place) = secret ? TravellerCell{QString(), TravellerCell::kNothing}
                                          : MakeTravellerCell(kind, from, traveller);
    }
  }
  if (par && !rows_.empty()) InsertPar(traveller, *par);
  endResetModel();
}

void TravellerModel::InsertPar(const Traveller& traveller, const Par& par) {
  Row line;
  for (int column = 0; column < kTravellerColumns; ++column) {
    line.cells.at(static_cast<std::size_t>(column)) =
        MakeParCell(static_cast<TravellerColumn>(column), par);
  }
  line.tip = ToQt(ParText(par));
  const auto lower = std::ranges::find_if(
      traveller.rows, [&](const TravellerRow& row) { return row.score && *row.score < par.score; });
  rows_.insert(rows_.begin() + (lower - traveller.rows.begin()), std::move(line));
}

void TravellerModel::Mark(int row) {
  if (row == marked_) return;
  marked_ = row;
  if (rows_.empty()) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, kTravellerColumns - 1), {Qt::FontRole});
}

void TravellerModel::SetTwoLines(bool twoLines) {
  if (twoLines == twoLines_) return;
  twoLines_ = twoLines;
  emit headerDataChanged(Qt::Horizontal, 0, kTravellerColumns - 1);
  if (rows_.empty()) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, kTravellerColumns - 1), {Qt::DisplayRole});
}

const TravellerCell& TravellerModel::At(const QModelIndex& index) const {
  return rows_.at(static_cast<std::size_t>(index.row()))
      .cells.at(static_cast<std::size_t>(index.column()));
}

int TravellerModel::RowOf(const QModelIndex& index) const {
  return rows_.at(static_cast<std::size_t>(index.row())).row;
}

QModelIndex TravellerModel::PlaceOf(int row) const {
  const auto place = std::ranges::find(rows_, row, &Row::row);
  if (row < 0 || place == rows_.end()) return {};
  return index(static_cast<int>(place - rows_.begin()), 0);
}

int TravellerModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TravellerModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kTravellerColumns;
}

Qt::ItemFlags TravellerModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() && RowOf(index) < 0 ? flags & ~Qt::ItemIsSelectable : flags;
}

QVariant TravellerModel::FontOf(const QModelIndex& index) const {
  QFont font;  // all but its weight is the grid's
  font.setBold(RowOf(index) >= 0 && RowOf(index) == marked_);
  return font;
}

/// Names are shown whole before the auction, as they may be cut in the grid. Rich text with
/// everything escaped, so that no part of it is taken for mark-up.
QString TravellerModel::TipOf(const QModelIndex& index) const {
  QString tip = rows_.at(static_cast<std::size_t>(index.row())).tip.toHtmlEscaped();
  if (HasNames(index.column()) && RowOf(index) >= 0) {
    tip = At(index).text.toHtmlEscaped() + QStringLiteral("<br>") + tip;
  }
  return QStringLiteral("<span>%1</span>").arg(tip);
}

QVariant TravellerModel::data(const QModelIndex& index, int role) const {
  const TravellerCell& cell = At(index);
  switch (role) {
    case Qt::DisplayRole:
      return twoLines_ && HasNames(index.column()) ? InTwoLines(cell.text) : cell.text;
    case Qt::AccessibleTextRole:
      return cell.spoken.isEmpty() ? cell.text : cell.spoken;
    case Qt::ToolTipRole:
      return TipOf(index);
    case Qt::TextAlignmentRole:
      return QVariant((cell.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
      return RowOf(index) < 0 ? quiet_ : QVariant();
    case Qt::FontRole:
      return FontOf(index);
    case ParRole:
      return RowOf(index) < 0;
    default:
      return {};
  }
}

QVariant TravellerModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return {};
  const TravellerHead& head = heads_.at(static_cast<std::size_t>(section));
  if (role == Qt::DisplayRole) return twoLines_ ? head.brief : head.text;
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return head.tip;
  if (role == Qt::TextAlignmentRole) {
    const bool number = section >= static_cast<int>(TravellerColumn::Score);
    return QVariant((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }
  return {};
}

TravellerOrder::TravellerOrder(TravellerModel* rows) : QSortFilterProxyModel(rows), rows_(*rows) {
  setSourceModel(rows);
}

bool TravellerOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  if (left.column() != static_cast<int>(TravellerColumn::Score)) {
    const bool descending = sortOrder() == Qt::DescendingOrder;
    if (rows_.RowOf(left) < 0) return descending;
    if (rows_.RowOf(right) < 0) return !descending;
  }
  const TravellerCell& a = rows_.At(left);
  const TravellerCell& b = rows_.At(right);
  return a.key != b.key ? a.key < b.key : a.text.localeAwareCompare(b.text) < 0;
}

}  // namespace tricklet::ui
