// What a lesson tells of a board, and what it leaves to its answers.
#pragma once

#include <string>
#include <vector>

#include "publish/diagram.h"
#include "publish/published.h"
#include "publish/sheet_choices.h"

namespace tricklet {

/// The parts of a board that one place of a page shows.
struct LessonParts {
  PerSeat<bool> hands{true, true, true, true};
  bool points = false;
  bool table = false;
  bool par = false;
  bool auction = false;  ///< with contract and lead
  bool notes = false;
  friend bool operator==(const LessonParts&, const LessonParts&) = default;
};

/// What stands in the lesson. Points, table and par would tell of hands that are left out, so they
/// stand there only with all four.
LessonParts LessonPartsOf(const SheetChoices& choices);

/// What stands among the answers: all hands, and auction and notes where the lesson leaves them
/// out.
LessonParts AnswerPartsOf(const SheetChoices& choices);

/// The card led by the first table of the traveller that played the board's own contract; nothing
/// where there is none, or where the leader does not hold that card.
std::optional<Card> LeadOf(const PublishedBoard& published);

/// "4♠ by South", "Lead ♥K": as many lines as are known.
std::vector<std::string> ContractLines(const PublishedBoard& published);

}  // namespace tricklet
