// The command that tells where a recorded play lost its tricks.
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/scoring.h"
#include "formats/results/traveller.h"
#include "review/cost.h"
#include "review/play_review.h"

namespace tricklet::cli {
namespace {

struct Asked {
  int board = 0;
  int table = 0;  ///< from 1 on, in the order of the traveller; 0: the first with a play
};

char SeatLetterOf(Seat seat) {
  return SeatName[seat].front();
}

/// "4Sx S"
std::string ContractOf(const Board& board) {
  const auto crosses = static_cast<std::size_t>(DoublingOf(board.contract));
  return std::to_string(board.contractLevel) + std::string(StrainLetter[board.trumps]) +
         std::string(crosses, 'x') + " " + SeatLetterOf(board.declarer);
}

/// "H10"
std::string LettersOf(Card card) {
  return std::string(StrainLetter[ToStrain(card.suit)]) + std::string(RankText[card.rank]);
}

/// The row to review; -1, after a message, when there is none.
int ChooseRow(Session& session, const Traveller& traveller, int table) {
  const auto count = static_cast<int>(traveller.rows.size());
  const std::string board = "board " + std::to_string(traveller.boardNumber);
  if (table > count) {
    session.host.Tell("There is no table " + std::to_string(table) + " of " + board);
    return -1;
  }
  if (table > 0) return table - 1;
  for (int row = 0; row < count; ++row) {
    if (!traveller.rows[static_cast<std::size_t>(row)].record.cards.empty()) return row;
  }
  session.host.Tell("There is no play of " + board);
  return -1;
}

void Print(std::ostream& out, const PlayReview& review) {
  PerSeat<int> sums;
  int number = 0;
  for (const ReviewedCard& card : review.cards) {
    out << ++number << '\t' << SeatLetterOf(card.seat) << '\t' << LettersOf(card.card) << '\t'
        << card.declarerTricks << '\t' << card.given << '\n';
    sums[card.seat] += card.given;
  }
  for (const Seat seat : kAllSeats) out << SeatLetterOf(seat) << '\t' << sums[seat] << '\n';
}

/// "4♠x by South, 9 tricks; double-dummy 10. 1 trick less cost 50 %."
std::string Summary(const Traveller& traveller, int row, const Board& board,
                    const PlayReview& review) {
  std::string text = kDoubleDummyLabel;
  text += " Declarer could make " + std::to_string(review.doubleDummy) + " tricks";
  if (!review.tricks) return text + ".";
  text += " and made " + std::to_string(*review.tricks);
  const Side declarers = SideOf(review.declarer);
  const bool lost = *review.tricks < review.doubleDummy;
  const Side loser = lost ? declarers : SideOf(SeatAfter(review.declarer));
  const Cost cost = CostOf(traveller, row, board, loser, review.doubleDummy, *review.tricks);
  if (cost.points == 0) return text + ".";
  return text + ", which cost " + (loser == Side::NorthSouth ? "North-South " : "East-West ") +
         CostText(cost) + ".";
}

ExitCode Review(const Context& context, const Asked& asked) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  const Traveller traveller = MakeTraveller(LoadLinData(session), asked.board);
  const int row = ChooseRow(session, traveller, asked.table);
  if (row < 0) return ExitCode::Refused;
  const RecordedPlay& record = traveller.rows[static_cast<std::size_t>(row)].record;
  std::string failure;
  const auto review = ReviewPlay(session.getSolver(), record, failure);
  if (!review) {
    session.host.Tell(failure);
    return ExitCode::Refused;
  }
  context.data << "Contract: " << ContractOf(record.board) << '\n';
  Print(context.data, *review);
  session.host.Tell(Summary(traveller, row, record.board, *review));
  if (!review->remark.empty()) session.host.Tell(review->remark);
  return ExitCode::Done;
}

}  // namespace

void AddReviewCommand(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<Asked>();
  auto* review = app.add_subcommand("review", "Where the play of a board lost its tricks");
  AddBoardArgument(*review, asked->board);
  review->add_option("--table", asked->table, "Table, in the order of the traveller")
      ->type_name("N")
      ->check(CLI::Range(1, static_cast<int>(kMaxTravellerRows)));
  WhenChosen(*review, command, [asked](const Context& context, const ConsoleHost&) {
    return Review(context, *asked);
  });
}

}  // namespace tricklet::cli
