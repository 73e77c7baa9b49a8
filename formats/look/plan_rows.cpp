#include "formats/look/plan_rows.h"

#include <algorithm>

#include "core/statistics.h"
#include "core/text.h"

namespace tricklet {
namespace {

constexpr const char* kImpossible = "a card occurs twice, or a hand has more than 13";

std::string Count(int number, const std::string& one, const std::string& several) {
  return std::to_string(number) + " " + (number == 1 ? one : several);
}

std::string HandText(const PerSuit<Holding>& hand) {
  constexpr EnumArray<Suit, std::string_view, kSuits> kSymbols{
      {"\u2660", "\u2665", "\u2666", "\u2663"}};
  std::string text;
  for (const Suit suit : kAllSuits) {
    int cards = 0;
    const std::string ranks = PBNFormat(hand[suit], cards);
    text += (text.empty() ? "" : " ") + std::string(kSymbols[suit]) + (cards == 0 ? "-" : ranks);
  }
  return text;
}

/// North's hand, or the first that has cards.
std::string FirstHand(const HandTable& hands) {
  const Statistics stats = GetStats(hands);
  for (const Seat seat : kAllSeats) {
    if (stats.seatCardCount[seat] > 0) return HandText(hands[seat]);
  }
  return "";
}

std::string LabelText(const FoundGame& game) {
  const std::string label = Showable(game.label, 16);
  return game.room.empty() ? label : label + " (" + Showable(game.room, 16) + ")";
}

/// "East has no cards", "South has 12 cards" of a deal that is not complete.
std::string MissingText(const HandTable& hands) {
  const Statistics stats = GetStats(hands);
  std::string text;
  for (const Seat seat : kAllSeats) {
    const int cards = stats.seatCardCount[seat];
    if (cards == kCardsInHand) continue;
    text += (text.empty() ? "" : ", ") +
            std::string(cards == 0 ? "no cards" : Count(cards, "card", "cards")) + " for " +
            std::string(SeatName[seat]);
  }
  return text + ": left incomplete";
}

/// The number for a sentence, as the file has it or as it follows from the records before.
std::string NumberOfText(const FoundGame& game) {
  return Showable(game.label.empty() ? std::to_string(game.number) : game.label, 16);
}

class RowMaker {
 public:
  RowMaker(const FileContents& contents, const ImportChoices& choices,
           const std::vector<std::string>& libraries)
      : games_(contents.sections[choices.section].games),
        choices_(choices),
        libraries_(libraries) {}

  PlanRow RowOf(const PlannedBoard& board, std::size_t at) const {
    const FoundGame& game = games_[board.games.front()];
    PlanRow row;
    row.inFile = LabelText(game);
    row.hand = FirstHand(game.board.hands);
    row.board = at;
    row.stored = IsStored(board.fate);
    row.optional = row.stored || board.fate == Fate::Unwanted;
    if (row.stored) row.storedAs = PlaceText(board);
    row.what = WhatOf(board, game, row.ordinary);
    return row;
  }

 private:
  std::string PlaceText(const PlannedBoard& board) const {
    std::string text = std::to_string(board.number);
    if (board.part > 0)
      text += " in " + Showable(libraries_.at(static_cast<std::size_t>(board.part)));
    return text;
  }

  static void Add(std::string& text, const std::string& more) {
    if (!more.empty()) text += (text.empty() ? "" : "; ") + more;
  }

  std::string WhatOf(const PlannedBoard& board, const FoundGame& game, bool& ordinary) const {
    std::string text = IsStored(board.fate) ? StoredText(board, game) : LeftOutText(board, game);
    ordinary = text.empty();
    if (!IsStored(board.fate)) return text;
    if (board.replaces) {
      Add(text, "replaces the board that is there");
    } else if (ordinary) {
      text = "new";
    }
    Add(text, TablesOf(board));
    return text;
  }

  /// What is out of the ordinary with a board that is stored.
  std::string StoredText(const PlannedBoard& board, const FoundGame& game) const {
    std::string text;
    if (board.repeats)
      Add(text, "another board " + NumberOfText(game) + " of the file" + Where(board));
    if (board.fate == Fate::Numbered) {
      Add(text,
          (game.label.empty() ? "has no number" : "no library has such a number") + Where(board));
    }
    if (board.otherDealer) Add(text, DealerText(board));
    if (board.fate == Fate::Moved && !board.repeats && !board.otherDealer) {
      Add(text, "numbered in the order of the file");
    }
    if (game.troubles.Has(DealTrouble::Impossible)) {
      Add(text, "the deal is left out, as it is impossible (" + std::string(kImpossible) +
                    "): results only");
    }
    if (game.troubles.Has(DealTrouble::NoCards)) Add(text, "no deal in the file: results only");
    if (game.troubles.Has(DealTrouble::Incomplete)) Add(text, MissingText(game.board.hands));
    if (game.troubles.Has(DealTrouble::OddTable)) Add(text, "its double-dummy table is not whole");
    if (game.troubles.Has(DealTrouble::WrongCheck)) Add(text, "its check value is wrong");
    if (game.troubles.Has(DealTrouble::OverlongAuction)) {
      Add(text, "an auction of more than 100 calls is left out");
    }
    return text;
  }

