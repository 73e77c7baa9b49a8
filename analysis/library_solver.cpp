#include "analysis/library_solver.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <mutex>

#include "analysis/dds_types.h"
#include "analysis/deal_text.h"
#include "analysis/solve_plays.h"
#include "core/text.h"

namespace tricklet {
namespace {

// The entries, by the names that the library gives them.
using CalcTableVB = std::int32_t(dds::DealText*, std::int32_t*);     // CalcDDtablePBNVB
using CalcTable = std::int32_t(dds::DealText, dds::TableByStrain*);  // CalcDDtablePBN
using CalcAllTables = std::int32_t(dds::DealBatch*, std::int32_t, std::int32_t*, dds::TableBatch*,
                                   dds::ParBatch*);  // CalcAllTablesPBN
using SolvePosition = std::int32_t(dds::Position, std::int32_t, std::int32_t, std::int32_t,
                                   dds::CardTricks*, std::int32_t);               // SolveBoardPBN
using SolvePositions = std::int32_t(dds::PositionBatch*, dds::CardTricksBatch*);  // SolveAllBoards
using AnalysePlay = std::int32_t(dds::BinaryDeal, dds::PlayedCards, dds::PlayOutcome*,
                                 std::int32_t);  // AnalysePlayBin
using AnalyseAllPlays = std::int32_t(dds::PlayDeals*, dds::PlayBatch*, dds::PlayOutcomes*,
                                     std::int32_t);  // AnalyseAllPlaysBin
using LibraryInfo = void(dds::LibraryInfo*);         // GetDDSInfo
using StatusText = void(std::int32_t, char*);        // ErrorMessage

dds::DealText ToBuffer(const std::string& deal) {
  dds::DealText buffer{};
  std::copy_n(deal.begin(), std::min<std::size_t>(deal.size(), dds::kDealTextSize - 1),
              buffer.cards.begin());
  return buffer;
}

SolverRecord ToRecord(const dds::TableByStrain& table) {
  SolverRecord record{};
  for (std::size_t seat = 0; seat < kSeats; ++seat) {
    for (std::size_t strain = 0; strain < kStrains; ++strain) {
      record.at(seat * kStrains + strain) = table.tricks.at(strain).at(seat);
    }
  }
  return record;
}

/// The library counts ranks from 2 to 14, the ace.
std::int32_t ToLibraryRank(Rank rank) {
  return 14 - IndexOf(rank);
}

/// A hostile or foreign library may write any numbers.
bool IsPlausible(std::span<const SolverRecord> records) {
  return std::all_of(records.begin(), records.end(), [](const SolverRecord& record) {
    return std::all_of(record.begin(), record.end(),
                       [](std::int32_t tricks) { return tricks >= 0 && tricks <= 13; });
  });
}

constexpr const char* kImpossibleAnswer = "The double-dummy solver gave an answer that cannot be";

class LibrarySolver : public Solver {
 public:
  explicit LibrarySolver(const SharedLibrary& library)
      : calcTableVB_(library.Entry<CalcTableVB>("CalcDDtablePBNVB")),
        calcTable_(library.Entry<CalcTable>("CalcDDtablePBN")),
        calcAllTables_(library.Entry<CalcAllTables>("CalcAllTablesPBN")),
        solvePosition_(library.Entry<SolvePosition>("SolveBoardPBN")),
        solvePositions_(library.Entry<SolvePositions>("SolveAllBoards")),
        analysePlay_(library.Entry<AnalysePlay>("AnalysePlayBin")),
        analyseAllPlays_(library.Entry<AnalyseAllPlays>("AnalyseAllPlaysBin")),
        libraryInfo_(library.Entry<LibraryInfo>("GetDDSInfo")),
        statusText_(library.Entry<StatusText>("ErrorMessage")) {}

  bool IsSolver() const { return calcTableVB_ != nullptr || calcTable_ != nullptr; }

  std::string Missing() const override { return {}; }

  std::string Version() const override {
    if (libraryInfo_ == nullptr) return {};
    const auto info = std::make_unique<dds::LibraryInfo>();
    libraryInfo_(info.get());
    return std::to_string(info->major) + "." + std::to_string(info->minor) + "." +
           std::to_string(info->patch);
  }

  std::string Solve(std::span<const std::string> deals, std::span<SolverRecord> records) override {
    const std::lock_guard lock(mutex_);
    std::int32_t status = dds::kNoFault;
    if (deals.size() > 1 && calcAllTables_ != nullptr) {
      status = SolveBatch(deals, records);
    } else {
      for (std::size_t i = 0; i < deals.size() && status == dds::kNoFault; ++i) {
        status = SolveOne(deals[i], records[i]);
      }
    }
    if (status != dds::kNoFault) return TextOf(status);
    return IsPlausible(records) ? "" : kImpossibleAnswer;
  }

  std::vector<CardScore> SolveCards(const SolverPosition& position) override;
  void SolveCardsOfAll(std::span<const SolverPosition> positions, CardsWanted wanted,
                       std::span<std::vector<CardScore>> scores) override;
  std::string SolvePlays(std::span<const SolverPlay> plays, std::span<PlayTricks> tricks) override;

