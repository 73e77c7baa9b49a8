#include "tests/cli/command_line.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

const std::string kPbn =
    "% PBN 2.1\n[Board \"7\"]\n"
    "[Deal \"N:A873.AJ83.52.Q32 95.74.AQJ84.T754 QT62.KQ62.K93.K8 KJ4.T95.T76.AJ96\"]\n"
    "[Auction \"S\"]\n1NT AP\n[DoubleDummyTricks \"7AA557AA565337753377\"]\n";

class CommandLine : public test::CommandLine {
 protected:
  CommandLine() { WriteFile(folder.Path() / "in.pbn", kPbn); }
};

TEST_F(CommandLine, ImportsListsShowsAndExports) {
  EXPECT_EQ(Run({"--library", "Caf\u00e9", "import", File("in.pbn")}), 0);
  EXPECT_EQ(err, "Hand 7 has been saved to the library - Caf\u00e9\n");
  EXPECT_EQ(Run({"libraries"}), 0);
  EXPECT_EQ(out, "Caf\u00e9\t1\n");
  EXPECT_EQ(Run({"--library", "Caf\u00e9", "boards", "--long"}), 0);
  EXPECT_EQ(out, "7\tSouth\tAll vul\t1NT by South\tyes\n");
  EXPECT_EQ(Run({"--library", "Caf\u00e9", "show", "7"}), 0);
  for (const char* part : {"Dealer South, All vulnerable", "\u2660 Q 10 6 2",
                           "Contract: 1NT by South", "Makeable contracts", "South    13"}) {
    EXPECT_NE(out.find(part), std::string::npos) << part << "\n" << out;
  }
  EXPECT_EQ(Run({"--library", "Caf\u00e9", "export", "7", "7", File("out.pbn")}), 0);
  EXPECT_NE(ReadFile(folder.Path() / "out.pbn").find("[Auction \"S\"]\r\n1NT Pass Pass Pass "),
            std::string::npos);
  EXPECT_FALSE(store.Read("macro", "library")) << "root and library are for one call only";
}

TEST_F(CommandLine, CarriesBoardsThroughEveryType) {
  ASSERT_EQ(Run({"--library", "A", "import", File("in.pbn")}), 0);
  EXPECT_EQ(Run({"--library", "A", "export", "7", "7", File("out.lin")}), 0);
  EXPECT_EQ(Run({"--library", "B", "import-lin", File("out.lin")}), 0);
  EXPECT_EQ(err, "Hand 7 has been saved to the library - B\n");
  EXPECT_EQ(Run({"--library", "B", "import-lin", File("in.pbn")}), 1) << "the type is asked for";
  EXPECT_EQ(Run({"--library", "B", "export", "7", "7", File("out.dlm")}), 0);
  EXPECT_EQ(Run({"--library", "C", "import", File("out.dlm")}), 0);
  EXPECT_EQ(err, "7 hands (1-7) have been saved to the library - C\n") << "with what stands before";
  EXPECT_EQ(Run({"--library", "C", "show", "7"}), 0);
  EXPECT_NE(out.find("\u2660 Q 10 6 2"), std::string::npos) << out;
  EXPECT_EQ(Run({"--library", "C", "import", File("out.lin")}), 1) << "not of this command";
}

TEST_F(CommandLine, ShowsTheTravellerOfABoard) {
  ASSERT_EQ(Run({"import", File("in.pbn")}), 0);
  EXPECT_EQ(Run({"traveller", "7"}), 1);
  EXPECT_EQ(err, "The library Default has no results\n");
  WriteFile(folder.Path() / "root" / "Default" / "LIN.txt",
            "[BoardScoringMethod]\nMATCH_POINTS\n"
            "[Names]\n1 NS J\u00fcrg & Bo\n12 EW Cy & D\x1Bi\n[LIN]\n"
            "pn|Bo,D\x1Bi,J\u00fcrg,Cy|ah|Board 7|qent|10||qens|620||qenc|4S||qend|S||qenl|HT|\n"
            "pn|E,F,G,H|ah|Board 7|qent|5||qens|-800||qenc|3NTx||qend|N||qenl|C2|\n"
            "pn|I,J,K,L|ah|Board 7|\n"
            "pn|M,N,O,P|ah|Board 7|qens|-50||qenc|42|\n"
            "pn|Q,R,S,T|ah|Board 7|qens|A6040||qenc|4S||qend|S|\n");
  EXPECT_EQ(Run({"traveller", "7"}), 0);
  EXPECT_EQ(
      out,
      "NS  EW  Contract    By  Lead  Tricks    NS+  EW+  MP  MP  Names\n"
      " 1  12  4S          S   \u266510       10    620        4   0  J\u00fcrg & Bo v Cy & D i\n"
      "        3NTx        N   \u26632         5         800   0   4  G & E v H & F\n"
      "        Not played                                        K & I v L & J\n"
      "                                              50   2   2  O & M v P & N\n"
      "        4S          S                 A6040               S & Q v T & R\n");
  EXPECT_EQ(Run({"traveller", "8"}), 1);
  EXPECT_EQ(err, "There are no results of board 8\n");
  EXPECT_EQ(Run({"traveller", "0"}), 2);
}

