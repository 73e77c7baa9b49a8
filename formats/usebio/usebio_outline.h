// What a results document holds, found in one walk through it.
#pragma once

#include <vector>

#include <pugixml.hpp>

#include "formats/usebio/usebio_line.h"

namespace tricklet {

/// A board's element with its own traveller lines, in the order of the file.
struct UsebioBoard {
  pugi::xml_node element;
  std::vector<TravellerLine> lines;
};

/// What may lie anywhere in a document.
struct UsebioOutline {
  std::vector<UsebioBoard> boards;
  /// Only the outermost lists: the pairs of nested lists would come more than once.
  std::vector<pugi::xml_node> participants;
  int sessions = 0;  ///< directly inside an event
  int sections = 0;
};

/// Goes through the document once: a club's evening has hundreds of lines of a dozen elements each,
/// and looking for each element by its name would go through all of them once per name. Throws
/// `UsebioRefusal` where it is deeper than `kMaxXmlDepth` or has more than `kMaxUsebioLines` lines.
UsebioOutline OutlineOf(pugi::xml_document& document);

}  // namespace tricklet
