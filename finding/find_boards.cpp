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

  FindProgress Look(const FindScope& scope) {
    progress_.of = static_cast<int>(scope.libraries.size());
    for (const std::string& name : scope.libraries) {
      if (!sink_.goOn(progress_) || !LookInto(scope.root / PathFromText(name), name)) break;
      ++progress_.libraries;
    }
    return progress_;
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

  /// False when it was ended.
  bool LookInto(const fs::path& folder, const std::string& name) {
    constexpr int kBetweenQuestions = 16;
    LibraryState library;
    Guarded(folder, [&] { library = ScanLibrary(folder); });
    if (library.boardCount == 0) return true;
    records_.clear();
    notes_.clear();
    Guarded(folder / kLinFile, [&] { ReadResults(folder); });
    Guarded(folder / kNotesFile, [&] { notes_ = LoadNotesOf(folder); });
    int since = 0;
    for (int number = library.firstBoard; number <= library.lastBoard; ++number) {
      if (!library.boardPresent.at(static_cast<std::size_t>(number))) continue;
      if (++since % kBetweenQuestions == 0 && !sink_.goOn(progress_)) return false;
      ++progress_.boards;
      const fs::path path = folder / BoardFileName(number);
      Guarded(path, [&] { LookAt(path, name, number); });
    }
    return true;
  }

  void ReadResults(const fs::path& folder) {
    results_ = LoadLinDataOf(folder);
    for (const std::string& record : results_.lin) {
      const int number = BoardNumberOfLin(record);
      if (IsStorable(number)) records_[number].push_back(&record);
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
    if (!query_.Accepts(board.hands)) return;
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

  void AddResults(const std::vector<const std::string*>& records, FoundBoard& found) const {
    found.tables = static_cast<int>(std::min(records.size(), kMaxTravellerRows));
    if (!query_.AsksForPlayers()) return;
    std::set<std::string_view> tables;  // "Ann,Bob,Cy,Di"
    for (const std::string* record : records) tables.insert(PlayersOf(*record));
    for (const std::string_view table : tables) found.players.append(table) += '\n';
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
    if (const auto records = records_.find(board.boardNumber); records != records_.end()) {
      AddResults(records->second, found);
    }
    if (const auto note = notes_.find(board.boardNumber); note != notes_.end()) {
      found.note = note->second;
    }
    return found;
  }

  const FindQuery& query_;
  const FindSink& sink_;
  FindProgress progress_;
  // Of the library that is read:
  LinFile results_;
  std::map<int, std::vector<const std::string*>> records_;  // of `results_`, by board number
  BoardNotes notes_;
};

}  // namespace

FindProgress FindBoards(const FindScope& scope, const FindQuery& query, const FindSink& sink) {
  return Search(query, sink).Look(scope);
}

}  // namespace tricklet
