#include "formats/usebio/usebio_hands.h"

#include <cstddef>
#include <optional>
#include <string_view>

#include "core/text.h"
#include "formats/lin/lin_record.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

constexpr PerSuit<const char*> kSuitElements{{"SPADES", "HEARTS", "DIAMONDS", "CLUBS"}};

/// The seat of "North" or "N".
std::optional<Seat> SeatOfName(std::string_view text) {
  for (const Seat seat : kAllSeats) {
    const std::string_view name = SeatName[seat];
    if (EqualNoCase(text, name) || EqualNoCase(text, name.substr(0, 1))) return seat;
  }
  return std::nullopt;
}

bool IsVoid(std::string_view text) {
  return text.find_first_not_of('-') == std::string_view::npos || EqualNoCase(text, "void") ||
         text == "\u2014" || text == "\u2013";
}

/// Reads a suit's ranks into `read`; false when a character is none.
bool ReadHolding(std::string_view text, Seat seat, Suit suit, UsebioHands& read) {
  if (IsVoid(text)) return true;
  Holding& holding = read.hands[seat][suit];
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == ' ' || text[at] == ',') continue;
    const bool ten = text.substr(at, 2) == "10";
    const auto card = CardOfLetters('S', ten ? 'T' : text[at]);
    if (!card) return false;
    if (ten) ++at;
    read.repeatsCard = read.repeatsCard || holding.Has(card->rank);
    holding.Add(card->rank);
  }
  return true;
}

void ReadHand(const pugi::xml_node& hand, PerSeat<bool>& seen, UsebioHands& read) {
  const std::string direction = NamedText(hand, "DIRECTION");
  const auto seat = SeatOfName(direction);
  if (!seat || seen[*seat]) {
    read.text = Showable(direction);
    read.fault = seat ? "two hands of one direction" : "a hand without a direction";
    return;
  }
  seen[*seat] = true;
  for (const Suit suit : kAllSuits) {
    const std::string ranks = NamedText(hand, kSuitElements[suit]);
    if (ReadHolding(ranks, *seat, suit, read)) continue;
    read.text = std::string(SeatName[*seat]) + ", " + kSuitElements[suit] + ": " + Showable(ranks);
    read.fault = "no cards";
    return;
  }
}

}  // namespace

UsebioHands ReadUsebioHands(const pugi::xml_node& board) {
  UsebioHands read;
  PerSeat<bool> seen{};
  try {
    for (const pugi::xml_node& hand : board.children("HAND")) {
      read.given = true;
      ReadHand(hand, seen, read);
      if (!read.fault.empty()) break;
    }
  } catch (const UsebioRefusal&) {
    read.fault = "a text that is too long";
  }
  if (!read.fault.empty()) read.hands = {};
  return read;
}

}  // namespace tricklet
