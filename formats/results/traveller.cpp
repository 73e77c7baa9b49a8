#include "formats/results/traveller.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

#include "core/comparison.h"
#include "core/scoring.h"
#include "core/text.h"
#include "formats/lin/lin_record.h"
#include "formats/results/lin_boards.h"
#include "formats/results/pair_names.h"

namespace tricklet {
namespace {

constexpr std::string_view kOwnTags = "qent|";  // the first of the scorer's own
constexpr int kMostTricks = kCardsInHand;

const std::string& Result(const LinRecord& record, LinResultTag tag) {
  return record.results[tag];
}

/// The number that is all of `text`; nothing for anything else.
template <class Number>
std::optional<Number> NumberOf(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [rest, failure] = std::from_chars(text.data(), end, number);
  if (failure != std::errc() || rest != end) return std::nullopt;
  return number;
}

std::optional<float> PointsOf(std::string_view text) {
  const auto points = NumberOf<float>(text);
  return points && std::isfinite(*points) ? points : std::nullopt;
}

std::optional<int> TricksOf(std::string_view text) {
  const auto tricks = NumberOf<int>(text);
  return tricks && *tricks >= 0 && *tricks <= kMostTricks ? tricks : std::nullopt;
}

std::optional<Seat> SeatOf(std::string_view text) {
  for (const Seat seat : kAllSeats) {
    if (!text.empty() && ToUpper(text[0]) == SeatName[seat][0]) return seat;
  }
  return std::nullopt;
}

/// A card with its suit before or behind its rank; the ten is "T" or "10".
std::optional<Card> CardOf(std::string_view text) {
  std::string card(Trim(text));
  if (const auto ten = card.find("10"); ten != std::string::npos) card.replace(ten, 2, "T");
  if (card.size() != 2) return std::nullopt;
  const auto suitFirst = CardOfLetters(card[0], card[1]);
  return suitFirst ? suitFirst : CardOfLetters(card[1], card[0]);
}

/// The deal, the calls as far as a board holds them, and the contract. Where the record has no
/// auction, or one that another than the board's dealer began, the scorer's contract stands in.
Board BoardOf(const LinRecord& record, int boardNumber) {
  Board board;
  board.BoardNumber = boardNumber;
  board.Hands = record.hands;
  const bool foreign = record.dealer && *record.dealer != board.Dealer();
  for (const Call call : record.calls) {
    if (!foreign && !board.Calls.Full()) board.Calls.Add(call);
  }
  GetContract(board);
  const auto declarer = SeatOf(Result(record, LinResultTag::Qend));
  if (board.Contract.empty() && declarer &&
      SetContract(board, Result(record, LinResultTag::Qenc))) {
    board.Declarer = *declarer;
  }
  return board;
}

bool SaysPassedOut(std::string_view contract) {
  constexpr std::array<std::string_view, 4> kWords{"PASS", "ALL PASS", "P", "AP"};
  return std::any_of(kWords.begin(), kWords.end(),
                     [&](std::string_view word) { return EqualNoCase(word, contract); });
}

/// The score is a ruling: "A6040". What was bid and played did not decide it.
bool IsAdjusted(const LinRecord& record) {
  const std::string& score = Result(record, LinResultTag::Qens);
  return !score.empty() && !NumberOf<int>(score);
}

/// Contract and declarer, the scorer's before the auction's. Returns what `ScoreContract` needs.
Board ReadContractOf(const LinRecord& record, TravellerRow& row) {
  Board scored;
  scored.BoardNumber = row.Record.Board.BoardNumber;
  const std::string& contract = Result(record, LinResultTag::Qenc);
  if (SaysPassedOut(contract)) {
    scored.Contract = kAllPass;
  } else if (SetContract(scored, contract)) {
    const auto declarer = SeatOf(Result(record, LinResultTag::Qend));
    row.Declarer = declarer ? declarer : row.Record.Board.Declarer;
  } else if (contract.empty() && !IsAdjusted(record)) {
    scored = row.Record.Board;
    if (scored.ContractLevel > 0) row.Declarer = scored.Declarer;
  }
  if (row.Declarer) scored.Declarer = *row.Declarer;
  row.Contract = scored.Contract;
  return scored;
}

/// Of a contract: the scorer's tricks before those of the record, which ends with a claim or with
/// the last card.
void ReadTricks(const LinRecord& record, Board scored, TravellerRow& row) {
  if (!row.Declarer) return;
  row.Tricks = TricksOf(Result(record, LinResultTag::Qent));
  if (row.Tricks || IsAdjusted(record)) return;
  if (record.claim) {
    if (*record.claim >= 0 && *record.claim <= kMostTricks) row.Tricks = record.claim;
    return;
  }
  scored.Hands = record.hands;
  row.Tricks = DeclarerTricks(scored, record.play);
}

void ReadScore(const LinRecord& record, const Board& scored, TravellerRow& row) {
  const std::string& text = Result(record, LinResultTag::Qens);
  row.Score = NumberOf<int>(text);
  if (row.Score) return;
  constexpr std::size_t kLongest = 12;  // longer ones are no rulings, and would fill the line
  row.Adjusted = Showable(text, kLongest);
  if (!text.empty()) return;
  if (row.Contract == kAllPass) row.Score = 0;
  if (scored.ContractLevel > 0 && row.Tricks) {
    row.Score = ScoreContract(scored.Vulnerability(), scored.ContractLevel, scored.Trumps,
                              DoublingOf(scored.Contract),
                              *row.Tricks - scored.ContractLevel - kBook, scored.Declarer);
  }
}

void ReadPoints(const LinRecord& record, bool matchPoints, TravellerRow& row) {
  if (matchPoints) {
    row.Points[Side::NorthSouth] = PointsOf(Result(record, LinResultTag::Qenns));
    row.Points[Side::EastWest] = PointsOf(Result(record, LinResultTag::Qenew));
  } else if (const auto imps = PointsOf(Result(record, LinResultTag::Qeni))) {
    row.Points[Side::NorthSouth] = *imps;
    row.Points[Side::EastWest] = *imps == 0 ? 0 : -*imps;
  }
}

/// North before South and East before West, as pairs are written.
void ReadNames(const LinRecord& record, const PairNames& pairs, TravellerRow& row) {
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    const auto first = static_cast<Seat>(IndexOf(side));
    const PairPlayers players{PlayerName(record.players[first]),
                              PlayerName(record.players[PartnerOf(first)])};
    row.Names[side] = JoinPlayers(players);
    row.Pair[side] = pairs.NumberOf(players, side);
  }
}

TravellerRow MakeRow(const LinRecord& record, int boardNumber, const PairNames& pairs,
                     bool matchPoints) {
  TravellerRow row;
  row.Record.Board = BoardOf(record, boardNumber);
  row.Record.Cards = record.play;
  const Board scored = ReadContractOf(record, row);
  ReadTricks(record, scored, row);
  row.Record.Tricks = row.Tricks;
  row.Lead = CardOf(Result(record, LinResultTag::Qenl));
  if (!row.Lead && !record.play.empty()) row.Lead = record.play.front();
  ReadScore(record, scored, row);
  ReadPoints(record, matchPoints, row);
  ReadNames(record, pairs, row);
  return row;
}

bool HasPoints(const TravellerRow& row) {
  return std::any_of(row.Points.begin(), row.Points.end(),
                     [](const auto& points) { return points && *points != 0; });
}

void GiveMatchPoints(BoardScores scores, Traveller& traveller) {
  const auto points = MatchPoints(scores);
  for (std::size_t table = 0; table < points.size(); ++table) {
    if (!points[table]) continue;
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      traveller.Rows[table].Points[side] = static_cast<float>((*points[table])[side]);
    }
  }
}

