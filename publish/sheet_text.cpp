#include "publish/sheet_text.h"

#include <array>
#include <cstdlib>

#include "core/call.h"
#include "core/scoring.h"

namespace tricklet {
namespace {

constexpr std::string_view kMiddleDot = "\u00B7";
constexpr PerSide<std::string_view> kSideLetters{{"NS", "EW"}};

/// "N" when one of the side reaches the result, else "NS".
std::string_view DeclarersText(const ParContract& contract) {
  if (contract.declarers.size() == 1) return SeatLetter(contract.declarers.front());
  return contract.declarers.empty() ? std::string_view()
                                    : kSideLetters[SideOf(contract.declarers.front())];
}

std::string ParContractText(const ParContract& contract) {
  return std::to_string(contract.level) + std::string(StrainSymbol(ToStrain(contract.strain))) +
         (contract.doubled ? "x" : "") + ResultText(contract.result);
}

}  // namespace

std::vector<std::string_view> RanksOf(Holding holding) {
  std::vector<std::string_view> ranks;
  for (int i = 0; i < kRanks; ++i) {
    const auto rank = static_cast<Rank>(i);
    if (holding.Has(rank)) ranks.push_back(RankText[rank]);
  }
  return ranks;
}

std::string_view SeatLetter(Seat seat) {
  return SeatName[seat].substr(0, 1);
}

std::string DealerText(Seat dealer) {
  return std::string(SeatLetter(dealer)) + " deals";
}

std::string TricksText(int tricks) {
  return tricks > kBook ? std::to_string(tricks) : std::string(kMiddleDot);
}

std::string_view StrainSymbol(Strain strain) {
  return strain == Strain::NoTrump ? StrainLetter[strain]
                                   : SuitSymbol[static_cast<Suit>(IndexOf(strain))];
}

std::string ContractSymbols(std::string_view contract) {
  Board board;
  if (!SetContract(board, contract)) return std::string(contract);
  const std::string_view letters = StrainLetter[board.trumps];
  return board.contract.replace(1, letters.size(), StrainSymbol(board.trumps));
}

std::string ParSymbols(const Par& par) {
  if (par.contracts.empty()) return "Par All Pass 0";
  std::string text = "Par ";
  for (std::size_t i = 0; i < par.contracts.size(); ++i) {
    const std::string_view declarers = DeclarersText(par.contracts[i]);
    text += ParContractText(par.contracts[i]);
    const bool last = i + 1 == par.contracts.size();
    // Declarers that are the same for several contracts are named once.
    if (last || DeclarersText(par.contracts[i + 1]) != declarers)
      text += " " + std::string(declarers);
    if (!last) text += ", ";
  }
  const Side scoring = par.score > 0 ? Side::NorthSouth : Side::EastWest;
  const ParContract& last = par.contracts.back();
  const bool named = !last.declarers.empty() && SideOf(last.declarers.front()) == scoring;
  if (!named) text += ", " + std::string(kSideLetters[scoring]);
  return text + " +" + std::to_string(std::abs(par.score));
}

}  // namespace tricklet
