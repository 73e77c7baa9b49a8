#include "update/update_outcome.h"

#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

using Kind = UpdateOutcome::Kind;
const std::string kPage = "page=https://example.org/new\n";

TEST(UpdateOutcome, SaysWhatTheStartDialogShows) {
  Settings settings;
  EXPECT_EQ(UpdateText(settings), "No address is set for the update check");
  settings.updateAddress = "http://example.org/";
  EXPECT_EQ(UpdateText(settings).substr(0, 51),
            "http://example.org/ cannot be asked for updates: an");
  settings.updateAddress = "https://example.org/";
  EXPECT_EQ(UpdateText(settings), "Looking for a newer version");
  settings.autoUpdate = false;
  EXPECT_EQ(UpdateText(settings), "Option to check for updates is switched off");
}

TEST(UpdateOutcome, TellsANewerVersionFromAllElse) {
  const std::tuple<std::string, Kind> kCases[] = {
      {"version=1.3.0\n" + kPage, Kind::Newer},
      {"\xEF\xBB\xBF" + kPage + "\r\n# more to come\nversion = 1.2.1 \r\nsize=7", Kind::Newer},
      {"version=1.2.0+later\n" + kPage, Kind::Newest},
      {"version=1.2.0-rc.1\n" + kPage, Kind::Newest},
      {"version=0.9\n" + kPage, Kind::Newest},
      {"", Kind::NotUnderstood},
      {"<html>log in to this network</html>", Kind::NotUnderstood},
      {"version=1.3.0\n", Kind::NotUnderstood},
      {kPage, Kind::NotUnderstood},
      {"version=soon\n" + kPage, Kind::NotUnderstood},
      {"version=1.3.0\nversion=1.4.0\n" + kPage, Kind::NotUnderstood},
      {"version=1.3.0\npage=\n", Kind::NotUnderstood},
      {"version=1.3.0\npage=http://example.org/new\n", Kind::NotUnderstood},
      {"version=1.3.0\npage=file:///bin/sh\n", Kind::NotUnderstood},
      {"version=1.3.0\n" + kPage + std::string(kLongestAnswer, '\n'), Kind::NotUnderstood},
      {std::string("version=1.3.0\0\n", 15) + kPage, Kind::NotUnderstood},
  };
  for (const auto& [file, kind] : kCases) {
    EXPECT_EQ(OutcomeOf({file, {}}, "1.2.0").kind, kind) << file.substr(0, 200);
  }
}

TEST(UpdateOutcome, ShowsTextsBoundedAndWithoutOrders) {
  const UpdateAnswer answer = OutcomeOf({"version=2.0.0-" + std::string(500, 'a') + "\n" + kPage +
                                             "notes=<b>new</b>\x1B[2J" + std::string(500, 'n'),
                                         {}},
                                        "1.2.0")
                                  .answer;
  EXPECT_EQ(answer.shownVersion, "2.0.0-" + std::string(34, 'a') + "...");
  EXPECT_EQ(answer.notes, "<b>new</b> [2J" + std::string(286, 'n') + "...");
  EXPECT_EQ(answer.page, "https://example.org/new");
  const UpdateOutcome silent =
      OutcomeOf({"version=9.0.0\n" + kPage, "refused\nby\x1B all"}, "1.2.0");
  EXPECT_EQ(silent.kind, Kind::NoAnswer);
  EXPECT_EQ(silent.failure, "refused by  all");
}

TEST(UpdateOutcome, KnowsTheRunningVersion) {
  EXPECT_EQ(OutcomeOf({"version=0.0.0\n" + kPage, {}}, RunningVersion()).kind, Kind::Newest);
}

}  // namespace
}  // namespace tricklet
