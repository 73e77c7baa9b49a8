#include "publish/web/web_data.h"

#include <array>

#include "core/recorded_play.h"
#include "core/statistics.h"
#include "core/text.h"
#include "formats/results/board_points.h"
#include "formats/results/ruling.h"
#include "publish/web/entrants.h"
#include "publish/web/json_writer.h"
#include "publish/web/web_ranking.h"
#include "publish/web/web_report.h"

namespace tricklet {
namespace {

constexpr std::string_view kRankLetters = "AKQJT98765432";
constexpr std::string_view kSuitLetters = "SHDC";

/// What all boards of a page are written with.
struct Writing {
  JsonWriter& json;
  const Entrants& entrants;
  NamesShown names;
  bool notes;
  std::optional<WebReview> review;
};

std::string CardLetters(Card card) {
  return {kSuitLetters.at(static_cast<std::size_t>(card.suit)),
          kRankLetters.at(static_cast<std::size_t>(card.rank))};
}

void WriteHands(JsonWriter& json, const HandTable& hands) {
  json.Key("hands").BeginArray();
  for (const Seat seat : kAllSeats) {
    std::string text;
    int cards = 0;
    for (const Suit suit : kAllSuits) {
      if (suit != Suit::Spades) text += '.';
      text += PBNFormat(hands[seat][suit], cards);
    }
    json.String(text);
  }
  json.EndArray();
}

/// A call that was not read may be any text of a foreign file: it is not told where names are held
/// back.
void WriteCalls(const Writing& writing, const CallList& calls) {
  if (calls.Empty()) return;
  writing.json.Key("calls").BeginArray();
  for (int i = 0; i < calls.Count(); ++i) {
    const bool told = writing.names == NamesShown::Full || !calls[i].IsUnread();
    writing.json.String(told ? calls.ShownAt(i) : "?");
  }
  writing.json.EndArray();
}

void WritePairOfNumbers(JsonWriter& json, std::string_view key,
                        const PerSide<std::optional<double>>& numbers) {
  if (!numbers[Side::NorthSouth] && !numbers[Side::EastWest]) return;
  json.Key(key).BeginArray();
  for (const std::optional<double>& number : numbers) {
    if (number) {
      json.Number(*number);
    } else {
      json.Null();
    }
  }
  json.EndArray();
}

/// What the rows of a board are worth, and in match points of what.
struct Worth {
  BoardPoints points;
  bool matchPoints = false;
};

Worth WorthOf(const Traveller& traveller) {
  if (traveller.scoring == "MP") return {MatchPointsOf(traveller), true};
  return {};
}

void WritePoints(JsonWriter& json, const TravellerRow& row, std::size_t at, const Worth& worth) {
  PerSide<std::optional<double>> points;
  PerSide<std::optional<double>> percentages;
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    if (const auto own = row.points[side]) points[side] = double{*own};
    if (worth.matchPoints) percentages[side] = PercentageOf(worth.points, at, side);
  }
  WritePairOfNumbers(json, "points", points);
  WritePairOfNumbers(json, "percent", percentages);
}

/// Why the play ends before its last card; empty when it does not.
std::string EndOf(const RecordedPlay& record, const LegalPlay& play) {
  if (play.cards == kCardsInPack) return "";
  if (play.cards == static_cast<int>(record.cards.size())) return "The record ends here";
  const Seat onPlay = SeatAfter(play.leaders.back(), play.cards % kSeats);
  return "The record ends here, as " + std::string(SeatName[onPlay]) + " cannot play " +
         CardText(record.cards.at(static_cast<std::size_t>(play.cards)));
}

void WritePlay(JsonWriter& json, const RecordedPlay& record, const Board& board) {
  const HandTable& hands = record.board.hands;
  if (HasCards(hands) && hands != board.hands) WriteHands(json, hands);
  if (record.cards.empty() || !GetStats(hands).allHandsComplete) return;
  const LegalPlay play = FollowPlay(record.board, record.cards);
  if (play.cards == 0) return;
  std::string cards;
  for (const Card card : std::span(record.cards).first(static_cast<std::size_t>(play.cards))) {
    cards += CardLetters(card);
  }
  std::string leaders;
  for (const Seat seat : play.leaders) leaders += SeatName[seat].front();
  json.Key("play").String(cards).Key("leaders").String(leaders);
  json.Key("trumps").Number(IndexOf(record.board.trumps));
  if (const std::string end = EndOf(record, play); !end.empty()) json.Key("end").String(end);
}

/// A ruling in words of a foreign file that is no known one is not told where names are held back.
std::string RulingOf(const std::string& adjusted, NamesShown names) {
  const auto percentages = PercentagesOf(adjusted);
  const bool known = percentages[Side::NorthSouth] || percentages[Side::EastWest];
  return known || adjusted.empty() || names == NamesShown::Full ? adjusted : "Adjusted";
}

void WriteContract(JsonWriter& json, const TravellerRow& row) {
  if (const std::string contract = row.ContractText(); !contract.empty()) {
    json.Key("contract").String(contract);
  }
  if (row.declarer) json.Key("declarer").Number(IndexOf(*row.declarer));
  if (row.lead) json.Key("lead").String(CardLetters(*row.lead));
  if (row.tricks) json.Key("taken").Number(*row.tricks);
  if (const auto result = row.Result()) json.Key("result").Number(*result);
}

void WriteTable(const Writing& writing, const PublishedBoard& published, std::size_t at,
                const Worth& worth) {
  const TravellerRow& row = published.traveller.rows[at];
  JsonWriter& json = writing.json;
  json.BeginObject().Key("pairs").BeginArray();
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    json.Number(writing.entrants.PairOf(row, side));
  }
  json.EndArray();
  WriteContract(json, row);
  if (row.score) json.Key("score").Number(*row.score);
  if (const std::string ruling = RulingOf(row.adjusted, writing.names); !ruling.empty()) {
    json.Key("ruling").String(ruling);
  }
  WritePoints(json, row, at, worth);
  WriteCalls(writing, row.record.board.calls);
  WritePlay(json, row.record, published.board);
  if (writing.review) writing.review->WriteTable(json, published.board.boardNumber, at);
  json.EndObject();
}

