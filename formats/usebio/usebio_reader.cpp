#include "formats/usebio/usebio_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include <pugixml.hpp>

#include "core/text.h"
#include "formats/results/pair_names.h"
#include "formats/usebio/usebio_line.h"
#include "formats/usebio/usebio_outline.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

constexpr const char* kOneSession = "Only Single Session Imports supported";
constexpr const char* kOneSection = "Only Single Section Imports supported";

// Scoring words.
constexpr const char* kMatchPoints = "MATCH_POINTS";
constexpr const char* kImps = "IMPS";
constexpr const char* kCrossImps = "CROSS_IMPS";

void Keep(std::vector<std::string>& lines, std::string line) {
  if (lines.size() == kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
  lines.push_back(std::move(line));
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
  UsebioReader(const pugi::xml_document& document, const UsebioOutline& outline)
      : document_(document), outline_(outline) {}

  UsebioResults Read() {
    const pugi::xml_node club = document_.select_node("//CLUB").node();
    const pugi::xml_node event = document_.select_node("//EVENT").node();
    if (IsEmpty(club) || IsEmpty(event)) throw UsebioRefusal{kUnexpectedFormat};
    RefuseSeveral(event);
    ReadScoring(event);
    for (const pugi::xml_node& list : outline_.participants) {
      for (const auto& pair : list.select_nodes(".//PAIR")) {
        Keep(results_.data.names, NamesLine(pair.node()));
        directions_ = directions_ || !ChildText(pair.node(), "DIRECTION").empty();
      }
    }
    const SessionPairs pairs{PairNames(results_.data.names), IsOneWinner(event)};
    for (const UsebioBoard& board : outline_.boards) ReadBoard(board, pairs);
    // The word "IMPS" does not tell which kind of IMPs.
    if (crossImps_ && results_.data.boardScoringAbb == GetAbbreviations(kImps)) {
      results_.data.boardScoringAbb = GetAbbreviations(kCrossImps);
    }
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
    const std::string usual = teams ? kImps : kMatchPoints;
    // The general word says how the match is scored in a team event, and how the boards are in a
    // pairs event.
    std::string word = WordOf(event, {"BOARD_SCORING_METHOD", "PAIRWISE_SCORING_METHOD"});
    const std::string general = WordOf(event, {"SCORING_METHOD"});
    if (word.empty() && !teams) word = general;
    data.boardScoringMethod = word.empty() ? usual : word;
    data.boardScoringAbb = GetAbbreviations(data.boardScoringMethod);
    if (!teams) return;
    data.teamEvent.emplace();
    data.teamEvent->teamScoringMethod = general.empty() ? usual : general;
    data.teamEvent->teamScoringAbb = GetAbbreviations(data.teamEvent->teamScoringMethod);
    for (const pugi::xml_node& list : outline_.participants) {
      for (const auto& team : list.select_nodes(".//TEAM")) {
        Keep(data.teamEvent->teams, TeamLine(team.node()));
      }
    }
  }

  /// As the event says; if it does not, pairs have one winner when no pair of the list has a
  /// direction.
  bool IsOneWinner(const pugi::xml_node& event) const {
    const std::string winners = WordOf(event, {"WINNER_TYPE"});
    if (!winners.empty()) return LeadingNumber(winners) == 1;
    return !results_.data.teamEvent && !directions_;
  }

  void ReadBoard(const UsebioBoard& board, const SessionPairs& pairs) {
    const auto read = NumberFromText(ChildText(board.element, "BOARD_NUMBER"));
    if (!read) throw UsebioRefusal{kUnexpectedFormat};
    const int number = *read;
    results_.firstBoard = any_ ? std::min(results_.firstBoard, number) : number;
    results_.lastBoard = any_ ? std::max(results_.lastBoard, number) : number;
    any_ = true;
    if (!IsStorable(number) && !board.lines.empty()) {
      results_.leftOut.unstorable.push_back(number);
    }
    for (const TravellerLine& line : board.lines) {
      Keep(results_.data.lin, LineOf(line, number, pairs));
      crossImps_ = crossImps_ || line.HasCrossImps();
    }
  }

  /// A record that cannot be decoded is left out; the line then has the rest of what is known of
  /// the table.
  std::string LineOf(const TravellerLine& line, int number, const SessionPairs& pairs) {
    try {
      return LinLine(line, number, pairs);
    } catch (const Fault& fault) {
      results_.leftOut.broken.push_back(number);
      if (!results_.broken) results_.broken = fault;
      TravellerLine bare = line;
      bare.ForgetLinData();
      return LinLine(bare, number, pairs);
    }
  }

  const pugi::xml_document& document_;
  const UsebioOutline& outline_;
  UsebioResults results_;
  bool any_ = false;
  bool directions_ = false;  // a pair of the list has one
  bool crossImps_ = false;   // a line gives some
};

}  // namespace

std::variant<UsebioResults, UsebioRefusal> ReadUsebio(std::string text) {
  // An element's text becomes its value instead of a node of its own, which halves the nodes of a
  // file whose elements hold one text each.
  constexpr unsigned kParsing = pugi::parse_default | pugi::parse_embed_pcdata;
  pugi::xml_document document;
  if (!document.load_buffer_inplace(text.data(), text.size(), kParsing, pugi::encoding_utf8)) {
    return UsebioRefusal{kXmlLoadFailed};
  }
  try {
    const UsebioOutline outline = OutlineOf(document);
    return UsebioReader(document, outline).Read();
  } catch (const UsebioRefusal& refusal) {
    return refusal;
  }
}

std::string GetAbbreviations(std::string_view scoring) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kWords{{
      {kMatchPoints, "MP"},
      {kImps, "IMP"},
      {kCrossImps, "XIMP"},
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
    // A letter is its first byte and the continuation bytes after it.
    const auto isLead = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    const auto* const next = std::find_if(name.begin() + 1, name.end(), isLead);
    initials.append(name.begin(), next);
    name.remove_prefix(std::min(name.find(' '), name.size()));
  }
  return initials;
}

}  // namespace tricklet
