#include "formats/dlm/dlm_reader.h"

#include <algorithm>
#include <string>

#include "core/text.h"
#include "formats/dlm/dlm_deal.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

std::string ToLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return lower;
}

class DlmReader {
 public:
  DlmReader(std::string_view text, BoardSink& sink) : text_(text), rest_(text), sink_(sink) {}

  ReadResult Read() {
    constexpr std::string_view kLastBoard = "to board=";
    while (!stopped_ && !rest_.empty()) {
      const std::string line = ReadLine();
      if (line.starts_with(kLastBoard)) {
        lastToRead_ =
            std::min(lastToRead_, LeadingNumber(std::string_view(line).substr(kLastBoard.size())));
      } else if (line.starts_with(kBoard)) {
        ReadBoard(line);
      }
    }
    return result_;
  }

 private:
  static constexpr std::string_view kBoard = "board";

  /// The next line in lower case, cut off where nothing of use can follow.
  std::string ReadLine() {
    constexpr std::size_t kLongestLine = 1024;
    ++lineNumber_;
    return ToLower(TakeLine(rest_).substr(0, kLongestLine));
  }

  void ReadBoard(const std::string& line) {
    const int number = LeadingNumber(std::string_view(line).substr(kBoard.size()));
    if (!sink_.Begin(number, ThousandthsRead(text_, rest_))) {
      result_.cancelled = stopped_ = true;
      return;
    }
    const std::string letters = LettersOf(line);
    if (number < kFirstBoardNumber || letters.size() < kDLMDealLetters ||
        !IsDLMLetter(letters.front())) {
      result_.badLine = line;
      result_.badLineNumber = lineNumber_;
      result_.boardsSaved = 0;
      stopped_ = true;
    } else if (number > lastToRead_) {
      stopped_ = true;
    } else {
      StoreBoard(number, letters);
    }
  }

  static std::string LettersOf(const std::string& line) {
    const auto sign = line.find('=');
    return sign == std::string::npos ? std::string() : line.substr(sign + 1, kDLMDealLetters);
  }

  void StoreBoard(int number, std::string_view letters) {
    Board board;
    board.boardNumber = number;
    board.hands = DecodeDLMDeal(letters);
    sink_.Store(board);
    ++result_.boardsSaved;
    result_.firstBoard = result_.firstBoard == 0 ? number : std::min(result_.firstBoard, number);
    result_.lastBoard = std::max(result_.lastBoard, number);
  }

  std::string_view text_;
  std::string_view rest_;
  BoardSink& sink_;
  int lastToRead_ = kLastBoardNumber;
  int lineNumber_ = 0;
  bool stopped_ = false;
  ReadResult result_;
};

}  // namespace

ReadResult ReadDLM(std::string_view text, BoardSink& sink) {
  return DlmReader(text, sink).Read();
}

}  // namespace tricklet
