#include "formats/pbn/pbn_score_table.h"

#include <algorithm>
#include <optional>

#include "core/text.h"
#include "formats/pbn/pbn_record.h"

namespace tricklet {
namespace {

constexpr std::size_t kLongestWord = 12;  // of a contract, a lead or a ruling

}  // namespace

PbnScoreTable::PbnScoreTable(const PbnGame& game, const PbnSession& session)
    : table_(game, PbnTag::ScoreTable),
      session_(session),
      contract_(table_.Find({"CONTRACT"})),
      declarer_(table_.Find({"DECLARER"})),
      result_(table_.Find({"RESULT", "TRICKS"})),
      lead_(table_.Find({"LEAD"})),
      room_(table_.Find({"ROOM"})),
      multiplicity_(table_.Find({"MULTIPLICITY"})),
      score_(FindNumbers("SCORE")),
      matchPoints_(FindNumbers("MP")),
      percentage_(FindNumbers("PERCENTAGE")),
      imps_(FindNumbers("IMP")) {
  names_ = {{table_.Find({"NAMES_NS", "NAME_NS"}), table_.Find({"NAMES_EW", "NAME_EW"})}};
  pairs_ = {{table_.Find({"PAIRID_NS", "PAIR_NS"}), table_.Find({"PAIRID_EW", "PAIR_EW"})}};
  for (const Seat seat : kAllSeats) {
    const std::string name = ToUpper(SeatName[seat]);
    players_[seat] = table_.Find({name, "NAME_" + name});
    playerNumbers_[seat] = table_.Find({"PLAYERID_" + name});
  }
}

PbnScoreTable::NumberColumns PbnScoreTable::FindNumbers(const std::string& name) const {
  return {table_.Find({name}), {{table_.Find({name + "_NS"}), table_.Find({name + "_EW"})}}};
}

/// A number without a side is North-South's.
PbnNumbers PbnScoreTable::Numbers(const NumberColumns& columns) const {
  PbnNumbers numbers;
  if (columns.own) numbers = ReadPbnNumbers(table_.Cell(columns.own));
  auto& ns = numbers.of[Side::NorthSouth];
  if (!ns) ns = numbers.own;
  numbers.own.reset();
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    if (!columns.of[side]) continue;
    if (const auto read = ReadPbnNumbers(table_.Cell(columns.of[side])).own) {
      numbers.of[side] = read;
    }
  }
  return numbers;
}

/// What stands in the place of a score and is no number: "40%-40%", "A6040".
std::string PbnScoreTable::Ruling() const {
  for (const Column column : {score_.of[Side::NorthSouth], score_.of[Side::EastWest], score_.own}) {
    const std::string text = table_.Cell(column);
    if (text.empty()) continue;
    const PbnNumbers numbers = ReadPbnNumbers(text);
    const bool number = numbers.own || numbers.of[Side::NorthSouth] || numbers.of[Side::EastWest];
    if (!number || text.find('%') != std::string::npos) return Showable(text, kLongestWord);
  }
  return {};
}

void PbnScoreTable::SetPlayers(TableRecord& record) const {
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    const auto first = static_cast<Seat>(IndexOf(side));
    PairPlayers players;
    if (const std::string names = table_.Cell(names_[side]); !names.empty()) {
      players = PbnPlayers(names);
    } else if (const std::string pair = table_.Cell(pairs_[side]); !pair.empty()) {
      players = session_.names.PlayersOf(pair, side);
    }
    record.players[first] = players.first;
    record.players[PartnerOf(first)] = players.second;
  }
  for (const Seat seat : kAllSeats) {
    const std::string name = table_.Cell(players_[seat]);
    const std::string number = table_.Cell(playerNumbers_[seat]);
    if (!number.empty()) record.players[seat] = session_.pairs.PlayerOf(number);
    if (!name.empty()) record.players[seat] = PlayerName(name);
  }
}

TableRecord PbnScoreTable::Record(const TableRecord& common) const {
  TableRecord row = common;
  SetPlayers(row);
  row.closedRoom = row.closedRoom || EqualNoCase(table_.Cell(room_), "Closed");
  const std::string contract = table_.Cell(contract_);
  row.contract = PbnContract(contract).value_or(Showable(contract, kLongestWord));
  if (!IsPassedOut(row.contract)) row.declarer = SeatLetter(PbnSeat(table_.Cell(declarer_)));
  row.score = Ruling();
  if (row.score.empty()) SetResult(row, table_.Cell(result_), Numbers(score_));
  SetMatchPoints(row, Numbers(matchPoints_), Numbers(percentage_));
  row.imps = NumberText(NorthSouthOf(Numbers(imps_), std::nullopt));
  row.lead = Showable(table_.Cell(lead_), kLongestWord);
  return row;
}

std::size_t PbnScoreTable::Tables() const {
  return static_cast<std::size_t>(std::max(LeadingNumber(table_.Cell(multiplicity_)), 1));
}

}  // namespace tricklet
