#include "finding/board_deletion.h"

#include <map>
#include <set>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/library_scan.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Sends those of one library; how many have gone.
int RecycleBoards(Session& session, const std::string& library, const std::set<int>& numbers) {
  const fs::path folder = session.FileLocation() / PathFromText(library);
  auto write = LibraryWrite::Begin(session, folder);
  if (!write) return 0;
  int sent = 0;
  for (const int number : numbers) {
    if (!session.host.Step("Removing boards", sent, static_cast<int>(numbers.size()))) break;
    const fs::path file = folder / BoardFileName(number);
    if (!FileExists(file) || session.host.Recycle(file)) ++sent;
  }
  write->Unflushed().Add(folder);
  write->Finish();
  return sent;
}

bool AgreesToDelete(Session& session, const std::map<std::string, std::set<int>>& boards) {
  std::string text = "Do you wish to remove";
  for (const auto& [library, numbers] : boards) {
    text += (boards.size() > 1 ? "\n" + ShownName(library) + ": " : " ") +
            std::string(numbers.size() == 1 ? "board " : "boards ") + RangesText(numbers);
  }
  return session.host.Ask({.text = text + "?",
                           .safe = Answer::No,
                           .detail = "They go to the recycle bin; their notes and results stay in "
                                     "the library."}) == Answer::Yes;
}

}  // namespace

bool DeleteBoards(Session& session, const std::vector<BoardPlace>& boards) {
  std::map<std::string, std::set<int>> byLibrary;
  for (const BoardPlace& board : boards) byLibrary[board.library].insert(board.number);
  if (boards.empty() || !SettleChanges(session) || !AgreesToDelete(session, byLibrary))
    return false;
  int sent = 0;
  try {
    const WorkScope work(session.host);
    for (const auto& [library, numbers] : byLibrary)
      sent += RecycleBoards(session, library, numbers);
    if (byLibrary.contains(session.LibraryName())) {
      CountHands(session);
      LoadHand(session);
    }
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
  const std::string text =
      std::to_string(sent) + (sent == 1 ? " board" : " boards") + " sent to the recycle bin";
  if (sent == static_cast<int>(boards.size())) {
    session.host.TellResult(text);
    return true;
  }
  session.host.TellError(text + ", of " + std::to_string(boards.size()));
  return false;
}

}  // namespace tricklet
