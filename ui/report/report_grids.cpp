#include "ui/report/report_grids.h"

#include <algorithm>

#include <QCoreApplication>
#include <QStringList>

#include "ui/report/report_cells.h"
#include "ui/report/report_texts.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(SessionReport)
};

ReportColumn Number(const QString& heading, const QString& rule, CellBar bar = CellBar::None) {
  return {heading, rule, true, false, bar};
}
ReportColumn Text(const QString& heading, const QString& rule) {
  return {heading, rule, false, false, CellBar::None};
}
ReportColumn Wide(const QString& heading, const QString& rule) {
  return {heading, rule, false, true, CellBar::None};
}

std::vector<ReportColumn> ParColumns(const QString& against) {
  return {Number(Words::tr("Against par"), against, CellBar::AboutZero),
          Number(Words::tr("Bidding"),
                 Words::tr("The part of the difference that bidding made: what the contract is "
                           "worth double-dummy, less par."),
                 CellBar::AboutZero),
          Number(Words::tr("Play"),
                 Words::tr("The part of the difference that play made: the score, less what the "
                           "contract is worth double-dummy."),
                 CellBar::AboutZero)};
}

void Append(std::vector<ReportColumn>& columns, std::vector<ReportColumn> more) {
  std::move(more.begin(), more.end(), std::back_inserter(columns));
}

std::vector<ReportColumn> EntrantColumns(Contestants contestants) {
  std::vector<ReportColumn> columns{
      Number(Words::tr("No."), Words::tr("The number in the results.")),
      Wide(EntrantTitle(contestants), Words::tr("The names in the results.")),
      Text(Words::tr("Field"), Words::tr("The direction, where there is a field for each.")),
      Number(Words::tr("Boards"), Words::tr("Boards with a score."))};
  Append(columns, ParColumns(Words::tr("Points a board against par: the score, less par.")));
  const auto given = [&](const QString& heading, const QString& rule) {
    columns.push_back(Number(heading, rule, CellBar::FromLeft));
  };
  given(Words::tr("Declarer"), Words::tr("Tricks a play given away as declarer."));
  given(Words::tr("Lead"), Words::tr("Tricks a play given away in the opening lead."));
  given(Words::tr("Defence"),
        Words::tr("Tricks a play given away in defence, the opening lead aside."));
  columns.push_back(
      Number(Words::tr("Gifts"),
             Words::tr("Tricks that the opponents gave away: as declarer, in the opening lead and "
                       "in the rest of the defence.")));
  columns.push_back(Number(Words::tr("Made"), Words::tr("Contracts made of those declared.")));
  columns.push_back(
      Number(Words::tr("Missed games"),
             Words::tr("Games that could be made double-dummy, were not bid, and for which the "
                       "side scored less than they are worth.")));
  columns.push_back(Number(Words::tr("Missed slams"), Words::tr("Likewise of slams.")));
  columns.push_back(
      Number(Words::tr("Overbid"),
             Words::tr("Contracts that cannot be made double-dummy and are worth less than par. A "
                       "sacrifice that pays is none.")));
  columns.push_back(Number(Words::tr("Doubled"),
                           Words::tr("Contracts declared that were doubled or redoubled.")));
  return columns;
}

ReportCell GiftsCell(const ReportEntrant& entrant) {
  const GivenFigures& declarer = entrant.gotFromDeclarer;
  const GivenFigures& lead = entrant.gotFromLead;
  const GivenFigures& defence = entrant.gotFromDefence;
  if (declarer.plays + lead.plays + defence.plays == 0) return {};
  ReportCell cell = CountCell(declarer.tricks + lead.tricks + defence.tricks);
  cell.tip = Words::tr("from declarers %1, in opening leads %2, in defence %3")
                 .arg(declarer.tricks)
                 .arg(lead.tricks)
                 .arg(defence.tricks);
  return cell;
}

ReportCell MadeCell(const ReportEntrant& entrant) {
  ReportCell cell = ShareCell(entrant.made, entrant.declared);
  cell.tip = Words::tr("makeable double-dummy: %1").arg(entrant.makeable);
  return cell;
}

ReportCell MissedCell(const LevelFigures& figures) {
  ReportCell cell = CountCell(figures.missed);
  cell.tip = Words::tr("bid: %1, made: %2, makeable: %3")
                 .arg(figures.bid)
                 .arg(figures.made)
                 .arg(figures.makeable);
  return cell;
}

