#include "formats/usebio/usebio_reader.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "tests/support/usebio.h"

namespace tricklet {
namespace {

using test::BoardElement;
using test::Element;
using test::LinData;
using test::OneLineBoard;
using test::TravellerLine;
using test::UsebioText;

constexpr const char* kLoadFailed =
    "XML File Load failed - a website might not be available or the file is in the wrong format";
constexpr const char* kUnexpectedFormat = "Unexpected XML format";

/// What the text holds; it must be accepted.
UsebioResults Read(const std::string& text) {
  const auto read = ReadUsebio(text);
  const auto* refusal = std::get_if<UsebioRefusal>(&read);
  EXPECT_EQ(refusal, nullptr) << refusal->message;
  return refusal != nullptr ? UsebioResults{} : std::get<UsebioResults>(read);
}

/// The message with which the text is refused.
std::string Refusal(const std::string& text) {
  const auto read = ReadUsebio(text);
  const auto* refusal = std::get_if<UsebioRefusal>(&read);
  return refusal != nullptr ? refusal->message : "accepted";
}

/// The one LIN line of a board of this one traveller line.
std::string LinLineOf(const std::string& travellerLine) {
  const auto lines = Read(UsebioText(BoardElement("7", travellerLine))).data.lin;
  EXPECT_EQ(lines.size(), 1U);
  return lines.empty() ? "" : lines[0];
}

TEST(Usebio, TravellerLineBecomesARecordWithPrivateTags) {
  const std::string fields = Element("CONTRACT", "4Sx") + Element("PLAYED_BY", "N") +
                             Element("LEAD", "H2") + Element("TRICKS", "10") +
                             Element("SCORE", "+590") + Element("NS_MATCH_POINTS", "6.50") +
                             Element("EW_MATCH_POINTS", "1.5") +
                             Element("NS_CROSS_IMP_POINTS", "-12.10") + "<DIRECTION>NS</DIRECTION>";
  EXPECT_EQ(LinLineOf(TravellerLine("qx|o7|pn|A%2323,B,C,D|rh||ah|Board%207|pg||", fields)),
            "qx|o7|pn|A,B,C,D|rh||ah|Board 7|pg||qent|10|qens|+590||qenns|6.5||qenew|1.5||qenc|4Sx"
            "||qend|N||qenl|H2||qeni|-12.1|");
  EXPECT_EQ(LinLineOf(TravellerLine("qx|o7|pg|")),
            "qx|o7|pg|qent||qens|||qenns|0||qenew|0||qenc|||qend|||qenl|||qeni|0|");
}

TEST(Usebio, ALineAlwaysNamesItsBoardAndNoValueLeavesItsField) {
  EXPECT_TRUE(LinLineOf("<TRAVELLER_LINE/>").starts_with("rh||ah|Board 7|qent||"));
  EXPECT_TRUE(LinLineOf(TravellerLine("pn|a,b,c,d")).starts_with("rh||ah|Board 7|pn|a,b,c,d|qent"));
  EXPECT_TRUE(LinLineOf(TravellerLine("qx|o7|ah|Board 12|pg||"))
                  .starts_with("rh||ah|Board 7|qx|o7|ah|Board 12|pg||qent"))
      << "the file's board counts, not the record's";
  const std::string line = LinLineOf(TravellerLine("qx|o7|", Element("CONTRACT", "1N|qens|9")));
  EXPECT_NE(line.find("|qenc|1N qens 9||qend|"), std::string::npos) << line;
}

TEST(Usebio, NumbersAreInShortestSingleForm) {
  constexpr std::array<std::pair<const char*, const char*>, 20> kCases{{
      {"62.50", "62.5"},
      {"62.5", "62.5"},
      {"0", "0"},
      {"007", "7"},
      {"01.5", "1.5"},
      {"12.", "12"},
      {".5", "0.5"},
      {"1.0.5", "1"},
      {"-7", "-7"},
      {"0.1", "0.1"},
      {"16777217", "16777216"},
      {"1000000", "1000000"},
      {"+3", "3"},
      {" -0.0 ", "0"},
      {"33.333333333", "33.333332"},
      {"5 imps", "5"},
      {"average", "0"},
      {"1e99", "0"},
      {"nan", "0"},
      {"", "0"},
  }};
  for (const auto& [text, number] : kCases) {
    const std::string line = LinLineOf(TravellerLine("qx|o7|", Element("NS_MATCH_POINTS", text)));
    EXPECT_NE(line.find("|qenns|" + std::string(number) + "||"), std::string::npos) << line;
  }
  const std::string butler = LinLineOf(TravellerLine("qx|o7|", Element("NS_BUTLER_POINTS", "-4")));
  EXPECT_TRUE(butler.ends_with("|qeni|-4|")) << butler;
}

TEST(Usebio, TextMayBeDividedAndEscaped) {
  EXPECT_TRUE(LinLineOf(TravellerLine("\n <![CDATA[qx|o7|nt|a<b|]]><!-- x -->pg||\n"))
                  .starts_with("qx|o7|nt|a<b|pg||qent|"));
  EXPECT_TRUE(LinLineOf(TravellerLine("qx|o7|<!-- -->nt|a<![CDATA[<]]>b|<!-- -->pg||"))
                  .starts_with("qx|o7|nt|a<b|pg||qent|"));
  EXPECT_TRUE(LinLineOf(TravellerLine("qx|o7|nt|&amp;%26&#233;\u00e9%E9%C3%A9|"))
                  .starts_with("qx|o7|nt|&&\u00e9\u00e9\u00e9\u00e9|qent|"))
      << "escaped bytes are UTF-8 where they can be, else Latin-1";
}

struct ScoringCase {
  const char* eventType;
  const char* elements;
  const char* boardMethod;
  const char* boardAbb;
  const char* teamMethod;  // nullptr: no team event
  const char* teamAbb;
};

TEST(Usebio, ScoringWord) {
  constexpr std::array<ScoringCase, 9> kCases{{
      {"PAIRS", "", "MATCH_POINTS", "MP", nullptr, nullptr},
      {"CROSS_IMP", "<PAIRWISE_SCORING_METHOD>CROSS_IMPS</PAIRWISE_SCORING_METHOD>", "CROSS_IMPS",
       "XIMP", nullptr, nullptr},
      {"PAIRS", "<BOARD_SCORING_METHOD>BUTLER_IMPS</BOARD_SCORING_METHOD>", "BUTLER_IMPS", "BIMP",
       nullptr, nullptr},
      {"PAIRS", "<SCORING_METHOD>IMPS</SCORING_METHOD>", "IMPS", "IMP", nullptr, nullptr},
      {"PAIRS",
       "<SCORING_METHOD>VP</SCORING_METHOD>"
       "<BOARD_SCORING_METHOD>CROSS_IMPS</BOARD_SCORING_METHOD>",
       "CROSS_IMPS", "XIMP", nullptr, nullptr},
      {"PAIRS", "<SESSION><BOARD_SCORING_METHOD> IMPS\n</BOARD_SCORING_METHOD></SESSION>", "IMPS",
       "IMP", nullptr, nullptr},
      {"TEAMS", "", "IMPS", "IMP", "IMPS", "IMP"},
      {"TEAMS", "<SCORING_METHOD>VP</SCORING_METHOD>", "IMPS", "IMP", "VP", "VP"},
      {"TEAMS",
       "<BOARD_SCORING_METHOD>PAB</BOARD_SCORING_METHOD><SCORING_METHOD>IMPS</SCORING_METHOD>",
       "PAB", "PAB", "IMPS", "IMP"},
  }};
  for (const ScoringCase& c : kCases) {
    SCOPED_TRACE(std::string(c.eventType) + c.elements);
    const LinFile data = Read(UsebioText(c.elements, c.eventType)).data;
    EXPECT_EQ(data.boardScoringMethod, c.boardMethod);
    EXPECT_EQ(data.boardScoringAbb, c.boardAbb);
    ASSERT_EQ(data.teamEvent.has_value(), c.teamMethod != nullptr);
    if (!data.teamEvent) continue;
    EXPECT_EQ(data.teamEvent->teamScoringMethod, c.teamMethod);
    EXPECT_EQ(data.teamEvent->teamScoringAbb, c.teamAbb);
  }
}

std::string Pair(const std::string& number, const std::string& direction, const std::string& first,
                 const std::string& second) {
  const auto player = [](const std::string& name) {
    return Element("PLAYER", Element("PLAYER_NAME", name));
  };
  return Element("PAIR", Element("PAIR_NUMBER", number) + Element("DIRECTION", direction) +
                             player(first) + player(second));
}

TEST(Usebio, NamesOfPairsAndTeams) {
  const std::string pairs =
      Pair("1", "NS", "Ann O'Neil", " Zo\u00eb &amp; Co ") + Pair("2", "EW", "Advanced BBO", "Cy");
  const std::vector<std::string> names{"1 NS Ann O'Neil & Zo\u00eb & Co", "2 EW Robot & Cy"};
  EXPECT_EQ(
      Read(UsebioText(Element("PARTICIPANTS", pairs) + Pair("9", "NS", "no", "one"))).data.names,
      names);
  const std::string teams = Element(
      "SESSION", Element("PARTICIPANTS", "<TEAM TEAM_ID=\"4\" TEAM_NAME=\"Hearts\">" + pairs +
                                             "</TEAM><TEAM><TEAM_NAME>Spades</TEAM_NAME></TEAM>"));
  const LinFile data = Read(UsebioText(teams, "TEAMS")).data;
  EXPECT_EQ(data.names, names);
  EXPECT_EQ(data.teamEvent.value_or(LinTeams()).teams,
            (std::vector<std::string>{"4 Hearts", "Spades"}));
  const std::string nested = Element("PARTICIPANTS", Element("PARTICIPANTS", pairs));
  EXPECT_EQ(Read(UsebioText(nested)).data.names, names) << "each pair once";
}

TEST(Usebio, ALineWithoutPlayersHasThoseOfItsPairs) {
  const std::string separate = Pair("1", "NS", "Ann", "Bob") + Pair("1", "EW", "Cy", "Di") +
                               Pair("2", "EW", "Smith, Eve", "Robot");
  const std::string together = Pair("1", "", "Ann", "Bob") + Pair("2", "NS", "Cy", "Di");
  const std::string ending = Pair("9NS", "", "Ann", "Bob") + Pair("9", "EW", "Cy", "Di");
  const struct {
    std::string pairs;
    const char* ns;
    const char* ew;
    std::string linData;
    const char* record;
  } kCases[] = {
      {separate, "1", "1", "", "rh||ah|Board 7|pn|Bob,Di,Ann,Cy|qent|"},
      {separate, "1", "2", "qx|o7|pn|,,,|pg||",
       "qx|o7|pn|,,,|pg||pn|Bob,Robot,Ann,Smith Eve|qent|"},
      {separate, "3", "2", "", "rh||ah|Board 7|pn|,Robot,,Smith Eve|qent|"},
      {separate, "3", "4", "", "rh||ah|Board 7|qent|"},
      {separate, "1", "1", "qx|o7|pn|,,Zoe|pg||", "qx|o7|pn|,,Zoe|pg||qent|"},
      {together, "2", "1", "", "rh||ah|Board 7|pn|Di,Bob,Cy,Ann|qent|"},
      {together, "1", "2", "", "rh||ah|Board 7|pn|Bob,Di,Ann,Cy|qent|"},
      {ending, "9NS", "9EW", "", "rh||ah|Board 7|pn|Bob,Di,Ann,Cy|qent|"},
  };
  for (const auto& c : kCases) {
    const std::string line =
        TravellerLine(c.linData, Element("NS_PAIR_NUMBER", c.ns) + Element("EW_PAIR_NUMBER", c.ew));
    const LinFile data =
        Read(UsebioText(BoardElement("7", line) + Element("PARTICIPANTS", c.pairs))).data;
    ASSERT_EQ(data.lin.size(), 1U);
    EXPECT_EQ(data.lin[0].substr(0, std::string(c.record).size()), c.record) << data.lin[0];
  }
}

TEST(Usebio, ALineTellsWhichWayItsFirstPairSits) {
  const std::string pairs = Pair("1", "", "Ann", "Bob") + Pair("2", "", "Cy", "Di");
  const std::string placed = Pair("1", "NS", "Ann", "Bob") + Pair("2", "EW", "Cy", "Di");
  const struct {
    std::string event;
    const char* type;
    const char* direction;
    const char* players;  // South, West, North, East
  } kCases[] = {
      {pairs, "PAIRS", "EW", "Di,Bob,Cy,Ann"},
      {pairs, "PAIRS", "NS", "Bob,Di,Ann,Cy"},
      {pairs, "TEAMS", "EW", "Bob,Di,Ann,Cy"},
      {placed, "PAIRS", "EW", "Bob,Di,Ann,Cy"},
      {placed + "</PARTICIPANTS><WINNER_TYPE>1</WINNER_TYPE><PARTICIPANTS>", "PAIRS", "EW",
       "Di,Bob,Cy,Ann"},
      {pairs + "</PARTICIPANTS><WINNER_TYPE>2</WINNER_TYPE><PARTICIPANTS>", "PAIRS", "EW",
       "Bob,Di,Ann,Cy"},
  };
  for (const auto& c : kCases) {
    const std::string line =
        Element("TRAVELLER_LINE", Element("NS_PAIR_NUMBER", "1") + Element("EW_PAIR_NUMBER", "2") +
                                      Element("DIRECTION", c.direction));
    const LinFile data =
        Read(UsebioText(Element("PARTICIPANTS", c.event) + BoardElement("7", line), c.type)).data;
    EXPECT_EQ(data.lin.at(0), "rh||ah|Board 7|pn|" + std::string(c.players) +
                                  "|qent||qens|||qenns|0||qenew|0||qenc|||qend|||qenl|||qeni|0|");
  }
}

TEST(Usebio, CrossImpsAreShownAsSuch) {
  const struct {
    std::string points;
    const char* imps;
    const char* abbreviation;
  } kCases[] = {
      {Element("NS_CROSS_IMP_POINTS", "2.5") + Element("EW_CROSS_IMP_POINTS", "-2"), "2.5", "XIMP"},
      {Element("EW_CROSS_IMP_POINTS", "-2.50"), "2.5", "XIMP"},
      {Element("EW_CROSS_IMP_POINTS", "0"), "0", "XIMP"},
      {Element("NS_BUTLER_POINTS", "4"), "4", "IMP"},
  };
  for (const auto& c : kCases) {
    for (const std::string word : {"IMPS", "MATCH_POINTS", "VP"}) {
      const LinFile data = Read(UsebioText(Element("SCORING_METHOD", word) +
                                           BoardElement("7", TravellerLine("qx|o7|", c.points))))
                               .data;
      EXPECT_TRUE(data.lin.at(0).ends_with("|qeni|" + std::string(c.imps) + "|")) << data.lin[0];
      EXPECT_EQ(data.boardScoringMethod, word);
      EXPECT_EQ(data.boardScoringAbb, word == "IMPS" ? c.abbreviation : GetAbbreviations(word));
    }
  }
}

TEST(Usebio, BoardsOfTheSectionGiveTheRange) {
  const std::string sections =
      Element("SESSION", "<SECTION SECTION_ID=\"A\">" + OneLineBoard(5) + OneLineBoard(3) +
                             BoardElement(" 12\n", "") + "</SECTION>");
  const UsebioResults results = Read(UsebioText("<SECTION_COUNT>1</SECTION_COUNT>" + sections));
  EXPECT_EQ(results.firstBoard, 3);
  EXPECT_EQ(results.lastBoard, 12);
  EXPECT_EQ(results.data.lin.size(), 2U);
}

TEST(Usebio, ALineIsOfTheBoardThatItIsRightInside) {
  const std::string line = TravellerLine("nt|a note|");
  const std::string within = BoardElement("2", line);
  const std::vector<std::string> lines =
      Read(UsebioText(line + BoardElement("1", line + Element("NOTE", line) + within + line)))
          .data.lin;
  ASSERT_EQ(lines.size(), 3U) << "those of board 1, and that of board 2";
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_NE(lines[i].find(i < 2 ? "Board 1" : "Board 2"), std::string::npos) << lines[i];
  }
}

TEST(Usebio, RefusesWhatItCannotRepresent) {
  const std::string session = "Only Single Session Imports supported";
  const std::string section = "Only Single Section Imports supported";
  const std::array<std::pair<std::string, std::string>, 15> cases{{
      {UsebioText("<SESSION_CONT>2</SESSION_CONT>"), session},
      {UsebioText("<SESSION_COUNT>3</SESSION_COUNT>"), session},
      {UsebioText("<SESSION/><SESSION/>"), session},
      {UsebioText("<SECTION_COUNT>2</SECTION_COUNT>"), section},
      {UsebioText("<SESSION><SECTION_COUNT>2</SECTION_COUNT></SESSION>"), section},
      {UsebioText("<SESSION><SECTION/><SECTION/></SESSION>"), section},
      {"<RESULTS><BOARD/></RESULTS>", kUnexpectedFormat},
      {"<USEBIO><CLUB/><EVENT><DATE/></EVENT></USEBIO>", kUnexpectedFormat},
      {"<USEBIO><CLUB><CLUB_NAME/></CLUB><EVENT/></USEBIO>", kUnexpectedFormat},
      {UsebioText(BoardElement("one", TravellerLine(LinData(1)))), kUnexpectedFormat},
      {UsebioText("<BOARD>" + TravellerLine(LinData(1)) + "</BOARD>"), kUnexpectedFormat},
      {UsebioText(BoardElement("99999999999", "")), kUnexpectedFormat},
      {"<USEBIO><CLUB>", kLoadFailed},
      {"", kLoadFailed},
      {UsebioText("<A>") + "</B>", kLoadFailed},
  }};
  for (const auto& [text, message] : cases) EXPECT_EQ(Refusal(text), message) << text;
}

TEST(Usebio, ARecordThatCannotBeDecodedIsLeftOutAndItsResultStays) {
  const UsebioResults results = Read(UsebioText(BoardElement(
      "7", TravellerLine("qx|o7|pn|a%2", Element("TRICKS", "9")) + TravellerLine("qx|o7|"))));
  EXPECT_EQ(results.leftOut.broken, std::vector<int>{7});
  ASSERT_EQ(results.data.lin.size(), 2U);
  EXPECT_TRUE(results.data.lin[0].starts_with("rh||ah|Board 7|qent|9|qens|"));
}

TEST(Usebio, HostileFilesEndWithAMessage) {
  std::string deep;
  std::string end;
  for (int level = 0; level < 10'000; ++level) {
    deep += "<PARTICIPANTS>";
    end += "</PARTICIPANTS>";
  }
  EXPECT_EQ(Refusal(UsebioText(deep + Pair("1", "NS", "a", "b") + end)), kLoadFailed);
  EXPECT_EQ(Refusal(UsebioText(deep)), kLoadFailed);

  const std::string huge(std::size_t{50} * 1024 * 1024, 'x');
  EXPECT_EQ(Refusal(UsebioText("<PARTICIPANTS><TEAM TEAM_NAME=\"" + huge + "\"/></PARTICIPANTS>",
                               "TEAMS")),
            kUnexpectedFormat);
  std::string many;
  for (std::size_t line = 0; line <= kMaxUsebioLines; ++line) many += "<TRAVELLER_LINE/>";
  EXPECT_EQ(Refusal(UsebioText(BoardElement("1", many))), kUnexpectedFormat);
}

TEST(Usebio, EntitiesOfTheDocumentTypeAreNotExpanded) {
  std::string bomb =
      "<!DOCTYPE USEBIO [<!ENTITY a0 \"ha\"><!ENTITY f SYSTEM \"file:///etc/passwd\">";
  for (int level = 1; level < 30; ++level) {
    const std::string inner = "&a" + std::to_string(level - 1) + ";";
    bomb.append("<!ENTITY a").append(std::to_string(level));
    bomb.append(" \"").append(inner).append(inner).append("\">");
  }
  const LinFile data =
      Read(bomb + "]>" + test::UsebioBody(Element("PARTICIPANTS", Pair("1", "NS", "&a29;", "&f;"))))
          .data;
  EXPECT_EQ(data.names, std::vector<std::string>{"1 NS &a29; & &f;"});
}

TEST(Usebio, AbbreviationsAndInitials) {
  EXPECT_EQ(GetAbbreviations("MATCH_POINTS"), "MP");
  EXPECT_EQ(GetAbbreviations("IMPS"), "IMP");
  EXPECT_EQ(GetAbbreviations("CROSS_IMPS"), "XIMP");
  EXPECT_EQ(GetAbbreviations("BUTLER_IMPS"), "BIMP");
  EXPECT_EQ(GetInitials("Ann Mary O'Neil"), "AMO");
  EXPECT_EQ(GetInitials("  \u00c9va  \u0141uk "), "\u00c9\u0141");
  EXPECT_EQ(GetInitials(" "), "");
}

}  // namespace
}  // namespace tricklet
