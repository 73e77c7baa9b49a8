#include "formats/lin/lin_writer.h"

namespace tricklet {

std::string LinHand(const PerSuit<Holding>& hand) {
  std::string text;
  int cardCount = 0;
  for (const Suit suit : kAllSuits) {
    text += StrainLetter[ToStrain(suit)];
    text += PBNFormat(hand[suit], cardCount);
  }
  return text;
}

char LinDealer(Seat dealer) {
  return static_cast<char>('1' + IndexOf(PartnerOf(dealer)));
}

std::string_view LinVulnerability(Vulnerability vulnerability) {
  constexpr EnumArray<Vulnerability, std::string_view, 4> kLetters{{"0", "N", "E", "B"}};
  return kLetters[vulnerability];
}

std::string LinRecordLine(const Board& board) {
  const std::string number = std::to_string(board.boardNumber);
  std::string text = "qx|o" + number + "|md|" + LinDealer(board.Dealer());
  text += LinHand(board.hands[Seat::South]) + "," + LinHand(board.hands[Seat::West]) + "," +
          LinHand(board.hands[Seat::North]);
  text += "|rh||ah|Board " + number + "|sv|";
  text += LinVulnerability(board.Vulnerability());
  return text + "|pg||\r\n";
}

}  // namespace tricklet
