// What functions of a suit count, as tables over its cards.
#pragma once

#include <span>
#include <vector>

#include "conditions/expression.h"
#include "conditions/vocabulary.h"

namespace tricklet {

/// The tables of all `CountKind`s with the values that hold unless a script says otherwise.
std::vector<CountTable> DefaultCounts();

/// The table of a count of points, from the ace down; at most 13, the rest count nothing.
CountTable PointsTable(std::span<const std::int32_t> points);

}  // namespace tricklet
