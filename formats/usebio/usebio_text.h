// The texts of a results file's elements.
#pragma once

#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace tricklet {

/// Parses `text` (UTF-8) in its place; it must outlive `document`. False when it is no XML.
bool LoadUsebio(std::string& text, pugi::xml_document& document);

// All of these throw `UsebioRefusal` for a text that is longer than any in a results file, and give
// an empty text for an element that is not there.

/// All text of an element, without blanks at both ends. Nearly always that is one piece of the
/// document, which then is not copied and must outlive this.
class ElementText {
 public:
  explicit ElementText(const pugi::xml_node& element);
  ElementText(const ElementText&) = delete;
  ElementText& operator=(const ElementText&) = delete;
  ~ElementText() = default;
  std::string_view View() const { return view_; }

 private:
  std::string joined_;  // the pieces of a text that comments divide
  std::string_view view_;
};

std::string TextOf(const pugi::xml_node& element);
/// The text of the first child of this name.
std::string ChildText(const pugi::xml_node& element, const char* name);
/// The value of the attribute, else of the child element of that name.
std::string NamedText(const pugi::xml_node& element, const char* name);

/// The element is not there, or holds nothing.
bool IsEmpty(const pugi::xml_node& element);

}  // namespace tricklet
