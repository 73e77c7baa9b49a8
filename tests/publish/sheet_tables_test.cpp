// Travellers and rankings as they stand on paper.
#include "publish/sheet_tables.h"

#include <gtest/gtest.h>

namespace tricklet::test {
namespace {

LinFile SessionFile() {
  LinFile file;
  file.boardScoringMethod = "MATCH_POINTS";
  file.names = {"1 NS Ann & Bob", "2 EW Cy & Di", "3 NS Eve & Flo", "4 EW Gus & Hal"};
  file.lin = {"pn|Bob,Di,Ann,Cy|ah|Board 2|qent|11||qens|650||qenc|4S||qend|S||qenl|HT|",
              "pn|Flo,Hal,Eve,Gus|ah|Board 2|qent|8||qens|-300||qenc|3NTx||qend|N||qenl|C2|",
              "pn|Ida,,Jo,Kit|ah|Board 2|qens|A6040|", "pn|Bob,Hal,Ann,Gus|ah|Board 3|"};
  return file;
}

Published Session() {
  Published published;
  published.results = SessionFile();
  for (const int number : {1, 2, 3}) {
    PublishedBoard one;
    one.board.boardNumber = number;
    one.par = Par{};
    one.traveller = MakeTraveller(published.results, number);
    published.boards.push_back(std::move(one));
  }
  return published;
}

/// The cells of each row, divided by bars.
std::vector<std::string> RowsOf(const SheetTable& table) {
  std::vector<std::string> rows;
  for (const auto& cells : table.rows) {
    EXPECT_EQ(cells.size(), table.columns.size());
    std::string text;
    for (const std::string& cell : cells) text += (&cell == cells.data() ? "" : "|") + cell;
    rows.push_back(text);
  }
  return rows;
}

TEST(SheetTables, HoldTheTravellersOfBoardsWithResults) {
  const std::vector<SheetTable> tables = TravellerTables(Session(), true);
  ASSERT_EQ(tables.size(), 1U) << "board 1 has no table, and board 3 was not played";
  EXPECT_EQ(tables[0].title + ": " + tables[0].details + ". " + tables[0].aside,
            "Board 2: E deals, NS vul. Par All Pass 0");
  EXPECT_EQ(tables[0].columns.back(), (SheetColumn{"MP EW", ColumnKind::Number}));
  EXPECT_EQ(RowsOf(tables[0]),
            (std::vector<std::string>{"1|2|Ann & Bob|Cy & Di|4\u2660|S|\u266510|11|650||2|0",
                                      "3|4|Eve & Flo|Gus & Hal|3NTx|N|\u26632|8||300|0|2",
                                      "||Jo & Ida|Kit|||||A6040||1.2|0.8"}));
  EXPECT_EQ(TravellerTables(Session(), false).at(0).aside, "");
}

TEST(SheetTables, HoldTheRankingAndWhatIsNotRanked) {
  Published session = Session();
  session.boards.pop_back();
  std::vector<SheetTable> tables = RankingTables(RankingOf(session));
  ASSERT_EQ(tables.size(), 2U);
  EXPECT_EQ(tables[1].title, "Ranking, East-West");
  EXPECT_EQ(RowsOf(tables[1]),
            (std::vector<std::string>{"1|4|Gus & Hal|1|2|100.00", "2||Kit|1|0.8|40.00",
                                      "3|2|Cy & Di|1|0|0.00"}));
  session.results.boardScoringMethod = "IMPS";
  session.results.teamEvent.emplace();
  tables = RankingTables(RankingOf(session));
  ASSERT_EQ(tables.size(), 1U);
  EXPECT_EQ(tables[0].kind, SheetTableKind::Remarks);
  EXPECT_EQ(RowsOf(tables[0]),
            (std::vector<std::string>{
                "The teams cannot be ranked: it is not known which tables belong together"}));
}

}  // namespace
}  // namespace tricklet::test
