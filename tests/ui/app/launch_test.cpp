// The command line of the program with a window, and its picture mode.
#include "ui/app/launch.h"

#include <algorithm>

#include <QImage>

#include "disk/file_io.h"
#include "library/library_names.h"
#include "library/start_up.h"
#include "tests/support/library_fixture.h"
#include "ui/app/application.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

Application& TheApplication() {
  return static_cast<Application&>(*qApp);
}

LaunchOptions Parse(const QString& line) {
  return ParseLaunch(QStringList{QStringLiteral("tricklet")} +
                     line.split(u' ', Qt::SkipEmptyParts));
}

TEST(LaunchTest, ReadsTheCommandLine) {
  const LaunchOptions options =
      Parse(QStringLiteral("--root /deals --library Club --board 7 --seed 42 --screenshot a.png "
                           "--size 1024x700 x.pbn y.pbn"));
  EXPECT_TRUE(options.error.isEmpty());
  EXPECT_EQ(options.root, QStringLiteral("/deals"));
  EXPECT_EQ(options.library, QStringLiteral("Club"));
  EXPECT_EQ(options.board, 7);
  EXPECT_EQ(options.seed, 42U);
  EXPECT_EQ(options.screenshot, QStringLiteral("a.png"));
  EXPECT_EQ(options.size, QSize(1024, 700));
  EXPECT_EQ(options.files.size(), 2U);
}

TEST(LaunchTest, RefusesWhatMakesNoSense) {
  for (const char* line : {"--board 0",
                           "--board 1000",
                           "--board x",
                           "--size 12",
                           "--size 0x9",
                           "--size 1024x700x3",
                           "--size 99999x800",
                           "--seed",
                           "--seed x",
                           "--seed -1",
                           "--nonsense",
                           "--board",
                           "--root=",
                           "--library=",
                           "--pdf=",
                           "--pdf a --boards 9-1",
                           "--pdf a --layout x",
                           "--pdf a --per-page 5",
                           "--pdf a --layout slips --per-page 4",
                           "--pdf a --paper a5",
                           "--pdf a --layout lesson --hands NX",
                           "--pdf a --hands NS",
                           "--boards 1",
                           "--pdf a --screenshot b",
                           "--pdf a x.pbn"}) {
    EXPECT_FALSE(Parse(QString::fromLatin1(line)).error.isEmpty()) << line;
  }
}

TEST(LaunchTest, DrawsTheWindowOnALibraryThatTheRootHasAndLeavesTheStoredOneAlone) {
  const test::TempFolder folder;
  for (const char* name : {"Autumn", "Club"}) {
    std::filesystem::create_directories(folder.Path() / "root" / name);
  }
  MemoryStore store;
  LaunchOptions options;
  options.size = QSize(1024, 700);
  options.root = PathToQt(folder.Path() / "root");
  options.screenshot = PathToQt(folder.Path() / "window.png");
  for (const auto& [stored, opened] : {std::pair("Spring", "Autumn"), std::pair("Club", "Club")}) {
    store.Write("macro", "library", stored);
    ASSERT_EQ(Launch(TheApplication(), options, store), 0);
    EXPECT_EQ(FoldersOf(folder.Path() / "root"), (std::vector<std::string>{"Autumn", "Club"}));
    EXPECT_EQ(store.Read("macro", "library"), stored);
    EXPECT_EQ(LibraryOfRoot(folder.Path() / "root", stored), opened);
  }
  EXPECT_EQ(QImage(options.screenshot).deviceIndependentSize().toSize(), options.size);
  EXPECT_FALSE(store.Read("macro", "filelocation").has_value());

  MemoryStore fresh;
  options.library = QStringLiteral("Club");
  options.screenshot = PathToQt(folder.Path() / "no such folder" / "window.png");
  EXPECT_EQ(Launch(TheApplication(), options, fresh), 1);
  EXPECT_FALSE(fresh.Read("macro", "library").has_value());
}