 private:
  std::int32_t SolvePlayBatch(std::span<const SolverPlay> plays,
                              std::vector<dds::PlayOutcome>& outcomes);

  std::int32_t SolveOne(const std::string& deal, SolverRecord& record) {
    dds::DealText buffer = ToBuffer(deal);
    if (calcTableVB_ != nullptr) return calcTableVB_(&buffer, record.data());
    dds::TableByStrain table{};
    const std::int32_t status = calcTable_(buffer, &table);
    record = ToRecord(table);
    return status;
  }

  std::int32_t SolveBatch(std::span<const std::string> deals, std::span<SolverRecord> records) {
    const auto batch = std::make_unique<dds::DealBatch>();
    const auto tables = std::make_unique<dds::TableBatch>();
    const auto par = std::make_unique<dds::ParBatch>();
    batch->count = static_cast<std::int32_t>(deals.size());
    for (std::size_t i = 0; i < deals.size(); ++i) batch->deals.at(i) = ToBuffer(deals[i]);
    std::array<std::int32_t, kStrains> skippedStrains{};
    constexpr std::int32_t kWithoutPar = -1;
    const std::int32_t status =
        calcAllTables_(batch.get(), kWithoutPar, skippedStrains.data(), tables.get(), par.get());
    for (std::size_t i = 0; i < deals.size(); ++i) records[i] = ToRecord(tables->tables.at(i));
    return status;
  }

  std::string TextOf(std::int32_t status) const {
    std::array<char, 256> line{};
    if (statusText_ != nullptr) statusText_(status, line.data());
    line.back() = '\0';
    const std::string text = Showable(line.data());
    return text.empty() ? "The double-dummy solver ended with status " + std::to_string(status)
                        : text;
  }

  std::mutex mutex_;  // the library serves one caller at a time
  CalcTableVB* calcTableVB_;
  CalcTable* calcTable_;
  CalcAllTables* calcAllTables_;
  SolvePosition* solvePosition_;
  SolvePositions* solvePositions_;
  AnalysePlay* analysePlay_;
  AnalyseAllPlays* analyseAllPlays_;
  LibraryInfo* libraryInfo_;
  StatusText* statusText_;
};

/// The cards of one entry: the card named, and the lower ones that are worth the same.
void AppendScores(const dds::CardTricks& answer, std::size_t entry,
                  std::vector<CardScore>& scores) {
  constexpr int kLowest = 2;
  constexpr int kAce = 14;
  const std::int32_t suit = answer.suit.at(entry);
  if (suit < 0 || suit >= kSuits) return;
  for (int rank = kAce; rank >= kLowest; --rank) {
    const bool equal =
        ((static_cast<std::uint32_t>(answer.equals.at(entry)) >> static_cast<unsigned>(rank)) &
         1U) != 0;
    if (rank != answer.rank.at(entry) && !equal) continue;
    scores.push_back(
        {{static_cast<Suit>(suit), static_cast<Rank>(kAce - rank)}, answer.tricks.at(entry)});
  }
}

dds::Position ToPosition(const SolverPosition& position) {
  dds::Position record{};
  record.trump = IndexOf(position.trumps);
  record.first = IndexOf(position.leader);
  for (std::size_t i = 0; i < std::min<std::size_t>(position.trick.size(), 3); ++i) {
    record.trickSuit.at(i) = IndexOf(position.trick[i].suit);
    record.trickRank.at(i) = ToLibraryRank(position.trick[i].rank);
  }
  record.cardsLeft = ToBuffer(SolverDealText(position.cardsLeft));
  return record;
}

// How a position is searched.
constexpr std::int32_t kBestScore = -1;
constexpr std::int32_t kOneBest = 1;
constexpr std::int32_t kAllCards = 3;
constexpr std::int32_t kMode = 1;  // even when only one card is legal

std::vector<CardScore> ScoresOf(const dds::CardTricks& answer) {
  std::vector<CardScore> scores;
  const auto count = static_cast<std::size_t>(std::clamp(answer.count, 0, kCardsInHand));
  for (std::size_t entry = 0; entry < count; ++entry) AppendScores(answer, entry, scores);
  return scores;
}

std::vector<CardScore> LibrarySolver::SolveCards(const SolverPosition& position) {
  if (solvePosition_ == nullptr) return {};
  dds::CardTricks answer{};
  const std::lock_guard lock(mutex_);
  const std::int32_t status =
      solvePosition_(ToPosition(position), kBestScore, kAllCards, kMode, &answer, 0);
  return status == dds::kNoFault ? ScoresOf(answer) : std::vector<CardScore>();
}

void LibrarySolver::SolveCardsOfAll(std::span<const SolverPosition> positions, CardsWanted wanted,
                                    std::span<std::vector<CardScore>> scores) {
  const bool oneAsked = positions.size() == 1 && wanted == CardsWanted::All;
  if (positions.empty() || oneAsked || solvePositions_ == nullptr) {
    Solver::SolveCardsOfAll(positions, wanted, scores);
    return;
  }
  const auto batch = std::make_unique<dds::PositionBatch>();
  const auto answer = std::make_unique<dds::CardTricksBatch>();
  batch->count = static_cast<std::int32_t>(positions.size());
  for (std::size_t i = 0; i < positions.size(); ++i) {
    batch->positions.at(i) = ToPosition(positions[i]);
    batch->target.at(i) = kBestScore;
    batch->solutions.at(i) = wanted == CardsWanted::All ? kAllCards : kOneBest;
    batch->mode.at(i) = kMode;
  }
  std::unique_lock lock(mutex_);
  const bool solved = solvePositions_(batch.get(), answer.get()) == dds::kNoFault;
  lock.unlock();
  if (!solved) {  // one of them; the others have an answer by themselves
    Solver::SolveCardsOfAll(positions, wanted, scores);
    return;
  }
  for (std::size_t i = 0; i < positions.size(); ++i) scores[i] = ScoresOf(answer->cards.at(i));
}

dds::BinaryDeal ToBinary(const SolverPlay& play) {
  dds::BinaryDeal deal{};
  deal.trump = IndexOf(play.trumps);
  deal.first = IndexOf(SeatAfter(play.declarer));
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      std::uint32_t& bits =
          deal.cardsLeft.at(static_cast<std::size_t>(seat)).at(static_cast<std::size_t>(suit));
      for (int rank = 0; rank < kRanks; ++rank) {
        const bool has = play.hands[seat][suit].Has(static_cast<Rank>(rank));
        if (has) bits |= 1U << static_cast<unsigned>(ToLibraryRank(static_cast<Rank>(rank)));
      }
    }
  }
  return deal;
}