  std::string Where(const PlannedBoard& board) const {
    if (board.fate == Fate::Stored) return ", which it replaces";
    return choices_.numbers == Numbering::From ? "" : ": stored as the next free number";
  }

  std::string DealerText(const PlannedBoard& board) const {
    const FoundGame* game = &games_[board.games.front()];
    for (const std::size_t each : board.games) {
      if (games_[each].dealer) {
        game = &games_[each];
        break;
      }
    }
    std::string theirs = game->dealer ? "dealer " + std::string(SeatName[*game->dealer]) : "";
    if (game->vulnerability) {
      theirs += std::string(theirs.empty() ? "" : ", ") + "vulnerable " +
                std::string(VulText[*game->vulnerability]);
    }
    return "the file has " + theirs +
           (choices_.dealer == DealerBy::Number ? ": as the board number has them instead"
                                                : ": stored as the next number with these");
  }

  std::string LeftOutText(const PlannedBoard& board, const FoundGame& game) const {
    switch (board.fate) {
      case Fate::Replaced:
        return "left out: a later board of the file has its number";
      case Fate::Repeated:
        return "left out: an earlier board of the file has its number";
      case Fate::NoNumber:
        return game.label.empty() ? "left out: it has no number"
                                  : "left out: a library holds boards 1 to 999";
      case Fate::Impossible:
        return "left out: " + std::string(kImpossible);
      case Fate::Outside:
        return "left out: outside \"From board\" to \"To board\" of the file";
      case Fate::Empty:
        return "left out: no cards and no results";
      case Fate::AfterFault:
        return "left out: it follows a line that cannot be read";
      case Fate::Unwanted:
        return "left out";
      default:
        return "";
    }
  }

  std::string TablesOf(const PlannedBoard& board) const {
    if (!choices_.keepResults) return "";
    int tables = 0;
    bool notes = false;
    for (const std::size_t game : board.games) {
      tables += static_cast<int>(games_[game].records.size());
      notes = notes || !games_[game].notes.empty();
    }
    std::string text = tables == 0 ? "" : Count(tables, "result", "results");
    if (notes) text += text.empty() ? "notes" : " and notes";
    return text.empty() ? "" : "with " + text;
  }

  const std::vector<FoundGame>& games_;
  const ImportChoices& choices_;
  const std::vector<std::string>& libraries_;
};

PlanRow RowOf(const UnreadPart& part) {
  PlanRow row;
  row.inFile = Showable(part.label, 16);
  row.what =
      part.line > 0 ? "line " + std::to_string(part.line) + " cannot be read" : "cannot be read";
  if (!part.reason.empty()) row.what += " (" + Showable(part.reason) + ")";
  if (!part.text.empty()) row.what += ": " + Showable(part.text, 60);
  row.ordinary = false;
  return row;
}

}  // namespace

std::vector<PlanRow> PlanRows(const FileContents& contents, const ImportChoices& choices,
                              const ImportPlan& plan, const std::vector<std::string>& libraries) {
  std::vector<PlanRow> rows;
  auto unread = contents.unread.begin();
  if (choices.section < contents.sections.size()) {
    const RowMaker maker(contents, choices, libraries);
    const auto& games = contents.sections[choices.section].games;
    for (std::size_t at = 0; at < plan.boards.size(); ++at) {
      const int line = games[plan.boards[at].games.front()].line;
      for (; unread != contents.unread.end() && unread->line < line; ++unread) {
        rows.push_back(RowOf(*unread));
      }
      rows.push_back(maker.RowOf(plan.boards[at], at));
    }
  }
  for (; unread != contents.unread.end(); ++unread) rows.push_back(RowOf(*unread));
  return rows;
}

std::string PlanSummary(const FileContents& contents, const ImportPlan& plan) {
  const auto found = static_cast<int>(plan.boards.size());
  std::string text =
      Count(found, "board", "boards") + " found, " + std::to_string(plan.stored) + " can be stored";
  if (plan.tables > 0) text += ", " + Count(plan.tables, "result", "results");
  const auto unread = static_cast<int>(contents.unread.size());
  if (unread > 0) text += ", " + Count(unread, "part", "parts") + " cannot be read";
  return text;
}

std::string TablesText(int boards, int tables) {
  if (tables <= boards) return "";
  return Count(boards, "board", "boards") + " from " + Count(tables, "table", "tables");
}

}  // namespace tricklet
