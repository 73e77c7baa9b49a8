#include "core/call.h"

#include <algorithm>

#include "core/fault.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kDenominations = "CDHSN";

std::optional<Call> BidFromText(std::string_view upper) {
  if (upper.size() < 2 || upper.size() > 3 || upper[0] < '1' || upper[0] > '7') return std::nullopt;
  const auto position = kDenominations.find(upper[1]);
  if (position == std::string_view::npos) return std::nullopt;
  if (upper.size() == 3 && (upper[1] != 'N' || upper[2] != 'T')) return std::nullopt;
  return Call::Bid(upper[0] - '0', static_cast<BidStrain>(position));
}

}  // namespace

std::string Call::Text() const {
  if (IsPass()) return "Pass";
  if (IsDouble()) return "Dbl";
  if (IsRedouble()) return "Rdbl";
  if (IsUnread()) return {};
  std::string text(1, static_cast<char>('0' + Level()));
  text += StrainLetter[ToStrain(Denomination())];
  return text;
}

std::optional<Call> Call::FromText(std::string_view text) {
  constexpr std::size_t kLongestCall = 8;
  const std::string_view trimmed = Trim(text);
  if (trimmed.empty() || trimmed.size() > kLongestCall) return std::nullopt;
  const std::string upper = ToUpper(trimmed);
  if (upper == "PASS" || upper == "P") return Pass();
  if (upper == "DBL" || upper == "X" || upper == "D") return Double();
  if (upper == "RDBL" || upper == "XX" || upper == "R") return Redouble();
  return BidFromText(upper);
}

void CallList::Clear() {
  count_ = 0;
  unread_.clear();
}

void CallList::Add(Call call, std::string_view text) {
  if (Full()) throw Fault(FaultNumber::SubscriptOutOfRange, "The auction has more than 100 calls");
  if (call.IsUnread()) unread_.emplace_back(text);
  calls_.at(static_cast<std::size_t>(count_)) = call;
  ++count_;
}

void CallList::AddFrom(const CallList& other, int first) {
  for (int i = first; i < other.Count(); ++i) {
    Add(other[i], other[i].IsUnread() ? other.TextAt(i) : std::string());
  }
}

void CallList::RemoveLast() {
  if (count_ == 0) return;
  --count_;
  if (calls_.at(static_cast<std::size_t>(count_)).IsUnread()) unread_.pop_back();
}

std::string CallList::TextAt(int index) const {
  const Call call = (*this)[index];
  if (!call.IsUnread()) return call.Text();
  const auto before =
      std::count_if(begin(), begin() + index, [](Call other) { return other.IsUnread(); });
  return unread_.at(static_cast<std::size_t>(before));
}

std::string CallList::ShownAt(int index) const {
  constexpr std::size_t kLongestShown = 16;
  return Showable(TextAt(index), kLongestShown);
}

bool operator==(const CallList& a, const CallList& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end()) && a.unread_ == b.unread_;
}

}  // namespace tricklet
