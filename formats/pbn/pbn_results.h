// The results of a PBN game: its own, and those of its ScoreTable.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "formats/contents/contents.h"
#include "formats/pbn/pbn_games.h"
#include "formats/pbn/pbn_play.h"
#include "formats/pbn/pbn_score_table.h"
#include "formats/results/table_record.h"

namespace tricklet {

/// What the points of a file are, as far as has been seen.
struct PbnPoints {
  bool matchPoints = false;  ///< some are given
  bool imps = false;
  bool fractions = false;  ///< IMPs with a fraction: against several tables
};

/// Most records that are made of the rows of one file's score tables, of which one can say that it
/// stands for any number of tables: 200 tables for each board of a library.
inline constexpr std::size_t kMaxPbnRows = 200'000;

/// Collects the records of a file's games.
class PbnResults {
 public:
  explicit PbnResults(const PbnSession& session) : session_(session) {}

  /// Adds to `found`, whose label, deal, dealer and vulnerability are known, a record for each
  /// table of `game`. The game's own result is one of the rows of its table where one has its
  /// contract, declarer and tricks. What cannot be read is added to `unread`. True when a record
  /// has the calls of `auction`.
  bool Add(const PbnGame& game, const PbnAuction& auction, FoundGame& found,
           std::vector<UnreadPart>& unread);

  const PbnPoints& Points() const { return points_; }

 private:
  /// A row of a table.
  struct Row {
    TableRecord record;
    std::size_t tables = 1;  // that it stands for
  };

  std::vector<Row> RowsOf(const PbnGame& game, const TableRecord& common,
                          std::vector<UnreadPart>& unread);
  void NotePoints(const TableRecord& record);

  const PbnSession& session_;
  PbnPoints points_;
  std::size_t rows_ = 0;
};

/// The game gives a result of its own: a contract, tricks, a score, a play or a table.
bool HasPbnResult(const PbnGame& game);

}  // namespace tricklet
