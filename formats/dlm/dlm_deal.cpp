#include "formats/dlm/dlm_deal.h"

#include <algorithm>

#include "core/fault.h"
#include "core/text.h"

namespace tricklet {

int DLMChecksum(int boardNumber, std::string_view dealLetters) {
  auto value = static_cast<unsigned>(boardNumber);
  for (const char letter : dealLetters) value ^= static_cast<unsigned char>(letter);
  return static_cast<int>(value);
}

std::string WithDLMChecksum(int boardNumber, std::string_view dealLetters) {
  constexpr std::size_t kDigits = 3;
  return std::string(dealLetters) + ZeroPadded(DLMChecksum(boardNumber, dealLetters), kDigits);
}

std::string EncodeDLMDeal(int boardNumber, const HandTable& hands) {
  const auto holder = [&hands](int card) {
    return std::max(SeatHolding(hands, Card::FromIndex(card)), 0);
  };
  std::string letters;
  for (int card = 0; card < kCardsInPack; card += 2) {
    letters += static_cast<char>('a' + kSeats * holder(card) + holder(card + 1));
  }
  return WithDLMChecksum(boardNumber, letters);
}

HandTable DecodeDLMDeal(std::string_view dealLetters) {
  HandTable hands;
  int card = 0;
  for (const char letter : dealLetters) {
    if (!IsDLMLetter(letter)) {
      throw Fault(FaultNumber::SubscriptOutOfRange, "A deal has letters from \"a\" to \"p\" only");
    }
    const int seats = letter - 'a';
    AddCard(hands, Card::FromIndex(card++), static_cast<Seat>(seats / kSeats));
    AddCard(hands, Card::FromIndex(card++), static_cast<Seat>(seats % kSeats));
  }
  return hands;
}

}  // namespace tricklet
