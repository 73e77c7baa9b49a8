// The command line of the program with a window, and its picture mode.
#include "ui/app/launch.h"

#include <QImage>

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
  for (const char* line : {"--board 0", "--board 1000", "--board x", "--size 12", "--size 0x9",
                           "--size 1024x700x3", "--size 99999x800", "--seed", "--seed x",
                           "--seed -1", "--nonsense", "--board", "--root=", "--library="}) {
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
