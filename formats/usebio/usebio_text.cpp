#include "formats/usebio/usebio_text.h"

#include "core/text.h"
#include "formats/usebio/usebio_limits.h"

namespace tricklet {
namespace {

/// `text` without blanks at both ends. Refuses one longer than any in a results file.
std::string_view Kept(std::string_view text) {
  const std::string_view value = TrimLines(text);
  if (value.size() > kMaxUsebioText) throw UsebioRefusal{kUnexpectedFormat};
  return value;
}

}  // namespace

bool LoadUsebio(std::string& text, pugi::xml_document& document) {
  // An element's text becomes its value instead of a node of its own, which halves the nodes of a
  // file whose elements hold one text each.
  constexpr unsigned kParsing = pugi::parse_default | pugi::parse_embed_pcdata;
  return static_cast<bool>(
      document.load_buffer_inplace(text.data(), text.size(), kParsing, pugi::encoding_utf8));
}

ElementText::ElementText(const pugi::xml_node& element) : view_(element.value()) {
  // The parsing option has made the first piece the element's own value.
  for (auto piece = element.first_child(); piece; piece = piece.next_sibling()) {
    if (piece.type() != pugi::node_pcdata && piece.type() != pugi::node_cdata) continue;
    if (joined_.empty()) joined_ = view_;
    view_ = joined_ += piece.value();
  }
  view_ = Kept(view_);
}

std::string TextOf(const pugi::xml_node& element) {
  return std::string(ElementText(element).View());
}

bool IsEmpty(const pugi::xml_node& element) {
  return !element.first_child() && *element.value() == '\0';
}

std::string ChildText(const pugi::xml_node& element, const char* name) {
  return TextOf(element.child(name));
}

std::string NamedText(const pugi::xml_node& element, const char* name) {
  const pugi::xml_attribute attribute = element.attribute(name);
  return attribute ? std::string(Kept(attribute.value())) : ChildText(element, name);
}

}  // namespace tricklet
