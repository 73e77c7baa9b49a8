#include "generate/editing.h"

#include <utility>

#include "core/statistics.h"
#include "generate/deal.h"
#include "generate/hand_text.h"

namespace tricklet {
namespace {

/// A board to go back to; nothing when none was kept, or one of another number.
std::optional<Board> TakeKept(std::optional<Board>& kept, const Board& board) {
  if (kept && kept->BoardNumber != board.BoardNumber) return std::nullopt;
  return std::exchange(kept, std::nullopt);
}

void ReturnToPack(HandTable& hands, Card card) {
  for (const Seat seat : kAllSeats) hands[seat][card.suit].Remove(card.rank);
}

}  // namespace

void MarkEdited(Board& board) {
  board.HandChanged = true;
  board.MakeableValid = false;
}

bool MoveCard(Board& board, Card card, std::optional<Seat> to) {
  HandTable hands = board.Hands;
  ReturnToPack(hands, card);
  if (to) {
    if (GetStats(hands).SeatCardCount[*to] >= kCardsInHand) return false;
    AddCard(hands, card, *to);
  }
  board.Hands = hands;
  MarkEdited(board);
  return true;
}

std::optional<std::string> SetHand(Board& board, Seat seat, std::string_view text, TakeCards take) {
  PerSuit<Holding> hand;
  if (auto problem = ReadHandText(text, hand)) return problem;
  HandTable hands = board.Hands;
  hands[seat] = hand;
  for (const Seat other : kAllSeats) {
    if (other == seat) continue;
    for (const Suit suit : kAllSuits) {
      const Holding both = hands[other][suit] & hand[suit];
      if (!both.Empty() && take == TakeCards::FromPack) {
        return CardText(FirstCard(suit, both)) + " is held by " + std::string(SeatName[other]);
      }
      hands[other][suit] = hands[other][suit] - both;
    }
  }
  board.Hands = hands;
  MarkEdited(board);
  return std::nullopt;
}

bool FillFourthHand(Board& board) {
  const Statistics statistics = GetStats(board.Hands);
  int full = 0;
  for (const int count : statistics.SeatCardCount) full += count == kCardsInHand ? 1 : 0;
  if (full != kSeats - 1) return false;
  PerSuit<Holding>& fourth = board.Hands[statistics.IncompleteSeat];
  for (const Suit suit : kAllSuits) fourth[suit] = fourth[suit] | statistics.MissingCards[suit];
  MarkEdited(board);
  return true;
}

void Clear(Board& board, EditHistory& history) {
  history.ClearFrames = board;
  ClearAll(board);
}

bool UndoClear(Board& board, EditHistory& history) {
  const auto kept = TakeKept(history.ClearFrames, board);
  if (!kept) return false;
  board = *kept;
  board.HandChanged = true;
  board.PlayMode = false;
  return true;
}

bool Fill(Board& board, EditHistory& history, RandomSource& random) {
  const Board before = board;
  if (!Random(board.Hands, random)) return false;
  board.HandChanged = true;
  if (board.Hands == before.Hands) return true;
  history.CardFrame = before;
  MarkEdited(board);
  return true;
}

bool UndoFill(Board& board, EditHistory& history) {
  const auto kept = TakeKept(history.CardFrame, board);
  if (!kept) return false;
  board.Hands = kept->Hands;
  board.Makeable = kept->Makeable;
  board.MakeableValid = kept->MakeableValid;
  board.HandChanged = true;
  return true;
}

}  // namespace tricklet
