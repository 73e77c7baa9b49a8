#include "formats/exchange/text_deals.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/text.h"

namespace tricklet {
namespace {

using Hand = PerSuit<Holding>;

constexpr std::string_view kBlanks = " \t\r\n";

/// The ranks of one suit; "-" is none. Nothing when a rank is unknown or comes twice.
std::optional<Holding> ReadSuit(std::string_view text) {
  constexpr std::string_view kRanks = "AKQJT98765432";
  Holding held;
  if (text == "-") return held;
  while (!text.empty()) {
    const bool ten = text.starts_with("10");
    const auto at = kRanks.find(ten ? 'T' : ToUpper(text.front()));
    if (at == std::string_view::npos || held.Has(static_cast<Rank>(at))) return std::nullopt;
    held.Add(static_cast<Rank>(at));
    text.remove_prefix(ten ? 2 : 1);
  }
  return held;
}

/// "AKQ5.JT2.-.98", or "-" for a hand that is not known.
std::optional<Hand> ReadHand(std::string_view text) {
  Hand hand;
  if (text == "-") return hand;
  for (const Suit suit : kAllSuits) {
    const auto dot = text.find('.');
    if ((dot == std::string_view::npos) != (suit == Suit::Clubs)) return std::nullopt;
    const auto held = ReadSuit(text.substr(0, dot));
    if (!held) return std::nullopt;
    hand[suit] = *held;
    if (dot != std::string_view::npos) text.remove_prefix(dot + 1);
  }
  return hand;
}

bool IsComplete(const Hand& hand) {
  return CardsIn(hand) == kCardsInHand;
}

/// The seat that the text names before a colon, which it takes away; nothing when it names none.
std::optional<Seat> TakeSeat(std::string_view& text) {
  if (text.size() < 2 || text[1] != ':') return std::nullopt;
  const auto at = std::string_view("NESW").find(ToUpper(text.front()));
  if (at == std::string_view::npos) return std::nullopt;
  text.remove_prefix(2);
  return static_cast<Seat>(at);
}

/// A word of `rest`, which it takes away; empty when there is none left.
std::string_view TakeWord(std::string_view& rest) {
  const auto begin = rest.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return rest = {};
  rest.remove_prefix(begin);
  const std::string_view word = rest.substr(0, rest.find_first_of(kBlanks));
  rest.remove_prefix(word.size());
  return word;
}

/// The hands of a deal, which need not be possible together.
std::optional<HandTable> ReadDeal(std::string_view text) {
  text = TrimLines(text);
  if (text.size() > 1 && text.starts_with('"') && text.ends_with('"')) {
    text = TrimLines(text.substr(1, text.size() - 2));
  }
  const auto seat = TakeSeat(text);
  HandTable hands;
  for (int step = 0; step < kSeats; ++step) {
    const auto hand = ReadHand(TakeWord(text));
    if (!hand) return std::nullopt;
    const bool plain = CardsIn(*hand) == 0 || IsComplete(*hand);
    if (!seat && !plain) return std::nullopt;
    hands[SeatAfter(seat.value_or(Seat::North), step)] = *hand;
  }
  if (!TakeWord(text).empty() || !HasCards(hands)) return std::nullopt;
  return hands;
}

/// Nobody writes this but for a deal: a seat, a colon, and dots.
bool IsMeantForADeal(std::string_view cell) {
  cell = TrimLines(cell);
  return TakeSeat(cell) && std::count(cell.begin(), cell.end(), '.') >= 3;
}

/// The board number that a cell gives: "7", "Board 7"; 0 when it gives none.
int NumberOf(std::string_view cell) {
  cell = TrimLines(cell);
  for (const std::string_view word : {"BOARD", "BD", "#"}) {
    if (ToUpper(cell.substr(0, word.size())) != word) continue;
    cell = Trim(cell.substr(word.size()));
    break;
  }
  const bool digits = !cell.empty() && cell.front() != '-';
  return digits ? NumberFromText(cell).value_or(0) : 0;
}

/// Reads the cells of one line after another.
class TableReader {
 public:
  explicit TableReader(FileContents& contents) : contents_(contents) {}

  void ReadLine(std::string_view line) {
    ++line_;
    number_ = 0;
    known_ = 0;
    for (bool more = true; more;) {
      const auto tab = line.find('\t');
      ReadCell(line.substr(0, tab));
      more = tab != std::string_view::npos;
      if (more) line.remove_prefix(tab + 1);
    }
  }

 private:
  void ReadCell(std::string_view cell) {
    if (const auto hands = ReadDeal(cell)) {
      Add(*hands);
    } else if (IsMeantForADeal(cell)) {
      contents_.unread.push_back({line_, number_ > 0 ? std::to_string(number_) : "",
                                  std::string(cell.substr(0, 200)), ""});
    } else {
      ReadHandCell(TrimLines(cell));
      if (const int number = NumberOf(cell); number > 0) number_ = number;
    }
  }

  /// Four cells with a hand each are a deal.
  void ReadHandCell(std::string_view cell) {
    const auto hand = ReadHand(cell);
    if (!hand || !IsComplete(*hand)) {
      known_ = 0;
      return;
    }
    hands_[static_cast<Seat>(known_)] = *hand;
    if (++known_ < kSeats) return;
    known_ = 0;
    Add(hands_);
  }

  void Add(const HandTable& hands) {
    if (contents_.sections.empty()) contents_.sections.emplace_back();
    FoundGame& game = contents_.sections.front().games.emplace_back();
    game.number = number_;
    if (number_ > 0) game.label = std::to_string(number_);
    game.line = line_;
    game.board.hands = hands;
    NoteDealTroubles(game);
  }

  FileContents& contents_;
  int line_ = 0;
  int number_ = 0;  // that the line has given so far
  HandTable hands_;
  int known_ = 0;  // hands of `hands_`, from North on, that the last cells gave
};

}  // namespace

std::optional<HandTable> DealInText(std::string_view text) {
  const auto hands = ReadDeal(text);
  if (!hands) return std::nullopt;
  FoundGame game;
  game.board.hands = *hands;
  NoteDealTroubles(game);
  return game.troubles.Has(DealTrouble::Impossible) ? std::nullopt : hands;
}

FileContents ReadTextDeals(std::string_view text) {
  FileContents contents;
  TableReader reader(contents);
  while (!text.empty()) reader.ReadLine(TakeLine(text));
  return contents;
}

}  // namespace tricklet
