#include "formats/exchange/text_deals.h"

#include "formats/exchange/import.h"
#include "tests/support/hands.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

const std::string kDeal = "N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432";
const std::string kHands = kDeal.substr(2);

std::string Cells(std::string hands) {
  for (char& c : hands) c = c == ' ' ? '\t' : c;
  return hands;
}

TEST(DealInText, IsReadInEveryFormThatPeopleWrite) {
  std::string tens = kDeal;
  for (auto at = tens.find('T'); at != std::string::npos; at = tens.find('T')) {
    tens.replace(at, 1, "10");
  }
  for (const std::string& text :
       {kDeal, kHands, tens, " \"" + kDeal + "\"\r\n", ToUpper(kDeal.substr(0, 2)) + " " + kHands,
        std::string("e:.akqjt98765432.. -.-.AKQJT98765432.- ...23456789TJQKA AKQJT98765432...")}) {
    const auto hands = DealInText(text);
    ASSERT_TRUE(hands) << text;
    EXPECT_EQ(*hands, OneSuitEach()) << text;
  }
  EXPECT_EQ(DealInText("S:A... - - -"), HandsOf("S:A... - - -"));
}

TEST(DealInText, IsNothingElse) {
  for (const std::string& text :
       {std::string(), std::string("Dear Ann"), std::string("N:... ... ... ..."),
        std::string("N:A... A... - -"), std::string("N:AA... - - -"), std::string("N:A... - -"),
        std::string("10.0.0.1 10.0.0.2 - -"), std::string("N:Ax.. - - -"), kDeal + " -",
        "X:" + kHands}) {
    EXPECT_FALSE(DealInText(text)) << text;
  }
}

TEST(TextDeals, OfATableBecomeABoardEach) {
  const FileContents contents = ReadTextDeals(
      "Board\tDeal\tPar\r\n"
      "Board 7\t" +
      kDeal + "\t420\r\n" + "8\t" + Cells(kHands) + "\r\n" + kDeal + "\r\n" +
      "9\tN:AA... - - -\r\n" + "#10\tN:A... A... - -");
  std::string found;
  for (const FoundGame& game : contents.sections.at(0).games) {
    found += game.label + "@" + std::to_string(game.line) +
             (game.board.hands == OneSuitEach() ? " " : "? ") +
             (game.troubles.Has(DealTrouble::Impossible) ? "impossible" : "");
  }
  EXPECT_EQ(found, "7@2 8@3 @4 10@6? impossible");
  ASSERT_EQ(contents.unread.size(), 1U);
  EXPECT_EQ(contents.unread[0].label + contents.unread[0].text, "9N:AA... - - -");
  EXPECT_TRUE(ReadTextDeals("1\t2\nDear Ann:\n1.2.3.4").sections.empty());
}

class TextImportTest : public LibraryTest {};

TEST_F(TextImportTest, TakesWhateverTheTextHolds) {
  const std::pair<std::string, const char*> texts[] = {
      {"qx|o2|md|0SAKQJT98765432,HAKQJT98765432,DAKQJT98765432,|pg||\r\n", "Hand 2 has"},
      {PbnText({3}), "Hand 3 has"},
      {"5\t" + kDeal + "\n" + kDeal, "2 hands (5-6) have"}};
  for (const auto& [text, told] : texts) {
    EXPECT_TRUE(HasHandRecords(text)) << text;
    const bool table = text[0] == '5';
    if (session.library.boardCount > 0 && !table) host.ExpectAskWith("Overwrite", Answer::Yes);
    host.ExpectTellWith(told);
    EXPECT_GT(ImportText(session, text).boardsSaved, 0) << text;
  }
  EXPECT_EQ(session.library.boardCount, 4);
  EXPECT_FALSE(HasHandRecords("Dear Ann"));
  host.ExpectTell("There are no hand records in this text");
  EXPECT_TRUE(ImportText(session, "Dear Ann").refused);
}

}  // namespace
}  // namespace tricklet::test
