#include "review/session_report.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "core/bounded_list.h"
#include "formats/results/seated_pair.h"
#include "review/entrant_figures.h"
#include "review/table_verdict.h"

namespace tricklet {
namespace {

std::optional<double> Share(int sum, int count) {
  if (count == 0) return std::nullopt;
  return static_cast<double>(sum) / count;
}

std::optional<int> Turned(std::optional<int> points) {
  return points ? std::optional(-*points) : std::nullopt;
}

/// "1 table", "3 tables".
std::string Counted(int count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

/// Makes one report.
class ReportMaker {
 public:
  ReportMaker(const ReportSource& source, const ReportAnswers& answers)
      : source_(source), answers_(answers) {}

  SessionReport Make() {
    std::vector<const Traveller*> travellers;
    travellers.reserve(source_.travellers.size());
    for (const Traveller& traveller : source_.travellers) travellers.push_back(&traveller);
    const Seating seating = SeatingOf(source_.results, travellers);
    report_.contestants = seating.kind;
    for (std::size_t at = 0; at < travellers.size(); ++at) {
      AddBoard(*travellers[at], seating.seats[at]);
    }
    report_.entrants = EntrantsOf(seating, report_.tables);
    ArrangeEntrants(report_.entrants, report_.tables);
    AddRemarks(seating);
    return std::move(report_);
  }

 private:
  void AddBoard(const Traveller& traveller, const std::vector<PerSeat<int>>& seats) {
    ReportBoard board;
    board.boardNumber = traveller.boardNumber;
    const auto stored = source_.boards.find(traveller.boardNumber);
    const Board* deal = stored == source_.boards.end() ? nullptr : &stored->second;
    if (deal != nullptr && deal->makeableValid) {
      board.par = ComputePar(deal->makeable, deal->Dealer(), deal->Vulnerability());
    }
    for (std::size_t row = 0; row < traveller.rows.size(); ++row) {
      if (!HasTable(traveller.rows[row])) continue;
      ReportTable table =
          JudgeTable(traveller.rows[row], row, traveller.boardNumber, deal, board.par);
      table.entrants = seats[row];
      if (deal != nullptr && !IsSameDeal(traveller.rows[row], *deal)) {
        ++otherDeals_;
        boardsOfOtherDeals_.insert(traveller.boardNumber);
      }
      AddPlay(traveller.rows[row], table);
      AddResult(table, board);
      board.tables.push_back(report_.tables.size());
      report_.tables.push_back(std::move(table));
    }
    if (board.tables.empty()) return;
    AddLeads(deal, board);
    report_.boards.push_back(std::move(board));
  }

  void AddPlay(const TravellerRow& row, ReportTable& table) {
    if (!WhyNoReview(row.record).empty()) {
      ++withoutPlay_;
      return;
    }
    ++report_.plays;
    const auto review = answers_.reviews.find({table.boardNumber, table.row});
    if (review == answers_.reviews.end()) return;
    ++report_.reviewed;
    table.play = {review->second.declarer, review->second.given, review->second.remark};
  }

  static void AddResult(const ReportTable& table, ReportBoard& board) {
    if (table.score) ++board.results;
    if (!table.par) return;
    const int points = table.par->total;
    board.againstPar.sum += points;
    ++board.againstPar.count;
    if (points == 0) {
      ++board.atPar;
    } else {
      ++board.beatPar[points > 0 ? Side::NorthSouth : Side::EastWest];
    }
  }

  /// The contracts that a lead beats, as far as that has been solved.
  void AddLeads(const Board* deal, ReportBoard& board) {
    const auto solved = answers_.leads.find(board.boardNumber);
    if (deal == nullptr || solved == answers_.leads.end()) return;
    for (const std::size_t at : board.tables) {
      const ReportTable& table = report_.tables[at];
      const auto played = PlayedContract(table);
      if (!table.par || !played || played->contractLevel == 0) continue;
      const int least = played->contractLevel + kBook - kMostUndertricks;
      if (table.doubleDummy.value_or(0) < least) continue;
      const auto tricks = solved->second.find({played->declarer, played->trumps});
      if (tricks == solved->second.end()) continue;
      CountLead(BeatableOf(*played, tricks->second, board), table);
    }
    std::erase_if(board.beatable,
                  [](const BeatableContract& contract) { return contract.leads.empty(); });
  }

  static BeatableContract& BeatableOf(const Board& played, const LeadTricks& tricks,
                                      ReportBoard& board) {
    const auto known = std::find_if(
        board.beatable.begin(), board.beatable.end(), [&](const BeatableContract& contract) {
          return contract.level == played.contractLevel && contract.strain == played.trumps &&
                 contract.declarer == played.declarer;
        });
    if (known != board.beatable.end()) return *known;
    BeatableContract contract;
    contract.level = played.contractLevel;
    contract.strain = played.trumps;
    contract.declarer = played.declarer;
    for (const auto& [card, made] : tricks) {
      if (made < contract.level + kBook) contract.leads.push_back(card);
    }
    contract.everyLead = contract.leads.size() == tricks.size();
    board.beatable.push_back(std::move(contract));
    return board.beatable.back();
  }

  static void CountLead(BeatableContract& contract, const ReportTable& table) {
    ++contract.times;
    const auto& leads = contract.leads;
    if (table.lead && std::find(leads.begin(), leads.end(), *table.lead) != leads.end()) {
      ++contract.found;
    }
  }

  void AddRemarks(const Seating& seating) {
    report_.remarks = source_.remarks;
    if (otherDeals_ > 0) {
      report_.remarks.push_back("The library has another deal than " +
                                Counted(otherDeals_, "table") + " of " +
                                (boardsOfOtherDeals_.size() == 1 ? "board " : "boards ") +
                                RangesText(boardsOfOtherDeals_) + ": there is no par for that");
    }
    if (withoutPlay_ > 0) {
      report_.remarks.push_back("No play is known of " + Counted(withoutPlay_, "table"));
    }
    report_.remarks.insert(report_.remarks.end(), seating.remarks.begin(), seating.remarks.end());
  }

  const ReportSource& source_;
  const ReportAnswers& answers_;
  SessionReport report_;
  int otherDeals_ = 0;
  std::set<int> boardsOfOtherDeals_;
  int withoutPlay_ = 0;
};

}  // namespace

std::optional<AgainstPar> ReportTable::ParOf(Side side) const {
  if (!par || side == Side::NorthSouth) return par;
  return AgainstPar{-par->total, Turned(par->bidding), Turned(par->play)};
}

std::string ReportTable::WhyBeaten() const {
  if (!par || par->total == 0 || !par->bidding || !par->play) return {};
  const auto helped = [this](int points) {
    return (points > 0) == (par->total > 0) && points != 0;
  };
  if (!helped(*par->play)) return "bidding";
  return helped(*par->bidding) ? "bidding and play" : "play";
}

std::optional<double> GivenFigures::Mean() const {
  return Share(tricks, plays);
}

std::optional<double> MeanFigure::Mean() const {
  return Share(sum, count);
}

std::string BeatableContract::ContractText() const {
  return std::to_string(level) + std::string(StrainLetter[strain]) + " by " +
         std::string(SeatName[declarer]);
}

std::string BeatableContract::LeadsText() const {
  if (everyLead) return "any lead";
  std::string text;
  for (const Card lead : leads) text += (text.empty() ? "" : " ") + CardText(lead);
  return text;
}

SessionReport MakeSessionReport(const ReportSource& source, const ReportAnswers& answers) {
  return ReportMaker(source, answers).Make();
}

}  // namespace tricklet
