#include "formats/usebio/usebio_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/text.h"
#include "formats/lin/lin_text.h"
#include "formats/results/lin_boards.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

/// The text is in shortest form already, as nearly every number of a results file is: digits and
/// perhaps a fraction, without superfluous zeros. Single precision keeps any six digits apart
/// (FLT_DIG), so no shorter text stands for the same number.
bool IsShortestNumber(std::string_view text) {
  constexpr auto kMostCharacters = std::size_t{std::numeric_limits<float>::digits10};
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const auto fraction = std::find_if_not(text.begin(), text.end(), isDigit);
  if (text.size() > kMostCharacters || fraction == text.begin()) return false;
  if (text.front() == '0' && fraction != text.begin() + 1) return false;
  if (fraction == text.end()) return true;
  return *fraction == '.' && isDigit(text.back()) && text.back() != '0' &&
         std::all_of(fraction + 1, text.end(), isDigit);
}

/// The number that the text begins with, 0 when it begins with none. Never minus zero.
float NumberOf(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  float value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  return read.ec != std::errc() || !std::isfinite(value) || value == 0 ? 0 : value;
}

/// Appends the number that the element begins with, in shortest form.
void AppendNumber(std::string& record, const pugi::xml_node& element) {
  const ElementText text(element);
  if (IsShortestNumber(text.View())) {
    record += text.View();
  } else {
    record += ShortestText(NumberOf(text.View()));
  }
}

/// Appends the element's text, with blanks for bars, which would end its field.
void AppendField(std::string& record, const pugi::xml_node& element) {
  const ElementText text(element);
  const std::size_t begin = record.size();
  record += text.View();
  std::replace(record.begin() + static_cast<std::ptrdiff_t>(begin), record.end(), '|', ' ');
}

/// Appends the cross-IMPs of North-South, or else those of East-West with the opposite sign. Butler
/// events give their IMPs under another name.
void AppendImps(std::string& record, const TravellerLine& line) {
  const pugi::xml_node& ns = line.At(TravellerLine::NsCrossImps);
  const pugi::xml_node& ew = line.At(TravellerLine::EwCrossImps);
  if (!ns && ew) {
    const float imps = NumberOf(ElementText(ew).View());
    record += ShortestText(imps == 0 ? 0 : -imps);
  } else {
    AppendNumber(record, ns ? ns : line.At(TravellerLine::NsButler));
  }
}

/// The first "pn" field of the record names somebody.
bool NamesPlayers(std::string_view record) {
  for (LinField field; NextLinField(record, field);) {
    if (field.tag == "pn") return field.value.find_first_not_of(" ,") != std::string_view::npos;
  }
  return false;
}

/// The players by the numbers of their pairs: "pn|South,West,North,East|". Empty when neither pair
/// is known.
std::string PlayersField(const TravellerLine& line, const SessionPairs& pairs) {
  const PerSide<std::string> numbers = PairNumbersOf(line, pairs.oneWinner);
  PairPlayers ns = pairs.names.PlayersOf(numbers[Side::NorthSouth], Side::NorthSouth);
  PairPlayers ew = pairs.names.PlayersOf(numbers[Side::EastWest], Side::EastWest);
  const std::array inOrder{&ns.second, &ew.second, &ns.first, &ew.first};
  std::string names;
  bool known = false;
  for (std::string* name : inOrder) {
    std::erase_if(*name, [](char c) { return c == ',' || c == '|'; });
    known = known || !name->empty();
    names += *name + (name == inOrder.back() ? "|" : ",");
  }
  return known ? "pn|" + names : "";
}

/// The LIN record of a traveller line, decoded. It ends in a bar, and the first board that it names
/// is the one whose line it is. Where it has no players they are those of the line's pairs.
std::string RecordOf(const TravellerLine& line, int boardNumber, const SessionPairs& pairs) {
  const ElementText data(line.At(TravellerLine::LinData));
  constexpr std::size_t kTags = 96;  // bytes that the scorer's own tags take
  std::string record = MendUtf8(ReadLinData(data.View(), kTags));
  if (!record.empty() && !record.ends_with('|')) record += '|';
  if (!NamesPlayers(record)) record += PlayersField(line, pairs);
  const int named = BoardNumberOfLin(record);
  if (named == 0 || named != boardNumber) {
    record.insert(0, "rh||ah|Board " + std::to_string(boardNumber) + "|");
  }
  return record;
}

}  // namespace

bool TravellerLine::Take(std::string_view name, pugi::xml_node child) {
  constexpr std::array<std::string_view, kElements> kNames{"LIN_DATA",
                                                           "TRICKS",
                                                           "SCORE",
                                                           "CONTRACT",
                                                           "PLAYED_BY",
                                                           "LEAD",
                                                           "NS_MATCH_POINTS",
                                                           "EW_MATCH_POINTS",
                                                           "NS_CROSS_IMP_POINTS",
                                                           "EW_CROSS_IMP_POINTS",
                                                           "NS_BUTLER_POINTS",
                                                           "NS_PAIR_NUMBER",
                                                           "EW_PAIR_NUMBER",
                                                           "DIRECTION",
                                                           "EW_BUTLER_POINTS",
                                                           "N_PLAYER_NUMBER",
                                                           "E_PLAYER_NUMBER",
                                                           "S_PLAYER_NUMBER",
                                                           "W_PLAYER_NUMBER",
                                                           "NOTES"};
  const auto* const known = std::find(kNames.begin(), kNames.end(), name);
  if (known == kNames.end()) return false;
  pugi::xml_node& element = elements_.at(static_cast<std::size_t>(known - kNames.begin()));
  if (!element) element = child;
  return true;
}

PerSide<std::string> PairNumbersOf(const TravellerLine& line, bool oneWinner) {
  PerSide<std::string> numbers{
      {TextOf(line.At(TravellerLine::NsPair)), TextOf(line.At(TravellerLine::EwPair))}};
  if (oneWinner && TextOf(line.At(TravellerLine::Direction)) == "EW") {
    std::swap(numbers[Side::NorthSouth], numbers[Side::EastWest]);
  }
  return numbers;
}

std::string NumberText(const pugi::xml_node& element) {
  std::string text;
  AppendNumber(text, element);
  return text;
}

std::string LinLine(const TravellerLine& line, int boardNumber, const SessionPairs& pairs) {
  using Line = TravellerLine;
  std::string text = RecordOf(line, boardNumber, pairs);
  // The bars between values and tags are doubled from the second value on: programs that read
  // "LIN.txt" expect them so.
  AppendField(text += "qent|", line.At(Line::Tricks));
  AppendField(text += "|qens|", line.At(Line::Score));
  AppendNumber(text += "||qenns|", line.At(Line::NsMatchPoints));
  AppendNumber(text += "||qenew|", line.At(Line::EwMatchPoints));
  AppendField(text += "||qenc|", line.At(Line::Contract));
  AppendField(text += "||qend|", line.At(Line::PlayedBy));
  AppendField(text += "||qenl|", line.At(Line::Lead));
  AppendImps(text += "||qeni|", line);
  text += '|';
  return text;
}

}  // namespace tricklet