TEST(LaunchTest, ReadsWhatIsToBePrinted) {
  const PrintOptions print =
      Parse(QStringLiteral("--pdf a.pdf --svg out --boards 3-7 --layout lesson --hands ns "
                           "--paper letter --landscape --title Club --black"))
          .print;
  EXPECT_EQ(print.pdf.filename(), "a.pdf");
  EXPECT_TRUE(print.pdf.is_absolute());
  EXPECT_TRUE(print.png.empty());
  EXPECT_EQ(print.boards, (BoardRange{3, 7}));
  const SheetChoices expected{.layout = SheetLayout::Lesson,
                              .perPage = 2,
                              .paper = Paper::Letter,
                              .landscape = true,
                              .title = "Club",
                              .colours = false,
                              .hands = {true, false, true, false}};
  EXPECT_EQ(print.choices, expected);
  EXPECT_TRUE(print.titled);
  EXPECT_FALSE(print.subtitled);
}

TEST(LaunchTest, NeedsNoScreenToPrint) {
  const auto asks = [](std::vector<std::string> words) {
    std::vector<char*> values(words.size());
    std::transform(words.begin(), words.end(), values.begin(),
                   [](std::string& word) { return word.data(); });
    return AsksForPrint(static_cast<int>(values.size()), values.data());
  };
  EXPECT_TRUE(asks({"tricklet", "--library", "Club", "--pdf", "a.pdf"}));
  EXPECT_TRUE(asks({"tricklet", "--svg=out"}));
  EXPECT_FALSE(asks({"tricklet", "--pdfs", "a.pbn"}));
  EXPECT_FALSE(asks({"tricklet", "--", "--pdf"}));
}

TEST(LaunchTest, PrintsWithoutAWindowOrLeavesTheFileAsItWas) {
  const test::TempFolder folder;
  const std::filesystem::path pdf = folder.Path() / "a.pdf";
  std::filesystem::create_directories(folder.Path() / "root" / "Club");
  std::filesystem::create_directories(folder.Path() / "root" / "Empty");
  Board board;
  AddCard(board.hands, {}, Seat::North);  // a deal that is not complete
  ReplaceWholeFile(folder.Path() / "root" / "Club" / BoardFileName(7), WriteBoardText(board));
  const struct {
    const char* library;
    BoardRange boards;
    const char* file;
    int exitCode;
  } rows[]{{"Empty", {}, "a.pdf", 1},
           {"None", {}, "a.pdf", 1},
           {"Club", {8, 9}, "a.pdf", 1},
           {"Club", {}, "no such folder/a.pdf", 1},
           {"club", {}, "a.pdf", 0}};
  for (const auto& row : rows) {
    EXPECT_FALSE(std::filesystem::exists(pdf)) << row.library;
    LaunchOptions options;
    options.root = PathToQt(folder.Path() / "root");
    options.library = QString::fromLatin1(row.library);
    options.print.pdf = folder.Path() / row.file;
    options.print.boards = row.boards;
    options.print.choices.table = options.print.choices.par = false;
    MemoryStore store;
    EXPECT_EQ(Launch(TheApplication(), options, store), row.exitCode) << row.library;
  }
  EXPECT_TRUE(std::filesystem::exists(pdf));
  EXPECT_EQ(FoldersOf(folder.Path() / "root"), (std::vector<std::string>{"Club", "Empty"}));
}

TEST(LaunchTest, WhatAnEventThrowsIsReported) {
  class Thrower : public QObject {
    bool event(QEvent* /*event*/) override { throw std::runtime_error("broken"); }
  };
  test::ScriptedHost host;
  host.ExpectAskWith("broken\nError no. 51", Answer::Yes);
  TheApplication().host = &host;
  Thrower thrower;
  QEvent event(QEvent::User);
  EXPECT_TRUE(QCoreApplication::sendEvent(&thrower, &event));
  TheApplication().host = nullptr;
}

}  // namespace
}  // namespace tricklet::ui
