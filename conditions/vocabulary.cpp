#include "conditions/vocabulary.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/text.h"

namespace tricklet {
namespace {

using enum WordKind;

constexpr int Number(auto value) {
  return static_cast<int>(value);
}

struct Row {
  std::string_view spellings;  // with blanks between; the first is that of the program's own texts
  WordKind kind;
  std::string_view meaning;
  WordCode code;
  int value = 0;
};

constexpr std::array kRows{
    Row{"produce", Statement, "deals wanted: produce 40", WordCode::Produce},
    Row{"generate", Statement, "deals tried at the most: generate 1000000", WordCode::Generate},
    Row{"seed", Statement, "the same number gives the same deals: seed 7", WordCode::Seed},
    Row{"dealer", Statement, "who deals: dealer south", WordCode::Dealer},
    Row{"vulnerable", Statement, "who is vulnerable: none, NS, EW or all", WordCode::Vulnerable},
    Row{"predeal", Statement, "cards or lengths given before: predeal north SAQ5, HK",
        WordCode::Predeal},
    Row{"pointcount", Statement, "points from the ace down, for hcp: pointcount 4 3 2 1",
        WordCode::PointCount},
    Row{"altcount", Statement, "points of one of ten other counts: altcount 2 0 0 1",
        WordCode::AltCount},
    Row{"condition", Statement, "what a deal has to meet; the word can be left out",
        WordCode::Condition},
    Row{"action", Statement, "what is done with deals that meet it", WordCode::Action},
    Row{"printall", Action, "the four hands side by side", WordCode::PrintAll},
    Row{"print", Action, "hands of some seats on pages: print(north, south)", WordCode::Print},
    Row{"printew", Action, "West's and East's hands side by side", WordCode::PrintEW},
    Row{"printpbn", Action, "the deal in PBN", WordCode::PrintPBN},
    Row{"printcompact", Action, "a line for each hand, then an expression", WordCode::PrintCompact},
    Row{"printoneline", Action, "the deal in one line, then an expression", WordCode::PrintOneLine},
    Row{"printes", Action, "texts and expressions: printes(\"hcp \", hcp(north), \\n)",
        WordCode::PrintEs},
    Row{"average", Action, "the average of an expression", WordCode::Average},
    Row{"frequency", Action, "how often values occur: frequency(hcp(north), 0, 37)",
        WordCode::Frequency},
    Row{"hcp hcps", Function, "high-card points of a hand, or of a suit of it: hcp(north, spades)",
        WordCode::Count, Number(CountKind::Hcp)},
    Row{"controls control", Function, "controls, ace 2 and king 1, of a hand or suit",
        WordCode::Count, Number(CountKind::Controls)},
    Row{"losers loser", Function, "losers of a hand or suit", WordCode::Count,
        Number(CountKind::Losers)},
    Row{"quality", Function, "quality of a suit in hundredths: quality(north, spades)",
        WordCode::Count, Number(CountKind::Quality)},
    Row{"tens ten pt0", Function, "tens of a hand or suit, or what altcount 0 says",
        WordCode::Count, Number(CountKind::Tens)},
    Row{"jacks jack pt1", Function, "jacks of a hand or suit, or what altcount 1 says",
        WordCode::Count, Number(CountKind::Jacks)},
    Row{"queens queen pt2", Function, "queens of a hand or suit, or what altcount 2 says",
        WordCode::Count, Number(CountKind::Queens)},
    Row{"kings king pt3", Function, "kings of a hand or suit, or what altcount 3 says",
        WordCode::Count, Number(CountKind::Kings)},
    Row{"aces ace pt4", Function, "aces of a hand or suit, or what altcount 4 says",
        WordCode::Count, Number(CountKind::Aces)},
    Row{"top2 pt5", Function, "aces and kings of a hand or suit, or what altcount 5 says",
        WordCode::Count, Number(CountKind::Top2)},
    Row{"top3 pt6", Function,
        "honours from ace to queen of a hand or suit, or what altcount 6 says", WordCode::Count,
        Number(CountKind::Top3)},
    Row{"top4 pt7", Function, "honours from ace to jack of a hand or suit, or what altcount 7 says",
        WordCode::Count, Number(CountKind::Top4)},
    Row{"top5 pt8", Function, "honours from ace to ten of a hand or suit, or what altcount 8 says",
        WordCode::Count, Number(CountKind::Top5)},
    Row{"c13 pt9", Function, "points of 6, 4, 2 and 1 for ace to jack, or what altcount 9 says",
        WordCode::Count, Number(CountKind::C13)},
    Row{"cccc", Function, "strength of a hand in hundredths of a point, by honours and shape",
        WordCode::Cccc},
    Row{"shape", Function, "suit lengths: shape(north, any 4333 + 54xx - any 0xxx)",
        WordCode::Shape},
    Row{"hascard", Function, "whether a hand has a card: hascard(north, AS)", WordCode::HasCard},
    Row{"tricks trick", Function, "double-dummy tricks of a declarer: tricks(south, hearts)",
        WordCode::Tricks},
    Row{"score", Function, "score of a contract: score(vul, x3N, 9)", WordCode::Score},
    Row{"imps imp", Function, "a difference of scores in IMPs: imps(420)", WordCode::Imps},
    Row{"rnd", Function, "a random number below another: rnd(100)", WordCode::Rnd},
    Row{"spades spade", WordKind::Suit, "cards in the suit: spades(north)", WordCode::Suit,
        Number(tricklet::Suit::Spades)},
    Row{"hearts heart", WordKind::Suit, "cards in the suit: hearts(north)", WordCode::Suit,
        Number(tricklet::Suit::Hearts)},
    Row{"diamonds diamond", WordKind::Suit, "cards in the suit: diamonds(north)", WordCode::Suit,
        Number(tricklet::Suit::Diamonds)},
    Row{"clubs club", WordKind::Suit, "cards in the suit: clubs(north)", WordCode::Suit,
        Number(tricklet::Suit::Clubs)},
    Row{"notrump notrumps", WordKind::Suit, "no trump suit, in tricks: tricks(south, notrump)",
        WordCode::NoTrump},
    Row{"north", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::North)},
    Row{"east", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::East)},
    Row{"south", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::South)},
    Row{"west", WordKind::Seat, "the seat", WordCode::Seat, Number(tricklet::Seat::West)},
    Row{"and", Operator, "both: the same as &&", WordCode::And},
    Row{"or", Operator, "one or both: the same as ||", WordCode::Or},
    Row{"not", Operator, "the contrary: the same as !", WordCode::Not},
    Row{"any", Operator, "the lengths of a shape in any order", WordCode::Any},
    Row{"none", Value, "nobody vulnerable", WordCode::VulnerableSides, Number(Vulnerability::None)},
    Row{"all", Value, "both sides vulnerable", WordCode::VulnerableSides,
        Number(Vulnerability::All)},
    Row{"NS ns", Value, "North-South vulnerable", WordCode::VulnerableSides,
        Number(Vulnerability::NorthSouth)},
    Row{"EW ew", Value, "East-West vulnerable", WordCode::VulnerableSides,
        Number(Vulnerability::EastWest)},
    Row{"vul", Value, "vulnerable, in score", WordCode::Vul},
    Row{"nv", Value, "not vulnerable, in score", WordCode::NonVul},
};

