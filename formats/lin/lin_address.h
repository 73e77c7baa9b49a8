// LIN records inside the address of a page that shows them.
#pragma once

#include <string>
#include <string_view>

namespace tricklet {

/// The text is such an address: "lin=" stands before its first bar, or all its bars are
/// percent-encoded.
bool IsLinAddress(std::string_view text);

/// The records of an address, which has them percent-encoded after "lin=", blanks as "+". A broken
/// escape becomes `kBrokenEscape`.
std::string DecodeLinAddress(std::string_view text);

}  // namespace tricklet
