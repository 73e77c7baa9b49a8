#include "review/cost.h"

#include <array>
#include <cmath>
#include <vector>

#include "core/comparison.h"
#include "core/scoring.h"
#include "core/text.h"

namespace tricklet {
namespace {

/// North-South's scores of all tables but that of `row`.
std::vector<int> OtherScores(const Traveller& traveller, int row) {
  std::vector<int> scores;
  for (std::size_t i = 0; i < traveller.rows.size(); ++i) {
    if (static_cast<int>(i) == row) continue;
    if (const auto score = traveller.rows[i].score) scores.push_back(*score);
  }
  return scores;
}

/// Per cent of the match points for North-South with `score`.
double Percentage(int score, const std::vector<int>& others) {
  int half = 0;
  for (const int other : others) half += score > other ? 2 : (score == other ? 1 : 0);
  return 50.0 * half / static_cast<double>(others.size());
}

double MeanImps(int score, const std::vector<int>& others) {
  int sum = 0;
  for (const int other : others) sum += ToImps(score - other);
  return sum / static_cast<double>(others.size());
}

}  // namespace

int ScoreWith(const Board& board, int tricks) {
  return ScoreContract(board.Vulnerability(), board.contractLevel, board.trumps,
                       DoublingOf(board.contract), tricks - kBook - board.contractLevel,
                       board.declarer);
}

Cost CostOf(const Traveller& traveller, int row, const Board& board, Side side, int before,
            int after) {
  const int sign = side == Side::NorthSouth ? 1 : -1;
  const int had = ScoreWith(board, before);
  const int has = ScoreWith(board, after);
  Cost cost;
  cost.points = sign * (had - has);
  const std::vector<int> others = OtherScores(traveller, row);
  if (others.empty()) return cost;
  const bool matchPoints = traveller.scoring == "MP";
  cost.unit = matchPoints ? Cost::Unit::Percent : Cost::Unit::Imps;
  const auto worth = matchPoints ? Percentage : MeanImps;
  cost.compared = sign * (worth(had, others) - worth(has, others));
  return cost;
}

std::string CostText(const Cost& cost) {
  if (cost.unit == Cost::Unit::None) {
    return std::to_string(cost.points) + (std::abs(cost.points) == 1 ? " point" : " points");
  }
  constexpr double kTenth = 10;
  if (cost.unit == Cost::Unit::Percent) {
    return std::to_string(static_cast<int>(std::round(cost.compared))) + " %";
  }
  const auto tenths = static_cast<float>(std::round(cost.compared * kTenth) / kTenth);
  return ShortestText(tenths) + (std::abs(tenths) == 1 ? " IMP" : " IMPs");
}

}  // namespace tricklet
