#include "formats/exchange/import_xml.h"

#include <gtest/gtest.h>

#include "formats/exchange/import.h"
#include "formats/results/lin_file.h"
#include "formats/usebio/usebio_reader.h"
#include "library/board_store.h"
#include "tests/support/library_fixture.h"
#include "tests/support/usebio.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::BoardElement;
using test::Element;
using test::LinData;
using test::OneLineBoard;
using test::ReadFile;
using test::TravellerLine;
using test::UsebioBody;
using test::UsebioText;
using test::WriteFile;

constexpr const char* kNothingSaved = "No hands have been saved to the library - Club";

class ImportXmlTest : public test::LibraryTest {
 protected:
  fs::path File(const std::string& bytes) {
    fs::path path = folder.Path() / PathFromText("r\u00e9sultats.XML");
    WriteFile(path, bytes);
    return path;
  }

  ImportOutcome ImportText(const std::string& bytes) { return ImportFile(session, File(bytes)); }

  /// What an earlier import has left, which a failed one must not touch.
  void PutResults() {
    PutBoard(1);
    WriteFile(LinDataPath(session), kOldResults);
  }
  void ExpectOldResults() {
    EXPECT_EQ(ReadFile(LinDataPath(session)), kOldResults);
    EXPECT_EQ(ReadFile(session.BoardPath(1)), test::OneSuitEachText());
    EXPECT_EQ(session.library.boardCount, 1);
    EXPECT_FALSE(fs::exists(session.LibraryPath() / "QENXML.xml"));
    EXPECT_FALSE(session.batchRunning);
    EXPECT_EQ(host.working, 0);
  }

  const std::string kOldResults = "[LIN]\r\nqx|o1|old|\r\n";
};

TEST_F(ImportXmlTest, StoresBoardsAndResults) {
  WriteFile(LinDataPath(session), kOldResults);
  host.onStep = [this] {
    EXPECT_EQ(ReadFile(LinDataPath(session)), kOldResults) << "until the end";
  };
  host.ExpectTell("3 hands (4-12) have been saved to the library - Club");
  const ImportOutcome outcome =
      ImportText(UsebioText(OneLineBoard(12) + OneLineBoard(4) + OneLineBoard(5)));
  EXPECT_EQ(outcome.boardsSaved, 3);
  EXPECT_FALSE(outcome.failed);
  EXPECT_EQ(host.steps, (std::vector<std::string>{"Importing board 4", "Importing board 5",
                                                  "Importing board 12"}));
  EXPECT_TRUE(host.recycled.empty()) << "replaced in its place";
  EXPECT_EQ(session.board.boardNumber, 4);
  EXPECT_EQ(session.board.contract, "1S");
  EXPECT_EQ(session.board.hands[Seat::South][Suit::Spades].Count(), 13);
  EXPECT_EQ(session.board.hands[Seat::East][Suit::Clubs].Count(), 13) << "the fourth hand";
  EXPECT_EQ(LoadLinData(session).lin.size(), 3U);
  EXPECT_EQ(LoadLinData(session).boardScoringAbb, "MP");
}

TEST_F(ImportXmlTest, NamesKeepTheirAccentsInEveryEncoding) {
  const std::string body =
      UsebioBody(Element("PARTICIPANTS",
                         "<PAIR><PAIR_NUMBER>1</PAIR_NUMBER><DIRECTION>NS</DIRECTION><PLAYER>"
                         "<PLAYER_NAME>Zo\u00eb</PLAYER_NAME></PLAYER></PAIR>") +
                 OneLineBoard(1));
  const std::string declaration = "<?xml version=\"1.0\" encoding=\"";
  const std::array<XmlText, 4> files{{
      {declaration + "utf-8\"?>" + body, XmlEncoding::Utf8},
      {declaration + "ISO-8859-1\"?>" + body, XmlEncoding::Latin1},
      {declaration + "UTF-16\"?>" + body, XmlEncoding::Utf16Little},
      {declaration + "UTF-16\"?>" + body, XmlEncoding::Utf16Big},
  }};
  bool overwrite = false;
  for (const XmlText& file : files) {
    if (overwrite) host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    overwrite = true;
    host.ExpectTell("Hand 1 has been saved to the library - Club");
    ImportText(EncodeXml(file));
    EXPECT_EQ(LoadLinData(session).names, std::vector<std::string>{"1 NS Zo\u00eb"});
    fs::remove(LinDataPath(session));
  }
}

TEST_F(ImportXmlTest, ADocumentTypeOnAWebHostIsReplacedInACopy) {
  const std::string begin = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>";
  const std::string body = UsebioBody(OneLineBoard(1));
  const std::string text =
      begin + "<!DOCTYPE USEBIO SYSTEM \"http://dtd.example.org/u.dtd\">" + body;
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  const std::string bytes = EncodeXml({text, XmlEncoding::Utf16Big});
  ImportText(bytes);
  EXPECT_EQ(DecodeXml(ReadFile(session.LibraryPath() / "QENXML.xml")).text,
            begin + "<!DOCTYPE USEBIO SYSTEM \"/dtd/usebio_v1_2_ext.dtd\">" + body);
  EXPECT_EQ(ReadFile(folder.Path() / PathFromText("r\u00e9sultats.XML")), bytes);
  EXPECT_EQ(session.library.boardCount, 1) << "the copy is no board";
}

