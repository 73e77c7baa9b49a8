// Copying one board's file to another place.
#include "core/fault.h"
#include "core/text.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/file_io.h"
#include "library/library_store.h"

namespace tricklet {
namespace {

std::string OverwriteQuestion(const Session& session) {
  return "Do you wish to overwrite board " + std::to_string(session.board.BoardNumber) +
         "\nwith board " + std::to_string(session.CopyBoard) +
         " from library: " + session.CopyLibrary;
}

std::string OverwriteTitle(const Session& session) {
  return "Copy from Library " + session.CopyLibrary + ": board " +
         std::to_string(session.CopyBoard) + "\nto Library " + session.LibraryName() + ": board " +
         std::to_string(session.board.BoardNumber);
}

}  // namespace

void CopyHand(Session& session) {
  session.CopyLibrary = session.LibraryName();
  session.CopyBoard = session.board.BoardNumber;
}

bool PasteHand(Session& session) {
  if (session.CopyBoard == 0) return false;
  const auto source =
      session.FileLocation() / PathFromText(session.CopyLibrary) / BoardFileName(session.CopyBoard);
  if (!FileExists(source)) {
    session.host.Tell("Library " + session.CopyLibrary + ": hand " +
                      std::to_string(session.CopyBoard) + " no longer exists");
    return false;
  }
  if (HasCards(session.board.Hands) &&
      session.host.Ask(OverwriteQuestion(session), OverwriteTitle(session), Buttons::YesNo) !=
          Answer::Yes) {
    return false;
  }
  try {
    ReplaceWholeFile(session.BoardPath(session.board.BoardNumber),
                     ReadWholeFile(source, kMaxBoardFileBytes));
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
  LoadHand(session);
  CountHands(session);
  return true;
}

}  // namespace tricklet
