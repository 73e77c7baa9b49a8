#include "formats/usebio/usebio_reader.h"

#include <sstream>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "formats/lin/lin_record.h"
#include "formats/results/lin_boards.h"
#include "tests/support/usebio.h"

namespace tricklet::test {
namespace {

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
  const Strings lines = Read(UsebioText(BoardElement("7", travellerLine))).data.lin;
  EXPECT_EQ(lines.size(), 1U);
  return lines.at(0);
}

/// An element for each name and value: "LEAD=H2 TRICKS=10". A value has no blank.
std::string Elements(const std::string& values) {
  std::istringstream words(values);
  std::string text;
  for (std::string word; words >> word;) {
    const auto equals = word.find('=');
    text += Element(word.substr(0, equals), word.substr(equals + 1));
  }
  return text;
}

TEST(Usebio, TravellerLineBecomesARecordWithPrivateTags) {
  // No value leaves its field, and the first of a name counts.
  const std::string fields = Elements(
      "CONTRACT=4Sx|qens|9 PLAYED_BY=N LEAD=H2 TRICKS=10 SCORE=+590 NS_MATCH_POINTS=6.50 "
      "EW_MATCH_POINTS=1.5 TRICKS=11 NS_CROSS_IMP_POINTS=-12.10 LEAD=H3");
  const std::string none = "qent||qens|||qenns|0||qenew|0||qenc|||qend|||qenl|||qeni|0|";
  const std::pair<std::string, std::string> kCases[] = {
      {TravellerLine("qx|o7|pn|A%2323,B,C,D|rh||ah|Board%207|pg||", fields),
       "qx|o7|pn|A,B,C,D|rh||ah|Board 7|pg||qent|10|qens|+590||qenns|6.5||qenew|1.5||qenc|4Sx "
       "qens 9||qend|N||qenl|H2||qeni|-12.1|"},
      {TravellerLine("qx|o7|pg|"), "qx|o7|pg|" + none},
      {"<TRAVELLER_LINE/>", "rh||ah|Board 7|" + none},
      {TravellerLine("qx|o7|pn|a%2"), "rh||ah|Board 7|" + none},  // it cannot be decoded
      {TravellerLine("\n <![CDATA[qx|o7|nt|a<b|]]><!-- x -->pg||\n"), "qx|o7|nt|a<b|pg||" + none},
      {TravellerLine("qx|o7|<!-- -->nt|a<![CDATA[<]]>b|"), "qx|o7|nt|a<b|" + none},
      // Escaped bytes are UTF-8 where they can be, else Latin-1.
      {TravellerLine("qx|o7|nt|&amp;%26&#233;\u00e9%E9%C3%A9|"),
       "qx|o7|nt|&&\u00e9\u00e9\u00e9\u00e9|" + none},
      {TravellerLine("pn|a,b,c,d"), "rh||ah|Board 7|pn|a,b,c,d|" + none},
      // The file's board counts, not the record's.
      {TravellerLine("qx|o7|ah|Board 12|pg||"), "rh||ah|Board 7|qx|o7|ah|Board 12|pg||" + none}};
  for (const auto& [line, record] : kCases) EXPECT_EQ(LinLineOf(line), record);
}

TEST(Usebio, NumbersAreInShortestSingleForm) {
  const std::pair<const char*, const char*> kCases[] = {
      {"62.50", "62.5"}, {"0", "0"},       {"01.5", "1.5"}, {"12.", "12"},
      {".5", "0.5"},     {"1.0.5", "1"},   {"-7", "-7"},    {"0.1", "0.1"},
      {"5 imps", "5"},   {"+3", "3"},      {" -0.0 ", "0"}, {"33.333333333", "33.333332"},
      {"1e99", "0"},     {"average", "0"}, {"nan", "0"},    {"16777217", "16777216"}};
  for (const auto& [text, number] : kCases) {
    const std::string line = LinLineOf(TravellerLine("qx|o7|", Element("NS_MATCH_POINTS", text)));
    EXPECT_NE(line.find("|qenns|" + std::string(number) + "||"), std::string::npos) << line;
  }
}

TEST(Usebio, ScoringWord) {
  // Event type, elements; words and abbreviations of the boards and, of a team event, of the teams
  const std::tuple<const char*, std::string, const char*> kCases[] = {
      {"PAIRS", "", "MATCH_POINTS MP"},
      {"CROSS_IMP", Elements("PAIRWISE_SCORING_METHOD=CROSS_IMPS"), "CROSS_IMPS XIMP"},
      {"PAIRS", Elements("BOARD_SCORING_METHOD=BUTLER_IMPS"), "BUTLER_IMPS BIMP"},
      {"PAIRS", Elements("SCORING_METHOD=IMPS"), "IMPS IMP"},
      {"PAIRS", Elements("SCORING_METHOD=VP BOARD_SCORING_METHOD=IMPS"), "IMPS IMP"},
      {"PAIRS", Element("SESSION", Element("BOARD_SCORING_METHOD", " IMPS\n")), "IMPS IMP"},
      {"TEAMS", "", "IMPS IMP, IMPS IMP"},
      {"TEAMS", Elements("SCORING_METHOD=VP"), "IMPS IMP, VP VP"},
      {"TEAMS", Elements("BOARD_SCORING_METHOD=PAB SCORING_METHOD=IMPS"), "PAB PAB, IMPS IMP"}};
  for (const auto& [eventType, elements, words] : kCases) {
    const LinFile data = Read(UsebioText(elements, eventType)).data;
    std::string found = data.boardScoringMethod + " " + data.boardScoringAbb;
    if (const auto& team = data.teamEvent) {
      found += ", " + team->teamScoringMethod + " " + team->teamScoringAbb;
    }
    EXPECT_EQ(found, words) << eventType << elements;
  }
}

TEST(Usebio, CrossImpsAreShownAsSuch) {
  // Scoring word and points; the IMPs kept and the abbreviation
  const std::tuple<const char*, const char*, const char*> kCases[] = {
      {"IMPS", "NS_CROSS_IMP_POINTS=2.5 EW_CROSS_IMP_POINTS=-2", "2.5 XIMP"},
      {"IMPS", "EW_CROSS_IMP_POINTS=-2.50", "2.5 XIMP"},
      {"IMPS", "EW_CROSS_IMP_POINTS=0", "0 XIMP"},
      {"IMPS", "NS_BUTLER_POINTS=-4", "-4 IMP"},
      {"MATCH_POINTS", "EW_CROSS_IMP_POINTS=-2.50", "2.5 MP"}};
  for (const auto& [word, points, shown] : kCases) {
    const std::string line = TravellerLine("qx|o7|", Elements(points));
    const LinFile data =
        Read(UsebioText(Element("SCORING_METHOD", word) + BoardElement("7", line))).data;
    EXPECT_EQ(
        ParseLinRecord(data.lin.at(0)).results[LinResultTag::Qeni] + " " + data.boardScoringAbb,
        shown);
    EXPECT_EQ(data.boardScoringMethod, word);
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
  const std::string nested = Element("PARTICIPANTS", Element("PARTICIPANTS", pairs));
  const std::string outside = Pair("9", "NS", "no", "one");
  EXPECT_EQ(Read(UsebioText(nested + outside)).data.names, names) << "each pair once";
  const std::string teams = Element(
      "SESSION", Element("PARTICIPANTS", "<TEAM TEAM_ID=\"4\" TEAM_NAME=\"Hearts\">" + pairs +
                                             "</TEAM><TEAM><TEAM_NAME>Spades</TEAM_NAME></TEAM>"));
  const LinFile data = Read(UsebioText(teams, "TEAMS")).data;
  EXPECT_EQ(data.names, names);
  EXPECT_EQ(data.teamEvent.value_or(LinTeams()).teams, (Strings{"4 Hearts", "Spades"}));
}

TEST(Usebio, ALineWithoutPlayersHasThoseOfItsPairs) {
  const std::string separate = Pair("1", "NS", "Ann", "Bob") + Pair("1", "EW", "Cy", "Di") +
                               Pair("2", "EW", "Smith, Eve", "Robot");
  const std::string together = Pair("1", "", "Ann", "Bob") + Pair("2", "NS", "Cy", "Di");
  const std::string ending = Pair("9NS", "", "Ann", "Bob") + Pair("9", "EW", "Cy", "Di");
  const std::string free = Pair("1", "", "Ann", "Bob") + Pair("2", "", "Cy", "Di");
  const std::string placed = Pair("1", "NS", "Ann", "Bob") + Pair("2", "", "Cy", "Di");
  // Event and pairs, the line's numbers and direction, its LIN data; what becomes of the last
  const std::tuple<const char*, std::string, const char*, const char*, const char*> kCases[] = {
      {"PAIRS", separate, "1 1", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS", separate, "1 2", "pn|,,,|pg||", "pn|,,,|pg||pn|Bob,Robot,Ann,Smith Eve|"},
      {"PAIRS", separate, "3 2", "", "pn|,Robot,,Smith Eve|"},
      {"PAIRS", separate, "3 4", "", ""},
      {"PAIRS", separate, "1 1", "pn|,,Zoe|pg||", "pn|,,Zoe|pg||"},
      {"PAIRS", together, "2 1", "", "pn|Di,Bob,Cy,Ann|"},
      {"PAIRS", ending, "9NS 9EW", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS", free, "1 2 EW", "", "pn|Di,Bob,Cy,Ann|"},
      {"PAIRS", free, "1 2 NS", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS", placed, "1 2 EW", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS WINNER_TYPE=1", placed, "1 2 EW", "", "pn|Di,Bob,Cy,Ann|"},
      {"PAIRS WINNER_TYPE=2", free, "1 2 EW", "", "pn|Bob,Di,Ann,Cy|"},
      {"TEAMS", free, "1 2 EW", "", "pn|Bob,Di,Ann,Cy|"}};
  for (const auto& [event, pairs, seats, linData, record] : kCases) {
    std::istringstream words(seats);
    std::string ns, ew, direction;
    words >> ns >> ew >> direction;
    const std::string line = TravellerLine(
        linData,
        Elements("NS_PAIR_NUMBER=" + ns + " EW_PAIR_NUMBER=" + ew + " DIRECTION=" + direction));
    const std::string type(event, 5);
    const std::string text = UsebioText(
        BoardElement("7", line) + Elements(event + type.size()) + Element("PARTICIPANTS", pairs),
        type);
    const std::string found = Read(text).data.lin.at(0);
    EXPECT_EQ(found.substr(0, found.find("qent|")), "rh||ah|Board 7|" + std::string(record));
  }
}

TEST(Usebio, ALineIsOfTheBoardThatItIsRightInside) {
  const std::string line = TravellerLine("nt|a note|");
  const std::string within = BoardElement("2", line);
  const Strings lines =
      Read(UsebioText(line + BoardElement("1", line + Element("NOTE", line) + within + line)))
          .data.lin;
  std::string boards;
  for (const std::string& found : lines) boards += std::to_string(BoardNumberOfLin(found)) + " ";
  EXPECT_EQ(boards, "1 1 2 ");
}

/// So many elements inside one another, two of them those of every file.
std::string Deep(int levels, const std::string& name) {
  std::string text;
  for (int level = 2; level < levels; ++level) text += "<" + name + ">";
  for (int level = 2; level < levels; ++level) text += "</" + name + ">";
  return UsebioText(text);
}

TEST(Usebio, RefusesWhatItCannotRepresent) {
  const std::string session = "Only Single Session Imports supported";
  const std::string section = "Only Single Section Imports supported";
  const std::string unexpected = "Unexpected XML format";
  const std::string failed =
      "XML File Load failed - a website might not be available or the file is in the wrong format";
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
      {UsebioText(BoardElement("one", "")), unexpected},
      {UsebioText("<BOARD><TRAVELLER_LINE/></BOARD>"), unexpected},
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
  for (const auto& [text, message] : kCases)
    EXPECT_EQ(Refusal(text), message) << text.substr(0, 200);
}

TEST(Usebio, EntitiesOfTheDocumentTypeAreNotExpanded) {
  std::string bomb =
      "<!DOCTYPE USEBIO [<!ENTITY a0 \"ha\"><!ENTITY f SYSTEM \"file:///etc/passwd\">";
  for (int level = 1; level < 30; ++level) {
    const std::string inner = "&a" + std::to_string(level - 1) + ";";
    bomb += "<!ENTITY a" + std::to_string(level) + " \"" + inner + inner + "\">";
  }
  const std::string pair = Element("PARTICIPANTS", Pair("1", "NS", "&a29;", "&f;"));
  EXPECT_EQ(Read(bomb + "]>" + UsebioBody(pair)).data.names, Strings{"1 NS &a29; & &f;"});
}

TEST(Usebio, InitialsOfAName) {
  EXPECT_EQ(GetInitials("Ann Mary O'Neil"), "AMO");
  EXPECT_EQ(GetInitials("  \u00c9va  \u0141uk "), "\u00c9\u0141");
  EXPECT_EQ(GetInitials(" "), "");
}

}  // namespace
}  // namespace tricklet::test
