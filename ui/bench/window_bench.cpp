// How long the window takes from a key or a click until it has been drawn again. A screen shows 60
// frames a second: what takes less than 16 ms is there in the next one. And for how long commands
// that work through a library leave the window without an answer.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <QTreeView>

#include "analysis/deal_text.h"
#include "analysis/solver_library.h"
#include "bench/quiet_host.h"
#include "bench/random_board.h"
#include "bench/temporary_root.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/library_choice.h"
#include "ui/control/play_control.h"
#include "ui/panes/board_list_model.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/main_window.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = 100;
constexpr int kMostBoards = 999;
constexpr int kBoardsOfSession = 24;
constexpr double kFrame = 16;     // ms
constexpr double kNoticed = 100;  // ms: about what a person takes for an answer at once

/// Shows its work in the window.
class WindowHost : public QuietHost {
 public:
  bool Step(const std::string& text, int done, int total) override {
    return progress == nullptr || progress->Step(ui::ToQt(text), done, total);
  }
  void BeginWork() override { progress->Begin(); }
  void EndWork() override { progress->End(); }
  std::optional<fs::path> ChooseOpenFile(const FileChoice& /*choice*/) override { return chosen; }
  bool Recycle(const fs::path& path) override {
    std::error_code failure;
    fs::rename(path, bin / std::to_string(++recycled_), failure);
    return !failure;
  }

  ui::ProgressFrame* progress = nullptr;
  fs::path bin;
  fs::path chosen;  // by the person who is asked for a file

 private:
  int recycled_ = 0;
};

/// Notes the longest time for which the window's thread has dealt with no event.
class LongestGap : public QObject {
 public:
  LongestGap() {
    since_.start();
    startTimer(5, Qt::PreciseTimer);
  }
  double Milliseconds() const { return longest_; }
  void Reset() {
    longest_ = 0;
    since_.restart();
  }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    longest_ = std::max(longest_, static_cast<double>(since_.nsecsElapsed()) / 1e6);
    since_.restart();
  }

 private:
  QElapsedTimer since_;
  double longest_ = 0;
};

/// A window on a library of boards without tables, in front of the real solver.
class Bench : public TemporaryRoot {
 public:
  Bench() {
    host.bin = Emptied("Recycled");
    Fill("Boards", kBoards);
    Fill("Full", kMostBoards);
    Fill("Session", kBoardsOfSession);
    session.settings.filelocation = FolderText(root);
    session.settings.library = "Boards";
    session.getSolver = SolverOnDemand({});
    session.tablesInBackground = true;
    GetLibraryNames(session);
    SelectLibrary(session, "Boards");
    window = std::make_unique<ui::MainWindow>(session, updates);
    host.progress = window->Progress();
    window->resize(1280, 800);
    window->show();
    QCoreApplication::processEvents();
  }

  void Fill(const char* library, int boards) {
    const fs::path folder = Emptied(library);
    std::mt19937 random(3);
    UnflushedFolders unflushed;
    for (int number = 1; number <= boards; ++number) {
      const std::string text = WriteBoardText(RandomBoard(number, random));
      ReplaceWholeFile(folder / BoardFileName(number), text, unflushed);
    }
  }

  QAction* Action(const char* name) const {
    return window->findChild<QAction*>(QString::fromLatin1(name));
  }

  WindowHost host;
  MemoryStore store;
  Session session{host, store};
  ui::Updates updates{session.settings, nullptr};
  std::unique_ptr<ui::MainWindow> window;
};