void GiveImps(BoardScores scores, Traveller& traveller) {
  const auto imps = CrossImps(scores);
  for (std::size_t table = 0; table < imps.size(); ++table) {
    const std::optional<int> own = imps[table];
    if (!own) continue;
    traveller.Rows[table].Points[Side::NorthSouth] = static_cast<float>(*own);
    traveller.Rows[table].Points[Side::EastWest] = static_cast<float>(-*own);
  }
}

void ComputePoints(Traveller& traveller, bool matchPoints, bool teams) {
  std::vector<std::optional<int>> scores;
  scores.reserve(traveller.Rows.size());
  for (TravellerRow& row : traveller.Rows) {
    scores.push_back(row.Score);
    row.Points.fill(std::nullopt);
  }
  const auto played = std::count_if(scores.begin(), scores.end(),
                                    [](const auto& score) { return score.has_value(); });
  if (played < 2) return;  // a score beside nobody's is neither good nor bad
  if (matchPoints) {
    GiveMatchPoints(scores, traveller);
  } else if (!teams || played == 2) {
    GiveImps(scores, traveller);
  }
}

/// What the points are: the file's word for its own, and for computed ones what was computed.
std::string ScoringOf(const LinFile& file, bool matchPoints, bool teams, bool computed) {
  constexpr std::size_t kLongest = 8;
  if (matchPoints) return "MP";
  if (!computed && !file.BoardScoringAbb.empty()) {
    return Showable(file.BoardScoringAbb, kLongest);
  }
  return teams ? "IMP" : "XIMP";
}

