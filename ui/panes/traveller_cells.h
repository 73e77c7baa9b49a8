// What stands in the cells of the traveller's grid.
#pragma once

#include <limits>

#include <QString>

#include "analysis/par.h"
#include "formats/results/traveller.h"

namespace tricklet::ui {

/// As on the travellers of a club; points and scores are North-South's.
enum class TravellerColumn { NorthSouth, EastWest, Contract, Lead, Score, Points };
inline constexpr int kTravellerColumns = 6;

/// Cells are sorted by what they mean, "10" after "9" and a contract by its rank: first by their
/// keys, then by their texts.
struct TravellerCell {
  /// The key of a cell that has nothing to say: it comes before all others.
  static constexpr double kNothing = std::numeric_limits<double>::lowest();

  QString text;
  double key = 0;
  bool isNumber = false;  ///< stands at the right
  QString spoken = {};    ///< for a screen reader; empty: the text
};

TravellerCell MakeTravellerCell(TravellerColumn column, const TravellerRow& row,
                                const Traveller& traveller);
/// The same for the line of par.
TravellerCell MakeParCell(TravellerColumn column, const Par& par);

/// The text with the second player's name on a line of its own.
QString InTwoLines(const QString& names);

struct TravellerHead {
  QString text;
  QString brief;  ///< where there is no room for `text`
  QString tip;    ///< the whole of what `text` stands for
};

TravellerHead MakeTravellerHead(TravellerColumn column, const Traveller& traveller);

}  // namespace tricklet::ui
