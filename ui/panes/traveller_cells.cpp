#include "ui/panes/traveller_cells.h"

#include <array>
#include <optional>

#include <QCoreApplication>

#include "core/board.h"
#include "core/text.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

QString Text(const char* source) {
  return QCoreApplication::translate("tricklet::ui::TravellerPane", source);
}

TravellerCell NumberCell(std::optional<double> number, const QString& text) {
  return {text, number.value_or(TravellerCell::kNothing), true};
}

TravellerCell PairCell(const std::string& pair) {
  bool number = false;
  const QString text = ToQt(pair);
  const double key = text.toDouble(&number);
  return {text, pair.empty() ? TravellerCell::kNothing : number ? key : 0, true};
}

/// "4S" with the symbol of its suit; its colour is that of the suit.
TravellerCell ContractCell(const TravellerRow& row, bool fourColours, const QPalette& palette) {
  Board contract;
  if (!SetContract(contract, row.contract)) {
    if (row.contract == kAllPass) return {Text("Pass"), -1};
    const std::string text = row.ContractText();
    return {text == kNotPlayed ? Text("Not played") : ToQt(text), TravellerCell::kNothing};
  }
  const int rank = contract.contractLevel * kStrains + IndexOf(ToBidStrain(contract.trumps));
  TravellerCell cell{WithSymbols(ToQt(row.contract)), static_cast<double>(rank)};
  if (contract.trumps == Strain::NoTrump) return cell;
  cell.colour = SuitColourOnWindow(ToSuit(contract.trumps), fourColours, palette);
  cell.spoken = ToQt(row.contract);
  return cell;
}

TravellerCell DeclarerCell(const TravellerRow& row) {
  if (!row.declarer) return {QString(), TravellerCell::kNothing};
  return {ToQt(SeatName[*row.declarer].substr(0, 1)), static_cast<double>(IndexOf(*row.declarer))};
}

TravellerCell LeadCell(const TravellerRow& row, bool fourColours, const QPalette& palette) {
  if (!row.lead) return {QString(), TravellerCell::kNothing};
  const Card card = *row.lead;
  return {ToQt(CardText(card)), static_cast<double>(kCardsInPack - card.Index()), false,
          SuitColourOnWindow(card.suit, fourColours, palette),
          ToQt(SuitName[card.suit]) + QLatin1Char(' ') + ToQt(RankText[card.rank])};
}

/// A score stands on the side that has won it, a ruling on North-South's.
TravellerCell ScoreCell(const TravellerRow& row, Side side) {
  if (!row.score) {
    return NumberCell(std::nullopt, side == Side::NorthSouth ? ToQt(row.adjusted) : QString());
  }
  const int own = side == Side::NorthSouth ? *row.score : -*row.score;
  const bool shown = own > 0 || (own == 0 && side == Side::NorthSouth);
  return NumberCell(own, shown ? QString::number(own) : QString());
}

TravellerCell PointsCell(const TravellerRow& row, Side side) {
  const auto points = row.points[side];
  if (!points) return NumberCell(std::nullopt, QString());
  return NumberCell(*points, ToQt(ShortestText(*points)));
}

}  // namespace

TravellerCell MakeTravellerCell(TravellerColumn column, const TravellerRow& row, bool fourColours,
                                const QPalette& palette) {
  switch (column) {
    case TravellerColumn::PairNS:
      return PairCell(row.pair[Side::NorthSouth]);
    case TravellerColumn::PairEW:
      return PairCell(row.pair[Side::EastWest]);
    case TravellerColumn::Contract:
      return ContractCell(row, fourColours, palette);
    case TravellerColumn::By:
      return DeclarerCell(row);
    case TravellerColumn::Lead:
      return LeadCell(row, fourColours, palette);
    case TravellerColumn::Tricks:
      return NumberCell(row.tricks, row.tricks ? QString::number(*row.tricks) : QString());
    case TravellerColumn::ScoreNS:
      return ScoreCell(row, Side::NorthSouth);
    case TravellerColumn::ScoreEW:
      return ScoreCell(row, Side::EastWest);
    case TravellerColumn::PointsNS:
      return PointsCell(row, Side::NorthSouth);
    case TravellerColumn::PointsEW:
      return PointsCell(row, Side::EastWest);
    case TravellerColumn::Names:
      break;
  }
  return {ToQt(row.NamesText())};
}

TravellerHead MakeTravellerHead(TravellerColumn column, const Traveller& traveller) {
  struct Head {
    const char* text;
    const char* tip;
  };
  constexpr std::array<Head, kTravellerColumns> kHeads{{
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "NS"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Pair sitting North-South")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "EW"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Pair sitting East-West")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Cont"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Contract")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "By"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Declarer")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Ld"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Lead")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Tr"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Tricks of the declarer")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "NS+"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Score of North-South")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "EW+"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Score of East-West")},
      {"%1", QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "%1 of North-South")},
      {"%1", QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "%1 of East-West")},
      {QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Names"),
       QT_TRANSLATE_NOOP("tricklet::ui::TravellerPane", "Players")},
  }};
  const Head& head = kHeads.at(static_cast<std::size_t>(column));
  QString text = Text(head.text);
  QString tip = Text(head.tip);
  if (column == TravellerColumn::PointsNS || column == TravellerColumn::PointsEW) {
    text = text.arg(ToQt(traveller.scoring));
    tip = tip.arg(ToQt(traveller.scoring));
    if (traveller.computed) tip += Text(", computed from the scores");
  }
  return {text, tip};
}

}  // namespace tricklet::ui
