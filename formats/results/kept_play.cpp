#include "formats/results/kept_play.h"

#include "core/text.h"
#include "formats/results/table_record.h"

namespace tricklet {
namespace {

/// `IsNotPlayed` knows it.
constexpr const char* kNoScore = "NP";

std::string CardLetters(Card card) {
  const std::string_view rank = RankText[card.rank];
  return std::string(StrainLetter[ToStrain(card.suit)]) + std::string(rank == "10" ? "T" : rank);
}

}  // namespace

PerSeat<std::string> PlayersWith(Seat seat, const std::string& name) {
  PerSeat<std::string> players;
  for (const Seat each : kAllSeats) players[each] = SeatName[each];
  players[seat] = name;
  return players;
}

std::string LinLineOfPlay(const RecordedPlay& play, const PerSeat<std::string>& players) {
  TableRecord table;
  table.boardNumber = play.board.boardNumber;
  table.players = players;
  table.hands = play.board.hands;
  for (int i = 0; i < play.board.NumCalls(); ++i)
    table.auction.push_back({play.board.calls[i], {}});
  table.play = play.cards;
  if (play.tricks) table.tricks = std::to_string(*play.tricks);
  table.score = kNoScore;
  table.contract = play.board.contract;
  table.declarer = SeatName[play.board.declarer].substr(0, 1);
  if (!play.cards.empty()) table.lead = CardLetters(play.cards.front());
  return LinLineOf(table);
}

bool KeepPlay(Session& session, const RecordedPlay& play, Seat seat, const std::string& name) {
  const std::string trimmed(Trim(name));
  if (play.cards.empty() || trimmed.empty()) {
    session.host.Tell(play.cards.empty() ? "No card has been played"
                                         : "A play is kept under a name");
    return false;
  }
  auto write = LibraryWrite::Begin(session);
  if (!write) return false;
  LinFile file = LoadLinData(session);
  if (file.Empty()) {
    file = LinFile();
    file.boardScoringMethod = "MATCH_POINTS";
    file.boardScoringAbb = "MP";
  }
  file.lin.push_back(LinLineOfPlay(play, PlayersWith(seat, trimmed)));
  StoreLinData(session, file, *write);
  write->Finish();
  return true;
}

}  // namespace tricklet
