#include "formats/results/ruling.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr float kAveragePlus = 60;
constexpr float kAverage = 50;
constexpr float kAverageMinus = 40;
constexpr float kMostPercent = 100;

/// `text` in upper case, without blanks and signs of per cent.
std::string Bare(std::string_view text) {
  std::string bare = ToUpper(text);
  std::erase_if(bare, [](char c) { return c == ' ' || c == '%'; });
  return bare;
}

/// "60", "A60", "AV+", "AVE".
std::optional<float> PercentageOf(std::string_view part) {
  constexpr std::array<std::string_view, 5> kWords{"AVERAGE", "AVE", "AVG", "AV", "A"};
  const auto* const word =
      std::find_if(kWords.begin(), kWords.end(),
                   [part](std::string_view each) { return part.starts_with(each); });
  if (word != kWords.end()) {
    part.remove_prefix(word->size());
    if (part.empty() || part == "=") return kAverage;
    if (part == "+") return kAveragePlus;
    if (part == "-") return kAverageMinus;
  }
  const auto number = NumberFromText<float>(part);
  const bool possible = number && std::isfinite(*number) && *number >= 0 && *number <= kMostPercent;
  return possible ? number : std::nullopt;
}

}  // namespace

bool IsNotPlayed(std::string_view score) {
  const std::string bare = Bare(score);
  return bare == "NP" || bare == "NOTPLAYED";
}

PerSide<std::optional<float>> PercentagesOf(std::string_view ruling) {
  const std::string bare = Bare(ruling);
  const std::string_view text = bare;
  constexpr std::size_t kBoth = 5;  // "A6040"
  const bool joined = text.size() == kBoth && text[0] == 'A' &&
                      text.find_first_not_of("0123456789", 1) == std::string_view::npos;
  if (joined) return {{PercentageOf(text.substr(1, 2)), PercentageOf(text.substr(3, 2))}};
  const auto slash = text.find('/');
  const auto first = PercentageOf(text.substr(0, slash));
  if (slash != std::string_view::npos) {
    const auto second = PercentageOf(text.substr(slash + 1));
    if (!first || !second) return {};
    return {{first, second}};
  }
  // A number alone is a score, and "A50" does not tell whose.
  if (text.find_first_of("0123456789") != std::string_view::npos) return {};
  const bool forBoth = text.find_first_of("+-") == std::string_view::npos;
  return {{first, forBoth ? first : std::nullopt}};
}

}  // namespace tricklet
