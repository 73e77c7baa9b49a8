#include "formats/look/import_plan.h"

#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "formats/look/plan_rows.h"

namespace tricklet::test {
namespace {

/// Deal number `deal`: no two of them are equal.
HandTable DealNumber(int deal) {
  HandTable hands;
  for (int card = 0; card < kCardsInPack; ++card) {
    AddCard(hands, Card::FromIndex((card + deal) % kCardsInPack),
            static_cast<Seat>(card / kCardsInHand));
  }
  return hands;
}

/// Each word is a game: its number ("-": none), after "/" which deal it has (else that of its
/// number), after "@" its dealer, "!" impossible, "+" with a result.
FileContents ContentsOf(const std::string& words) {
  FileContents contents;
  auto& games = contents.sections.emplace_back().games;
  std::istringstream in(words);
  for (std::string word; in >> word;) {
    FoundGame& game = games.emplace_back();
    game.label = word[0] == '-' ? "" : word.substr(0, word.find_first_of("/@!+"));
    game.number = game.label.empty() ? 0 : std::stoi(game.label);
    game.line = 10 * static_cast<int>(games.size());
    const auto deal = word.find('/');
    game.board.hands =
        DealNumber(deal == std::string::npos ? game.number : std::stoi(word.substr(deal + 1)));
    if (const auto at = word.find('@'); at != std::string::npos) {
      game.dealer = static_cast<Seat>(std::string("NESW").find(word[at + 1]));
    }
    if (word.find('!') != std::string::npos) game.troubles.Add(DealTrouble::Impossible);
    if (word.find('+') != std::string::npos) game.records.emplace_back("qx|o1|");
  }
  return contents;
}

/// The number of each board, "x" where it is left out, "*" after one that replaces a board that is
/// there, and the library's before "/" where it is a further one.
std::string PlanOf(const FileContents& contents, const ImportChoices& choices,
                   const std::set<int>& there = {}) {
  BoardsThere boards{};
  for (const int number : there) boards.at(static_cast<std::size_t>(number)) = true;
  std::string text;
  for (const PlannedBoard& board : PlanImport(contents, choices, boards).boards) {
    if (!text.empty()) text += ' ';
    if (board.part > 0) text += std::to_string(board.part + 1) + "/";
    text += IsStored(board.fate) ? std::to_string(board.number) : "x";
    if (board.replaces) text += '*';
  }
  return text;
}

ImportChoices With(Numbering numbers, DealerBy dealer, int from = 1) {
  ImportChoices choices;
  choices.numbers = numbers;
  choices.dealer = dealer;
  choices.from = from;
  return choices;
}

TEST(ImportPlanTest, NumbersTheDealsOfAFile) {
  constexpr auto kKeep = Numbering::Keep;
  constexpr auto kNext = Numbering::Next;
  constexpr auto kByFile = DealerBy::File;
  constexpr auto kByNumber = DealerBy::Number;
  struct Case {
    const char* games;
    ImportChoices choices;
    const char* plan;
  };
  const Case kCases[] = {
      {"1 2 3", With(kNext, kByFile), "1 2* 3"},
      {"1 2/7 2 3", With(kNext, kByFile), "1 2* 4 3"},  // the next free one after the highest
      {"1 4/7 4", With(kNext, kByFile), "1 4 6"},       // 5 is there
      {"1 4/7 4", With(Numbering::First, kByFile), "1 4 x"},
      {"1 4/7 4 4/9", With(kKeep, kByFile), "1 x x 4"},
      {"1 2 1 2 1", With(kNext, kByFile), "1 2*"},  // the same deals at several tables
      {"- 3 - 0/8", With(kNext, kByFile), "4 3 6 7"},
      {"- 3", With(kKeep, kByFile), "x 3"},
      {"999 999/1 -", With(kNext, kByFile), "999 1 3"},  // gaps are filled before a library begins
      {"1000 1", With(kNext, kByFile), "3 1"},
      {"1! 2", With(kNext, kByFile), "x 2*"},
      {"1!+ 2", With(kNext, kByFile), "1 2*"},   // its results are kept
      {"3@N 4@W", With(kNext, kByFile), "9 4"},  // 5 is there
      {"3@N 4@W", With(kNext, kByNumber), "3 4"},
      {"3@N 3@N", With(kKeep, kByFile), "9"},
      {"3/1@N 3/2@S", With(kNext, kByFile), "9 3"},
      {"7 - 7/9", With(Numbering::From, kByFile, 21), "21 22 23"},
      {"7@E -", With(Numbering::From, kByFile, 999), "2/2 2/3"},
      {"7 8", With(Numbering::From, kByFile, 999), "999 2/1"},
  };
  for (const Case& each : kCases) {
    EXPECT_EQ(PlanOf(ContentsOf(each.games), each.choices, {2, 5}), each.plan) << each.games;
  }
}

TEST(ImportPlanTest, GoesOnInFurtherLibraries) {
  FileContents contents;
  auto& games = contents.sections.emplace_back().games;
  for (int at = 0; at < 2500; ++at) {
    FoundGame& game = games.emplace_back();
    game.number = 1 + at % 2;
    game.board.hands = DealNumber(at % kCardsInPack);
    game.board.hands[Seat::North][Suit::Spades] = Holding::FromBits(static_cast<unsigned>(at));
  }
  const ImportPlan plan = PlanImport(contents, ImportChoices(), BoardsThere{});
  std::set<std::pair<int, int>> places;
  for (const PlannedBoard& board : plan.boards) places.emplace(board.part, board.number);
  EXPECT_EQ(places.size(), 2500U);
  EXPECT_EQ(places.rbegin()->first, 2);
  EXPECT_EQ(places.rbegin()->second, 2500 - 2 * 999);
  EXPECT_EQ(plan.parts, 3);
}

TEST(ImportPlanTest, LeavesOutWhatIsNotWanted) {
  FileContents contents = ContentsOf("1+ 2 1+ 3");
  contents.unread.push_back({15, "2", "[Deal \"N", ""});
  ImportChoices choices;
  choices.unwanted = {2};
  EXPECT_EQ(PlanOf(contents, choices), "1 2 x");
  choices.skipBad = false;
  EXPECT_EQ(PlanOf(contents, choices), "1 x x");
  EXPECT_EQ(PlanImport(contents, choices, BoardsThere{}).tables, 2);
  choices.keepResults = false;
  EXPECT_EQ(PlanImport(contents, choices, BoardsThere{}).tables, 0);
}

TEST(PlanRowsTest, SayWhatHappens) {
  FileContents contents = ContentsOf("1 2/5 2 -+ 9@W 8!");
  auto& games = contents.sections.front().games;
  games[1].room = "Open";
  games[0].board.hands[Seat::East] = {};
  NoteDealTroubles(games[0]);
  contents.unread.push_back({35, "6", "[Deal \"N:AK\"]", ""});
  BoardsThere there{};
  there.at(2) = true;
  const ImportChoices choices;
  const ImportPlan plan = PlanImport(contents, choices, there);
  std::string text;
  for (const PlanRow& row : PlanRows(contents, choices, plan, {"Club"})) {
    text += row.inFile + "|" + row.storedAs + "|" + row.what + "\n";
  }
  EXPECT_EQ(text,
            "1|1|no cards for East: left incomplete\n"
            "2 (Open)|2|replaces the board that is there\n"
            "2|10|another board 2 of the file: stored as the next free number\n"
            "6||line 35 cannot be read: [Deal \"N:AK\"]\n"
            "|11|has no number: stored as the next free number; with 1 result\n"
            "9|12|the file has dealer West: stored as the next number with these\n"
            "8||left out: a card occurs twice, or a hand has more than 13\n");
  EXPECT_EQ(PlanSummary(contents, plan),
            "6 boards found, 5 can be stored, 1 result, 1 part cannot be read");
}

}  // namespace
}  // namespace tricklet::test
