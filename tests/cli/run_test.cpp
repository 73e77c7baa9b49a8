#include "tests/cli/command_line.h"
#include "tests/support/fake_solver.h"

namespace tricklet::test {
namespace {

TEST_F(CommandLine, ImportsListsShowsAndExports) {
  const std::string in = "--library Caf\u00e9 ";
  EXPECT_EQ(Answer(in + "import @in.pbn"), "0 Hand 7 has been saved to the library - Caf\u00e9\n");
  EXPECT_EQ(Answer("libraries"), "0 Caf\u00e9\t1\n");
  EXPECT_EQ(Answer(in + "boards --long"), "0 7\tSouth\tAll vul\t1NT by South\tyes\n");
  EXPECT_EQ(Run(in + "show 7"), 0);
  for (const char* part : {"Dealer South, All vulnerable", "\u2660 Q 10 6 2",
                           "Contract: 1NT by South", "Makeable contracts", "South    13"}) {
    EXPECT_NE(out.find(part), std::string::npos) << part << "\n" << out;
  }
  EXPECT_FALSE(store.Read("macro", "library")) << "a library is for one call only";
}

TEST_F(CommandLine, CarriesBoardsThroughTheTypes) {
  ASSERT_EQ(Run("--library A import @in.pbn"), 0);
  ASSERT_EQ(Run("--library A export 7 7 @out.lin"), 0);
  EXPECT_EQ(Answer("--library B import-lin @out.lin"),
            "0 Hand 7 has been saved to the library - B\n");
  EXPECT_EQ(Run("--library B import-lin @in.pbn"), 1) << "the type is asked for";
  ASSERT_EQ(Run("--library B export 7 7 @out.pbn"), 0);
  EXPECT_NE(ReadFile(File("out.pbn")).find(" QT62.KQ62.K93.K8 "), std::string::npos);
  EXPECT_EQ(Answer("--library C import @out.lin"), "0 Hand 7 has been saved to the library - C\n");
}

TEST_F(CommandLine, DecidesAboutAnImportByOptions) {
  const std::string hands =
      "A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96\"]\n";
  WriteFile(File("two.pbn"), "%\n[Board \"7\"]\n[Deal \"N:" + hands + "[Board \"7\"]\n[Deal \"E:" +
                                 hands + "[Contract \"1NT\"]\n[Declarer \"S\"]\n[Result \"7\"]\n");
  const std::pair<const char*, const char*> kCases[] = {
      {"--library A import @two.pbn",
       "0 two.pbn: lost: 1 of 2 deals, 1 result\n"
       "2 hands (7-7) have been saved to the library - A\n"},
      {"--library A boards", "0 7\n"},
      {"import --into B --numbers first @two.pbn",
       "0 Hand 7 has been saved to the library - B\n1 board of the file was left out: 7\n"},
      {"import --new C --numbers from=998 @two.pbn",
       "0 2 hands (998-999) have been saved to the library - C\n"},
      {"import --new C @two.pbn", "1 C already exists\nPlease choose a different name\n"},
      {"import --dry-run --new D --results drop @two.pbn",
       "0 two.pbn\tPBN\t2 boards found, 2 can be stored\n"
       "7\t7\t♠A873 ♥AJ83 ♦52 ♣Q32\tnew\n"
       "7\t8\t♠KJ4 ♥T95 ♦T76 ♣AJ96\tanother board 7 of the file: "
       "stored as the next free number\n"},
      {"libraries", "0 A\t1\nB\t1\nC\t2\n"},
  };
  for (const auto& [line, answer] : kCases) {
    std::string said = Answer(line);
    if (const auto at = said.find(File("")); at != std::string::npos)
      said.erase(at, File("").size());
    EXPECT_EQ(said, answer) << line;
  }
  EXPECT_EQ(Run("import --numbers from=0 @two.pbn"), 2);
  EXPECT_EQ(store.Read("macro", "library").value_or("Default"), "Default") << "which is open";
  std::filesystem::create_directories(Root() / "Empty");
  for (const char* line : {"import --into Empty @gone.pbn", "import --into Made @gone.pbn"}) {
    EXPECT_EQ(Run(line), 1);
  }
  EXPECT_TRUE(Exists("root/Empty")) << "it was there before";
  EXPECT_FALSE(Exists("root/Made"));
}

TEST_F(CommandLine, ShowsNothingThatATerminalObeys) {
  std::filesystem::create_directories(Root() / "a\x1b]0;b\nc\u202ed");
  EXPECT_EQ(Answer("libraries"), "0 a ]0;b c d\t0\n");
  EXPECT_EQ(Answer("--library a\x1b\u009b show 7"),
            "1 There is no library a   in " + store.Read("macro", "filelocation").value() + "\n");
  EXPECT_EQ(Run("\x1bshow 7"), 2);
  EXPECT_EQ(err.find('\x1b'), std::string::npos);
}

TEST_F(CommandLine, IsNotDoneWhenItsOutputIsLost) {
  for (const char* command : {"settings", "libraries", "--help"}) {
    std::istringstream in;
    std::ostream lost(nullptr);
    std::ostringstream kept;
    EXPECT_EQ(cli::Run({command}, store, {in, lost, kept, false, interrupted, {}}), 1) << command;
    EXPECT_EQ(kept.str(), "The output could not be written\n") << command;
  }
}

TEST_F(CommandLine, PrintsDiagrams) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  ASSERT_EQ(Run("diagram 7 --hands NS"), 0);
  EXPECT_NE(out.find("\u2660 A873\n"), std::string::npos) << out;
  EXPECT_EQ(out.find("KJ4"), std::string::npos) << "West's " << out;
  const std::string north = "<span style=\"color:#1b2468\">\u2660</span> A873<br>";
  ASSERT_EQ(Run("diagram --html"), 0);
  EXPECT_NE(out.find(north), std::string::npos) << out;
  EXPECT_EQ(Answer("diagram 8"), "1 There is no board 8 in library Default\n");
  EXPECT_EQ(Run("diagram 7 --hands X"), 2);
}

TEST_F(CommandLine, KeepsNotesThatGoOutWithTheBoard) {
  Run("--library L import @in.pbn");
  EXPECT_EQ(Answer("--library L notes 7"), "0 ");
  EXPECT_EQ(Answer("--library L notes 7 --set 'Count {first}'"), "0 ");
  EXPECT_EQ(Answer("--library L notes 7"), "0 Count {first}\n");
  EXPECT_EQ(Run("--library L export 7 7 @out.pbn"), 0);
  EXPECT_EQ(Run("--library M import --results keep @out.pbn"), 0) << err;
  EXPECT_EQ(Answer("--library M notes 7"), "0 Count (first)\n");
  EXPECT_EQ(Answer("--library L notes 7 --clear"), "0 ");
  EXPECT_EQ(Answer("--library L notes 7"), "0 ");
  EXPECT_EQ(Answer("--library L notes 8 --set x"), "1 There is no board 8 in library L\n");
}

TEST_F(CommandLine, ReviewsAPlay) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  WriteFile(
      Root() / "Default" / "LIN.txt",
      "[BoardScoringMethod]\nMATCH_POINTS\n[LIN]\n"
      "pn|A,B,C,D|ah|Board 7|qens|-50|\n"
      "pn|A,B,C,D|md|1SQT62HKQ62DK93CK8,SKJ4HT95DT76CAJ96,SA873HAJ83D52CQ32,S95H74DAQJ84CT754|"
      "ah|Board 7|mb|4S|mb|d|mb|p|mb|p|mb|p|pc|HT|pc|H3|pc|C5|qent|9|\n");
  FakeSolver fake;  // the side on play has eight tricks to come, however many are left
  fake.solveCards = [](const SolverPosition&) { return std::vector<CardScore>{{{}, 8}}; };
  solver = [&fake]() -> Solver& { return fake; };
  EXPECT_EQ(Answer("review 7"),
            "0 Contract: 4Sx S\n1\tW\tH10\t8\t3\n2\tN\tH3\t5\t3\nN\t3\nE\t0\nS\t0\nW\t3\n"
            "Double-dummy: every card seen. Declarer could make 5 tricks and made 9, which cost "
            "East-West 0 %.\n"
            "Card 3, the \u26635 by East, is against the rules: reviewed up to there\n");
  EXPECT_EQ(Answer("review 7 --table 1"), "1 There is no review of an incomplete deal\n");
  EXPECT_EQ(Answer("review 7 --table 3"), "1 There is no table 3 of board 7\n");
  EXPECT_EQ(Answer("review 8"), "1 There is no play of board 8\n");
  EXPECT_EQ(Run("review 7 --table 0"), 2);
}

