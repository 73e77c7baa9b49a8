// What the tables and pictures of a report show of its numbers.
#include "ui/report/report_grids.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "core/text.h"
#include "ui/report/bar_delegate.h"
#include "ui/report/par_scatter.h"
#include "ui/report/report_model.h"
#include "ui/report/report_texts.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Two pairs at one table each of boards 3 and 12; the play of board 12 is not known.
SessionReport SmallReport() {
  SessionReport report;
  for (const auto& [number, names] : {std::pair("10", "Ann & Bob"), std::pair("9", "Cy & Di")}) {
    ReportEntrant& entrant = report.entrants.emplace_back();
    entrant.number = number;
    entrant.names = names;
    entrant.boards = 2;
    entrant.tables = {0, 1};
  }
  report.entrants[0].par = {-130, 2};
  report.entrants[1].par = {130, 2};
  report.entrants[0].declarer = {1, 1};
  report.entrants[0].declared = 2;
  report.entrants[0].made = 1;
  report.entrants[1].gotFromDeclarer = {1, 1};
  ReportTable table;
  table.entrants = PerSeat<int>{{0, 1, 0, 1}};
  table.boardNumber = 3;
  table.contract = "4S";
  table.declarer = Seat::South;
  table.score = -50;
  table.par = AgainstPar{-190, 280, -470};
  table.bidding[Side::EastWest].missedGame = true;
  table.play = ReviewedPlay{Seat::South, {}, ""};
  table.play->given[Seat::South].play = 1;
  report.tables.push_back(table);
  table.boardNumber = 12;
  table.row = 4;
  table.contract = "3NT";
  table.score = 600;
  table.par = AgainstPar{60, 60, 0};
  table.bidding = {};
  table.play.reset();
  report.tables.push_back(table);
  for (const int number : {3, 12}) {
    ReportBoard& board = report.boards.emplace_back();
    board.boardNumber = number;
    board.results = 1;
    board.tables = {report.boards.size() - 1};
    board.againstPar = {report.tables[board.tables[0]].par->total, 1};
    ++board.beatPar[number == 3 ? Side::EastWest : Side::NorthSouth];
  }
  report.boards[0].par = Par{140, {}};
  report.boards[0].beatable = {{4, Strain::Spades, Seat::South, 1, 0, {}, false}};
  return report;
}

/// "2 | 1 of 2": what a row says under some headings.
std::string Says(const ReportGrid& grid, std::size_t row,
                 const std::vector<std::string>& headings) {
  std::string text;
  for (std::size_t column = 0; column < grid.columns.size(); ++column) {
    const std::string heading = FromQt(grid.columns[column].heading);
    if (std::find(headings.begin(), headings.end(), heading) == headings.end()) continue;
    text += " | " + FromQt(grid.rows.at(row).at(column).text);
  }
  return text.empty() ? text : text.substr(3);
}

TEST(ReportGrids, NumbersAreTheEntrantsOwn) {
  const SessionReport report = SmallReport();
  const ReportGrid entrants = EntrantGrid(report);
  EXPECT_EQ(Says(entrants, 0, {"No.", "Pair", "Against par", "Declarer", "Lead", "Gifts", "Made"}),
            "10 | Ann & Bob | \u221265 | 1.00 |  |  | 1 of 2");
  EXPECT_EQ(Says(entrants, 1, {"Against par", "Declarer", "Gifts", "Made"}), "+65 |  | 1 | ");
  const std::vector<std::string> of{"Side",    "Opponents", "Contract", "Score", "Against par",
                                    "Bidding", "Play",      "Given",    "Gifts", "Why"};
  const ReportGrid first = TablesOfEntrant(report, 0);
  EXPECT_EQ(Says(first, 0, of),
            "N-S | 9 Cy & Di | 4\u2660 | \u221250 | \u2212190 | +280 | \u2212470 | 1 | 0 | "
            "E-W by play; E-W missed a game");
  EXPECT_EQ(Says(TablesOfEntrant(report, 1), 0, of),
            "E-W | 10 Ann & Bob | 4\u2660 | +50 | +190 | \u2212280 | +470 | 0 | 1 | "
            "E-W by play; E-W missed a game");
  EXPECT_EQ(Says(first, 1, {"Given", "Gifts", "Why"}), " |  | N-S by bidding");
  EXPECT_EQ(TablesOfEntrant(report, 7).rows.size(), 0U);
}

