#include "ui/panes/traveller_cells.h"

#include <array>
#include <cmath>
#include <optional>

#include <QCoreApplication>

#include "core/board.h"
#include "core/text.h"
#include "formats/results/ruling.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

QString Text(const char* source) {
  return QCoreApplication::translate("tricklet::ui::TravellerPane", source);
}

TravellerCell NumberCell(std::optional<double> number, const QString& text) {
  return {text, number.value_or(TravellerCell::kNothing), true};
}

const QString kBetweenNames = QStringLiteral(", ");

/// "12 Cy, Di": sorted by the pair's number.
TravellerCell PairCell(const TravellerRow& row, Side side) {
  const QString pair = ToQt(row.pair[side]);
  QString names = ToQt(row.names[side]);
  names.replace(QStringLiteral(" & "), kBetweenNames);
  bool number = false;
  const double key = pair.toDouble(&number);
  return {QStringList{pair, names}.join(QLatin1Char(' ')).trimmed(), pair.isEmpty()
                                                                         ? TravellerCell::kNothing
                                                                     : number ? key
                                                                              : 0};
}

/// "=", "+1" or "-2".
QString ResultText(int result) {
  if (result == 0) return QStringLiteral("=");
  return result > 0 ? QStringLiteral("+%1").arg(result) : QStringLiteral("\u2212%1").arg(-result);
}

/// "4Sx S =" with the symbol of its suit.
TravellerCell ContractCell(const TravellerRow& row) {
  Board contract;
  if (!SetContract(contract, row.contract)) {
    if (row.contract == kAllPass) return {Text("Pass"), -1};
    const std::string text = row.ContractText();
    return {text == kNotPlayed ? Text("Not played") : ToQt(text), TravellerCell::kNothing};
  }
  QString rest;
  if (row.declarer) rest += QLatin1Char(' ') + ToQt(SeatName[*row.declarer].substr(0, 1));
  if (const auto result = row.Result()) rest += QLatin1Char(' ') + ResultText(*result);
  const int rank = contract.contractLevel * kStrains + IndexOf(ToBidStrain(contract.trumps));
  TravellerCell cell{WithSymbols(ToQt(row.contract)) + rest, static_cast<double>(rank)};
  if (contract.trumps == Strain::NoTrump) return cell;
  cell.spoken = ToQt(row.contract) + rest;
  return cell;
}

TravellerCell LeadCell(const TravellerRow& row) {
  if (!row.lead) return {QString(), TravellerCell::kNothing};
  const Card card = *row.lead;
  return {ToQt(CardText(card)), static_cast<double>(kCardsInPack - card.Index()), false,
          ToQt(SuitName[card.suit]) + QLatin1Char(' ') + ToQt(RankText[card.rank])};
}

QString ScoreText(int score) {
  return score < 0 ? QStringLiteral("\u2212%1").arg(-score) : QString::number(score);
}

TravellerCell ScoreCell(const TravellerRow& row) {
  if (!row.score) return NumberCell(std::nullopt, ToQt(row.adjusted));
  return NumberCell(*row.score, ScoreText(*row.score));
}

bool IsMatchPoints(const Traveller& traveller) {
  return traveller.scoring == "MP";
}

/// Match points as a percentage of those that both pairs have between them.
TravellerCell PointsCell(const TravellerRow& row, const Traveller& traveller) {
  const auto ours = row.points[Side::NorthSouth];
  if (!ours) return NumberCell(std::nullopt, QString());
  if (!IsMatchPoints(traveller)) {
    // With the minus sign of the scores beside them.
    return NumberCell(*ours, ToQt(ShortestText(*ours)).replace(QLatin1Char('-'), QChar(0x2212)));
  }
  const float all = *ours + row.points[Side::EastWest].value_or(0);
  const auto ruled = PercentagesOf(row.adjusted)[Side::NorthSouth];
  if (all <= 0 && !ruled) return NumberCell(std::nullopt, QString());
  constexpr double kPercent = 100;
  // What a ruling gives the two sides need not add up.
  const double share = ruled ? double{*ruled} : kPercent * *ours / all;
  return NumberCell(share, QString::number(std::lround(share)));
}

}  // namespace

TravellerCell MakeTravellerCell(TravellerColumn column, const TravellerRow& row,
                                const Traveller& traveller) {
  switch (column) {
    case TravellerColumn::NorthSouth:
      return PairCell(row, Side::NorthSouth);
    case TravellerColumn::EastWest:
      return PairCell(row, Side::EastWest);
    case TravellerColumn::Contract:
      return ContractCell(row);
    case TravellerColumn::Lead:
      return LeadCell(row);
    case TravellerColumn::Score:
      return ScoreCell(row);
    case TravellerColumn::Points:
      break;
  }
  return PointsCell(row, traveller);
}

TravellerCell MakeParCell(TravellerColumn column, const Par& par) {
  if (column == TravellerColumn::NorthSouth) return {Text("par")};
  if (column == TravellerColumn::Score) return NumberCell(par.score, ScoreText(par.score));
  if (column != TravellerColumn::Contract) return {};
  if (par.contracts.empty()) return {Text("Pass")};
  const ParContract& first = par.contracts.front();
  QString contract = QString::number(first.level) + ToQt(StrainLetter[ToStrain(first.strain)]);
  if (first.doubled) contract += QLatin1Char('x');
  QString seats;
  for (const Seat seat : first.declarers) seats += ToQt(SeatName[seat].substr(0, 1));
  const QString rest = QStringLiteral(" %1 %2").arg(seats, ResultText(first.result));
  TravellerCell cell{WithSymbols(contract) + rest};
  cell.spoken = contract + rest;
  return cell;
}

QString InTwoLines(const QString& names) {
  const qsizetype between = names.indexOf(kBetweenNames);
  if (between < 0) return names;
  return names.left(between) + QLatin1Char('\n') + names.mid(between + kBetweenNames.size());
}

TravellerHead MakeTravellerHead(TravellerColumn column, const Traveller& traveller) {
  struct Head {
    const char* text;
    const char* brief;
    const char* tip;
  };
  constexpr std::array<Head, kTravellerColumns> kHeads{{
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "North-South"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "N-S"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Pair sitting North-South")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "East-West"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "E-W"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Pair sitting East-West")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Contract"), nullptr,
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Contract, declarer and result")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Lead"), nullptr,
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Opening lead")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Score"), nullptr,
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Score of North-South")},
      {"%1", nullptr, QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "%1 of North-South")},
  }};
  const Head& head = kHeads.at(static_cast<std::size_t>(column));
  QString text = Text(head.text);
  QString tip = Text(head.tip);
  if (column == TravellerColumn::Points) {
    const QString points =
        IsMatchPoints(traveller) ? QStringLiteral("MP %") : ToQt(traveller.scoring);
    text = text.arg(points);
    tip = tip.arg(points);
    if (traveller.computed) tip += Text(", computed from the scores");
  }
  return {text, head.brief == nullptr ? text : Text(head.brief), tip};
}

}  // namespace tricklet::ui
