#include "core/holding.h"

#include <array>

namespace tricklet {
namespace {

/// Bit of the rank that each character stands for, 0 where it stands for none.
constexpr std::array<std::uint16_t, 256> MakeRankBits() {
  std::array<std::uint16_t, 256> bits{};
  for (int rank = 0; rank < kRanks; ++rank) {
    const char first = RankText[static_cast<Rank>(rank)].front();
    bits.at(static_cast<unsigned char>(first)) = static_cast<std::uint16_t>(1U << rank);
  }
  return bits;
}
constexpr auto kRankBits = MakeRankBits();

}  // namespace

Holding AddSpace(std::string_view text) {
  unsigned bits = 0;
  for (const char c : text) bits |= kRankBits[static_cast<unsigned char>(c)];
  return Holding::FromBits(bits);
}

std::string HoldingText(Holding holding) {
  std::string text;
  for (int index = 0; index < kRanks; ++index) {
    const auto rank = static_cast<Rank>(index);
    if (!holding.Has(rank)) continue;
    text += ' ';
    text += RankText[rank];
  }
  return text;
}

std::string PBNFormat(Holding holding, int& cardCount) {
  constexpr std::string_view kLetters = "AKQJT98765432";
  std::string text;
  for (int index = 0; index < kRanks; ++index) {
    if (holding.Has(static_cast<Rank>(index))) text += kLetters[static_cast<std::size_t>(index)];
  }
  cardCount += holding.Count();
  return text;
}

std::string CardText(Card card) {
  return std::string(SuitSymbol[card.suit]) + std::string(RankText[card.rank]);
}

}  // namespace tricklet
