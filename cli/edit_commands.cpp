// The command that edits the cards of a board.
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/board_text.h"
#include "cli/command.h"
#include "cli/notation_text.h"
#include "core/text.h"
#include "disk/presence.h"
#include "generate/deal.h"
#include "generate/editing.h"
#include "generate/rotation.h"
#include "library/board_store.h"

namespace tricklet::cli {
namespace {

struct EditArguments;

/// A way of editing the current board.
using Edit = ExitCode (*)(const Context&, const EditArguments&);

struct EditArguments {
  int board = 0;
  Edit edit = nullptr;
  bool mayBegin = false;  ///< the board need not be there yet
  /// rotate: "cw", "acw" or "half". swap: two seats. swapsuit: two suits. hand: a seat and its
  /// hand, "AKT2.QJ5.-.98".
  std::vector<std::string> words;
  bool takeAuction = false;           ///< rotate: every player keeps his calls
  bool takeCards = false;             ///< hand: also cards that other seats hold
  std::optional<std::uint64_t> seed;  ///< fill: the same seed deals the same cards
};

ExitCode End(const Context& context, const std::string& text, ExitCode code) {
  context.session.host.Tell(text);
  return code;
}

ExitCode RotateBoard(const Context& context, const EditArguments& arguments) {
  const std::string& word = arguments.words.at(0);
  const Rotation rotation = EqualNoCase(word, "cw")    ? Rotation::Clockwise
                            : EqualNoCase(word, "acw") ? Rotation::AntiClockwise
                                                       : Rotation::HalfTurn;
  if (rotation == Rotation::HalfTurn && !EqualNoCase(word, "half")) {
    return End(context, "A rotation is cw, acw or half", ExitCode::Usage);
  }
  if (Rotate(context.session.board, rotation, arguments.takeAuction)) return ExitCode::Done;
  return End(context, std::string(kAuctionStays), ExitCode::Refused);
}

ExitCode SwapHands(const Context& context, const EditArguments& arguments) {
  const auto from = SeatFromText(arguments.words.at(0));
  const auto to = SeatFromText(arguments.words.at(1));
  if (!from || !to) return End(context, "A seat is N, E, S or W", ExitCode::Usage);
  swap(context.session.board, *from, *to);
  return ExitCode::Done;
}

ExitCode SwapSuits(const Context& context, const EditArguments& arguments) {
  const auto suit1 = SuitFromText(arguments.words.at(0));
  const auto suit2 = SuitFromText(arguments.words.at(1));
  if (!suit1 || !suit2) return End(context, "A suit is S, H, D or C", ExitCode::Usage);
  SwapSuit(context.session.board, *suit1, *suit2);
  return ExitCode::Done;
}

ExitCode FillBoard(const Context& context, const EditArguments& arguments) {
  EditHistory history;
  Session& session = context.session;
  if (arguments.seed) session.random = RandomSource(*arguments.seed);
  if (Fill(session.board, history, session.random)) return ExitCode::Done;
  return End(context, std::string(kRandomisationError), ExitCode::Refused);
}

ExitCode SetHandOf(const Context& context, const EditArguments& arguments) {
  const auto seat = SeatFromText(arguments.words.at(0));
  if (!seat) return End(context, "A seat is N, E, S or W", ExitCode::Usage);
  const TakeCards take = arguments.takeCards ? TakeCards::FromAllSeats : TakeCards::FromPack;
  const auto problem = SetHand(context.session.board, *seat, arguments.words.at(1), take);
  return problem ? End(context, *problem, ExitCode::Refused) : ExitCode::Done;
}

ExitCode ClearBoard(const Context& context, const EditArguments& /*arguments*/) {
  ClearAll(context.session.board);
  return ExitCode::Done;
}

/// Loads the board, or begins a new one where the edit allows that.
bool LoadOrBegin(const Context& context, const EditArguments& arguments) {
  Session& session = context.session;
  if (!arguments.mayBegin) return LoadBoard(context, arguments.board);
  if (!OpenLibrary(context, false)) return false;
  if (FileExists(session.BoardPath(arguments.board))) return LoadBoard(context, arguments.board);
  session.board = Board();
  session.board.boardNumber = arguments.board;
  return true;
}

ExitCode EditBoard(const Context& context, const EditArguments& arguments) {
  Session& session = context.session;
  if (!LoadOrBegin(context, arguments)) return ExitCode::Refused;
  const ExitCode edited = arguments.edit(context, arguments);
  if (edited != ExitCode::Done) return edited;
  if (!SaveHand(session)) return ExitCode::Refused;
  context.data << HandsText(session.board);
  return ExitCode::Done;
}

/// The words that a way of editing takes: how many, and what they are called in its help.
struct Words {
  int count = 0;
  std::string name;
};

/// Adds one way of editing.
CLI::App& AddEdit(CLI::App& edit, const std::string& name, const std::string& description,
                  const Words& words, const std::shared_ptr<EditArguments>& asked, Edit procedure,
                  bool mayBegin = false) {
  CLI::App& each = *edit.add_subcommand(name, description);
  if (words.count > 0) {
    each.add_option(words.name, asked->words)->required()->expected(words.count);
  }
  each.callback([asked, procedure, mayBegin] {
    asked->edit = procedure;
    asked->mayBegin = mayBegin;
  });
  return each;
}

}  // namespace

void AddEditCommands(CLI::App& app, Command& command) {
  constexpr bool kMayBegin = true;
  const auto asked = std::make_shared<EditArguments>();
  auto* edit = app.add_subcommand("edit", "Change the cards of a board and save it");
  AddBoardArgument(*edit, asked->board);
  edit->require_subcommand(1);
  AddEdit(*edit, "rotate", "Rotate all hands: cw, acw or half", {1, "WAY"}, asked, RotateBoard)
      .add_flag("--with-auction", asked->takeAuction, "Every player keeps his calls");
  AddEdit(*edit, "swap", "Exchange two hands", {2, "SEATS"}, asked, SwapHands);
  AddEdit(*edit, "swapsuit", "Exchange two suits", {2, "SUITS"}, asked, SwapSuits);
  AddEdit(*edit, "clear", "Take all cards and calls away", {}, asked, ClearBoard);
  AddEdit(*edit, "fill", "Deal the missing cards at random", {}, asked, FillBoard, kMayBegin)
      .add_option("--seed", asked->seed, "The same number deals the same cards")
      ->type_name("N");
  AddEdit(*edit, "hand", "Give a seat its hand, voids left empty: N AKT2.QJ5..98", {2, "HAND"},
          asked, SetHandOf, kMayBegin)
      .add_flag("--take", asked->takeCards, "Also cards that other seats hold");
  WhenChosen(*edit, command, [asked](const Context& context, const ConsoleHost&) {
    return EditBoard(context, *asked);
  });
}

}  // namespace tricklet::cli
