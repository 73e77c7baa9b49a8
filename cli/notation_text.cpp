#include "cli/notation_text.h"

#include "core/text.h"

namespace tricklet::cli {
namespace {

bool Names(std::string_view text, std::string_view name) {
  return EqualNoCase(text, name) || EqualNoCase(text, name.substr(0, 1));
}

}  // namespace

std::optional<Seat> SeatFromText(std::string_view text) {
  for (const Seat seat : kAllSeats) {
    if (Names(text, SeatName[seat])) return seat;
  }
  return std::nullopt;
}

std::optional<Suit> SuitFromText(std::string_view text) {
  for (const Suit suit : kAllSuits) {
    if (Names(text, SuitName[suit])) return suit;
  }
  return std::nullopt;
}

std::optional<Card> CardFromText(std::string_view text) {
  if (text.size() < 2) return std::nullopt;
  const auto suit = std::string_view("SHDC").find(ToUpper(text[0]));
  const std::string_view rank = text.substr(1);
  if (suit == std::string_view::npos) return std::nullopt;
  for (int index = 0; index < kRanks; ++index) {
    const auto candidate = static_cast<Rank>(index);
    const bool ten = candidate == Rank::Ten && EqualNoCase(rank, "T");
    if (ten || EqualNoCase(rank, RankText[candidate]))
      return Card{static_cast<Suit>(suit), candidate};
  }
  return std::nullopt;
}

std::optional<Vulnerability> VulnerabilityFromText(std::string_view text) {
  for (int index = 0; index < kSeats; ++index) {
    const auto candidate = static_cast<Vulnerability>(index);
    if (EqualNoCase(text, PBNVul[candidate])) return candidate;
  }
  return std::nullopt;
}

}  // namespace tricklet::cli
