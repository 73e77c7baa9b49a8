#include "generate/constraints_text.h"

#include <gtest/gtest.h>

#include "conditions/evaluator.h"
#include "generate/deal.h"
#include "tests/support/asked.h"

namespace tricklet::test {
namespace {

/// The text and the form agree about each deal: of those dealt to the form, and of any.
TEST(ConditionText, SaysWhatTheFormSays) {
  using enum HandType;
  std::vector<Constraints> cases{Constraints(), Asking(Points(12, 14), Min(0, 5, 0, 0)),
                                 Asking(Max(4, 4, 13, 13, {15, 17}), Points(8))};
  for (const HandType type : kAllHandTypes) {
    for (const int option : {0, 1}) {
      Constraints one = Asking(OfType(type), {});
      one.handTypeOption[type][GenHand::First] = option;
      one.numGenHands = 1;
      one.relativeToDealer = true;
      cases.push_back(one);
    }
  }
  RandomSource random(11);
  for (const Constraints& constraints : cases) {
    const std::string text = ConditionText(constraints, Seat::South);
    const ReadOutcome outcome = ReadScript(text);
    ASSERT_TRUE(outcome.script) << text;
    Evaluator evaluator(outcome.script, nullptr, random);
    for (int i = 0; i < 400; ++i) {
      HandTable hands;
      if (i % 2 == 0) {
        hands = GenerateDeal(constraints, Seat::South, random);
      } else {
        ASSERT_TRUE(Random(hands, random));
      }
      ASSERT_EQ(evaluator.Accepts(hands), MeetsConstraints(constraints, hands, Seat::South))
          << text;
    }
  }
}

}  // namespace
}  // namespace tricklet::test
