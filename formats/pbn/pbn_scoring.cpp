#include "formats/pbn/pbn_scoring.h"

#include <array>
#include <string_view>
#include <utility>

#include "core/text.h"

namespace tricklet {
namespace {

// Scoring words of "LIN.txt".
constexpr std::string_view kMatchPoints = "MATCH_POINTS";
constexpr std::string_view kImps = "IMPS";
constexpr std::string_view kCrossImps = "CROSS_IMPS";
constexpr std::string_view kButlerImps = "BUTLER_IMPS";

std::string_view AbbreviationOf(std::string_view method) {
  if (method == kMatchPoints) return "MP";
  if (method == kCrossImps) return "XIMP";
  return method == kButlerImps ? "BIMP" : "IMP";
}

bool Holds(const std::string& text, std::string_view word) {
  return text.find(word) != std::string::npos;
}

}  // namespace

void PbnEvent::Add(const PbnGame& game) {
  if (scoring_.empty()) scoring_ = ToUpper(game.Value(PbnTag::Scoring));
  pairs_ = pairs_ || game.Has(PbnTag::ScoreTable) ||
           EqualNoCase(game.Value(PbnTag::Competition), "Pairs");
  for (const PbnTag tag : {PbnTag::HomeTeam, PbnTag::VisitTeam}) {
    std::string team = Showable(game.Value(tag));
    if (!team.empty() && known_.insert(team).second) teams_.push_back(std::move(team));
  }
}

/// PBN standard 2.1, tag Scoring: "MP", "IMP", "Cavendish", "IMP;Butler-2;Mean", "IMP;Cross" ...
std::string PbnEvent::MethodOf(const PbnPoints& points) const {
  const bool saysImps = Holds(scoring_, "IMP") || Holds(scoring_, "CAVENDISH");
  bool imps = scoring_.empty() ? !teams_.empty() : saysImps;
  if (points.imps != points.matchPoints) imps = points.imps;
  if (!imps) return std::string(kMatchPoints);
  if (Holds(scoring_, "BUTLER")) return std::string(kButlerImps);
  const bool cross = Holds(scoring_, "CROSS") || Holds(scoring_, "XIMP") ||
                     Holds(scoring_, "CAVENDISH") || points.fractions || pairs_;
  return std::string(cross ? kCrossImps : kImps);
}

LinFile PbnEvent::Results(const PbnPoints& points) const {
  LinFile results;
  results.boardScoringMethod = MethodOf(points);
  results.boardScoringAbb = AbbreviationOf(results.boardScoringMethod);
  if (results.boardScoringMethod != kImps || teams_.empty()) return results;
  results.teamEvent.emplace();
  results.teamEvent->teams = teams_;
  results.teamEvent->teamScoringMethod = results.boardScoringMethod;
  results.teamEvent->teamScoringAbb = results.boardScoringAbb;
  return results;
}

}  // namespace tricklet
