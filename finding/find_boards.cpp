#include "finding/find_boards.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/fault.h"
#include "core/statistics.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "formats/lin/lin_text.h"
#include "formats/results/lin_boards.h"
#include "formats/results/traveller.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/library_scan.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// What the records of a library say of one board.
struct Played {
  int tables = 0;
  std::set<std::string, std::less<>> players;  // "Ann,Bob,Cy,Di" of each table
};

/// The players of a record, as they stand there.
std::string_view PlayersOf(std::string_view record) {
  LinField field;
  while (NextLinField(record, field)) {
    if (field.tag == "pn") return field.value;
  }
  return {};
}

class Search {
 public:
  Search(const FindQuery& query, const FindSink& sink) : query_(query), sink_(sink) {}

  /// False when it was ended.
  bool Look(const FindScope& scope) {
    libraries_ = static_cast<int>(scope.libraries.size());
    for (const std::string& name : scope.libraries) {
      if (!sink_.goOn(done_, libraries_)) return false;
      if (!LookInto(scope.root / PathFromText(name), name)) return false;
      ++done_;
    }
    return true;
  }

 private:
  /// What is wrong with one file does not end the search.
  template <class Work>
  void Guarded(const fs::path& path, const Work& work) {
    try {
      work();
    } catch (const Fault& fault) {
      sink_.broken(path, fault.Description());
    }
  }

  bool LookInto(const fs::path& folder, const std::string& name) {
    constexpr int kBetweenQuestions = 16;
    LibraryState library;
    Guarded(folder, [&] { library = ScanLibrary(folder); });
    if (library.boardCount == 0) return true;
    played_.clear();
    notes_.clear();
    Guarded(folder / kLinFile, [&] { ReadResults(folder); });
    Guarded(folder / kNotesFile, [&] { notes_ = LoadNotesOf(folder); });
    int since = 0;
    for (int number = library.firstBoard; number <= library.lastBoard; ++number) {
      if (!library.boardPresent.at(static_cast<std::size_t>(number))) continue;
      if (++since % kBetweenQuestions == 0 && !sink_.goOn(done_, libraries_)) return false;
      const fs::path path = folder / BoardFileName(number);
      Guarded(path, [&] { LookAt(path, name, number); });
    }
    return true;
  }

  void ReadResults(const fs::path& folder) {
    for (const std::string& record : LoadLinDataOf(folder).lin) {
      const int number = BoardNumberOfLin(record);
      if (!IsStorable(number)) continue;
      Played& played = played_[number];
      if (played.tables < static_cast<int>(kMaxTravellerRows)) ++played.tables;
      if (query_.AsksForPlayers()) played.players.emplace(PlayersOf(record));
    }
  }

  void LookAt(const fs::path& path, const std::string& library, int number) {
    Board board;
    board.boardNumber = number;
    const std::string text = ReadWholeFile(path, kMaxBoardFileBytes);
    if (!ReadBoardText(text, board, TableReading::OnlyWhenComplete)) {
      sink_.broken(path, "The file is no board");
      return;
    }
    FoundBoard found = FoundFrom(board, library);
    if (query_.AsksForPar()) AddPar(board, found);
    if (!query_.Matches(found)) return;
    if (!query_.AsksForPar()) AddPar(board, found);
    sink_.found(std::move(found));
  }

  /// Worked out only where it is looked at or shown: of most boards it is neither.
  static void AddPar(const Board& board, FoundBoard& found) {
    if (!board.makeableValid) return;
    found.par = ComputePar(board.makeable, board.Dealer(), board.Vulnerability());
  }

  FoundBoard FoundFrom(const Board& board, const std::string& library) const {
    const Statistics statistics = GetStats(board.hands);
    FoundBoard found;
    found.library = library;
    found.listed.boardNumber = board.boardNumber;
    found.listed.stored = true;
    found.listed.summary = SummaryOf(board);
    found.hands = board.hands;
    found.complete = statistics.allHandsComplete;
    found.points = statistics.seatHcp;
    if (const auto played = played_.find(board.boardNumber); played != played_.end()) {
      found.tables = played->second.tables;
      for (const std::string& table : played->second.players) found.players += table + '\n';
    }
    if (const auto note = notes_.find(board.boardNumber); note != notes_.end()) {
      found.note = note->second;
    }
    return found;
  }

  const FindQuery& query_;
  const FindSink& sink_;
  int libraries_ = 0;
  int done_ = 0;
  std::map<int, Played> played_;  // of the library that is read, by board number
  BoardNotes notes_;              // likewise
};

}  // namespace

bool FindBoards(const FindScope& scope, const FindQuery& query, const FindSink& sink) {
  return Search(query, sink).Look(scope);
}

}  // namespace tricklet
