#include "formats/pbn/pbn_results.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/text.h"
#include "formats/pbn/pbn_record.h"
#include "formats/pbn/pbn_score_table.h"
#include "formats/pbn/pbn_values.h"

namespace tricklet {
namespace {

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
void AddUnread(const PbnGame& game, PbnTag tag, const std::string& label, const char* reason,
               std::vector<UnreadPart>& unread) {
  const PbnField& field = game.fields[tag];
  unread.push_back({field.line, label, Showable(Trim(field.source)), reason});
}

/// Contract and declarer, the auction's where the tags do not say.
void SetContractOf(const PbnGame& game, const FoundGame& found, TableRecord& own,
                   std::vector<UnreadPart>& unread) {
  const auto contract = PbnContract(game.Value(PbnTag::Contract));
  if (!contract) AddUnread(game, PbnTag::Contract, found.label, "", unread);
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
    AddUnread(game, PbnTag::Result, found.label, "", unread);
  }
  if (!game.Value(PbnTag::Score).empty() && !IsOfSide(score, DeclarerOf(own))) {
    AddUnread(game, PbnTag::Score, found.label, "No side or declarer says whose score it is",
              unread);
  }
  SetMatchPoints(own, ReadPbnNumbers(game.Value(PbnTag::ScoreMp)),
                 ReadPbnNumbers(game.Value(PbnTag::ScorePercentage)));
  own.imps =
      NumberText(NorthSouthOf(ReadPbnNumbers(game.Value(PbnTag::ScoreImp)), DeclarerOf(own)));
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

std::vector<PbnResults::Row> PbnResults::RowsOf(const PbnGame& game, const TableRecord& common,
                                                std::vector<UnreadPart>& unread) {
  std::vector<Row> rows;
  if (!game.Has(PbnTag::ScoreTable)) return rows;
  PbnScoreTable table(game, session_);
  while (table.NextRow()) {
    Row row{table.Record(common), table.Tables()};
    const bool points = !row.record.imps.empty() || !row.record.nsMatchPoints.empty() ||
                        !row.record.ewMatchPoints.empty();
    if (!HasResult(row.record) && !points && !HasPlayers(row.record)) continue;
    if (rows_ + row.tables > kMaxPbnRows) {
      AddUnread(game, PbnTag::ScoreTable, game.Value(PbnTag::Board),
                "The file has more results than can be read", unread);
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
