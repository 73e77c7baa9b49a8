#include "review/play_review.h"

#include <algorithm>
#include <cstdlib>

#include "core/scoring.h"

namespace tricklet {
namespace {

/// Who plays the card at `index` of a play that has got so far.
Seat PlayerOf(const LegalPlay& play, std::size_t index) {
  return SeatAfter(play.leaders.at(index / kSeats), static_cast<int>(index % kSeats));
}

/// What the card gave away, for its own side to have lost.
int GivenBy(Seat seat, Seat declarer, int before, int after) {
  const int gain = SideOf(seat) == SideOf(declarer) ? after - before : before - after;
  return std::max(0, -gain);
}

std::string Remark(const RecordedPlay& record, const LegalPlay& play) {
  const auto legal = static_cast<std::size_t>(play.cards);
  if (legal < record.cards.size()) {
    return "Card " + std::to_string(legal + 1) + ", the " + CardText(record.cards[legal]) + " by " +
           std::string(SeatName[PlayerOf(play, legal)]) +
           ", is against the rules: reviewed up to there";
  }
  const auto played = DeclarerTricks(record.board, record.cards);
  if (!played || !record.tricks || *played == *record.tricks) return {};
  return "The record gives declarer " + std::to_string(*record.tricks) + " tricks, its cards " +
         std::to_string(*played);
}

/// A play that ends early ended with a claim, if its tricks are known.
int ClaimedBeyond(const RecordedPlay& record, const LegalPlay& play, int last) {
  const bool claimed = static_cast<std::size_t>(play.cards) == record.cards.size() &&
                       play.cards < kCardsInPack && record.tricks;
  return claimed ? *record.tricks - last : 0;
}

}  // namespace

int PlayReview::TricksAfter(std::size_t cardsPlayed) const {
  return cardsPlayed == 0 ? doubleDummy : cards.at(cardsPlayed - 1).declarerTricks;
}

std::optional<std::size_t> PlayReview::MistakeFrom(std::size_t from) const {
  for (std::size_t i = from; i < cards.size(); ++i) {
    if (cards[i].given > 0) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> PlayReview::MistakeBefore(std::size_t from) const {
  for (std::size_t i = std::min(from, cards.size()); i > 0; --i) {
    if (cards[i - 1].given > 0) return i - 1;
  }
  return std::nullopt;
}

std::string WhyNoReview(const RecordedPlay& record) {
  if (!IsComplete(record.board.hands)) return "There is no review of an incomplete deal";
  if (record.board.contractLevel == 0) return "There is no review without a contract";
  if (FollowPlay(record.board, record.cards).cards == 0) {
    return record.cards.empty() ? "There are no cards to review"
                                : "The first card of the play is against the rules";
  }
  return {};
}

SolverPlay PlayToSolve(const RecordedPlay& record) {
  SolverPlay play{record.board.trumps, record.board.declarer, record.board.hands, record.cards};
  play.cards.resize(static_cast<std::size_t>(FollowPlay(record.board, record.cards).cards));
  return play;
}

PlayReview MakeReview(const RecordedPlay& record, const PlayTricks& tricks) {
  const LegalPlay play = FollowPlay(record.board, record.cards);
  PlayReview review;
  review.declarer = record.board.declarer;
  review.needed = record.board.contractLevel + kBook;
  review.doubleDummy = tricks.at(0);
  review.tricks = record.tricks;
  for (std::size_t i = 0; i < static_cast<std::size_t>(play.cards); ++i) {
    const Seat seat = PlayerOf(play, i);
    const std::size_t trick = i / kSeats;
    const int given = GivenBy(seat, review.declarer, tricks.at(i), tricks.at(i + 1));
    const bool wins = trick + 1 < play.leaders.size() && play.leaders[trick + 1] == seat;
    review.cards.push_back({record.cards[i], seat, static_cast<int>(trick), i % kSeats == 0, wins,
                            tricks.at(i + 1), given});
    const Seat player = seat == PartnerOf(review.declarer) ? review.declarer : seat;
    if (i == 0) {
      review.given[player].lead = given;
    } else {
      review.given[player].play += given;
    }
  }
  review.claimed = ClaimedBeyond(record, play, tricks.back());
  review.remark = Remark(record, play);
  return review;
}

std::optional<PlayReview> ReviewPlay(Solver& solver, const RecordedPlay& record,
                                     std::string& failure) {
  failure = WhyNoReview(record);
  if (failure.empty()) failure = solver.Missing();
  if (!failure.empty()) return std::nullopt;
  const SolverPlay play = PlayToSolve(record);
  PlayTricks tricks;
  failure = solver.SolvePlays({&play, 1}, {&tricks, 1});
  if (!failure.empty()) return std::nullopt;
  return MakeReview(record, tricks);
}

}  // namespace tricklet
