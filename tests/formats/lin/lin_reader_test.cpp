#include "formats/lin/lin_reader.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "tests/support/collector.h"

namespace tricklet {
namespace {

// South spades, West hearts, North diamonds; East is left with clubs.
const std::string kThree = "SAKQJT98765432HDC,HAKQJT98765432,DAKQJT98765432";
const std::string kEncodedThree = "SAKQJT98765432HDC%2cHAKQJT98765432%2cDAKQJT98765432";

struct Read {
  /// In `text`, "@3" stands for the deal above with 3 as its dealer.
  explicit Read(std::string text) {
    for (auto at = text.find('@'); at != std::string::npos; at = text.find('@')) {
      text.replace(at, 2, "md|" + text.substr(at + 1, 1) + kThree + ",|");
    }
    result = ReadLIN(text, sink, records);
  }
  /// The boards stored with their calls, "?" after a part of a deal; then the boards left out: "!"
  /// impossible, "%" broken, "=" repeated, "~" of a foreign dealer.
  std::string Boards() const {
    std::string text;
    for (const Board& board : sink.boards) {
      text += std::to_string(board.boardNumber);
      if (!GetStats(board.hands).allHandsComplete) text += "?";
      text += board.calls.Empty() ? " " : "(" + test::CallsOf(board) + ") ";
    }
    const LeftOut& out = result.leftOut;
    for (const int number : out.impossible) text += "!" + std::to_string(number) + " ";
    for (const int number : out.broken) text += "%" + std::to_string(number) + " ";
    for (const int number : out.repeated) text += "=" + std::to_string(number) + " ";
    for (const int number : out.foreign) text += "~" + std::to_string(number) + " ";
    return text;
  }
  /// The names of each record: "S,W,N,E; S,W,N,E; ".
  std::string Names() const {
    std::string text;
    for (const std::string& record : records) {
      const auto names = record.find("pn|") + 3;
      text += record.substr(names, record.find('|', names) - names) + "; ";
    }
    return text;
  }
  test::Collector sink;
  std::vector<std::string> records;
  ReadResult result;
};

TEST(ReadLIN, FindsTheRecordsHoweverTheyLie) {
  const std::pair<std::string, const char*> kCases[] = {
      {"qx|o1|@3pg||\nqx|o2|@4pg||\n", "1 2 "},
      {"qx|o1|@3qx|o2|md|3" + kThree + ",CAKQJT98765432|", "1 2 "},
      // without a room: the header after the deal or before it, with page marks or without
      {"@3ah|Board 5|@4ah|Board 6|", "5 6 "},
      {"rh||ah|Board 5|st||@3mb|p|pg||\nrh||ah|Board 6|st||@3pg||ah|Board 7|@3", "5(Pass) 6 7 "},
      {"ah|Board 5|@3ah|Board 6|@3ah|Board 6|ah|Board 8|@3", "5 6 8 "},
      {"st||@3rh||ah|Board 5|sv|o|pg||pc|CA|pg||st||@3rh||ah|Board 6|sv|o|pg||", "5 6 "},
      // over several lines
      {"\n\npg||\nqx|o7|\nmd|1SAKQJT98765432,\nHAKQJT98765432,DAKQJT98765432\n|\npg||\nmb|\n1C|",
       "7(1C) "},
      {"qx|o9|@3qx|o3|@3", "9 3 "},
      {"qx|o9|ah|Board 3|@3", "3 "},
      {"@1@2@1@0", "3 4 7 8 "},  // no numbers: the next board that the dealer deals
      {"qx|o1000|@3qx|o999|@3", "999 "},
      {"vg|A,B,I,1,2,X,0,Y,0|\nrs|1N=,,|\npn|,,,,,,,|pg||\nqx|o1|@3", "1 "},
      {"nt|Hello|pg||md|0|pg||qx|o1|@3nt|Bye|pg||", "1 "},
      {"\xEF\xBB\xBFqx|O4|@3", "4 "},
      {"qx|o1|md|3SA,,SQ,|", "1? "},
      {"qx|o1|nt|\x1A|@3", "1 "},  // a control character that is no escape
      {"[Board \"1\"]\n[Deal \"N:- - - -\"]\n", ""},
      // The first record of a board counts; one of another deal is left out.
      {"qx|o1|@3mb|1C|mb|p|qx|c1|@3mb|7N|qx|o1|md|3," + kThree + "|", "1(1C Pass) =1 "},
      // Another dealer's calls are left out; 0 names no dealer.
      {"qx|o1|@1mb|1C|qx|o2|@4mb|1C|qx|o3|@0mb|1C|", "1 2(1C) 3(1C) ~1 "},
      // Where the bars are not encoded, a percent sign is just that.
      {"nt|100% sure|qx|o1|@3nt|?lin=50%|", "1 "}};
  for (const auto& [text, boards] : kCases) {
    const Read read(text);
    EXPECT_EQ(read.Boards(), boards) << text;
    EXPECT_EQ(read.result.boardsSaved, static_cast<int>(read.sink.boards.size())) << text;
  }
}

TEST(ReadLIN, KeepsRecordsAsLinesWithNamesAndBoard) {
  const Read read(
      "pn|S1,W1,N1,E1,S2,W2,N2,E2|pg||\r\nqx|o12|@3sv|n|nt|chat|pg||\r\nmb|1C!|an|short|pg||pc|CA|"
      "mc|9|pg||\r\nqx|c12|@3zz|1|\r\npg||");
  ASSERT_EQ(read.records.size(), 2U);
  EXPECT_EQ(read.records[0], "qx|o12|pn|S1,W1,N1,E1|rh||ah|Board 12|md|3" + kThree +
                                 ",|sv|n|mb|1C!|an|short|pc|CA|mc|9|pg||");
  EXPECT_EQ(read.records[1], "qx|c12|pn|S2,W2,N2,E2|rh||ah|Board 12|md|3" + kThree + ",|zz|1|pg||");
}

TEST(ReadLIN, NamesStayUntilOthersAreGiven) {
  const std::pair<const char*, const char*> kCases[] = {
      {"pn|a,b,c,d|pg||qx|o1|@3qx|o2|@3pg||pn|e,f,g,h|pg||qx|o3|@3", "a,b,c,d; a,b,c,d; e,f,g,h; "},
      {"pn|a,b,c,d|@3ah|Board 1|pn|e,f,g,h|@3ah|Board 2|", "a,b,c,d; e,f,g,h; "},
      {"qx|o1|@3pn|a,b,c,d|qx|o2|@3pn|e,f,g,h|", "a,b,c,d; e,f,g,h; "},
      {"lin=pn%7CA%231,B%232,C,D%7C@3\npn%7CE%233,F,G,H%7C@3", "A,B,C,D; E,F,G,H; "},
      {"qx|o1|pn|Jos\xE9,,,|@3", "Jos\xC3\xA9,,,; "},
      {"qx|o1|pn|Jos\xC3\xA9,,,|@3", "Jos\xC3\xA9,,,; "}};
  for (const auto& [text, names] : kCases) EXPECT_EQ(Read(text).Names(), names) << text;
}

TEST(ReadLIN, ReadsPercentEncodedText) {
  const std::string site = "https://example.org/view?a=1&lin=";
  const std::string kTexts[] = {
      site + "pn%7CAnn%2CBob%2CCy%2CDi%7Cmd%7C3" + kThree + "%7cah%7CBoard+5%7C",
      site + "pn|Ann,Bob,Cy,Di|md|3" + kThree + "|ah|Board%205|",
      "lin=pn|Ann%2CBob,Cy,Di|md|3" + kEncodedThree + "|ah|Board+5|",
      "pn|Ann%2CBob%2CCy%2CDi|md|3" + kEncodedThree + "|ah|Board%205|an|1%2b|"};
  for (const std::string& text : kTexts) {
    EXPECT_TRUE(LooksLikeLin(text)) << text;
    EXPECT_EQ(Read(text).Boards() + Read(text).Names(), "5 Ann,Bob,Cy,Di; ") << text;
  }
}

TEST(ReadLIN, ARecordThatCannotBeReadIsLeftOut) {
  for (const std::string deal :
       {"3X", "hello", "3SAA,,,", "3SAKQJT98765432,SA,,", "3SA,SK,SQ,", "3SAKQJT98765432HA,,,HK"}) {
    EXPECT_EQ(Read("qx|o1|@3qx|o2|md|" + deal + "|qx|o3|@3").Boards(), "1 3 !2 ") << deal;
  }
  const Read last("@0md|0SAA|@0qx|o9|md|3SAA|");
  EXPECT_EQ(last.Boards(), "1 3 !2 !9 ") << "it takes a number all the same";
  EXPECT_EQ(last.result.lastBoard, 3);
  const Read escapes(
      "lin=pn%7CAnn%2CBob,Cy,Di%7Cqx%7Co1%7C@3nt|100%|qx|o2|@3qx|o3|pn|%4|@3qx|o4|@3qx|o5|@3mb%7");
  EXPECT_EQ(escapes.Boards(), "2 4 %1 %3 %5 ");
  EXPECT_EQ(escapes.Names(), "Ann,Bob,Cy,Di; ,,,; ") << "broken names do not stay";
}

}  // namespace
}  // namespace tricklet
