// Any text as a table of deals: a single deal is a possible one, and every plan for the table
// holds.
#include "formats/exchange/text_deals.h"
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  if (const auto deal = DealInText(bytes)) {
    Board board;
    board.hands = *deal;
    Require(HasCards(board.hands) && !HasCardTwice(board.hands));
    CheckBoard(board);
  }
  CheckPlans(ReadTextDeals(bytes));
}
