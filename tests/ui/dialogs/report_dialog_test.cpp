// The report of a session, opened from the window.
#include <atomic>

#include <QLabel>
#include <QPrinter>
#include <QTabWidget>

#include "formats/results/table_record.h"
#include "tests/support/fake_solver.h"
#include "tests/support/hands.h"
#include "tests/ui/accessibility.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmReport.h"
#include "ui/report/report_view.h"

namespace tricklet::ui {
namespace {

/// Says of every play that declarer could end with ten tricks until the last card that is known,
/// and with nine after it.
class LastCardCosts : public test::FakeSolver {
 public:
  std::string SolvePlays(std::span<const SolverPlay> plays,
                         std::span<PlayTricks> answers) override {
    if (plays.size() > 1) batches += 1;  // a record that is looked at is solved by itself
    for (std::size_t i = 0; i < plays.size(); ++i) {
      answers[i].assign(plays[i].cards.size() + 1, 10);
      answers[i].back() = 9;
    }
    return {};
  }
  std::atomic<int> batches{0};
};

/// Two tables of board 3 of library Club, 4S by South: made, and one down.
class ReportDialogTest : public WindowTest {
 protected:
  ReportDialogTest() {
    Board board;
    board.hands = test::HandsOf(kDeal);
    board.boardNumber = 3;
    for (auto& row : board.makeable) row.fill(10);
    board.makeableValid = true;
    test::WriteFile(session.BoardPath(3), WriteBoardText(board));
    LinFile results;
    results.boardScoringMethod = "MATCH_POINTS";
    results.boardScoringAbb = "MP";
    for (const char* name :
         {"1 NS Ann & Bob", "2 NS Cy & Di", "11 EW Gus & Hal", "12 EW Ida & Jim"}) {
      results.names.emplace_back(name);
    }
    results.lin = {Line("Ann Gus Bob Hal", "10"), Line("Cy Ida Di Jim", "9")};
    test::WriteFile(LinDataPath(session), LinFileText(results));
    session.getSolver = [this]() -> Solver& { return solver; };
  }

  static std::string Line(const char* players, const char* tricks) {
    TableRecord record;
    record.boardNumber = 3;
    record.hands = test::HandsOf(kDeal);
    for (const char* call : {"4S", "P", "P", "P"})
      record.auction.push_back({test::CallOf(call), ""});
    record.tricks = tricks;
    for (const char* card : {"D6", "D2", "DA", "D3"}) record.play.push_back(test::CardOf(card));
    int seat = 0;
    for (const std::string& name : test::Words(players)) {
      record.players[static_cast<Seat>(seat++)] = name;
    }
    return LinLineOf(record);
  }

  /// Has `work` work the dialog, which it has to close.
  void WithReport(const std::function<void(const Driven&)>& work) {
    if (!window) {
      session.settings.autoMakeable = false;
      Open();
    }
    Expect([work](const Driven& form) {
      // The plays are reviewed once the dialog is there.
      const auto* said = form.Find<QLabel>("lblRemarks");
      ASSERT_TRUE(QTest::qWaitFor([said] { return !said->text().isEmpty(); }));
      ASSERT_TRUE(QTest::qWaitFor([&] { return form.Enabled("cmdPrint"); }));
      work(form);
    });
    Key("Ctrl+Shift+E");
  }
  static std::string Cell(const ReportView& view, int row, const char* heading) {
    for (int column = 0; column < view.model()->columnCount(); ++column) {
      const QString text =
          view.model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
      if (text == QLatin1String(heading))
        return FromQt(view.model()->index(row, column).data().toString());
    }
    return "no such column";
  }

  static constexpr const char* kDeal =
      "N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96";
  LastCardCosts solver;
};

TEST_F(ReportDialogTest, ShowsReviewsOnceAndGoesToTheRecordThatIsChosen) {
  WithReport([&](const Driven& form) {
    EXPECT_EQ(form.Text("lblRemarks").substr(0, 53),
              "Double-dummy: every card seen. Plays reviewed: 2 of 2");
    const auto* pairs = form.Find<ReportView>("grdEntrants");
    EXPECT_EQ(Cell(*pairs, 1, "Pair") + " " + Cell(*pairs, 1, "Declarer"), "Cy & Di 1.00");
    EXPECT_FALSE(form.Enabled("cmdGo")) << "no result is chosen";
    for (const int page : {0, 1}) {
      form.Find<QTabWidget>("tabReport")->setCurrentIndex(page);
      EXPECT_EQ(FromQt(test::UnnamedIn(*form.top).join(u'\n')), "") << page;
      EXPECT_EQ(FromQt(test::FlawsOfCaptions(*form.top).join(u'\n')), "") << page;
      EXPECT_EQ(FromQt(test::MissedByTab(*form.top).join(u'\n')), "") << page;
    }
    EXPECT_TRUE(form.Enabled("cmdGo"));
    auto* tables =
        form.Find<QWidget>("pagBoards")->findChild<ReportView*>(QStringLiteral("grdTables"));
    tables->Choose(1);
    tables->setFocus();
    Driven::FocusKey("Return");
  });
  EXPECT_EQ(session.board.boardNumber, 3);
  EXPECT_TRUE(Enabled("mnuLinLeave")) << "its record is looked at";
  EXPECT_EQ(solver.batches, 1);

  Key("Ctrl+Shift+J");
  WithReport([&](const Driven& form) {
    EXPECT_EQ(form.Find<QTabWidget>("tabReport")->currentIndex(), 1) << "as it was left";
    form.Press("cmdClose");
  });
  EXPECT_EQ(solver.batches, 1) << "what has been reviewed is kept";
}

TEST_F(ReportDialogTest, WithoutASolverItShowsWhatIsKnown) {
  solver.missing = "There is no solver here";
  WithReport([&](const Driven& form) {
    EXPECT_NE(form.Text("lblRemarks").find("Plays reviewed: 0 of 2. There is no solver here"),
              std::string::npos)
        << form.Text("lblRemarks");
    const auto* pairs = form.Find<ReportView>("grdEntrants");
    EXPECT_NE(Cell(*pairs, 0, "Against par"), "");
    EXPECT_EQ(Cell(*pairs, 0, "Declarer"), "");
    host.Choose(folder.Path() / "a.csv");
    form.Press("cmdCsv");
    EXPECT_EQ(host.suggested.filename(), "Club report.csv");
    const std::string csv = test::ReadFile(folder.Path() / "a.csv");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 5) << csv;
    EXPECT_NE(csv.find("Ann & Bob"), std::string::npos) << csv;
    host.Choose(folder.Path() / "no folder" / "a.csv");
    host.ExpectTellWith("a.csv");
    form.Press("cmdCsv");
    EXPECT_EQ(form.Text("lblSaid"), "");
    qobject_cast<frmReport*>(form.top)->SetPrinterChooser([&](QPrinter& printer, int, QWidget*) {
      printer.setOutputFileName(PathToQt(folder.Path() / "a.pdf"));
      return true;
    });
    form.Press("cmdPrint");
    EXPECT_EQ(form.Text("lblSaid"), "Sent to the printer");
    EXPECT_EQ(test::ReadFile(folder.Path() / "a.pdf").substr(0, 4), "%PDF");
    form.Press("cmdClose");
  });
}

TEST_F(ReportDialogTest, IsOfferedWhereThereAreResults) {
  Open();
  EXPECT_TRUE(Enabled("mnuReport"));
  SelectLibrary(session, "Teaching");
  window->Display();
  EXPECT_FALSE(Enabled("mnuReport"));
}

}  // namespace
}  // namespace tricklet::ui
