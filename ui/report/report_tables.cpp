// The results of an entrant or of a board, one by one.
#include <QCoreApplication>
#include <QStringList>

#include "core/holding.h"
#include "ui/report/report_cells.h"
#include "ui/report/report_grids.h"
#include "ui/report/report_texts.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(SessionReport)
};

ReportColumn Number(const QString& heading, const QString& rule, CellBar bar = CellBar::None) {
  return {heading, rule, true, false, bar};
}
ReportColumn Text(const QString& heading, const QString& rule, bool names = false) {
  return {heading, rule, false, names, CellBar::None};
}

/// From the contract on; points and tricks of `whose` and of the others.
void AddResultColumns(ReportGrid& grid, const QString& whose, const QString& others) {
  const auto add = [&](ReportColumn column) { grid.columns.push_back(std::move(column)); };
  add(Text(Words::tr("Contract"), Words::tr("The contract.")));
  add(Text(Words::tr("By"), Words::tr("The declarer.")));
  add(Text(Words::tr("Lead"), Words::tr("The opening lead.")));
  add(Number(Words::tr("Tricks"), Words::tr("Tricks that declarer made.")));
  add(Number(Words::tr("DD"),
             Words::tr("Tricks that declarer makes double-dummy: when all four see all cards.")));
  add(Number(Words::tr("Score"), Words::tr("The score of %1, or the ruling.").arg(whose)));
  add(Number(Words::tr("Against par"), Words::tr("The score of %1, less par.").arg(whose),
             CellBar::AboutZero));
  add(Number(Words::tr("Bidding"),
             Words::tr("What the contract is worth double-dummy, less par.")));
  add(Number(Words::tr("Play"),
             Words::tr("The score, less what the contract is worth double-dummy.")));
  add(Number(Words::tr("Given"), Words::tr("Tricks that %1 gave away.").arg(whose)));
  add(Number(Words::tr("Gifts"), Words::tr("Tricks that %1 gave away.").arg(others)));
  add(Text(Words::tr("Why"), Words::tr("Who beat par and why, and what was missed.")));
}

/// Which hand gave away how much.
QString GivenTip(const ReportTable& table) {
  if (!table.play) return Words::tr("The play is not known.");
  QStringList parts;
  for (const Seat seat : kAllSeats) {
    const GivenAway& given = table.play->given[seat];
    if (given.Total() == 0) continue;
    parts += given.lead.value_or(0) > 0
                 ? Words::tr("%1 %2, %3 of them in the lead")
                       .arg(ToQt(SeatName[seat]))
                       .arg(given.Total())
                       .arg(*given.lead)
                 : Words::tr("%1 %2").arg(ToQt(SeatName[seat])).arg(given.Total());
  }
  return parts.isEmpty() ? Words::tr("No trick was given away.") : parts.join(QStringLiteral("; "));
}

ReportCell GivenCell(const ReportTable& table, Side side) {
  ReportCell cell = CountCell(GivenBy(table, side));
  cell.tip = GivenTip(table);
  return cell;
}

ReportCell ScoreCell(const ReportTable& table, Side side) {
  if (!table.score) return TextCell(ToQt(table.adjusted));
  return PointsCell(side == Side::NorthSouth ? *table.score : -*table.score);
}

QString WhyText(const ReportTable& table) {
  QStringList parts;
  if (const std::string why = table.WhyBeaten(); !why.empty()) {
    parts +=
        Words::tr("%1 by %2")
            .arg(SideText(table.par->total > 0 ? Side::NorthSouth : Side::EastWest), ToQt(why));
  }
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    const BiddingVerdict& verdict = table.bidding[side];
    if (verdict.missedSlam) parts += Words::tr("%1 missed a slam").arg(SideText(side));
    if (verdict.missedGame) parts += Words::tr("%1 missed a game").arg(SideText(side));
    if (verdict.overbid) parts += Words::tr("%1 overbid").arg(SideText(side));
  }
  if (table.play && !table.play->remark.empty()) parts += ToQt(table.play->remark);
  return parts.join(QStringLiteral("; "));
}

void AddResult(std::vector<ReportCell>& row, const ReportTable& table, Side side) {
  const auto par = table.ParOf(side);
  row.push_back(ContractCell(table));
  row.push_back(TextCell(table.declarer ? ToQt(SeatName[*table.declarer]) : QString()));
  row.push_back(TextCell(table.lead ? ToQt(CardText(*table.lead)) : QString()));
  row.push_back(CountCell(table.tricks));
  row.push_back(CountCell(table.doubleDummy));
  row.push_back(ScoreCell(table, side));
  row.push_back(PointsCell(par ? std::optional(par->total) : std::nullopt));
  row.push_back(PointsCell(par ? par->bidding : std::nullopt));
  row.push_back(PointsCell(par ? par->play : std::nullopt));
  row.push_back(GivenCell(table, side));
  row.push_back(GivenCell(table, side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth));
  row.push_back(TextCell(WhyText(table)));
}

/// The two who sat on `side`, as one entrant or two players.
QString SeatedText(const SessionReport& report, const ReportTable& table, Side side) {
  const Seat first = side == Side::NorthSouth ? Seat::North : Seat::East;
  const int one = table.entrants[first];
  const int two = table.entrants[PartnerOf(first)];
  QStringList names{EntrantText(report, one)};
  if (two != one) names += EntrantText(report, two);
  names.removeAll(QString());
  return names.join(QStringLiteral(" & "));
}

}  // namespace

ReportGrid TablesOfEntrant(const SessionReport& report, int entrant) {
  ReportGrid grid;
  grid.columns = {Number(Words::tr("Board"), Words::tr("The number of the board.")),
                  Text(Words::tr("Side"), Words::tr("Where it sat.")),
                  Text(Words::tr("Opponents"), Words::tr("Who sat on the other side."), true)};
  AddResultColumns(grid, Words::tr("its side"), Words::tr("the opponents"));
  if (entrant < 0 || entrant >= static_cast<int>(report.entrants.size())) return grid;
  for (const std::size_t at : report.entrants[static_cast<std::size_t>(entrant)].tables) {
    const ReportTable& table = report.tables.at(at);
    const Side side = SideAt(table, entrant).value_or(Side::NorthSouth);
    const Side other = side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth;
    std::vector<ReportCell> row{CountCell(table.boardNumber), TextCell(SideText(side)),
                                TextCell(SeatedText(report, table, other))};
    AddResult(row, table, side);
    grid.rows.push_back(std::move(row));
  }
  return grid;
}

ReportGrid TablesOfBoard(const SessionReport& report, const ReportBoard& board) {
  ReportGrid grid;
  grid.columns = {Text(Words::tr("North-South"), Words::tr("Who sat North-South."), true),
                  Text(Words::tr("East-West"), Words::tr("Who sat East-West."), true)};
  AddResultColumns(grid, Words::tr("North-South"), Words::tr("East-West"));
  for (const std::size_t at : board.tables) {
    const ReportTable& table = report.tables.at(at);
    std::vector<ReportCell> row{TextCell(SeatedText(report, table, Side::NorthSouth)),
                                TextCell(SeatedText(report, table, Side::EastWest))};
    AddResult(row, table, Side::NorthSouth);
    grid.rows.push_back(std::move(row));
  }
  return grid;
}

}  // namespace tricklet::ui
