#include "formats/pbn/pbn_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/text.h"
#include "formats/pbn/pbn_games.h"

namespace tricklet {
namespace {

constexpr std::string_view kBetweenValues = " \t";
constexpr auto kEnd = std::string_view::npos;

/// Takes the word at the front of `text`; empty when there is none left.
std::string_view TakeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBetweenValues), text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(kBetweenValues));
  text.remove_prefix(word.size());
  return word;
}

/// The word with the ten as "10", as `GetHand` has it.
std::string HandText(std::string_view word) {
  std::string hand;
  for (const char c : word) {
    if (ToUpper(c) == 'T') {
      hand += "10";
    } else {
      hand += ToUpper(c);
    }
  }
  return hand;
}

std::optional<float> NumberOf(std::string word) {
  std::erase_if(word, [](char c) { return c == '+' || c == '^' || c == '%'; });
  std::replace(word.begin(), word.end(), ',', '.');
  const auto number = NumberFromText<float>(word);
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<Side> SideOfWord(std::string_view word) {
  if (EqualNoCase(word, "NS") || EqualNoCase(word, "N-S")) return Side::NorthSouth;
  if (EqualNoCase(word, "EW") || EqualNoCase(word, "E-W")) return Side::EastWest;
  return std::nullopt;
}

Side OtherSide(Side side) {
  return side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth;
}

std::optional<int> TricksOf(float tricks) {
  const bool possible = tricks >= 0 && tricks <= kCardsInHand && tricks == std::floor(tricks);
  return possible ? std::optional(static_cast<int>(tricks)) : std::nullopt;
}

}  // namespace

std::optional<Seat> PbnSeat(std::string_view text) {
  std::string word = ToUpper(Trim(text));
  std::erase(word, '^');
  for (const Seat seat : kAllSeats) {
    const std::string name = ToUpper(SeatName[seat]);
    if (word == name || word == name.substr(0, 1)) return seat;
  }
  return std::nullopt;
}

std::optional<tricklet::Vulnerability> PbnVulnerability(std::string_view text) {
  using Vul = tricklet::Vulnerability;
  // PBN standard 2.1, tag Vulnerable.
  constexpr std::array<std::pair<std::string_view, Vul>, 9> kWords{{{"None", Vul::None},
                                                                    {"Love", Vul::None},
                                                                    {"-", Vul::None},
                                                                    {"NS", Vul::NorthSouth},
                                                                    {"N-S", Vul::NorthSouth},
                                                                    {"EW", Vul::EastWest},
                                                                    {"E-W", Vul::EastWest},
                                                                    {"All", Vul::All},
                                                                    {"Both", Vul::All}}};
  for (const auto& [word, vulnerability] : kWords) {
    if (EqualNoCase(word, Trim(text))) return vulnerability;
  }
  return std::nullopt;
}

bool ReadPbnDeal(std::string_view text, HandTable& hands) {
  const auto colon = text.find(':');
  if (colon == kEnd) return false;
  const auto first = PbnSeat(text.substr(0, colon));
  if (!first) return false;
  text.remove_prefix(colon + 1);
  HandTable read;
  int step = 0;
  for (; step < kSeats; ++step) {
    const std::string_view word = TakeWord(text);
    if (word.empty()) break;
    const std::string hand = HandText(word);
    std::string_view rest = hand;
    GetHand(rest, read, SeatAfter(*first, step));
  }
  if (step == 0) return false;
  hands = read;
  return true;
}

std::optional<std::string> PbnContract(std::string_view text) {
  std::string contract(text);
  std::erase_if(contract, [](char c) { return c == ' ' || c == '\t' || c == '^'; });
  if (IsUnknownPbn(contract)) return "";
  constexpr std::array<std::string_view, 6> kPassed{"PASS", "P", "AP", "PASSED", "PO", "ALLPASS"};
  const bool passed =
      std::any_of(kPassed.begin(), kPassed.end(),
                  [&contract](std::string_view word) { return EqualNoCase(word, contract); });
  if (passed) return "PASS";
  Board board;
  if (!SetContract(board, contract)) return std::nullopt;
  contract = ToUpper(contract);
  std::replace_if(
      contract.begin(), contract.end(), [](char c) { return c == 'X' || c == '*'; }, 'x');
  return contract;
}

bool IsPassedOut(std::string_view contract) {
  return contract == "PASS";
}

PbnNumbers ReadPbnNumbers(std::string_view text) {
  PbnNumbers numbers;
  std::optional<Side> side;
  for (std::string_view word = TakeWord(text); !word.empty(); word = TakeWord(text)) {
    if (const auto named = SideOfWord(word)) {
      side = named;
    } else if (const auto number = NumberOf(std::string(word))) {
      auto& place = side ? numbers.of[*side] : numbers.own;
      if (!place) place = number;
    }
  }
  return numbers;
}

std::optional<float> NorthSouthOf(const PbnNumbers& numbers, std::optional<Seat> declarer) {
  if (numbers.of[Side::NorthSouth]) return numbers.of[Side::NorthSouth];
  const bool own = !numbers.of[Side::EastWest];
  const auto number = own ? numbers.own : numbers.of[Side::EastWest];
  const bool opposite = !own || (declarer && SideOf(*declarer) == Side::EastWest);
  if (!number || *number == 0) return number ? std::optional<float>(0) : std::nullopt;
  return opposite ? -*number : *number;
}

std::optional<int> PbnTricks(std::string_view text, std::optional<Seat> declarer,
                             std::string_view contract) {
  text = Trim(text);
  const bool relative =
      !text.empty() && std::string_view("+-=").find(text.front()) != kEnd && text != "-";
  if (relative) {
    Board board;
    if (!SetContract(board, contract)) return std::nullopt;
    const auto over = text == "=" ? std::optional<float>(0) : ReadPbnNumbers(text).own;
    if (!over) return std::nullopt;
    return TricksOf(static_cast<float>(board.contractLevel + kBook) + *over);
  }
  const PbnNumbers numbers = ReadPbnNumbers(text);
  if (numbers.own) return TricksOf(*numbers.own);
  if (!declarer) return std::nullopt;
  const Side side = SideOf(*declarer);
  if (const auto own = numbers.of[side]) return TricksOf(*own);
  const auto others = numbers.of[OtherSide(side)];
  return others ? TricksOf(kCardsInHand - *others) : std::nullopt;
}

}  // namespace tricklet
