#include "finding/board_renumbering.h"

#include <map>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"
#include "finding/board_text.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "formats/results/table_record.h"
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
      const BoardText read = ReadBoardFile(session_.BoardPath(number), number);
      before_[number] = read.text;
      texts_[now] = read.ForNumber(now);
      if (read.LosesAuction(now)) ++auctionsLost_;
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

}  // namespace

bool RenumberBoards(Session& session, const std::vector<int>& old, const NumberPlan& plan) {
  if (old.empty() || !SettleChanges(session)) return false;
  const int current = session.board.boardNumber;
  try {
    auto write = LibraryWrite::Begin(session);
    if (!write) return false;
    std::set<int> staying = BoardsIn(ScanLibrary(session.LibraryPath()));
    for (const int number : old) staying.erase(number);
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

}  // namespace tricklet