TEST_F(CommandLine, QuestionsAreAnsweredByOptionTerminalOrCaution) {
  ASSERT_EQ(Run({"import", File("in.pbn")}), 0);
  const std::vector<std::string> again{"import", File("in.pbn")};
  EXPECT_EQ(Run(again), 1) << "nobody there: not overwritten";
  EXPECT_EQ(Run({"--no", "import", File("in.pbn")}), 1);
  EXPECT_EQ(Run({"--yes", "import", File("in.pbn")}), 0);
  EXPECT_EQ(Run(again, "what?\ny\n", true), 0);
  EXPECT_EQ(Run(again, "n\n", true), 1);
  EXPECT_EQ(Run(again, "", true), 1) << "the terminal was closed";
  ASSERT_EQ(Run({"export", "7", "7", File("out.pbn")}), 0);
  EXPECT_EQ(Run({"export", "7", "7", File("out.pbn")}), 1);
  EXPECT_EQ(Run({"--yes", "export", "7", "7", File("out.pbn")}), 0);
}

TEST_F(CommandLine, RefusesWithAMessageAndOne) {
  const std::vector<std::vector<std::string>> kRefused{
      {"boards"},
      {"show", "1"},
      {"export", "1", "2", File("x.pbn")},
      {"libraries"},
      {"settings", "Colour"},
      {"settings", "CardDesign", "9"},
      {"--library", "a/b", "import", File("in.pbn")},
      {"import", File("missing.pbn")},
      {"show", "3"}};
  for (const auto& arguments : kRefused) {
    EXPECT_EQ(Run(arguments), 1) << arguments[0];
    EXPECT_NE(err, "") << arguments[0];
    EXPECT_EQ(out, "") << arguments[0];
  }
  EXPECT_EQ(RunBare({"boards"}), 1) << "no root at all";
}

TEST_F(CommandLine, MakesARootThatIsNamedButNoOther) {
  const std::string gone = FolderText(folder.Path() / "gone");
  store.Write("macro", "filelocation", gone);
  EXPECT_EQ(RunBare({"import", File("in.pbn")}), 1);
  EXPECT_EQ(err, "There is no folder " + gone + "\n");
  EXPECT_EQ(RunBare({"--root", gone + "deep", "import", File("in.pbn")}), 1);
  EXPECT_EQ(err, "There is no folder " + gone + FolderText("deep") + "\n");
  EXPECT_FALSE(fs::exists(folder.Path() / "gone"));
  EXPECT_EQ(RunBare({"--root", gone, "import", File("in.pbn")}), 0);
}

TEST_F(CommandLine, WrongUsageIsTwo) {
  const struct {
    const char* line;
    const char* told;
  } kWrong[] = {{"", "A subcommand is required"},  {"unknown", "unknown"},
                {"autcion 1", "autcion 1"},        {"--unknown", "--unknown"},
                {"library unknown", "unknown"},    {"import --unknown", "--unknown"},
                {"show", "N is required"},         {"show 0", "1 to 999"},
                {"show 1000", "1 to 999"},         {"show x", "1 to 999"},
                {"import", "FILE is required"},    {"--yes --no boards", "excludes"},
                {"export 1 2", "FILE is required"}};
  for (const auto& c : kWrong) {
    EXPECT_EQ(RunLine(c.line), 2) << c.line;
    EXPECT_NE(err.find(c.told), std::string::npos) << err;
  }
  EXPECT_EQ(RunBare({"--help"}), 0);
  EXPECT_NE(out, "");
}

TEST_F(CommandLine, CtrlCCancels) {
  interrupted = true;
  EXPECT_EQ(Run({"import", File("in.pbn")}), 1);
  EXPECT_NE(err.find("No hands have been saved"), std::string::npos);
}

TEST_F(CommandLine, AuctionsAreShownReplacedOrRefused) {
  ASSERT_EQ(Run({"import", File("in.pbn")}), 0);
  EXPECT_EQ(Run({"auction", "7"}), 0);
  EXPECT_NE(out.find("1NT by South"), std::string::npos) << out;
  const struct {
    const char* calls;
    const char* message;
  } kRefused[] = {{"1s 1h", "1H by West: the bid is not sufficient\n"},
                  {"1s xx", "Rdbl by West: there is no double of the opponents to redouble\n"},
                  {"1s x x", "Dbl by North: the bid is doubled already\n"},
                  {"x", "Dbl by South: there is no bid of the opponents to double\n"},
                  {"1s p p p p", "Pass by South: the auction is over\n"},
                  {"1s p", "The auction is not complete: North is to call\n"},
                  {"1s huh", "huh is no call\n"}};
  for (const auto& c : kRefused) {
    EXPECT_EQ(RunLine("--yes auction 7 " + std::string(c.calls)), 1);
    EXPECT_EQ(err, c.message);
  }
  EXPECT_EQ(Run({"--yes", "auction", "7", "1h", "x", "xx", "ap"}), 0);
  EXPECT_NE(out.find("1Hxx by South"), std::string::npos) << out;
  EXPECT_EQ(Run({"boards", "--long"}), 0);
  EXPECT_NE(out.find("1Hxx by South"), std::string::npos) << out;
  EXPECT_EQ(Run({"auction", "7", "ap"}), 1) << "nobody there to say that it may be overwritten";
}

