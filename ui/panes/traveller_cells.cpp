#include "ui/panes/traveller_cells.h"

#include <array>
#include <cstdlib>
#include <limits>
#include <optional>

#include <QCoreApplication>

#include "core/board.h"
#include "core/text.h"
#include "ui/style/symbols.h"
#include "ui/style/text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr double kLast = std::numeric_limits<double>::lowest();  // what there is not is the least

QString Text(const char* source) {
  return QCoreApplication::translate("tricklet::ui::TravellerPane", source);
}

class Cell : public QTableWidgetItem {
 public:
  explicit Cell(const QString& text, double key = 0) : QTableWidgetItem(text), key_(key) {}

  bool operator<(const QTableWidgetItem& other) const override {
    const auto* cell = dynamic_cast<const Cell*>(&other);
    if (cell != nullptr && cell->key_ != key_) return key_ < cell->key_;
    return text().localeAwareCompare(other.text()) < 0;
  }

 private:
  double key_;
};

Cell* NumberCell(std::optional<double> number, const QString& text) {
  auto* cell = new Cell(text, number.value_or(kLast));
  cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return cell;
}

Cell* PairCell(const std::string& pair) {
  bool number = false;
  const QString text = ToQt(pair);
  const double key = text.toDouble(&number);
  auto* cell = new Cell(text, pair.empty() ? kLast : number ? key : 0);
  cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return cell;
}

/// "4S" with the symbol of its suit; its colour is that of the suit.
Cell* ContractCell(const TravellerRow& row, const Settings& settings, const QPalette& palette) {
  Board contract;
  if (!SetContract(contract, row.contract)) {
    if (row.contract == kAllPass) return new Cell(Text("Pass"), -1);
    const std::string text = row.ContractText();
    return new Cell(text == kNotPlayed ? Text("Not played") : ToQt(text), kLast);
  }
  const int rank = contract.contractLevel * kStrains + IndexOf(ToBidStrain(contract.trumps));
  auto* cell = new Cell(ToQt(row.contract), rank);
  if (contract.trumps == Strain::NoTrump) return cell;
  const Suit suit = ToSuit(contract.trumps);
  cell->setText(WithSymbols(ToQt(row.contract)));
  cell->setForeground(SuitColourOnWindow(suit, settings.suitColour, palette));
  cell->setData(Qt::AccessibleTextRole, ToQt(row.contract));
  return cell;
}

Cell* LeadCell(const TravellerRow& row, const Settings& settings, const QPalette& palette) {
  if (!row.lead) return new Cell(QString(), kLast);
  const Card card = *row.lead;
  auto* cell = new Cell(ToQt(CardText(card)), kCardsInPack - card.Index());
  cell->setForeground(SuitColourOnWindow(card.suit, settings.suitColour, palette));
  cell->setData(Qt::AccessibleTextRole,
                ToQt(SuitName[card.suit]) + QLatin1Char(' ') + ToQt(RankText[card.rank]));
  return cell;
}

/// A score stands on the side that has won it, a ruling on North-South's.
Cell* ScoreCell(const TravellerRow& row, Side side) {
  if (!row.score) {
    return NumberCell(std::nullopt, side == Side::NorthSouth ? ToQt(row.adjusted) : QString());
  }
  const int own = side == Side::NorthSouth ? *row.score : -*row.score;
  const bool shown = own > 0 || (own == 0 && side == Side::NorthSouth);
  return NumberCell(own, shown ? QString::number(own) : QString());
}

Cell* PointsCell(const TravellerRow& row, Side side) {
  const auto points = row.points[side];
  if (!points) return NumberCell(std::nullopt, QString());
  return NumberCell(*points, ToQt(ShortestText(*points)));
}

}  // namespace

QTableWidgetItem* MakeTravellerCell(TravellerColumn column, const TravellerRow& row,
                                    const Settings& settings, const QPalette& palette) {
  switch (column) {
    case TravellerColumn::PairNS:
      return PairCell(row.pair[Side::NorthSouth]);
    case TravellerColumn::PairEW:
      return PairCell(row.pair[Side::EastWest]);
    case TravellerColumn::Contract:
      return ContractCell(row, settings, palette);
    case TravellerColumn::By:
      return new Cell(row.declarer ? ToQt(SeatName[*row.declarer].substr(0, 1)) : QString(),
                      row.declarer ? IndexOf(*row.declarer) : kLast);
    case TravellerColumn::Lead:
      return LeadCell(row, settings, palette);
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
  return new Cell(ToQt(row.NamesText()));
}

QTableWidgetItem* MakeTravellerHead(TravellerColumn column, const Traveller& traveller) {
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
  auto* item = new QTableWidgetItem(text);
  if (column == TravellerColumn::Names) item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  item->setToolTip(tip);
  item->setData(Qt::AccessibleTextRole, tip);
  return item;
}

}  // namespace tricklet::ui
