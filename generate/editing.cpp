#include "generate/editing.h"

#include <algorithm>
#include <utility>

#include "core/statistics.h"
#include "generate/deal.h"
#include "generate/hand_text.h"

namespace tricklet {
namespace {

bool IsOf(const std::optional<Board>& kept, const Board& board) {
  return kept && kept->boardNumber == board.boardNumber;
}

/// The board to go back to; nothing when none was kept, or one with another number.
std::optional<Board> TakeKept(std::optional<Board>& kept, const Board& board) {
  if (!IsOf(kept, board)) return std::nullopt;
  return std::exchange(kept, std::nullopt);
}

/// Marks the board only when its cards have really moved.
void Replace(Board& board, const HandTable& hands) {
  if (board.hands == hands) return;
  board.hands = hands;
  MarkEdited(board);
}

void ReturnToPack(HandTable& hands, Card card) {
  for (const Seat seat : kAllSeats) hands[seat][card.suit].Remove(card.rank);
}

}  // namespace

void MarkEdited(Board& board) {
  board.handChanged = true;
  board.makeableValid = false;
}

bool MoveCard(Board& board, Card card, std::optional<Seat> to) {
  HandTable hands = board.hands;
  ReturnToPack(hands, card);
  if (to) {
    if (GetStats(hands).seatCardCount[*to] >= kCardsInHand) return false;
    AddCard(hands, card, *to);
  }
  Replace(board, hands);
  return true;
}

std::optional<std::string> SetHand(Board& board, Seat seat, std::string_view text, TakeCards take) {
  PerSuit<Holding> hand;
  if (auto problem = ReadHandText(text, hand)) return problem;
  HandTable hands = board.hands;
  hands[seat] = hand;
  for (const Seat other : kAllSeats) {
    if (other == seat) continue;
    for (const Suit suit : kAllSuits) {
      const Holding both = hands[other][suit] & hand[suit];
      if (!both.Empty() && take == TakeCards::FromPack) {
        return CardText(HighestCard(suit, both)) + " is held by " + std::string(SeatName[other]);
      }
      hands[other][suit] = hands[other][suit] - both;
    }
  }
  Replace(board, hands);
  return std::nullopt;
}

bool CanUndoClear(const Board& board, const EditHistory& history) {
  return IsOf(history.clearFrames, board);
}
bool CanUndoFill(const Board& board, const EditHistory& history) {
  return IsOf(history.cardFrame, board);
}

void Clear(Board& board, EditHistory& history) {
  if (HasCards(board.hands) || board.NumCalls() > 0) history.clearFrames = board;
  ClearAll(board);
}

bool UndoClear(Board& board, EditHistory& history) {
  const auto kept = TakeKept(history.clearFrames, board);
  if (!kept) return false;
  board = *kept;
  board.handChanged = true;
  board.playMode = false;
  history.cardFrame.reset();  // a fill since the clear is gone with it
  return true;
}

bool Fill(Board& board, EditHistory& history, RandomSource& random) {
  const Board before = board;
  if (!Random(board.hands, random)) return false;
  board.handChanged = true;
  if (board.hands == before.hands) return true;
  history.cardFrame = before;
  MarkEdited(board);
  return true;
}

bool FourthHandIsOpen(const Board& board) {
  const Statistics statistics = GetStats(board.hands);
  return std::count(statistics.seatCardCount.begin(), statistics.seatCardCount.end(),
                    kCardsInHand) == kSeats - 1;
}

bool FillFourthHand(Board& board, EditHistory& history) {
  if (!FourthHandIsOpen(board)) return false;
  history.cardFrame = board;
  const Statistics statistics = GetStats(board.hands);
  PerSuit<Holding>& fourth = board.hands[statistics.incompleteSeat];
  for (const Suit suit : kAllSuits) fourth[suit] = fourth[suit] | statistics.missingCards[suit];
  MarkEdited(board);
  return true;
}

bool UndoFill(Board& board, EditHistory& history) {
  const auto kept = TakeKept(history.cardFrame, board);
  if (!kept) return false;
  board.hands = kept->hands;
  board.makeable = kept->makeable;
  board.makeableValid = kept->makeableValid;
  board.handChanged = true;
  return true;
}

}  // namespace tricklet
