#include "publish/lesson_text.h"

#include <algorithm>

namespace tricklet {

LessonParts LessonPartsOf(const SheetChoices& choices) {
  const bool all =
      std::all_of(choices.hands.begin(), choices.hands.end(), [](bool shown) { return shown; });
  return {.hands = choices.hands,
          .points = all && choices.points,
          .table = all && choices.table,
          .par = all && choices.par,
          .auction = choices.auction,
          .notes = choices.notes};
}

LessonParts AnswerPartsOf(const SheetChoices& choices) {
  return {.points = choices.points,
          .table = choices.table,
          .par = choices.par,
          .auction = !choices.auction,
          .notes = !choices.notes};
}

std::optional<Card> LeadOf(const PublishedBoard& published) {
  const Board& board = published.board;
  if (board.contractLevel == 0) return std::nullopt;
  for (const TravellerRow& row : published.traveller.rows) {
    const bool same = row.contract == board.contract && row.declarer == board.declarer;
    if (!same || !row.lead) continue;
    const Holding suit = board.hands[SeatAfter(board.declarer)][row.lead->suit];
    if (suit.Has(row.lead->rank)) return row.lead;
  }
  return std::nullopt;
}

std::vector<std::string> ContractLines(const PublishedBoard& published) {
  SeenBoard seen;
  seen.board = published.board;
  std::vector<std::string> lines = DiagramFoot(seen);
  if (const auto lead = LeadOf(published)) lines.push_back("Lead " + CardText(*lead));
  return lines;
}

}  // namespace tricklet
