// The commands for the auction, the play and the score.
#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/board_text.h"
#include "cli/command.h"
#include "cli/notation_text.h"
#include "core/scoring.h"
#include "core/text.h"
#include "library/board_store.h"
#include "library/tables.h"
#include "play/auction_entry.h"
#include "play/best_line.h"
#include "play/card_play.h"
#include "play/claim_check.h"

namespace tricklet::cli {
namespace {

struct PlayArguments {
  int board = 0;
  std::vector<std::string> cards;    ///< "SA", "H10" or "HT", in any letter case
  int undo = 0;                      ///< how many times to take back the last card or claim
  std::optional<std::string> claim;  ///< the seat on play that claims the rest
  bool claimFirst = false;           ///< the claim comes before the undo
  std::optional<int> tricks;         ///< those of the claimer's side in all; else all that are left
  std::string best;                  ///< cards that the program plays after all that: "3", "all"
};

struct ScoreArguments {
  std::string contract;       ///< "4S", "3NTx", "1Cxx"
  std::string declarer;       ///< first letter of the seat
  int tricks = 0;             ///< 0..13
  int board = 1;              ///< gives the vulnerability, unless `vulnerability` does
  std::string vulnerability;  ///< "none", "ns", "ew", "all"; empty: the board's
};

ExitCode Refuse(const Context& context, const std::string& text) {
  context.session.host.Tell(text);
  return ExitCode::Refused;
}

/// Why `call` cannot be made now.
std::string WhyNot(const AuctionEntry& entry, Call call) {
  const std::string by = call.Text() + " by " + std::string(SeatName[entry.ToCall()]) + ": ";
  if (entry.Over()) return by + "the auction is over";
  if (call.IsBid()) return by + "the bid is not sufficient";
  if (call.IsDouble() && (entry.Now().doubled || entry.Now().redoubled)) {
    return by + "the bid is doubled already";
  }
  if (call.IsDouble()) return by + "there is no bid of the opponents to double";
  return by + "there is no double of the opponents to redouble";
}

/// False, with the reason, at the first call that is not legal.
bool MakeCalls(const Context& context, AuctionEntry& entry, const std::vector<std::string>& calls) {
  for (const std::string& text : calls) {
    if (EqualNoCase(text, "AP")) {
      entry.AllPass();
      continue;
    }
    const auto call = Call::FromText(text);
    if (!call) {
      context.session.host.Tell(text + " is no call");
      return false;
    }
    if (!entry.Make(*call)) {
      if (!entry.AtLimit()) context.session.host.Tell(WhyNot(entry, *call));
      return false;
    }
  }
  if (entry.OKEnabled()) return true;
  context.session.host.Tell(
      "The auction is not complete: " + std::string(SeatName[entry.ToCall()]) + " is to call");
  return false;
}

bool PlayCards(const Context& context, CardPlay& play, const std::vector<std::string>& cards) {
  for (const std::string& text : cards) {
    const auto card = CardFromText(text);
    if (!card) {
      context.session.host.Tell(text + " is no card");
      return false;
    }
    const auto onPlay = play.Now().onPlay;
    if (play.Play(*card)) continue;
    context.session.host.Tell(
        CardText(*card) + " cannot be played" +
        (onPlay ? " by " + std::string(SeatName[*onPlay]) + " now" : ": the play is over"));
    return false;
  }
  return true;
}

/// Any side may claim a number of tricks; the rest only who is on play. The check goes before, so
/// that a claim that cannot be says nothing else.
bool ClaimTricksBy(const Context& context, CardPlay& play, Seat seat, int tricks) {
  Session& session = context.session;
  if (!play.ClaimEnabled()) {
    session.host.Tell("Nobody is on play");
    return false;
  }
  const Side side = SideOf(seat);
  if (tricks < play.LeastClaim(side) || tricks > play.MostClaim(side)) {
    session.host.Tell("A claim by " + std::string(SeatName[seat]) + " is of " +
                      std::to_string(play.LeastClaim(side)) + " to " +
                      std::to_string(play.MostClaim(side)) + " tricks");
    return false;
  }
  if (session.getSolver) {
    const auto check = CheckClaim(session.getSolver(), play.Now(), play.Played(), side, tricks);
    if (check) context.data << ClaimCheckText(*check) << '\n';
  }
  return play.ClaimTricks(side, tricks);
}

bool ClaimBy(const Context& context, CardPlay& play, const std::string& text,
             std::optional<int> tricks) {
  const auto seat = SeatFromText(text);
  if (seat && tricks) return ClaimTricksBy(context, play, *seat, *tricks);
  if (seat && play.Now().onPlay == seat) {
    play.Claim();
    return true;
  }
  context.session.host.Tell(seat ? std::string(SeatName[*seat]) + " is not on play"
                                 : text + " is no seat");
  return false;
}

/// The program plays so many cards for the hands on play, and names them; fewer where the play ends
/// before.
bool PlayBest(const Context& context, CardPlay& play, const std::string& count) {
  if (count.empty() || !play.Now().onPlay) return true;
  Session& session = context.session;
  if (!RequireSolver(session)) return false;
  Solver& solver = session.getSolver();
  int left = count == "all" ? kCardsInPack : std::stoi(count);
  for (auto onPlay = play.Now().onPlay; left > 0 && onPlay; --left, onPlay = play.Now().onPlay) {
    const auto card = ProgramCard(solver, play.Now(), play.Played().trumps);
    if (!card) {
      session.host.TellError(solver.Missing().empty() ? "The solver could not find a card to play"
                                                      : solver.Missing());
      return false;
    }
    context.data << SeatName[*onPlay] << " plays " << CardText(*card) << '\n';
    play.Play(*card);
  }
  return true;
}

bool TakeBack(const Context& context, CardPlay& play, int count) {
  if (count > play.UndoTop()) {
    context.session.host.Tell("Not so many cards were played");
    return false;
  }
  for (; count > 0; --count) play.Undo();
  return true;
}

/// False, with the reason, when the seat cannot claim or there is less to take back.
bool ClaimAndTakeBack(const Context& context, CardPlay& play, const PlayArguments& arguments) {
  const auto claims = [&] {
    return !arguments.claim || ClaimBy(context, play, *arguments.claim, arguments.tricks);
  };
  if (arguments.claimFirst) return claims() && TakeBack(context, play, arguments.undo);
  return TakeBack(context, play, arguments.undo) && claims();
}

void ShowTable(const Context& context, const CardPlay& play) {
  const PlayState& state = play.Now();
  Board left = context.session.board;
  left.hands = state.cardsLeft;
  std::ostream& data = context.data;
  data << HandsText(left) << '\n' << ContractLabel(left) << '\n';
  data << play.TricksText(Side::NorthSouth) << "  " << play.TricksText(Side::EastWest) << '\n';
  for (const Seat seat : kAllSeats) {
    if (const auto& card = state.trickCards[seat]) {
      data << SeatName[seat] << " played " << CardText(*card) << '\n';
    }
  }
  if (state.onPlay) data << SeatName[*state.onPlay] << " is on play\n";
  if (play.Finished()) data << play.ScoreText() << '\n';
}

ExitCode Auction(const Context& context, int boardNumber, const std::vector<std::string>& calls) {
  Session& session = context.session;
  if (!LoadBoard(context, boardNumber)) return ExitCode::Refused;
  if (calls.empty()) {
    context.data << AuctionText(session.board);
    return ExitCode::Done;
  }
  // The stored calls may break the rules; as they are to be replaced, nobody need hear of it.
  Board entered = session.board;
  entered.calls.Clear();
  AuctionEntry entry(entered, session.host);
  if (!MakeCalls(context, entry, calls) || !entry.OK()) return ExitCode::Refused;
  if (!(entered.calls == session.board.calls)) {
    session.board = entered;
    session.board.handChanged = true;
    if (!SaveHand(session)) return ExitCode::Refused;
  }
  context.data << AuctionText(session.board);
  return ExitCode::Done;
}

ExitCode Play(const Context& context, const PlayArguments& arguments) {
  Session& session = context.session;
  if (!LoadBoard(context, arguments.board)) return ExitCode::Refused;
  NoTimer timer;
  CardPlay play(session.board, session.host, timer);
  if (!play.Start()) {
    if (session.board.contract == kAllPass) return ExitCode::Refused;
    return Refuse(context, CardPlay::NeedsAuction(session.board)
                               ? "The board has no auction"
                               : "The board has no contract, or not all four hands");
  }
  if (!PlayCards(context, play, arguments.cards)) return ExitCode::Refused;
  if (!ClaimAndTakeBack(context, play, arguments)) return ExitCode::Refused;
  if (!PlayBest(context, play, arguments.best)) return ExitCode::Refused;
  ShowTable(context, play);
  return ExitCode::Done;
}

ExitCode Score(const Context& context, const ScoreArguments& arguments) {
  Board board;
  const auto declarer = SeatFromText(arguments.declarer);
  if (!SetContract(board, arguments.contract)) {
    return Refuse(context, arguments.contract + " is no contract");
  }
  if (!declarer) return Refuse(context, arguments.declarer + " is no seat");
  board.declarer = *declarer;
  board.boardNumber = arguments.board;
  // Boards 1 to 4 are love all, North-South, East-West and all vulnerable.
  if (const auto named = VulnerabilityFromText(arguments.vulnerability)) {
    board.boardNumber = IndexOf(*named) + 1;
  }
  context.data << ResultLine(board, arguments.tricks) << '\n';
  return ExitCode::Done;
}

void AddAuction(CLI::App& app, Command& command) {
  struct Entry {
    int board = 0;
    std::vector<std::string> calls;
  };
  const auto entry = std::make_shared<Entry>();
  auto* auction = app.add_subcommand("auction", "Show the auction, or replace it and save");
  AddBoardArgument(*auction, entry->board);
  auction->add_option("CALL", entry->calls, "Calls from the dealer on: 1n 4s p x xx ap");
  WhenChosen(*auction, command, [entry](const Context& context, const ConsoleHost&) {
    return Auction(context, entry->board, entry->calls);
  });
}

void AddPlay(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<PlayArguments>();
  auto* play = app.add_subcommand("play", "Play cards and show the table after them");
  AddBoardArgument(*play, asked->board);
  play->add_option("CARD", asked->cards, "Cards from the opening lead on: SA h10 HT c2");
  auto* undo = play->add_option("--undo", asked->undo, "Take back the last K cards")
                   ->type_name("K")
                   ->check(CLI::Range(0, kCardsInPack));
  auto* claim = play->add_option("--claim", asked->claim, "The seat on play takes the rest")
                    ->type_name("SEAT");
  play->add_option("--tricks", asked->tricks, "Claim so many in all, checked double-dummy")
      ->type_name("N")
      ->check(CLI::Range(0, kTricks))
      ->needs(claim);
  play->add_option("--best", asked->best, "Then play the best K cards, or all, double-dummy")
      ->type_name("K|all")
      ->check(CLI::IsMember({"all"}) | CLI::Range(1, kCardsInPack));
  WhenChosen(*play, command, [=](const Context& context, const ConsoleHost&) {
    const std::vector<CLI::Option*>& order = play->parse_order();
    asked->claimFirst =
        std::find(order.begin(), order.end(), claim) < std::find(order.begin(), order.end(), undo);
    return Play(context, *asked);
  });
}

void AddScore(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<ScoreArguments>();
  auto* score = app.add_subcommand("score", "Score a contract");
  score->add_option("CONTRACT", asked->contract, "4S, 3NTx, 1Cxx")->required();
  score->add_option("DECLARER", asked->declarer, "N, E, S or W")->required();
  score->add_option("TRICKS", asked->tricks, "Tricks of the declaring side")
      ->required()
      ->check(CLI::Range(0, kTricks));
  auto* board = score->add_option("--board", asked->board, "Board that gives the vulnerability")
                    ->type_name("N")
                    ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
  score->add_option("--vul", asked->vulnerability, "Vulnerability")
      ->excludes(board)
      ->check(CLI::IsMember({"none", "ns", "ew", "all"}, CLI::ignore_case));
  WhenChosen(*score, command, [asked](const Context& context, const ConsoleHost&) {
    return Score(context, *asked);
  });
}

}  // namespace

void AddPlayCommands(CLI::App& app, Command& command) {
  AddAuction(app, command);
  AddPlay(app, command);
  AddScore(app, command);
}

}  // namespace tricklet::cli
