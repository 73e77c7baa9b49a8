#include "formats/results/traveller.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

#include "core/comparison.h"
#include "core/scoring.h"
#include "core/text.h"
#include "formats/lin/lin_record.h"
#include "formats/results/lin_boards.h"
#include "formats/results/pair_names.h"
#include "formats/results/ruling.h"

namespace tricklet {
namespace {

constexpr std::string_view kOwnTags = "qent|";  // where the scorer's own tags begin
constexpr int kMostTricks = kCardsInHand;

const std::string& Result(const LinRecord& record, LinResultTag tag) {
  return record.results[tag];
}

/// The number that is all of `text`, perhaps after a "+"; nothing for anything else.
template <class Number>
std::optional<Number> NumberOf(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  return NumberFromText<Number>(text);
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

/// A card with its suit before or after its rank; the ten is "T" or "10".
std::optional<Card> CardOf(std::string_view text) {
  std::string card(Trim(text));
  if (const auto ten = card.find("10"); ten != std::string::npos) card.replace(ten, 2, "T");
  if (card.size() != 2) return std::nullopt;
  const auto suitFirst = CardOfLetters(card[0], card[1]);
  return suitFirst ? suitFirst : CardOfLetters(card[1], card[0]);
}

/// The deal, the calls as far as a board holds them, and the contract. Where the record has no
/// auction, or one that began with another dealer than the board's, the scorer's contract stands
/// in.
Board BoardOf(const LinRecord& record, int boardNumber) {
  Board board;
  board.boardNumber = boardNumber;
  board.hands = record.hands;
  const bool foreign = record.dealer && *record.dealer != board.Dealer();
  for (const Call call : record.calls) {
    if (!foreign && !board.calls.Full()) board.calls.Add(call);
  }
  GetContract(board);
  const auto declarer = SeatOf(Result(record, LinResultTag::Qend));
  if (board.contract.empty() && declarer &&
      SetContract(board, Result(record, LinResultTag::Qenc))) {
    board.declarer = *declarer;
  }
  return board;
}

bool SaysPassedOut(std::string_view contract) {
  constexpr std::array<std::string_view, 4> kWords{"PASS", "ALL PASS", "P", "AP"};
  return std::any_of(kWords.begin(), kWords.end(),
                     [&](std::string_view word) { return EqualNoCase(word, contract); });
}

/// The score is a ruling: "A6040", or says that there is none. What was bid and played did not
/// decide it.
bool IsAdjusted(const LinRecord& record) {
  const std::string& score = Result(record, LinResultTag::Qens);
  return !score.empty() && !NumberOf<int>(score);
}

/// Reads contract and declarer: the scorer's if given, else the auction's. Returns what
/// `ScoreContract` needs.
Board ReadContractOf(const LinRecord& record, TravellerRow& row) {
  Board scored;
  scored.boardNumber = row.record.board.boardNumber;
  const std::string& contract = Result(record, LinResultTag::Qenc);
  if (SaysPassedOut(contract)) {
    scored.contract = kAllPass;
  } else if (SetContract(scored, contract)) {
    const auto declarer = SeatOf(Result(record, LinResultTag::Qend));
    row.declarer = declarer ? declarer : row.record.board.declarer;
  } else if (contract.empty() && !IsAdjusted(record)) {
    scored = row.record.board;
    if (scored.contractLevel > 0) row.declarer = scored.declarer;
  }
  if (row.declarer) scored.declarer = *row.declarer;
  row.contract = scored.contract;
  return scored;
}

/// For a contract: the scorer's tricks, else those claimed, else those of the cards played.
void ReadTricks(const LinRecord& record, Board scored, TravellerRow& row) {
  if (!row.declarer) return;
  row.tricks = TricksOf(Result(record, LinResultTag::Qent));
  if (row.tricks || IsAdjusted(record)) return;
  if (record.claim) {
    if (*record.claim >= 0 && *record.claim <= kMostTricks) row.tricks = record.claim;
    return;
  }
  scored.hands = record.hands;
  row.tricks = DeclarerTricks(scored, record.play);
}

void ReadScore(const LinRecord& record, const Board& scored, TravellerRow& row) {
  const std::string& text = Result(record, LinResultTag::Qens);
  row.score = NumberOf<int>(text);
  if (row.score) return;
  constexpr std::size_t kLongest = 12;  // longer ones are no rulings, and would fill the line
  if (!IsNotPlayed(text)) row.adjusted = Showable(text, kLongest);
  if (!text.empty()) return;
  if (row.contract == kAllPass) row.score = 0;
  if (scored.contractLevel > 0 && row.tricks) {
    row.score = ScoreContract(scored.Vulnerability(), scored.contractLevel, scored.trumps,
                              DoublingOf(scored.contract),
                              *row.tricks - scored.contractLevel - kBook, scored.declarer);
  }
}

void ReadPoints(const LinRecord& record, bool matchPoints, TravellerRow& row) {
  if (matchPoints) {
    row.points[Side::NorthSouth] = PointsOf(Result(record, LinResultTag::Qenns));
    row.points[Side::EastWest] = PointsOf(Result(record, LinResultTag::Qenew));
  } else if (const auto imps = PointsOf(Result(record, LinResultTag::Qeni))) {
    row.points[Side::NorthSouth] = *imps;
    row.points[Side::EastWest] = *imps == 0 ? 0 : -*imps;
  }
}

/// North before South and East before West, as pairs are written.
void ReadNames(const LinRecord& record, const PairNames& pairs, TravellerRow& row) {
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    const auto first = static_cast<Seat>(IndexOf(side));
    const PairPlayers players{PlayerName(record.players[first]),
                              PlayerName(record.players[PartnerOf(first)])};
    row.names[side] = JoinPlayers(players);
    row.players[first] = players.first;
    row.players[PartnerOf(first)] = players.second;
    row.pair[side] = pairs.NumberOf(players, side);
  }
}

TravellerRow MakeRow(const LinRecord& record, int boardNumber, const PairNames& pairs,
                     bool matchPoints) {
  TravellerRow row;
  row.record.board = BoardOf(record, boardNumber);
  row.record.remarks = record.remarks;
  if (row.record.board.calls.Empty()) row.record.remarks.clear();
  row.record.cards = record.play;
  const Board scored = ReadContractOf(record, row);
  ReadTricks(record, scored, row);
  row.record.tricks = row.tricks;
  row.lead = CardOf(Result(record, LinResultTag::Qenl));
  if (!row.lead && !record.play.empty()) row.lead = record.play.front();
  ReadScore(record, scored, row);
  ReadPoints(record, matchPoints, row);
  ReadNames(record, pairs, row);
  return row;
}

bool HasPoints(const TravellerRow& row) {
  return std::any_of(row.points.begin(), row.points.end(),
                     [](const auto& points) { return points && *points != 0; });
}

/// The tables with a score are compared among themselves; a ruling gets its percentage of the top.
void GiveMatchPoints(BoardScores scores, Traveller& traveller) {
  const auto played = std::count_if(scores.begin(), scores.end(),
                                    [](const auto& score) { return score.has_value(); });
  const auto top = static_cast<float>(2 * (played - 1));
  for (TravellerRow& row : traveller.rows) {
    const auto percentages = PercentagesOf(row.adjusted);
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      if (const auto share = percentages[side]) row.points[side] = top * *share / 100;
    }
  }
  const auto points = MatchPoints(scores);
  for (std::size_t table = 0; table < points.size(); ++table) {
    if (!points[table]) continue;
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      traveller.rows[table].points[side] = static_cast<float>((*points[table])[side]);
    }
  }
}

