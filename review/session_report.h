// A session double-dummy: what each entrant bid and played, and what became of each board.
//
// Double-dummy is what the makeable table of the library's board says: the tricks of each declarer
// in each strain when all four see all cards. Par is what `ComputePar` makes of that table.
//
// Against par. The score less par, in points, from the side's point of view. It has two parts,
// which add up to it: bidding, what the contract is worth double-dummy less par; and play, the
// score less what the contract is worth double-dummy. A side that beats par did so by the parts in
// which it gained.
//
// Tricks given away. Those of the review of the play (`MakeReview`): of the declarer, who plays
// dummy's cards too; of the leader in the opening lead; of the leader in his other cards and of his
// partner in defence.
//
// Games and slams. A game is a contract whose tricks are worth 100 points undoubled, below six; a
// slam is a contract of six or seven. Both are counted for the side that declares.
//  - Makeable: a seat of the side makes one as declarer; a slam is also counted as a game.
//  - Missed: one is makeable that outranks what the opponents played, or that is more than the side
//    itself played (a part score for a game, less than six for a slam; a board that was passed out
//    is both), and the side scored less than that contract is worth undoubled with the tricks that
//    it makes. Who missed a slam is not counted as having missed a game too.
//  - Overbid: the contract cannot be made double-dummy, and is worth less double-dummy than par. So
//    a sacrifice that pays is none.
//
// A table with a ruling counts with its play alone. One whose record has another deal than the
// library's board counts with its result and its play, and without all that needs the board's
// table.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "analysis/par.h"
#include "core/board.h"
#include "formats/results/lin_file.h"
#include "formats/results/seating.h"
#include "formats/results/traveller.h"
#include "review/play_review.h"

namespace tricklet {

/// What a side bid at a table against what it could make.
struct BiddingVerdict {
  bool gameMakeable = false;
  bool slamMakeable = false;
  bool missedGame = false;
  bool missedSlam = false;
  bool overbid = false;
  friend bool operator==(const BiddingVerdict&, const BiddingVerdict&) = default;
};

/// A score against par, in points of one side, and the two parts of it.
struct AgainstPar {
  int total = 0;
  /// Nothing where the contract is not known; else they add up to `total`.
  std::optional<int> bidding;
  std::optional<int> play;
  friend bool operator==(const AgainstPar&, const AgainstPar&) = default;
};

/// A play that has been reviewed.
struct ReviewedPlay {
  Seat declarer = Seat::North;  ///< by the record of the play
  PerSeat<GivenAway> given;     ///< the leader's has a lead, dummy's nothing
  std::string remark;           ///< why the review ends early; empty where it does not
  friend bool operator==(const ReviewedPlay&, const ReviewedPlay&) = default;
};

/// One result of the session.
struct ReportTable {
  int boardNumber = 0;
  std::size_t row = 0;    ///< of the board's traveller
  PerSeat<int> entrants;  ///< indices of `SessionReport::entrants`, or `Seating::kNobody`
  std::string contract;   ///< "4Sx", "All Pass"; empty where it is not known
  std::optional<Seat> declarer;
  std::optional<Card> lead;
  std::optional<int> tricks;        ///< of the declarer, 0..13
  std::optional<int> doubleDummy;   ///< likewise, as the deal makes in the contract
  std::optional<int> score;         ///< from North-South's point of view; nothing with a ruling
  std::string adjusted;             ///< the score's text where it is a ruling: "A5050"
  std::optional<AgainstPar> par;    ///< North-South's; nothing without a score or a table
  PerSide<BiddingVerdict> bidding;  ///< nothing is set where `par` is missing
  /// Nothing where there is no play that can be reviewed, or not yet.
  std::optional<ReviewedPlay> play;

  /// `par` from the point of view of `side`.
  std::optional<AgainstPar> ParOf(Side side) const;
  /// Why the side that beat par did: "bidding", "play", "bidding and play"; empty where nobody did
  /// or that cannot be told.
  std::string WhyBeaten() const;
};

/// Games or slams of an entrant.
struct LevelFigures {
  int bid = 0;       ///< and declared by its side
  int made = 0;      ///< of those
  int makeable = 0;  ///< tables
  int missed = 0;
  friend bool operator==(const LevelFigures&, const LevelFigures&) = default;
};

/// Tricks given away in so many plays.
struct GivenFigures {
  int tricks = 0;
  int plays = 0;  ///< in which it could have been
  /// Tricks per play; nothing where there was none.
  std::optional<double> Mean() const;
  friend bool operator==(const GivenFigures&, const GivenFigures&) = default;
};

/// A sum over tables that is shown as a mean.
struct MeanFigure {
  int sum = 0;
  int count = 0;
  std::optional<double> Mean() const;
  friend bool operator==(const MeanFigure&, const MeanFigure&) = default;
};

/// A pair, player or team. What its side did at a table counts for both players; what a hand did,
/// for the player.
struct ReportEntrant {
  std::string number;  ///< as in the file; empty where there is none
  std::string names;   ///< "Ann & Bob", of a team "Ann & Bob, Cy & Di"; empty where not known
  std::string field;   ///< "North-South", "East-West"; empty where there is one field only
  int boards = 0;      ///< with a score; a team has two to a board, one at each table

