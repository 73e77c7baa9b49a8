#include "formats/lin_record.h"

#include <string>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "core/statistics.h"

namespace tricklet {
namespace {

std::string CallsOf(const LinRecord& record) {
  std::string text;
  for (const Call call : record.calls) text += (text.empty() ? "" : " ") + call.Text();
  return text;
}

int CardsOf(const LinRecord& record, Seat seat) {
  return GetStats(record.hands).SeatCardCount[seat];
}

TEST(ReadLinData, DecodesEachEscapeOnce) {
  const struct {
    const char* text;
    const char* decoded;
  } kCases[] = {
      {"a%2Cb", "a,b"},
      {"a%2cb%2c", "a,b,"},
      {"100%25", "100%"},
      {"%2541", "%41"},
      {"%25%32%35", "%25"},
      {"", ""},
      {"%C3%A9 %E9", "\xC3\xA9 \xE9"},
      {"ah|Board%201|", "ah|Board 1|"},
  };
  for (const auto& c : kCases) EXPECT_EQ(ReadLinData(c.text), c.decoded) << c.text;
}

TEST(ReadLinData, ABrokenEscapeIsAFault) {
  for (const char* text : {"%", "a%", "a%2", "%2", "%G1", "%1G", "%%41", "% 41", "%-1", "100%|"}) {
    EXPECT_THROW(ReadLinData(text), Fault) << text;
  }
}

TEST(ReadLinData, CleansThePlayerNames) {
  const struct {
    const char* text;
    const char* cleaned;
  } kCases[] = {
      {"qx||pn|Ann#12,Bob#7,Cy,Di#3|st|#|", "qx||pn|Ann,Bob,Cy,Di|st|#|"},
      {"|pn|Ann%2312%2CBob%237|", "|pn|Ann,Bob|"},
      {"|pn|A#1#2,B|", "|pn|A,B|"},
      {"|pn|#,#,#,#,E#|", "|pn|,,,,E#|"},
      {"|pn|Ann,Bob|nt|#1, #2|", "|pn|Ann,Bob|nt|#1, #2|"},
      {"|pn|Ann#12,Bob#7", "|pn|Ann,Bob"},
      {"|pn", "|pn"},
      {"nt|#1|", "nt|#1|"},
  };
  for (const auto& c : kCases) EXPECT_EQ(ReadLinData(c.text), c.cleaned) << c.text;
}

TEST(LinFields, AreFoundThroughDoubledBarsLineEndsAndStrayText) {
  const struct {
    const char* text;
    const char* fields;
  } kCases[] = {
      {"md|1,,|pg||mb|p|", "md=1,, pg= mb=p "},
      {"pg||qent|A & B|qens|C||qenns|1.5||qend|||qenl|x",
       "pg= qent=A & B qens=C qenns=1.5 qend= qenl=x "},
      {"\r\npg||\r\nsv|o\r\n|", "pg= sv=o "},
      {"an|5|4 in suits|mb|p|", "an=5 mb=p "},
      {"", ""},
      {"|||", ""},
      {"text without a bar", ""},
      {"md", "md= "},
  };
  for (const auto& c : kCases) {
    std::string found;
    std::string_view rest = c.text;
    for (LinField field; NextLinField(rest, field);) {
      found += std::string(field.tag) + "=" + std::string(field.value) + " ";
    }
    EXPECT_EQ(found, c.fields) << c.text;
  }
}

TEST(ParseLinRecord, ReadsAWholeRecord) {
  const LinRecord record = ParseLinRecord(
      "qx|o3|pn|Sue,Wes,Nan,Eve|st||md|1S67JAH6TJKD234JCA,STKH379ADTAC459JK,S258H58QD578KC28T,|rh||"
      "ah|Board 12|sv|e|mb|2D!|an|short|mb|2n|mb|d|mb|r|mb|P|pg||pc|H5|pc|h2|pg||mc|9|zz|2.71|pg||"
      "qent|Sue & Nan|qens|x||qenns|-1.5||");
  EXPECT_EQ(record.boardNumber, 12);
  EXPECT_FALSE(record.closedRoom);
  EXPECT_EQ(record.dealer, Seat::South);
  EXPECT_EQ(record.players[Seat::South], "Sue");
  EXPECT_EQ(record.players[Seat::West], "Wes");
  EXPECT_EQ(record.players[Seat::North], "Nan");
  EXPECT_EQ(record.players[Seat::East], "Eve");
  EXPECT_EQ(HoldingText(record.hands[Seat::South][Suit::Spades]), " A J 7 6");
  EXPECT_EQ(HoldingText(record.hands[Seat::West][Suit::Diamonds]), " A 10");
  EXPECT_EQ(HoldingText(record.hands[Seat::North][Suit::Clubs]), " 10 8 2");
  EXPECT_EQ(HoldingText(record.hands[Seat::East][Suit::Hearts]), " 4 2");
  EXPECT_TRUE(GetStats(record.hands).AllHandsComplete);
  EXPECT_TRUE(record.hasAuction);
  EXPECT_EQ(CallsOf(record), "2D 2NT Dbl Rdbl Pass");
  ASSERT_EQ(record.play.size(), 2U);
  EXPECT_EQ(record.play[1], (Card{Suit::Hearts, Rank::Two}));
  EXPECT_EQ(record.claim, 9);
  EXPECT_EQ(record.results[LinResultTag::Qent], "Sue & Nan");
  EXPECT_EQ(record.results[LinResultTag::Qenns], "-1.5");
  EXPECT_EQ(record.results[LinResultTag::Qeni], "");
}

TEST(ParseLinRecord, ReadsDealsLeniently) {
  constexpr int kRest = kCardsInPack - 3;
  const struct {
    const char* deal;
    bool hasDeal;
    PerSeat<int> cards;  // North, East, South, West
    bool repeats;
  } kCases[] = {
      {"3SA,SK,SQ,", true, {{1, kRest, 1, 1}}, false},
      {"3SA,SK,SQ", true, {{1, kRest, 1, 1}}, false},
      {"3,SA,SK,SQ", true, {{1, 1, kRest, 1}}, false},
      {"3SA,SK,SQ,SJ,ST", true, {{1, 1, 1, 1}}, false},
      {"3SA,,SQ,", true, {{1, 0, 1, 0}}, false},
      {"3SAK,SK,SQ,SJ", true, {{1, 1, 1, 1}}, true},
      {"3SAA,,,", true, {{0, 0, 1, 0}}, true},
      {"3AKQ,?S?1K0 \r\n2,", true, {{0, 0, 0, 2}}, false},
      {"0sakhtdc9,,,", true, {{0, 0, 4, 0}}, false},
      {"", false, {}, false},
      {"3", false, {}, false},
      {"3,,,", false, {}, false},
  };
  for (const auto& c : kCases) {
    const LinRecord record = ParseLinRecord("qx|o1|md|" + std::string(c.deal) + "|");
    EXPECT_EQ(record.hasDeal, c.hasDeal) << c.deal;
    EXPECT_EQ(record.repeatsCard, c.repeats) << c.deal;
    for (const Seat seat : kAllSeats) EXPECT_EQ(CardsOf(record, seat), c.cards[seat]) << c.deal;
  }
}

TEST(ParseLinRecord, FindsTheBoardAndTheRoom) {
  const struct {
    const char* text;
    int board;
    bool closed;
    const char* south;
  } kCases[] = {
      {"qx|o46|", 46, false, ""},
      {"qx|c46|pn|a,b,c,d,e,f,g,h|", 46, true, "e"},
      {"pn|a,b,c,d,e,f,g,h|qx|o46|", 46, false, "a"},
      {"qx|c46|pn|a,b,c,d|", 46, true, "a"},
      {"qx|o1,BOARD 1|pn| a ", 1, false, "a"},
      {"ah|Board 7|qx|o8|", 7, false, ""},
      {"ah|board 7 (again)|", 7, false, ""},
      {"ah|Round 7|qx|8|", 8, false, ""},
      {"qx|o-3|", 0, false, ""},
      {"qx||", 0, false, ""},
      {"ah|Board 99999999999|", 32767, false, ""},
  };
  for (const auto& c : kCases) {
    const LinRecord record = ParseLinRecord(c.text);
    EXPECT_EQ(record.boardNumber, c.board) << c.text;
    EXPECT_EQ(record.closedRoom, c.closed) << c.text;
    EXPECT_EQ(record.players[Seat::South], c.south) << c.text;
  }
}

TEST(ParseLinRecord, ReadsCalls) {
  const struct {
    const char* value;
    const char* calls;
  } kCases[] = {
      {"1N", "1NT"}, {"1nt", "1NT"},
      {"P", "Pass"}, {"d", "Dbl"},
      {"R", "Rdbl"}, {"3C!", "3C"},
      {"!3C", "3C"}, {"8C", ""},
      {"?", ""},     {"1Cp1H!p2ndrppp", "1C Pass 1H Pass 2NT Dbl Rdbl Pass Pass Pass"},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(CallsOf(ParseLinRecord("mb|" + std::string(c.value) + "|")), c.calls) << c.value;
  }
  EXPECT_FALSE(ParseLinRecord("md|3SA,,,|").hasAuction);
}

TEST(BoardOfLinRecord, HoldsAHundredCalls) {
  std::string text = "qx|o5|md|3SA,,,|";
  for (int i = 0; i < CallList::kCapacity - 1; ++i) text += "mb|p|";
  const Board board = BoardOfLinRecord(ParseLinRecord(text + "mb|1C|"));
  EXPECT_EQ(board.NumCalls(), CallList::kCapacity);
  EXPECT_EQ(board.Contract, "1C");
  EXPECT_EQ(board.BoardNumber, 5);
  EXPECT_THROW(BoardOfLinRecord(ParseLinRecord(text + "mb|1C|mb|p|")), Fault);
}

}  // namespace
}  // namespace tricklet
