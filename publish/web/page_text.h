// The page as it lies in the source tree, with its style and its script.
#pragma once

#include <string_view>

namespace tricklet {

/// UTF-8. What is to be filled in stands in it as "{{title}}", "{{date}}", "{{pbn}}" and
/// "{{data}}".
extern const std::string_view kPageText;

}  // namespace tricklet
