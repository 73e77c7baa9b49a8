#include "ui/dialogs/import_rows_model.h"

#include <iterator>
#include <utility>

#include "ui/style/qt_text.h"

namespace tricklet::ui {

ImportRowsModel::ImportRowsModel(const ImportLook& look, QObject* parent)
    : QAbstractTableModel(parent), look_(look) {}

ImportRowsModel::Planned ImportRowsModel::PlanOf(const ImportChoices& choices) const {
  const bool intoNew = !choices.newLibrary.empty();
  Planned planned;
  planned.plan = PlanImport(look_.contents, choices, intoNew ? BoardsThere{} : look_.there);
  const std::string& library = intoNew ? choices.newLibrary : look_.library;
  planned.rows =
      PlanRows(look_.contents, choices, planned.plan, look_.partNames(library, planned.plan.parts));
  return planned;
}

/// Each section goes into a new library. What cannot be read belongs to none of them and comes
/// last.
ImportRowsModel::Planned ImportRowsModel::PlanOfAll(const ImportChoices& choices) const {
  Planned all;
  std::vector<PlanRow> unread;
  const auto& sections = look_.contents.sections;
  for (std::size_t at = 0; at < sections.size(); ++at) {
    ImportChoices each = choices;
    each.section = at;
    each.unwanted.clear();
    each.newLibrary = PathText(look_.file.stem()) + " " + sections[at].name;
    Planned section = PlanOf(each);
    for (PlanRow& row : section.rows) {
      if (!row.board) {
        if (at == 0) unread.push_back(std::move(row));
        continue;
      }
      row.optional = false;
      row.inFile = Showable(sections[at].name, 24) + (row.inFile.empty() ? "" : ": " + row.inFile);
      all.rows.push_back(std::move(row));
    }
    all.plan.boards.insert(all.plan.boards.end(),
                           std::make_move_iterator(section.plan.boards.begin()),
                           std::make_move_iterator(section.plan.boards.end()));
    all.plan.stored += section.plan.stored;
    all.plan.tables += section.plan.tables;
  }
  all.rows.insert(all.rows.end(), std::make_move_iterator(unread.begin()),
                  std::make_move_iterator(unread.end()));
  return all;
}

void ImportRowsModel::Show(const ImportChoices& choices) {
  Planned planned = choices.section == kEverySection ? PlanOfAll(choices) : PlanOf(choices);
  plan_ = std::move(planned.plan);
  if (planned.rows.size() != rows_.size()) {
    beginResetModel();
    rows_ = std::move(planned.rows);
    endResetModel();
    return;
  }
  // The same boards: what is chosen, and where the table has been scrolled to, stays.
  rows_ = std::move(planned.rows);
  if (!rows_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, kImportColumns - 1));
}

int ImportRowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ImportRowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kImportColumns;
}

QString ImportRowsModel::TextOf(const PlanRow& row, ImportColumn column) const {
  const QString none = QStringLiteral("\u2014");
  switch (column) {
    case ImportColumn::InFile:
      return row.inFile.empty() ? none : ToQt(row.inFile);
    case ImportColumn::StoredAs:
      return ToQt(row.storedAs);
    case ImportColumn::Hand:
      return ToQt(row.hand);
    case ImportColumn::What:
      return ToQt(row.what);
  }
  return {};
}

/// A screen reader says nothing of a dash or of an empty cell.
QString ImportRowsModel::SpokenText(const PlanRow& row, ImportColumn column) const {
  if (column == ImportColumn::InFile && row.inFile.empty()) return tr("no number");
  if (column == ImportColumn::StoredAs && !row.stored) return tr("not stored");
  return TextOf(row, column);
}

QVariant ImportRowsModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const PlanRow& row = rows_[static_cast<std::size_t>(index.row())];
  const auto column = static_cast<ImportColumn>(index.column());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return TextOf(row, column);
    case Qt::AccessibleTextRole:
      return SpokenText(row, column);
    case Qt::CheckStateRole:
      if (column != ImportColumn::InFile) return {};
      return row.stored ? Qt::Checked : Qt::Unchecked;
    case OrdinaryRole:
      return row.ordinary;
    default:
      return {};
  }
}

QVariant ImportRowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  switch (static_cast<ImportColumn>(section)) {
    case ImportColumn::InFile:
      return tr("In file");
    case ImportColumn::StoredAs:
      return tr("Stored as");
    case ImportColumn::Hand:
      return tr("First hand");
    case ImportColumn::What:
      return tr("What happens");
  }
  return {};
}

Qt::ItemFlags ImportRowsModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (!index.isValid() || index.column() != 0) return flags;
  if (rows_[static_cast<std::size_t>(index.row())].optional) flags |= Qt::ItemIsUserCheckable;
  return flags;
}

bool ImportRowsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable)) return false;
  Want({index}, value.toInt() == Qt::Checked);
  return true;
}

void ImportRowsModel::Want(const QModelIndexList& rows, bool wanted) {
  QList<std::size_t> boards;
  for (const QModelIndex& row : rows) {
    const PlanRow& shown = rows_[static_cast<std::size_t>(row.row())];
    if (shown.optional && shown.board) boards += *shown.board;
  }
  if (!boards.isEmpty()) emit Wanted(boards, wanted);
}

}  // namespace tricklet::ui
