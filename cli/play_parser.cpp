// The parser's side of the commands for auction, play and score.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/play_commands.h"
#include "play/card_play.h"

namespace tricklet::cli {
namespace {

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
  play->add_option("--undo", asked->undo, "Take back the last K cards")
      ->type_name("K")
      ->check(CLI::Range(0, kCardsInPack));
  play->add_option("--claim", asked->claim, "The seat on play takes the rest")->type_name("SEAT");
  WhenChosen(*play, command,
             [asked](const Context& context, const ConsoleHost&) { return Play(context, *asked); });
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
