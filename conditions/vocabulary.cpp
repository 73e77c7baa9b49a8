#include "conditions/vocabulary.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/notation.h"

namespace tricklet {
namespace {

using enum WordKind;

constexpr int Number(auto value) {
  return static_cast<int>(value);
}

constexpr std::array kWords{
    Word{"produce", Statement, "deals wanted: produce 40", WordCode::Produce},
    Word{"generate", Statement, "deals tried at the most: generate 1000000", WordCode::Generate},
    Word{"seed", Statement, "the same number gives the same deals: seed 7", WordCode::Seed},
    Word{"dealer", Statement, "who deals: dealer south", WordCode::Dealer},
    Word{"vulnerable", Statement, "who is vulnerable: none, NS, EW or all", WordCode::Vulnerable},
    Word{"predeal", Statement, "cards or lengths given before: predeal north SAQ5, HK",
         WordCode::Predeal},
    Word{"pointcount", Statement, "points from the ace down, for hcp: pointcount 4 3 2 1",
         WordCode::PointCount},
    Word{"altcount", Statement, "points of one of ten other counts: altcount 2 0 0 1",
         WordCode::AltCount},
    Word{"condition", Statement, "what a deal has to meet; the word can be left out",
         WordCode::Condition},
    Word{"action", Statement, "what is done with deals that meet it", WordCode::Action},
    Word{"printall", Action, "the four hands side by side", WordCode::PrintAll},
    Word{"print", Action, "hands of some seats on pages: print(north, south)", WordCode::Print},
    Word{"printew", Action, "West's and East's hands side by side", WordCode::PrintEW},
    Word{"printpbn", Action, "the deal in PBN", WordCode::PrintPBN},
    Word{"printcompact", Action, "a line for each hand, then an expression",
         WordCode::PrintCompact},
    Word{"printoneline", Action, "the deal in one line, then an expression",
         WordCode::PrintOneLine},
    Word{"printes", Action, "texts and expressions: printes(\"hcp \", hcp(north), \\n)",
         WordCode::PrintEs},
    Word{"average", Action, "the average of an expression", WordCode::Average},
    Word{"frequency", Action, "how often values occur: frequency(hcp(north), 0, 37)",
         WordCode::Frequency},
    Word{"hcp", Function, "high-card points of a hand, or of a suit of it: hcp(north, spades)",
         WordCode::Count, Number(CountKind::Hcp)},
    Word{"hcps", Function, "high-card points of a hand, or of a suit of it: hcp(north, spades)",
         WordCode::Count, Number(CountKind::Hcp)},
    Word{"control", Function, "controls, ace 2 and king 1, of a hand or suit", WordCode::Count,
         Number(CountKind::Controls)},
    Word{"controls", Function, "controls, ace 2 and king 1, of a hand or suit", WordCode::Count,
         Number(CountKind::Controls)},
    Word{"loser", Function, "losers of a hand or suit", WordCode::Count, Number(CountKind::Losers)},
    Word{"losers", Function, "losers of a hand or suit", WordCode::Count,
         Number(CountKind::Losers)},
    Word{"quality", Function, "quality of a suit in hundredths: quality(north, spades)",
         WordCode::Count, Number(CountKind::Quality)},
    Word{"pt0", Function, "tens of a hand or suit, unless altcount 0 says otherwise",
         WordCode::Count, Number(CountKind::Tens)},
    Word{"ten", Function, "tens of a hand or suit (count 0)", WordCode::Count,
         Number(CountKind::Tens)},
    Word{"tens", Function, "tens of a hand or suit (count 0)", WordCode::Count,
         Number(CountKind::Tens)},
    Word{"pt1", Function, "jacks of a hand or suit, unless altcount 1 says otherwise",
         WordCode::Count, Number(CountKind::Jacks)},
    Word{"jack", Function, "jacks of a hand or suit (count 1)", WordCode::Count,
         Number(CountKind::Jacks)},
    Word{"jacks", Function, "jacks of a hand or suit (count 1)", WordCode::Count,
         Number(CountKind::Jacks)},
    Word{"pt2", Function, "queens of a hand or suit, unless altcount 2 says otherwise",
         WordCode::Count, Number(CountKind::Queens)},
    Word{"queen", Function, "queens of a hand or suit (count 2)", WordCode::Count,
         Number(CountKind::Queens)},
    Word{"queens", Function, "queens of a hand or suit (count 2)", WordCode::Count,
         Number(CountKind::Queens)},
    Word{"pt3", Function, "kings of a hand or suit, unless altcount 3 says otherwise",
         WordCode::Count, Number(CountKind::Kings)},
    Word{"king", Function, "kings of a hand or suit (count 3)", WordCode::Count,
         Number(CountKind::Kings)},
    Word{"kings", Function, "kings of a hand or suit (count 3)", WordCode::Count,
         Number(CountKind::Kings)},
    Word{"pt4", Function, "aces of a hand or suit, unless altcount 4 says otherwise",
         WordCode::Count, Number(CountKind::Aces)},
    Word{"ace", Function, "aces of a hand or suit (count 4)", WordCode::Count,
         Number(CountKind::Aces)},
    Word{"aces", Function, "aces of a hand or suit (count 4)", WordCode::Count,
         Number(CountKind::Aces)},
    Word{"pt5", Function,
         "honours among ace and king of a hand or suit, unless altcount 5 says otherwise",
         WordCode::Count, Number(CountKind::Top2)},
    Word{"top2", Function, "honours among ace and king of a hand or suit (count 5)",
         WordCode::Count, Number(CountKind::Top2)},
    Word{"pt6", Function,
         "honours among ace to queen of a hand or suit, unless altcount 6 says otherwise",
         WordCode::Count, Number(CountKind::Top3)},
    Word{"top3", Function, "honours among ace to queen of a hand or suit (count 6)",
         WordCode::Count, Number(CountKind::Top3)},
    Word{"pt7", Function,
         "honours among ace to jack of a hand or suit, unless altcount 7 says otherwise",
         WordCode::Count, Number(CountKind::Top4)},
    Word{"top4", Function, "honours among ace to jack of a hand or suit (count 7)", WordCode::Count,
         Number(CountKind::Top4)},
    Word{"pt8", Function,
         "honours among ace to ten of a hand or suit, unless altcount 8 says otherwise",
         WordCode::Count, Number(CountKind::Top5)},
    Word{"top5", Function, "honours among ace to ten of a hand or suit (count 8)", WordCode::Count,
         Number(CountKind::Top5)},
    Word{"pt9", Function,
         "points of 6, 4, 2 and 1 for ace to jack of a hand or suit, unless altcount 9 says "
         "otherwise",
         WordCode::Count, Number(CountKind::C13)},
    Word{"c13", Function, "points of 6, 4, 2 and 1 for ace to jack of a hand or suit (count 9)",
         WordCode::Count, Number(CountKind::C13)},
    Word{"cccc", Function, "strength of a hand in hundredths of a point, by honours and shape",
         WordCode::Cccc},
    Word{"shape", Function, "suit lengths: shape(north, any 4333 + 54xx - any 0xxx)",
         WordCode::Shape},
    Word{"hascard", Function, "whether a hand has a card: hascard(north, AS)", WordCode::HasCard},
    Word{"trick", Function, "double-dummy tricks of a declarer: tricks(south, hearts)",
         WordCode::Tricks},
    Word{"tricks", Function, "double-dummy tricks of a declarer: tricks(south, hearts)",
         WordCode::Tricks},
    Word{"score", Function, "score of a contract: score(vul, x3N, 9)", WordCode::Score},
    Word{"imp", Function, "a difference of scores in IMPs: imps(420)", WordCode::Imps},
    Word{"imps", Function, "a difference of scores in IMPs: imps(420)", WordCode::Imps},
    Word{"rnd", Function, "a random number below another: rnd(100)", WordCode::Rnd},
    Word{"spade", WordKind::Suit, "cards in the suit: spades(north)", WordCode::Suit,
         Number(tricklet::Suit::Spades)},
    Word{"spades", WordKind::Suit, "cards in the suit: spades(north)", WordCode::Suit,
         Number(tricklet::Suit::Spades)},
    Word{"heart", WordKind::Suit, "cards in the suit: hearts(north)", WordCode::Suit,
         Number(tricklet::Suit::Hearts)},
    Word{"hearts", WordKind::Suit, "cards in the suit: hearts(north)", WordCode::Suit,
         Number(tricklet::Suit::Hearts)},
    Word{"diamond", WordKind::Suit, "cards in the suit: diamonds(north)", WordCode::Suit,
         Number(tricklet::Suit::Diamonds)},
    Word{"diamonds", WordKind::Suit, "cards in the suit: diamonds(north)", WordCode::Suit,
         Number(tricklet::Suit::Diamonds)},
    Word{"club", WordKind::Suit, "cards in the suit: clubs(north)", WordCode::Suit,
         Number(tricklet::Suit::Clubs)},
    Word{"clubs", WordKind::Suit, "cards in the suit: clubs(north)", WordCode::Suit,
         Number(tricklet::Suit::Clubs)},
    Word{"notrump", WordKind::Suit, "no trump suit, in tricks: tricks(south, notrump)",
         WordCode::NoTrump},
    Word{"notrumps", WordKind::Suit, "no trump suit, in tricks: tricks(south, notrump)",
         WordCode::NoTrump},
    Word{"north", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::North)},
    Word{"east", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::East)},
    Word{"south", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::South)},
    Word{"west", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::West)},
    Word{"and", Operator, "both: the same as &&", WordCode::And},
    Word{"or", Operator, "one or both: the same as ||", WordCode::Or},
    Word{"not", Operator, "the contrary: the same as !", WordCode::Not},
    Word{"any", Operator, "the lengths of a shape in any order", WordCode::Any},
    Word{"none", Value, "nobody vulnerable", WordCode::VulnerableSides,
         Number(tricklet::Vulnerability::None)},
    Word{"all", Value, "both sides vulnerable", WordCode::VulnerableSides,
         Number(tricklet::Vulnerability::All)},
    Word{"NS", Value, "North-South vulnerable", WordCode::VulnerableSides,
         Number(tricklet::Vulnerability::NorthSouth)},
    Word{"ns", Value, "North-South vulnerable", WordCode::VulnerableSides,
         Number(tricklet::Vulnerability::NorthSouth)},
    Word{"EW", Value, "East-West vulnerable", WordCode::VulnerableSides,
         Number(tricklet::Vulnerability::EastWest)},
    Word{"ew", Value, "East-West vulnerable", WordCode::VulnerableSides,
         Number(tricklet::Vulnerability::EastWest)},
    Word{"vul", Value, "vulnerable, in score", WordCode::Vul},
    Word{"nv", Value, "not vulnerable, in score", WordCode::NonVul},
};

}  // namespace

std::span<const Word> Vocabulary() {
  return kWords;
}

const Word* FindWord(std::string_view text) {
  static const std::vector<Word> sorted = [] {
    std::vector<Word> words(kWords.begin(), kWords.end());
    std::ranges::sort(words, [](const Word& a, const Word& b) { return a.text < b.text; });
    return words;
  }();
  const auto found =
      std::ranges::lower_bound(sorted, text, {}, [](const Word& word) { return word.text; });
  return found != sorted.end() && found->text == text ? &*found : nullptr;
}

}  // namespace tricklet
