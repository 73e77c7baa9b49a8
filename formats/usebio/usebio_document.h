// The walk through a parsed results file that finds all its sessions and sections.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <pugixml.hpp>

#include "formats/contents/contents.h"
#include "formats/usebio/line_index.h"
#include "formats/usebio/usebio_hands.h"
#include "formats/usebio/usebio_outline.h"
#include "formats/usebio/usebio_places.h"
#include "formats/usebio/usebio_section.h"

namespace tricklet {

class UsebioDocument {
 public:
  /// `text` is what `document` was parsed from, as it was; both must outlive this.
  UsebioDocument(pugi::xml_document& document, std::string_view text)
      : document_(document), lines_(text), unread_(lines_) {}

  /// Puts sections and unread parts into `contents`. Throws `UsebioRefusal` for a file that holds
  /// no results or goes beyond the limits. To be called once.
  void Read(FileContents& contents);

 private:
  /// A deal that the file gives in hands.
  struct GivenDeal {
    BoardLabel label;
    UsebioPlace place{};
    UsebioHands hands;
    int line = 0;
    bool played = false;
  };
  /// A board with traveller lines.
  struct PlayedBoard {
    const UsebioBoard* board;
    BoardLabel label;
    UsebioPlaces::Found found;
    std::size_t deal;  // its own, or `kNone`
  };

  void FindBoards();
  void FindSections();
  void ReadLists();
  UsebioSection MakeSection(const UsebioPlace& place);
  EventWords WordsAt(const UsebioPlace& place);
  void AddPlayed(const PlayedBoard& board);
  void AddUnplayed();
  void AddFileNote(FileContents& contents) const;
  std::size_t DealOf(const PlayedBoard& board) const;
  const UsebioMatch* MatchOf(const pugi::xml_node& match);
  std::set<std::size_t> ListsFor(const UsebioPlace& place) const;
  void RefuseTooManyPlayers() const;

  pugi::xml_document& document_;
  LineIndex lines_;
  UnreadParts unread_;
  pugi::xml_node event_;  // the first
  UsebioOutline outline_;
  UsebioPlaces places_;
  std::vector<GivenDeal> deals_;
  std::map<std::pair<UsebioPlace, BoardLabel>, std::vector<std::size_t>> dealsOf_;
  std::vector<PlayedBoard> played_;
  std::vector<ListedPlayers> lists_;
  std::map<UsebioPlace, std::vector<std::size_t>> listsAt_;
  std::unordered_map<const void*, EventWords> words_;
  std::unordered_map<const void*, UsebioMatch> matches_;
  std::map<UsebioPlace, std::size_t> sectionAt_;
  std::vector<UsebioPlace> sectionPlaces_;
  std::vector<UsebioSection> sections_;
};

}  // namespace tricklet
