// A session as a web page: what of foreign files gets into it, and where it is written.
#include <gtest/gtest.h>

#include "analysis/get_dds.h"
#include "bench/club_session.h"
#include "formats/pbn/pbn_reader.h"
#include "publish/web/json_writer.h"
#include "publish/web/publish_web.h"
#include "publish/web/web_data.h"
#include "publish/web/web_page.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

using bench::ClubSession;
using bench::RandomSession;

TEST(JsonString, CanEndNoElementAndNoLine) {
  const std::vector<std::pair<std::string, std::string>> kTexts{
      {"Ann & Bob", R"("Ann \u0026 Bob")"},
      {"</script><!--", R"("\u003c/script\u003e\u003c!--")"},
      {"a\"b\\c", R"("a\"b\\c")"},
      {std::string("\0\n\x1f\x7f", 4), R"("\u0000\u000a\u001f\u007f")"},
      {"x\u2028y\u2029z\u2027", "\"x\\u2028y\\u2029z\u2027\""},
      {"Jos\xE9 \u738b \u2660", "\"Jos\u00e9 \u738b \u2660\""},
  };
  for (const auto& [text, json] : kTexts) EXPECT_EQ(JsonString(text), json);
}

TEST(JsonWriter, SeparatesValuesAndRoundsNumbers) {
  JsonWriter json;
  json.BeginObject().Key("a").BeginArray().Number(1).Number(66.666).Number(-0.001).EndArray();
  json.Key("b").BeginObject().EndObject().Key("c").Null().EndObject();
  EXPECT_EQ(json.Text(), R"({"a":[1,66.67,0],"b":{},"c":null})");
}

TEST(Initials, AreTheFirstLettersOfTheWords) {
  const std::vector<std::pair<std::string, std::string>> kNames{
      {"Anna Berg", "A.B."},
      {"Jean-Paul  Smith", "J.P.S."},
      {"\u00c5se \u00d8y", "\u00c5.\u00d8."},
      {"\u738b\u5c0f\u660e", "\u738b."},
      {"(Bob) 'Di' O'Neil", "B.D.O."},
      {"", ""}};
  for (const auto& [name, initials] : kNames) EXPECT_EQ(Initials(name), initials);
}

Published PublishedOf(const ClubSession& session) {
  Published published;
  published.results = session.results;
  for (const Board& board : session.boards) {
    PublishedBoard one;
    one.board = board;
    one.complete = true;
    one.traveller = MakeTraveller(session.results, board.boardNumber);
    published.boards.push_back(one);
  }
  return published;
}

