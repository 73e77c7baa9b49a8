#include "review/review_cache.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "analysis/deal_text.h"
#include "core/fault.h"
#include "core/recorded_play.h"
#include "core/text.h"
#include "core/trick.h"
#include "disk/file_io.h"
#include "library/library_write.h"

namespace tricklet {
namespace {

constexpr const char* kFileName = ".tricklet-review";
constexpr std::string_view kDigits = "0123456789abcd";

char RankLetter(Rank rank) {
  return rank == Rank::Ten ? 'T' : RankText[rank][0];
}

std::string DealAndContract(char kind, const HandTable& hands, Seat declarer, Strain trumps) {
  return std::string(1, kind) + " " + SolverDealText(hands) + " " +
         std::string(StrainLetter[trumps]) + " " + std::string(SeatName[declarer].substr(0, 1));
}

std::string QuestionOf(const SolverPlay& play) {
  std::string text = DealAndContract('P', play.hands, play.declarer, play.trumps) + " ";
  for (const Card card : play.cards) {
    text += StrainLetter[ToStrain(card.suit)];
    text += RankLetter(card.rank);
  }
  return text;
}

std::string QuestionOf(const HandTable& hands, LeadKey key) {
  return DealAndContract('L', hands, key.first, key.second);
}

/// 0..13; -1 for what is no digit.
int TricksOf(char digit) {
  const auto at = kDigits.find(digit);
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

bool AreTricks(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char digit) { return TricksOf(digit) >= 0; });
}

/// Cards of one side never cost the other side, and at each trick's end there are no fewer tricks
/// than declarer has won, and no more than the defenders have left him.
bool ArePossible(const SolverPlay& play, const PlayTricks& tricks) {
  Trick trick;
  Seat onPlay = SeatAfter(play.declarer);
  int won = 0;
  int lost = 0;
  for (std::size_t i = 0; i < play.cards.size(); ++i) {
    const int change = tricks[i + 1] - tricks[i];
    if (SideOf(onPlay) == SideOf(play.declarer) ? change > 0 : change < 0) return false;
    trick.Add(play.cards[i], onPlay, play.trumps);
    onPlay = SeatAfter(onPlay);
    if (trick.cardsInTrick < kSeats) continue;
    onPlay = trick.trickWinner;
    trick.cardsInTrick = 0;
    ++(SideOf(onPlay) == SideOf(play.declarer) ? won : lost);
    if (tricks[i + 1] < won || tricks[i + 1] > kCardsInHand - lost) return false;
  }
  return true;
}

/// The cards of a hand, suit by suit, the highest first.
std::vector<Card> CardsOf(const PerSuit<Holding>& hand) {
  std::vector<Card> cards;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (hand[card.suit].Has(card.rank)) cards.push_back(card);
  }
  return cards;
}

std::filesystem::path CachePath(const Session& session) {
  return session.LibraryPath() / kFileName;
}

/// A link under this name is none of ours: what it leads to is neither read nor written.
bool IsLink(const std::filesystem::path& path) {
  std::error_code failure;
  return std::filesystem::is_symlink(std::filesystem::symlink_status(path, failure));
}

}  // namespace

/// Empty where nothing is known.
std::string_view ReviewCache::Use(const std::string& question) {
  const auto found = answers_.find(question);
  if (found == answers_.end()) return {};
  found->second.used = true;
  return found->second.tricks;
}

std::optional<PlayTricks> ReviewCache::Find(const SolverPlay& play) {
  const std::string_view digits = Use(QuestionOf(play));
  if (digits.size() != play.cards.size() + 1) return std::nullopt;
  PlayTricks tricks;
  for (const char digit : digits) tricks.push_back(TricksOf(digit));
  if (!ArePossible(play, tricks)) return std::nullopt;
  return tricks;
}

void ReviewCache::Add(const SolverPlay& play, const PlayTricks& tricks) {
  std::string digits;
  for (const int each : tricks) digits += kDigits.at(static_cast<std::size_t>(each));
  answers_[QuestionOf(play)] = {digits, true};
  added_ = true;
}

std::optional<LeadTricks> ReviewCache::FindLeads(const HandTable& hands, LeadKey key) {
  const std::string_view digits = Use(QuestionOf(hands, key));
  const std::vector<Card> cards = CardsOf(hands[SeatAfter(key.first)]);
  if (digits.empty() || digits.size() != cards.size()) return std::nullopt;
  LeadTricks leads;
  for (std::size_t i = 0; i < cards.size(); ++i) {
    leads.emplace_back(cards[i], TricksOf(digits[i]));
  }
  return leads;
}

void ReviewCache::AddLeads(const HandTable& hands, LeadKey key, const LeadTricks& leads) {
  std::string digits;
  for (const auto& lead : leads) digits += kDigits.at(static_cast<std::size_t>(lead.second));
  answers_[QuestionOf(hands, key)] = {digits, true};
  added_ = true;
}

void ReviewCache::Parse(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    const auto blank = line.rfind(' ');
    if (blank == std::string_view::npos || !AreTricks(line.substr(blank + 1))) continue;
    answers_[std::string(line.substr(0, blank))].tricks = line.substr(blank + 1);
  }
}

std::string ReviewCache::Text() const {
  std::string text;
  for (const auto& [question, answer] : answers_) {
    const std::size_t length = question.size() + answer.tricks.size() + 2;
    if (!answer.used || text.size() + length > kMaxReviewCacheBytes) continue;
    text += question + " " + answer.tricks + "\n";
  }
  return text;
}

bool ReviewCache::Changed() const {
  return added_ || std::any_of(answers_.begin(), answers_.end(),
                               [](const auto& each) { return !each.second.used; });
}

ReviewCache LoadReviewCache(const Session& session) {
  ReviewCache cache;
  if (IsLink(CachePath(session))) return cache;
  try {
    cache.Parse(ReadWholeFile(CachePath(session), kMaxReviewCacheBytes));
  } catch (const Fault&) {
    // There is none, or what there is cannot be had: then all is solved again.
  }
  return cache;
}

void StoreReviewCache(Session& session, const ReviewCache& cache) {
  if (!cache.Changed() || IsLink(CachePath(session))) return;
  try {
    auto write = LibraryWrite::BeginAtOnce(session);
    if (!write) return;
    write->Replace(CachePath(session), cache.Text());
    write->Finish();
  } catch (const Fault&) {
    // A library that cannot be written keeps nothing.
  }
}

}  // namespace tricklet
