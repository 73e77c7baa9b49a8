#include "generate/deal_report.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <iomanip>
#include <ostream>
#include <span>
#include <sstream>

#include "analysis/deal_text.h"
#include "core/local_time.h"

namespace tricklet {
namespace {

constexpr std::array kSeatLetters{'n', 'e', 's', 'w'};
constexpr std::size_t kHandWidth = 20;

std::string Padded(std::string text) {
  text.resize(std::max(text.size(), kHandWidth), ' ');
  return text;
}

/// "A K 5 ", "- " for a void.
std::string Spaced(Holding holding) {
  int count = 0;
  std::string text;
  for (const char rank : PBNFormat(holding, count)) text += {rank, ' '};
  return count == 0 ? "- " : text;
}

/// Hands side by side, a line for each suit.
void WriteHands(std::ostream& out, std::span<const PerSuit<Holding>> hands) {
  std::string lines;
  for (const Suit suit : kAllSuits) {
    for (std::size_t i = 0; i < hands.size(); ++i) {
      const std::string text = Spaced(hands[i][suit]);
      lines += i + 1 < hands.size() ? Padded(text) : text;
    }
    lines += '\n';
  }
  out << lines << '\n';
}

std::string Numbered(std::int64_t number) {
  std::ostringstream text;
  text << std::setw(4) << number << '.';
  return text.str();
}

/// The hands of one seat on a page of their own, four side by side.
void WritePage(std::ostream& out, Seat seat, std::span<const HandTable> deals) {
  constexpr std::size_t kAcross = 4;
  out << "\n\n" << SeatName[seat] << " hands:\n\n\n\n";
  for (std::size_t first = 0; first < deals.size(); first += kAcross) {
    std::vector<PerSuit<Holding>> row;
    row.reserve(kAcross);
    for (std::size_t i = first; i < std::min(first + kAcross, deals.size()); ++i) {
      out << Padded(Numbered(static_cast<std::int64_t>(i) + 1));
      row.push_back(deals[i][seat]);
    }
    out << '\n';
    WriteHands(out, row);
  }
  out << '\f';
}

/// The deal as "n S.H.D.C e ...", with `separator` behind each hand.
void WriteLines(std::ostream& out, const HandTable& hands, char separator) {
  for (const Seat seat : kAllSeats) {
    int count = 0;
    out << kSeatLetters.at(static_cast<std::size_t>(seat)) << ' '
        << HandDealText(hands[seat], count) << separator;
  }
}

}  // namespace

std::vector<ExpressionId> ExpressionsOf(const Script& script) {
  std::vector<ExpressionId> expressions;
  for (const ScriptAction& action : script.Actions()) {
    if (action.expression != kNoExpression) expressions.push_back(action.expression);
    for (const PrintPiece& piece : action.pieces) {
      if (piece.expression != kNoExpression) expressions.push_back(piece.expression);
    }
    for (const ValueRange& range : action.ranges) expressions.push_back(range.expression);
  }
  return expressions;
}

DealReport::DealReport(std::shared_ptr<const Script> script, std::string name, std::uint64_t seed,
                       std::ostream& out)
    : script_(std::move(script)), name_(std::move(name)), seed_(seed), out_(out) {
  for (const ScriptAction& action : script_->Actions()) {
    Gathered& gathered = gathered_.emplace_back();
    if (!action.ranges.empty()) gathered.frequency.emplace(action.ranges);
  }
}

void DealReport::Add(const FoundDeal& deal) {
  ++deals_;
  const std::int32_t* value = deal.values.data();
  for (std::size_t i = 0; i < gathered_.size(); ++i) {
    const ScriptAction& action = script_->Actions()[i];
    if (action.kind == ActionKind::Print) {
      gathered_[i].deals.push_back(deal.hands);
    } else if (action.kind == ActionKind::Average) {
      gathered_[i].sum += *value++;
    } else if (auto& frequency = gathered_[i].frequency) {
      frequency->Add(value);
      value += action.ranges.size();
    } else {
      Print(action, deal, value);
    }
  }
}

void DealReport::Print(const ScriptAction& action, const FoundDeal& deal,
                       const std::int32_t*& value) {
  const HandTable& hands = deal.hands;
  switch (action.kind) {
    case ActionKind::PrintAll:
      out_ << Numbered(deals_) << '\n';
      WriteHands(out_, hands.values);
      break;
    case ActionKind::PrintEW:
      WriteHands(out_, std::array{hands[Seat::West], hands[Seat::East]});
      break;
    case ActionKind::PrintPBN:
      WritePbn(hands);
      break;
    case ActionKind::PrintCompact:
      WriteLines(out_, hands, '\n');
      if (action.expression != kNoExpression) out_ << *value++ << '\n';
      break;
    case ActionKind::PrintOneLine:
      WriteLines(out_, hands, ' ');
      if (action.expression != kNoExpression) out_ << *value++;
      out_ << '\n';
      break;
    default:
      for (const PrintPiece& piece : action.pieces) {
        if (piece.expression != kNoExpression) {
          out_ << *value++;
        } else {
          out_ << piece.text;
        }
      }
  }
}

void DealReport::WritePbn(const HandTable& hands) {
  // Without words of the script, dealer and vulnerability go round with the board number.
  const int board = static_cast<int>((deals_ - 1) % 16) + 1;
  const ScriptContent& content = script_->Content();
  const Seat dealer = content.dealer.value_or(DealerOfBoard(board));
  const Vulnerability vulnerable = content.vulnerable.value_or(VulOfBoard(board));
  out_ << "[Event \"Hand simulated by Tricklet with file " << name_ << ", seed " << seed_
       << "\"]\n[Site \"-\"]\n[Date \"" << LocalTimeText(std::time(nullptr), "%Y.%m.%d")
       << "\"]\n[Board \"" << deals_
       << "\"]\n[West \"-\"]\n[North \"-\"]\n[East \"-\"]\n[South \"-\"]\n[Dealer \""
       << SeatName[dealer].front() << "\"]\n[Vulnerable \"" << PBNVul[vulnerable] << "\"]\n[Deal \""
       << SolverDealText(hands) << "\"]\n[Declarer \"?\"]\n[Contract \"?\"]\n[Result \"?\"]\n\n";
}

void DealReport::Finish() {
  for (std::size_t i = 0; i < gathered_.size(); ++i) {
    const ScriptAction& action = script_->Actions()[i];
    const Gathered& gathered = gathered_[i];
    if (action.kind == ActionKind::Print) {
      for (const Seat seat : action.seats) WritePage(out_, seat, gathered.deals);
    } else if (gathered.frequency) {
      gathered.frequency->Write(out_, action.title);
    } else if (action.kind == ActionKind::Average) {
      if (!action.title.empty()) out_ << action.title << ": ";
      if (deals_ == 0) {
        out_ << "-\n";
      } else {
        out_ << gathered.sum / static_cast<double>(deals_) << '\n';
      }
    }
  }
}

std::string DealRunText(const DealRunOutcome& outcome, std::uint64_t seed) {
  std::ostringstream text;
  text << "Generated " << outcome.tried << " hands\nProduced " << outcome.produced
       << " hands\nInitial random seed " << seed << "\nTime needed " << std::fixed
       << std::setprecision(3) << std::setw(8) << outcome.seconds << " sec";
  return text.str();
}

}  // namespace tricklet