ReportCell DoubledCell(const ReportEntrant& entrant) {
  ReportCell cell = CountCell(entrant.doubledMade + entrant.doubledDown);
  cell.tip = Words::tr("made: %1, down: %2").arg(entrant.doubledMade).arg(entrant.doubledDown);
  return cell;
}

/// By its number where it is one.
ReportCell NumberCell(const std::string& number) {
  ReportCell cell = TextCell(ToQt(number));
  bool isNumber = false;
  const double value = cell.text.toDouble(&isNumber);
  if (isNumber) cell.value = value;
  return cell;
}

/// As short as it is elsewhere in the tables.
QString FieldText(const ReportEntrant& entrant) {
  if (entrant.field == "North-South") return SideText(Side::NorthSouth);
  if (entrant.field == "East-West") return SideText(Side::EastWest);
  return ToQt(entrant.field);
}

std::vector<ReportCell> EntrantRow(const ReportEntrant& entrant) {
  return {NumberCell(entrant.number),   TextCell(ToQt(entrant.names)),
          TextCell(FieldText(entrant)), CountCell(entrant.boards),
          MeanCell(entrant.par),        MeanCell(entrant.bidding),
          MeanCell(entrant.play),       MeanCell(entrant.declarer),
          MeanCell(entrant.lead),       MeanCell(entrant.defence),
          GiftsCell(entrant),           MadeCell(entrant),
          MissedCell(entrant.games),    MissedCell(entrant.slams),
          CountCell(entrant.overbid),   DoubledCell(entrant)};
}

ReportCell ParCell(const ReportBoard& board) {
  if (!board.par) return {};
  return {SignedText(board.par->score), board.par->score, WithSymbols(ToQt(ParText(*board.par)))};
}

std::vector<ReportCell> BoardRow(const ReportBoard& board) {
  int beatable = 0;
  int found = 0;
  QStringList leads;
  for (const BeatableContract& contract : board.beatable) {
    beatable += contract.times;
    found += contract.found;
    leads += QStringLiteral("%1: %2").arg(WithSymbols(ToQt(contract.ContractText())),
                                          ToQt(contract.LeadsText()));
  }
  const bool compared = board.againstPar.count > 0;
  const auto known = [&](int count) { return compared ? CountCell(count) : ReportCell(); };
  return {CountCell(board.boardNumber),
          CountCell(board.results),
          ParCell(board),
          MeanCell(board.againstPar),
          known(board.beatPar[Side::NorthSouth]),
          known(board.atPar),
          known(board.beatPar[Side::EastWest]),
          known(beatable),
          beatable > 0 ? ShareCell(found, beatable) : ReportCell(),
          TextCell(leads.join(QStringLiteral("; ")))};
}

}  // namespace

ReportGrid EntrantGrid(const SessionReport& report) {
  ReportGrid grid{EntrantColumns(report.contestants), {}};
  grid.rows.reserve(report.entrants.size());
  for (const ReportEntrant& entrant : report.entrants) grid.rows.push_back(EntrantRow(entrant));
  return grid;
}

ReportGrid BoardGrid(const SessionReport& report) {
  ReportGrid grid{
      {Number(Words::tr("Board"), Words::tr("The number of the board.")),
       Number(Words::tr("Results"), Words::tr("Tables with a score.")),
       Number(Words::tr("Par"),
              Words::tr("North-South's score when all four hands bid and play double-dummy."),
              CellBar::AboutZero),
       Number(Words::tr("Against par"),
              Words::tr("Points a table of North-South against par: the score, less par."),
              CellBar::AboutZero),
       Number(Words::tr("N-S beat par"), Words::tr("Tables at which North-South beat par."),
              CellBar::FromLeft),
       Number(Words::tr("At par"), Words::tr("Tables with the score of par.")),
       Number(Words::tr("E-W beat par"), Words::tr("Tables at which East-West beat par."),
              CellBar::FromLeft),
       Number(Words::tr("Beatable"),
              Words::tr("Tables whose contract some lead beats by one or two tricks.")),
       Number(Words::tr("Lead found"), Words::tr("Of those, the tables that made such a lead.")),
       Wide(Words::tr("Beaten by"), Words::tr("The leads that beat the contracts played."))},
      {}};
  grid.rows.reserve(report.boards.size());
  for (const ReportBoard& board : report.boards) grid.rows.push_back(BoardRow(board));
  return grid;
}

}  // namespace tricklet::ui