void GiveImps(BoardScores scores, Traveller& traveller) {
  const auto imps = CrossImps(scores);
  for (std::size_t table = 0; table < imps.size(); ++table) {
    const std::optional<int> own = imps[table];
    if (!own) continue;
    traveller.rows[table].points[Side::NorthSouth] = static_cast<float>(*own);
    traveller.rows[table].points[Side::EastWest] = static_cast<float>(-*own);
  }
}

void ComputePoints(Traveller& traveller, bool matchPoints, bool teams) {
  std::vector<std::optional<int>> scores;
  scores.reserve(traveller.rows.size());
  for (TravellerRow& row : traveller.rows) {
    scores.push_back(row.score);
    row.points.fill(std::nullopt);
  }
  const auto played = std::count_if(scores.begin(), scores.end(),
                                    [](const auto& score) { return score.has_value(); });
  if (played < 2) return;  // a single score has nothing to be compared with
  if (matchPoints) {
    GiveMatchPoints(scores, traveller);
  } else if (!teams || played == 2) {
    GiveImps(scores, traveller);
  }
}

/// The heading of the points: the file's word for its own points, and for computed ones what was
/// computed.
std::string ScoringOf(const LinFile& file, bool matchPoints, bool teams, bool computed) {
  constexpr std::size_t kLongest = 8;
  if (matchPoints) return "MP";
  if (!computed && !file.boardScoringAbb.empty()) {
    return Showable(file.boardScoringAbb, kLongest);
  }
  return teams ? "IMP" : "XIMP";
}

