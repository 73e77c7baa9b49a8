#include "conditions/examples.h"

#include <array>

namespace tricklet {
namespace {

constexpr std::array kExamples{
    ConditionExample{"A strong notrump and a game",
                     R"(# South opens 1NT, and North has enough for game.
balanced = shape(south, any 4333 + any 4432 + any 5332)

balanced && hcp(south) >= 15 && hcp(south) <= 17
&& hcp(north) >= 10 && hcp(north) <= 15
)"},
    ConditionExample{"Stayman", R"(# North has a four-card major opposite a strong notrump.
strong = shape(south, any 4333 + any 4432 + any 5332)
         && hcp(south) >= 15 && hcp(south) <= 17
major = (hearts(north) == 4 || spades(north) == 4)
        && hearts(north) <= 4 && spades(north) <= 4

strong && major && hcp(north) >= 8
)"},
    ConditionExample{"A weak two in a major",
                     R"(# A good six-card suit in a hand that is worth no opening bid.
weakSpades = spades(south) == 6 && hearts(south) < 4 && top5(south, spades) >= 2
weakHearts = hearts(south) == 6 && spades(south) < 4 && top5(south, hearts) >= 2

hcp(south) >= 6 && hcp(south) <= 10 && (weakSpades || weakHearts)
)"},
    ConditionExample{"A splinter", R"(# Four-card support, a short suit, and points for game.
opening = spades(south) >= 5 && spades(south) >= hearts(south)
          && hcp(south) >= 11 && hcp(south) <= 18

opening && spades(north) >= 4 && hcp(north) >= 9 && hcp(north) <= 13
&& shape(north, any 4441 + any 5431 - 5xxx)
)"},
    ConditionExample{"A slam on a fit",
                     R"(# At least nine spades, 31 points or more, and no two aces missing.
spades(north) + spades(south) >= 9
&& hcp(north) + hcp(south) >= 31
&& aces(north) + aces(south) >= 3
)"},
    ConditionExample{"You hold ... and partner opens",
                     R"(# South's cards are given; North opens one of a minor.
predeal south SAQ542, HKJ87, D32, CAK

hcp(north) >= 11 && hcp(north) <= 21
&& spades(north) < 5 && hearts(north) < 5
)"}};

}  // namespace

std::span<const ConditionExample> ConditionExamples() {
  return kExamples;
}

}  // namespace tricklet
