#include "publish/web/web_ranking.h"

#include <algorithm>

#include "formats/results/ranking.h"

namespace tricklet {
namespace {

void WriteEntrant(JsonWriter& json, const RankedEntrant& ranked, const Entrants& entrants,
                  Contestants contestants, NamesShown names) {
  json.BeginObject().Key("place").String(ranked.PlaceText());
  json.Key("entrant").Number(
      contestants == Contestants::Teams ? -1 : entrants.EntrantOf(ranked.number, ranked.names));
  json.Key("number").String(ranked.number);
  json.Key("names").String(ContestantNames(ranked.names, contestants, names));
  json.Key("boards").Number(ranked.boards).Key("total").Number(ranked.total);
  json.Key("percentage").Number(ranked.percentage).EndObject();
}

}  // namespace

std::string ContestantNames(const std::string& fullNames, Contestants contestants,
                            NamesShown names) {
  constexpr std::string_view kBetweenPairs = ", ";
  std::string text;
  std::string_view rest = fullNames;
  if (contestants != Contestants::Teams) return PublishedNames(rest, names);
  for (;;) {
    const auto end = rest.find(kBetweenPairs);
    const std::string pair = PublishedNames(rest.substr(0, end), names);
    text += (text.empty() || pair.empty() ? "" : std::string(kBetweenPairs)) + pair;
    if (end == std::string_view::npos) return text;
    rest.remove_prefix(end + kBetweenPairs.size());
  }
}

bool NamesSomebody(const std::string& sentence, const Published& published) {
  const auto named = [&sentence](const std::string& player) {
    return !player.empty() && sentence.find(player) != std::string::npos;
  };
  return std::any_of(
      published.boards.begin(), published.boards.end(), [&named](const PublishedBoard& board) {
        const auto& rows = board.traveller.rows;
        return std::any_of(rows.begin(), rows.end(), [&named](const TravellerRow& row) {
          return std::any_of(row.players.begin(), row.players.end(), named);
        });
      });
}

void WriteRanking(JsonWriter& json, const Published& published, const Entrants& entrants,
                  NamesShown names) {
  const bool played =
      std::any_of(published.boards.begin(), published.boards.end(),
                  [](const PublishedBoard& board) { return !board.traveller.rows.empty(); });
  if (!played) return;
  const Ranking ranking = RankingOf(published);
  json.Key("ranking").BeginObject().Key("unit").String(ranking.UnitText());
  json.Key("tables").BeginArray();
  for (const RankingTable& table : ranking.tables) {
    json.BeginObject().Key("heading").String(table.heading).Key("rows").BeginArray();
    for (const RankedEntrant& ranked : table.entrants) {
      WriteEntrant(json, ranked, entrants, ranking.contestants, names);
    }
    json.EndArray().EndObject();
  }
  json.EndArray().Key("notes").BeginArray();
  for (const std::string& sentence : ranking.notRanked) {
    if (names == NamesShown::Full || !NamesSomebody(sentence, published)) json.String(sentence);
  }
  json.EndArray().EndObject();
}

}  // namespace tricklet
