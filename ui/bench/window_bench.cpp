// How long the window takes from a key or a click until it has been drawn again. A screen shows 60
// frames a second: what takes less than 16 ms is there in the next one.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QMouseEvent>

#include "analysis/solver_library.h"
#include "bench/quiet_host.h"
#include "bench/random_board.h"
#include "bench/temporary_root.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/library_choice.h"
#include "ui/control/play_control.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/main_window.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = 100;
constexpr double kFrame = 16;  // ms

/// A window on a library of boards without tables, in front of the real solver.
class Bench : public TemporaryRoot {
 public:
  Bench() {
    const fs::path folder = Emptied("Boards");
    std::mt19937 random(3);
    for (int number = 1; number <= kBoards; ++number) {
      ReplaceWholeFile(folder / BoardFileName(number), WriteBoardText(RandomBoard(number, random)));
    }
    session.settings.filelocation = FolderText(root);
    session.settings.library = "Boards";
    session.getSolver = SolverOnDemand({});
    session.tablesInBackground = true;
    GetLibraryNames(session);
    SelectLibrary(session, "Boards");
    window = std::make_unique<ui::MainWindow>(session, updates);
    window->resize(1280, 800);
    window->show();
    QCoreApplication::processEvents();
  }

  QAction* Action(const char* name) const {
    return window->findChild<QAction*>(QString::fromLatin1(name));
  }

  QuietHost host;
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

}  // namespace
}  // namespace tricklet::bench

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  tricklet::bench::Bench bench;
  tricklet::bench::StepBoards(bench);
  tricklet::bench::PlayBoard(bench, "click to card on the table");
  bench.session.settings.showBestCards = true;
  tricklet::bench::PlayBoard(bench, "click to card, best cards being found");
  return 0;
}
