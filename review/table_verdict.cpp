#include "review/table_verdict.h"

#include <algorithm>
#include <vector>

#include "core/scoring.h"

namespace tricklet {
namespace {

constexpr int kGrandSlam = 7;

int ForSide(int score, Side side) {
  return side == Side::NorthSouth ? score : -score;
}

int TricksOf(const Board& board, Seat declarer, Strain strain) {
  return board.makeable[ToTableSeat(declarer)][ToTableStrain(strain)];
}

int RankOf(int level, Strain strain) {
  return level * kStrains + IndexOf(ToBidStrain(strain));
}

/// A contract that a side can make.
struct Makeable {
  int level = 0;
  Strain strain = Strain::NoTrump;
  int score = 0;  ///< the side's, undoubled, with all the tricks that there are
};

/// The games, or the slams, that `side` can make.
std::vector<Makeable> MakeableBy(const Board& board, Side side, bool slams) {
  std::vector<Makeable> contracts;
  const auto add = [&](int level, Strain strain, Seat declarer) {
    const int result = TricksOf(board, declarer, strain) - kBook - level;
    if (result < 0) return;
    const int score =
        ScoreContract(board.Vulnerability(), level, strain, Doubling::Undoubled, result, declarer);
    contracts.push_back({level, strain, ForSide(score, side)});
  };
  for (const Seat seat : kAllSeats) {
    if (SideOf(seat) != side) continue;
    for (int index = 0; index < kStrains; ++index) {
      const auto strain = static_cast<Strain>(index);
      if (!slams) {
        add(GameLevel(strain), strain, seat);
      } else {
        add(kSmallSlam, strain, seat);
        add(kGrandSlam, strain, seat);
      }
    }
  }
  return contracts;
}

/// The side bid lower than it could have, and scored less for it.
bool Missed(const std::vector<Makeable>& contracts, const Board& played, Side side, int score,
            bool slams) {
  const bool own = played.contractLevel > 0 && SideOf(played.declarer) == side;
  const int enough = slams ? kSmallSlam : GameLevel(played.trumps);
  if (own && played.contractLevel >= enough) return false;
  return std::any_of(contracts.begin(), contracts.end(), [&](const Makeable& contract) {
    const bool open =
        own || played.contractLevel == 0 ||
        RankOf(contract.level, contract.strain) > RankOf(played.contractLevel, played.trumps);
    return open && score < contract.score;
  });
}

BiddingVerdict VerdictOn(const Board& board, const Board& played, Side side, int score) {
  const std::vector<Makeable> games = MakeableBy(board, side, false);
  const std::vector<Makeable> slams = MakeableBy(board, side, true);
  BiddingVerdict verdict;
  verdict.gameMakeable = !games.empty();
  verdict.slamMakeable = !slams.empty();
  verdict.missedSlam = Missed(slams, played, side, score, true);
  verdict.missedGame = !verdict.missedSlam && Missed(games, played, side, score, false);
  return verdict;
}

int WorthWith(const Board& played, int tricks) {
  return ScoreContract(played.Vulnerability(), played.contractLevel, played.trumps,
                       DoublingOf(played.contract), tricks - kBook - played.contractLevel,
                       played.declarer);
}

/// The comparison with par of a table whose contract is known.
void JudgeBidding(const Board& board, const Board& played, int par, ReportTable& table) {
  int worth = 0;
  if (played.contractLevel > 0) {
    table.doubleDummy = TricksOf(board, played.declarer, played.trumps);
    worth = WorthWith(played, *table.doubleDummy);
  }
  table.par->bidding = worth - par;
  table.par->play = *table.score - worth;
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    table.bidding[side] = VerdictOn(board, played, side, ForSide(*table.score, side));
  }
  if (played.contractLevel == 0) return;
  const Side side = SideOf(played.declarer);
  table.bidding[side].overbid = *table.doubleDummy < played.contractLevel + kBook &&
                                ForSide(worth, side) < ForSide(par, side);
}

}  // namespace

bool IsSameDeal(const TravellerRow& row, const Board& board) {
  const HandTable& hands = row.record.board.hands;
  return !HasCards(hands) || hands == board.hands;
}

std::optional<Board> PlayedContract(const std::string& contract, std::optional<Seat> declarer,
                                    int boardNumber) {
  Board played;
  played.boardNumber = boardNumber;
  if (contract == kAllPass) {
    played.contract = kAllPass;
    return played;
  }
  if (!declarer || !SetContract(played, contract)) return std::nullopt;
  played.declarer = *declarer;
  return played;
}

std::optional<Board> PlayedContract(const ReportTable& table) {
  return PlayedContract(table.contract, table.declarer, table.boardNumber);
}

ReportTable JudgeTable(const TravellerRow& row, std::size_t index, int boardNumber,
                       const Board* board, const std::optional<Par>& par) {
  ReportTable table;
  table.boardNumber = boardNumber;
  table.row = index;
  table.entrants.fill(Seating::kNobody);
  table.contract = row.contract;
  table.declarer = row.declarer;
  table.lead = row.lead;
  table.tricks = row.tricks;
  table.score = row.score;
  table.adjusted = row.adjusted;
  if (board == nullptr || !par || !row.score || !IsSameDeal(row, *board)) return table;
  table.par = AgainstPar{*row.score - par->score, std::nullopt, std::nullopt};
  if (const auto played = PlayedContract(table)) {
    JudgeBidding(*board, *played, par->score, table);
  }
  return table;
}

}  // namespace tricklet
