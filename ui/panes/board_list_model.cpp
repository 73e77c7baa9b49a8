#include "ui/panes/board_list_model.h"

#include <algorithm>

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include "ui/background/board_summaries.h"
#include "ui/panes/board_row_text.h"

namespace tricklet::ui {
namespace {

constexpr int kColumns = static_cast<int>(BoardColumn::Entry) + 1;

Qt::Alignment AlignmentOf(BoardColumn column) {
  return Qt::AlignVCenter | (column == BoardColumn::Score ? Qt::AlignRight : Qt::AlignLeft);
}

/// Of a board that can be chosen like any other, but has nothing to show yet.
bool IsEmpty(const ListedBoard& board) {
  return !board.stored && !board.changed;
}

QVariant FontOf(const ListedBoard& board, BoardColumn column) {
  if (column != BoardColumn::Number || IsEmpty(board)) return {};
  QFont font;
  font.setBold(true);
  return font;
}

}  // namespace

BoardListModel::BoardListModel(const Session& session, const BoardSummaries& summaries,
                               QObject* parent)
    : QAbstractTableModel(parent), session_(session), summaries_(summaries) {
  connect(&summaries, &BoardSummaries::Changed, this, &BoardListModel::TellChanged);
}

void BoardListModel::Show() {
  ShowCount();
  const int before = current_;
  current_ = session_.board.boardNumber;
  if (present_ != session_.library.boardPresent) {
    present_ = session_.library.boardPresent;
    TellChanged(kFirstBoardNumber, maxBoard_);
  } else {
    TellChanged(before, before);
    TellChanged(current_, current_);
  }
}

void BoardListModel::ShowCount() {
  const int count = session_.library.maxBoard;
  if (count > maxBoard_) {
    beginInsertRows({}, maxBoard_, count - 1);
    maxBoard_ = count;
    endInsertRows();
  } else if (count < maxBoard_) {
    beginRemoveRows({}, count, maxBoard_ - 1);
    maxBoard_ = count;
    endRemoveRows();
  }
}

void BoardListModel::TellChanged(int firstBoard, int lastBoard) {
  const int last = std::min(lastBoard, maxBoard_);
  if (firstBoard > last) return;
  emit dataChanged(index(firstBoard - 1, 0), index(last - 1, kColumns - 1));
}

ListedBoard BoardListModel::At(int boardNumber) const {
  return summaries_.At(boardNumber);
}

int BoardListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : maxBoard_;
}

int BoardListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant BoardListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= maxBoard_) return {};
  const ListedBoard board = At(index.row() + 1);
  const auto column = static_cast<BoardColumn>(index.column());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return CellText(board, column);
    case Qt::ToolTipRole:
      return RowText(board);
    case Qt::AccessibleTextRole:
      return column == BoardColumn::Number ? RowText(board) : CellText(board, column);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(column));
    case Qt::FontRole:
      return FontOf(board, column);
    case Qt::ForegroundRole:
      if (!IsEmpty(board)) return {};
      return QGuiApplication::palette().brush(QPalette::PlaceholderText);
    case kVulnerableRole:
      return column == BoardColumn::Vulnerability && board.stored;
    default:
      return {};
  }
}

QVariant BoardListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kColumns) return {};
  const auto column = static_cast<BoardColumn>(section);
  if (role == Qt::DisplayRole) return HeadText(column).shown;
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return HeadText(column).inFull;
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(column));
  return {};
}

}  // namespace tricklet::ui
