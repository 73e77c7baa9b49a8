// Which addresses the update check may ask, be redirected to and open.
#pragma once

#include <string>
#include <string_view>

namespace tricklet {

/// https anywhere, or http on this computer: localhost, 127.0.0.1 or [::1]. The address names a
/// host, perhaps a port, and no user; it is ASCII, without blanks and of 2000 bytes at the most, so
/// that no two programs can read different hosts in it.
bool IsAllowedAddress(std::string_view address);

/// An answer from `from` may redirect to `to`: from https to https, and from this computer to
/// itself.
bool MayRedirect(std::string_view from, std::string_view to);

/// Why `address` is not asked for updates; empty when it can be.
std::string UpdateAddressError(std::string_view address);

}  // namespace tricklet
