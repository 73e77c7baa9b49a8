#include "formats/pbn/pbn_reader.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/text.h"
#include "formats/pbn/pbn_auction.h"
#include "formats/pbn/pbn_lines.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

/// Thrown inside this file only: the current line cannot be read.
struct BadLine {
  std::string reason;  // set where the line does not show it
};

constexpr int kRowsOfTable = kSeats * kStrains;

/// The position of `c` in `letters`; throws `BadLine` when it is not there.
std::size_t PositionIn(std::string_view letters, char c) {
  const auto position = letters.find(c);
  if (position == std::string_view::npos) throw BadLine{};
  return position;
}

/// The value of a tag line: what stands between the quotes, or after the blank when there are none.
std::string_view TagValue(std::string_view line) {
  const auto quote = line.find('"');
  if (quote == std::string_view::npos) return line.substr(std::min(line.find(' '), line.size()));
  const std::string_view value = line.substr(quote + 1);
  return value.substr(0, value.find('"'));
}

void ReadDeal(std::string_view line, HandTable& hands) {
  const std::string value = ToUpper(TagValue(line));
  const auto colon = value.find(':');
  if (colon == std::string::npos) throw BadLine{};
  const std::string_view first = Trim(std::string_view(value).substr(0, colon));
  if (first.size() != 1) throw BadLine{};
  const auto firstSeat = static_cast<Seat>(PositionIn("NESW", first[0]));
  std::string deal;
  deal.reserve(value.size() + kSuits);
  for (const char c : std::string_view(value).substr(colon + 1)) {
    if (c == 'T') {
      deal += "10";
    } else {
      deal += c;
    }
  }
  std::string_view rest = deal;
  for (int step = 0; step < kSeats; ++step) GetHand(rest, hands, SeatAfter(firstSeat, step));
}

/// One row of an optimum-result table: declarer letter, denomination letter(s), tricks.
std::int16_t ReadTableRow(std::string_view row, MakeableTable& table) {
  row.remove_suffix(row.size() - (row.find_last_not_of(" \t") + 1));  // blanks after the tricks
  if (row.empty()) throw BadLine{};
  const auto declarer = static_cast<TableSeat>(PositionIn("NSEW", ToUpper(row[0])));
  const std::string_view rest = Trim(row.substr(1));
  if (rest.empty()) throw BadLine{};
  const auto strain = static_cast<TableStrain>(PositionIn("CDHSN", rest[0]));
  const std::string_view lastTwo = row.substr(row.size() - std::min<std::size_t>(row.size(), 2));
  const auto tricks = static_cast<std::int16_t>(LeadingNumber(lastTwo));
  table[declarer][strain] = tricks;
  return tricks;
}

/// The line is no row of a table, but one that can follow its last row.
bool EndsTable(std::string_view line) {
  const std::string_view text = Trim(line);
  return text.empty() || text.front() == '[' || text.front() == '%';
}

void ReadOptimumResultTable(PbnLines& lines, Board& board) {
  std::int16_t lastTricks = 0;
  for (int row = 0; row < kRowsOfTable; ++row) {
    lines.ReadNextLine();
    if (EndsTable(lines.Line())) {
      throw BadLine{"The double-dummy table of board " + std::to_string(board.boardNumber) +
                    " has " + std::to_string(row) + " of its " + std::to_string(kRowsOfTable) +
                    " rows"};
    }
    lastTricks = ReadTableRow(lines.Line(), board.makeable);
  }
  // Writers that have no table write twenty zeros or question marks.
  board.makeableValid = lastTricks != 0 && IsPossible(board.makeable);
}

void ReadDoubleDummyTricks(std::string_view line, Board& board) {
  constexpr std::array kStrainOrder{TableStrain::NoTrump, TableStrain::Spades, TableStrain::Hearts,
                                    TableStrain::Diamonds, TableStrain::Clubs};
  const std::string digits = ToUpper(TagValue(line));
  if (digits.size() < kRowsOfTable) throw BadLine{};
  MakeableTable table;
  auto digit = digits.begin();
  for (const TableSeat declarer : kAllTableSeats) {
    for (const TableStrain strain : kStrainOrder) {
      table[declarer][strain] = static_cast<std::int16_t>(PositionIn("0123456789ABCD", *digit++));
    }
  }
  board.makeable = table;
  board.makeableValid = true;
}

/// Reads one file. What stands before the first Board tag belongs to no board and is not stored.
class PbnReader {
 public:
  PbnReader(std::string_view text, BoardSink& sink) : text_(text), lines_(text), sink_(sink) {
    board_.boardNumber = 0;
  }

  ReadResult Read() {
    if (!lines_.HasLines()) return result_;
    try {
      lines_.ReadNextLine();
      while (!lines_.PastEnd() && !result_.cancelled) ReadItem();
      // A cancelled run has stored its last board already, when the next one began.
      if (!result_.cancelled) StoreBoard();
    } catch (const BadLine& bad) {
      result_.badLine = std::string(lines_.Line());
      result_.badLineNumber = lines_.Number();
      result_.badLineReason = bad.reason;
      if (result_.lastBoard > 0) --result_.lastBoard;
    }
    return result_;
  }

 private:
  /// Reads the current line and moves on past what belongs to it.
  void ReadItem() {
    constexpr std::size_t kLongestTag = 24;
    const std::string_view line = Trim(lines_.Line());
    const std::string tag = ToUpper(line.substr(0, kLongestTag));
    if (tag.starts_with("[BOARD ")) {
      BeginBoard(LeadingNumber(TagValue(line)));
    } else if (tag.starts_with("[DEAL ")) {
      ReadDeal(line, board_.hands);
    } else if (tag.starts_with("[OPTIMUMRESULTTABLE ")) {
      ReadOptimumResultTable(lines_, board_);
    } else if (tag.starts_with("[DOUBLEDUMMYTRICKS ")) {
      ReadDoubleDummyTricks(line, board_);
    } else if (tag.starts_with("[AUCTION ")) {
      ReadAuction(lines_, board_.calls);
      return;  // the line that ended the section is now the current one
    }
    lines_.ReadNextLine();
  }

  void BeginBoard(int number) {
    StoreBoard();
    if (!sink_.Begin(number, ThousandthsRead(text_, lines_.Rest()))) {
      result_.cancelled = true;
      return;
    }
    inBoard_ = true;
    if (result_.firstBoard == 0) result_.firstBoard = number;
    result_.lastBoard = std::max(result_.lastBoard, number);
    board_.boardNumber = number;
    board_.calls.Clear();
    board_.makeableValid = false;
  }

  void StoreBoard() {
    if (!inBoard_) return;
    if (!IsStorable(board_.boardNumber)) {
      result_.leftOut.unstorable.push_back(board_.boardNumber);
      return;
    }
    GetContract(board_);
    sink_.Store(board_);
    ++result_.boardsSaved;
  }

  std::string_view text_;
  PbnLines lines_;
  BoardSink& sink_;
  Board board_;
  bool inBoard_ = false;  // a Board tag has come
  ReadResult result_;
};

}  // namespace

ReadResult ReadPBN(std::string_view text, BoardSink& sink) {
  return PbnReader(text, sink).Read();
}

}  // namespace tricklet
