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

}  // namespace tricklet::cli
