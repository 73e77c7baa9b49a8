#include "generate/hand_text.h"

#include <algorithm>
#include <bit>

#include "core/text.h"

namespace tricklet {
namespace {

/// The rank at the front of `text`, which then holds what follows it.
std::optional<Rank> TakeRank(std::string_view& text) {
  constexpr std::string_view kRankLetters = "AKQJT98765432";
  constexpr std::string_view kTen = "10";
  if (text.substr(0, kTen.size()) == kTen) {
    text.remove_prefix(kTen.size());
    return Rank::Ten;
  }
  const auto index = kRankLetters.find(ToUpper(text.front()));
  if (index == std::string_view::npos) return std::nullopt;
  text.remove_prefix(1);
  return static_cast<Rank>(index);
}

std::optional<std::string> ReadSuit(std::string_view text, Suit suit, Holding& holding) {
  if (text == "-") return std::nullopt;
  while (!text.empty()) {
    const auto rank = TakeRank(text);
    if (!rank) return Showable(text) + " does not begin with a rank";
    if (holding.Has(*rank)) return CardText({suit, *rank}) + " is named twice";
    holding.Add(*rank);
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ReadHandText(std::string_view text, PerSuit<Holding>& hand) {
  PerSuit<Holding> read;
  std::string_view rest = Trim(text);
  if (std::count(rest.begin(), rest.end(), '.') != kSuits - 1) {
    return "A hand is four suits with \".\" between them, as in AKT2.QJ5.-.98";
  }
  int cards = 0;
  for (const Suit suit : kAllSuits) {
    const auto dot = rest.find('.');
    if (auto problem = ReadSuit(rest.substr(0, dot), suit, read[suit])) return problem;
    cards += read[suit].Count();
    rest.remove_prefix(dot == std::string_view::npos ? rest.size() : dot + 1);
  }
  if (cards > kCardsInHand) return "A hand holds 13 cards, not " + std::to_string(cards);
  hand = read;
  return std::nullopt;
}

Card HighestCard(Suit suit, Holding holding) {
  return {suit, static_cast<Rank>(std::countr_zero(holding.Bits()))};
}

}  // namespace tricklet
