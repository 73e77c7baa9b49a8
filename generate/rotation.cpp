#include "generate/rotation.h"

#include <algorithm>
#include <utility>

#include "generate/editing.h"

namespace tricklet {
namespace {

/// Seats that a rotation moves the cards on, clockwise: 1, 3 or 2.
int StepsOf(Rotation rotation) {
  switch (rotation) {
    case Rotation::Clockwise:
      return 1;
    case Rotation::AntiClockwise:
      return 3;
    case Rotation::HalfTurn:
      break;
  }
  return 2;
}

void RotateHands(HandTable& hands, Rotation rotation) {
  const HandTable before = hands;
  for (const Seat seat : kAllSeats) hands[SeatAfter(seat, StepsOf(rotation))] = before[seat];
}

/// Moves every call `steps` seats on, clockwise: by as many passes before the auction or, where the
/// opening passes would then go round the whole table, by taking the rest of the round away.
bool MoveCalls(CallList& calls, int steps) {
  const auto* const opening =
      std::find_if(calls.begin(), calls.end(), [](Call call) { return !call.IsPass(); });
  const int passes = static_cast<int>(opening - calls.begin());
  if (calls.Empty() || (passes == kSeats && calls.Count() == kSeats)) return true;
  if (passes >= kSeats) return false;
  // Nobody has opened, and four passes would end the auction.
  if (opening == calls.end() && passes + steps >= kSeats) return false;
  const int added = passes + steps < kSeats ? steps : steps - kSeats;
  if (calls.Count() + added > CallList::kCapacity) return false;
  CallList moved;
  for (int pass = 0; pass < passes + added; ++pass) moved.Add(Call::Pass());
  moved.AddFrom(calls, passes);
  calls = moved;
  return true;
}

}  // namespace

void swap(Board& board, Seat from, Seat to) {
  MarkEdited(board);
  std::swap(board.hands[from], board.hands[to]);
}

bool Rotate(Board& board, Rotation rotation, bool takeAuction) {
  MarkEdited(board);
  RotateHands(board.hands, rotation);
  if (!takeAuction) return true;
  const bool moved = MoveCalls(board.calls, StepsOf(rotation));
  if (moved) GetContract(board);
  return moved;
}

void SwapSuit(Board& board, Suit suit1, Suit suit2) {
  MarkEdited(board);
  for (const Seat seat : kAllSeats) std::swap(board.hands[seat][suit1], board.hands[seat][suit2]);
}

}  // namespace tricklet
