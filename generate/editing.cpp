#include "generate/editing.h"

#include <algorithm>
#include <utility>

#include "core/statistics.h"
#include "generate/deal.h"
#include "generate/hand_text.h"

namespace tricklet {
namespace {

bool IsOf(const std::optional<Board>& kept, const Board& board) {
  return kept && kept->BoardNumber == board.BoardNumber;
}

/// A board to go back to; nothing when none was kept, or one of another number.
std::optional<Board> TakeKept(std::optional<Board>& kept, const Board& board) {
  if (!IsOf(kept, board)) return std::nullopt;
  return std::exchange(kept, std::nullopt);
}

/// Marks the board only when its cards have really moved.
void Replace(Board& board, const HandTable& hands) {
  if (board.Hands == hands) return;
  board.Hands = hands;
  MarkEdited(board);
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
  Replace(board, hands);
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
  Replace(board, hands);
  return std::nullopt;
}

bool CanUndoClear(const Board& board, const EditHistory& history) {
  return IsOf(history.ClearFrames, board);
}
bool CanUndoFill(const Board& board, const EditHistory& history) {
  return IsOf(history.CardFrame, board);
}

void Clear(Board& board, EditHistory& history) {
  if (HasCards(board.Hands) || board.NumCalls() > 0) history.ClearFrames = board;
  ClearAll(board);
}

bool UndoClear(Board& board, EditHistory& history) {
  const auto kept = TakeKept(history.ClearFrames, board);
  if (!kept) return false;
  board = *kept;
  board.HandChanged = true;
  board.PlayMode = false;
  history.CardFrame.reset();  // a fill since the clear is gone with it
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

bool FourthHandIsOpen(const Board& board) {
  const Statistics statistics = GetStats(board.Hands);
  return std::count(statistics.SeatCardCount.begin(), statistics.SeatCardCount.end(),
                    kCardsInHand) == kSeats - 1;
}

bool FillFourthHand(Board& board, EditHistory& history) {
  if (!FourthHandIsOpen(board)) return false;
  history.CardFrame = board;
  const Statistics statistics = GetStats(board.Hands);
  PerSuit<Holding>& fourth = board.Hands[statistics.IncompleteSeat];
  for (const Suit suit : kAllSuits) fourth[suit] = fourth[suit] | statistics.MissingCards[suit];
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