TEST_F(CommandLine, PlaysCards) {
  ASSERT_EQ(Run({"import", File("in.pbn")}), 0);
  EXPECT_EQ(RunLine("play 7 sk S3 s9 SQ h10 HA"), 0);
  EXPECT_EQ(RunLine("play 7 sk S3 s9 SQ st"), 1);
  EXPECT_EQ(err, "♠10 cannot be played by West now\n");
  EXPECT_EQ(RunLine("play 7 sk S3 s9 SQ HT --undo 1 --claim w"), 0);
  const std::string oneCard = "West played ♠K\nNorth is on play\n";
  for (const char* line : {"play 7 sk S8 --undo 1", "play 7 sk --claim north --undo 1"}) {
    EXPECT_EQ(RunLine(line), 0);
    EXPECT_NE(out.find(oneCard), std::string::npos) << out;
  }
  EXPECT_EQ(RunLine("play 7 --claim west"), 0);
  EXPECT_NE(out.find("1NT-7 by South : EW +700\n"), std::string::npos) << out;
  EXPECT_EQ(RunLine("play 7 sk --claim north --undo 3"), 1);
  EXPECT_EQ(err, "Not so many cards were played\n");
  EXPECT_EQ(RunLine("play 7 --claim north"), 1);
  EXPECT_EQ(err, "North is not on play\n");
}

TEST_F(CommandLine, Scores) {
  EXPECT_EQ(RunLine("score 4Sx N 9 --board 5"), 0);
  EXPECT_EQ(out, "4Sx-1 by North : EW +200\n");
  EXPECT_EQ(RunLine("score 1c** e 7"), 0);
  EXPECT_EQ(out, "1Cxx= by East : EW +230\n");
  EXPECT_EQ(RunLine("score 6N West 12 --vul ALL"), 0);
  EXPECT_EQ(out, "6NT= by West : EW +1440\n");
  for (const char* refused : {"score 8S N 9", "score 4S Q 9"}) EXPECT_EQ(RunLine(refused), 1);
  for (const char* wrong : {"score 4S N 14", "score 4S N 9 --board 1 --vul all"}) {
    EXPECT_EQ(RunLine(wrong), 2);
  }
}

TEST_F(CommandLine, SettingsAreListedReadAndWritten) {
  EXPECT_EQ(RunBare({"settings"}), 0);
  EXPECT_NE(out.find("CardDesign=1\n"), std::string::npos);
  EXPECT_NE(out.find("HGFont1/Size=15\n"), std::string::npos);
  EXPECT_EQ(RunBare({"settings", "cardDesign", "2"}), 0);
  EXPECT_EQ(RunBare({"settings", "CardDesign"}), 0);
  EXPECT_EQ(out, "2\n");
  EXPECT_EQ(RunBare({"settings", "filelocation", PathText(folder.Path())}), 0);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(folder.Path()));
  EXPECT_EQ(RunBare({"settings", "filelocation", "hands"}), 0);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(fs::current_path() / "hands"));
  const std::string top = PathText(folder.Path().root_path());
  EXPECT_EQ(RunBare({"settings", "filelocation", top}), 1);
  EXPECT_EQ(err, "Please choose a folder, not " + top + "\n");
  EXPECT_EQ(RunBare({"--root", top, "--library", "New", "import", File("in.pbn")}), 1);
  EXPECT_EQ(err, "Please choose a folder, not " + top + "\n");
  EXPECT_EQ(RunBare({"settings", "library", "../up"}), 1);
  EXPECT_EQ(err, "A library cannot be named ../up\n");
}

TEST_F(CommandLine, AnImportThatFailsLeavesNoLibraryBehind) {
  EXPECT_EQ(Run({"--library", "New", "import", File("gone.pbn")}), 1);
  EXPECT_FALSE(fs::exists(folder.Path() / "root" / "New"));
  EXPECT_EQ(Run({"--library", "New", "import", File("gone.pbn"), File("in.pbn")}), 1);
  EXPECT_EQ(Run({"--library", "New", "boards"}), 0);
  EXPECT_EQ(out, "7\n");
}

}  // namespace
}  // namespace tricklet
