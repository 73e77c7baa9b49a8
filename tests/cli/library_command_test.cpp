// The command "library" of the command line.
#include "tests/cli/command_line.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class LibraryCommand : public CommandLine {
 protected:
  LibraryCommand() {
    WriteFile(Root() / "Club" / "001.txt", OneSuitEachText());
    WriteFile(Root() / "Teaching" / "001.txt", OneSuitEachText());
    WriteFile(folder.Path() / "in" / "New" / "001.txt", "x");
    store.Write("macro", "library", "Club");
  }
  std::string RootSetting() { return store.Read("macro", "filelocation").value_or(""); }
};

TEST_F(LibraryCommand, CopiesExportsImportsAndMoves) {
  EXPECT_EQ(Answer("library copy 'Club 2'"), "0 ");
  EXPECT_TRUE(Exists("root/Club 2/001.txt"));
  EXPECT_EQ(Run("library export @out"), 0);
  EXPECT_TRUE(Exists("out/Club/001.txt"));
  EXPECT_EQ(Run("--yes library export --all @all"), 0);
  EXPECT_TRUE(Exists("all/Teaching/001.txt"));

  EXPECT_EQ(Run("library import @in/New/"), 0);
  EXPECT_EQ(store.Read("macro", "library"), "New");
  WriteFile(folder.Path() / "in" / "Newer" / "001.txt", "x");
  EXPECT_EQ(Run("--yes library import --all @in"), 0);
  EXPECT_NE(err.find("1 library has been copied\n"), std::string::npos);

  EXPECT_EQ(Run("library move @moved"), 1) << "nobody said whether to copy";
  EXPECT_NE(err.find(" no answer (--yes or --no gives one)\n"), std::string::npos);
  EXPECT_EQ(RootSetting(), FolderText(Root()));
  EXPECT_FALSE(Exists("moved"));
  EXPECT_EQ(Run("--yes library move @moved"), 0);
  EXPECT_EQ(RootSetting(), File("moved/"));
  EXPECT_TRUE(Exists("moved/Newer") && Exists("root/Newer"));
}

TEST_F(LibraryCommand, ARootOfOneCallStaysOfOneCall) {
  fs::create_directories(folder.Path() / "elsewhere" / "Club");
  for (const char* line : {"import @in/New", "move @moved"}) {
    EXPECT_EQ(Run(std::string("--root @elsewhere --yes library ") + line), 0) << err;
  }
  EXPECT_TRUE(Exists("moved/New"));
  EXPECT_EQ(RootSetting(), FolderText(Root()));
  EXPECT_EQ(store.Read("macro", "library"), "Club");
}

TEST_F(LibraryCommand, RefusesWithOneAndWrongUsageIsTwo) {
  const std::string top = PathText(folder.Path().root_path());
  const std::pair<std::string, std::string> refused[] = {
      {"copy club", "club already exists\nPlease choose a different name\n"},
      {"delete Club", "Cannot delete the library currently in use\n"},
      {"import @gone", "There is no folder " + File("gone") + "\n"},
      {"move " + top, "Please choose a sub-folder, not " + top + "\n"},
      {"export --all @root", "That is the same folder as the existing folder\n"},
  };
  for (const auto& [line, message] : refused) EXPECT_EQ(Answer("library " + line), "1 " + message);
  EXPECT_EQ(std::distance(fs::directory_iterator(Root()), {}), 2);
  for (const char* line :
       {"library copy", "library copy ''", "library export a b", "library delete --all x",
        "--root= library move x", "--library= library copy x"}) {
    EXPECT_EQ(Run(line), 2) << line;
  }
}

TEST_F(LibraryCommand, NoNameLeadsOutOfTheRoot) {
  for (const std::string name : {"../in", "Club/.", ".hidden"}) {
    EXPECT_EQ(Answer("--library=" + name + " library export @to"),
              "1 A library cannot be named " + name + "\n");
  }
  EXPECT_FALSE(Exists("to"));
}

TEST_F(LibraryCommand, ARootThatCannotBeStoredDoesNotMove) {
  store.full = true;
  EXPECT_EQ(Run("--no library move @to"), 1);
  EXPECT_NE(err.find("The settings could not be stored\n"), std::string::npos) << err;
  EXPECT_EQ(RootSetting(), FolderText(Root()));
  EXPECT_FALSE(Exists("to/Default"));
  EXPECT_EQ(Answer("settings PBNBids False"), "1 The settings could not be stored\n");
  EXPECT_EQ(Run("boards"), 0) << "which depends on no setting: " << err;
}

TEST_F(LibraryCommand, SettingsThatCannotBeReadAreNamedOnce) {
  store.failure = "Permission denied: /settings";
  EXPECT_EQ(
      Answer("libraries"),
      "0 Club\t1\nTeaching\t1\nThe settings could not be read\nPermission denied: /settings\n");
  EXPECT_EQ(Answer("settings PBNBids"),
            "1 True\nThe settings could not be read\nPermission denied: /settings\n");
}

#ifdef __linux__
TEST_F(LibraryCommand, DeletesToTheRecycleBinOfTheDesktop) {
  ASSERT_EQ(::setenv("XDG_DATA_HOME", File("data").c_str(), 1), 0);
  EXPECT_EQ(Run("library delete Teaching"), 0) << err;
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_FALSE(Exists("root/Teaching"));
  EXPECT_TRUE(Exists("data/Trash/files/Teaching/001.txt"));
}
#endif

}  // namespace
}  // namespace tricklet::test
