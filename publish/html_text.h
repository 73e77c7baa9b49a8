// Text inside HTML.
#pragma once

#include <string>
#include <string_view>

namespace tricklet {

/// `text` as the text of an element or the value of an attribute in double quotes: nothing in it is
/// read as a mark.
std::string HtmlText(std::string_view text);

}  // namespace tricklet
