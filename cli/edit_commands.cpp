#include "cli/edit_commands.h"

#include <ostream>

#include "cli/board_text.h"
#include "cli/notation_text.h"
#include "core/text.h"
#include "generate/deal.h"
#include "generate/editing.h"
#include "generate/rotation.h"
#include "library/board_store.h"
#include "library/file_io.h"

namespace tricklet::cli {
namespace {

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

ExitCode Edit(const Context& context, const EditArguments& arguments) {
  switch (arguments.action) {
    case EditAction::Rotate:
      return RotateBoard(context, arguments);
    case EditAction::SwapHands:
      return SwapHands(context, arguments);
    case EditAction::SwapSuits:
      return SwapSuits(context, arguments);
    case EditAction::Fill:
      return FillBoard(context, arguments);
    case EditAction::SetHand:
      return SetHandOf(context, arguments);
    case EditAction::Clear:
      break;
  }
  ClearAll(context.session.board);
  return ExitCode::Done;
}

/// Cards can be given to a board that is not there yet; everything else needs one.
bool LoadOrBegin(const Context& context, const EditArguments& arguments) {
  Session& session = context.session;
  const bool gives =
      arguments.action == EditAction::SetHand || arguments.action == EditAction::Fill;
  if (!gives) return LoadBoard(context, arguments.board);
  if (!OpenLibrary(context, false)) return false;
  if (FileExists(session.BoardPath(arguments.board))) return LoadBoard(context, arguments.board);
  session.board = Board();
  session.board.boardNumber = arguments.board;
  return true;
}

}  // namespace

ExitCode EditBoard(const Context& context, const EditArguments& arguments) {
  Session& session = context.session;
  if (!LoadOrBegin(context, arguments)) return ExitCode::Refused;
  const ExitCode edited = Edit(context, arguments);
  if (edited != ExitCode::Done) return edited;
  if (!SaveHand(session)) return ExitCode::Refused;
  context.data << HandsText(session.board);
  return ExitCode::Done;
}

}  // namespace tricklet::cli
