#include "formats/usebio/usebio_reader.h"

#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "formats/lin/lin_record.h"
#include "formats/results/lin_boards.h"
#include "tests/support/records.h"
#include "tests/support/words.h"

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
  return std::get<UsebioResults>(ReadUsebio(text));
}

/// The LIN line of a board of this one traveller line.
std::string LinLineOf(const std::string& travellerLine) {
  return Read(UsebioText(BoardElement("7", travellerLine))).data.lin.at(0);
}

/// An element for each name and value: "LEAD=H2 TRICKS=10". A value has no blank.
std::string Elements(const std::string& values) {
  std::string text;
  for (const std::string& word : Words(values)) {
    const auto equals = word.find('=');
    text += Element(word.substr(0, equals), word.substr(equals + 1));
  }
  return text;
}

/// A file of one event, "TEAMS SCORING_METHOD=VP": its type, its elements, and more of them.
std::string FileOf(const std::string& event, const std::string& more) {
  const std::string type = event.substr(0, event.find(' '));
  return UsebioText(Elements(event.substr(type.size())) + more, type);
}

TEST(Usebio, TravellerLineBecomesARecordWithPrivateTags) {
  // A bar in a value does not end its field, and of several elements of a name the first counts.
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
      {"62.50", "62.5"}, {"0", "0"},     {"01.5", "1.5"}, {"12.", "12"},
      {".5", "0.5"},     {"1.0.5", "1"}, {"5 imps", "5"}, {"16777217", "16777216"},
      {"+3", "3"},       {" -0.0", "0"}, {"nan", "0"},    {"average", "0"}};
  for (const auto& [text, number] : kCases) {
    const std::string line = LinLineOf(TravellerLine("qx|o7|", Element("NS_MATCH_POINTS", text)));
    EXPECT_NE(line.find("|qenns|" + std::string(number) + "||"), std::string::npos) << line;
  }
}

TEST(Usebio, Scoring) {
  // The event and a line's points. The word for the boards, its abbreviation and the IMPs kept; of
  // a team event the word for the match as well.
  const std::string session = "PAIRS SESSION=" + Element("BOARD_SCORING_METHOD", "IMPS");
  const std::tuple<std::string, const char*, const char*> kCases[] = {
      {"PAIRS", "", "MATCH_POINTS MP 0"},
      {"CROSS_IMP PAIRWISE_SCORING_METHOD=CROSS_IMPS", "", "CROSS_IMPS XIMP 0"},
      {"PAIRS BOARD_SCORING_METHOD=BUTLER_IMPS", "", "BUTLER_IMPS BIMP 0"},
      {"PAIRS SCORING_METHOD=VP BOARD_SCORING_METHOD=IMPS", "", "IMPS IMP 0"},
      {session, "", "IMPS IMP 0"},
      {"TEAMS", "", "IMPS IMP 0, IMPS IMP"},
      {"TEAMS SCORING_METHOD=VP", "", "IMPS IMP 0, VP VP"},
      {"TEAMS BOARD_SCORING_METHOD=PAB SCORING_METHOD=IMPS", "", "PAB PAB 0, IMPS IMP"},
      // cross-IMPs are shown as such
      {session, "NS_CROSS_IMP_POINTS=2.5 EW_CROSS_IMP_POINTS=-2", "IMPS XIMP 2.5"},
      {session, "EW_CROSS_IMP_POINTS=-2.50", "IMPS XIMP 2.5"},
      {session, "EW_CROSS_IMP_POINTS=0", "IMPS XIMP 0"},
      {session, "NS_BUTLER_POINTS=-4", "IMPS IMP -4"},
      {"PAIRS SCORING_METHOD=CLUB", "EW_CROSS_IMP_POINTS=-2.50", "CLUB CLUB 2.5"}};
  for (const auto& [event, points, scoring] : kCases) {
    const std::string line = TravellerLine("qx|o7|", Elements(points));
    const LinFile data = Read(FileOf(event, BoardElement("7", line))).data;
    std::string found = data.boardScoringMethod + " " + data.boardScoringAbb + " " +
                        ParseLinRecord(data.lin.at(0)).results[LinResultTag::Qeni];
    if (const auto& team = data.teamEvent) {
      found += ", " + team->teamScoringMethod + " " + team->teamScoringAbb;
    }
    EXPECT_EQ(found, scoring) << event << points;
  }
}

std::string Pair(const std::string& number, const std::string& direction, const std::string& first,
                 const std::string& second) {
  return Element("PAIR", Element("PAIR_NUMBER", number) + Element("DIRECTION", direction) +
                             Element("PLAYER", Element("PLAYER_NAME", first)) +
                             Element("PLAYER", Element("PLAYER_NAME", second)));
}

