#include "formats/usebio_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

#include "core/text.h"
#include "formats/lin_cards.h"
#include "formats/lin_text.h"
#include "formats/usebio_text.h"

namespace tricklet {
namespace {

/// Nearly every number of a results file: digits and perhaps a fraction, without zeros that could
/// go. Single precision keeps any six digits apart (FLT_DIG), so none is shorter.
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

/// The number that `text` begins with, 0 when it begins with none, in shortest form.
std::string SingleNumber(std::string_view text) {
  if (IsShortestNumber(text)) return std::string(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  float value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc() || !std::isfinite(value) || value == 0) value = 0;
  return ShortestText(value);
}

/// What is read of a traveller line. One pass finds all of it: a club's evening has hundreds of
/// these lines, and looking for each element by its name would go through a line once per name.
class TravellerLine {
 public:
  enum Element {
    LinData,
    Tricks,
    Score,
    Contract,
    PlayedBy,
    Lead,
    NsMatchPoints,
    EwMatchPoints,
    NsCrossImps,
    NsButler,
    NsPair,
    EwPair,
  };

  explicit TravellerLine(const pugi::xml_node& line) {
    for (auto child = line.first_child(); child; child = child.next_sibling()) {
      const auto* const name = std::find(kNames.begin(), kNames.end(), child.name());
      if (name == kNames.end()) continue;
      pugi::xml_node& element = elements_.at(static_cast<std::size_t>(name - kNames.begin()));
      if (!element) element = child;
    }
  }

  bool Has(Element element) const { return !elements_.at(element).empty(); }
  std::string Text(Element element) const { return TextOf(elements_.at(element)); }
  /// A text for a private tag; a bar would end its field.
  std::string Field(Element element) const {
    std::string text = Text(element);
    std::replace(text.begin(), text.end(), '|', ' ');
    return text;
  }
  std::string Number(Element element) const { return SingleNumber(Text(element)); }

 private:
  static constexpr std::array<std::string_view, EwPair + 1> kNames{
      "LIN_DATA",         "TRICKS",          "SCORE",
      "CONTRACT",         "PLAYED_BY",       "LEAD",
      "NS_MATCH_POINTS",  "EW_MATCH_POINTS", "NS_CROSS_IMP_POINTS",
      "NS_BUTLER_POINTS", "NS_PAIR_NUMBER",  "EW_PAIR_NUMBER"};
  std::array<pugi::xml_node, kNames.size()> elements_;
};

/// Cross-IMPs of North-South; Butler events give theirs under another name.
std::string Imps(const TravellerLine& line) {
  return line.Number(line.Has(TravellerLine::NsCrossImps) ? TravellerLine::NsCrossImps
                                                          : TravellerLine::NsButler);
}

/// A "pn" field of the record names somebody.
bool NamesPlayers(std::string_view record) {
  for (LinField field; NextLinField(record, field);) {
    if (field.tag == "pn") return field.value.find_first_not_of(" ,") != std::string_view::npos;
  }
  return false;
}

/// The players by the numbers of their pairs: "pn|South,West,North,East|". Empty when neither pair
/// is known.
std::string PlayersField(const TravellerLine& line, const PairNames& pairs) {
  PairPlayers ns = pairs.PlayersOf(line.Text(TravellerLine::NsPair), Side::NorthSouth);
  PairPlayers ew = pairs.PlayersOf(line.Text(TravellerLine::EwPair), Side::EastWest);
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
std::string RecordOf(const TravellerLine& line, int boardNumber, const PairNames& pairs) {
  std::string record = MendUtf8(ReadLinData(line.Text(TravellerLine::LinData)));
  if (!record.empty() && !record.ends_with('|')) record += '|';
  if (!NamesPlayers(record)) record += PlayersField(line, pairs);
  const int named = BoardNumberOfLin(record);
  if (named == 0 || named != boardNumber) {
    record.insert(0, "rh||ah|Board " + std::to_string(boardNumber) + "|");
  }
  return record;
}

}  // namespace

std::string LinLine(const pugi::xml_node& travellerLine, int boardNumber, const PairNames& pairs) {
  using Line = TravellerLine;
  const Line line(travellerLine);
  // The bars between values and tags are doubled from the second value on: readers of this layout
  // have always met it so.
  std::string text = RecordOf(line, boardNumber, pairs);
  text.append("qent|").append(line.Field(Line::Tricks));
  text.append("|qens|").append(line.Field(Line::Score));
  text.append("||qenns|").append(line.Number(Line::NsMatchPoints));
  text.append("||qenew|").append(line.Number(Line::EwMatchPoints));
  text.append("||qenc|").append(line.Field(Line::Contract));
  text.append("||qend|").append(line.Field(Line::PlayedBy));
  text.append("||qenl|").append(line.Field(Line::Lead));
  text.append("||qeni|").append(Imps(line));
  return text + "|";
}

}  // namespace tricklet