TEST_F(CommandLine, ShowsTheTravellerOfABoardAndTheRanking) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  for (const char* command : {"traveller 7", "ranking"}) {
    EXPECT_EQ(Answer(command), "1 The library Default has no results\n");
  }
  WriteFile(Root() / "Default" / "LIN.txt",
            "[BoardScoringMethod]\nMATCH_POINTS\n"
            "[Names]\n1 NS J\u00fcrg & Bo\n12 EW Cy & D\x1Bi\n[LIN]\n"
            "pn|Bo,D\x1Bi,J\u00fcrg,Cy|ah|Board 7|qent|10||qens|620||qenc|4S||qend|S||qenl|HT|\n"
            "pn|E,F,G,H|ah|Board 7|qent|5||qens|-800||qenc|3NTx||qend|N||qenl|C2|\n"
            "pn|I,J,K,L|ah|Board 7|\n"
            "pn|M,N,O,P|ah|Board 7|qens|-50||qenc|42|\n"
            "pn|Q,R,S,T|ah|Board 7|qens|A6040||qenc|4S||qend|S|\n");
  EXPECT_EQ(
      Answer("traveller 7"),
      "0 NS  EW  Contract    By  Lead  Tricks    NS+  EW+   MP   MP  Names\n"
      " 1  12  4S          S   \u266510       10    620         4    0  J\u00fcrg & Bo v Cy & D i\n"
      "        3NTx        N   \u26632         5         800    0    4  G & E v H & F\n"
      "        Not played                                          K & I v L & J\n"
      "                                              50    2    2  O & M v P & N\n"
      "        4S          S                 A6040       2.4  1.6  S & Q v T & R\n");
  EXPECT_EQ(Answer("traveller 8"), "1 There are no results of board 8\n");
  EXPECT_EQ(Answer("ranking"),
            "0 North-South\n"
            "Place  No  Boards   MP       %  Names\n"
            "   1    1       1    4  100.00  J\u00fcrg & Bo\n"
            "   2            1  2.4   60.00  S & Q\n"
            "   3            1    2   50.00  O & M\n"
            "   4            1    0    0.00  G & E\n"
            "\n"
            "East-West\n"
            "Place  No  Boards   MP       %  Names\n"
            "   1            1    4  100.00  H & F\n"
            "   2            1    2   50.00  P & N\n"
            "   3            1  1.6   40.00  T & R\n"
            "   4   12       1    0    0.00  Cy & D i\n");
}

