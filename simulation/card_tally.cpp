#include "simulation/card_tally.h"

#include <algorithm>
#include <tuple>

#include "core/comparison.h"

namespace tricklet {
namespace {

constexpr double kAll = 100;  // percent

std::vector<Card> CardsOf(const PerSuit<Holding>& hand) {
  std::vector<Card> cards;
  cards.reserve(kCardsInHand);
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (hand[card.suit].Has(card.rank)) cards.push_back(card);
  }
  return cards;
}

}  // namespace

CardTally::CardTally(const PlayPoint& point, const SimulatedContract& contract,
                     Vulnerability vulnerability)
    : point_(point),
      contract_(contract),
      scores_(ScoresOf(contract, vulnerability)),
      declaring_(SideOf(point.onPlay) == SideOf(contract.declarer)),
      cards_(CardsOf(point.legal)),
      likeNext_(cards_.size()),
      successes_(cards_.size()),
      counts_(cards_.size()),
      tricks_(cards_.size()),
      won_(cards_.size()),
      matchpoints_(cards_.size()),
      imps_(cards_.size()) {
  for (std::size_t i = 0; i + 1 < cards_.size(); ++i) {
    likeNext_[i] = cards_[i].suit == cards_[i + 1].suit;
  }
}

void CardTally::AppendPositions(const HandTable& deal,
                                std::vector<SolverPosition>& positions) const {
  positions.push_back(point_.PositionIn(deal));
}

int CardTally::DeclarerTricks(double tricks) const {
  const auto own = static_cast<int>(tricks);
  return declaring_ ? own : kCardsInHand - own;
}

bool CardTally::Add(std::span<const CardScores> answers) {
  std::vector<double> tricks(cards_.size(), -1);
  for (const CardScore& score : answers.front()) {
    const auto found = std::ranges::find(cards_, score.card);
    const int all = score.tricks + point_.tricksWon[SideOf(point_.onPlay)];
    if (found == cards_.end() || all < 0 || all > kCardsInHand) return false;
    tricks[static_cast<std::size_t>(found - cards_.begin())] = all;
  }
  if (std::ranges::find(tricks, -1.0) != tricks.end()) return false;
  tricks_.Add(tricks);
  std::vector<double> won(cards_.size());
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    const int declarer = DeclarerTricks(tricks[i]);
    ++counts_[i].at(static_cast<std::size_t>(declarer));
    if ((declarer >= contract_.TricksNeeded()) == declaring_) {
      ++successes_[i];
      won[i] = kAll;
    }
    if (i + 1 < cards_.size() && tricks[i] != tricks[i + 1]) likeNext_[i] = false;
  }
  won_.Add(won);
  Compare(tricks);
  return true;
}

/// Scores the cards of a deal against each other.
void CardTally::Compare(const std::vector<double>& tricks) {
  const std::size_t count = cards_.size();
  std::vector<double> matchpoints(count);
  std::vector<double> imps(count);
  const int sign = declaring_ ? 1 : -1;
  const auto score = [&](std::size_t i) {
    return sign * scores_.at(static_cast<std::size_t>(DeclarerTricks(tricks[i])));
  };
  const auto others = static_cast<double>(std::max<std::size_t>(count, 2) - 1);
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t j = 0; j < count; ++j) {
      if (i == j) continue;
      const int difference = score(i) - score(j);
      matchpoints[i] += (difference > 0 ? kAll : difference == 0 ? kAll / 2 : 0) / others;
      imps[i] += ToImps(difference) / others;
    }
  }
  matchpoints_.Add(matchpoints);
  imps_.Add(imps);
}

bool CardTally::Precise() const {
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    if (tricks_.Mean(i).error > kTricksError) return false;
    if (Percentage(successes_[i], tricks_.Count()).error > kPercentError) return false;
  }
  return true;
}

/// Of the cards `first` up to `next`, which are equals.
CardRow CardTally::RowOf(std::size_t first, std::size_t next) const {
  CardRow row;
  row.cards.assign(cards_.begin() + static_cast<std::ptrdiff_t>(first),
                   cards_.begin() + static_cast<std::ptrdiff_t>(next));
  row.success = Percentage(successes_[first], tricks_.Count());
  row.tricks = tricks_.Mean(first);
  row.matchpoints = matchpoints_.Mean(first);
  row.imps = imps_.Mean(first);
  row.declarerTricks = counts_[first];
  return row;
}

CardTable CardTally::Table() const {
  CardTable table{contract_, point_.onPlay, point_.played, declaring_, tricks_.Count(), {}};
  if (table.deals == 0) return table;
  std::vector<std::size_t> firsts;  // of groups of equals
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    if (i == 0 || !likeNext_[i - 1]) firsts.push_back(i);
  }
  std::vector<std::size_t> order(firsts.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
    const auto rank = [&](std::size_t group) {
      const std::size_t card = firsts[group];
      return std::tuple(successes_[card], tricks_.Mean(card).mean);
    };
    return rank(a) > rank(b);
  });
  table.rows.reserve(order.size());
  const std::size_t best = firsts[order.front()];
  for (const std::size_t group : order) {
    const std::size_t next = group + 1 < firsts.size() ? firsts[group + 1] : cards_.size();
    table.rows.push_back(RowOf(firsts[group], next));
    table.rows.back().successBehind = won_.Difference(best, firsts[group]);
    table.rows.back().tricksBehind = tricks_.Difference(best, firsts[group]);
  }
  return table;
}

}  // namespace tricklet
