#include "library/board_clipboard.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_on_disk.h"
#include "library/board_store.h"
#include "library/library_scan.h"
#include "library/loss_text.h"

namespace tricklet {
namespace {

std::string OverwriteQuestion(const Session& session) {
  return "Do you wish to overwrite board " + std::to_string(session.board.boardNumber) +
         "\nwith board " + std::to_string(session.copyBoard) +
         " from library: " + ShownName(session.copyLibrary);
}

std::string OverwriteTitle(const Session& session) {
  return "Copy from Library " + ShownName(session.copyLibrary) + ": board " +
         std::to_string(session.copyBoard) + "\nto Library " + session.ShownLibrary() + ": board " +
         std::to_string(session.board.boardNumber);
}

std::string LossByPaste(const Board& board) {
  return std::string("The deal ") + (board.NumCalls() > 0 ? "and the auction " : "") + "of board " +
         std::to_string(board.boardNumber) + " would be replaced.";
}

/// The board is shown without cards only because that has not been saved yet.
bool HidesStoredCards(const Session& session) {
  return session.board.handChanged && FileExists(session.BoardPath(session.board.boardNumber));
}

/// The person agrees to what the paste replaces: what another program has stored, or the cards
/// shown.
bool AgreesToPaste(Session& session, DiskChange change) {
  if (IsLossToReplace(change)) {
    Question question = ReplaceChangedQuestion(
        session, change,
        "board " + std::to_string(session.copyBoard) + " from library: " + session.copyLibrary);
    question.title = OverwriteTitle(session);
    return session.host.Ask(question) == Answer::Yes;
  }
  if (!HasCards(session.board.hands) && !HidesStoredCards(session)) return true;
  return session.host.Ask({.text = OverwriteQuestion(session),
                           .title = OverwriteTitle(session),
                           .safe = Answer::No,
                           .detail = LossByPaste(session.board) +
                                     FateOfReplaced(session.settings)}) == Answer::Yes;
}

}  // namespace

void CopyHand(Session& session) {
  session.copyLibrary = session.LibraryName();
  session.copyBoard = session.board.boardNumber;
}

bool PasteHand(Session& session) {
  if (session.copyBoard == 0) return false;
  const auto source =
      session.FileLocation() / PathFromText(session.copyLibrary) / BoardFileName(session.copyBoard);
  if (!FileExists(source)) {
    session.host.TellError("Library " + ShownName(session.copyLibrary) + ": hand " +
                           std::to_string(session.copyBoard) + " no longer exists");
    return false;
  }
  const auto target = session.BoardPath(session.board.boardNumber);
  if (IsReadOnly(target)) {
    session.host.TellError(ReadOnlyText(target));
    return false;
  }
  auto write =
      BeginReplacing(session, [&](DiskChange change) { return AgreesToPaste(session, change); });
  if (!write) return false;
  write->KeepReplaced(session, "paste");
  std::string notRecycled;
  try {
    write->Replace(target, ReadWholeFile(source, kMaxBoardFileBytes));
    notRecycled = write->RecycleReplaced(session.host);
    write->Finish();
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
  LoadHand(session);
  CountHands(session);
  if (!notRecycled.empty()) session.host.TellError(notRecycled);
  return true;
}

bool PasteDeal(Session& session, const HandTable& hands) {
  Board& board = session.board;
  if (board.hands == hands) return false;
  const std::string number = std::to_string(board.boardNumber);
  if (HasCards(board.hands) &&
      session.host.Ask(
          {.text = "Do you wish to overwrite board " + number + "\nwith the deal that was copied?",
           .title = "Paste deal to Library " + session.ShownLibrary() + ": board " + number,
           .safe = Answer::No,
           .detail = LossByPaste(board) + " Undo brings it back."}) != Answer::Yes) {
    return false;
  }
  ClearAll(board);
  board.hands = hands;
  return true;
}

}  // namespace tricklet