TEST(ReportGrids, BoardsSayWhoBeatPar) {
  const SessionReport report = SmallReport();
  EXPECT_EQ(Says(BoardGrid(report), 0,
                 {"Board", "Par", "N-S beat par", "E-W beat par", "Beatable", "Lead found"}),
            "3 | +140 | 0 | 1 | 1 | 0 of 1");
  EXPECT_EQ(FromQt(BoardText(report, report.boards[0])).substr(0, 8), "Par All ");
  EXPECT_NE(
      BoardText(report, report.boards[0]).indexOf(QStringLiteral("at 1 of 1 tables: 1 by play")),
      -1);
}

TEST(ReportModel, SortsByMeaningWithTheUnknownLast) {
  ReportModel model;
  ReportOrder order(&model);
  ReportGrid grid{{{QStringLiteral("N"), {}}}, {}};
  for (const auto& [text, value] :
       {std::pair<const char*, std::optional<double>>{"10", 10}, {"", {}}, {"-2", -2}, {"9", 9}}) {
    grid.rows.push_back({{QString::fromLatin1(text), value}});
  }
  model.Show(grid);
  const auto texts = [&] {
    std::string all;
    for (int row = 0; row < order.rowCount(); ++row)
      all += FromQt(order.index(row, 0).data().toString()) + ";";
    return all;
  };
  order.sort(0, Qt::AscendingOrder);
  EXPECT_EQ(texts(), "-2;9;10;;");
  order.sort(0, Qt::DescendingOrder);
  EXPECT_EQ(texts(), "10;9;-2;;");
  order.sort(-1);
  EXPECT_EQ(texts(), "10;;-2;9;");
  EXPECT_EQ(order.RowOf(order.PlaceOf(3)), 3);
  EXPECT_EQ(model.index(1, 0).data(Qt::AccessibleTextRole).toString(),
            ReportModel::tr("not known"));
}

/// The leftmost and the rightmost pixel of a cell that has the colour of bars.
std::pair<int, int> BarIn(double part, CellBar kind) {
  ReportModel model;
  model.Show({{{QStringLiteral("N"), {}, true, false, kind}}, {{{{}, 1.0}}, {{{}, part}}}});
  QStyleOptionViewItem cell;
  cell.rect = QRect(0, 0, 200, 24);
  cell.palette.setColor(QPalette::Highlight, Qt::green);
  cell.state = QStyle::State_Active | QStyle::State_Enabled;
  QImage image(cell.rect.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  BarDelegate().paint(&painter, cell, model.index(1, 0));
  painter.end();
  std::pair<int, int> bar(-1, -1);
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixelColor(x, y) != Qt::green) continue;
      if (bar.first < 0) bar.first = x;
      bar.second = x;
    }
  }
  return bar;
}

TEST(BarDelegate, BarsAreAsLongAsTheirNumbersAndGoTheirWay) {
  const auto length = [](std::pair<int, int> bar) { return bar.second - bar.first + 1; };
  const auto whole = BarIn(1, CellBar::FromLeft);
  EXPECT_NEAR(length(BarIn(0.5, CellBar::FromLeft)), length(whole) / 2.0, 1.5);
  const auto gain = BarIn(1, CellBar::AboutZero);
  const auto loss = BarIn(-1, CellBar::AboutZero);
  EXPECT_NEAR(length(gain), length(whole) / 2.0, 1.5);
  EXPECT_NEAR(length(gain), length(loss), 1.5);
  EXPECT_LE(loss.second, gain.first);
  EXPECT_EQ(BarIn(0, CellBar::FromLeft).first, -1);
}

TEST(ParScatter, TellsInWordsWhatItShows) {
  const ScatterPoint gain{100, 300, false, QStringLiteral("a gain")};
  const ScatterPoint loss{100, -300, true, QStringLiteral("a loss")};
  const ScatterPoint same{50, 50, true, QStringLiteral("par")};
  EXPECT_EQ(FromQt(ScatterText({gain})),
            "Better than par: 1, at par: 0, worse: 0. Best: a gain. Worst: a gain.");
  EXPECT_EQ(FromQt(ScatterText({gain, loss, same})),
            "Better than par: 0, at par: 1, worse: 1. Best: par. Worst: a loss.");
  EXPECT_EQ(FromQt(ScatterText({})), "No result can be compared with par.");
}

}  // namespace
}  // namespace tricklet::ui
