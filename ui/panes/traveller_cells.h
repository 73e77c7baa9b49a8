// The cells of the traveller's grid.
#pragma once

#include <QPalette>
#include <QTableWidgetItem>

#include "core/settings.h"
#include "formats/results/traveller.h"

namespace tricklet::ui {

/// As on the travellers of a club.
enum class TravellerColumn {
  PairNS,
  PairEW,
  Contract,
  By,
  Lead,
  Tricks,
  ScoreNS,
  ScoreEW,
  PointsNS,
  PointsEW,
  Names
};
inline constexpr int kTravellerColumns = 11;

/// The row's place in the traveller, whatever the grid is sorted by.
inline constexpr int kTravellerRowRole = Qt::UserRole;

/// A cell that is sorted by what it means: "10" behind "9", a contract by its rank.
QTableWidgetItem* MakeTravellerCell(TravellerColumn column, const TravellerRow& row,
                                    const Settings& settings, const QPalette& palette);

QTableWidgetItem* MakeTravellerHead(TravellerColumn column, const Traveller& traveller);

}  // namespace tricklet::ui