std::string_view TakeSpelling(std::string_view& rest) {
  const std::string_view spelling = rest.substr(0, rest.find(' '));
  rest.remove_prefix(std::min(rest.size(), spelling.size() + 1));
  return spelling;
}

std::vector<Word> SortedWords() {
  std::vector<Word> words;
  words.reserve(3 * kRows.size());
  for (const Row& row : kRows) {
    std::string_view rest = row.spellings;
    const std::string_view first = TakeSpelling(rest);
    words.push_back({first, row.kind, row.meaning, row.code, row.value, true});
    while (!rest.empty()) {
      const std::string_view other = TakeSpelling(rest);
      const bool form =
          first.starts_with(other) || other.starts_with(first) || EqualNoCase(first, other);
      words.push_back({other, row.kind, row.meaning, row.code, row.value, !form});
    }
  }
  std::ranges::sort(words, [](const Word& a, const Word& b) { return a.text < b.text; });
  return words;
}

std::string_view FirstSpelling(WordCode code, int value) {
  const auto* const row = std::ranges::find_if(
      kRows, [=](const Row& each) { return each.code == code && each.value == value; });
  std::string_view rest = row->spellings;
  return TakeSpelling(rest);
}

}  // namespace

std::span<const Word> Vocabulary() {
  static const std::vector<Word> words = SortedWords();
  return words;
}

const Word* FindWord(std::string_view text) {
  const std::span<const Word> words = Vocabulary();
  const auto found =
      std::ranges::lower_bound(words, text, {}, [](const Word& word) { return word.text; });
  return found != words.end() && found->text == text ? &*found : nullptr;
}

std::string_view WordFor(tricklet::Suit suit) {
  return FirstSpelling(WordCode::Suit, IndexOf(suit));
}

std::string_view WordFor(tricklet::Seat seat) {
  return FirstSpelling(WordCode::Seat, IndexOf(seat));
}

}  // namespace tricklet