/// "+1", "-2", "=".
std::string Signed(int number) {
  return ResultText(number);
}

}  // namespace

std::optional<int> TravellerRow::Result() const {
  Board contract;
  if (!Tricks || !SetContract(contract, Contract)) return std::nullopt;
  return *Tricks - contract.ContractLevel - kBook;
}

std::string TravellerRow::ContractText() const {
  return Contract.empty() && !HasResult() ? kNotPlayed : Contract;
}

std::string TravellerRow::NamesText() const {
  return Names[Side::NorthSouth] + " v " + Names[Side::EastWest];
}

Traveller MakeTraveller(const LinFile& file, int boardNumber) {
  const bool matchPoints = file.BoardScoringMethod == "MATCH_POINTS";
  const bool teams = file.TeamEvent.has_value() || file.BoardScoringMethod == "IMPS";
  Traveller traveller;
  traveller.BoardNumber = boardNumber;
  const PairNames pairs(file.Names);
  for (const std::string& line : file.Lin) {
    if (traveller.Rows.size() == kMaxTravellerRows) break;
    if (BoardNumberOfLin(line) != boardNumber) continue;
    traveller.Rows.push_back(MakeRow(ParseLinRecord(line), boardNumber, pairs, matchPoints));
    traveller.Rows.back().Lin = line.substr(0, line.find(kOwnTags));
  }
  traveller.Computed = std::none_of(traveller.Rows.begin(), traveller.Rows.end(), HasPoints);
  if (traveller.Computed) ComputePoints(traveller, matchPoints, teams);
  traveller.Scoring = ScoringOf(file, matchPoints, teams, traveller.Computed);
  return traveller;
}

std::string LinPlayRecord(const Traveller& traveller, const Board& board, int row) {
  for (std::size_t at = 0; at < traveller.Rows.size(); ++at) {
    const TravellerRow& table = traveller.Rows[at];
    const bool wanted = row < 0 ? !table.Record.Cards.empty() : static_cast<int>(at) == row;
    if (wanted && table.Record.Board.Hands == board.Hands) return table.Lin;
  }
  return {};
}

std::string ReadLinBidding(const TravellerRow& row) {
  const std::string names = " " + row.NamesText();
  if (row.Contract == kAllPass && row.Adjusted.empty()) return row.Contract + names;
  if (!row.HasResult()) return kNotPlayed + names;
  std::string text = row.Contract;
  if (row.Declarer) text += " by " + std::string(SeatName[*row.Declarer]);
  if (const auto result = row.Result()) text += " " + Signed(*result);
  return text + (text.empty() ? "" : " ") + (row.Score ? Signed(*row.Score) : row.Adjusted) + names;
}

std::vector<std::string> AddLinNames(const Traveller& traveller) {
  std::vector<std::string> names;
  names.reserve(traveller.Rows.size());
  for (const TravellerRow& row : traveller.Rows) names.push_back(row.NamesText());
  return names;
}

int FindLinName(const std::vector<std::string>& entries, std::string_view namesText,
                int preferred) {
  const std::string_view part = Trim(namesText.substr(0, namesText.find('&')));
  const auto holds = [part](const std::string& entry) {
    return entry.find(part) != std::string::npos;
  };
  if (preferred >= 0 && preferred < static_cast<int>(entries.size()) &&
      holds(entries[static_cast<std::size_t>(preferred)])) {
    return preferred;
  }
  const auto found = std::find_if(entries.begin(), entries.end(), holds);
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

}  // namespace tricklet