TEST_F(ImportXmlTest, AMessageEndsTheImportAndChangesNothing) {
  PutResults();
  const fs::path path = folder.Path() / PathFromText("r\u00e9sultats.XML");
  const std::string noLin = "This xml file has no LIN data:\n\n" + PathText(path);
  const std::array<std::pair<std::string, std::string>, 6> cases{{
      {UsebioText(BoardElement("1", "<TRAVELLER_LINE/>")), noLin},
      {"", noLin},
      {"<LIN_DATA></WRONG>",
       "XML File Load failed - a website might not be available or the file is in the wrong "
       "format"},
      {"<R><LIN_DATA>qx|o1|</LIN_DATA></R>", "Unexpected XML format"},
      {UsebioText("<SESSION_COUNT>2</SESSION_COUNT>" + OneLineBoard(1)),
       "Only Single Session Imports supported"},
      {"<!DOCTYPE USEBIO SYSTEM \"http://example.org/u.dtd\">" +
           UsebioBody("<SECTION_COUNT>2</SECTION_COUNT>" + OneLineBoard(1)),
       "Only Single Section Imports supported"},
  }};
  for (const auto& [text, message] : cases) {
    host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTell(message);
    host.ExpectTell(kNothingSaved);
    const ImportOutcome outcome = ImportText(text);
    EXPECT_TRUE(outcome.failed);
    EXPECT_EQ(outcome.boardsSaved, 0);
    ExpectOldResults();
  }
}

TEST_F(ImportXmlTest, AnUnexpectedErrorIsShownWithItsNumber) {
  PutResults();
  std::string calls;
  for (int call = 0; call < 101; ++call) calls += "mb|p|";
  const std::array<std::pair<std::string, std::string>, 2> cases{{
      {TravellerLine(LinData(2, calls)), "Error 9 ("},
      {TravellerLine("qx|o2|pn|Ann%2"), "Error 13 ("},
  }};
  for (const auto& [line, error] : cases) {
    host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTellWith(error);
    host.ExpectTell("Unable to import XML file");
    host.ExpectTell(kNothingSaved);
    EXPECT_TRUE(ImportText(UsebioText(OneLineBoard(1) + BoardElement("2", line))).failed);
    ExpectOldResults();
  }
}

TEST_F(ImportXmlTest, ABoardThatCannotBeWrittenTakesItsResultsBack) {
  const std::string text = UsebioText(OneLineBoard(1) + OneLineBoard(2));
  const auto block = [this](int number) {
    WriteFile(session.BoardPath(number) / "x", "");  // a folder that no file can replace
  };
  block(2);
  host.ExpectTellWith(") in procedure ReadFileXML of Module modXML");
  host.ExpectTell("Unable to import XML file");
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  EXPECT_TRUE(ImportText(text).failed);
  EXPECT_EQ(LoadLinData(session).lin.size(), 1U);

  fs::remove(session.BoardPath(1));
  block(1);
  for (const bool hadResults : {true, false}) {
    if (hadResults) WriteFile(LinDataPath(session), kOldResults);
    host.ExpectTellWith(") in procedure ReadFileXML of Module modXML");
    host.ExpectTell("Unable to import XML file");
    host.ExpectTell(kNothingSaved);
    EXPECT_TRUE(ImportText(text).failed);
    EXPECT_EQ(ReadFile(LinDataPath(session)), hadResults ? kOldResults : "");
    fs::remove(LinDataPath(session));
  }
}

TEST_F(ImportXmlTest, OnlyNumbersOfALibraryAreStored) {
  host.ExpectTell("2 hands (1-999) have been saved to the library - Club");
  const ImportOutcome outcome =
      ImportText(UsebioText(OneLineBoard(0) + OneLineBoard(1) + OneLineBoard(999) +
                            OneLineBoard(1000) + BoardElement("-5", TravellerLine(LinData(-5)))));
  EXPECT_EQ(outcome.boardsSaved, 2);
  EXPECT_EQ(session.library.boardCount, 2);
}

TEST_F(ImportXmlTest, TellsOfAuctionsThatAreLeftOut) {
  const auto line = [](int board) { return TravellerLine(LinData(board)); };
  host.ExpectTell("4 hands (1-4) have been saved to the library - Club");
  host.ExpectTell(
      "2 auctions were left out because the dealer of the record is not the board's: 1, 3");
  ImportText(UsebioText(BoardElement("1", line(2)) + BoardElement("2", line(2)) +
                        BoardElement("3", line(4)) + BoardElement("4", line(8))));
  EXPECT_EQ(session.board.NumCalls(), 0);
}

TEST_F(ImportXmlTest, WithoutAStoredBoardNothingIsReplaced) {
  PutResults();
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell(kNothingSaved);
  EXPECT_FALSE(ImportText(UsebioText(OneLineBoard(1000))).failed);
  ExpectOldResults();
}

TEST_F(ImportXmlTest, CancelKeepsTheResultsOfStoredBoardsOnly) {
  const std::string text = UsebioText(OneLineBoard(3) + OneLineBoard(1) + OneLineBoard(2));
  PutResults();
  host.cancelAtStep = 1;
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell(kNothingSaved);
  EXPECT_TRUE(ImportText(text).cancelled);
  ExpectOldResults();

  host.cancelAtStep = 4;
  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("2 hands (1-2) have been saved to the library - Club");
  EXPECT_TRUE(ImportText(text).cancelled);
  EXPECT_EQ(LoadLinData(session).lin.size(), 2U);
}

TEST_F(ImportXmlTest, AFileThatIsTooLargeIsNotRead) {
  const fs::path path = File("");
  fs::resize_file(path, kMaxXmlBytes + 1);
  host.ExpectTell(kXmlLoadFailed);
  host.ExpectTell(kNothingSaved);
  EXPECT_TRUE(ImportFile(session, path).failed);
}

}  // namespace
}  // namespace tricklet
