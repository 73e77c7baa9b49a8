#include "formats/lin/lin_record.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "core/statistics.h"
#include "tests/support/collector.h"
#include "tests/support/hands.h"
#include "tests/support/records.h"

namespace tricklet {
namespace {

TEST(ReadLinData, DecodesEachEscapeOnceAndCleansThePlayerNames) {
  const std::pair<const char*, const char*> kCases[] = {
      {"a%2cb%2C", "a,b,"},
      {"%2541", "%41"},
      {"%C3%A9 %E9", "\xC3\xA9 \xE9"},
      {"qx||pn|Ann#12,Bob#7,Cy,Di#3|st|#|", "qx||pn|Ann,Bob,Cy,Di|st|#|"},
      {"|pn|Ann%2312%2CBob%237|", "|pn|Ann,Bob|"},
      {"|pn|A#1#2,B|", "|pn|A,B|"},
      {"|pn|#,#,#,#,E#|", "|pn|,,,,E#|"},
      {"pn|Ann#12,Bob|pn|Cy#3|", "pn|Ann,Bob|pn|Cy#3|"},
      {"opn|#1|", "opn|#1|"},
      {"|pn|Ann#12,Bob#7", "|pn|Ann,Bob"}};
  for (const auto& [text, decoded] : kCases) EXPECT_EQ(ReadLinData(text), decoded) << text;
  for (const char* text : {"%", "a%", "a%2", "%G1", "%1G", "%%41", "% 41", "%-1", "100%|"}) {
    EXPECT_THROW(ReadLinData(text), Fault) << text;
  }
}

TEST(ParseLinRecord, ReadsAWholeRecord) {
  const LinRecord record = ParseLinRecord(
      "qx|o3|pn|Sue,Wes,Nan,Eve|st||md|1S67JAH6TJKD234JCA,STKH379ADTAC459JK,S258H58QD578KC28T,|rh||"
      "ah|Board 12|sv|e\r\n|mb|2D!|an|5|4 in "
      "suits|mb|2n|mb|d|mb|r|mb|P|pg||pc|H5|pc|h2|pg||mc|9|zz|2.71|pg||"
      "qent|Sue & Nan|qens|x||qenns|-1.5||");
  EXPECT_EQ(record.boardNumber, 12);
  EXPECT_EQ(record.dealer, Seat::South);
  EXPECT_EQ(record.players, (PerSeat<std::string>{{"Nan", "Eve", "Sue", "Wes"}}));
  EXPECT_EQ(record.hands, test::HandsOf("N:852.Q85.K875.T82 Q943.42.Q96.Q763 "
                                        "AJ76.KJT6.J432.A KT.A973.AT.KJ954"));
  EXPECT_TRUE(record.hasAuction);
  EXPECT_EQ(test::CallsOf(record), "2D 2NT Dbl Rdbl Pass");
  EXPECT_EQ(record.play,
            (std::vector<Card>{{Suit::Hearts, Rank::Five}, {Suit::Hearts, Rank::Two}}));
  EXPECT_EQ(record.claim, 9);
  EXPECT_EQ(record.results[LinResultTag::Qent], "Sue & Nan");
  EXPECT_EQ(record.results[LinResultTag::Qenns], "-1.5");
}

TEST(ParseLinRecord, ReadsDealsLeniently) {
  // The deal; how many cards North, East, South and West have
  const std::pair<const char*, const char*> kCases[] = {{"3SA,SK,SQ", "1 49 1 1"},
                                                        {"3,SA,SK,SQ", "1 1 49 1"},
                                                        {"3SA,SK,SQ,SJ,ST", "1 1 1 1"},
                                                        {"3SA,,SQ,", "1 0 1 0"},
                                                        {"3SAK,SK,SQ,SJ", "1 1 1 1, one twice"},
                                                        {"3AKQ,?S?1K0 \r\n2,", "0 0 0 2"},
                                                        {"0sakhtdc9,,,", "0 0 4 0"},
                                                        {"", "none"},
                                                        {"3,,,", "none"}};
  for (const auto& [deal, cards] : kCases) {
    const LinRecord record = ParseLinRecord("qx|o1|md|" + std::string(deal) + "|");
    std::string text;
    for (const int count : GetStats(record.hands).seatCardCount) {
      text += (text.empty() ? "" : " ") + std::to_string(count);
    }
    if (record.repeatsCard) text += ", one twice";
    EXPECT_EQ(record.hasDeal ? text : "none", cards) << deal;
  }
}

TEST(ParseLinRecord, FindsTheBoardAndTheRoom) {
  // The text; the board, the room and South's name
  const std::pair<const char*, const char*> kCases[] = {
      {"qx|o46|", "46 open "},
      {"qx|c46|pn|a,b,c,d,e,f,g,h|", "46 closed e"},
      {"pn|a,b,c,d,e,f,g,h|qx|o46|", "46 open a"},
      {"qx|c46|pn|a,b,c,d|", "46 closed a"},
      {"qx|o1,BOARD 1|pn| a ", "1 open a"},
      {"ah|Board 7|qx|o8|", "7 open "},
      {"\r\nah|board 7 (again)\r\n|", "7 open "},
      {"ah|Round 7|qx|8|", "8 open "},
      {"qx|o-3|", "0 open "},
      {"qx||", "0 open "},
      {"|||qx", "0 open "}};
  for (const auto& [text, found] : kCases) {
    const LinRecord record = ParseLinRecord(text);
    EXPECT_EQ(std::to_string(record.boardNumber) + (record.closedRoom ? " closed " : " open ") +
                  record.players[Seat::South],
              found);
  }
}

TEST(ParseLinRecord, ReadsCalls) {
  const std::pair<const char*, const char*> kCases[] = {
      {"1N", "1NT"}, {"1nt", "1NT"}, {"P", "Pass"}, {"d", "Dbl"},
      {"R", "Rdbl"}, {"!3C", "3C"},  {"8C", ""},    {"1Cp1H!p2nr", "1C Pass 1H Pass 2NT Rdbl"}};
  for (const auto& [value, calls] : kCases) {
    EXPECT_EQ(test::CallsOf(ParseLinRecord("mb|" + std::string(value) + "|")), calls) << value;
  }
}

TEST(ParseLinRecord, KeepsWhatIsSaidOfTheCalls) {
  // The fields; each call's remark: "!" for an alert, then the explanation
  const std::pair<const char*, const char*> kCases[] = {
      {"mb|1C!|an|3+ !C; 2- !s |mb|p|", "!3+ \u2663; 2- \u2660 / "},
      {"mb|1N|an|15-17|an|more|mb|d!|", "15-17 / !"},
      {"mb|1Cp1H!p|an|last|", " /  / ! / last"},
      {"mb|!2D|an|Really!Strong|", "!Really!Strong"},
      {"an|before the first call|mb|p|mb|8C!|", ""}};
  for (const auto& [fields, said] : kCases) {
    const LinRecord record = ParseLinRecord(fields);
    std::string text;
    for (const CallRemark& remark : record.remarks) {
      text += (&remark == record.remarks.data() ? "" : " / ") +
              std::string(remark.alerted ? "!" : "") + remark.meaning;
    }
    EXPECT_EQ(record.remarks.size(), record.calls.size()) << fields;
    EXPECT_EQ(text, said) << fields;
  }
}

TEST(StorableBoard, HoldsAHundredCalls) {
  const std::string text = "qx|o5|md|3SA,,,|" + test::LinPasses(99);
  LeftOut leftOut;
  const Board board = StorableBoard(ParseLinRecord(text + "mb|1C|"), leftOut);
  EXPECT_EQ(board.NumCalls(), CallList::kCapacity);
  EXPECT_EQ(board.contract, "1C");
  EXPECT_EQ(StorableBoard(ParseLinRecord(text + "mb|1C|mb|p|"), leftOut).NumCalls(), 0);
  EXPECT_EQ(leftOut.overlong, std::vector<int>{5});
}

}  // namespace
}  // namespace tricklet
