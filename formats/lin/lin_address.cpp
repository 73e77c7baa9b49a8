#include "formats/lin/lin_address.h"

#include <algorithm>

#include "core/text.h"
#include "formats/lin/lin_text.h"

namespace tricklet {
namespace {

constexpr std::string_view kParameter = "lin=";

}  // namespace

std::string DecodeLinAddress(std::string_view text) {
  const auto parameter = text.find(kParameter);
  if (parameter != std::string_view::npos) text.remove_prefix(parameter + kParameter.size());
  std::string encoded(text);
  std::replace(encoded.begin(), encoded.end(), '+', ' ');
  return DecodeLinRecords(encoded);
}

bool IsLinAddress(std::string_view text) {
  constexpr std::string_view kEncodedBar = "%7C";
  const auto bar = text.find('|');
  if (text.substr(0, bar).find(kParameter) != std::string_view::npos) return true;
  return bar == std::string_view::npos && ToUpper(text).find(kEncodedBar) != std::string::npos;
}

}  // namespace tricklet
