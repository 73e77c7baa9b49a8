// The parser's side of the command that generates deals.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/generate_commands.h"

namespace tricklet::cli {
namespace {

void AddHand(CLI::App& generate, HandArguments& hand, const std::string& number) {
  generate.add_option("--hand" + number, hand.direction, "Its seat, or dealer+K")
      ->type_name("SEAT");
  generate.add_option("--points" + number, hand.points, "Its high-card points: 15-17")
      ->type_name("RANGE");
  generate
      .add_option("--lengths" + number, hand.lengths,
                  "Its spades, hearts, diamonds and clubs: 5-13,0-13,0-13,0-13")
      ->type_name("RANGES");
  generate.add_option("--type" + number, hand.type, "Its shape: balanced, weak2, 4441, preempt")
      ->type_name("TYPE");
  generate
      .add_option("--option" + number, hand.option,
                  "Of balanced: 1 allows a 5-card major, 2 does not; of weak2: 2 adds diamonds")
      ->type_name("K");
}

}  // namespace

void AddGenerateCommands(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<GenerateArguments>();
  const CLI::Range boards(kFirstBoardNumber, kLastBoardNumber);
  auto* generate = app.add_subcommand("generate", "Fill boards with random deals");
  generate->add_option("FIRST", asked->first, "First board")->required()->check(boards);
  generate->add_option("LAST", asked->last, "Last board")->required()->check(boards);
  AddHand(*generate, asked->hands[GenHand::First], "1");
  AddHand(*generate, asked->hands[GenHand::Second], "2");
  generate->add_option("--seed", asked->seed, "The same number gives the same deals")
      ->type_name("N");
  generate->add_flag("--analyse", asked->analyse, "Compute double-dummy tables");
  WhenChosen(*generate, command, [asked](const Context& context, const ConsoleHost&) {
    return GenerateBoards(context, *asked);
  });
}

}  // namespace tricklet::cli