dds::PlayedCards ToPlayed(const std::vector<Card>& cards) {
  dds::PlayedCards played{};
  for (const Card card : cards) {
    const auto at = static_cast<std::size_t>(played.count++);
    played.suit.at(at) = IndexOf(card.suit);
    played.rank.at(at) = ToLibraryRank(card.rank);
  }
  return played;
}

/// The last trick cannot go otherwise, so the library leaves its cards out. False where it leaves
/// out more, or tells what cannot be.
bool TakeOutcome(const dds::PlayOutcome& outcome, std::size_t cards, PlayTricks& tricks) {
  const std::size_t wanted = std::min(cards, kCardsBeforeLastTrick) + 1;
  if (outcome.count < 0 || static_cast<std::size_t>(outcome.count) < wanted) return false;
  tricks.assign(outcome.tricks.begin(), outcome.tricks.begin() + static_cast<int>(wanted));
  tricks.resize(cards + 1, tricks.back());
  return std::all_of(tricks.begin(), tricks.end(),
                     [](int each) { return each >= 0 && each <= kCardsInHand; });
}

std::int32_t LibrarySolver::SolvePlayBatch(std::span<const SolverPlay> plays,
                                           std::vector<dds::PlayOutcome>& outcomes) {
  const auto deals = std::make_unique<dds::PlayDeals>();
  const auto batch = std::make_unique<dds::PlayBatch>();
  const auto answer = std::make_unique<dds::PlayOutcomes>();
  deals->count = batch->count = static_cast<std::int32_t>(plays.size());
  for (std::size_t i = 0; i < plays.size(); ++i) {
    deals->deals.at(i) = ToBinary(plays[i]);
    batch->plays.at(i) = ToPlayed(plays[i].cards);
  }
  constexpr std::int32_t kChunk = 1;
  const std::int32_t status = analyseAllPlays_(deals.get(), batch.get(), answer.get(), kChunk);
  std::copy_n(answer->outcomes.begin(), outcomes.size(), outcomes.begin());
  return status;
}

std::string LibrarySolver::SolvePlays(std::span<const SolverPlay> plays,
                                      std::span<PlayTricks> tricks) {
  const bool batch = plays.size() > 1 && analyseAllPlays_ != nullptr;
  if (!batch && analysePlay_ == nullptr) return Solver::SolvePlays(plays, tricks);
  std::vector<dds::PlayOutcome> outcomes(plays.size());
  std::int32_t status = dds::kNoFault;
  const std::lock_guard lock(mutex_);
  if (batch) status = SolvePlayBatch(plays, outcomes);
  for (std::size_t i = 0; !batch && i < plays.size() && status == dds::kNoFault; ++i) {
    status = analysePlay_(ToBinary(plays[i]), ToPlayed(plays[i].cards), &outcomes[i], 0);
  }
  if (status != dds::kNoFault) return TextOf(status);
  for (std::size_t i = 0; i < plays.size(); ++i) {
    if (!TakeOutcome(outcomes[i], plays[i].cards.size(), tricks[i])) return kImpossibleAnswer;
  }
  return {};
}

}  // namespace

std::unique_ptr<Solver> MakeLibrarySolver(const SharedLibrary& library) {
  auto solver = std::make_unique<LibrarySolver>(library);
  if (!solver->IsSolver()) return nullptr;
  return solver;
}

}  // namespace tricklet
