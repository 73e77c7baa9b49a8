#include "formats/usebio/usebio_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include <pugixml.hpp>

#include "core/text.h"
#include "formats/results/pair_names.h"
#include "formats/usebio/usebio_event.h"
#include "formats/usebio/usebio_line.h"
#include "formats/usebio/usebio_outline.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

constexpr const char* kOneSession = "Only Single Session Imports supported";
constexpr const char* kOneSection = "Only Single Section Imports supported";

void Keep(std::vector<std::string>& lines, std::string line) {
  if (lines.size() == kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
  lines.push_back(std::move(line));
}

/// The count that the event, or its session, gives.
int CountOf(const pugi::xml_node& event, const char* name) {
  const std::string count = ChildText(event, name);
  return LeadingNumber(count.empty() ? ChildText(event.child("SESSION"), name) : count);
}

bool MoreThanOne(const pugi::xml_node& event, std::initializer_list<const char*> counts) {
  return std::any_of(counts.begin(), counts.end(),
                     [&event](const char* count) { return CountOf(event, count) > 1; });
}

/// Reads a document that has been parsed.
class UsebioReader {
 public:
  UsebioReader(const pugi::xml_document& document, const UsebioOutline& outline)
      : document_(document), outline_(outline) {}

  UsebioResults Read() {
    const pugi::xml_node event = EventOf(document_);
    RefuseSeveral(event);
    const EventWords words = FirstOf(WordsOf(event), WordsOf(event.child("SESSION")));
    const bool teams = std::string_view(event.attribute("EVENT_TYPE").value()) == "TEAMS";
    SetScoring(words, teams, results_.data);
    bool directions = false;
    for (const pugi::xml_node& list : outline_.participants) {
      const ParticipantList read = ReadParticipants(list, teams);
      AddParticipants(read, results_.data);
      directions = directions || read.directions;
    }
    const SessionPairs pairs{PairNames(results_.data.names),
                             IsOneWinner(words, results_.data, directions)};
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
  bool crossImps_ = false;  // a line gives some
};

}  // namespace

std::variant<UsebioResults, UsebioRefusal> ReadUsebio(std::string text) {
  pugi::xml_document document;
  if (!LoadUsebio(text, document)) return UsebioRefusal{kXmlLoadFailed};
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
      {kButlerImps, "BIMP"},
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
