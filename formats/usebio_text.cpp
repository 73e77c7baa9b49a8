#include "formats/usebio_text.h"

#include <utility>

#include "core/text.h"
#include "formats/usebio_reader.h"

namespace tricklet {
namespace {

/// `text` as a value to keep; longer ones are in no results file.
std::string Kept(std::string text) {
  const std::string_view value = TrimLines(text);
  if (value.size() > kMaxUsebioText) throw UsebioRefusal{kUnexpectedFormat};
  if (value.size() < text.size()) return std::string(value);
  return text;
}

}  // namespace

std::string TextOf(const pugi::xml_node& element) {
  // Comments may divide it: its first part is the element's own value, by the parsing option.
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

std::string NamedText(const pugi::xml_node& element, const char* name) {
  const pugi::xml_attribute attribute = element.attribute(name);
  return attribute ? Kept(attribute.value()) : ChildText(element, name);
}

}  // namespace tricklet
