#include "finding/board_copies.h"

#include <algorithm>
#include <map>

#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"
#include "finding/board_text.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/library_choice.h"
#include "library/library_folders.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// A board that is to be written.
struct Copy {
  int number = 0;
  std::string text;
  std::string note;
};

class Copying {
 public:
  Copying(Session& session, std::string to) : session_(session), to_(std::move(to)) {
    folder_ = session_.FileLocation() / PathFromText(to_);
  }

  bool Run(const std::vector<BoardPlace>& boards, const NumberPlan& plan) {
    const bool made = !FolderExists(folder_);
    if (made && !AcceptNewName(session_, to_)) return false;
    if (!ReadAll(boards, plan)) return false;
    if (made && !MakeFolder(session_, folder_)) return false;
    const bool all = Write();
    if (made) RefreshLibraryNames(session_);
    if (to_ == session_.LibraryName()) ListAddedBoards(session_);
    Tell(boards.size());
    return all;
  }

 private:
  bool ReadAll(const std::vector<BoardPlace>& boards, const NumberPlan& plan) {
    std::vector<int> old;
    old.reserve(boards.size());
    for (const BoardPlace& board : boards) old.push_back(board.number);
    const NewNumbers given = NumbersFor(old, plan, BoardsIn(ScanLibrary(folder_)));
    if (!given.fault.empty()) {
      session_.host.TellError(given.fault + " in the library " + ShownName(to_));
      return false;
    }
    for (std::size_t i = 0; i < boards.size(); ++i) Read(boards[i], given.numbers[i]);
    return true;
  }

  void Read(const BoardPlace& board, int number) {
    const fs::path library = session_.FileLocation() / PathFromText(board.library);
    const BoardText text = ReadBoardFile(library / BoardFileName(board.number), board.number);
    Copy copy{number, text.ForNumber(number), {}};
    if (text.LosesAuction(number)) ++auctionsLost_;
    auto [notes, fresh] = notes_.try_emplace(board.library);
    if (fresh) notes->second = LoadNotesOf(library);
    if (const auto note = notes->second.find(board.number); note != notes->second.end()) {
      copy.note = note->second;
    }
    copies_.push_back(std::move(copy));
  }

  bool Write() {
    auto write = LibraryWrite::Begin(session_, folder_);
    if (!write) return false;
    const WorkScope work(session_.host);
    const int all = static_cast<int>(copies_.size());
    BoardNotes notes = LoadNotesOf(folder_);
    const BoardNotes before = notes;
    for (const Copy& copy : copies_) {
      if (!session_.host.Step("Copying boards", copied_, all)) break;
      const fs::path file = folder_ / BoardFileName(copy.number);
      // Another program may have stored a board since the numbers were given.
      if (FileExists(file)) break;
      write->Replace(file, copy.text);
      if (!copy.note.empty()) notes[copy.number] = copy.note;
      ++copied_;
    }
    if (notes != before) StoreNotes(notes, *write);
    write->Finish();
    return copied_ == all;
  }

  void Tell(std::size_t wanted) const {
    std::string text = std::to_string(copied_) + (copied_ == 1 ? " board" : " boards") +
                       " copied to the library " + ShownName(to_);
    if (static_cast<std::size_t>(copied_) < wanted) text += ", of " + std::to_string(wanted);
    if (auctionsLost_ > 0) {
      text += "; " + std::to_string(auctionsLost_) +
              (auctionsLost_ == 1 ? " without its auction, as the dealer is another one"
                                  : " without their auctions, as the dealer is another one");
    }
    session_.host.TellResult(text);
  }

  Session& session_;
  const std::string to_;
  fs::path folder_;
  std::vector<Copy> copies_;
  std::map<std::string, BoardNotes> notes_;  // of the libraries that the boards come from
  int copied_ = 0;
  int auctionsLost_ = 0;
};

}  // namespace

int NumberAfterLast(const Session& session, const std::string& library) {
  const LibraryState state = ScanLibrary(session.FileLocation() / PathFromText(library));
  return std::min(state.lastBoard + 1, kLastBoardNumber);
}

bool CopyBoards(Session& session, const std::vector<BoardPlace>& boards, const std::string& to,
                const NumberPlan& plan) {
  if (boards.empty()) return true;
  if (!SettleChanges(session)) return false;
  try {
    return Copying(session, to).Run(boards, plan);
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    return false;
  }
}

}  // namespace tricklet
