#include "formats/pbn/pbn_auction.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kBetweenCalls = " \t\r\n\v\f";
constexpr int kPassesOfAllPass = 3;

/// Appends `line` without its comments. `insideBraces`: a {comment} is open, before the line and
/// then after it.
void AppendWithoutComments(std::string_view line, bool& insideBraces, std::string& text) {
  if (!insideBraces && line.starts_with('%')) return;
  while (!line.empty()) {
    const auto mark = line.find_first_of(insideBraces ? "}" : "{;");
    if (!insideBraces) text += line.substr(0, mark);
    if (mark == std::string_view::npos || line[mark] == ';') break;
    insideBraces = !insideBraces;
    line.remove_prefix(mark + 1);
    text += ' ';
  }
  text += ' ';
}

std::string CollectSection(PbnLines& lines) {
  std::string text;
  bool insideBraces = false;
  for (lines.ReadNextLine(); !lines.PastEnd(); lines.ReadNextLine()) {
    const std::string_view line = Trim(lines.Line());
    if (line.starts_with('[')) break;
    AppendWithoutComments(line, insideBraces, text);
  }
  return text;
}

void AddWord(std::string_view word, CallList& calls) {
  const char first = ToUpper(word[0]);
  const char second = word.size() > 1 ? ToUpper(word[1]) : ' ';
  if (first == 'P') {
    calls.Add(Call::Pass());
  } else if (first == 'A') {
    for (int i = 0; i < kPassesOfAllPass && !calls.Full(); ++i) calls.Add(Call::Pass());
  } else if (first == 'X') {
    calls.Add(second == 'X' ? Call::Redouble() : Call::Double());
  } else if (const auto bid = Call::FromText(std::string{first, second}); bid && bid->IsBid()) {
    calls.Add(*bid);
  }
}

}  // namespace

void ReadAuction(PbnLines& lines, CallList& calls) {
  calls.Clear();
  const std::string section = CollectSection(lines);
  std::string_view rest = section;
  for (;;) {
    rest.remove_prefix(std::min(rest.find_first_not_of(kBetweenCalls), rest.size()));
    if (rest.empty()) return;
    const std::string_view word = rest.substr(0, rest.find_first_of(kBetweenCalls));
    AddWord(word, calls);
    rest.remove_prefix(word.size());
  }
}

}  // namespace tricklet
