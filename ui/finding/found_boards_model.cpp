#include "ui/finding/found_boards_model.h"

#include <array>
#include <optional>

#include "core/scoring.h"
#include "finding/found_text.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

struct Heading {
  const char* shown;
  const char* inFull;
};
constexpr std::array<Heading, kFoundColumns> kHeadings{
    {{QT_TR_NOOP("Library"), QT_TR_NOOP("The library that has the board")},
     {QT_TR_NOOP("Board"), QT_TR_NOOP("The number of the board")},
     {QT_TR_NOOP("Dealer"), QT_TR_NOOP("The dealer")},
     {QT_TR_NOOP("Vul"), QT_TR_NOOP("Who is vulnerable")},
     {QT_TR_NOOP("Contract"), QT_TR_NOOP("The contract of the board's own auction")},
     {QT_TR_NOOP("Par"),
      QT_TR_NOOP("Par, by the double-dummy table that is stored with the board")},
     {QT_TR_NOOP("Points NS-EW"), QT_TR_NOOP("High-card points of North-South and East-West")},
     {QT_TR_NOOP("South"), QT_TR_NOOP("The lengths of South's suits")},
     {QT_TR_NOOP("Notes"), QT_TR_NOOP("What is written about the board")},
     {QT_TR_NOOP("Results"), QT_TR_NOOP("How many tables have played the board")}}};

constexpr FoundColumn ColumnOf(int section) {
  return static_cast<FoundColumn>(section);
}

QString ResultsText(int tables) {
  if (tables == 0) return {};
  return tables == 1 ? FoundBoardsModel::tr("1 table")
                     : FoundBoardsModel::tr("%1 tables").arg(tables);
}

QString Text(const FoundBoard& board, FoundColumn column) {
  const int number = board.listed.boardNumber;
  switch (column) {
    case FoundColumn::Library:
      return ToQt(ShownName(board.library));
    case FoundColumn::Number:
      return QString::number(number);
    case FoundColumn::Dealer:
      return ToQt(SeatName[DealerOfBoard(number)].substr(0, 1));
    case FoundColumn::Vulnerability:
      return ToQt(PBNVul[VulOfBoard(number)]);
    case FoundColumn::Contract: {
      const std::string contract = FoundContractText(board);
      return contract == kAllPass ? FoundBoardsModel::tr("Pass") : WithSymbols(ToQt(contract));
    }
    case FoundColumn::Par:
      return WithSymbols(ToQt(FoundParText(board)));
    case FoundColumn::Points:
      return ToQt(FoundPointsText(board)).replace(u'-', u'\u2013');
    case FoundColumn::Shape:
      return ToQt(FoundShapeText(board, Seat::South));
    case FoundColumn::Notes:
      return ToQt(FoundNoteText(board)).simplified();
    case FoundColumn::Results:
      return ResultsText(board.tables);
  }
  return {};
}

/// By which the boards are in order; nothing where nothing is known.
using SortKey = std::optional<std::array<int, kSuits>>;

SortKey ContractKey(const FoundBoard& board) {
  const auto& summary = board.listed.summary;
  if (!summary || summary->contract.empty()) return std::nullopt;
  return std::array{summary->contractLevel, static_cast<int>(ToBidStrain(summary->trumps)),
                    static_cast<int>(DoublingOf(summary->contract)), 0};
}

SortKey NumberKey(int number) {
  return std::array{number, 0, 0, 0};
}

SortKey KeyOf(const FoundBoard& board, FoundColumn column) {
  const int number = board.listed.boardNumber;
  switch (column) {
    case FoundColumn::Number:
      return NumberKey(number);
    case FoundColumn::Dealer:
      return NumberKey(static_cast<int>(DealerOfBoard(number)));
    case FoundColumn::Vulnerability:
      return NumberKey(static_cast<int>(VulOfBoard(number)));
    case FoundColumn::Contract:
      return ContractKey(board);
    case FoundColumn::Par:
      if (board.par) return NumberKey(board.par->score);
      break;
    case FoundColumn::Points:
      if (board.complete) return NumberKey(board.points[Seat::North] + board.points[Seat::South]);
      break;
    case FoundColumn::Shape:
      if (board.complete) return FoundLengths(board, Seat::South);
      break;
    case FoundColumn::Results:
      if (board.tables > 0) return NumberKey(board.tables);
      break;
    case FoundColumn::Library:
    case FoundColumn::Notes:
      break;
  }
  return std::nullopt;
}

}  // namespace

void FoundBoardsModel::Clear() {
  beginResetModel();
  boards_.clear();
  endResetModel();
}

void FoundBoardsModel::Append(const std::vector<FoundBoard>& boards) {
  if (boards.empty()) return;
  const int first = static_cast<int>(boards_.size());
  beginInsertRows({}, first, first + static_cast<int>(boards.size()) - 1);
  boards_.insert(boards_.end(), boards.begin(), boards.end());
  endInsertRows();
}

int FoundBoardsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(boards_.size());
}

int FoundBoardsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kFoundColumns;
}

QVariant FoundBoardsModel::data(const QModelIndex& index, int role) const {
  const FoundBoard& board = At(index.row());
  const FoundColumn column = ColumnOf(index.column());
  if (role == Qt::DisplayRole) return Text(board, column);
  if (role == Qt::ToolTipRole && column == FoundColumn::Notes && !board.note.empty()) {
    return ToQt(board.note);
  }
  if (role == Qt::ToolTipRole && column == FoundColumn::Par) return Text(board, column);
  if (role == Qt::TextAlignmentRole && column == FoundColumn::Number) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::AccessibleTextRole) {
    return tr(kHeadings.at(static_cast<std::size_t>(index.column())).shown) + u' ' +
           Text(board, column);
  }
  return {};
}

QVariant FoundBoardsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kFoundColumns) return {};
  const Heading& heading = kHeadings.at(static_cast<std::size_t>(section));
  if (role == Qt::DisplayRole) return tr(heading.shown);
  if (role == Qt::ToolTipRole) return tr(heading.inFull);
  if (role == Qt::TextAlignmentRole) {
    const bool right = ColumnOf(section) == FoundColumn::Number;
    return QVariant((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }
  return {};
}

FoundOrder::FoundOrder(FoundBoardsModel* boards) : QSortFilterProxyModel(boards), boards_(*boards) {
  setSourceModel(boards);
}

bool FoundOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const FoundBoard& one = boards_.At(left.row());
  const FoundBoard& other = boards_.At(right.row());
  const FoundColumn column = ColumnOf(left.column());
  const bool ascending = sortOrder() == Qt::AscendingOrder;
  // As they were found, whichever way the column goes.
  const bool before = (left.row() < right.row()) == ascending;
  if (column == FoundColumn::Library || column == FoundColumn::Notes) {
    const QString text = Text(one, column);
    const QString otherText = Text(other, column);
    if (text.isEmpty() != otherText.isEmpty()) return text.isEmpty() != ascending;
    const int order = text.localeAwareCompare(otherText);
    return order == 0 ? before : order < 0;
  }
  const SortKey key = KeyOf(one, column);
  const SortKey otherKey = KeyOf(other, column);
  if (key.has_value() != otherKey.has_value()) return key.has_value() == ascending;
  return key == otherKey ? before : key < otherKey;
}

}  // namespace tricklet::ui
