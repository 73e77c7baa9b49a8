#include "formats/usebio/usebio_contents.h"

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

#include "core/text.h"
#include "formats/results/lin_boards.h"
#include "formats/results/traveller.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/xml_text.h"
#include "tests/support/collector.h"
#include "tests/support/records.h"
#include "tests/support/words.h"

namespace tricklet::test {
namespace {

/// A deal of its own for each number.
HandTable DealOf(int number) {
  constexpr int kStep = 5;  // prime to 52, so that each card has its turn
  HandTable hands;
  for (int card = 0; card < kCardsInPack; ++card) {
    const int place = (card * kStep + number * 3) % kCardsInPack;
    AddCard(hands, Card::FromIndex(card), static_cast<Seat>(place / kCardsInHand));
  }
  return hands;
}

/// An element for each name and value: "NS_PAIR_NUMBER=1 SCORE=420"; a value has "_" for a blank.
std::string Elements(const std::string& values) {
  std::string text;
  for (const std::string& word : Words(values)) {
    const auto equals = word.find('=');
    std::string value = word.substr(equals + 1);
    std::replace(value.begin(), value.end(), '_', ' ');
    text += Element(word.substr(0, equals), value);
  }
  return text;
}

std::string Line(const std::string& values) {
  return Element("TRAVELLER_LINE", Elements(values));
}

/// The hand of `seat`, its suits in the order in which files have them.
std::string HandElement(const HandTable& hands, Seat seat, const std::string& name) {
  std::string text = Element("DIRECTION", name);
  constexpr PerSuit<const char*> kNames{{"SPADES", "HEARTS", "DIAMONDS", "CLUBS"}};
  for (const Suit suit : {Suit::Clubs, Suit::Diamonds, Suit::Hearts, Suit::Spades}) {
    int cards = 0;
    text += Element(kNames[suit], PBNFormat(hands[seat][suit], cards));
  }
  return Element("HAND", text);
}

std::string DealElement(int number, const HandTable& hands) {
  std::string text;
  for (const Seat seat : kAllSeats) text += HandElement(hands, seat, std::string(SeatName[seat]));
  return BoardElement(std::to_string(number), text);
}

std::string Handset(int first, int last, int shift = 0) {
  std::string text;
  for (int number = first; number <= last; ++number) {
    text += DealElement(number, DealOf(number + shift));
  }
  return Element("HANDSET", text);
}

std::string Played(int number, const std::string& lines) {
  return BoardElement(std::to_string(number), lines);
}

std::string Pair(const std::string& number, const std::string& direction, const std::string& first,
                 const std::string& second) {
  return Element("PAIR", Element("PAIR_NUMBER", number) + Element("DIRECTION", direction) +
                             Element("PLAYER", Element("PLAYER_NAME", first)) +
                             Element("PLAYER", Element("PLAYER_NAME", second)));
}

const std::string kLine =
    Line("NS_PAIR_NUMBER=1 EW_PAIR_NUMBER=2 CONTRACT=4S PLAYED_BY=N SCORE=420");

/// "Section A: 1:2 2-:1!": each section's games with the number of their tables; "-" a game without
/// cards, "!" one whose cards cannot be dealt, "?" an incomplete one.
std::string Outline(const FileContents& contents) {
  std::string text;
  for (const FoundSection& section : contents.sections) {
    text += (text.empty() ? "" : "; ") + section.name + ":";
    for (const FoundGame& game : section.games) {
      text += " " + game.label + (game.troubles.Has(DealTrouble::NoCards) ? "-" : "") +
              (game.troubles.Has(DealTrouble::Impossible) ? "!" : "") +
              (game.troubles.Has(DealTrouble::Incomplete) ? "?" : "") + ":" +
              std::to_string(game.records.size());
    }
  }
  return text;
}

/// The only section's traveller of a board.
Traveller TravellerOf(const FileContents& contents, int number) {
  const FoundSection& section = contents.sections.at(0);
  LinFile file = section.results;
  for (const FoundGame& game : section.games) {
    file.lin.insert(file.lin.end(), game.records.begin(), game.records.end());
  }
  return MakeTraveller(file, number);
}

std::string RowsText(const FileContents& contents, int number) {
  const Traveller traveller = TravellerOf(contents, number);
  std::string text = traveller.scoring;
  for (const TravellerRow& row : traveller.rows) {
    text += " | " + ReadLinBidding(row);
    for (const auto& points : row.points) text += " " + (points ? ShortestText(*points) : "-");
  }
  return text;
}

TEST(UsebioContents, SectionsGamesAndTables) {
  const std::string session = "<SESSION SESSION_ID=\"1\">";
  const auto sections = [](const std::string& a, const std::string& b) {
    return "<SECTION SECTION_ID=\"A\">" + a + "</SECTION><SECTION>" + b + "</SECTION>";
  };
  const std::string one = Played(1, kLine);
  const std::string two = Played(2, kLine + kLine);
  std::string thirty;
  std::string results;
  for (int number = 1; number <= 30; ++number) {
    HandTable hands = DealOf(number);
    if (number == 2) hands[Seat::East] = hands[Seat::North];
    thirty += DealElement(number, hands);
    results += " " + std::to_string(number) + (number == 2 ? "!" : "") + (number < 5 ? ":1" : ":0");
  }
  const std::string four = one + Played(2, kLine) + Played(3, kLine) + Played(4, kLine);
  const std::pair<std::string, std::string> kCases[] = {
      {UsebioText(one + two), ": 1-:1 2-:2"},
      {UsebioText(one + two + Handset(1, 3)), ": 1:1 2:2 3:0"},
      {UsebioText(four + Element("HANDSET", thirty)), ":" + results},
      {UsebioText("<SECTION_COUNT>2</SECTION_COUNT>" + session + sections(one, one + two) +
                  "</SESSION>" + Handset(1, 2)),
       "Section A: 1:1; Section 2: 1:1 2:2"},
      // What nobody played is there for all.
      {UsebioText(session + sections(one, one) + "</SESSION>" + Handset(1, 2)),
       "Section A: 1:1 2:0; Section 2: 1:1 2:0"},
      {UsebioText(session + one + Handset(1, 1) + "</SESSION><SESSION>" + one + "</SESSION>"),
       "Session 1: 1:1; Session 2: 1-:1"},
      {UsebioText(session + sections(one, one) + "</SESSION>" + session +
                  "<SECTION SECTION_ID=\"Section C\">" + one + "</SECTION></SESSION>"),
       "Session 1, Section A: 1-:1; Session 1, Section 2: 1-:1; Session 1, Section C: 1-:1"},
      {UsebioText(Element("SESSION", Handset(1, 2))), ": 1:0 2:0"},
      {UsebioText(one + Handset(1, 1) + Handset(1, 1, 7)), ": 1:1 1:0"},
      {UsebioText(BoardElement("07", kLine) + Played(7, kLine) + BoardElement("1204", kLine) +
                  BoardElement("5a", kLine) + BoardElement("", kLine) + BoardElement("", kLine)),
       ": 7-:2 1204-:1 5a-:1 -:1 -:1"},
      // Several matches, and tables of different deals
      {UsebioText(Element("SESSION", Element("MATCH", two) + Element("MATCH", two)), "TEAMS"),
       ": 2-:4"},
      {UsebioText(OneLineBoard(3) + OneLineBoard(3) + Handset(3, 3)), ": 3:0 3:2"},
      {UsebioText(Played(3, kLine + TravellerLine(LinData(3)))), ": 3:2"}};
  for (const auto& [text, outline] : kCases) {
    const FileContents contents = ReadUsebioContents(text);
    EXPECT_EQ(Outline(contents), outline);
    EXPECT_TRUE(contents.unread.empty()) << outline;
  }
}

TEST(UsebioContents, SectionsHaveTheirOwnPlayers) {
  const auto section = [](const std::string& id, const std::string& names) {
    return Element("SECTION",
                   Element("SECTION_ID", id) + Element("PARTICIPANTS", names) + Played(1, kLine));
  };
  const std::string text = section("A", Pair("1", "NS", "Ann", "Bob")) +
                           section("B", Pair("1", "NS", "Cy", "Di")) +
                           Element("PARTICIPANTS", Pair("2", "EW", "Eve", "Fay"));
  FileContents contents = ReadUsebioContents(UsebioText(Element("SESSION", text)));
  ASSERT_EQ(Outline(contents), "Section A: 1-:1; Section B: 1-:1");
  EXPECT_EQ(TravellerOf(contents, 1).rows.at(0).NamesText(), "Ann & Bob v Eve & Fay");
  std::swap(contents.sections[0], contents.sections[1]);
  EXPECT_EQ(TravellerOf(contents, 1).rows.at(0).NamesText(), "Cy & Di v Eve & Fay");
  EXPECT_EQ(contents.sections[0].results.names,
            (std::vector<std::string>{"1 NS Cy & Di", "2 EW Eve & Fay"}));
}

TEST(UsebioContents, WhatATableDidAndHowItIsScored) {
  const std::string players =
      Element("PARTICIPANTS", Pair("1", "NS", "Ann", "Bob") + Pair("2", "EW", "Cy", "Di"));
  const std::string solo =
      Element("PARTICIPANTS", Element("PLAYER", Elements("PLAYER_NUMBER=1 PLAYER_NAME=Ann")) +
                                  Element("PLAYER", Elements("PLAYER_NUMBER=2 PLAYER_NAME=Bob")) +
                                  Element("PLAYER", Elements("PLAYER_NUMBER=3 PLAYER_NAME=Cy")));
  const std::string pairs = "NS_PAIR_NUMBER=1 EW_PAIR_NUMBER=2 ";
  const std::string made = pairs + "CONTRACT=4_S PLAYED_BY=N LEAD=H10 TRICKS=10 SCORE=+420 ";
  const std::string word = "BOARD_SCORING_METHOD=";
  const std::string who = "Ann & Bob v Cy & Di ";
  const std::string played = "4S by North = +420 " + who;
  // The event, what is in it, the tables of the board, and their traveller
  const std::tuple<const char*, std::string, std::string, std::string> kCases[] = {
      {"PAIRS", players, Line(made + "NS_MATCH_POINTS=6.50 EW_MATCH_POINTS=1.5"),
       "MP | " + played + "6.5 1.5"},
      {"SWISS_PAIRS", players + Elements("SCORING_METHOD=VP"),
       Line(made + "NS_MATCH_POINTS=6 EW_MATCH_POINTS=2"), "MP | " + played + "6 2"},
      {"BUTLER_PAIRS", players, Line(made + "EW_BUTLER_POINTS=-4"), "BIMP | " + played + "4 -4"},
      {"PAIRS", players + Elements(word + "IMPS"), Line(made + "NS_BUTLER_POINTS=4.50"),
       "BIMP | " + played + "4.5 -4.5"},
      {"MP_PAIRS", players, Line(made + "NS_CROSS_IMP_POINTS=-12.10"),
       "XIMP | " + played + "-12.1 12.1"},
      {"PAIRS", players, Line(pairs + "CONTRACT=Passed_out SCORE=0"),
       "MP | All Pass " + who + "- -"},
      {"PAIRS", players, Line(pairs + "SCORE=Not_played"), "MP | Not played " + who + "- -"},
      // rulings: the points that the file gives, else a part of the top
      {"PAIRS", players, Line(pairs + "SCORE=A6060 NS_MATCH_POINTS=3 EW_MATCH_POINTS=3"),
       "MP | A6060 " + who + "3 3"},
      {"PAIRS", players, Line(made) + Line(made) + Line(pairs + "SCORE=60%/40%"),
       "MP | " + played + "1 1 | " + played + "1 1 | 60%/40% " + who + "1.2 0.8"},
      {"INDIVIDUAL", solo,
       Line("N_PLAYER_NUMBER=1 S_PLAYER_NUMBER=2 E_PLAYER_NUMBER=3 W_PLAYER_NUMBER=31 SCORE=A5050"),
       "MP | A5050 Ann & Bob v Cy & 31 - -"},
      {"PAIRS", "", Line(pairs + "SCORE=A5050"), "MP | A5050 1 v 2 - -"}};
  for (const auto& [event, inEvent, lines, traveller] : kCases) {
    const std::string text = UsebioText(inEvent + Played(7, lines) + Handset(7, 7), event);
    const FileContents contents = ReadUsebioContents(text);
    ASSERT_EQ(contents.sections.size(), 1U) << traveller;
    EXPECT_EQ(RowsText(contents, 7), traveller);
    const Traveller rows = TravellerOf(contents, 7);
    EXPECT_EQ(rows.rows.at(0).record.board.hands, DealOf(7)) << "the deal is in the record";
  }
}

TEST(UsebioContents, MatchesOfTeams) {
  // Each team numbers its pairs from 1 on.
  const auto team = [](const std::string& id, const std::string& name) {
    return "<TEAM TEAM_ID=\"" + id + "\">" + Pair("1", "NS", name + "1", name + "2") +
           Pair("1", "EW", name + "3", name + "4") + "</TEAM>";
  };
  const std::string lists = Element("PARTICIPANTS", team("8", "A") + team("9", "B"));
  const auto lines = [](const std::string& second) {
    return Line(
               "NS_PAIR_NUMBER=1 EW_PAIR_NUMBER=1 DIRECTION=NS CONTRACT=3N PLAYED_BY=N SCORE=400") +
           Line("NS_PAIR_NUMBER=1 EW_PAIR_NUMBER=1 DIRECTION=EW CONTRACT=3N PLAYED_BY=N " + second);
  };
  const std::string ours = " | 3NT by North +400 A1 & A2 v B3 & B4 ";
  const std::string theirs = "B1 & B2 v A3 & A4 ";
  const std::tuple<const char*, const char*, const char*, std::string> kCases[] = {
      {"IMPS", "SCORE=-50", "IMPS=10",
       "IMP" + ours + "10 -10 | 3NT by North -50 " + theirs + "-10 10"},
      {"IMPS", "SCORE=A6040", "IMPS=3",
       "IMP" + ours + "3 -3 | 3NT by North A6040 " + theirs + "-3 3"},
      {"PAB", "SCORE=430", "", "MP" + ours + "0 2 | 3NT by North +430 " + theirs + "2 0"},
      {"PAB", "SCORE=A6040", "TEAM_POINTS=2 OPPOSING_TEAM_POINTS=0",
       "MP" + ours + "2 0 | 3NT by North A6040 " + theirs + "0 2"}};
  for (const auto& [word, second, board, traveller] : kCases) {
    const std::string match = Elements("TEAM=8 OPPOSING_TEAM=9 START_BOARD_NUMBER=1") +
                              Played(1, Elements(board) + lines(second));
    const std::string other = Elements("TEAM=9 OPPOSING_TEAM=8") + Played(2, lines("SCORE=400"));
    const std::string session =
        Element("SESSION", Element("MATCH", match) + Element("MATCH", other));
    const std::string scoring = Element("BOARD_SCORING_METHOD", word);
    const FileContents contents =
        ReadUsebioContents(UsebioText(scoring + lists + session, "TEAMS"));
    ASSERT_EQ(Outline(contents), ": 1-:2 2-:2");
    std::string found = RowsText(contents, 1);
    // The contract says nothing about tricks that nobody counted.
    EXPECT_EQ(found, traveller) << word << second;
  }
}

TEST(UsebioContents, NotesAndHandsAsPeopleWriteThem) {
  const std::string hand =
      "<HAND DIRECTION=\"n\"><SPADES>10aKqJ</SPADES><HEARTS>-</HEARTS><DIAMONDS> 9 8</DIAMONDS>"
      "<CLUBS>void</CLUBS></HAND>";
  const std::string text =
      "<USEBIO>" + Element("NOTES", "All of it") + Element("CLUB", Element("CLUB_NAME", "Club")) +
      Element("EVENT", BoardElement("3", hand + Line("NS_PAIR_NUMBER=1 EW_PAIR_NUMBER=2 "
                                                     "SCORE=A5050 NOTES=Adjusted_score"))) +
      "</USEBIO>";
  const FileContents contents = ReadUsebioContents(text);
  ASSERT_EQ(Outline(contents), ": 3?:1");
  const FoundGame& game = contents.sections[0].games[0];
  EXPECT_EQ(game.notes, "All of it\n1 v 2: Adjusted score");
  const auto& north = game.board.hands[Seat::North];
  EXPECT_EQ(HoldingText(north[Suit::Spades]) + HoldingText(north[Suit::Diamonds]),
            " A K Q J 10 9 8");
  EXPECT_TRUE(north[Suit::Hearts].Empty() && north[Suit::Clubs].Empty());
}

TEST(UsebioContents, WhatCannotBeReadIsNamed) {
  const HandTable deal = DealOf(4);
  const std::string north = HandElement(deal, Seat::North, "N");
  const std::string huge(kMaxUsebioText + 1, 'x');
  // Boards; "board{what stands there} why" and the games that are left
  const std::tuple<std::string, const char*, const char*> kCases[] = {
      {BoardElement("one", kLine) + Played(2, kLine), "{one} no board number", ": 2-:1"},
      {BoardElement("-3", kLine), "{-3} no board number", ""},
      {BoardElement("99999999999", kLine), "{99999999999} no board number", ""},
      {BoardElement("4", north + north + kLine), "4{N} two hands of one direction", ": 4-:1"},
      {BoardElement("4", HandElement(deal, Seat::North, "up") + kLine),
       "4{up} a hand without a direction", ": 4-:1"},
      {BoardElement("4", Element("HAND", Elements("DIRECTION=N HEARTS=AXK"))),
       "4{North, HEARTS: AXK} no cards", ""},
      {BoardElement("4", Element("HAND", Elements("DIRECTION=N HEARTS=AA")) + kLine), "", ": 4!:1"},
      {BoardElement("4", TravellerLine("qx|o4|nt|a%2")),
       "4{qx|o4|nt|a%2} A percent escape is not complete", ": 4-:1"},
      {BoardElement("4", Line("LEAD=" + huge) + kLine), "4{} a text that is too long", ": 4-:1"},
      {BoardElement("4", north + TravellerLine(LinData(4))), "4{} hands that are no complete deal",
       ": 4:1"}};
  for (const auto& [boards, unread, games] : kCases) {
    const FileContents contents = ReadUsebioContents(UsebioText("\n" + boards));
    std::string found;
    for (const UnreadPart& part : contents.unread) {
      found += part.label + "{" + part.text + "} " + part.reason;
      EXPECT_EQ(part.line, 4);  // after the declaration, the club and the blank line
    }
    EXPECT_EQ(found, unread);
    EXPECT_EQ(Outline(contents), games) << unread;
  }
}

TEST(UsebioContents, WhatIsNoResultsFileHasTheImportsMessage) {
  for (const auto& [text, message] :
       {std::pair<std::string, const char*>{"", kXmlLoadFailed},
        {"<USEBIO><CLUB>", kXmlLoadFailed},
        {"<RESULTS><BOARD/></RESULTS>", kUnexpectedFormat},
        {"<USEBIO><EVENT><A/></EVENT></USEBIO>", kUnexpectedFormat}}) {
    const FileContents contents = ReadUsebioContents(text);
    EXPECT_TRUE(contents.sections.empty());
    ASSERT_EQ(contents.unread.size(), 1U);
    EXPECT_EQ(contents.unread[0].reason, message);
  }
}

/// What the import keeps of a file is among what is found, byte for byte.
TEST(UsebioContents, FindsWhatTheImportStores) {
  const std::string calls = "mb|1S|mb|2H!|mb|p|mb|p|mb|p|";
  const std::string two =
      BoardElement("2", TravellerLine("qx|o2|md|4SAK,HAK,DAK|mb|p|") +
                            TravellerLine(LinData(2, calls)) + TravellerLine(LinData(2)));
  const std::string names = Element("PARTICIPANTS", Pair("1", "NS", "Zo\u00eb", "Bob"));
  const std::string points = Elements("NS_PAIR_NUMBER=1 NS_CROSS_IMP_POINTS=2.50");
  const std::string kFiles[] = {
      UsebioText(OneLineBoard(1) + two + OneLineBoard(1) + names),
      UsebioText(OneLineBoard(5) + BoardElement("9", TravellerLine("qx||pn|a,b|", points)) + names +
                 Element("SESSION", Element("BOARD_SCORING_METHOD", "IMPS"))),
      // The first board has no auction, so none counts.
      UsebioText(BoardElement("3", TravellerLine(LinData(3, ""))) + two, "TEAMS"),
      UsebioText(BoardElement("1", TravellerLine(LinData(1, ""))) + two, "TEAMS"),
      EncodeXml({UsebioText(OneLineBoard(1) + names), XmlEncoding::Utf16Big})};
  for (const std::string& file : kFiles) {
    const auto read = ReadUsebio(DecodeXml(file).text);
    const auto& stored = std::get<UsebioResults>(read);
    Collector sink;
    ReadResult result;
    ReadLinCards(stored.data, stored.firstBoard, stored.lastBoard, sink, result);
    const FileContents contents = ReadUsebioContents(file);
    ASSERT_EQ(contents.sections.size(), 1U);
    LinFile found = contents.sections[0].results;
    for (const FoundGame& game : contents.sections[0].games) {
      found.lin.insert(found.lin.end(), game.records.begin(), game.records.end());
      const auto board = std::find_if(sink.boards.begin(), sink.boards.end(),
                                      [&](const Board& b) { return b.boardNumber == game.number; });
      ASSERT_EQ(board == sink.boards.end(), game.troubles.Has(DealTrouble::NoCards)) << file;
      if (board == sink.boards.end()) continue;
      EXPECT_EQ(game.board.hands, board->hands);
      EXPECT_EQ(CallsOf(game.board), CallsOf(*board));
      EXPECT_EQ(ContractLabel(game.board), ContractLabel(*board));
    }
    // Tables of one board are together.
    LinFile kept = stored.data;
    std::stable_sort(kept.lin.begin(), kept.lin.end());
    std::stable_sort(found.lin.begin(), found.lin.end());
    EXPECT_EQ(LinFileText(found), LinFileText(kept));
  }
}

/// Deals that are for all, in a file of many sections, and lists that are for all of them.
TEST(UsebioContents, RefusesWhatWouldGrowBeyondItsFile) {
  std::string sections;
  for (int count = 0; count < 2'000; ++count) sections += Element("SECTION", Played(1, kLine));
  std::string deals;
  for (int count = 2; count < 100; ++count) deals += DealElement(count, DealOf(count));
  std::string pairs;
  for (int count = 0; count < 2'000; ++count) pairs += Pair("1", "NS", "Ann", "Bob");
  for (const std::string& shared : {Element("HANDSET", deals), Element("PARTICIPANTS", pairs)}) {
    const FileContents contents = ReadUsebioContents(UsebioText(sections + shared));
    EXPECT_TRUE(contents.sections.empty());
    ASSERT_EQ(contents.unread.size(), 1U);
    EXPECT_EQ(contents.unread[0].reason, kUnexpectedFormat);
  }
}

}  // namespace
}  // namespace tricklet::test
