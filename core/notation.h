// Seats, suits, strains and vulnerability: the types, their orders and their texts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tricklet {

/// A seat, clockwise from North; the order of the four hands everywhere but in a makeable table.
enum class Seat : std::uint8_t { North, East, South, West };

/// A seat in the row order of a makeable table (board file, PBN optimum-result table).
enum class TableSeat : std::uint8_t { North, South, East, West };

/// A suit in the order in which a hand is written down.
enum class Suit : std::uint8_t { Spades, Hearts, Diamonds, Clubs };

/// A strain in the order of play and of `Board::trumps`: the suits as in `Suit`, then no-trump.
enum class Strain : std::uint8_t { Spades, Hearts, Diamonds, Clubs, NoTrump };

/// A strain in bidding order, lowest first.
enum class BidStrain : std::uint8_t { Clubs, Diamonds, Hearts, Spades, NoTrump };

/// A strain in the column order of a makeable table.
enum class TableStrain : std::uint8_t { Clubs, Diamonds, Hearts, Spades, NoTrump };

/// A partnership: the seats' index modulo 2.
enum class Side : std::uint8_t { NorthSouth, EastWest };

/// Which sides are vulnerable; bit 0 is North-South, bit 1 East-West.
enum class Vulnerability : std::uint8_t { None, NorthSouth, EastWest, All };

/// A rank, highest first.
enum class Rank : std::uint8_t {
  Ace,
  King,
  Queen,
  Jack,
  Ten,
  Nine,
  Eight,
  Seven,
  Six,
  Five,
  Four,
  Three,
  Two
};

inline constexpr int kSeats = 4;
inline constexpr int kSuits = 4;
inline constexpr int kStrains = 5;
inline constexpr int kRanks = 13;
inline constexpr int kCardsInHand = 13;
inline constexpr int kCardsInPack = 52;
inline constexpr int kBook = 6;  ///< tricks that do not count towards a contract

/// An array that takes one kind of index only, so that two orders cannot be mixed up.
template <class Index, class Value, std::size_t kSize>
class EnumArray {
 public:
  constexpr Value& operator[](Index index) { return values.at(static_cast<std::size_t>(index)); }
  constexpr const Value& operator[](Index index) const {
    return values.at(static_cast<std::size_t>(index));
  }
  constexpr auto begin() { return values.begin(); }
  constexpr auto end() { return values.end(); }
  constexpr auto begin() const { return values.begin(); }
  constexpr auto end() const { return values.end(); }
  constexpr void fill(const Value& value) { values.fill(value); }
  friend constexpr bool operator==(const EnumArray&, const EnumArray&) = default;

  std::array<Value, kSize> values{};  // public so that tables can be written as aggregates
};

template <class Value>
using PerSeat = EnumArray<Seat, Value, kSeats>;
template <class Value>
using PerSuit = EnumArray<Suit, Value, kSuits>;
template <class Value>
using PerSide = EnumArray<Side, Value, 2>;

inline constexpr std::array kAllSeats{Seat::North, Seat::East, Seat::South, Seat::West};
inline constexpr std::array kAllSuits{Suit::Spades, Suit::Hearts, Suit::Diamonds, Suit::Clubs};
inline constexpr std::array kAllTableSeats{TableSeat::North, TableSeat::South, TableSeat::East,
                                           TableSeat::West};
inline constexpr std::array kAllTableStrains{TableStrain::Clubs, TableStrain::Diamonds,
                                             TableStrain::Hearts, TableStrain::Spades,
                                             TableStrain::NoTrump};

/// The position of an enumerator in its own order.
template <class Enum>
constexpr int IndexOf(Enum value) {
  return static_cast<int>(value);
}

/// The seat `steps` places clockwise of `seat`; `steps` may be negative.
constexpr Seat SeatAfter(Seat seat, int steps = 1) {
  return static_cast<Seat>(static_cast<unsigned>(IndexOf(seat) + steps) & 3U);
}
constexpr Seat PartnerOf(Seat seat) {
  return SeatAfter(seat, 2);
}
constexpr Side SideOf(Seat seat) {
  return static_cast<Side>(IndexOf(seat) % 2);
}

