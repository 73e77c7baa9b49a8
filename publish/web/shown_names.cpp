#include "publish/web/shown_names.h"

#include <array>

namespace tricklet {
namespace {

constexpr std::array<std::string_view, 3> kNames{"full", "initials", "none"};

bool IsAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

bool IsLetterOrDigit(char c) {
  return !IsAscii(c) || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Bytes of the character at the front of `text`, which is UTF-8.
std::size_t FirstCharacter(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) ++size;
  return size;
}

}  // namespace

std::string_view NamesShownName(NamesShown names) {
  return kNames.at(static_cast<std::size_t>(names));
}

std::optional<NamesShown> NamesShownOf(std::string_view name) {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (name == kNames.at(i)) return static_cast<NamesShown>(i);
  }
  return std::nullopt;
}

std::string Initials(std::string_view name) {
  std::string initials;
  bool inWord = false;
  while (!name.empty()) {
    const std::size_t size = FirstCharacter(name);
    const bool separates = name[0] == ' ' || name[0] == '-' || name[0] == '.' || name[0] == ',';
    if (separates) {
      inWord = false;
    } else if (!inWord && IsLetterOrDigit(name[0])) {
      initials.append(name.substr(0, size)).append(".");
      inWord = true;
    }
    name.remove_prefix(size);
  }
  return initials;
}

std::string PublishedName(const std::string& name, NamesShown names) {
  switch (names) {
    case NamesShown::Full:
      return name;
    case NamesShown::Initials:
      return Initials(name);
    case NamesShown::None:
      break;
  }
  return {};
}

std::string PublishedNames(std::string_view joined, NamesShown names) {
  constexpr std::string_view kJoint = " & ";
  if (names == NamesShown::Full) return std::string(joined);
  const auto joint = joined.find(kJoint);
  if (joint == std::string_view::npos) return PublishedName(std::string(joined), names);
  const std::string first = PublishedName(std::string(joined.substr(0, joint)), names);
  const std::string second =
      PublishedNames(joined.substr(joint + kJoint.size()), names);  // of a team there may be more
  return first.empty() || second.empty() ? first + second : first + std::string(kJoint) + second;
}

}  // namespace tricklet
