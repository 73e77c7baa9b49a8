#include "formats/dlm/dlm_contents.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "formats/dlm/dlm_deal.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

/// "Board 07=aab...017" cut into its parts.
struct BoardLine {
  std::string label;
  std::string letters;       // in lower case
  std::optional<int> check;  // as written after the letters
};

/// What follows `key`, in whatever letter case; nothing when the line does not begin with it.
std::optional<std::string_view> ValueAfter(std::string_view line, std::string_view key) {
  if (!EqualNoCase(line.substr(0, key.size()), key)) return std::nullopt;
  return line.substr(key.size());
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return lower;
}

BoardLine CutBoardLine(std::string_view value) {
  BoardLine cut;
  const auto sign = value.find('=');
  cut.label = Trim(value.substr(0, sign));
  if (sign == std::string_view::npos) return cut;
  const std::string_view deal = Trim(value.substr(sign + 1));
  cut.letters = Lower(deal.substr(0, kDLMDealLetters));
  if (deal.size() > kDLMDealLetters) cut.check = NumberFromText(deal.substr(kDLMDealLetters));
  return cut;
}

/// Why the line gives no deal; empty when it gives one.
std::string FaultOf(const BoardLine& line) {
  if (LeadingNumber(line.label) < kFirstBoardNumber) return "no board number";
  if (line.letters.size() < kDLMDealLetters) return "fewer than 26 letters";
  const bool letters = std::all_of(line.letters.begin(), line.letters.end(), IsDLMLetter);
  return letters ? "" : "a letter outside \"a\" to \"p\"";
}

class DlmContentsReader {
 public:
  explicit DlmContentsReader(std::string_view text) : rest_(WithoutUtf8Mark(text)) {}

  FileContents Read() {
    contents_.format = "DLM";
    while (!rest_.empty()) {
      const std::string_view line = Trim(TakeLine(rest_));
      ++lineNumber_;
      if (const auto from = ValueAfter(line, "from board=")) {
        first_ = LeadingNumber(*from);
      } else if (const auto to = ValueAfter(line, "to board=")) {
        last_ = LeadingNumber(*to);
      } else if (const auto board = ValueAfter(line, "board")) {
        TakeBoard(*board, line);
      }
    }
    SettleRange();
    if (!section_.games.empty()) contents_.sections.push_back(std::move(section_));
    return std::move(contents_);
  }

 private:
  void TakeBoard(std::string_view value, std::string_view line) {
    BoardLine cut = CutBoardLine(value);
    if (std::string fault = FaultOf(cut); !fault.empty()) {
      contents_.unread.push_back({lineNumber_, cut.label, Showable(line), std::move(fault)});
      return;
    }
    FoundGame game;
    game.label = cut.label;
    game.number = LeadingNumber(cut.label);
    game.line = lineNumber_;
    game.board.hands = DecodeDLMDeal(cut.letters);
    NoteDealTroubles(game);
    if (cut.check && *cut.check != DLMChecksum(game.number, cut.letters)) {
      game.troubles.Add(DealTrouble::WrongCheck);
    }
    section_.games.push_back(std::move(game));
    letters_.push_back(std::move(cut.letters));
  }

  bool IsOutside(const FoundGame& game) const {
    return (first_ && game.number < *first_) || (last_ && game.number > *last_);
  }

  /// Takes out what only fills the file, and marks the other deals outside its range.
  void SettleRange() {
    std::map<std::string_view, int> outside;
    for (std::size_t at = 0; at < letters_.size(); ++at) {
      if (IsOutside(section_.games[at])) ++outside[letters_[at]];
    }
    std::vector<FoundGame> kept;
    for (std::size_t at = 0; at < letters_.size(); ++at) {
      FoundGame& game = section_.games[at];
      if (IsOutside(game)) {
        if (letters_[at] == kDLMPlaceholderDeal || outside[letters_[at]] > 1) {
          if (!last_ || game.number <= *last_) ++contents_.fillers;
          continue;
        }
        game.troubles.Add(DealTrouble::OutsideRange);
      }
      kept.push_back(std::move(game));
    }
    section_.games = std::move(kept);
  }

  std::string_view rest_;
  int lineNumber_ = 0;
  std::optional<int> first_;
  std::optional<int> last_;
  FoundSection section_;
  std::vector<std::string> letters_;  // of each game
  FileContents contents_;
};

}  // namespace

FileContents ReadDlmContents(std::string_view text) {
  return DlmContentsReader(text).Read();
}

}  // namespace tricklet
