#include "formats/usebio_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

#include <pugixml.hpp>

#include "core/text.h"
#include "formats/lin_cards.h"
#include "formats/lin_text.h"
#include "formats/pair_names.h"

namespace tricklet {
namespace {

constexpr const char* kUnexpectedFormat = "Unexpected XML format";
constexpr const char* kOneSession = "Only Single Session Imports supported";
constexpr const char* kOneSection = "Only Single Section Imports supported";

/// Goes through a document once, which must not be too deep, and finds what may lie anywhere in it.
class Outline : public pugi::xml_tree_walker {
 public:
  bool for_each(pugi::xml_node& node) override {
    const std::string_view name = node.name();
    if (name == "BOARD") boards.push_back(node);
    if (name == "SECTION") ++sections;
    if (name == "SESSION" && std::string_view(node.parent().name()) == "EVENT") ++sessions;
    return depth() < kMaxXmlDepth;
  }

  std::vector<pugi::xml_node> boards;
  int sessions = 0;  ///< right inside an event
  int sections = 0;
};

/// `text` as a value to keep; longer ones are in no results file.
std::string Kept(std::string text) {
  const std::string_view value = TrimLines(text);
  if (value.size() > kMaxUsebioText) throw UsebioRefusal{kUnexpectedFormat};
  if (value.size() < text.size()) return std::string(value);
  return text;
}

/// All text of an element, which comments may divide: its first part is the element's own value.
std::string TextOf(const pugi::xml_node& element) {
  std::string text = element.value();
  for (auto part = element.first_child(); part; part = part.next_sibling()) {
    if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata) text += part.value();
  }
  return Kept(std::move(text));
}

bool IsEmpty(const pugi::xml_node& element) {
  return !element.first_child() && *element.value() == '\0';
}

std::string ChildText(const pugi::xml_node& element, const char* name) {
  return TextOf(element.child(name));
}

/// The value of the attribute, else of the child element of that name.
std::string NamedText(const pugi::xml_node& element, const char* name) {
  const pugi::xml_attribute attribute = element.attribute(name);
  return attribute ? Kept(attribute.value()) : ChildText(element, name);
}

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

/// Keeps a copy of its exact length: a line that was put together piece by piece may hold twice the
/// memory that it needs.
void Keep(std::vector<std::string>& lines, std::string_view line) {
  if (lines.size() == kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
  lines.emplace_back(line);
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

/// The bars between values and tags are doubled from the second value on: readers of this layout
/// have always met it so.
std::string LinLine(const TravellerLine& line, int boardNumber, const PairNames& pairs) {
  using Line = TravellerLine;
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

/// "3 NS Ann & Bob".
std::string NamesLine(const pugi::xml_node& pair) {
  std::string line = ChildText(pair, "PAIR_NUMBER") + " " + ChildText(pair, "DIRECTION");
  std::string_view joint = " ";
  for (const pugi::xml_node& player : pair.children("PLAYER")) {
    line += joint;
    line += PlayerName(ChildText(player, "PLAYER_NAME"));
    joint = " & ";
  }
  return line;
}

/// "1 Hearts".
std::string TeamLine(const pugi::xml_node& team) {
  return std::string(Trim(NamedText(team, "TEAM_ID") + " " + NamedText(team, "TEAM_NAME")));
}

/// The first of these elements of the event, or of its session, that holds a word.
std::string WordOf(const pugi::xml_node& event, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    for (const pugi::xml_node& parent : {event, event.child("SESSION")}) {
      std::string word = ChildText(parent, name);
      if (!word.empty()) return word;
    }
  }
  return {};
}

bool MoreThanOne(const pugi::xml_node& event, std::initializer_list<const char*> counts) {
  return std::any_of(counts.begin(), counts.end(), [&event](const char* count) {
    return LeadingNumber(WordOf(event, {count})) > 1;
  });
}

/// Reads a document that has been parsed.
class UsebioReader {
 public:
  UsebioReader(const pugi::xml_document& document, const Outline& outline)
      : document_(document), outline_(outline) {}

  UsebioResults Read() {
    const pugi::xml_node club = document_.select_node("//CLUB").node();
    const pugi::xml_node event = document_.select_node("//EVENT").node();
    if (IsEmpty(club) || IsEmpty(event)) throw UsebioRefusal{kUnexpectedFormat};
    RefuseSeveral(event);
    ReadScoring(event);
    // Only the outermost list: the pairs of lists in lists would come more than once.
    for (const auto& pair :
         document_.select_nodes("//PARTICIPANTS[not(ancestor::PARTICIPANTS)]//PAIR")) {
      Keep(results_.data.Names, NamesLine(pair.node()));
    }
    const PairNames pairs(results_.data.Names);
    for (const pugi::xml_node& board : outline_.boards) ReadBoard(board, pairs);
    return std::move(results_);
  }

 private:
  void RefuseSeveral(const pugi::xml_node& event) const {
    if (MoreThanOne(event, {"SESSION_CONT", "SESSION_COUNT"}) || outline_.sessions > 1) {
      throw UsebioRefusal{kOneSession};
    }
    if (MoreThanOne(event, {"SECTION_COUNT"}) || outline_.sections > 1) {
      throw UsebioRefusal{kOneSection};
    }
  }

  void ReadScoring(const pugi::xml_node& event) {
    LinFile& data = results_.data;
    const bool teams = std::string_view(event.attribute("EVENT_TYPE").value()) == "TEAMS";
    const std::string usual = teams ? "IMPS" : "MATCH_POINTS";
    // A team event's own word says how the match is scored, a pairs event's how the boards are.
    std::string word = WordOf(event, {"BOARD_SCORING_METHOD", "PAIRWISE_SCORING_METHOD"});
    const std::string general = WordOf(event, {"SCORING_METHOD"});
    if (word.empty() && !teams) word = general;
    data.BoardScoringMethod = word.empty() ? usual : word;
    data.BoardScoringAbb = GetAbbreviations(data.BoardScoringMethod);
    if (!teams) return;
    data.TeamEvent.emplace();
    data.TeamEvent->TeamScoringMethod = general.empty() ? usual : general;
    data.TeamEvent->TeamScoringAbb = GetAbbreviations(data.TeamEvent->TeamScoringMethod);
    for (const auto& team :
         document_.select_nodes("//PARTICIPANTS[not(ancestor::PARTICIPANTS)]//TEAM")) {
      Keep(data.TeamEvent->Teams, TeamLine(team.node()));
    }
  }

  void ReadBoard(const pugi::xml_node& board, const PairNames& pairs) {
    const std::string text = ChildText(board, "BOARD_NUMBER");
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) {
      throw UsebioRefusal{kUnexpectedFormat};
    }
    results_.firstBoard = any_ ? std::min(results_.firstBoard, number) : number;
    results_.lastBoard = any_ ? std::max(results_.lastBoard, number) : number;
    any_ = true;
    for (const pugi::xml_node& line : board.children("TRAVELLER_LINE")) {
      Keep(results_.data.Lin, LinLine(TravellerLine(line), number, pairs));
    }
  }

  const pugi::xml_document& document_;
  const Outline& outline_;
  UsebioResults results_;
  bool any_ = false;
};

}  // namespace

std::variant<UsebioResults, UsebioRefusal> ReadUsebio(std::string text) {
  // Text as the value of its element: half the nodes of a file whose elements hold one text each.
  constexpr unsigned kParsing = pugi::parse_default | pugi::parse_embed_pcdata;
  pugi::xml_document document;
  if (!document.load_buffer_inplace(text.data(), text.size(), kParsing, pugi::encoding_utf8)) {
    return UsebioRefusal{kXmlLoadFailed};
  }
  Outline outline;
  if (!document.traverse(outline)) return UsebioRefusal{kXmlLoadFailed};
  try {
    return UsebioReader(document, outline).Read();
  } catch (const UsebioRefusal& refusal) {
    return refusal;
  }
}

std::string GetAbbreviations(std::string_view scoring) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kWords{{
      {"MATCH_POINTS", "MP"},
      {"IMPS", "IMP"},
      {"CROSS_IMPS", "XIMP"},
      {"BUTLER_IMPS", "BIMP"},
  }};
  const auto* const word = std::find_if(kWords.begin(), kWords.end(), [scoring](const auto& entry) {
    return entry.first == scoring;
  });
  return std::string(word == kWords.end() ? scoring : word->second);
}

std::string GetInitials(std::string_view name) {
  std::string initials;
  while (!(name = Trim(name)).empty()) {
    // A letter is its first byte and the continuation bytes behind it.
    const auto isLead = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    const auto* const next = std::find_if(name.begin() + 1, name.end(), isLead);
    initials.append(name.begin(), next);
    name.remove_prefix(std::min(name.find(' '), name.size()));
  }
  return initials;
}

}  // namespace tricklet
