#include "publish/remembered_sheets.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

const SheetProposal kTuesday{"Tuesday", "Tuesday", "17 November 2026", {1, 36}};

TEST(RememberedSheets, TheFirstBeginWithTheProposalAndTheUsualChoices) {
  SheetRequest first;
  first.range = {1, 36};
  first.choices.title = "Tuesday";
  first.choices.subtitle = "17 November 2026";
  EXPECT_EQ(RememberedSheets(Settings().print, kTuesday), first);
}

TEST(RememberedSheets, EveryChoiceComesBackFromTheStore) {
  SheetRequest chosen;
  chosen.range = {3, 8};
  chosen.choices = {.layout = SheetLayout::Lesson,
                    .perPage = 4,
                    .paper = Paper::Letter,
                    .landscape = true,
                    .title = "",
                    .subtitle = "Riverside",
                    .colours = false,
                    .hands{false, true, true, false},
                    .points = false,
                    .table = false,
                    .par = false,
                    .auction = false,
                    .notes = false,
                    .answers = false,
                    .bySeat = false,
                    .ranking = false};
  Settings settings;
  RememberSheets(settings.print, kTuesday, chosen);
  MemoryStore store;
  SavePrintSettings(settings, store);
  EXPECT_EQ(RememberedSheets(LoadSettings(store).print, kTuesday), chosen);
}

TEST(RememberedSheets, WordingAndRangeStayWithTheirLibraryAndProposalsAreMadeAfresh) {
  // Chosen for Tuesday; the library and its boards the next time; title, subtitle and range then.
  const std::tuple<const char*, const char*, BoardRange, SheetProposal, const char*, const char*,
                   BoardRange>
      cases[] = {
          {"Cup",
           "17 November 2026",
           {1, 36},
           {"Tuesday", "Tuesday", "24 November 2026", {1, 24}},
           "Cup",
           "24 November 2026",
           {1, 24}},
          {"Cup",
           "Riverside",
           {5, 9},
           {"Teams", "Teams", "24 November 2026", {1, 24}},
           "Teams",
           "24 November 2026",
           {1, 24}},
          {"Tuesday",
           "Riverside",
           {30, 36},
           {"Tuesday", "Tuesday", "24 November 2026", {1, 24}},
           "Tuesday",
           "Riverside",
           {1, 24}},
      };
  for (const auto& [title, subtitle, range, next, nextTitle, nextSubtitle, nextRange] : cases) {
    SheetRequest chosen = RememberedSheets(Settings().print, kTuesday);
    chosen.range = range;
    chosen.choices.title = title;
    chosen.choices.subtitle = subtitle;
    Settings settings;
    RememberSheets(settings.print, kTuesday, chosen);
    const SheetRequest again = RememberedSheets(settings.print, next);
    EXPECT_EQ(again.choices.title, nextTitle);
    EXPECT_EQ(again.choices.subtitle, nextSubtitle);
    EXPECT_EQ(again.range, nextRange);
  }
}

TEST(RememberedSheets, WhatNoSheetHasGivesWay) {
  PrintSettings settings = Settings().print;
  settings.recordsPerPage = 5;
  settings.lessonPerPage = 4;
  EXPECT_EQ(RememberedPerPage(settings, SheetLayout::Records), 18);
  EXPECT_EQ(RememberedPerPage(settings, SheetLayout::Lesson), 4);
  EXPECT_EQ(RememberedPerPage(settings, SheetLayout::Travellers), 0);
  const PerSeat<bool> none{};
  const PerSeat<bool> all{true, true, true, true};
  for (const auto& [letters, hands] : {std::pair("", none), {"X", all}}) {
    settings.hands = letters;
    EXPECT_EQ(RememberedSheets(settings, kTuesday).choices.hands, hands) << letters;
  }
}

}  // namespace
}  // namespace tricklet
