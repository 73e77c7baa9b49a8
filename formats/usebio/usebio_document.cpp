#include "formats/usebio/usebio_document.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>

#include "core/text.h"
#include "formats/usebio/usebio_event.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
constexpr std::size_t kLongestLabel = 40;

/// The label of a board: it begins with a number, or is not there. Nothing for anything else.
std::optional<BoardLabel> LabelOf(const pugi::xml_node& board) {
  constexpr std::size_t kMostDigits = 9;
  const ElementText text(board.child("BOARD_NUMBER"));
  const std::string_view label = text.View();
  if (label.empty()) return BoardLabel{};
  const auto end = std::min(label.find_first_not_of("0123456789"), label.size());
  if (end == 0 || end > kMostDigits || label.size() > kLongestLabel) return std::nullopt;
  const int number = NumberFromText(label.substr(0, end)).value_or(0);
  // "07" is board 7.
  return BoardLabel{end == label.size() ? std::to_string(number) : Showable(label), number};
}

/// The kind of event in upper case: "MP_PAIRS".
std::string TypeOf(const pugi::xml_node& event) {
  return ToUpper(std::string_view(event.attribute("EVENT_TYPE").value()));
}

bool IsOf(std::string_view type, std::string_view word) {
  return type.find(word) != std::string_view::npos;
}

/// What a list takes in memory, in bytes, for each section that it serves.
std::size_t SizeOf(const ListedPlayers& listed) {
  constexpr std::size_t kEach = 64;  // what a text takes beside its bytes
  const std::size_t texts = listed.list.names.size() + listed.list.teams.size() +
                            listed.individuals.size() + listed.ofTeams.size();
  std::size_t size = kEach + kEach * texts;
  for (const std::string& name : listed.list.names) size += name.size();
  return size;
}

/// The scoring word where the event has only its type.
void AddUsualWord(std::string_view type, EventWords& words) {
  if (!words.boardScoring.empty() || !words.pairwiseScoring.empty() || !words.scoring.empty()) {
    return;
  }
  if (IsOf(type, "BUTLER")) words.boardScoring = kButlerImps;
  if (IsOf(type, "CROSS_IMP")) words.boardScoring = kCrossImps;
}

}  // namespace