void WriteTricks(JsonWriter& json, const MakeableTable& table) {
  constexpr std::array kColumns{Strain::Spades, Strain::Hearts, Strain::Diamonds, Strain::Clubs,
                                Strain::NoTrump};
  json.Key("tricks").BeginArray();
  for (const TableSeat seat : kAllTableSeats) {
    json.BeginArray();
    for (const Strain strain : kColumns) json.Number(int{table[seat][ToTableStrain(strain)]});
    json.EndArray();
  }
  json.EndArray();
}

void WriteDeal(JsonWriter& json, const PublishedBoard& published) {
  const Board& board = published.board;
  json.Key("number").Number(board.boardNumber);
  json.Key("dealer").Number(IndexOf(board.Dealer()));
  json.Key("vulnerable").Number(IndexOf(board.Vulnerability()));
  WriteHands(json, board.hands);
  if (!published.complete) return;
  json.Key("points").BeginArray();
  for (const int points : GetStats(board.hands).seatHcp) json.Number(points);
  json.EndArray();
}

void WriteBoard(const Writing& writing, const PublishedBoard& published) {
  JsonWriter& json = writing.json;
  const Board& board = published.board;
  json.BeginObject();
  WriteDeal(json, published);
  WriteCalls(writing, board.calls);
  if (!board.contract.empty()) json.Key("contract").String(board.contract);
  if (board.contractLevel > 0) json.Key("declarer").Number(IndexOf(board.declarer));
  if (board.makeableValid) WriteTricks(json, board.makeable);
  if (published.par) json.Key("par").String(ParText(*published.par));
  if (writing.notes && !published.notes.empty()) json.Key("notes").String(published.notes);
  json.Key("tables").BeginArray();
  const Worth worth = WorthOf(published.traveller);
  for (std::size_t at = 0; at < published.traveller.rows.size(); ++at) {
    WriteTable(writing, published, at, worth);
  }
  json.EndArray().EndObject();
}

void WriteEntrants(JsonWriter& json, const Entrants& entrants) {
  json.Key("pairs").BeginArray();
  for (const WebPair& pair : entrants.Pairs()) {
    json.BeginObject().Key("number").String(pair.number).Key("names").String(pair.names);
    json.EndObject();
  }
  json.EndArray().Key("entrants").BeginArray();
  for (const WebEntrant& entrant : entrants.List()) {
    json.BeginObject().Key("label").String(entrant.label).Key("pairs").BeginArray();
    for (const int pair : entrant.pairs) json.Number(pair);
    json.EndArray().EndObject();
  }
  json.EndArray();
}

std::string ScoringOf(const Published& published) {
  for (const PublishedBoard& board : published.boards) {
    if (!board.traveller.rows.empty()) return board.traveller.scoring;
  }
  return "";
}

}  // namespace

std::string WebData(const Published& published, const WebChoices& choices) {
  JsonWriter json;
  const Entrants entrants(published, choices.names);
  Writing writing{json, entrants, choices.names, choices.notes, {}};
  if (published.review) writing.review.emplace(*published.review);
  json.BeginObject().Key("scoring").String(ScoringOf(published));
  WriteEntrants(json, entrants);
  json.Key("boards").BeginArray();
  for (const PublishedBoard& board : published.boards) WriteBoard(writing, board);
  json.EndArray();
  WriteRanking(json, published, entrants, choices.names);
  WriteReport(json, published, entrants, choices.names);
  json.EndObject();
  return json.Text();
}

}  // namespace tricklet
