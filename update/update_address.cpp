#include "update/update_address.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kHttps = "https://";
constexpr std::string_view kHttp = "http://";
constexpr std::size_t kShownAddress = 60;  // bytes
constexpr std::size_t kLongest = 2000;     // bytes; a browser takes no less
constexpr std::array<std::string_view, 3> kLoopback{"localhost", "127.0.0.1", "[::1]"};

constexpr std::string_view kPortDigits = "0123456789";
constexpr std::string_view kHostName =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-.";
constexpr std::string_view kHostNumber = "0123456789ABCDEFabcdef:.";  // between brackets
// RFC 3986, appendix A: "unreserved", "gen-delims", "sub-delims" and "%", but for the brackets.
constexpr std::string_view kAfterHost =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._~:/?#@!$&'()*+,;=%";

bool ConsistsOf(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
  return EqualNoCase(text.substr(0, beginning.size()), beginning);
}

/// The host that `authority` begins with ("example.org:8080"), an IPv6 address in its brackets;
/// nothing when what follows is not a port.
std::optional<std::string_view> HostOf(std::string_view authority) {
  const bool bracketed = authority.starts_with('[');
  const std::size_t end = bracketed ? authority.find(']') : authority.find(':');
  if (bracketed && end == std::string_view::npos) return std::nullopt;
  const std::string_view host = authority.substr(0, bracketed ? end + 1 : end);
  const std::string_view port = authority.substr(host.size());
  if (!port.empty()) {
    const auto number = NumberFromText(port.substr(1));
    if (port.front() != ':' || !ConsistsOf(port.substr(1), kPortDigits) || !number || *number < 1 ||
        *number > UINT16_MAX) {
      return std::nullopt;
    }
  }
  const bool valid = bracketed ? host.size() > 2 && ConsistsOf(host.substr(1, end - 1), kHostNumber)
                               : !host.empty() && ConsistsOf(host, kHostName);
  return valid ? std::optional(host) : std::nullopt;
}

bool IsLoopback(std::string_view host) {
  return std::any_of(kLoopback.begin(), kLoopback.end(),
                     [&](std::string_view name) { return EqualNoCase(host, name); });
}

}  // namespace

bool IsAllowedAddress(std::string_view address) {
  if (address.size() > kLongest) return false;
  const bool https = BeginsWith(address, kHttps);
  if (!https && !BeginsWith(address, kHttp)) return false;
  address.remove_prefix(https ? kHttps.size() : kHttp.size());
  const std::size_t end = std::min(address.find_first_of("/?#"), address.size());
  const auto host = HostOf(address.substr(0, end));
  return host && (https || IsLoopback(*host)) && ConsistsOf(address.substr(end), kAfterHost);
}

bool MayRedirect(std::string_view from, std::string_view to) {
  return IsAllowedAddress(from) && IsAllowedAddress(to) &&
         BeginsWith(from, kHttps) == BeginsWith(to, kHttps);
}

std::string UpdateAddressError(std::string_view address) {
  if (address.empty()) return "No address is set for the update check";
  if (IsAllowedAddress(address)) return {};
  return Showable(address, kShownAddress) +
         " cannot be asked for updates: an address begins with https://, or " +
         "with http:// for this computer (localhost, 127.0.0.1 or [::1])";
}

}  // namespace tricklet