int Count(std::string_view text, std::string_view part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

TEST(WebPage, TakesForeignTextsAsText) {
  const auto hostile = [](int, Seat seat) {
    return std::string(seat == Seat::North ? "</script><b onload=x>"
                                           : "<img src=x onerror=x>&amp;");
  };
  const ClubSession session = RandomSession(1, 2, 1, hostile);
  const WebChoices choices{"</title><script>alert(1)</script>{{data}}", "", NamesShown::Full};
  const std::string page = WebPage(PublishedOf(session), choices);
  const std::string plain = WebPage({}, {"Plain", "", NamesShown::Full});
  for (const char* part : {"<script", "</script", "<b", "<img", "</title", "\"scoring\""}) {
    EXPECT_EQ(Count(page, part), Count(plain, part)) << part;
  }
  EXPECT_TRUE(IsWebPage(page));
  EXPECT_FALSE(IsWebPage("<!DOCTYPE html><html><head><meta name=\"generator\" content=\"Other\">"));
}

TEST(WebPage, HoldsNoMoreOfThePlayersThanIsWanted) {
  const auto nameOf = [](int pair, Seat seat) {
    return "Vorname" + std::to_string(pair) + " Nachname" + std::string(SeatName[seat]);
  };
  ClubSession session = RandomSession(2, 3, 5, nameOf);
  session.boards[0].calls.Add(Call::Unread(), "Vorname1 says");
  session.boards[1].calls.Clear();
  for (const char* tag : {"Adjusted by Vorname2", "A6040"}) {
    std::string& line = session.results.lin.at(tag[1] == 'd' ? 0 : 1);
    line.replace(line.find("|qens|"), 6, "|qens|" + std::string(tag));
  }
  Published published = PublishedOf(session);
  published.boards[0].notes = "Vorname3 forgot to alert";
  const ReportSource source{session.results, MakeTravellers(session.results), {}, {}};
  published.review = PublishedReview{MakeSessionReport(source, {}), {}};
  const auto holds = [&](NamesShown names, const char* part) {
    const WebChoices choices{"Club", "", names};
    return (WebPage(published, choices) + WebPbn(published, choices)).find(part) !=
           std::string::npos;
  };
  EXPECT_TRUE(holds(NamesShown::Full, "Vorname1 NachnameNorth"));
  for (const NamesShown names : {NamesShown::Initials, NamesShown::None}) {
    EXPECT_FALSE(holds(names, "orname"));
    EXPECT_FALSE(holds(names, "achname"));
    EXPECT_TRUE(holds(names, "A6040")) << "a ruling names nobody";
    EXPECT_TRUE(holds(names, "1 ")) << "numbers stay";
  }
  EXPECT_TRUE(holds(NamesShown::Initials, "V.N. \\u0026 V.N."));
  EXPECT_FALSE(holds(NamesShown::None, "V.N."));
  EXPECT_FALSE(holds(NamesShown::Full, "forgot"));
  const WebChoices noted{"Club", "", NamesShown::None, true};
  EXPECT_EQ(Count(WebPage(published, noted) + WebPbn(published, noted), "forgot"), 2);
}

TEST(WebData, EndsAPlayBeforeItsFirstIllegalCard) {
  ClubSession session = RandomSession(1, 9, 3);
  auto& lines = session.results.lin;
  std::erase_if(lines, [](const std::string& each) { return Count(each, "|pc|") == 0; });
  lines.resize(1);
  std::string& line = lines[0];
  const auto third = line.find("|pc|", line.find("|pc|", line.find("|pc|") + 1) + 1);
  const std::string first = line.substr(line.find("|pc|"), 7);
  line.replace(third, 7, first);  // the first card once more
  const std::string data = WebData(PublishedOf(session), {});
  const auto play = data.find("\"play\":\"") + 8;
  EXPECT_EQ(data.find('"', play), play + 4) << "two cards";
  EXPECT_NE(data.find("The record ends here, as "), std::string::npos);
}

TEST(WebPage, OfAWholeSessionIsBelowAMegabyte) {
  const std::string page = WebPage(PublishedOf(RandomSession(36, 15, 2)), {});
  EXPECT_LT(page.size(), 1'000'000U);
  EXPECT_GT(Count(page, "\"leaders\":"), 400) << "with the plays";
}

using PublishTest = LibraryTest;

TEST_F(PublishTest, WritesPageAndBoardsAndReplacesItsOwn) {
  PutBoard(2);
  PutBoard(7);
  const fs::path out = folder.Path() / "new" / "site";
  const PublishChoices choices{{1, 5}, "My <club>", NamesShown::Full, out};
  for (int time = 0; time < 2; ++time) {
    host.ExpectTellWith("no double-dummy solver");
    EXPECT_EQ(PublishWebPage(session, choices), out / "index.html");
  }
  const std::string page = ReadFile(out / "index.html");
  EXPECT_NE(page.find("<title>My &lt;club&gt;</title>"), std::string::npos);
  EXPECT_EQ(Count(page, "\"number\":2"), 1);
  EXPECT_EQ(Count(page, "\"number\":7"), 0) << "not in the range";
  const std::string pbn = ReadFile(out / "boards.pbn");
  EXPECT_EQ(Count(pbn, "[Board \"2\"]"), 1);
  EXPECT_EQ(Count(pbn, "[Deal "), 1);
  EXPECT_EQ(std::distance(fs::directory_iterator(out), fs::directory_iterator()), 2);
}

TEST_F(PublishTest, ReplacesWhatOthersHaveWrittenOnlyWhenAsked) {
  PutBoard(1);
  const fs::path out = folder.Path() / "site";
  for (const char* name : {"index.html", "boards.pbn"}) {
    WriteFile(out / name, "mine");
    PublishChoices choices{{}, "", NamesShown::Full, out};
    host.ExpectAskWith(name, Answer::No);
    EXPECT_FALSE(PublishWebPage(session, choices));
    EXPECT_EQ(ReadFile(out / name), "mine");
    choices.replaceForeign = true;
    host.ExpectTellWith("no double-dummy solver");
    EXPECT_TRUE(PublishWebPage(session, choices));
    EXPECT_EQ(host.recycled.back(), name);
    fs::remove(out / "index.html");
    fs::remove(out / "boards.pbn");
  }
}

TEST_F(PublishTest, LeavesNothingWhereItCannotBeDone) {
  const fs::path out = folder.Path() / "site";
  host.ExpectTell(kNothingToPublish);
  EXPECT_FALSE(PublishWebPage(session, {{}, "", NamesShown::Full, out}));
  EXPECT_FALSE(fs::exists(out));
  PutBoard(1);
  WriteFile(out, "a file");
  host.ExpectTellWith("site");
  EXPECT_FALSE(PublishWebPage(session, {{}, "", NamesShown::Full, out}));
  EXPECT_EQ(ReadFile(out), "a file");
}

TEST_F(PublishTest, ATitleIsProposedAgainForItsOwnLibraryAlone) {
  PutBoard(3);
  PutBoard(9);
  FindFiles(session);
  PublishChoices choices = ProposedPublish(session);
  EXPECT_EQ(choices.title, "Club");
  EXPECT_EQ(choices.boards, (BoardRange{3, 9}));
  choices.title = "Tuesday";
  choices.names = NamesShown::Initials;
  choices.report = true;
  choices.folder = folder.Path();
  RememberPublish(session, choices);
  session.settings = LoadSettings(store);
  session.settings.library = "Club";
  EXPECT_EQ(ProposedPublish(session).title, "Tuesday");
  session.settings.library = "Other";
  choices = ProposedPublish(session);
  EXPECT_EQ(choices.title, "Other");
  EXPECT_EQ(choices.names, NamesShown::Initials);
  EXPECT_TRUE(choices.report);
  EXPECT_EQ(choices.folder, folder.Path());
}

}  // namespace
}  // namespace tricklet::test
