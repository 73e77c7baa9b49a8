#include "library/board_file.h"

#include <algorithm>
#include <optional>

#include "core/statistics.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kBoardEnding = ".txt";
constexpr std::string_view kLineEnd = "\r\n";

/// Hands out one line after another, whichever way the lines end.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  std::optional<std::string_view> Next() {
    if (AtEnd()) return std::nullopt;
    return TakeLine(rest_);
  }

  /// The next line as a number; nothing when it is none. Blanks round it do not matter.
  std::optional<int> NextNumber() {
    const auto line = Next();
    if (!line) return std::nullopt;
    return NumberFromText<std::int16_t>(Trim(*line));
  }

  /// Only blanks and empty lines are left.
  bool OnlyBlanksLeft() const {
    return rest_.find_first_not_of(" \t\r\n") == std::string_view::npos;
  }

 private:
  std::string_view rest_;
};

void AppendNumber(std::string& text, int value) {
  if (value >= 0) text += ' ';
  text += std::to_string(value);
  text += kLineEnd;
}

/// Takes `holding` of `suit` from every seat before `seat`: a card lies in one hand only.
void TakeFromSeatsBefore(HandTable& hands, Seat seat, Suit suit, Holding holding) {
  for (const Seat other : kAllSeats) {
    if (other == seat) return;
    hands[other][suit] = hands[other][suit] - holding;
  }
}

bool ReadHands(LineReader& lines, HandTable& hands) {
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      const auto line = lines.Next();
      if (!line) return false;
      hands[seat][suit] = AddSpace(*line);
      TakeFromSeatsBefore(hands, seat, suit, hands[seat][suit]);
    }
  }
  return true;
}

bool ReadCalls(LineReader& lines, CallList& calls) {
  const auto count = lines.NextNumber();
  if (!count || *count < 0 || *count > CallList::kCapacity) return false;
  for (int i = 0; i < *count; ++i) {
    const auto line = lines.Next();
    if (!line) return false;
    if (const auto call = Call::FromText(*line)) {
      calls.Add(*call);
    } else {
      calls.Add(Call::Unread(), Latin1ToUtf8(*line));
    }
  }
  return true;
}

/// A file that ends after the calls has no table.
bool ReadTable(LineReader& lines, Board& board) {
  if (lines.OnlyBlanksLeft()) return true;
  const auto valid = lines.NextNumber();
  if (!valid) return false;
  if (*valid != 1) return true;
  MakeableTable table;
  for (auto& row : table) {
    for (std::int16_t& tricks : row) {
      const auto value = lines.NextNumber();
      if (!value) return false;
      tricks = static_cast<std::int16_t>(*value);
    }
  }
  board.makeable = table;
  board.makeableValid = IsPossible(table);
  return true;
}

/// Where the disk does not tell letter case apart, any is right.
bool IsEnding(std::string_view ending) {
#ifdef _WIN32
  return EqualNoCase(ending, kBoardEnding);
#else
  return ending == kBoardEnding;
#endif
}

}  // namespace

std::string BoardFileName(int boardNumber) {
  constexpr std::size_t kDigits = 3;
  return ZeroPadded(boardNumber, kDigits) + std::string(kBoardEnding);
}

int BoardNumberOfFile(std::string_view name) {
  constexpr std::size_t kDigits = 3;
  if (name.size() != kDigits + kBoardEnding.size() || !IsEnding(name.substr(kDigits))) return 0;
  int number = 0;
  for (const char c : name.substr(0, kDigits)) {
    if (c < '0' || c > '9') return 0;
    number = number * 10 + (c - '0');
  }
  return number;
}

std::string WriteBoardText(const Board& board) {
  std::string text;
  text.reserve(512);
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      text += HoldingText(board.hands[seat][suit]);
      text += kLineEnd;
    }
  }
  AppendNumber(text, board.NumCalls());
  for (int i = 0; i < board.NumCalls(); ++i) {
    text += Utf8ToLatin1(board.calls.TextAt(i));
    text += kLineEnd;
  }
  AppendNumber(text, board.makeableValid ? 1 : 0);
  if (board.makeableValid) {
    for (const auto& row : board.makeable) {
      for (const std::int16_t tricks : row) AppendNumber(text, tricks);
    }
  }
  return text;
}

bool ReadBoardText(std::string_view text, Board& board, TableReading tables) {
  LineReader lines(text);
  board.hands = HandTable();
  board.calls.Clear();
  board.makeableValid = false;
  const bool readable = ReadHands(lines, board.hands) && ReadCalls(lines, board.calls);
  GetContract(board);
  if (!readable) return false;
  const bool wantTable = tables == TableReading::Always || GetStats(board.hands).allHandsComplete;
  return !wantTable || ReadTable(lines, board);
}

}  // namespace tricklet
