// What an import makes of a library's results.
#include <gtest/gtest.h>

#include "formats/exchange/import.h"
#include "formats/results/lin_file.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/xml_text.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class ImportResultsTest : public LibraryTest {
 protected:
  ImportOutcome ImportText(const std::string& bytes, const char* name = "r\u00e9sultats.XML") {
    file = folder.Path() / PathFromText(name);
    WriteFile(file, bytes);
    return ImportAnyFile(session, file);
  }
  fs::path file;
};

TEST_F(ImportResultsTest, ASessionReplacesTheResultsWhenItIsStored) {
  const std::string old = "[LIN]\r\nqx|o1|old|\r\n";
  WriteFile(LinDataPath(session), old);
  host.onStep = [&] { EXPECT_EQ(ReadFile(LinDataPath(session)), old) << "until the end"; };
  host.ExpectTell("3 hands (4-12) have been saved to the library - Club");
  const ImportOutcome outcome =
      ImportText(UsebioText(OneLineBoard(12) + OneLineBoard(4) + OneLineBoard(5)));
  EXPECT_FALSE(outcome.failed);
  EXPECT_EQ(host.steps.back(), "Importing board 12");
  EXPECT_TRUE(host.recycled.empty()) << "replaced in its place";
  EXPECT_EQ(session.board.boardNumber, 4);
  EXPECT_EQ(session.board.contract, "1S");
  EXPECT_EQ(LoadLinData(session).lin.size(), 3U);
  EXPECT_EQ(LoadLinData(session).boardScoringAbb, "MP");
}

TEST_F(ImportResultsTest, ADocumentTypeOnAWebHostIsReplacedInACopy) {
  const std::string begin = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>";
  const std::string names = "<PAIR><PAIR_NUMBER>Zo\u00eb</PAIR_NUMBER></PAIR>";
  const std::string body = UsebioBody(Element("PARTICIPANTS", names) + OneLineBoard(1));
  const std::string text =
      begin + "<!DOCTYPE USEBIO SYSTEM \"http://dtd.example.org/u.dtd\">" + body;
  const std::string bytes = EncodeXml({text, XmlEncoding::Utf16Big});
  host.ExpectTell("Hand 1 has been saved to the library - Club");
  ImportText(bytes);
  EXPECT_EQ(ReadFile(session.LibraryPath() / "QENXML.xml"),
            EncodeXml({begin + "<!DOCTYPE USEBIO SYSTEM \"/dtd/usebio_v1_2_ext.dtd\">" + body,
                       XmlEncoding::Utf16Big}));
  EXPECT_EQ(ReadFile(file), bytes);
  EXPECT_EQ(session.library.boardCount, 1) << "the copy is no board";
  EXPECT_EQ(LoadLinData(session).names, std::vector<std::string>{"Zo\u00eb "});
}

TEST_F(ImportResultsTest, AFileThatIsTooLargeIsNotRead) {
  file = folder.Path() / "a.xml";
  WriteFile(file, "");
  fs::resize_file(file, kMaxXmlBytes + 1);
  host.ExpectTell(kXmlLoadFailed);
  host.ExpectTell("No hands have been saved to the library - Club");
  EXPECT_TRUE(ImportFile(session, file).failed);
}

TEST_F(ImportResultsTest, RecordsStandBesideThoseOfOtherBoards) {
  const LinFile before{
      "CROSS_IMPS",
      "XIMP",
      LinTeams{{"1 Hearts"}, "", "IMP"},
      {"1 NS Ann & Bob"},
      {"qx|o1|first|", "ah|Board 2|qent|9|", "x|y|ah|Board 1|second|", "qx|o3|third|"}};
  StoreLinData(session, before);
  host.onStep = [this] { EXPECT_EQ(LoadLinData(session).lin.size(), 4U) << "until the end"; };
  host.ExpectTell("2 hands (1-4) have been saved to the library - Club");
  ImportText(LinRecordText("o1") + LinRecordText("o4"), "a.lin");
  LinFile results = LoadLinData(session);
  ASSERT_EQ(results.lin.size(), 4U);
  EXPECT_EQ(results.lin[0], before.lin[1]);
  EXPECT_EQ(results.lin[1], before.lin[3]);
  EXPECT_TRUE(results.lin[2].starts_with("qx|o1|pn|,,,|"));
  results.lin = before.lin;
  EXPECT_EQ(results, before) << "names and scoring";
  EXPECT_TRUE(host.recycled.empty()) << "replaced in its place";

  host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
  host.ExpectTell("4 hands (1-4) have been saved to the library - Club");
  ImportText(LinRecordText("o1") + LinRecordText("o2") + LinRecordText("o3") + LinRecordText("o4"),
             "a.lin");
  results = LoadLinData(session);
  EXPECT_EQ(results.lin.size(), 4U);
  EXPECT_EQ(results.boardScoringAbb, "MP") << "nothing of the session is left";
  EXPECT_TRUE(results.names.empty());
}

}  // namespace
}  // namespace tricklet::test
