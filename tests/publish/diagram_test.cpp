#include "publish/diagram.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/hands.h"

namespace tricklet {
namespace {

SeenBoard Deal() {
  SeenBoard seen;
  seen.board.boardNumber = 7;
  seen.board.hands =
      test::HandsOf("N:AKT5.Q3.J94.KQ72 QJ9.AK2.KQT83.A9 876432.JT94..J86 .8765.A7652.T543");
  return seen;
}

TEST(Diagram, TextIsACompassOfColumns) {
  EXPECT_EQ(DiagramText(Deal()), R"(Board 7 · Dealer South · All vulnerable

              North
              ♠ AK105
              ♥ Q3
              ♦ J94
              ♣ KQ72
West                      East
♠ —                       ♠ QJ9
♥ 8765                    ♥ AK2
♦ A7652                   ♦ KQ1083
♣ 10543                   ♣ A9
              South
              ♠ 876432
              ♥ J1094
              ♦ —
              ♣ J86
)");
}

/// In play, with a name that is markup and with South and East hidden.
SeenBoard Position() {
  SeenBoard seen = Deal();
  test::SetAuction(seen.board, "1S X P 3NT");
  seen.board.hands[Seat::West][Suit::Diamonds].Remove(Rank::Ace);
  seen.hidden[Seat::East] = seen.hidden[Seat::South] = true;
  seen.names[Seat::West] = "A&B <b>";
  seen.play = SeenPlay{};
  seen.play->trick[Seat::West] = test::CardOf("DA");
  seen.play->onPlay = Seat::North;
  seen.play->tricks[Side::EastWest] = 5;
  return seen;
}

TEST(Diagram, APlayUnderWayHasItsTrickAndNothingOfHiddenHands) {
  EXPECT_EQ(DiagramText(Position()), R"(Board 7 · Dealer South · All vulnerable

                North
                ♠ AK105
                ♥ Q3
                ♦ J94
                ♣ KQ72
West · A&B <b>              East
♠ —
♥ 8765          ♦A
♦ 7652
♣ 10543
                South

West   North  East   South
                     1♠
Dbl    Pass   3NT

3NT by East
NS: 0 · EW: 5 · North to play
)");
}

TEST(Diagram, TheHtmlHasTheSameEscapedAndColoured) {
  const std::string html = DiagramHtml(Position(), true);
  const std::pair<const char*, bool> cases[] = {
      {"<b>West</b> \u00b7 A&amp;B &lt;b&gt;<br>", true},
      {"<span style=\"color:#c8202f\">\u2665</span> 8765<br>", true},
      {"<span style=\"color:#b85a00\">\u2666</span>A", true},  // on the table
      {">1<span style=\"color:#1b2468\">\u2660</span></td>", true},
      {"876432", false},  // South's
      {"KQ1083", false},  // East's
      {"<b>South</b></td>", true},
      {"NS: 0 \u00b7 EW: 5 \u00b7 North to play</td>", true}};
  for (const auto& [text, there] : cases) {
    EXPECT_EQ(html.find(text) != std::string::npos, there) << text << " in\n" << html;
  }
  EXPECT_EQ(DiagramHtml(Position(), false).find("#b85a00"), std::string::npos);
}

TEST(Diagram, WhatIsNotKnownIsNotTold) {
  SeenBoard seen = Deal();
  seen.board.boardNumber = 0;
  EXPECT_EQ(DiagramText(seen).find("Dealer"), std::string::npos);
  seen = Position();
  seen.auction = false;
  EXPECT_EQ(DiagramText(seen).find("Dbl"), std::string::npos);
  EXPECT_NE(DiagramText(seen).find("3NT by East"), std::string::npos);
}

}  // namespace
}  // namespace tricklet
