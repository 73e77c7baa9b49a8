#include "formats/pbn/pbn_record.h"

#include <algorithm>
#include <cmath>

#include "core/board.h"
#include "core/scoring.h"
#include "core/text.h"

namespace tricklet {
namespace {

/// Without what a subtraction leaves behind the decimals that files have.
float Rounded(float number) {
  constexpr double kSteps = 10'000;
  return static_cast<float>(std::round(static_cast<double>(number) * kSteps) / kSteps);
}

}  // namespace

std::optional<Seat> DeclarerOf(const TableRecord& record) {
  return PbnSeat(record.declarer);
}

std::string SeatLetter(std::optional<Seat> seat) {
  return seat ? std::string(SeatName[*seat].substr(0, 1)) : "";
}

std::string NumberText(std::optional<float> number) {
  return number ? ShortestText(*number) : "";
}

bool IsOfSide(const PbnNumbers& score, std::optional<Seat> declarer) {
  return score.of[Side::NorthSouth] || score.of[Side::EastWest] || score.own == 0.0F ||
         (score.own && declarer);
}

void SetResult(TableRecord& record, const std::string& result, const PbnNumbers& score) {
  const auto declarer = DeclarerOf(record);
  const bool passedOut = IsPassedOut(record.contract);
  constexpr int kUnknown = -1;
  const int tricks =
      passedOut ? kUnknown : PbnTricks(result, declarer, record.contract).value_or(kUnknown);
  if (tricks != kUnknown) record.tricks = std::to_string(tricks);
  const auto given = IsOfSide(score, declarer) ? NorthSouthOf(score, declarer) : std::nullopt;
  Board board;
  if (given && std::fabs(*given) < 100'000) {
    record.score = std::to_string(static_cast<int>(*given));
  } else if (passedOut) {
    record.score = "0";
  } else if (tricks != kUnknown && declarer && record.vulnerability &&
             SetContract(board, record.contract)) {
    record.score = std::to_string(ScoreContract(*record.vulnerability, board.contractLevel,
                                                board.trumps, DoublingOf(board.contract),
                                                tricks - board.contractLevel - kBook, *declarer));
  }
}

void SetMatchPoints(TableRecord& record, const PbnNumbers& matchPoints, const PbnNumbers& percent) {
  const auto declarer = DeclarerOf(record);
  const Side ownSide = declarer ? SideOf(*declarer) : Side::NorthSouth;
  PerSide<std::optional<float>> points = matchPoints.of;
  if (matchPoints.own && !points[ownSide]) points[ownSide] = matchPoints.own;
  if (!points[Side::NorthSouth] && !points[Side::EastWest]) {
    constexpr float kAll = 100;
    points = percent.of;
    if (percent.own && !points[ownSide]) points[ownSide] = percent.own;
    auto& ns = points[Side::NorthSouth];
    auto& ew = points[Side::EastWest];
    if (ns && !ew) ew = Rounded(kAll - *ns);
    if (ew && !ns) ns = Rounded(kAll - *ew);
  }
  record.nsMatchPoints = NumberText(points[Side::NorthSouth]);
  record.ewMatchPoints = NumberText(points[Side::EastWest]);
}

bool SameContract(const std::string& a, const std::string& b) {
  if (IsPassedOut(a) || IsPassedOut(b)) return a == b;
  Board first;
  Board second;
  return SetContract(first, a) && SetContract(second, b) && first.contract == second.contract;
}

bool SameResult(const TableRecord& a, const TableRecord& b) {
  return SameContract(a.contract, b.contract) && a.declarer == b.declarer && a.tricks == b.tricks;
}

bool HasPlayers(const TableRecord& record) {
  return std::any_of(record.players.begin(), record.players.end(),
                     [](const std::string& name) { return !name.empty(); });
}

bool HasResult(const TableRecord& record) {
  return !record.contract.empty() || !record.declarer.empty() || !record.tricks.empty() ||
         !record.score.empty();
}

}  // namespace tricklet