/// The one place where bidding order and play order meet: no-trump stays last, the suits turn over.
constexpr Strain ToStrain(BidStrain strain) {
  return strain == BidStrain::NoTrump ? Strain::NoTrump : static_cast<Strain>(3 - IndexOf(strain));
}
constexpr BidStrain ToBidStrain(Strain strain) {
  return strain == Strain::NoTrump ? BidStrain::NoTrump
                                   : static_cast<BidStrain>(3 - IndexOf(strain));
}
constexpr Strain ToStrain(Suit suit) {
  return static_cast<Strain>(IndexOf(suit));
}
/// Table columns run in bidding order.
constexpr TableStrain ToTableStrain(BidStrain strain) {
  return static_cast<TableStrain>(IndexOf(strain));
}
constexpr TableStrain ToTableStrain(Strain strain) {
  return ToTableStrain(ToBidStrain(strain));
}

/// North and West keep their places; East and South change theirs. The map is its own inverse.
constexpr TableSeat ToTableSeat(Seat seat) {
  constexpr std::array kMap{TableSeat::North, TableSeat::East, TableSeat::South, TableSeat::West};
  return kMap.at(static_cast<std::size_t>(seat));
}

/// Display text of a rank; the ten is "10", so that every rank is known by its first character.
inline constexpr EnumArray<Rank, std::string_view, kRanks> RankText{
    {"A", "K", "Q", "J", "10", "9", "8", "7", "6", "5", "4", "3", "2"}};
inline constexpr PerSeat<std::string_view> SeatName{{"North", "East", "South", "West"}};
inline constexpr EnumArray<Strain, std::string_view, kStrains> StrainLetter{
    {"S", "H", "D", "C", "NT"}};
inline constexpr PerSuit<std::string_view> SuitName{{"Spades", "Hearts", "Diamonds", "Clubs"}};
/// Suit symbols U+2660, U+2665, U+2666, U+2663 in UTF-8.
inline constexpr PerSuit<std::string_view> SuitSymbol{{"\u2660", "\u2665", "\u2666", "\u2663"}};
inline constexpr EnumArray<Vulnerability, std::string_view, 4> VulText{
    {"Love all", "NS vulnerable", "EW vulnerable", "All vulnerable"}};
inline constexpr EnumArray<Vulnerability, std::string_view, 4> VulShort{
    {"Love all", "NS vul", "EW vul", "All vul"}};
inline constexpr EnumArray<Vulnerability, std::string_view, 4> PBNVul{{"None", "NS", "EW", "All"}};

/// Lowest and highest board number that a library can hold.
inline constexpr int kFirstBoardNumber = 1;
inline constexpr int kLastBoardNumber = 999;

/// A number under which a board can be stored, as opposed to one merely read from a file.
constexpr bool IsStorable(int boardNumber) {
  return boardNumber >= kFirstBoardNumber && boardNumber <= kLastBoardNumber;
}

/// Dealer of a board; the deal passes round with the board number (Laws of Duplicate Bridge, 2).
constexpr Seat DealerOfBoard(int boardNumber) {
  return static_cast<Seat>(static_cast<unsigned>(boardNumber - 1) & 3U);
}

/// Vulnerability of a board: a cycle of 16 (Laws of Duplicate Bridge, 2).
constexpr Vulnerability VulOfBoard(int boardNumber) {
  constexpr std::array<std::uint8_t, 16> kCycle{0, 1, 2, 3, 1, 2, 3, 0, 2, 3, 0, 1, 3, 0, 1, 2};
  return static_cast<Vulnerability>(kCycle.at(static_cast<unsigned>(boardNumber - 1) & 15U));
}

constexpr bool IsVulnerable(Vulnerability vulnerability, Side side) {
  return ((static_cast<unsigned>(vulnerability) >> static_cast<unsigned>(side)) & 1U) != 0;
}

}  // namespace tricklet