TEST_F(CommandLine, QuestionsAreAnsweredByOptionTerminalOrCaution) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  EXPECT_EQ(Run("import @in.pbn"), 1) << "nobody there: not overwritten";
  EXPECT_EQ(Run("--no import @in.pbn"), 1);
  EXPECT_EQ(Run("--yes import @in.pbn"), 0);
  EXPECT_EQ(Run("import @in.pbn", "what?\ny\n", true), 0);
  EXPECT_EQ(Run("import @in.pbn", "n\n", true), 1);
  EXPECT_EQ(Run("import @in.pbn", "\n", true), 1) << "Enter is the safe answer";
  EXPECT_NE(err.find("would be replaced where the file has the same number: "), std::string::npos);
  EXPECT_NE(err.find(" [y/N] "), std::string::npos);
  EXPECT_EQ(Run("import @in.pbn", "", true), 1) << "the terminal was closed";
  interrupted = true;
  EXPECT_EQ(Run("--yes import @in.pbn"), 1);
  EXPECT_NE(err.find("No hands have been saved"), std::string::npos);
}

TEST_F(CommandLine, RefusesWithAMessageAndOne) {
  for (const char* line :
       {"boards", "--root @gone libraries", "show 3", "export 1 2 @x.pbn", "settings Colour",
        "settings CardDesign 9", "settings library ../up", "--library a/b import @in.pbn",
        "--library New import @gone.pbn", "score 8S N 9", "score 4S Q 9"}) {
    EXPECT_EQ(Run(line), 1) << line;
    EXPECT_NE(err, "") << line;
    EXPECT_EQ(out, "") << line;
  }
  EXPECT_FALSE(Exists("root/New"));
  EXPECT_EQ(Run("--library New import @gone.pbn @in.pbn"), 1);
  EXPECT_EQ(Answer("--library New boards"), "0 7\n");
  store.Write("macro", "filelocation", "");
  EXPECT_EQ(Run("boards"), 1) << "no root at all";
}

