// What a review says, in sentences of the window.
#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "formats/results/traveller.h"
#include "review/play_review.h"

namespace tricklet::ui {

/// The results that a play is compared with.
struct PlayedAt {
  const Traveller& traveller;  ///< of the board
  int row = -1;                ///< that of the play; -1 when it is none of them
  const Board& board;          ///< with the contract that was played
};

/// "Tricks South can still end with".
QString TricksTitle(const PlayReview& review);
/// "10 needed".
QString NeedText(const PlayReview& review);
/// "Card 27, the ♦9 by South: 10 tricks, 1 given away"; before the lead "Double-dummy: 10 tricks".
/// `cards` is 0 to the number of cards reviewed.
QString TricksAfterText(const PlayReview& review, int cards);
/// The whole line in words, that of `place` first, for those who do not see it.
QString SpokenTricks(const PlayReview& review, std::optional<int> place);
/// "The ♠J gave away a trick: it cost 40 %". `card` is one of the review that did.
QString MistakeText(const ReviewedCard& card, const PlayReview& review, const PlayedAt& at);
/// The result against double-dummy play, a sentence in each entry; none where it is not known.
QStringList ResultTexts(const PlayReview& review, const PlayedAt& at);

}  // namespace tricklet::ui