  MeanFigure par;      ///< points against par
  MeanFigure bidding;  ///< and the two parts of it
  MeanFigure play;

  GivenFigures declarer;         ///< given away as declarer
  GivenFigures lead;             ///< in the opening lead
  GivenFigures defence;          ///< in defence, the opening lead aside
  GivenFigures gotFromDeclarer;  ///< given to it by the opponents, as above
  GivenFigures gotFromLead;
  GivenFigures gotFromDefence;

  int declared = 0;  ///< contracts that its side declared
  int made = 0;      ///< of those
  int makeable = 0;  ///< of those declared, the ones that can be made double-dummy
  LevelFigures games;
  LevelFigures slams;
  int overbid = 0;
  int doubledMade = 0;  ///< contracts that its side declared, doubled or redoubled
  int doubledDown = 0;
  int theyMadeDoubled = 0;  ///< likewise of the opponents
  int theyWentDown = 0;

  std::vector<std::size_t> tables;  ///< its results: indices of `SessionReport::tables`
};

/// The leads against contracts that fail by more tricks double-dummy are left out: hardly one lets
/// them make, and to find it takes as long as to review a play.
inline constexpr int kMostUndertricks = 2;

/// A contract of a board that some lead beats.
struct BeatableContract {
  int level = 0;  ///< 1..7
  Strain strain = Strain::NoTrump;
  Seat declarer = Seat::North;
  int times = 0;  ///< tables that played it, doubled or not
  int found = 0;  ///< of those, the ones where such a lead was made
  /// In the order of the leader's hand. `everyLead` when those are all his cards.
  std::vector<Card> leads;
  bool everyLead = false;

  /// "4S by South".
  std::string ContractText() const;
  /// "♠A ♦K", "any lead".
  std::string LeadsText() const;
};

struct ReportBoard {
  int boardNumber = 0;
  std::optional<Par> par;  ///< nothing where the library has no complete deal, or no table of it
  int results = 0;         ///< tables with a score
  MeanFigure againstPar;   ///< points of North-South
  PerSide<int> beatPar;    ///< tables at which the side beat par
  int atPar = 0;
  /// Contracts that fail by up to `kMostUndertricks`, in the order in which the tables have them.
  std::vector<BeatableContract> beatable;
  std::vector<std::size_t> tables;  ///< indices of `SessionReport::tables`
};

struct SessionReport {
  Contestants contestants = Contestants::Pairs;
  std::vector<ReportEntrant> entrants;  ///< field by field, in the order of numbers, then of names
  std::vector<ReportBoard> boards;      ///< those with a result, in the order of their numbers
  std::vector<ReportTable> tables;      ///< board by board, in the order of the traveller
  int plays = 0;                        ///< that can be reviewed
  int reviewed = 0;                     ///< of those; fewer while the report is being made
  /// What is left out and why, a sentence each, fit to be shown.
  std::vector<std::string> remarks;
};

/// The double-dummy tricks of declarer, 0..13, after each lead of his left-hand opponent, in the
/// order of the leader's hand (suits as in `Suit`, the highest card first).
using LeadTricks = std::vector<std::pair<Card, int>>;
/// A deal's contracts as far as leads matter: who declares, and in what.
using LeadKey = std::pair<Seat, Strain>;

/// What a report is made from. The travellers are of the session of `results`, each of another
/// board.
struct ReportSource {
  LinFile results;
  std::vector<Traveller> travellers;
  std::map<int, Board> boards;  ///< by number: the complete deals of the library, with their tables
                                ///< where they have them
  std::vector<std::string> remarks;  ///< what is missing, for `SessionReport::remarks`
};

/// What has been solved of a session.
struct ReportAnswers {
  /// By board number and row; nothing of what has not been reviewed.
  std::map<std::pair<int, std::size_t>, PlayReview> reviews;
  /// By board number, of contracts that can be beaten.
  std::map<int, std::map<LeadKey, LeadTricks>> leads;
};

/// The report as far as `answers` go.
SessionReport MakeSessionReport(const ReportSource& source, const ReportAnswers& answers);

}  // namespace tricklet
