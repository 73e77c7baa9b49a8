#include "formats/pbn/pbn_results.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "core/scoring.h"
#include "core/text.h"
#include "formats/pbn/pbn_values.h"

namespace tricklet {
namespace {

std::optional<Seat> DeclarerOf(const TableRecord& record) {
  return PbnSeat(record.declarer);
}

std::string SeatLetter(std::optional<Seat> seat) {
  return seat ? std::string(SeatName[*seat].substr(0, 1)) : "";
}

std::string TextOf(std::optional<float> number) {
  return number ? ShortestText(*number) : "";
}

/// The number is there, and it shows whose it is.
bool IsOfSide(const PbnNumbers& score, std::optional<Seat> declarer) {
  return score.of[Side::NorthSouth] || score.of[Side::EastWest] || score.own == 0.0F ||
         (score.own && declarer);
}

/// Tricks and score, which is worked out where the file has none but knows the vulnerability: the
/// board may come to stand under a number with another one.
void SetResult(TableRecord& record, const std::string& result, const PbnNumbers& score) {
  const auto declarer = DeclarerOf(record);
  const bool passedOut = IsPassedOut(record.contract);
  const auto tricks = passedOut ? std::nullopt : PbnTricks(result, declarer, record.contract);
  if (tricks) record.tricks = std::to_string(*tricks);
  const auto given = IsOfSide(score, declarer) ? NorthSouthOf(score, declarer) : std::nullopt;
  Board board;
  if (given && std::fabs(*given) < 100'000) {
    record.score = std::to_string(static_cast<int>(*given));
  } else if (passedOut) {
    record.score = "0";
  } else if (tricks && declarer && record.vulnerability && SetContract(board, record.contract)) {
    record.score = std::to_string(ScoreContract(*record.vulnerability, board.contractLevel,
                                                board.trumps, DoublingOf(board.contract),
                                                *tricks - board.contractLevel - kBook, *declarer));
  }
}

void SetMatchPoints(TableRecord& record, const PbnNumbers& matchPoints, const PbnNumbers& percent) {
  const auto declarer = DeclarerOf(record);
  const Side ownSide = declarer ? SideOf(*declarer) : Side::NorthSouth;
  PerSide<std::optional<float>> points = matchPoints.of;
  if (matchPoints.own && !points[ownSide]) points[ownSide] = matchPoints.own;
  if (!points[Side::NorthSouth] && !points[Side::EastWest]) {
    // A percentage is what a side has of 100 points.
    constexpr float kAll = 100;
    points = percent.of;
    if (percent.own && !points[ownSide]) points[ownSide] = percent.own;
    auto& ns = points[Side::NorthSouth];
    auto& ew = points[Side::EastWest];
    if (ns && !ew) ew = kAll - *ns;
    if (ew && !ns) ns = kAll - *ew;
  }
  record.nsMatchPoints = TextOf(points[Side::NorthSouth]);
  record.ewMatchPoints = TextOf(points[Side::EastWest]);
}

/// The numbers of a pair of columns, or of one column for North-South.
PbnNumbers Numbers(const PbnTable& table, std::string_view name) {
  const std::string ns = std::string(name) + "_NS";
  const std::string ew = std::string(name) + "_EW";
  PbnNumbers numbers = ReadPbnNumbers(table.Cell({name}));
  if (numbers.own) numbers.of[Side::NorthSouth] = std::exchange(numbers.own, std::nullopt);
  if (const auto read = ReadPbnNumbers(table.Cell({ns})).own) numbers.of[Side::NorthSouth] = read;
  if (const auto read = ReadPbnNumbers(table.Cell({ew})).own) numbers.of[Side::EastWest] = read;
  return numbers;
}

/// What stands in the place of a score and is no number: "40%-40%", "A6040".
std::string RulingOf(const PbnTable& table) {
  constexpr std::size_t kLongest = 12;
  const std::string text = table.Cell({"SCORE_NS", "SCORE_EW", "SCORE"});
  const PbnNumbers numbers = ReadPbnNumbers(text);
  const bool number = numbers.own || numbers.of[Side::NorthSouth] || numbers.of[Side::EastWest];
  return number && text.find('%') == std::string::npos ? "" : Showable(text, kLongest);
}

bool SameContract(const std::string& a, const std::string& b) {
  if (IsPassedOut(a) || IsPassedOut(b)) return a == b;
  Board first;
  Board second;
  return SetContract(first, a) && SetContract(second, b) && first.contract == second.contract;
}

bool SameResult(const TableRecord& a, const TableRecord& b) {
  return SameContract(a.contract, b.contract) && a.declarer == b.declarer && a.tricks == b.tricks;
}

bool HasPlayers(const TableRecord& record) {
  return std::any_of(record.players.begin(), record.players.end(),
                     [](const std::string& name) { return !name.empty(); });
}

bool HasResult(const TableRecord& record) {
  return !record.contract.empty() || !record.declarer.empty() || !record.tricks.empty() ||
         !record.score.empty();
}

/// The row's result as the game's own record tells it.
void Complete(TableRecord& row, TableRecord own) {
  for (const Seat seat : kAllSeats) {
    if (!own.players[seat].empty()) row.players[seat] = own.players[seat];
  }
  row.closedRoom = row.closedRoom || own.closedRoom;
  row.auction = std::move(own.auction);
  row.play = std::move(own.play);
  if (row.lead.empty()) row.lead = own.lead;
}

/// The calls come to an end.
bool IsClosed(const CallList& calls) {
  constexpr int kShortest = 4;
  constexpr int kPasses = 3;
  if (calls.Count() < kShortest) return false;
  for (int back = 1; back <= kPasses; ++back) {
    if (!calls[calls.Count() - back].IsPass()) return false;
  }
  return true;
}

/// The Result tag. Some writers put a 0 where they know neither contract nor result.
std::string ResultOf(const PbnGame& game) {
  std::string result = game.Value(PbnTag::Result);
  return result == "0" && game.Value(PbnTag::Contract).empty() ? "" : result;
}

/// Adds the line of the tag.
void AddUnread(const PbnGame& game, PbnTag tag, const FoundGame& found, const char* reason,
               std::vector<UnreadPart>& unread) {
  const PbnField& field = game.fields[tag];
  unread.push_back({field.line, found.label, Showable(Trim(field.source)), reason});
}

/// Contract and declarer, the auction's where the tags do not say.
void SetContractOf(const PbnGame& game, const FoundGame& found, TableRecord& own,
                   std::vector<UnreadPart>& unread) {
  const auto contract = PbnContract(game.Value(PbnTag::Contract));
  if (!contract) AddUnread(game, PbnTag::Contract, found, "", unread);
  own.contract = contract.value_or("");
  const Board& bid = found.board;
  const bool known = found.dealer && IsClosed(bid.calls);
  if (contract && contract->empty() && known && HasPbnResult(game)) {
    own.contract = bid.contract == kAllPass ? "PASS" : bid.contract;
  }
  if (IsPassedOut(own.contract)) return;
  auto declarer = PbnSeat(game.Value(PbnTag::Declarer));
  if (!declarer && known && SameContract(own.contract, bid.contract)) declarer = bid.declarer;
  own.declarer = SeatLetter(declarer);
}

/// The trumps of the contract, else of the auction.
std::optional<Strain> TrumpsOf(const TableRecord& own, const Board& bid) {
  Board board;
  if (SetContract(board, own.contract)) return board.trumps;
  return bid.contractLevel > 0 ? std::optional(bid.trumps) : std::nullopt;
}

/// The game's own result.
TableRecord OwnOf(const PbnGame& game, const PbnAuction& auction, const FoundGame& found,
                  const TableRecord& common, std::vector<UnreadPart>& unread) {
  TableRecord own = common;
  constexpr PerSeat<PbnTag> kPlayers{{PbnTag::North, PbnTag::East, PbnTag::South, PbnTag::West}};
  for (const Seat seat : kAllSeats) own.players[seat] = PlayerName(game.Value(kPlayers[seat]));
  SetContractOf(game, found, own, unread);
  const bool bare = own.contract.empty() && own.declarer.empty();  // tricks of nobody
  const std::string result = bare ? "" : ResultOf(game);
  const PbnNumbers score = ReadPbnNumbers(game.Value(PbnTag::Score));
  SetResult(own, result, score);
  if (!result.empty() && own.tricks.empty() && !IsPassedOut(own.contract)) {
    AddUnread(game, PbnTag::Result, found, "", unread);
  }
  if (!game.Value(PbnTag::Score).empty() && !IsOfSide(score, DeclarerOf(own))) {
    AddUnread(game, PbnTag::Score, found, "No side or declarer says whose score it is", unread);
  }
  SetMatchPoints(own, ReadPbnNumbers(game.Value(PbnTag::ScoreMp)),
                 ReadPbnNumbers(game.Value(PbnTag::ScorePercentage)));
  own.imps = TextOf(NorthSouthOf(ReadPbnNumbers(game.Value(PbnTag::ScoreImp)), DeclarerOf(own)));
  own.auction = auction.calls;
  own.play = ReadPbnPlay(game, TrumpsOf(own, found.board), DeclarerOf(own));
  return own;
}

}  // namespace

bool HasPbnResult(const PbnGame& game) {
  return !game.Value(PbnTag::Contract).empty() || !ResultOf(game).empty() ||
         !game.Value(PbnTag::Score).empty() || game.Has(PbnTag::Play) ||
         game.Has(PbnTag::ScoreTable);
}

bool PbnResults::Add(const PbnGame& game, const PbnAuction& auction, FoundGame& found,
                     std::vector<UnreadPart>& unread) {
  TableRecord common;
  common.boardNumber = std::max(found.number, 0);
  common.closedRoom = found.room == "Closed";
  common.hands = found.board.hands;
  common.dealer = found.dealer;
  common.vulnerability = found.vulnerability;
  TableRecord own = OwnOf(game, auction, found, common, unread);
  std::vector<Row> rows = RowsOf(game, common, unread);
  const bool result = HasResult(own) || !own.play.empty();
  const auto same = std::find_if(rows.begin(), rows.end(),
                                 [&own](const Row& row) { return SameResult(row.record, own); });
  bool calls = false;
  if (result && same != rows.end()) {
    TableRecord completed = same->record;
    Complete(completed, std::move(own));
    calls = !completed.auction.empty();
    --same->tables;
    rows.insert(same, {std::move(completed), 1});
  } else if (result || (HasPlayers(own) && rows.empty())) {
    NotePoints(own);
    calls = !own.auction.empty();
    found.records.push_back(LinLineOf(own));
  }
  for (const Row& row : rows) {
    if (row.tables > 0)
      found.records.insert(found.records.end(), row.tables, LinLineOf(row.record));
  }
  return calls;
}

PerSeat<std::string> PbnResults::PlayersOf(const PbnTable& table) const {
  PerSeat<std::string> players;
  const auto sit = [&players](Seat first, const PairPlayers& pair) {
    players[first] = pair.first;
    players[PartnerOf(first)] = pair.second;
  };
  if (const auto names = table.Cell({"NAMES_NS", "NAME_NS"}); !names.empty()) {
    sit(Seat::North, PbnPlayers(names));
  } else if (const auto pair = table.Cell({"PAIRID_NS", "PAIR_NS"}); !pair.empty()) {
    sit(Seat::North, session_.names.PlayersOf(pair, Side::NorthSouth));
  }
  if (const auto names = table.Cell({"NAMES_EW", "NAME_EW"}); !names.empty()) {
    sit(Seat::East, PbnPlayers(names));
  } else if (const auto pair = table.Cell({"PAIRID_EW", "PAIR_EW"}); !pair.empty()) {
    sit(Seat::East, session_.names.PlayersOf(pair, Side::EastWest));
  }
  for (const Seat seat : kAllSeats) {
    const std::string name = ToUpper(SeatName[seat]);
    const std::string own = table.Cell({name, "NAME_" + name});
    const std::string number = own.empty() ? table.Cell({"PLAYERID_" + name}) : "";
    if (!own.empty()) players[seat] = PlayerName(own);
    if (!number.empty()) players[seat] = session_.pairs.PlayerOf(number);
  }
  return players;
}

TableRecord PbnResults::RowOf(const PbnTable& table, const TableRecord& common) const {
  constexpr std::size_t kLongest = 12;
  TableRecord row = common;
  row.players = PlayersOf(table);
  row.closedRoom = row.closedRoom || EqualNoCase(table.Cell({"ROOM"}), "Closed");
  const std::string contract = table.Cell({"CONTRACT"});
  row.contract = PbnContract(contract).value_or(Showable(contract, kLongest));
  if (!IsPassedOut(row.contract)) row.declarer = SeatLetter(PbnSeat(table.Cell({"DECLARER"})));
  if (const std::string ruling = RulingOf(table); !ruling.empty()) {
    row.score = ruling;
  } else {
    SetResult(row, table.Cell({"RESULT", "TRICKS"}), Numbers(table, "SCORE"));
  }
  SetMatchPoints(row, Numbers(table, "MP"), Numbers(table, "PERCENTAGE"));
  row.imps = TextOf(NorthSouthOf(Numbers(table, "IMP"), std::nullopt));
  row.lead = Showable(table.Cell({"LEAD"}), kLongest);
  return row;
}

std::vector<PbnResults::Row> PbnResults::RowsOf(const PbnGame& game, const TableRecord& common,
                                                std::vector<UnreadPart>& unread) {
  std::vector<Row> rows;
  if (!game.Has(PbnTag::ScoreTable)) return rows;
  PbnTable table(game, PbnTag::ScoreTable);
  while (table.NextRow()) {
    Row row{RowOf(table, common), 1};
    const bool points = !row.record.imps.empty() || !row.record.nsMatchPoints.empty() ||
                        !row.record.ewMatchPoints.empty();
    if (!HasResult(row.record) && !points && !HasPlayers(row.record)) continue;
    const int tables = LeadingNumber(table.Cell({"MULTIPLICITY"}));
    row.tables = static_cast<std::size_t>(std::max(tables, 1));
    if (rows_ + row.tables > kMaxPbnRows) {
      unread.push_back({game.fields[PbnTag::ScoreTable].line, game.Value(PbnTag::Board),
                        Showable(Trim(game.fields[PbnTag::ScoreTable].source)),
                        "The file has more results than can be read"});
      break;
    }
    rows_ += row.tables;
    NotePoints(row.record);
    rows.push_back(std::move(row));
  }
  return rows;
}

void PbnResults::NotePoints(const TableRecord& record) {
  points_.matchPoints =
      points_.matchPoints || !record.nsMatchPoints.empty() || !record.ewMatchPoints.empty();
  if (record.imps.empty()) return;
  points_.imps = true;
  points_.fractions = points_.fractions || record.imps.find('.') != std::string::npos;
}

}  // namespace tricklet
