#include "library/board_clipboard.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_on_disk.h"
#include "library/board_store.h"
#include "library/library_scan.h"

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

/// The person agrees to what the paste replaces: what another program has stored, or the cards
/// shown.
bool AgreesToPaste(Session& session, DiskChange change) {
  std::string question = OverwriteQuestion(session);
  Buttons buttons = Buttons::YesNo;
  if (IsLossToReplace(change)) {
    question = ReplaceChangedQuestion(
        session, change,
        "board " + std::to_string(session.copyBoard) + " from library: " + session.copyLibrary);
    buttons = Buttons::NoYes;
  } else if (!HasCards(session.board.hands)) {
    return true;
  }
  return session.host.Ask(question, OverwriteTitle(session), buttons) == Answer::Yes;
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
    session.host.Tell("Library " + ShownName(session.copyLibrary) + ": hand " +
                      std::to_string(session.copyBoard) + " no longer exists");
    return false;
  }
  const auto target = session.BoardPath(session.board.boardNumber);
  if (IsReadOnly(target)) {
    session.host.Tell(ReadOnlyText(target));
    return false;
  }
  auto write =
      BeginReplacing(session, [&](DiskChange change) { return AgreesToPaste(session, change); });
  if (!write) return false;
  try {
    write->Replace(target, ReadWholeFile(source, kMaxBoardFileBytes));
    write->Finish();
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
  LoadHand(session);
  CountHands(session);
  return true;
}

}  // namespace tricklet
