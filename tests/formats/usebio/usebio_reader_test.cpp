#include "formats/usebio/usebio_reader.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "tests/support/usebio.h"

namespace tricklet {
namespace {

using test::BoardElement;
using test::Element;
using test::LinData;
using test::OneLineBoard;
using test::TravellerLine;
using test::UsebioText;

using Strings = std::vector<std::string>;

/// The message with which the text is refused.
std::string Refusal(const std::string& text) {
  const auto read = ReadUsebio(text);
  const auto* refusal = std::get_if<UsebioRefusal>(&read);
  return refusal != nullptr ? refusal->message : "accepted";
}

/// What the text holds; it must be accepted.
UsebioResults Read(const std::string& text) {
  auto read = ReadUsebio(text);
  if (auto* results = std::get_if<UsebioResults>(&read)) return std::move(*results);
  ADD_FAILURE() << Refusal(text);
  return {};
}

/// The one LIN line of a board of this one traveller line.
std::string LinLineOf(const std::string& travellerLine) {
  const auto lines = Read(UsebioText(BoardElement("7", travellerLine))).data.lin;
  EXPECT_EQ(lines.size(), 1U);
  return lines.empty() ? "" : lines[0];
}

TEST(Usebio, TravellerLineBecomesARecordWithPrivateTags) {
  const std::string fields = Element("CONTRACT", "4Sx|qens|9") + Element("PLAYED_BY", "N") +
                             Element("LEAD", "H2") + Element("TRICKS", "10") +
                             Element("SCORE", "+590") + Element("NS_MATCH_POINTS", "6.50") +
                             Element("EW_MATCH_POINTS", "1.5") + Element("TRICKS", "11") +
                             Element("NS_CROSS_IMP_POINTS", "-12.10") + Element("LEAD", "H3");
  EXPECT_EQ(LinLineOf(TravellerLine("qx|o7|pn|A%2323,B,C,D|rh||ah|Board%207|pg||", fields)),
            "qx|o7|pn|A,B,C,D|rh||ah|Board 7|pg||qent|10|qens|+590||qenns|6.5||qenew|1.5||qenc|4Sx "
            "qens 9||qend|N||qenl|H2||qeni|-12.1|")
      << "no value leaves its field, and the first of a name counts";
  const std::string none = "qent||qens|||qenns|0||qenew|0||qenc|||qend|||qenl|||qeni|0|";
  EXPECT_EQ(LinLineOf(TravellerLine("qx|o7|pg|")), "qx|o7|pg|" + none);
  EXPECT_EQ(LinLineOf("<TRAVELLER_LINE/>"), "rh||ah|Board 7|" + none);
  EXPECT_EQ(LinLineOf(TravellerLine("pn|a,b,c,d")), "rh||ah|Board 7|pn|a,b,c,d|" + none);
  EXPECT_EQ(LinLineOf(TravellerLine("qx|o7|ah|Board 12|pg||")),
            "rh||ah|Board 7|qx|o7|ah|Board 12|pg||" + none)
      << "the file's board counts, not the record's";
}

TEST(Usebio, ARecordThatCannotBeDecodedIsLeftOutAndItsResultStays) {
  const UsebioResults results = Read(UsebioText(BoardElement(
      "7", TravellerLine("qx|o7|pn|a%2", Element("TRICKS", "9")) + TravellerLine("qx|o7|"))));
  EXPECT_EQ(results.leftOut.broken, std::vector<int>{7});
  ASSERT_EQ(results.data.lin.size(), 2U);
  EXPECT_TRUE(results.data.lin[0].starts_with("rh||ah|Board 7|qent|9|qens|"));
}

TEST(Usebio, NumbersAreInShortestSingleForm) {
  const std::pair<const char*, const char*> kCases[] = {
      {"62.50", "62.5"}, {"62.5", "62.5"}, {"0", "0"},       {"007", "7"},
      {"01.5", "1.5"},   {"12.", "12"},    {".5", "0.5"},    {"1.0.5", "1"},
      {"-7", "-7"},      {"0.1", "0.1"},   {"5 imps", "5"},  {"1000000", "1000000"},
      {"+3", "3"},       {" -0.0 ", "0"},  {"average", "0"}, {"33.333333333", "33.333332"},
      {"1e99", "0"},     {"nan", "0"},     {"", "0"},        {"16777217", "16777216"}};
  for (const auto& [text, number] : kCases) {
    const std::string line = LinLineOf(TravellerLine("qx|o7|", Element("NS_MATCH_POINTS", text)));
    EXPECT_NE(line.find("|qenns|" + std::string(number) + "||"), std::string::npos) << line;
  }
}

TEST(Usebio, TextMayBeDividedAndEscaped) {
  const std::pair<const char*, const char*> kCases[] = {
      {"\n <![CDATA[qx|o7|nt|a<b|]]><!-- x -->pg||\n", "qx|o7|nt|a<b|pg||qent|"},
      {"qx|o7|<!-- -->nt|a<![CDATA[<]]>b|<!-- -->pg||", "qx|o7|nt|a<b|pg||qent|"},
      // Escaped bytes are UTF-8 where they can be, else Latin-1.
      {"qx|o7|nt|&amp;%26&#233;\u00e9%E9%C3%A9|", "qx|o7|nt|&&\u00e9\u00e9\u00e9\u00e9|qent|"}};
  for (const auto& [data, line] : kCases) {
    EXPECT_TRUE(LinLineOf(TravellerLine(data)).starts_with(line)) << data;
  }
}

TEST(Usebio, ScoringWord) {
  // Event type, elements; words and abbreviations of the boards and, of a team event, of the teams
  const std::tuple<const char*, std::string, const char*, const char*> kCases[] = {
      {"PAIRS", "", "MATCH_POINTS MP", ""},
      {"CROSS_IMP", Element("PAIRWISE_SCORING_METHOD", "CROSS_IMPS"), "CROSS_IMPS XIMP", ""},
      {"PAIRS", Element("BOARD_SCORING_METHOD", "BUTLER_IMPS"), "BUTLER_IMPS BIMP", ""},
      {"PAIRS", Element("SCORING_METHOD", "IMPS"), "IMPS IMP", ""},
      {"PAIRS", Element("SCORING_METHOD", "VP") + Element("BOARD_SCORING_METHOD", "CROSS_IMPS"),
       "CROSS_IMPS XIMP", ""},
      {"PAIRS", Element("SESSION", Element("BOARD_SCORING_METHOD", " IMPS\n")), "IMPS IMP", ""},
      {"TEAMS", "", "IMPS IMP", "IMPS IMP"},
      {"TEAMS", Element("SCORING_METHOD", "VP"), "IMPS IMP", "VP VP"},
      {"TEAMS", Element("BOARD_SCORING_METHOD", "PAB") + Element("SCORING_METHOD", "IMPS"),
       "PAB PAB", "IMPS IMP"}};
  for (const auto& [eventType, elements, board, team] : kCases) {
    const LinFile data = Read(UsebioText(elements, eventType)).data;
    EXPECT_EQ(data.boardScoringMethod + " " + data.boardScoringAbb, board) << elements;
    EXPECT_EQ(data.teamEvent
                  ? data.teamEvent->teamScoringMethod + " " + data.teamEvent->teamScoringAbb
                  : "",
              team)
        << elements;
  }
}

TEST(Usebio, CrossImpsAreShownAsSuch) {
  const std::tuple<std::string, const char*, const char*> kCases[] = {
      {Element("NS_CROSS_IMP_POINTS", "2.5") + Element("EW_CROSS_IMP_POINTS", "-2"), "2.5", "XIMP"},
      {Element("EW_CROSS_IMP_POINTS", "-2.50"), "2.5", "XIMP"},
      {Element("EW_CROSS_IMP_POINTS", "0"), "0", "XIMP"},
      {Element("NS_BUTLER_POINTS", "-4"), "-4", "IMP"}};
  for (const auto& [points, imps, abbreviation] : kCases) {
    for (const std::string word : {"IMPS", "MATCH_POINTS"}) {
      const LinFile data = Read(UsebioText(Element("SCORING_METHOD", word) +
                                           BoardElement("7", TravellerLine("qx|o7|", points))))
                               .data;
      EXPECT_TRUE(data.lin.at(0).ends_with("|qeni|" + std::string(imps) + "|")) << data.lin[0];
      EXPECT_EQ(data.boardScoringMethod, word);
      EXPECT_EQ(data.boardScoringAbb, word == "IMPS" ? abbreviation : "MP");
    }
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
  const Strings names{"1 NS Ann O'Neil & Zo\u00eb & Co", "2 EW Robot & Cy"};
  EXPECT_EQ(
      Read(UsebioText(Element("PARTICIPANTS", pairs) + Pair("9", "NS", "no", "one"))).data.names,
      names);
  const std::string teams = Element(
      "SESSION", Element("PARTICIPANTS", "<TEAM TEAM_ID=\"4\" TEAM_NAME=\"Hearts\">" + pairs +
                                             "</TEAM><TEAM><TEAM_NAME>Spades</TEAM_NAME></TEAM>"));
  const LinFile data = Read(UsebioText(teams, "TEAMS")).data;
  EXPECT_EQ(data.names, names);
  EXPECT_EQ(data.teamEvent.value_or(LinTeams()).teams, (Strings{"4 Hearts", "Spades"}));
  const std::string nested = Element("PARTICIPANTS", Element("PARTICIPANTS", pairs));
  EXPECT_EQ(Read(UsebioText(nested)).data.names, names) << "each pair once";
}

TEST(Usebio, ALineWithoutPlayersHasThoseOfItsPairs) {
  const std::string separate = Pair("1", "NS", "Ann", "Bob") + Pair("1", "EW", "Cy", "Di") +
                               Pair("2", "EW", "Smith, Eve", "Robot");
  const std::string together = Pair("1", "", "Ann", "Bob") + Pair("2", "NS", "Cy", "Di");
  const std::string ending = Pair("9NS", "", "Ann", "Bob") + Pair("9", "EW", "Cy", "Di");
  const std::string free = Pair("1", "", "Ann", "Bob") + Pair("2", "", "Cy", "Di");
  const std::string placed = Pair("1", "NS", "Ann", "Bob") + Pair("2", "EW", "Cy", "Di");
  const auto winners = [](const char* count) { return Element("WINNER_TYPE", count); };
  // Pairs, the numbers of the line's, its LIN data and direction; the players, South first
  const std::tuple<std::string, const char*, const char*, std::string, const char*, std::string>
      kCases[] = {{separate, "1", "1", "", "", "Bob,Di,Ann,Cy"},
                  {separate, "1", "2", "qx|o7|pn|,,,|pg||", "", "Bob,Robot,Ann,Smith Eve"},
                  {separate, "3", "2", "", "", ",Robot,,Smith Eve"},
                  {separate, "3", "4", "", "", "none"},
                  {separate, "1", "1", "qx|o7|pn|,,Zoe|pg||", "", "none"},
                  {together, "2", "1", "", "", "Di,Bob,Cy,Ann"},
                  {together, "1", "2", "", "", "Bob,Di,Ann,Cy"},
                  {ending, "9NS", "9EW", "", "", "Bob,Di,Ann,Cy"},
                  {free, "1", "2", "", "EW", "Di,Bob,Cy,Ann"},
                  {free, "1", "2", "", "NS", "Bob,Di,Ann,Cy"},
                  {placed, "1", "2", "", "EW", "Bob,Di,Ann,Cy"},
                  {placed + winners("1"), "1", "2", "", "EW", "Di,Bob,Cy,Ann"},
                  {free + winners("2"), "1", "2", "", "EW", "Bob,Di,Ann,Cy"},
                  {free + "<TEAM/>", "1", "2", "", "EW", "Bob,Di,Ann,Cy"}};
  for (const auto& [pairs, ns, ew, linData, direction, players] : kCases) {
    const bool winner = pairs.find("WINNER") != std::string::npos;
    const bool teams = pairs.find("TEAM") != std::string::npos;
    const std::string line =
        TravellerLine(linData, Element("NS_PAIR_NUMBER", ns) + Element("EW_PAIR_NUMBER", ew) +
                                   Element("DIRECTION", direction));
    const std::string lists = Element("PARTICIPANTS", pairs);
    const std::string event = winner ? pairs.substr(pairs.find("<WINNER")) + lists : lists;
    const LinFile data =
        Read(UsebioText(BoardElement("7", line) + event, teams ? "TEAMS" : "PAIRS")).data;
    const std::string record = (linData.empty() ? "rh||ah|Board 7|" : linData) +
                               (players == "none" ? "" : "pn|" + std::string(players) + "|") +
                               "qent|";
    EXPECT_TRUE(data.lin.at(0).starts_with(record)) << data.lin[0] << " is not " << record;
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
  const Strings lines =
      Read(UsebioText(line + BoardElement("1", line + Element("NOTE", line) + within + line)))
          .data.lin;
  ASSERT_EQ(lines.size(), 3U) << "those of board 1, and that of board 2";
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_NE(lines[i].find(i < 2 ? "Board 1" : "Board 2"), std::string::npos) << lines[i];
  }
}

/// So many elements inside one another, two of them those of every file.
std::string Deep(int levels, const std::string& name) {
  std::string begin;
  std::string end;
  for (int level = 2; level < levels; ++level) {
    begin += "<" + name + ">";
    end += "</" + name + ">";
  }
  return UsebioText(begin + end);
}

TEST(Usebio, RefusesWhatItCannotRepresent) {
  const std::string session = "Only Single Session Imports supported";
  const std::string section = "Only Single Section Imports supported";
  const std::string unexpected = "Unexpected XML format";
  const std::string failed =
      "XML File Load failed - a website might not be available or the file "
      "is in the wrong format";
  const std::string line = TravellerLine(LinData(1));
  std::string lines;
  for (std::size_t count = 0; count <= kMaxUsebioLines; ++count) lines += "<TRAVELLER_LINE/>";
  const std::string huge(std::size_t{50} * 1024 * 1024, 'x');
  const std::pair<std::string, std::string> kCases[] = {
      {UsebioText("<SESSION_CONT>2</SESSION_CONT>"), session},
      {UsebioText("<SESSION_COUNT>3</SESSION_COUNT>"), session},
      {UsebioText("<SESSION/><SESSION/>"), session},
      {UsebioText("<SECTION_COUNT>2</SECTION_COUNT>"), section},
      {UsebioText("<SESSION><SECTION_COUNT>2</SECTION_COUNT></SESSION>"), section},
      {UsebioText("<SESSION><SECTION/><SECTION/></SESSION>"), section},
      {"<RESULTS><BOARD/></RESULTS>", unexpected},
      {"<USEBIO><CLUB/><EVENT><DATE/></EVENT></USEBIO>", unexpected},
      {"<USEBIO><CLUB><CLUB_NAME/></CLUB><EVENT/></USEBIO>", unexpected},
      {UsebioText(BoardElement("one", line)), unexpected},
      {UsebioText("<BOARD>" + line + "</BOARD>"), unexpected},
      {UsebioText(BoardElement("99999999999", "")), unexpected},
      {UsebioText(BoardElement("1", lines)), unexpected},
      {UsebioText("<PARTICIPANTS><TEAM TEAM_NAME=\"" + huge + "\"/></PARTICIPANTS>", "TEAMS"),
       unexpected},
      {"<USEBIO><CLUB>", failed},
      {"", failed},
      {UsebioText("<A>") + "</B>", failed},
      {Deep(kMaxXmlDepth, "A"), "accepted"},
      {Deep(kMaxXmlDepth + 1, "A"), failed},
      {Deep(10'000, "PARTICIPANTS"), failed}};
  for (const auto& [text, message] : kCases) {
    EXPECT_EQ(Refusal(text), message) << text.substr(0, 200);
  }
}

TEST(Usebio, EntitiesOfTheDocumentTypeAreNotExpanded) {
  std::string bomb =
      "<!DOCTYPE USEBIO [<!ENTITY a0 \"ha\"><!ENTITY f SYSTEM \"file:///etc/passwd\">";
  for (int level = 1; level < 30; ++level) {
    const std::string inner = "&a" + std::to_string(level - 1) + ";";
    bomb += "<!ENTITY a" + std::to_string(level) + " \"" + inner + inner + "\">";
  }
  const std::string pair = Element("PARTICIPANTS", Pair("1", "NS", "&a29;", "&f;"));
  EXPECT_EQ(Read(bomb + "]>" + test::UsebioBody(pair)).data.names, Strings{"1 NS &a29; & &f;"});
}

TEST(Usebio, InitialsOfAName) {
  EXPECT_EQ(GetInitials("Ann Mary O'Neil"), "AMO");
  EXPECT_EQ(GetInitials("  \u00c9va  \u0141uk "), "\u00c9\u0141");
  EXPECT_EQ(GetInitials(" "), "");
}

}  // namespace
}  // namespace tricklet
