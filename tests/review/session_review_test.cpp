// The plays of a session on the solver, and what a library keeps of its answers.
#include "review/session_review.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "review/report_source.h"
#include "review/review_cache.h"
#include "tests/review/club_evening.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class SessionReviewTest : public ClubEvening {
 protected:
  SessionReviewTest() {
    Add(TableOf(3, "Ann & Bob", "Gus & Hal", "4S P P P", "10", kFirstTrick));
    Add(TableOf(3, "Cy & Di", "Ida & Jim", "4S P P P", "10", "H5"));
    StoreResults();
  }
  /// How many plays are reviewed, and how many of them the solver was asked for.
  std::string Reviewed() {
    solver.playBatches.clear();
    const ReportOutcome outcome = ReportSession(session, solver, {});
    std::size_t asked = 0;
    for (const std::size_t plays : solver.playBatches) asked += plays;
    return std::to_string(outcome.report ? outcome.report->reviewed : -1) + " reviewed, " +
           std::to_string(asked) + " solved" + (outcome.cancelled ? ", cancelled" : "") +
           outcome.failure;
  }
  fs::path Kept() const { return session.LibraryPath() / ".tricklet-review"; }
};

TEST_F(SessionReviewTest, ASecondLookAsksTheSolverForWhatHasChangedAlone) {
  EXPECT_EQ(Reviewed(), "2 reviewed, 2 solved");
  EXPECT_EQ(Reviewed(), "2 reviewed, 0 solved");
  results.lin[1] = LinLineOf(TableOf(3, "Cy & Di", "Ida & Jim", "4S P P P", "10", "H9"));
  StoreResults();
  EXPECT_EQ(Reviewed(), "2 reviewed, 1 solved");
  const std::string kept = ReadFile(Kept());
  EXPECT_EQ(std::count(kept.begin(), kept.end(), '\n'), 2) << "the old record's is dropped";
  EXPECT_EQ(host.working, 0);
}

TEST_F(SessionReviewTest, WhatWasKeptIsTakenOnlyIfItCanBe) {
  ASSERT_EQ(Reviewed(), "2 reviewed, 2 solved");
  const std::string kept = ReadFile(Kept());
  const auto play = kept.find("D6D2DAD3 ");
  ASSERT_NE(play, std::string::npos);
  struct Damage {
    const char* what;
    const char* tricks;
  };
  const std::vector<Damage> cases{{"one number short", "aaaa"},
                                  {"one too many", "aaaaaa"},
                                  {"no digit", "aaaeaa"},
                                  {"declarer's card gains", "aaaab"},
                                  {"the defence's gains", "a9999"},
                                  {"too many", "ddddd"},
                                  {"nothing", ""}};
  for (const Damage& damage : cases) {
    std::string text = kept;
    text.replace(play + 9, 5, damage.tricks);
    WriteFile(Kept(), text);
    EXPECT_EQ(Reviewed(), "2 reviewed, 1 solved") << damage.what;
    EXPECT_EQ(ReadFile(Kept()), kept) << damage.what;
  }
  WriteFile(Kept(), std::string(1000, '\0') + "\nP \n \n\r\n" + kept);
  EXPECT_EQ(Reviewed(), "2 reviewed, 0 solved");
}

#ifndef _WIN32  // where making links is a privilege
TEST_F(SessionReviewTest, ALinkIsNeitherReadNorWritten) {
  WriteFile(folder.Path() / "mine", "mine");
  fs::create_symlink(folder.Path() / "mine", Kept());
  EXPECT_EQ(Reviewed(), "2 reviewed, 2 solved");
  EXPECT_EQ(Reviewed(), "2 reviewed, 2 solved");
  EXPECT_EQ(ReadFile(folder.Path() / "mine"), "mine");
}
#endif

TEST_F(SessionReviewTest, CancelKeepsTheBatchThatWasUnderWay) {
  for (int table = 0; table < 700; ++table) {
    std::string number = std::to_string(table);
    Add(TableOf(4, "N" + number + " & S" + number, "E" + number + " & W" + number, "P P P 4S P P P",
                "10", table % 2 == 0 ? "H4" : "H7"));
  }
  StoreResults();
  host.cancelAtStep = 1;
  const std::string reviewed = Reviewed();
  ASSERT_EQ(solver.playBatches.size(), 1U);
  const std::string one = std::to_string(solver.playBatches[0]);
  EXPECT_EQ(reviewed, one + " reviewed, " + one + " solved, cancelled");
  EXPECT_TRUE(fs::exists(Kept()));
}

TEST_F(SessionReviewTest, ShowsWhatIsDoneAsItComes) {
  std::vector<int> shown;
  ReportSession(session, solver,
                [&](const SessionReport& report) { shown.push_back(report.reviewed); });
  EXPECT_EQ(shown, (std::vector{0, 2}));
}

TEST_F(SessionReviewTest, SaysWhyThereIsNothing) {
  solver.failure = "Too many cards";
  EXPECT_EQ(Reviewed(), "0 reviewed, 2 solvedToo many cards");
  EXPECT_FALSE(fs::exists(Kept()));
  solver.missing = "no solver";
  EXPECT_EQ(Reviewed(), "-1 reviewed, 0 solvedno solver");
  solver.missing.clear();
  fs::remove(LinDataPath(session));
  host.ExpectTell(kNothingToReport);
  EXPECT_EQ(Reviewed(), "-1 reviewed, 0 solved");
}

}  // namespace
}  // namespace tricklet::test