/// The traveller of the board whose records are `lines`.
Traveller TravellerOf(const LinFile& file, int boardNumber,
                      const std::vector<const std::string*>& lines, const PairNames& pairs) {
  const bool matchPoints = file.boardScoringMethod == "MATCH_POINTS";
  const bool teams = file.teamEvent.has_value() || file.boardScoringMethod == "IMPS";
  Traveller traveller;
  traveller.boardNumber = boardNumber;
  for (const std::string* line : lines) {
    traveller.rows.push_back(MakeRow(ParseLinRecord(*line), boardNumber, pairs, matchPoints));
    traveller.rows.back().lin = line->substr(0, line->find(kOwnTags));
  }
  traveller.computed = std::none_of(traveller.rows.begin(), traveller.rows.end(), HasPoints);
  if (traveller.computed) ComputePoints(traveller, matchPoints, teams);
  traveller.scoring = ScoringOf(file, matchPoints, teams, traveller.computed);
  return traveller;
}

/// "+1", "-2", "=".
std::string Signed(int number) {
  return ResultText(number);
}

}  // namespace

std::optional<int> TravellerRow::Result() const {
  Board played;
  if (!tricks || !SetContract(played, contract)) return std::nullopt;
  return *tricks - played.contractLevel - kBook;
}

std::string TravellerRow::ContractText() const {
  return contract.empty() && !HasResult() ? kNotPlayed : contract;
}

std::string TravellerRow::NamesText() const {
  return names[Side::NorthSouth] + " v " + names[Side::EastWest];
}

TravellerRow MakeTravellerRow(const std::string& record, int boardNumber) {
  TravellerRow row = MakeRow(ParseLinRecord(record), boardNumber, PairNames({}), true);
  row.points.fill(std::nullopt);
  return row;
}

Traveller MakeTraveller(const LinFile& file, int boardNumber) {
  std::vector<const std::string*> lines;
  for (const std::string& line : file.lin) {
    if (lines.size() == kMaxTravellerRows) break;
    if (BoardNumberOfLin(line) == boardNumber) lines.push_back(&line);
  }
  return TravellerOf(file, boardNumber, lines, PairNames(file.names));
}

std::vector<Traveller> MakeTravellers(const LinFile& file) {
  std::map<int, std::vector<const std::string*>> lines;
  for (const std::string& line : file.lin) {
    const int boardNumber = BoardNumberOfLin(line);
    if (!IsStorable(boardNumber)) continue;
    auto& ofBoard = lines[boardNumber];
    if (ofBoard.size() < kMaxTravellerRows) ofBoard.push_back(&line);
  }
  const PairNames pairs(file.names);
  std::vector<Traveller> travellers;
  travellers.reserve(lines.size());
  for (const auto& [boardNumber, ofBoard] : lines) {
    travellers.push_back(TravellerOf(file, boardNumber, ofBoard, pairs));
  }
  return travellers;
}

std::string LinPlayRecord(const Traveller& traveller, const Board& board, int row) {
  for (std::size_t at = 0; at < traveller.rows.size(); ++at) {
    const TravellerRow& table = traveller.rows[at];
    const bool wanted = row < 0 ? !table.record.cards.empty() : static_cast<int>(at) == row;
    if (wanted && table.record.board.hands == board.hands) return table.lin;
  }
  return {};
}

std::string ReadLinBidding(const TravellerRow& row) {
  const std::string names = " " + row.NamesText();
  if (row.contract == kAllPass && row.adjusted.empty()) return row.contract + names;
  if (!row.HasResult() && !row.Result()) return kNotPlayed + names;
  std::string text = row.contract;
  if (row.declarer) text += " by " + std::string(SeatName[*row.declarer]);
  if (const auto result = row.Result()) text += " " + Signed(*result);
  if (!row.HasResult()) return text + names;  // a play that is kept without a score
  return text + (text.empty() ? "" : " ") + (row.score ? Signed(*row.score) : row.adjusted) + names;
}

std::vector<std::string> AddLinNames(const Traveller& traveller) {
  std::vector<std::string> names;
  names.reserve(traveller.rows.size());
  for (const TravellerRow& row : traveller.rows) names.push_back(row.NamesText());
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
