#include "ui/report/report_texts.h"

#include <algorithm>
#include <cmath>

#include <QCoreApplication>
#include <QStringList>

#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

/// Texts of this file are translated under this name.
struct Words {
  Q_DECLARE_TR_FUNCTIONS(SessionReport)
};

constexpr qsizetype kMostLeads = 4;  // contracts in a text; the others stand in the table

QString LevelText(const QString& what, const LevelFigures& figures) {
  return Words::tr("%1: %2 bid, %3 made, %4 makeable, %5 missed")
      .arg(what)
      .arg(figures.bid)
      .arg(figures.made)
      .arg(figures.makeable)
      .arg(figures.missed);
}

QString LeadsOf(const BeatableContract& contract) {
  const QString name = WithSymbols(ToQt(contract.ContractText()));
  if (contract.everyLead) return Words::tr("%1 is beaten by any lead").arg(name);
  return Words::tr("%1 is beaten by %2, found at %3 of %4 tables")
      .arg(name, ToQt(contract.LeadsText()))
      .arg(contract.found)
      .arg(contract.times);
}

/// How often each reason let `side` beat par: "2 by bidding, 1 by play".
QString Reasons(const SessionReport& report, const ReportBoard& board, Side side) {
  QStringList parts;
  const std::pair<const char*, QString> reasons[] = {
      {"bidding", Words::tr("%1 by bidding")},
      {"play", Words::tr("%1 by play")},
      {"bidding and play", Words::tr("%1 by bidding and play")}};
  for (const auto& [why, text] : reasons) {
    const auto times = std::count_if(board.tables.begin(), board.tables.end(),
                                     [&, why = why](const std::size_t at) {
                                       const ReportTable& table = report.tables.at(at);
                                       const auto par = table.ParOf(side);
                                       return par && par->total > 0 && table.WhyBeaten() == why;
                                     });
    if (times > 0) parts += text.arg(times);
  }
  return parts.join(QStringLiteral(", "));
}

QString BeatersText(const SessionReport& report, const ReportBoard& board, Side side) {
  const QString reasons = Reasons(report, board, side);
  const QString line = Words::tr("%1 beat par at %2 of %3 tables")
                           .arg(SideText(side))
                           .arg(board.beatPar[side])
                           .arg(board.againstPar.count);
  return reasons.isEmpty() ? line : line + QStringLiteral(": ") + reasons;
}

}  // namespace

QString SignedText(double points) {
  const long whole = std::lround(points);
  if (whole == 0) return QStringLiteral("0");
  return (whole > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) +
         QString::number(std::labs(whole));
}

QString MeanText(double mean) {
  return QString::number(mean, 'f', 2);
}

QString EntrantsTitle(Contestants contestants) {
  switch (contestants) {
    case Contestants::Players:
      return Words::tr("Players");
    case Contestants::Teams:
      return Words::tr("Teams");
    case Contestants::Pairs:
      break;
  }
  return Words::tr("Pairs");
}

QString EntrantTitle(Contestants contestants) {
  switch (contestants) {
    case Contestants::Players:
      return Words::tr("Player");
    case Contestants::Teams:
      return Words::tr("Team");
    case Contestants::Pairs:
      break;
  }
  return Words::tr("Pair");
}

QString EntrantText(const SessionReport& report, int entrant) {
  if (entrant < 0 || entrant >= static_cast<int>(report.entrants.size())) return {};
  const ReportEntrant& found = report.entrants[static_cast<std::size_t>(entrant)];
  return ToQt(found.number + (found.number.empty() || found.names.empty() ? "" : " ") +
              found.names);
}

QString SideText(Side side) {
  return side == Side::NorthSouth ? Words::tr("N-S") : Words::tr("E-W");
}

std::optional<Side> SideAt(const ReportTable& table, int entrant) {
  for (const Seat seat : kAllSeats) {
    if (table.entrants[seat] == entrant) return SideOf(seat);
  }
  return std::nullopt;
}

QString ContractText(const ReportTable& table) {
  return WithSymbols(ToQt(table.contract));
}

std::optional<int> GivenBy(const ReportTable& table, Side side) {
  if (!table.play) return std::nullopt;
  int tricks = 0;
  for (const Seat seat : kAllSeats) {
    if (SideOf(seat) == side) tricks += table.play->given[seat].Total();
  }
  return tricks;
}

QString ContractsText(const ReportEntrant& entrant) {
  const QString text = Words::tr("Contracts: %1 declared, %2 made, %3 makeable")
                           .arg(entrant.declared)
                           .arg(entrant.made)
                           .arg(entrant.makeable);
  return QStringList{text, LevelText(Words::tr("Games"), entrant.games),
                     LevelText(Words::tr("Slams"), entrant.slams),
                     Words::tr("Overbid: %1").arg(entrant.overbid),
                     Words::tr("Doubled: %1 made, %2 down; against them %3 made, %4 down")
                         .arg(entrant.doubledMade)
                         .arg(entrant.doubledDown)
                         .arg(entrant.theyMadeDoubled)
                         .arg(entrant.theyWentDown)}
      .join(QStringLiteral(" \u00b7 "));
}

QString BoardText(const SessionReport& report, const ReportBoard& board) {
  QStringList lines;
  if (board.par) {
    lines += QStringList{WithSymbols(ToQt(ParText(*board.par))),
                         BeatersText(report, board, Side::NorthSouth),
                         BeatersText(report, board, Side::EastWest)}
                 .join(QStringLiteral(" \u00b7 "));
  }
  QStringList leads;
  for (const BeatableContract& contract : board.beatable) leads += LeadsOf(contract);
  const qsizetype more = leads.size() - kMostLeads;
  if (more > 0) leads = leads.first(kMostLeads) + QStringList(Words::tr("and %1 more").arg(more));
  if (!leads.isEmpty()) lines += leads.join(QStringLiteral(" \u00b7 "));
  return lines.join(u'\n');
}

}  // namespace tricklet::ui
