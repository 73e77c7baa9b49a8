#include "formats/contents/lin_contents.h"

#include <utility>

#include "core/text.h"
#include "formats/lin/lin_records.h"

namespace tricklet {
namespace {

std::string LabelOf(const LinTextRecord& next) {
  return next.numbered ? std::to_string(next.record.boardNumber) : "";
}

FoundGame GameOf(LinTextRecord&& next) {
  FoundGame game;
  game.label = LabelOf(next);
  game.number = next.record.boardNumber;
  game.room = next.record.closedRoom ? "Closed" : "";
  game.line = next.textLine;
  game.dealer = next.record.dealer;
  game.board.hands = next.record.hands;
  if (next.record.calls.size() > CallList::kCapacity) {
    game.troubles.Add(DealTrouble::OverlongAuction);
  } else {
    for (const Call call : next.record.calls) game.board.calls.Add(call);
  }
  if (next.record.repeatsCard) {
    game.troubles.Add(DealTrouble::Impossible);
  } else {
    NoteDealTroubles(game);
  }
  game.records.push_back(std::move(next.line));
  return game;
}

}  // namespace

FileContents ReadLinContents(std::string_view text) {
  FileContents contents;
  contents.format = "LIN";
  contents.encoding = IsValidUtf8(text) ? "UTF-8" : "Latin-1";
  FoundSection section;
  LinRecords records(text);
  for (LinTextRecord next; records.Next(next);) {
    if (next.broken) {
      contents.unread.push_back(
          {next.textLine, LabelOf(next), Showable(next.line), "a broken percent escape"});
    } else {
      section.games.push_back(GameOf(std::move(next)));
    }
  }
  if (!section.games.empty()) contents.sections.push_back(std::move(section));
  return contents;
}

}  // namespace tricklet