/// Until nothing is left to be drawn.
double MillisecondsOf(const std::function<void()>& event) {
  const auto start = std::chrono::steady_clock::now();
  event();
  QCoreApplication::processEvents();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

void Print(const char* what, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  std::printf("%-44s %4zu times, median %6.2f ms, worst %6.2f ms  %s\n", what, times.size(),
              times[times.size() / 2], times.back(),
              times.back() <= kFrame ? "within a frame" : "MORE THAN A FRAME");
}

/// From board to board while a table is computed for each.
void StepBoards(Bench& bench) {
  QAction* next = bench.Action("mnuNext");
  std::vector<double> times;
  for (int board = 1; board < kBoards; ++board) {
    times.push_back(MillisecondsOf([next] { next->trigger(); }));
  }
  Print("next board, tables under way", times);
}

void Click(ui::TableView& table, QPointF point) {
  const QPointF global = table.mapToGlobal(point);
  QMouseEvent press(QEvent::MouseButtonPress, point, global, Qt::LeftButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&table, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, point, global, Qt::LeftButton, {}, {});
  QCoreApplication::sendEvent(&table, &release);
}

/// A whole board, each hand its first legal card.
void PlayBoard(Bench& bench, const char* what) {
  auto* table = bench.window->findChild<ui::TableView*>();
  auto* control = bench.window->findChild<ui::PlayControl*>();
  bench.Action("mnuPlay")->trigger();
  QCoreApplication::processEvents();
  std::vector<double> times;
  while (!control->Play().Finished()) {
    const auto cards = table->Layout().cards;
    const auto legal = std::find_if(cards.begin(), cards.end(), [control](const auto& placed) {
      return control->Play().IsLegal(placed.card);
    });
    if (legal == cards.end()) break;
    const QPointF corner = legal->rect.topLeft() + QPointF(4, 4);
    times.push_back(MillisecondsOf([&] { Click(*table, corner); }));
  }
  Print(what, times);
  bench.Action("mnuPlay")->trigger();
}

/// A library of 999 boards in the list: opened, paged through and scrolled.
void ListBoards(Bench& bench) {
  auto* list = bench.window->findChild<QTreeView*>(QStringLiteral("lstBoards"));
  const auto summary = [list](int row) {
    return list->model()->index(row, static_cast<int>(ui::BoardColumn::Contract)).data().toString();
  };
  const auto waitFor = [&](int row) {
    return MillisecondsOf([&] {
      while (summary(row).isEmpty()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
  };
  const auto open = [&] {
    SelectLibrary(bench.session, "Full");
    bench.window->Display();
  };
  Print("library of 999 boards, first drawn", {MillisecondsOf(open)});
  std::printf("%-44s %6.2f ms for the rows in sight, %.2f ms for all\n", "its files read after",
              waitFor(5), waitFor(kMostBoards - 1));
  std::vector<double> times;
  const auto key = [&](int code, const char* what, int count) {
    times.clear();
    for (int i = 0; i < count; ++i) {
      times.push_back(MillisecondsOf([&] {
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
        QCoreApplication::sendEvent(list, &press);
      }));
    }
    Print(what, times);
  };
  key(Qt::Key_Down, "list: a board down", 100);
  key(Qt::Key_PageDown, "list: a page down", 20);
  times.clear();
  for (int at = 0; at < kMostBoards; at += 3) {
    times.push_back(MillisecondsOf([&] { list->verticalScrollBar()->setValue(at); }));
  }
  Print("list: scrolled", times);
  auto* find = bench.window->findChild<QLineEdit*>(QStringLiteral("txtFindBoards"));
  times.clear();
  for (const char* text : {"4", "4s", "4s n", "4s ns", "", "played", "bid"}) {
    times.push_back(MillisecondsOf([&] { find->setText(QString::fromLatin1(text)); }));
  }
  Print("list: a letter to find", times);
  find->clear();
}

void PrintGap(const char* what, const LongestGap& gap) {
  std::printf("%-44s no answer for %6.2f ms at the most  %s\n", what, gap.Milliseconds(),
              gap.Milliseconds() <= kNoticed ? "" : "NOTICED");
}

/// Commands over 24 boards, which are there already and are replaced.
void WorkThroughLibrary(Bench& bench) {
  SelectLibrary(bench.session, "Session");
  bench.window->Display();
  QCoreApplication::processEvents();
  LongestGap gap;
  bench.Action("mnuAnalyse")->trigger();
  PrintGap("analysing 24 boards", gap);

  std::string pbn = "% PBN 2.1\n";
  std::mt19937 random(5);
  for (int number = 1; number <= kBoardsOfSession; ++number) {
    pbn += "[Board \"" + std::to_string(number) + "\"]\n[Deal \"" +
           SolverDealText(RandomBoard(number, random).hands) + "\"]\n\n";
  }
  bench.host.chosen = bench.root / "session.pbn";
  ReplaceWholeFile(bench.host.chosen, pbn);
  gap.Reset();
  bench.Action("mnuImport")->trigger();
  PrintGap("importing 24 boards", gap);

  for (const bool analyse : {false, true}) {
    bench.session.settings.autoMakeable = analyse;
    QTimer::singleShot(0, bench.window.get(), [&] {
      QWidget* form = QApplication::activeModalWidget();
      form->findChild<QComboBox*>(QStringLiteral("cmbBoards_1"))
          ->setCurrentIndex(kBoardsOfSession - 1);
      gap.Reset();
      form->findChild<QAbstractButton*>(QStringLiteral("cmdGo"))->click();
    });
    bench.Action("mnuGenerate")->trigger();
    PrintGap(analyse ? "generating and analysing 24 boards" : "generating 24 boards", gap);
  }
}

}  // namespace
}  // namespace tricklet::bench

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  {
    tricklet::bench::Bench fresh;  // in which the solver has not been loaded yet
    tricklet::bench::WorkThroughLibrary(fresh);
  }
  tricklet::bench::Bench bench;
  tricklet::bench::StepBoards(bench);
  tricklet::bench::PlayBoard(bench, "click to card on the table");
  bench.session.settings.showBestCards = true;
  tricklet::bench::PlayBoard(bench, "click to card, best cards being found");
  tricklet::bench::ListBoards(bench);
  return 0;
}