TEST_F(CommandLine, MakesARootThatIsNamedButNoOther) {
  store.Write("macro", "filelocation", File("gone/"));
  EXPECT_EQ(Answer("import @in.pbn"), "1 There is no folder " + File("gone/") + "\n");
  EXPECT_EQ(Answer("--root @gone/deep import @in.pbn"),
            "1 There is no folder " + File("gone/deep/") + "\n");
  EXPECT_FALSE(Exists("gone"));
  EXPECT_EQ(Run("--root @gone import @in.pbn"), 0);
}

TEST_F(CommandLine, WrongUsageIsTwo) {
  const std::pair<const char*, const char*> kWrong[] = {
      {"", "A subcommand is required"},
      {"autcion 1", "autcion 1"},
      {"import --unknown", "--unknown"},
      {"show", "N is required"},
      {"show 0", "1 to 999"},
      {"generate 1 1000", "1 to 999"},
      {"--yes --no boards", "excludes"},
      {"export 1 2", "FILE is required"},
      {"score 4S N 14", "0 to 13"},
      {"score 4S N 9 --board 1 --vul all", "excludes"},
      {"edit 4", "subcommand"},
      {"edit 4 swap N", "2 required"}};
  for (const auto& [line, told] : kWrong) {
    EXPECT_EQ(Run(line), 2) << line;
    EXPECT_NE(err.find(told), std::string::npos) << err;
  }
  EXPECT_EQ(Run("--help"), 0);
  EXPECT_NE(out, "");
}

TEST_F(CommandLine, AuctionsAreShownReplacedOrRefused) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  EXPECT_EQ(Run("auction 7"), 0);
  EXPECT_NE(out.find("1NT by South"), std::string::npos) << out;
  const std::pair<std::string, std::string> kRefused[] = {
      {"1s 1h", "1H by West: the bid is not sufficient\n"},
      {"1s xx", "Rdbl by West: there is no double of the opponents to redouble\n"},
      {"1s x x", "Dbl by North: the bid is doubled already\n"},
      {"x", "Dbl by South: there is no bid of the opponents to double\n"},
      {"1s p p p p", "Pass by South: the auction is over\n"},
      {"1s p", "The auction is not complete: North is to call\n"},
      {"1s huh", "huh is no call\n"}};
  for (const auto& [calls, told] : kRefused) EXPECT_EQ(Answer("auction 7 " + calls), "1 " + told);
  EXPECT_EQ(Run("--yes auction 7 1h x xx ap"), 0);
  EXPECT_EQ(Answer("boards --long"), "0 7\tSouth\tAll vul\t1Hxx by South\tyes\n");
  EXPECT_EQ(Run("auction 7 ap"), 1) << "nobody there to say that it may be overwritten";
}

