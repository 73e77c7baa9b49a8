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

/// Measures how deep the elements lie in one another.
class DepthGauge : public pugi::xml_tree_walker {
 public:
  bool for_each(pugi::xml_node& /*node*/) override { return depth() < kMaxXmlDepth; }
};

/// `text` as a value to keep; longer ones are in no results file.
std::string Kept(std::string_view text) {
  const std::string_view value = TrimLines(text);
  if (value.size() > kMaxUsebioText) throw UsebioRefusal{kUnexpectedFormat};
  return std::string(value);
}

/// All text of an element; comments may divide it.
std::string TextOf(const pugi::xml_node& element) {
  std::string text;
  for (const pugi::xml_node& part : element.children()) {
    if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata) text += part.value();
  }
  return Kept(text);
}

std::string ChildText(const pugi::xml_node& element, const char* name) {
  return TextOf(element.child(name));
}

/// The value of the attribute, else of the child element of that name.
std::string NamedText(const pugi::xml_node& element, const char* name) {
  const pugi::xml_attribute attribute = element.attribute(name);
  return attribute ? Kept(attribute.value()) : ChildText(element, name);
}

/// The number that `text` begins with, 0 when it begins with none, in shortest form.
std::string SingleNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  float value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc() || !std::isfinite(value) || value == 0) value = 0;
  return ShortestText(value);
}

void Keep(std::vector<std::string>& lines, std::string line) {
  if (lines.size() == kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
  lines.push_back(std::move(line));
}

/// A text for a private tag; a bar would end its field.
std::string FieldText(const pugi::xml_node& line, const char* name) {
  std::string text = ChildText(line, name);
  std::replace(text.begin(), text.end(), '|', ' ');
  return text;
}

std::string NumberField(const pugi::xml_node& line, const char* name) {
  return SingleNumber(ChildText(line, name));
}

/// Cross-IMPs of North-South; Butler events give theirs under another name.
std::string ImpField(const pugi::xml_node& line) {
  const bool cross = line.child("NS_CROSS_IMP_POINTS");
  return NumberField(line, cross ? "NS_CROSS_IMP_POINTS" : "NS_BUTLER_POINTS");
}

/// The LIN record of a traveller line, decoded. It ends in a bar and names its board.
std::string RecordOf(const pugi::xml_node& line, int boardNumber) {
  std::string record = MendUtf8(ReadLinData(ChildText(line, "LIN_DATA")));
  if (!record.empty() && !record.ends_with('|')) record += '|';
  if (BoardNumberOfLin(record) == 0) {
    record.insert(0, "rh||ah|Board " + std::to_string(boardNumber) + "|");
  }
  return record;
}

/// The bars between values and tags are doubled from the second value on: readers of this layout
/// have always met it so.
std::string LinLine(const pugi::xml_node& line, int boardNumber) {
  return RecordOf(line, boardNumber) + "qent|" + FieldText(line, "TRICKS") + "|qens|" +
         FieldText(line, "SCORE") + "||qenns|" + NumberField(line, "NS_MATCH_POINTS") + "||qenew|" +
         NumberField(line, "EW_MATCH_POINTS") + "||qenc|" + FieldText(line, "CONTRACT") +
         "||qend|" + FieldText(line, "PLAYED_BY") + "||qenl|" + FieldText(line, "LEAD") +
         "||qeni|" + ImpField(line) + "|";
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
  explicit UsebioReader(const pugi::xml_document& document) : document_(document) {}

  UsebioResults Read() {
    const pugi::xml_node club = document_.select_node("//CLUB").node();
    const pugi::xml_node event = document_.select_node("//EVENT").node();
    if (!club.first_child() || !event.first_child()) throw UsebioRefusal{kUnexpectedFormat};
    RefuseSeveral(event);
    ReadScoring(event);
    // Only the outermost list: the pairs of lists in lists would come more than once.
    for (const auto& pair :
         document_.select_nodes("//PARTICIPANTS[not(ancestor::PARTICIPANTS)]//PAIR")) {
      Keep(results_.data.Names, NamesLine(pair.node()));
    }
    for (const auto& board : document_.select_nodes("//BOARD")) ReadBoard(board.node());
    return std::move(results_);
  }

 private:
  void RefuseSeveral(const pugi::xml_node& event) const {
    if (MoreThanOne(event, {"SESSION_CONT", "SESSION_COUNT"}) ||
        document_.select_nodes("//EVENT/SESSION").size() > 1) {
      throw UsebioRefusal{kOneSession};
    }
    if (MoreThanOne(event, {"SECTION_COUNT"}) || document_.select_nodes("//SECTION").size() > 1) {
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

  void ReadBoard(const pugi::xml_node& board) {
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
      Keep(results_.data.Lin, LinLine(line, number));
    }
  }

  const pugi::xml_document& document_;
  UsebioResults results_;
  bool any_ = false;
};

}  // namespace

std::variant<UsebioResults, UsebioRefusal> ReadUsebio(std::string text) {
  pugi::xml_document document;
  if (!document.load_buffer_inplace(text.data(), text.size(), pugi::parse_default,
                                    pugi::encoding_utf8)) {
    return UsebioRefusal{kXmlLoadFailed};
  }
  DepthGauge gauge;
  if (!document.traverse(gauge)) return UsebioRefusal{kXmlLoadFailed};
  try {
    return UsebioReader(document).Read();
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
