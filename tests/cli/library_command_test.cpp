// The command "library" of the command line.
#include <sstream>

#include <gtest/gtest.h>

#include "cli/run.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::WriteFile;

class LibraryCommand : public testing::Test {
 protected:
  LibraryCommand() {
    WriteFile(Root() / "Club" / "001.txt", test::OneSuitEachText());
    WriteFile(Root() / "Teaching" / "001.txt", test::OneSuitEachText());
    store.Write("macro", "filelocation", FolderText(Root()));
    store.Write("macro", "library", "Club");
  }

  fs::path Root() const { return folder.Path() / "root"; }
  std::string Text(const char* name) const { return PathText(folder.Path() / name); }

  /// Runs "library" with these arguments; the first may be an option for all commands.
  int Run(std::vector<std::string> arguments) {
    const bool option = arguments.front().starts_with("--");
    arguments.insert(arguments.begin() + (option ? 1 : 0), "library");
    std::istringstream in;
    std::ostringstream data;
    std::ostringstream messages;
    const int code = cli::Run(arguments, store, {in, data, messages, false, interrupted, {}});
    EXPECT_EQ(data.str(), "");
    err = messages.str();
    return code;
  }

  test::TempFolder folder;
  MemoryStore store;
  std::atomic<bool> interrupted{false};
  std::string err;
};

TEST_F(LibraryCommand, CopiesExportsImportsAndMoves) {
  EXPECT_EQ(Run({"copy", "Club 2"}), 0);
  EXPECT_EQ(err, "");
  EXPECT_TRUE(fs::exists(Root() / "Club 2" / "001.txt"));
  EXPECT_EQ(Run({"export", Text("out")}), 0);
  EXPECT_TRUE(fs::exists(folder.Path() / "out" / "Club" / "001.txt"));
  EXPECT_EQ(Run({"export", Text("out")}), 1) << "nobody agreed to overwrite";
  EXPECT_EQ(Run({"--yes", "export", Text("out")}), 0);
  EXPECT_EQ(Run({"export", "--all", Text("all")}), 1);
  EXPECT_FALSE(fs::exists(folder.Path() / "all"));
  EXPECT_EQ(Run({"--yes", "export", "--all", Text("all")}), 0);
  EXPECT_TRUE(fs::exists(folder.Path() / "all" / "Teaching" / "001.txt"));

  WriteFile(folder.Path() / "in" / "New" / "001.txt", "x");
  WriteFile(folder.Path() / "in" / "Newer" / "001.txt", "x");
  EXPECT_EQ(Run({"import", Text("in/New/")}), 0);
  EXPECT_EQ(store.Read("macro", "library"), "New");
  EXPECT_EQ(Run({"import", Text("in/New")}), 1);
  EXPECT_EQ(err,
            "You already have a library - New\n"
            "Please delete it before importing a library of the same name\n");
  EXPECT_EQ(Run({"--yes", "import", "--all", Text("in")}), 0);
  EXPECT_NE(err.find("1 library has been copied\n"), std::string::npos);

  EXPECT_EQ(Run({"move", Text("moved")}), 1) << "nobody said whether to copy";
  EXPECT_NE(err.find(" no answer (--yes or --no gives one)\n"), std::string::npos);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(Root()));
  EXPECT_FALSE(fs::exists(folder.Path() / "moved"));
  EXPECT_EQ(Run({"--no", "move", Text("empty")}), 0);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(folder.Path() / "empty"));
  store.Write("macro", "filelocation", FolderText(Root()));

  EXPECT_EQ(Run({"--yes", "move", Text("moved")}), 0);
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(folder.Path() / "moved"));
  EXPECT_TRUE(fs::exists(folder.Path() / "moved" / "Newer"));
  EXPECT_TRUE(fs::exists(Root() / "Newer"));
}

TEST_F(LibraryCommand, ARootOfOneCallStaysOfOneCall) {
  WriteFile(folder.Path() / "in" / "New" / "001.txt", "x");
  fs::create_directories(folder.Path() / "elsewhere" / "Club");
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"import", Text("in/New")}, {"move", Text("moved")}}) {
    std::vector<std::string> line{"--root", Text("elsewhere"), "--yes", "library"};
    line.insert(line.end(), arguments.begin(), arguments.end());
    std::istringstream in;
    std::ostringstream out;
    EXPECT_EQ(cli::Run(line, store, {in, out, out, false, interrupted, {}}), 0) << out.str();
  }
  EXPECT_TRUE(fs::exists(folder.Path() / "moved" / "New"));
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(Root()));
  EXPECT_EQ(store.Read("macro", "library"), "Club");
}

TEST_F(LibraryCommand, RefusesWithOneAndWrongUsageIsTwo) {
  const std::string top = PathText(folder.Path().root_path());
  const struct {
    std::vector<std::string> arguments;
    std::string message;
  } refused[] = {
      {{"copy", "club"}, "club already exists\nPlease choose a different name\n"},
      {{"copy", "a.b"}, "A library cannot be named a.b\n"},
      {{"delete", "Club"}, "Cannot delete the library currently in use\n"},
      {{"delete", "nowhere"}, "Unable to delete the library nowhere\n"},
      {{"import", Text("gone")}, "There is no folder " + Text("gone") + "\n"},
      {{"move", top}, "Please choose a sub-folder, not " + top + "\n"},
      {{"export", "--all", Text("root")}, "That is the same folder as the existing folder\n"},
  };
  for (const auto& [arguments, message] : refused) {
    EXPECT_EQ(Run(arguments), 1) << arguments[0];
    EXPECT_EQ(err, message);
  }
  interrupted = true;
  EXPECT_EQ(Run({"copy", "Other"}), 1);
  EXPECT_EQ(err, "Copying cancelled\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(Root()), {}), 2);
  const std::vector<std::vector<std::string>> wrong{{"copy"},
                                                    {"copy", ""},
                                                    {"fetch", "x"},
                                                    {"export", ""},
                                                    {"export", "a", "b"},
                                                    {"delete", "--all", "x"},
                                                    {"--root=", "move", "x"},
                                                    {"--library=", "copy", "x"}};
  for (const auto& arguments : wrong) EXPECT_EQ(Run(arguments), 2);
}

TEST_F(LibraryCommand, NoNameLeadsOutOfTheRoot) {
  WriteFile(folder.Path() / "secret" / "001.txt", "x");
  for (const std::string& name : {std::string("../secret"), Text("secret"), std::string("Club/."),
                                  std::string(".."), std::string(".hidden")}) {
    for (const char* command : {"copy", "export"}) {
      EXPECT_EQ(Run({"--library=" + name, command, Text("to")}), 1);
      EXPECT_EQ(err, "A library cannot be named " + name + "\n");
    }
  }
  EXPECT_FALSE(fs::exists(folder.Path() / "to"));
}

#ifdef __linux__
TEST_F(LibraryCommand, DeletesToTheRecycleBinOfTheDesktop) {
  const fs::path data = folder.Path() / "data";
  fs::create_directories(data);
  ASSERT_EQ(::setenv("XDG_DATA_HOME", data.c_str(), 1), 0);
  EXPECT_EQ(Run({"delete", "Teaching"}), 0) << err;
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_FALSE(fs::exists(Root() / "Teaching"));
  EXPECT_TRUE(fs::exists(data / "Trash" / "files" / "Teaching" / "001.txt"));
}
#endif

}  // namespace
}  // namespace tricklet
