#include "formats/pbn/pbn_makeable.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr int kTableRows = kSeats * kStrains;
constexpr auto kNowhere = std::string_view::npos;

struct TableRow {
  TableSeat declarer = TableSeat::North;
  TableStrain strain = TableStrain::Clubs;
  std::int16_t tricks = 0;
};

/// Declarer letter, strain letter(s), tricks; these are the last two characters.
std::optional<TableRow> ReadRow(std::string_view row) {
  constexpr std::size_t kShortest = 2;
  if (row.size() < kShortest) return std::nullopt;
  const auto declarer = std::string_view("NSEW").find(ToUpper(row.front()));
  const std::string_view rest = Trim(row.substr(1));
  if (declarer == kNowhere || rest.empty()) return std::nullopt;
  const auto strain = std::string_view("CDHSN").find(ToUpper(rest.front()));
  if (strain == kNowhere) return std::nullopt;
  const auto tricks = LeadingNumber(row.substr(row.size() - kShortest));
  return TableRow{static_cast<TableSeat>(declarer), static_cast<TableStrain>(strain),
                  static_cast<std::int16_t>(tricks)};
}

/// What has been read of an OptimumResultTable.
struct Rows {
  int count = 0;
  MakeableTable table;
  EnumArray<TableSeat, EnumArray<TableStrain, bool, kStrains>, kSeats> seen;
  std::int16_t last = 0;

  void Add(const TableRow& row) {
    ++count;
    table[row.declarer][row.strain] = row.tricks;
    seen[row.declarer][row.strain] = true;
    last = row.tricks;
  }
  bool Complete() const {
    return count == kTableRows && std::all_of(seen.begin(), seen.end(), [](const auto& strains) {
             return std::all_of(strains.begin(), strains.end(), [](bool cell) { return cell; });
           });
  }
};

void ReadResultTable(const PbnGame& game, FoundGame& found, std::vector<UnreadPart>& unread) {
  const PbnField& field = game.fields[PbnTag::OptimumResultTable];
  Rows rows;
  for (std::size_t i = field.firstPiece; i < field.endPiece; ++i) {
    const PbnPiece& piece = game.pieces[i];
    if (piece.text.empty() && rows.count > 0) break;  // the table's end
    if (piece.text.empty()) continue;
    if (const auto row = ReadRow(piece.text)) {
      rows.Add(*row);
    } else if (rows.count >= kTableRows) {
      break;  // text after the table
    } else {
      unread.push_back({piece.line, found.label, Showable(piece.text),
                        "A row of a double-dummy "
                        "table has a declarer, a denomination and tricks"});
    }
  }
  if (!rows.Complete()) {
    found.troubles.Add(DealTrouble::OddTable);
    return;
  }
  // Writers that have no table write twenty zeros or question marks.
  found.board.makeableValid = rows.last != 0 && IsPossible(rows.table);
  if (found.board.makeableValid) found.board.makeable = rows.table;
}

void ReadTricksTag(const PbnGame& game, FoundGame& found, std::vector<UnreadPart>& unread) {
  constexpr std::array kStrainOrder{TableStrain::NoTrump, TableStrain::Spades, TableStrain::Hearts,
                                    TableStrain::Diamonds, TableStrain::Clubs};
  constexpr std::string_view kDigits = "0123456789ABCD";
  const PbnField& field = game.fields[PbnTag::DoubleDummyTricks];
  const std::string digits = ToUpper(PbnText(field.value));
  if (digits.find_first_not_of("?-*") == std::string::npos) return;  // not known
  const std::string_view used = std::string_view(digits).substr(0, kTableRows);
  if (used.size() < kTableRows || used.find_first_not_of(kDigits) != kNowhere) {
    unread.push_back({field.line, found.label, Showable(Trim(field.source)), ""});
    return;
  }
  const auto* digit = used.begin();
  for (const TableSeat declarer : kAllTableSeats) {
    for (const TableStrain strain : kStrainOrder) {
      found.board.makeable[declarer][strain] = static_cast<std::int16_t>(kDigits.find(*digit++));
    }
  }
  found.board.makeableValid = true;
}

}  // namespace

void ReadPbnMakeable(const PbnGame& game, FoundGame& found, std::vector<UnreadPart>& unread) {
  const PbnField& rows = game.fields[PbnTag::OptimumResultTable];
  const PbnField& digits = game.fields[PbnTag::DoubleDummyTricks];
  const bool rowsLast = rows.place > digits.place;
  if (rows.place > 0 && !rowsLast) ReadResultTable(game, found, unread);
  if (digits.place > 0) ReadTricksTag(game, found, unread);
  if (rows.place > 0 && rowsLast) ReadResultTable(game, found, unread);
}

}  // namespace tricklet
