#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "core/text.h"
#include "formats/dlm/dlm_deal.h"
#include "formats/dlm/dlm_reader.h"
#include "formats/dlm/dlm_writer.h"
#include "tests/support/collector.h"

namespace tricklet {
namespace {

const std::string kPlaceholder(kDLMPlaceholderDeal);

std::string BoardLine(const std::string& number, const std::string& deal = kPlaceholder) {
  return "Board " + number + "=" + deal + "000\n";
}

TEST(DLMDeal, LettersAndCheckValues) {
  // Worked out by hand: thirteen times "bl" (the pack dealt round one card at a time) comes to
  // 98 ^ 108 = 14, thirteen times "fa" to 102 ^ 97 = 7, and the placeholder to 14.
  const std::pair<int, const char*> kCases[] = {
      {1, "blblblblblblblblblblblblbl015"},  {14, "blblblblblblblblblblblblbl000"},
      {99, "blblblblblblblblblblblblbl109"}, {8, "fafafafafafafafafafafafafa015"},
      {3, "aaaaaabffffffkkkkkklpppppp013"},  {14, "aaaaaabffffffkkkkkklpppppp000"}};
  for (const auto& [board, deal] : kCases) {
    const HandTable hands = DecodeDLMDeal(std::string_view(deal).substr(0, kDLMDealLetters));
    EXPECT_EQ(EncodeDLMDeal(board, hands), deal);
  }
  const HandTable dealtRound = DecodeDLMDeal("blblblblblblblblblblblblbl");
  EXPECT_EQ(HoldingText(dealtRound[Seat::North][Suit::Spades]), " A 10 6 2");
  EXPECT_EQ(HoldingText(dealtRound[Seat::West][Suit::Clubs]), " A 10 6 2");
}

TEST(DLMDeal, EveryLetterIsChecked) {
  for (std::size_t place = 0; place < kDLMDealLetters; ++place) {
    for (const char letter : {'q', '`', '\xE9'}) {
      std::string deal = kPlaceholder;
      deal.at(place) = letter;
      EXPECT_THROW(DecodeDLMDeal(deal), Fault) << deal;
    }
  }
  // The reader looks at the first letter itself.
  test::Collector sink;
  const std::string text = BoardLine("01") + "Board 02=";
  EXPECT_EQ(ReadDLM(text + "q" + kPlaceholder, sink).badLine, "board 02=q" + kPlaceholder);
  EXPECT_THROW(ReadDLM(text + "aq" + kPlaceholder, sink), Fault);
  EXPECT_EQ(sink.Numbers(), "1 1");
}

TEST(ReadDLM, ReadsBoardLinesUpToTheLast) {
  const std::string line = "=" + kPlaceholder;
  // The file; the boards stored, and the range that is told
  const std::pair<std::string, const char*> kCases[] = {
      // any line end, any case, any section
      {"[Document]\r\nFrom board=8\rBOARD 07" + line + "\nboard5" + line, "7 5, 5-7"},
      {"To board=10\n" + BoardLine("09") + BoardLine("10") + BoardLine("11") + BoardLine("04"),
       "9 10, 9-10"},
      {"To board=20\nTO BOARD=1\nTo board=9\n" + BoardLine("1") + BoardLine("2"), "1, 1-1"},
      {BoardLine("999") + BoardLine("1000"), "999, 999-999"},
      {"Checksum=999\nBoard 03" + line + "\nBoard 04" + line + "999 and more", "3 4, 3-4"},
      {"Board 1=AAAAAABFFFFFFKKKKKKLPPPPPP", "1, 1-1"},
      {"Duplicates 01=0\nProperty 01=1\nHeadline=Board 1\n Board 1=\n", ", 0-0"},
      {"To board=x\n" + BoardLine("01"), ", 0-0"}};  // no number counts as 0
  for (const auto& [text, boards] : kCases) {
    test::Collector sink;
    const ReadResult result = ReadDLM(text, sink);
    EXPECT_EQ(result.badLine.value_or(""), "") << text;
    EXPECT_EQ(result.boardsSaved, static_cast<int>(sink.boards.size())) << text;
    const std::string range =
        std::to_string(result.firstBoard) + "-" + std::to_string(result.lastBoard);
    EXPECT_EQ(sink.Numbers() + ", " + range, boards) << text;
  }
}

TEST(ReadDLM, StopsAtALineThatCannotBeRead) {
  for (const std::string& line : {"Board 05=" + kPlaceholder.substr(1), "Board 00=" + kPlaceholder,
                                  "Board -1=" + kPlaceholder, "Board =" + kPlaceholder,
                                  "Board 05 " + kPlaceholder, std::string("Boards")}) {
    test::Collector sink;
    const ReadResult result = ReadDLM(BoardLine("04") + line + "\n" + BoardLine("06"), sink);
    EXPECT_EQ(ToUpper(result.badLine.value_or("")), ToUpper(line));
    EXPECT_EQ(result.boardsSaved, 0) << line;
    EXPECT_EQ(sink.Numbers(), "4") << line;
  }
}

TEST(DLMHeader, HoldsTheRangeAndItsCheckValue) {
  EXPECT_EQ(
      DLMHeader(5, 7),
      "[DOCUMENT]\r\nHeadline=\r\nStatus=Show\r\nDuplicates=1\r\nFrom board=5\r\nTo board=7\r\n"
      "Dealing method=1\r\nNext board to duplimate=0\r\nPrintOuts=0\r\nCrypto key=0\r\n"
      "Checksum=002\r\n");
  EXPECT_NE(DLMHeader(95, 999).find("Checksum=952\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tricklet
