#include "generate/constraints_text.h"

#include <vector>

#include "conditions/vocabulary.h"
#include "generate/hand_type.h"

namespace tricklet {
namespace {

std::string LengthOf(Suit suit, const std::string& seat) {
  return std::string(WordFor(suit)) + "(" + seat + ")";
}

/// "hcp(north) >= 15" and "hcp(north) <= 17"; nothing of a limit that all hands meet.
void AddLimits(std::vector<std::string>& parts, const std::string& what, Limits limits, int most) {
  if (limits.minimum == limits.maximum) {
    parts.push_back(what + " == " + std::to_string(limits.minimum));
    return;
  }
  if (limits.minimum > 0) parts.push_back(what + " >= " + std::to_string(limits.minimum));
  if (limits.maximum < most) parts.push_back(what + " <= " + std::to_string(limits.maximum));
}

std::string AnySuit(const std::string& seat, const std::string& length, int suits) {
  std::string text;
  for (const Suit suit : kAllSuits) {
    if (IndexOf(suit) >= suits) break;
    text += (text.empty() ? "" : " || ") + LengthOf(suit, seat) + length;
  }
  return "(" + text + ")";
}

std::string TypeText(HandType type, int option, const std::string& seat) {
  switch (type) {
    case HandType::Balanced:
      return "shape(" + seat + ", any 4333 + any 4432 + any 5332" +
             (option == 1 ? " - 5xxx - x5xx)" : ")");
    case HandType::Weak2:
      return AnySuit(seat, " == " + std::to_string(kWeakTwoLength), 2 + option);
    case HandType::FourFourFourOne:
      return "shape(" + seat + ", any 4441)";
    case HandType::Preempt:
      break;
  }
  return AnySuit(seat, " >= " + std::to_string(kShortestPreempt), kSuits);
}

std::string HandCondition(const Constraints& constraints, GenHand hand, const std::string& seat) {
  std::vector<std::string> parts;
  AddLimits(parts, "hcp(" + seat + ")", constraints.pointLimits[hand], kMaxPoints);
  if (constraints.useSuitLengths[hand]) {
    for (const Suit suit : kAllSuits) {
      AddLimits(parts, LengthOf(suit, seat), constraints.suitLimits[hand][suit], kCardsInHand);
    }
  } else {
    const HandType type = constraints.handTypeIndex[hand];
    parts.push_back(TypeText(type, constraints.handTypeOption[type][hand], seat));
  }
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : " && ") + part;
  return text;
}

}  // namespace

std::string ConditionText(const Constraints& constraints, Seat dealer) {
  std::string text;
  for (const GenHand hand : kGenHands) {
    if (IndexOf(hand) >= constraints.numGenHands) break;
    const Seat seat = SeatOf(constraints, hand, dealer);
    const std::string condition = HandCondition(constraints, hand, std::string(WordFor(seat)));
    if (condition.empty()) continue;
    text += (text.empty() ? "" : " &&\n") + condition;
  }
  return text.empty() ? "1\n" : text + "\n";
}

}  // namespace tricklet
