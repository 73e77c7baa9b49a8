#include "formats/lin/lin_reader.h"

#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "core/statistics.h"
#include "formats/lin/lin_record.h"
#include "tests/support/collector.h"

namespace tricklet {
namespace {

using test::CallsOf;
using test::Collector;

// South spades, West hearts, North diamonds; East is left with clubs.
const std::string kSpades = "SAKQJT98765432HDC";
const std::string kThree = kSpades + ",HAKQJT98765432,DAKQJT98765432";
const std::string kOther = "HAKQJT98765432,SAKQJT98765432,DAKQJT98765432";

std::string Deal(char dealer = '3') {
  return std::string("md|") + dealer + kThree + ",|";
}

struct Read {
  explicit Read(const std::string& text) { result = ReadLIN(text, sink, records); }
  /// The numbers of the boards stored, in order.
  std::string Boards() const {
    std::string text;
    for (const Board& board : sink.boards) text += std::to_string(board.boardNumber) + " ";
    return text;
  }
  Collector sink;
  std::vector<std::string> records;
  ReadResult result;
};

TEST(ReadLIN, FindsTheRecordsHoweverTheyLie) {
  const std::string four = "md|3" + kThree + ",CAKQJT98765432|";
  const std::tuple<const char*, std::string, const char*> kCases[] = {
      {"one a line", "qx|o1|" + Deal() + "pg||\nqx|o2|" + Deal('4') + "pg||\n", "1 2 "},
      {"without line ends and page marks", "qx|o1|" + Deal() + "qx|o2|" + four, "1 2 "},
      {"by the deal alone", Deal() + "ah|Board 5|" + Deal('4') + "ah|Board 6|", "5 6 "},
      {"the header before the deal, and a page mark at the end",
       "rh||ah|Board 5|st||" + Deal() + "mb|p|pg||\nrh||ah|Board 6|st||" + Deal() +
           "mb|p|pg||\nah|Board 7|" + Deal() + "pg||",
       "5 6 7 "},
      {"another header without a page mark",
       "ah|Board 5|" + Deal() + "ah|Board 6|" + Deal() + "ah|Board 6|ah|Board 8|" + Deal(),
       "5 6 8 "},
      {"header and vulnerability after pages of their own record",
       "st||" + Deal() + "rh||ah|Board 5|sv|o|mb|p|pg||pc|CA|pg||st||" + Deal() +
           "rh||ah|Board 6|sv|o|pg||",
       "5 6 "},
      {"over several lines, with page marks",
       "\n\npg||\nqx|o7|\npn|a,b,\nc,d|md|1" + kSpades +
           ",\nHAKQJT98765432,DAKQJT98765432\n|\npg||\n\nmb|\n1C|pg||",
       "7 "},
      {"numbers in any order", "qx|o9|" + Deal() + "qx|o3|" + Deal(), "9 3 "},
      {"the header's number counts", "qx|o9|ah|Board 3|" + Deal(), "3 "},
      {"both rooms", "qx|o1|" + Deal() + "qx|c1|" + Deal() + "qx|o2|" + Deal() + "qx|c2|" + Deal(),
       "1 2 "},
      {"no numbers: what the dealer deals next", Deal('1') + Deal('2') + Deal('1') + Deal('0'),
       "3 4 7 8 "},
      {"numbers that cannot be stored", "qx|o1000|" + Deal() + "qx|o999|" + Deal(), "999 "},
      {"matter of the match", "vg|A,B,I,1,2,X,0,Y,0|\nrs|1N=,,|\npn|,,,,,,,|pg||\nqx|o1|" + Deal(),
       "1 "},
      {"pages without a deal", "nt|Hello|pg||md|0|pg||qx|o1|" + Deal() + "nt|Bye|pg||", "1 "},
      {"capitals and a byte order mark", "\xEF\xBB\xBFqx|O4|" + Deal(), "4 "},
      {"a control character that is no escape", "qx|o1|nt|\x1A|" + Deal(), "1 "},
      {"PBN", "[Board \"1\"]\n[Deal \"N:- - - -\"]\n", ""},
      {"nothing", "", ""}};
  for (const auto& [what, text, boards] : kCases) {
    const Read read(text);
    EXPECT_EQ(read.result.badLine.value_or(""), "") << what;
    EXPECT_EQ(read.Boards(), boards) << what;
    EXPECT_EQ(read.result.boardsSaved, static_cast<int>(read.sink.boards.size())) << what;
    for (const Board& board : read.sink.boards) {
      EXPECT_TRUE(GetStats(board.hands).allHandsComplete) << what;
    }
  }
}

TEST(ReadLIN, TheFirstRecordOfABoardGivesDealAndAuction) {
  const Read read("qx|o1|" + Deal() + "mb|1C|mb|p|mb|p|mb|p|qx|c1|" + Deal() + "mb|7N|qx|o1|md|3" +
                  kOther + "|mb|7S|");
  ASSERT_EQ(read.sink.boards.size(), 1U);
  EXPECT_EQ(CallsOf(read.sink.boards[0]), "1C Pass Pass Pass");
  EXPECT_EQ(HoldingText(read.sink.boards[0].hands[Seat::South][Suit::Hearts]), "");
  ASSERT_EQ(read.records.size(), 2U) << "the record of another deal is none of this board";
  EXPECT_TRUE(read.records[1].starts_with("qx|c1|"));

  const Read dealers("qx|o1|" + Deal('1') + "mb|1C|qx|o2|" + Deal('4') + "mb|1C|qx|o3|" +
                     Deal('0') + "mb|1C|");
  ASSERT_EQ(dealers.Boards(), "1 2 3 ");
  const char* const kCalls[] = {"", "1C", "1C"};  // another dealer's are left out; 0 names none
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(CallsOf(dealers.sink.boards[i]), kCalls[i]) << i;
}

TEST(ReadLIN, KeepsRecordsAsLinesWithNamesAndBoard) {
  const Read read("pn|S1,W1,N1,E1,S2,W2,N2,E2|pg||\r\nqx|o12|" + Deal() +
                  "sv|n|nt|chat|pg||\r\nmb|1C!|an|short|pg||pc|CA|mc|9|pg||\r\nqx|c12|" + Deal() +
                  "zz|1|\r\npg||pn|a,b,c,d|pg||qx|o13|" + Deal());
  const std::string deal = "md|3" + kThree + ",|";
  ASSERT_EQ(read.records.size(), 3U);
  EXPECT_EQ(read.records[0], "qx|o12|pn|S1,W1,N1,E1|rh||ah|Board 12|" + deal +
                                 "sv|n|mb|1C!|an|short|pc|CA|mc|9|pg||");
  EXPECT_EQ(read.records[1], "qx|c12|pn|S2,W2,N2,E2|rh||ah|Board 12|" + deal + "zz|1|pg||");
  EXPECT_EQ(ParseLinRecord(read.records[2]).players[Seat::East], "d");

  // Names begin a record only where it has some already.
  const Read names("pn|a,b,c,d|" + Deal() + "ah|Board 1|pn|e,f,g,h|" + Deal() + "ah|Board 2|");
  ASSERT_EQ(names.Boards(), "1 2 ");
  EXPECT_EQ(ParseLinRecord(names.records[0]).players[Seat::South], "a");
  EXPECT_EQ(ParseLinRecord(names.records[1]).players[Seat::South], "e");
  const Read after("qx|o1|" + Deal() + "pn|a,b,c,d|qx|o2|" + Deal() + "pn|e,f,g,h|");
  EXPECT_EQ(ParseLinRecord(after.records.at(0)).players[Seat::South], "a");
}

TEST(ReadLIN, ReadsPercentEncodedTextAndLatin1) {
  for (const char* name : {"Jos\xE9", "Jos\xC3\xA9"}) {
    const Read read("qx|o1|pn|" + std::string(name) + "|" + Deal());
    EXPECT_EQ(ParseLinRecord(read.records.at(0)).players[Seat::South], "Jos\xC3\xA9");
  }
  const std::string deal = "3" + kThree;
  std::string encodedDeal = deal;
  for (auto comma = encodedDeal.find(','); comma != std::string::npos;) {
    encodedDeal.replace(comma, 1, "%2c");
    comma = encodedDeal.find(',');
  }
  const std::string site = "https://example.org/view?a=1&lin=";
  const std::string kTexts[] = {
      site + "pn%7CAnn%2CBob%2CCy%2CDi%7Cmd%7C" + deal + "%7cah%7CBoard+5%7Cmb%7C1C%7C",
      site + "pn|Ann,Bob,Cy,Di|md|" + deal + "|ah|Board%205|mb|1C|",
      "lin=pn|Ann%2CBob,Cy,Di|md|" + encodedDeal + "|ah|Board+5|mb|1C|",
      "pn|Ann%2CBob%2CCy%2CDi|md|" + encodedDeal + "|ah|Board%205|mb|1C|an|1%2b|",
  };
  for (const std::string& text : kTexts) {
    EXPECT_TRUE(LooksLikeLin(text)) << text;
    const Read read(text);
    EXPECT_EQ(read.Boards(), "5 ") << text;
    ASSERT_EQ(read.records.size(), 1U) << text;
    EXPECT_EQ(ParseLinRecord(read.records[0]).players[Seat::South], "Ann") << text;
    EXPECT_EQ(ParseLinRecord(read.records[0]).players[Seat::East], "Di") << text;
  }
  const Read names("lin=pn%7CA%231,B%232,C,D%7C" + Deal() + "\npn%7CE%233,F,G,H%7C" + Deal());
  ASSERT_EQ(names.records.size(), 2U);
  EXPECT_EQ(ParseLinRecord(names.records[0]).players[Seat::West], "B");
  EXPECT_EQ(ParseLinRecord(names.records[1]).players[Seat::South], "E");
  // A percent sign is one where the bars are bars.
  EXPECT_EQ(Read("nt|100% sure|qx|o1|" + Deal() + "nt|?lin=50%|").Boards(), "1 ");
}

TEST(ReadLIN, ARecordThatCannotBeReadIsLeftOut) {
  for (const std::string deal :
       {"3X", "hello", "3SAA,,,", "3SAKQJT98765432,SA,,", "3SA,SK,SQ,", "3SAKQJT98765432HA,,,HK"}) {
    const Read read("qx|o1|" + Deal() + "qx|o2|md|" + deal + "|qx|o3|" + Deal());
    EXPECT_EQ(read.Boards(), "1 3 ") << deal;
    EXPECT_EQ(read.result.leftOut.impossible, std::vector<int>{2}) << deal;
    EXPECT_EQ(read.records.size(), 2U) << deal;
  }
  const Read last(Deal('0') + "md|0SAA|" + Deal('0') + "qx|o9|md|3SAA|");
  EXPECT_EQ(last.Boards(), "1 3 ") << "it takes a number all the same";
  EXPECT_EQ(last.result.leftOut.impossible, (std::vector<int>{2, 9}));
  EXPECT_EQ(last.result.lastBoard, 3);
  const std::string first = "pn%7CAnn%2CBob,Cy,Di%7Cqx%7Co1%7C" + Deal();
  const Read escapes("lin=" + first + "nt|100%|qx|o2|" + Deal() + "qx|o3|pn|%4|" + Deal() +
                     "qx|o4|" + Deal() + "qx|o5|" + Deal() + "mb%7");
  EXPECT_EQ(escapes.Boards(), "2 4 ");
  EXPECT_EQ(escapes.result.leftOut.broken, (std::vector<int>{1, 3, 5}));
  ASSERT_EQ(escapes.records.size(), 2U);
  EXPECT_TRUE(escapes.records[1].starts_with("qx|o4|pn|,,,|")) << "broken names hold for none";
  EXPECT_EQ(ParseLinRecord(escapes.records[0]).players[Seat::East], "Di");
  EXPECT_EQ(Read("qx|o1|md|3SA,,SQ,|").Boards(), "1 ") << "part of a deal is one";
}

TEST(LooksLikeLin, TellsLinFromOtherText) {
  EXPECT_TRUE(LooksLikeLin("qx|o1|md|3,,,|"));
  EXPECT_TRUE(LooksLikeLin("https://example.org/?lin=md%7c3"));
  EXPECT_FALSE(LooksLikeLin("[Deal \"N:- - - -\"]"));
  EXPECT_FALSE(LooksLikeLin(""));
}

}  // namespace
}  // namespace tricklet
