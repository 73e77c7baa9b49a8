#include "finding/board_renumbering.h"

#include <map>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "formats/results/table_record.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// New numbers by the old ones.
using Renaming = std::map<int, int>;

std::set<int> Staying(const LibraryState& library, const std::set<int>& going) {
  std::set<int> staying;
  for (int number = library.firstBoard; number <= library.lastBoard; ++number) {
    const bool stored = library.boardPresent.at(static_cast<std::size_t>(number));
    if (stored && !going.contains(number)) staying.insert(number);
  }
  return staying;
}

class Renumbering {
 public:
  Renumbering(Session& session, Renaming renaming, LibraryWrite& write)
      : session_(session), renaming_(std::move(renaming)), write_(write) {}

  /// False, after a message, when nothing has been done.
  bool Run() {
    if (!MayReplace() || !ReadResults()) return false;
    ReadBoards();
    notes_ = RenumberedNotes();
    write_.KeepReplaced("renumbering");
    std::string notRecycled;
    try {
      Write();
    } catch (...) {
      PutBack();
      write_.RecycleReplaced(session_.host);
      throw;
    }
    notRecycled = write_.RecycleReplaced(session_.host);
    write_.Finish();
    if (!notRecycled.empty()) session_.host.TellError(notRecycled);
    return true;
  }

  int AuctionsLost() const { return auctionsLost_; }

 private:
  int NewNumberOf(int number) const {
    const auto found = renaming_.find(number);
    return found == renaming_.end() ? number : found->second;
  }

  /// A file that is marked read-only stays as it is.
  bool MayReplace() {
    for (const auto& [number, now] : renaming_) {
      const fs::path file = session_.BoardPath(number);
      if (!IsReadOnly(file)) continue;
      session_.host.TellError(ReadOnlyText(file));
      return false;
    }
    return true;
  }

  bool ReadResults() {
    results_ = LoadLinData(session_);
    std::set<int> bound;
    for (std::string& record : results_.lin) {
      const int number = BoardNumberOfLin(record);
      const int now = NewNumberOf(number);
      if (now == number) continue;
      if (!SameDeal(number, now)) bound.insert(number);
      record = RenumberedLin(record, now);
      resultsChange_ = true;
    }
    if (bound.empty()) return true;
    session_.host.TellError("The results of board" + std::string(bound.size() == 1 ? " " : "s ") +
                            RangesText(bound) +
                            " belong to another dealer or vulnerability.\nBoards with results keep "
                            "these: choose numbers that do.");
    return false;
  }

  void ReadBoards() {
    for (const auto& [number, now] : renaming_) {
      bool lost = false;
      before_[number] = ReadWholeFile(session_.BoardPath(number), kMaxBoardFileBytes);
      texts_[now] = TextForNumber(session_.BoardPath(number), number, now, lost);
      if (lost) ++auctionsLost_;
    }
  }

  /// Where a number that is given now has notes without a board, these stay beside the board's own.
  BoardNotes RenumberedNotes() {
    BoardNotes renumbered;
    for (const auto& [number, note] : LoadNotes(session_)) {
      std::string& text = renumbered[NewNumberOf(number)];
      text += (text.empty() ? "" : "\n\n") + note;
    }
    return renumbered;
  }

  /// What could not be written whole is as it was, as far as the disk lets it be.
  void PutBack() {
    for (const auto& [number, text] : texts_) {
      try {
        const auto old = before_.find(number);
        const fs::path file = session_.BoardPath(number);
        if (old != before_.end()) {
          write_.Replace(file, old->second);
        } else if (FileExists(file)) {
          write_.Remove(file);
        }
      } catch (const Fault&) {
        // The recycle bin has it.
      }
    }
  }

  void Write() {
    for (const auto& [number, text] : texts_) write_.Replace(session_.BoardPath(number), text);
    if (resultsChange_) StoreLinData(session_, results_, write_);
    if (notes_ != LoadNotes(session_)) StoreNotes(notes_, write_);
    for (const auto& [number, now] : renaming_) {
      if (!texts_.contains(number)) write_.Remove(session_.BoardPath(number));
    }
  }

  Session& session_;
  const Renaming renaming_;
  LibraryWrite& write_;
  LinFile results_;
  bool resultsChange_ = false;
  BoardNotes notes_;
  std::map<int, std::string> before_;  // by old number
  std::map<int, std::string> texts_;   // by new number
  int auctionsLost_ = 0;
};

std::string DoneText(std::size_t boards, int auctionsLost) {
  std::string text = std::to_string(boards) + (boards == 1 ? " board has" : " boards have") +
                     (boards == 1 ? " a new number" : " new numbers");
  if (auctionsLost > 0) {
    text +=
        ", " + std::to_string(auctionsLost) + " without the auction, as the dealer is another one";
  }
  return text;
}

/// Sends those of one library; how many have gone.
int RecycleBoards(Session& session, const std::string& library, const std::set<int>& numbers) {
  const fs::path folder = session.FileLocation() / PathFromText(library);
  auto write = LibraryWrite::Begin(session, folder);
  if (!write) return 0;
  int sent = 0;
  for (const int number : numbers) {
    const int done = sent;
    if (!session.host.Step("Removing boards", done, static_cast<int>(numbers.size()))) break;
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

bool RenumberBoards(Session& session, const std::vector<int>& old, const NumberPlan& plan) {
  if (old.empty() || !SettleChanges(session)) return false;
  const int current = session.board.boardNumber;
  try {
    auto write = LibraryWrite::Begin(session);
    if (!write) return false;
    const std::set<int> staying =
        Staying(ScanLibrary(session.LibraryPath()), {old.begin(), old.end()});
    const NewNumbers given = NumbersFor(old, plan, staying);
    if (!given.fault.empty()) {
      session.host.TellError(given.fault);
      return false;
    }
    Renaming renaming;
    for (std::size_t i = 0; i < old.size(); ++i) {
      if (old[i] != given.numbers[i]) renaming.emplace(old[i], given.numbers[i]);
    }
    Renumbering renumbering(session, renaming, *write);
    if (!renaming.empty() && !renumbering.Run()) return false;
    const auto now = renaming.find(current);
    ListAndShow(session, now == renaming.end() ? current : now->second);
    session.host.TellResult(DoneText(renaming.size(), renumbering.AuctionsLost()));
    return true;
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
    ListAndShow(session, current);
    return false;
  }
}

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
