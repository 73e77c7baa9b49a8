#include "formats/usebio_outline.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "formats/usebio_reader.h"

namespace tricklet {
namespace {

class Walk {
 public:
  UsebioOutline Through(const pugi::xml_document& document) {
    VisitChildren(document, {});
    return std::move(outline_);
  }

 private:
  enum class Kind : std::uint8_t { Other, Event, Board, Line };
  /// The element whose children are visited.
  struct Parent {
    Kind kind = Kind::Other;
    int level = 0;          // of its children
    std::size_t board = 0;  // its index, for `Board` and `Line`
    bool isListed = false;  // among the participants
  };

  // No deeper than `kMaxXmlDepth`.
  void VisitChildren(const pugi::xml_node& element, const Parent& parent) {
    for (auto child = element.first_child(); child; child = child.next_sibling()) {
      if (parent.level == kMaxXmlDepth) throw UsebioRefusal{kXmlLoadFailed};
      const Parent inside = Visit(child, parent);
      if (child.first_child()) VisitChildren(child, inside);
    }
  }

  /// Notes the child; what it is to its own children.
  Parent Visit(const pugi::xml_node& child, const Parent& parent) {
    const std::string_view name = child.name();
    Parent inside{Kind::Other, parent.level + 1, parent.board, parent.isListed};
    if (parent.kind == Kind::Line && LastLine(parent.board).Take(name, child)) return inside;
    if (name == "TRAVELLER_LINE" && parent.kind == Kind::Board) {
      AddLine(parent.board);
      inside.kind = Kind::Line;
    } else if (name == "BOARD") {
      inside.kind = Kind::Board;
      inside.board = outline_.boards.size();
      outline_.boards.push_back({child, {}});
    } else if (name == "PARTICIPANTS") {
      if (!parent.isListed) outline_.participants.push_back(child);
      inside.isListed = true;
    } else if (name == "EVENT") {
      inside.kind = Kind::Event;
    } else if (name == "SESSION" && parent.kind == Kind::Event) {
      ++outline_.sessions;
    } else if (name == "SECTION") {
      ++outline_.sections;
    }
    return inside;
  }

  void AddLine(std::size_t board) {
    if (++lines_ > kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
    outline_.boards[board].lines.emplace_back();
  }

  TravellerLine& LastLine(std::size_t board) { return outline_.boards[board].lines.back(); }

  UsebioOutline outline_;
  std::size_t lines_ = 0;
};

}  // namespace

UsebioOutline OutlineOf(const pugi::xml_document& document) {
  return Walk().Through(document);
}

}  // namespace tricklet
