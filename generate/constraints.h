// What the generator is asked for: the constraints of one or two hands and the boards to fill.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// The two hands that can be constrained.
enum class GenHand : std::uint8_t { First, Second };
inline constexpr std::array kGenHands{GenHand::First, GenHand::Second};
template <class Value>
using PerGenHand = EnumArray<GenHand, Value, 2>;

/// A range, both ends included.
struct Limits {
  int minimum = 0;
  int maximum = 0;
  friend constexpr bool operator==(Limits, Limits) = default;
};

/// A named shape. Each has two options; `handTypeOption` holds 0 or 1.
enum class HandType : std::uint8_t { Balanced, Weak2, FourFourFourOne, Preempt };
inline constexpr int kHandTypes = 4;
inline constexpr std::array kAllHandTypes{HandType::Balanced, HandType::Weak2,
                                          HandType::FourFourFourOne, HandType::Preempt};
inline constexpr EnumArray<HandType, std::string_view, kHandTypes> HandTypes{
    {"Balanced", "Weak 2", "4-4-4-1", "Pre-empt"}};
/// Captions of the options; a type whose captions are empty has none.
inline constexpr EnumArray<HandType, std::array<std::string_view, 4>, kHandTypes> HandTypeOptions{
    {std::array<std::string_view, 4>{"Allow a 5-card major", "Majors only", "", ""},
     std::array<std::string_view, 4>{"Exclude 5-card majors", "Diamonds also", "", ""},
     std::array<std::string_view, 4>{}, std::array<std::string_view, 4>{}}};

/// Most high-card points of one hand: four aces, four kings, four queens and a jack.
inline constexpr int kMaxPoints = 37;

/// How often, in percent, a hand of 13 cards holds exactly n high-card points. By counting: the
/// hands with a aces, k kings, q queens and j jacks number
/// C(4,a) C(4,k) C(4,q) C(4,j) C(36,13-a-k-q-j), out of C(52,13).
inline constexpr std::array<double, kMaxPoints + 1> HcpOdds{
    0.363896,   0.788442,   1.356119,   2.462364,   3.845438,   5.186193,   6.554096, 8.028087,
    8.892189,   9.356228,   9.405115,   8.94468,    8.026865,   6.914332,   5.693323, 4.423679,
    3.310919,   2.361695,   1.605084,   1.036173,   0.643536,   0.377867,   0.210043, 0.111904,
    0.055903,   0.026428,   0.011668,   0.004907,   0.001857,   0.000667,   0.00022,  6.11319e-5,
    1.71896e-5, 3.52118e-6, 7.06127e-7, 9.82656e-8, 9.44862e-9, 6.29908e-10};

struct Constraints {
  Constraints() {
    for (auto& suits : suitLimits) suits.fill({0, kCardsInHand});
    pointLimits.fill({0, kMaxPoints});
  }

  PerGenHand<PerSuit<Limits>> suitLimits;  ///< cards, 0..13
  PerGenHand<Limits> pointLimits;          ///< high-card points, 0..37
  /// A seat's index, or with `relativeToDealer` the steps from the dealer: 0..3.
  PerGenHand<int> handDirection{{0, 1}};
  PerGenHand<bool> useSuitLengths{{true, true}};  ///< else the hand type gives the lengths
  PerGenHand<HandType> handTypeIndex;
  EnumArray<HandType, PerGenHand<int>, kHandTypes> handTypeOption;
  int numGenHands = 2;  ///< 1 or 2
  bool relativeToDealer = false;
  std::array<int, 2> genBoards{1, 24};  ///< first and last board
};

/// The lengths that are asked of a hand: any where it has a hand type, whatever its limits say.
PerSuit<Limits> AskedLengths(const Constraints& constraints, GenHand hand);

enum class ConstraintPart : std::uint8_t { SuitMinima, SuitMaxima, Points, Direction };

/// Constraints that no deal can meet.
struct Contradiction {
  std::string text;  ///< what the person is told
  /// The hand in which it shows; of two that contradict each other, the second.
  GenHand hand = GenHand::First;
  ConstraintPart part = ConstraintPart::SuitMinima;
  Suit suit = Suit::Spades;  ///< for minima and maxima: the suit most at fault
};

/// The first contradiction; nothing when the constraints agree. Constraints that agree may still be
/// met by few deals.
std::optional<Contradiction> CheckConstraints(const Constraints& constraints);

/// Where the constrained hand goes on a board with this dealer.
Seat SeatOf(const Constraints& constraints, GenHand hand, Seat dealer);

/// The constrained hands of a complete deal have the points, and the lengths or the type, that are
/// asked of them on a board with this dealer.
bool MeetsConstraints(const Constraints& constraints, const HandTable& hands, Seat dealer);

}  // namespace tricklet
