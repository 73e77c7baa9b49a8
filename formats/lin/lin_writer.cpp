#include "formats/lin/lin_writer.h"

namespace tricklet {
namespace {

std::string HandText(const PerSuit<Holding>& hand) {
  std::string text;
  int cardCount = 0;
  for (const Suit suit : kAllSuits) {
    text += StrainLetter[ToStrain(suit)];
    text += PBNFormat(hand[suit], cardCount);
  }
  return text;
}

/// 1 is South, 2 West, 3 North, 4 East.
int DealerDigit(Seat dealer) {
  return IndexOf(PartnerOf(dealer)) + 1;
}

}  // namespace

std::string LinRecordLine(const Board& board) {
  constexpr EnumArray<Vulnerability, std::string_view, 4> kVulnerable{{"0", "N", "E", "B"}};
  const std::string number = std::to_string(board.boardNumber);
  std::string text = "qx|o" + number + "|md|" + std::to_string(DealerDigit(board.Dealer()));
  text += HandText(board.hands[Seat::South]) + "," + HandText(board.hands[Seat::West]) + "," +
          HandText(board.hands[Seat::North]);
  text += "|rh||ah|Board " + number + "|sv|";
  text += kVulnerable[board.Vulnerability()];
  return text + "|pg||\r\n";
}

}  // namespace tricklet
