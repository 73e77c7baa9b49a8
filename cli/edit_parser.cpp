// The parser's side of the command that edits a board.
#include <memory>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/edit_commands.h"

namespace tricklet::cli {
namespace {

/// Adds one way of editing, which takes `words` as its arguments.
CLI::App& AddAction(CLI::App& edit, const std::string& name, const std::string& description,
                    EditAction action, int words, const std::string& wordNames,
                    const std::shared_ptr<EditArguments>& asked) {
  CLI::App& each = *edit.add_subcommand(name, description);
  if (words > 0) each.add_option(wordNames, asked->words)->required()->expected(words);
  each.callback([asked, action] { asked->action = action; });
  return each;
}

}  // namespace

void AddEditCommands(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<EditArguments>();
  auto* edit = app.add_subcommand("edit", "Change the cards of a board and save it");
  AddBoardArgument(*edit, asked->board);
  edit->require_subcommand(1);
  AddAction(*edit, "rotate", "Rotate all hands: cw, acw or half", EditAction::Rotate, 1, "WAY",
            asked)
      .add_flag("--with-auction", asked->takeAuction, "Every player keeps his calls");
  AddAction(*edit, "swap", "Exchange two hands", EditAction::SwapHands, 2, "SEATS", asked);
  AddAction(*edit, "swapsuit", "Exchange two suits", EditAction::SwapSuits, 2, "SUITS", asked);
  AddAction(*edit, "clear", "Take all cards and calls away", EditAction::Clear, 0, "", asked);
  AddAction(*edit, "fill", "Deal the missing cards at random", EditAction::Fill, 0, "", asked)
      .add_option("--seed", asked->seed, "The same number deals the same cards")
      ->type_name("N");
  AddAction(*edit, "hand", "Give a seat its hand, voids left empty: N AKT2.QJ5..98",
            EditAction::SetHand, 2, "HAND", asked)
      .add_flag("--take", asked->takeCards, "Also cards that other seats hold");
  WhenChosen(*edit, command, [asked](const Context& context, const ConsoleHost&) {
    return EditBoard(context, *asked);
  });
}

}  // namespace tricklet::cli
