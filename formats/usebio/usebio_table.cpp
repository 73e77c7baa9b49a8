#include "formats/usebio/usebio_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/comparison.h"
#include "core/text.h"
#include "formats/results/ruling.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

using Line = TravellerLine;

std::optional<float> NumberIn(const pugi::xml_node& element) {
  std::string text = TextOf(element);
  if (text.starts_with('+')) text.erase(0, 1);
  const auto number = NumberFromText<float>(text);
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::string TextOrNone(const pugi::xml_node& element) {
  return element ? NumberText(element) : "";
}

std::string Opposite(const pugi::xml_node& element) {
  std::string text = TextOrNone(element);
  if (text.empty() || text == "0") return text;
  return text.starts_with('-') ? text.substr(1) : "-" + text;
}

/// IMPs of North-South, under whichever name the line gives them.
std::string ImpsOf(const TravellerLine& line) {
  if (line.At(Line::NsCrossImps)) return NumberText(line.At(Line::NsCrossImps));
  if (line.At(Line::EwCrossImps)) return Opposite(line.At(Line::EwCrossImps));
  if (line.At(Line::NsButler)) return NumberText(line.At(Line::NsButler));
  return Opposite(line.At(Line::EwButler));
}

/// In the words of "LIN.txt": without blanks, and a board that was passed out as "PASS".
std::string ContractOf(const TravellerLine& line) {
  std::string contract = TextOf(line.At(Line::Contract));
  std::erase_if(contract, [](char c) { return c == ' ' || c == '\t'; });
  constexpr std::array<std::string_view, 6> kPassed{"PASS",    "ALLPASS", "PASSEDOUT",
                                                    "PASSOUT", "P",       "AP"};
  const bool passed = std::any_of(kPassed.begin(), kPassed.end(), [&](std::string_view word) {
    return EqualNoCase(word, contract);
  });
  if (passed) return "PASS";
  const bool none = contract == "-" || IsNotPlayed(contract);
  return none ? "" : contract;
}

std::optional<int> ScoreOf(const TravellerLine& line) {
  const ElementText text(line.At(Line::Score));
  std::string_view score = text.View();
  if (score.starts_with('+')) score.remove_prefix(1);
  return NumberFromText(score);
}

/// The number of North-South at a line whose own number would be `computed`; `own` is that of the
/// board's team.
float SideOfMatch(std::optional<float> own, std::optional<float> computed, bool eastWest,
                  float sum) {
  if (!own) return computed.value_or(0);
  if (computed && (*computed == *own || *computed == sum - *own)) return *computed;
  return eastWest ? sum - *own : *own;
}

}  // namespace

std::vector<MatchPoint> PointsOfMatch(const UsebioBoard& board) {
  constexpr float kBothPoints = 2;  // what two teams share at a point a board
  std::vector<MatchPoint> points(board.lines.size());
  const auto imps = NumberIn(board.element.child("IMPS"));
  const auto teamPoints = NumberIn(board.element.child("TEAM_POINTS"));
  std::vector<std::optional<int>> scores;
  scores.reserve(board.lines.size());
  for (const TravellerLine& line : board.lines) scores.push_back(ScoreOf(line));
  for (std::size_t at = 0; at < points.size(); ++at) {
    const bool eastWest = TextOf(board.lines[at].At(Line::Direction)) == "EW";
    std::optional<float> ownImps;
    std::optional<float> ownPoints;
    const auto score = scores[at];
    const auto other = scores.size() == 2 ? scores[1 - at] : std::nullopt;
    if (score && other) {
      const std::int64_t difference = std::int64_t{*score} - *other;
      constexpr std::int64_t kBeyondScale = 10'000;
      ownImps = static_cast<float>(
          ToImps(static_cast<int>(std::clamp(difference, -kBeyondScale, kBeyondScale))));
      ownPoints = static_cast<float>(1 + (difference > 0) - (difference < 0));
    }
    if (imps || ownImps) {
      points[at].imps = ShortestText(SideOfMatch(imps, ownImps, eastWest, 0) + 0.0F);
    }
    if (teamPoints || ownPoints) {
      const float own = SideOfMatch(teamPoints, ownPoints, eastWest, kBothPoints);
      points[at].points = ShortestText(own);
      points[at].opponentsPoints = ShortestText(kBothPoints - own);
    }
  }
  return points;
}

TableRecord TableOf(const TravellerLine& line, const MatchPoint& match) {
  TableRecord table;
  table.tricks = TextOf(line.At(Line::Tricks));
  table.contract = ContractOf(line);
  table.declarer = TextOf(line.At(Line::PlayedBy));
  table.lead = TextOf(line.At(Line::Lead));
  if (std::string score = TextOf(line.At(Line::Score)); !IsNotPlayed(score)) table.score = score;
  table.nsMatchPoints = TextOrNone(line.At(Line::NsMatchPoints));
  table.ewMatchPoints = TextOrNone(line.At(Line::EwMatchPoints));
  table.imps = ImpsOf(line);
  if (table.imps.empty()) table.imps = match.imps;
  return table;
}

}  // namespace tricklet
