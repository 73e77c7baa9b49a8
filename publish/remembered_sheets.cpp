#include "publish/remembered_sheets.h"

#include <algorithm>

namespace tricklet {
namespace {

std::string LettersOf(const PerSeat<bool>& seats) {
  std::string letters;
  for (const Seat seat : kAllSeats) {
    if (seats[seat]) letters += SeatName[seat].front();
  }
  return letters;
}

BoardRange RememberedRange(const PrintSettings& settings, const BoardRange& whole) {
  if (!whole.only.empty()) return whole;
  const auto range = ReadBoardRange(settings.boards);
  return range && range->first <= whole.last && range->last >= whole.first ? *range : whole;
}

}  // namespace

int RememberedPerPage(const PrintSettings& settings, SheetLayout layout) {
  const auto numbers = BoardsPerPage(layout);
  if (numbers.empty()) return 0;
  const int wanted =
      layout == SheetLayout::Lesson ? settings.lessonPerPage : settings.recordsPerPage;
  return std::find(numbers.begin(), numbers.end(), wanted) != numbers.end() ? wanted
                                                                            : numbers.front();
}

SheetRequest RememberedSheets(const PrintSettings& settings, const SheetProposal& proposal) {
  SheetRequest request;
  SheetChoices& choices = request.choices;
  choices.layout = settings.layout;
  choices.perPage = RememberedPerPage(settings, settings.layout);
  choices.paper = settings.paper;
  choices.landscape = settings.landscape;
  choices.colours = settings.colours;
  // No letters are a choice too: a lesson on the auction alone.
  choices.hands =
      settings.hands.empty() ? PerSeat<bool>{} : SeatsOf(settings.hands).value_or(choices.hands);
  choices.points = settings.points;
  choices.table = settings.table;
  choices.par = settings.par;
  choices.auction = settings.auction;
  choices.notes = settings.notes;
  choices.answers = settings.answers;
  choices.bySeat = settings.bySeat;
  choices.ranking = settings.ranking;

  const bool same = settings.library == proposal.library;
  choices.title = same && settings.ownTitle ? settings.title : proposal.title;
  choices.subtitle = same && settings.ownSubtitle ? settings.subtitle : proposal.subtitle;
  request.range = same ? RememberedRange(settings, proposal.range) : proposal.range;
  return request;
}

void RememberSheets(PrintSettings& settings, const SheetProposal& proposal,
                    const SheetRequest& request) {
  const SheetChoices& choices = request.choices;
  settings.layout = choices.layout;
  if (choices.layout == SheetLayout::Records) settings.recordsPerPage = choices.perPage;
  if (choices.layout == SheetLayout::Lesson) settings.lessonPerPage = choices.perPage;
  settings.paper = choices.paper;
  settings.landscape = choices.landscape;
  settings.colours = choices.colours;
  settings.hands = LettersOf(choices.hands);
  settings.points = choices.points;
  settings.table = choices.table;
  settings.par = choices.par;
  settings.auction = choices.auction;
  settings.notes = choices.notes;
  settings.answers = choices.answers;
  settings.bySeat = choices.bySeat;
  settings.ranking = choices.ranking;

  settings.library = proposal.library;
  settings.ownTitle = choices.title != proposal.title;
  settings.title = settings.ownTitle ? choices.title : std::string();
  settings.ownSubtitle = choices.subtitle != proposal.subtitle;
  settings.subtitle = settings.ownSubtitle ? choices.subtitle : std::string();
  const bool proposed = request.range == proposal.range || !proposal.range.only.empty();
  settings.boards = proposed ? std::string() : BoardRangeText(request.range);
}

}  // namespace tricklet