void UsebioDocument::Read(FileContents& contents) {
  event_ = EventOf(document_);
  outline_ = OutlineOf(document_);
  if (outline_.boards.size() > kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
  FindBoards();
  ReadLists();
  FindSections();
  for (const PlayedBoard& board : played_) AddPlayed(board);
  AddUnplayed();
  const std::vector<std::string> names = places_.NamesOf(sectionPlaces_);
  for (std::size_t at = 0; at < sections_.size(); ++at) {
    FoundSection found = sections_[at].Found(names[at], unread_);
    if (!found.games.empty()) contents.sections.push_back(std::move(found));
  }
  AddFileNote(contents);
  std::vector<UnreadPart>& unread = unread_.All();
  std::stable_sort(unread.begin(), unread.end(),
                   [](const UnreadPart& a, const UnreadPart& b) { return a.line < b.line; });
  contents.unread = std::move(unread);
}

void UsebioDocument::FindBoards() {
  for (const UsebioBoard& board : outline_.boards) {
    const auto label = LabelOf(board.element);
    if (!label) {
      const std::string text = TextOf(board.element.child("BOARD_NUMBER"));
      unread_.Add(board.element, "", Showable(text), "no board number");
      continue;
    }
    const UsebioPlaces::Found found = places_.Of(board.element);
    UsebioHands hands = ReadUsebioHands(board.element);
    std::size_t deal = kNone;
    if (!hands.fault.empty()) {
      unread_.Add(board.element, label->text, hands.text, hands.fault);
    } else if (hands.given) {
      deal = deals_.size();
      deals_.push_back({*label, found.place, hands, unread_.LineOf(board.element), false});
      dealsOf_[{found.place, *label}].push_back(deal);
    }
    if (!board.lines.empty()) played_.push_back({&board, *label, found, deal});
  }
}

void UsebioDocument::ReadLists() {
  const bool teams = IsOf(TypeOf(event_), "TEAM");
  for (const pugi::xml_node& list : outline_.participants) {
    listsAt_[places_.Of(list).place].push_back(lists_.size());
    lists_.push_back(ReadListedPlayers(list, teams));
  }
}

/// One for each place that has results, and for each that has deals which lie around none of those.
void UsebioDocument::FindSections() {
  std::set<UsebioPlace> served;
  const auto find = [&](const UsebioPlace& place) {
    const auto around = PlacesAround(place);
    served.insert(around.begin(), around.end());
    if (sectionAt_.try_emplace(place, sectionPlaces_.size()).second)
      sectionPlaces_.push_back(place);
  };
  for (const PlayedBoard& board : played_) find(board.found.place);
  for (const GivenDeal& deal : deals_) {
    if (!served.contains(deal.place)) find(deal.place);
  }
  RefuseTooManyPlayers();
  sections_.reserve(sectionPlaces_.size());
  for (const UsebioPlace& place : sectionPlaces_) sections_.push_back(MakeSection(place));
}

/// Lists that serve many sections must not fill the memory.
void UsebioDocument::RefuseTooManyPlayers() const {
  std::vector<std::size_t> sizes;
  sizes.reserve(lists_.size());
  for (const ListedPlayers& listed : lists_) sizes.push_back(SizeOf(listed));
  std::size_t all = 0;
  for (const UsebioPlace& place : sectionPlaces_) {
    for (const std::size_t at : ListsFor(place)) all += sizes[at];
    if (all > kMaxXmlBytes) throw UsebioRefusal{kUnexpectedFormat};
  }
}

UsebioSection UsebioDocument::MakeSection(const UsebioPlace& place) {
  const pugi::xml_node own = places_.ElementsOf(place).front();
  const std::string type = TypeOf(own ? own : event_);
  EventWords words = WordsAt(place);
  AddUsualWord(type, words);
  std::vector<const ListedPlayers*> lists;
  for (const std::size_t at : ListsFor(place)) lists.push_back(&lists_[at]);
  LinFile results;
  SetScoring(words, IsOf(type, "TEAM"), results);
  bool directions = false;
  for (const ListedPlayers* listed : lists) {
    AddParticipants(listed->list, results);
    directions = directions || listed->list.directions;
  }
  SessionPairs pairs{PairNames(results.names), IsOneWinner(words, results, directions)};
  return {std::move(results), UsebioPlayers(std::move(pairs), lists)};
}

/// The words of the section, then those of its session and its event.
EventWords UsebioDocument::WordsAt(const UsebioPlace& place) {
  EventWords words;
  // As the import has it, which knows but one session: wherever that stands.
  if (sectionPlaces_.size() == 1)
    words = FirstOf(WordsOf(event_), WordsOf(event_.child("SESSION")));
  const auto elements = places_.ElementsOf(place);
  for (std::size_t level = elements.size(); level > 0; --level) {
    pugi::xml_node element = elements.at(level - 1);
    if (!element && level == 1) element = event_;
    if (!element) continue;
    const auto [known, isNew] = words_.try_emplace(element.internal_object());
    if (isNew) known->second = WordsOf(element);
    words = FirstOf(std::move(words), known->second);
  }
  return words;
}

/// Those of the place and of all that it lies in; for a single section those of the whole file.
std::set<std::size_t> UsebioDocument::ListsFor(const UsebioPlace& place) const {
  std::set<std::size_t> inOrder;
  for (const UsebioPlace& around : PlacesAround(place)) {
    const auto found = listsAt_.find(around);
    if (found != listsAt_.end()) inOrder.insert(found->second.begin(), found->second.end());
  }
  for (std::size_t at = 0; sectionPlaces_.size() == 1 && at < lists_.size(); ++at) {
    inOrder.insert(at);
  }
  return inOrder;
}

/// The board's own deal, else the one that is given for the board in the smallest place around it.
std::size_t UsebioDocument::DealOf(const PlayedBoard& board) const {
  if (board.deal != kNone || board.label.text.empty()) return board.deal;
  for (const UsebioPlace& around : PlacesAround(board.found.place)) {
    const auto found = dealsOf_.find({around, board.label});
    if (found != dealsOf_.end()) return found->second.front();
  }
  return kNone;
}

const UsebioMatch* UsebioDocument::MatchOf(const pugi::xml_node& match) {
  if (!match) return nullptr;
  const auto [known, isNew] = matches_.try_emplace(match.internal_object());
  if (isNew) {
    known->second = {TextOf(match.child("TEAM")), TextOf(match.child("OPPOSING_TEAM"))};
  }
  return &known->second;
}

void UsebioDocument::AddPlayed(const PlayedBoard& board) {
  UsebioSection& section = sections_[sectionAt_.at(board.found.place)];
  const int line = unread_.LineOf(board.board->element);
  const std::size_t game = section.Games().Open(board.label, line);
  const HandTable* hands = nullptr;
  if (const std::size_t at = DealOf(board); at != kNone) {
    GivenDeal& deal = deals_[at];
    deal.played = true;
    if (section.Games().AddDeal(game, deal.hands)) hands = &deal.hands.hands;
  }
  section.AddTables(*board.board, game, board.label, hands, MatchOf(board.found.match), unread_);
}

/// Deals that nobody played go to every section that they are given for.
void UsebioDocument::AddUnplayed() {
  std::map<UsebioPlace, std::vector<const GivenDeal*>> unplayed;
  for (const GivenDeal& deal : deals_) {
    if (!deal.played) unplayed[deal.place].push_back(&deal);
  }
  std::vector<std::pair<std::size_t, const GivenDeal*>> missing;  // in which section
  for (std::size_t at = 0; at < sections_.size(); ++at) {
    const auto around = PlacesAround(sectionPlaces_[at]);
    for (const UsebioPlace& place : std::set<UsebioPlace>(around.begin(), around.end())) {
      const auto found = unplayed.find(place);
      if (found == unplayed.end()) continue;
      for (const GivenDeal* deal : found->second) missing.emplace_back(at, deal);
      if (missing.size() > kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
    }
  }
  for (const auto& [at, deal] : missing) {
    UsebioGames& games = sections_[at].Games();
    games.AddDeal(games.Open(deal->label, deal->line), deal->hands);
  }
}

/// A note on the whole file is one on its first game.
void UsebioDocument::AddFileNote(FileContents& contents) const {
  const std::string note = ShowableLines(ChildText(document_.child("USEBIO"), "NOTES"));
  if (note.empty() || contents.sections.empty()) return;
  std::string& notes = contents.sections.front().games.front().notes;
  notes = note + (notes.empty() ? "" : "\n") + notes;
}

}  // namespace tricklet
