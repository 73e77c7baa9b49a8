#include "formats/usebio/usebio_outline.h"

#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>

#include "formats/usebio/usebio_limits.h"

namespace tricklet {
namespace {

class Walker : public pugi::xml_tree_walker {
 public:
  bool for_each(pugi::xml_node& node) override {
    const int level = depth();
    if (level >= kMaxXmlDepth) throw UsebioRefusal{kXmlLoadFailed};
    Leave(level);
    const std::string_view name = node.name();
    if (level != line_ + 1 || !LastLine().Take(name, node)) Enter(node, name, level);
    return true;
  }

  UsebioOutline outline;

 private:
  static constexpr int kNowhere = std::numeric_limits<int>::max() - 1;
  struct OpenBoard {
    std::size_t index;
    int level;
  };

  /// An element on this level ends all those that began there or deeper.
  void Leave(int level) {
    if (level <= line_) line_ = kNowhere;
    if (level <= list_) list_ = kNowhere;
    while (!open_.empty() && level <= open_.back().level) open_.pop_back();
  }

  void Enter(const pugi::xml_node& node, std::string_view name, int level) {
    if (name == "TRAVELLER_LINE") {
      if (!open_.empty() && level == open_.back().level + 1) AddLine(level);
    } else if (name == "BOARD") {
      open_.push_back({outline.boards.size(), level});
      outline.boards.push_back({node, {}});
    } else if (name == "PARTICIPANTS" && list_ == kNowhere) {
      list_ = level;
      outline.participants.push_back(node);
    } else if (name == "SECTION") {
      ++outline.sections;
    } else if (name == "SESSION" && std::string_view(node.parent().name()) == "EVENT") {
      ++outline.sessions;
    }
  }

  void AddLine(int level) {
    if (++lines_ > kMaxUsebioLines) throw UsebioRefusal{kUnexpectedFormat};
    outline.boards[open_.back().index].lines.emplace_back();
    line_ = level;
  }
  TravellerLine& LastLine() { return outline.boards[open_.back().index].lines.back(); }

  std::vector<OpenBoard> open_;  // the boards that the walk is in, the innermost last
  // The levels of the line and of the list of participants that the walk is in.
  int line_ = kNowhere;
  int list_ = kNowhere;
  std::size_t lines_ = 0;
};

}  // namespace

UsebioOutline OutlineOf(pugi::xml_document& document) {
  Walker walker;
  document.traverse(walker);
  return std::move(walker.outline);
}

}  // namespace tricklet
