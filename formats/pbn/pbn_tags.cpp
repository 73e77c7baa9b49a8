#include "formats/pbn/pbn_tags.h"

#include "core/text.h"

namespace tricklet {
namespace {

/// PBN standard 2.1: the mandatory and supplemental tags, and DoubleDummyTricks of online tables.
constexpr PerPbnTag<std::string_view> kTagNames{{"Event",
                                                 "Site",
                                                 "Date",
                                                 "Board",
                                                 "West",
                                                 "North",
                                                 "East",
                                                 "South",
                                                 "Dealer",
                                                 "Vulnerable",
                                                 "Deal",
                                                 "Scoring",
                                                 "Declarer",
                                                 "Contract",
                                                 "Result",
                                                 "Score",
                                                 "ScoreIMP",
                                                 "ScoreMP",
                                                 "ScorePercentage",
                                                 "Room",
                                                 "HomeTeam",
                                                 "VisitTeam",
                                                 "Competition",
                                                 "Auction",
                                                 "Play",
                                                 "OptimumResultTable",
                                                 "DoubleDummyTricks",
                                                 "ScoreTable",
                                                 "TotalScoreTable",
                                                 "Note"}};

}  // namespace

std::optional<PbnTag> PbnTagOf(std::string_view name) {
  for (int index = 0; index < kPbnTags; ++index) {
    const auto tag = static_cast<PbnTag>(index);
    if (name.size() == kTagNames[tag].size() && EqualNoCase(name, kTagNames[tag])) return tag;
  }
  return std::nullopt;
}

std::string PbnText(std::string_view value) {
  value = TrimLines(value);
  if (value.find('\\') == std::string_view::npos) return std::string(value);
  std::string text;
  text.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    const bool escape =
        value[i] == '\\' && i + 1 < value.size() && (value[i + 1] == '"' || value[i + 1] == '\\');
    if (escape) ++i;
    text += value[i];
  }
  return text;
}

bool IsUnknownPbn(std::string_view value) {
  return value.empty() || value == "?" || value == "-";
}

}  // namespace tricklet
