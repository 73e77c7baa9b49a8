#include "analysis/deal_text.h"

namespace tricklet {

std::string HandDealText(const PerSuit<Holding>& hand, int& cardCount) {
  std::string text;
  for (const Suit suit : kAllSuits) {
    if (suit != Suit::Spades) text += '.';
    text += PBNFormat(hand[suit], cardCount);
  }
  return text;
}

std::string SolverDealText(const HandTable& hands) {
  std::string text = "N:";
  int cardCount = 0;
  for (const Seat seat : kAllSeats) {
    if (seat != Seat::North) text += ' ';
    text += HandDealText(hands[seat], cardCount);
  }
  return text;
}

}  // namespace tricklet