TEST_F(CommandLine, PlaysCards) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  EXPECT_EQ(Run("play 7 sk S3 s9 SQ h10 HA"), 0);
  EXPECT_EQ(Answer("play 7 sk S3 s9 SQ st"), "1 \u266010 cannot be played by West now\n");
  EXPECT_EQ(Run("play 7 sk S3 s9 SQ HT --undo 1 --claim w"), 0);
  for (const char* line : {"play 7 sk S8 --undo 1", "play 7 sk --claim north --undo 1"}) {
    EXPECT_EQ(Run(line), 0);
    EXPECT_NE(out.find("West played \u2660K\nNorth is on play\n"), std::string::npos) << out;
  }
  EXPECT_EQ(Run("play 7 --claim west"), 0);
  EXPECT_NE(out.find("1NT-7 by South : EW +700\n"), std::string::npos) << out;
  EXPECT_EQ(Answer("play 7 sk --claim north --undo 3"), "1 Not so many cards were played\n");
  EXPECT_EQ(Answer("play 7 --claim north"), "1 North is not on play\n");
}

TEST_F(CommandLine, ClaimsSomeTricksAndPlaysTheBestCards) {
  ASSERT_EQ(Run("import @in.pbn"), 0);
  FakeSolver fake;
  fake.solveCards = [](const SolverPosition&) {
    return std::vector<CardScore>{{{Suit::Spades, Rank::King}, 8}};
  };
  solver = [&fake]() -> Solver& { return fake; };
  EXPECT_EQ(Run("play 7 --best 1"), 0);
  EXPECT_EQ(out.find("West plays \u2660K\n"), 0) << out;
  EXPECT_EQ(Run("play 7 --claim south --tricks 9"), 0);
  EXPECT_EQ(out.find("Claim 9: West can hold it to 5\n"), 0) << out;
  EXPECT_NE(out.find("1NT+2 by South"), std::string::npos) << out;
  EXPECT_EQ(Run("play 7 --claim south --tricks 9 --undo 1"), 0);
  EXPECT_NE(out.find("West is on play\n"), std::string::npos) << out;
  EXPECT_EQ(Answer("play 7 sk S3 s9 SQ --claim n --tricks 13"),
            "1 A claim by North is of 0 to 12 tricks\n");
  EXPECT_EQ(Run("play 7 --tricks 9"), 2);
  EXPECT_EQ(Run("play 7 --best none"), 2);
  fake.missing = "No solver is here";
  fake.solveCards = {};
  EXPECT_EQ(Answer("play 7 --best all"), "1 No solver is here\n");
}

TEST_F(CommandLine, Scores) {
  EXPECT_EQ(Answer("score 4Sx N 9 --board 5"), "0 4Sx-1 by North : EW +200\n");
  EXPECT_EQ(Answer("score 1c** e 7"), "0 1Cxx= by East : EW +230\n");
  EXPECT_EQ(Answer("score 6N West 12 --vul ALL"), "0 6NT= by West : EW +1440\n");
}

TEST_F(CommandLine, SettingsAreListedReadAndWritten) {
  EXPECT_EQ(Run("settings"), 0);
  EXPECT_NE(out.find("CardDesign=1\n"), std::string::npos);
  EXPECT_NE(out.find("HGFont1/Size=15\n"), std::string::npos);
  EXPECT_EQ(Run("settings cardDesign 2"), 0);
  EXPECT_EQ(Answer("settings CardDesign"), "0 2\n");
  EXPECT_EQ(Run("settings filelocation hands"), 0);
  EXPECT_EQ(store.Read("macro", "filelocation"),
            FolderText(std::filesystem::current_path() / "hands"));
  EXPECT_EQ(Run("settings updateaddress https://example.org/new.txt"), 0);
  EXPECT_EQ(Run("settings UpdateAddress http://example.org/new.txt"), 1);
  EXPECT_EQ(store.Read("Tricklet", "UpdateAddress"), "https://example.org/new.txt");
  const std::string top = PathText(folder.Path().root_path());
  const std::string refused = "1 Please choose a folder, not " + top + "\n";
  EXPECT_EQ(Answer("settings filelocation " + top), refused);
  EXPECT_EQ(Answer("--root " + top + " --library New import @in.pbn"), refused);
}

}  // namespace
}  // namespace tricklet::test
