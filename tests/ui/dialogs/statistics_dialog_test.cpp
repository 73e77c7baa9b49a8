// What the deals of a library look like, told by the window.
#include <QClipboard>
#include <QTabWidget>

#include "tests/ui/accessibility.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmStatistics.h"
#include "ui/report/report_view.h"

namespace tricklet::ui {
namespace {

class StatisticsDialogTest : public WindowTest {
 protected:
  void WithStatistics(const std::function<void(const Driven&)>& work) {
    Open();
    Expect(work);
    Key("Ctrl+Alt+S");
  }
};

TEST_F(StatisticsDialogTest, ShowsTheTablesAndHowOrdinaryTheyAre) {
  PutBoard(2);  // five boards, in which each hand has one suit
  WithStatistics([this](const Driven& form) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.Enabled("cmdSave"); }, 30'000));
    EXPECT_EQ(
        form.Text("lblVerdict"),
        "Fewer than 1 in 200 sets of 5 boards dealt at random are like these: hardly by chance");
    EXPECT_EQ(form.Text("lblRemarks"),
              "Boards 1-3, 22, 24 have no double-dummy table: their games are not counted");
    auto* tables = form.Find<QTabWidget>("tabTables");
    for (int page = 0; page < tables->count(); ++page) {
      tables->setCurrentIndex(page);
      EXPECT_EQ(FromQt(test::UnnamedIn(*form.top).join(u'\n')), "") << page;
      EXPECT_EQ(FromQt(test::MissedByTab(*form.top).join(u'\n')), "") << page;
    }
    EXPECT_EQ(FromQt(test::FlawsOfCaptions(*form.top).join(u'\n')), "");
    auto* shapes = tables->widget(0)->findChild<ReportView*>();
    shapes->sortByColumn(1, Qt::DescendingOrder);
    const auto cell = [&](int column, int role) {
      return shapes->model()->index(0, column).data(role);
    };
    EXPECT_EQ(FromQt(cell(0, Qt::DisplayRole).toString()), "13-0-0-0");
    EXPECT_EQ(FromQt(cell(1, Qt::AccessibleTextRole).toString()), "20, of 20 hands; 0.0 expected");
    EXPECT_EQ(cell(1, ReportModel::BarRole).toDouble(), 1);
    EXPECT_LT(cell(1, ReportModel::MarkRole).toDouble(), 1e-6);
    form.Press("cmdCopy");
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("Shapes ")));
    host.Choose(folder.Path() / "deals.csv");
    form.Press("cmdSave");
    EXPECT_EQ(test::ReadFile(folder.Path() / "deals.csv").substr(0, 9), "Table,Row");
    form.Press("cmdClose");
  });
}

TEST_F(StatisticsDialogTest, SaysWhenThereIsNothingToCount) {
  SelectLibrary(session, "Teaching");
  host.ExpectTell("There are no complete deals in this library");
  Open();
  Find<QAction>("mnuDealStatistics")->trigger();
  EXPECT_TRUE(host.Done());
}

}  // namespace
}  // namespace tricklet::ui