TEST(Usebio, NamesOfPairsAndTeams) {
  const std::string pairs =
      Pair("1", "NS", "Ann O'Neil", " Zo\u00eb &amp; Co ") + Pair("2", "EW", "Advanced BBO", "Cy");
  const std::string teams = "<TEAM TEAM_ID=\"4\" TEAM_NAME=\"Hearts\">" + pairs +
                            "</TEAM><TEAM><TEAM_NAME>Spades</TEAM_NAME></TEAM>";
  const std::string nested = Element("PARTICIPANTS", Element("PARTICIPANTS", teams));
  const std::string outside = Pair("9", "NS", "no", "one");
  const LinFile data = Read(UsebioText(Element("SESSION", nested) + outside, "TEAMS")).data;
  const Strings names{"1 NS Ann O'Neil & Zo\u00eb & Co", "2 EW Robot & Cy"};
  EXPECT_EQ(data.names, names) << "each pair once";
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
      {"PAIRS", separate, "1 1 NS", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS", separate, "1 2 NS", "pn|,,,|pg||", "pn|,,,|pg||pn|Bob,Robot,Ann,Smith Eve|"},
      {"PAIRS", separate, "3 2 NS", "", "pn|,Robot,,Smith Eve|"},
      {"PAIRS", separate, "3 4 NS", "", ""},
      {"PAIRS", separate, "1 1 NS", "pn|,,Zoe|pg||", "pn|,,Zoe|pg||"},
      {"PAIRS", together, "2 1 NS", "", "pn|Di,Bob,Cy,Ann|"},
      {"PAIRS", ending, "9NS 9EW NS", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS", free, "1 2 EW", "", "pn|Di,Bob,Cy,Ann|"},
      {"PAIRS", free, "1 2 NS", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS", placed, "1 2 EW", "", "pn|Bob,Di,Ann,Cy|"},
      {"PAIRS WINNER_TYPE=1", placed, "1 2 EW", "", "pn|Di,Bob,Cy,Ann|"},
      {"PAIRS WINNER_TYPE=2", free, "1 2 EW", "", "pn|Bob,Di,Ann,Cy|"},
      {"TEAMS", free, "1 2 EW", "", "pn|Bob,Di,Ann,Cy|"}};
  for (const auto& [event, pairs, seats, linData, record] : kCases) {
    const Strings seat = Words(seats);
    const std::string numbers = "NS_PAIR_NUMBER=" + seat.at(0) + " EW_PAIR_NUMBER=" + seat.at(1);
    const std::string line = TravellerLine(linData, Elements(numbers + " DIRECTION=" + seat.at(2)));
    const std::string more = BoardElement("7", line) + Element("PARTICIPANTS", pairs);
    const std::string found = Read(FileOf(event, more)).data.lin.at(0);
    EXPECT_EQ(found.substr(0, found.find("qent|")), "rh||ah|Board 7|" + std::string(record));
  }
}

TEST(Usebio, ALineIsOfTheBoardThatItIsRightInside) {
  const std::string line = TravellerLine("nt|a note|");
  const std::string within = line + Element("NOTE", line) + BoardElement("2", line) + line;
  const UsebioResults results = Read(UsebioText(line + BoardElement("1", within)));
  std::string boards;
  for (const std::string& found : results.data.lin) {
    boards += std::to_string(BoardNumberOfLin(found)) + " ";
  }
  EXPECT_EQ(boards, "1 1 2 ");
}

/// A file of `levels` elements inside one another, USEBIO and EVENT included.
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
  const std::string huge(kMaxUsebioText + 1, 'x');
  const std::pair<std::string, std::string> kCases[] = {
      {UsebioText("<SESSION_CONT>2</SESSION_CONT>"), session},
      {UsebioText("<SESSION_COUNT>3</SESSION_COUNT>"), session},
      {UsebioText("<SESSION/><SESSION/>"), session},
      {UsebioText("<SECTION_COUNT>2</SECTION_COUNT>"), section},
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
      {"", failed},
      {Deep(kMaxXmlDepth, "A"), "accepted"},
      {Deep(kMaxXmlDepth + 1, "A"), failed},
      {Deep(10'000, "PARTICIPANTS"), failed}};
  for (const auto& [text, message] : kCases)
    EXPECT_EQ(Refusal(text), message) << text.substr(0, 200);
}

TEST(Usebio, EntitiesOfTheDocumentTypeAreNotExpanded) {
  const std::string type =
      "<!DOCTYPE USEBIO [<!ENTITY a \"ha\"><!ENTITY f SYSTEM \"file:///etc/passwd\">]>";
  const std::string pair = Element("PARTICIPANTS", Pair("1", "NS", "&a;", "&f;"));
  EXPECT_EQ(Read(type + UsebioBody(pair)).data.names, Strings{"1 NS &a; & &f;"});
}

TEST(Usebio, InitialsOfAName) {
  EXPECT_EQ(GetInitials("Ann Mary O'Neil"), "AMO");
  EXPECT_EQ(GetInitials("  \u00c9va  \u0141uk "), "\u00c9\u0141");
  EXPECT_EQ(GetInitials(" "), "");
}

}  // namespace
}  // namespace tricklet::test
