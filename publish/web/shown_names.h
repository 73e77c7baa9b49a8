// How much of the players' names is published.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tricklet {

enum class NamesShown : std::uint8_t { Full, Initials, None };

/// "full", "initials", "none".
std::string_view NamesShownName(NamesShown names);
std::optional<NamesShown> NamesShownOf(std::string_view name);

/// "A.B." of "Anna Berg", "J.P.S." of "Jean-Paul Smith": the first letter of each word. UTF-8; a
/// word that begins with a sign begins at its first letter or digit.
std::string Initials(std::string_view name);

/// What is published of a player's name; empty for nothing.
std::string PublishedName(const std::string& name, NamesShown names);
/// The same of "Anna Berg & Cy Dunn".
std::string PublishedNames(std::string_view joined, NamesShown names);

}  // namespace tricklet
