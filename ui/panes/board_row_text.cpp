#include "ui/panes/board_row_text.h"

#include <array>
#include <cstdlib>

#include <QCoreApplication>
#include <QStringList>

#include "core/scoring.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

QString Text(const char* source) {
  return QCoreApplication::translate("tricklet::ui::BoardList", source);
}

QString NumberText(const ListedBoard& board) {
  return QString::number(board.boardNumber) + (board.changed ? QStringLiteral("*") : QString());
}

QString EntryText(const ListedBoard& board) {
  return (board.stored ? Text("Board %1") : Text("Board %1 (empty)")).arg(board.boardNumber);
}

QString VulnerabilityText(int boardNumber) {
  const Vulnerability vulnerability = VulOfBoard(boardNumber);
  return vulnerability == Vulnerability::None ? QString() : ToQt(PBNVul[vulnerability]);
}

QString ContractText(const ListedBoard& board) {
  if (!board.stored && !board.changed) return Text("empty");
  if (!board.summary) return {};
  const BoardSummary& summary = *board.summary;
  if (!summary.readable) return Text("unreadable");
  if (summary.contract == kAllPass) return Text("Pass");
  if (summary.contractLevel == 0) return {};
  return WithSymbols(ToQt(summary.contract)) + QLatin1Char(' ') +
         ToQt(SeatName[summary.declarer].substr(0, 1));
}

QString ScoreText(const ListedBoard& board) {
  if (!board.score) return ToQt(board.ruling);
  const QString sign = *board.score > 0   ? QStringLiteral("+")
                       : *board.score < 0 ? QStringLiteral("\u2212")
                                          : QString();
  return sign + QString::number(std::abs(*board.score));
}

/// "4 spades doubled by South".
QString SpokenContract(const BoardSummary& summary) {
  if (summary.contract == kAllPass) return Text("passed out");
  QString strain = Text("no trump");
  if (summary.trumps != Strain::NoTrump) {
    strain = ToQt(SuitName[ToSuit(summary.trumps)]).toLower();
    if (summary.contractLevel == 1) strain.chop(1);  // "1 spade", "2 spades"
  }
  constexpr std::array kDoublings{
      QT_TRANSLATE_NOOP("tricklet::ui::BoardList", "%1 %2 by %3"),
      QT_TRANSLATE_NOOP("tricklet::ui::BoardList", "%1 %2 doubled by %3"),
      QT_TRANSLATE_NOOP("tricklet::ui::BoardList", "%1 %2 redoubled by %3")};
  const auto doubling = static_cast<std::size_t>(DoublingOf(summary.contract));
  return Text(kDoublings.at(doubling))
      .arg(summary.contractLevel)
      .arg(strain, ToQt(SeatName[summary.declarer]));
}

QString SpokenScore(const ListedBoard& board) {
  if (!board.score) return Text("result %1").arg(ToQt(board.ruling));
  const QString text = *board.score < 0 ? Text("score minus %1") : Text("score %1");
  return text.arg(std::abs(*board.score));
}

}  // namespace

QString CellText(const ListedBoard& board, BoardColumn column) {
  switch (column) {
    case BoardColumn::Number:
      return NumberText(board);
    case BoardColumn::Dealer:
      return ToQt(SeatName[DealerOfBoard(board.boardNumber)].substr(0, 1));
    case BoardColumn::Vulnerability:
      return VulnerabilityText(board.boardNumber);
    case BoardColumn::Contract:
      return ContractText(board);
    case BoardColumn::Score:
      return ScoreText(board);
    case BoardColumn::Entry:
      break;
  }
  return EntryText(board);
}

QString RowText(const ListedBoard& board) {
  QStringList parts{EntryText(board),
                    Text("dealer %1").arg(ToQt(SeatName[DealerOfBoard(board.boardNumber)])),
                    ToQt(VulText[VulOfBoard(board.boardNumber)])};
  if (board.summary) {
    const BoardSummary& summary = *board.summary;
    if (!summary.readable) parts += Text("the file cannot be read");
    if (summary.readable && !summary.dealt) parts += Text("no cards");
    if (!summary.contract.empty()) parts += SpokenContract(summary);
  }
  if (board.HasResult()) parts += SpokenScore(board);
  if (board.changed) parts += Text("changes not saved");
  return parts.join(QStringLiteral(", "));
}

HeadTexts HeadText(BoardColumn column) {
  switch (column) {
    case BoardColumn::Number:
      return {Text("Bd"), Text("Board")};
    case BoardColumn::Dealer:
      return {Text("Dlr"), Text("Dealer")};
    case BoardColumn::Vulnerability:
      return {Text("Vul"), Text("Vulnerable")};
    case BoardColumn::Contract:
      return {Text("Contract"), Text("Contract and declarer")};
    case BoardColumn::Score:
      return {Text("Score"), Text("Score of North-South")};
    case BoardColumn::Entry:
      break;
  }
  return {Text("Board"), Text("Board")};
}

}  // namespace tricklet::ui
