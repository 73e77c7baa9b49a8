// Makes the sessions on which the web page is tried, and tells what the engine says of their plays:
//
//   tricklet_web_sessions FOLDER
//
// In FOLDER become libraries "Club" and "Odd", each with boards and results, "Deals" without
// results and "Evening" of 36 boards at 15 tables; and "positions.json", an object of "Club" and
// "Odd" with a member "7.2" for table 2 of board 7: the positions before the first card and after
// each, as [hands North to West "AKT.2..", cards on the table North to West or "", [tricks of
// either side]].
#include <filesystem>
#include <iostream>
#include <string>

#include "bench/club_session.h"
#include "bench/quiet_host.h"
#include "disk/file_io.h"
#include "formats/results/traveller.h"
#include "library/board_file.h"
#include "play/replay.h"
#include "publish/web/json_writer.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

using bench::ClubSession;
using bench::RandomSession;

std::string HandText(const PerSuit<Holding>& hand) {
  std::string text;
  int cards = 0;
  for (const Suit suit : kAllSuits)
    text += (suit == Suit::Spades ? "" : ".") + PBNFormat(hand[suit], cards);
  return text;
}

std::string CardLetters(const std::optional<Card>& card) {
  int cards = 0;
  Holding holding;
  if (!card) return "";
  holding.Add(card->rank);
  return std::string(StrainLetter[ToStrain(card->suit)]) + PBNFormat(holding, cards);
}

void WritePosition(JsonWriter& json, const PlayState& state) {
  json.BeginArray().BeginArray();
  for (const Seat seat : kAllSeats) json.String(HandText(state.cardsLeft[seat]));
  json.EndArray().BeginArray();
  for (const Seat seat : kAllSeats) json.String(CardLetters(state.trickCards[seat]));
  json.EndArray().BeginArray();
  for (const int tricks : state.tricksWon) json.Number(tricks);
  json.EndArray().EndArray();
}

/// The window's replay steps through each table.
void WritePositions(JsonWriter& json, const ClubSession& session) {
  bench::QuietHost host;
  json.BeginObject();
  for (const Board& board : session.boards) {
    const Traveller traveller = MakeTraveller(session.results, board.boardNumber);
    for (std::size_t at = 0; at < traveller.rows.size(); ++at) {
      Replay replay(traveller.rows[at].record, host);
      if (!replay.Play().PlayMode()) continue;
      json.Key(std::to_string(board.boardNumber) + "." + std::to_string(at + 1)).BeginArray();
      WritePosition(json, replay.Play().Now());
      while (replay.ForwardEnabled()) {
        replay.Forward();
        WritePosition(json, replay.Play().Now());
      }
      json.EndArray();
    }
  }
  json.EndObject();
}

void Store(const fs::path& library, const ClubSession& session) {
  fs::create_directories(library);
  for (const Board& board : session.boards) {
    ReplaceWholeFile(library / BoardFileName(board.boardNumber), WriteBoardText(board));
  }
  if (!session.results.Empty()) {
    ReplaceWholeFile(library / "LIN.txt", LinFileText(session.results));
  }
}

/// Cuts the record off at its Nth card.
void CutPlay(std::string& line, int cards) {
  std::size_t at = 0;
  for (int card = 0; card <= cards && at != std::string::npos; ++card)
    at = line.find("|pc|", at + 1);
  const auto end = line.find("|pg|");
  if (at != std::string::npos) line.erase(at, end - at);
}

/// Names that try to get out of where they stand.
std::string HostileName(int pair, Seat seat) {
  switch (seat) {
    case Seat::North:
      return "</script><b onload=window.broken=1>" + std::to_string(pair);
    case Seat::East:
      return "<img src=x onerror=window.broken=1>";
    case Seat::South:
      return "&amp; \"'`${window.broken=1}";
    case Seat::West:
      break;
  }
  return "\u0645\u062d\u0645\u062f \u738b\u5c0f\u660e " + std::string(200, 'W');
}

/// Records that end early, break the rules of play or lack something, and odd results.
ClubSession OddSession() {
  ClubSession session = RandomSession(4, 6, 11, HostileName);
  auto& lines = session.results.lin;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    std::string& line = lines[at];
    if (at % 6 == 1) CutPlay(line, static_cast<int>(at));
    if (at % 6 == 2 && line.find("|pc|") != std::string::npos) {
      const auto second = line.find("|pc|", line.find("|pc|") + 1);
      line.replace(second + 4, 2, line.substr(line.find("|pc|") + 4, 2));  // one card twice
    }
    if (at % 6 == 3) line.replace(line.find("|qens|"), 6, "|qens|A6040");
  }
  session.boards.back().calls.Add(Call::Unread(), "<i>4 spades</i>");
  return session;
}

int Make(const fs::path& folder) {
  const ClubSession club = RandomSession(8, 5, 7);
  const ClubSession odd = OddSession();
  ClubSession deals = RandomSession(3, 1, 9);
  deals.results = {};
  Store(folder / "Club", club);
  Store(folder / "Odd", odd);
  Store(folder / "Deals", deals);
  Store(folder / "Evening", RandomSession(36, 15, 13));
  JsonWriter json;
  json.BeginObject().Key("Club");
  WritePositions(json, club);
  json.Key("Odd");
  WritePositions(json, odd);
  json.EndObject();
  ReplaceWholeFile(folder / "positions.json", json.Text());
  return 0;
}

}  // namespace
}  // namespace tricklet

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: tricklet_web_sessions FOLDER\n";
    return 2;
  }
  try {
    return tricklet::Make(arguments[1]);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
