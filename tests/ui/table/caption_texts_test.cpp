#include "ui/table/caption_texts.h"

#include <gtest/gtest.h>

#include "tests/ui/geometry.h"

namespace tricklet::ui {
namespace {

TEST(CaptionTextsTest, TellHandRoleAndTurnInFullAndInShort) {
  Board board = OrdinaryBoard();
  board.contract = "4S";
  board.declarer = Seat::South;
  const CaptionFacts named{{{"", "Di", "Bo \u00E9", ""}}, {}, false, {}};
  CaptionFacts play = named;
  play.play = true;
  play.toAct = Seat::East;
  CaptionFacts call;
  call.toAct = Seat::South;
  CaptionFacts hidden = play;
  hidden.hidden[Seat::South] = true;
  const struct {
    Seat seat;
    CaptionFacts facts;
    const char* full;
    const char* brief;
  } cases[] = {
      {Seat::South,
       {},
       "13 cards : HCP=15 LTC=7 Declarer",
       "South \u00B7 15 points \u00B7 7 losers \u00B7 declarer"},
      {Seat::North,
       {},
       "13 cards : HCP=13 LTC=7 Dummy",
       "North \u00B7 13 points \u00B7 7 losers \u00B7 dummy"},
      {Seat::South, call, "13 cards : HCP=15 LTC=7 Declarer \u00B7 to call",
       "South \u00B7 15 points \u00B7 7 losers \u00B7 declarer \u00B7 to call"},
      {Seat::South, named, "Bo \u00E9 \u00B7 13 cards : HCP=15 LTC=7 Declarer",
       "South \u00B7 Bo \u00E9 \u00B7 15 points \u00B7 7 losers \u00B7 declarer"},
      {Seat::South, play, "South: Bo \u00E9 \u00B7 Declarer",
       "South \u00B7 Bo \u00E9 \u00B7 15 points \u00B7 7 losers \u00B7 declarer"},
      {Seat::East, play, "East: Di \u00B7 to play", "East \u00B7 Di \u00B7 to play"},
      {Seat::West, play, "West:", "West \u00B7 6 points \u00B7 9 losers"},
      {Seat::South, hidden, "South: Bo \u00E9 \u00B7 hidden \u00B7 Declarer",
       "South \u00B7 Bo \u00E9 \u00B7 hidden \u00B7 declarer"},
  };
  Settings settings;
  for (const auto& [seat, facts, full, brief] : cases) {
    settings.captionStyle = CaptionStyle::Full;
    EXPECT_EQ(CaptionTexts(board, settings, facts)[seat].toStdString(), full);
    settings.captionStyle = CaptionStyle::Short;
    EXPECT_EQ(CaptionTexts(board, settings, facts)[seat].toStdString(), brief);
  }
}

TEST(CaptionTextsTest, FollowTheSwitches) {
  Board board = OrdinaryBoard();
  board.contract = "4S";
  board.declarer = Seat::South;
  Settings settings;
  settings.captionHcp = settings.captionLtc = settings.captionDummy = false;
  EXPECT_EQ(CaptionTexts(board, settings, {})[Seat::South], u"13 cards Declarer");
  EXPECT_EQ(CaptionTexts(board, settings, {})[Seat::North], u"13 cards");
  settings.captionStyle = CaptionStyle::Short;
  EXPECT_EQ(CaptionTexts(board, settings, {})[Seat::North], u"North");
  settings.captionStyle = CaptionStyle::Full;
  board.contract = kAllPass;
  EXPECT_EQ(CaptionTexts(board, settings, {})[Seat::South], u"13 cards");
  ClearAll(board);
  EXPECT_EQ(CaptionTexts(board, settings, {})[Seat::South], u"");
}

}  // namespace
}  // namespace tricklet::ui
