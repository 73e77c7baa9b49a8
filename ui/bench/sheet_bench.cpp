// How long the hand records of a session take from the library to a PDF, beside the least that such
// a file can cost: as many texts drawn plainly.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <utility>
#include <vector>

#include <QApplication>
#include <QBuffer>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>

#include "bench/quiet_host.h"
#include "bench/random_board.h"
#include "bench/temporary_root.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/library_choice.h"
#include "ui/print/print_style.h"
#include "ui/print/sheet_output.h"

namespace tricklet::bench {
namespace {

constexpr int kBoards = 36;
constexpr int kRepeats = 11;
constexpr double kPromised = 500;  // ms

struct PlainText {
  QPointF at;
  QString text;
};

/// Collects the texts of pages.
class TextCollector : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return &engine_; }
  const std::vector<PlainText>& Texts() const { return engine_.texts; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    const bool isSize = metric == PdmWidth || metric == PdmHeight;
    const bool isRatio = metric == PdmDevicePixelRatio;
    return isSize ? 1000 : isRatio ? 1 : 72;
  }

 private:
  struct Engine : QPaintEngine {
    Engine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*p*/, const QRectF& /*from*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*p*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
      texts.push_back({painter()->combinedTransform().map(at), item.text()});
    }
    std::vector<PlainText> texts;
  };
  mutable Engine engine_;
};

QByteArray PlainPdf(const std::vector<PlainText>& texts) {
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  QPainter painter(&writer);
  painter.setFont(ui::PrintFont(false));
  for (const PlainText& text : texts) painter.drawText(text.at, text.text);
  painter.end();
  return data;
}

/// Median and worst of some repeats.
void Report(const char* what, const std::function<void()>& work, const char* note) {
  std::vector<double> times;
  for (int i = 0; i < kRepeats; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    times.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
            .count());
  }
  std::sort(times.begin(), times.end());
  std::printf("%-40s median %6.1f ms, worst %6.1f ms  %s%s\n", what, times[times.size() / 2],
              times.back(), note, times.back() <= kPromised ? "" : "  TOO SLOW");
}

/// A library of boards with tables, which are made up: nothing is solved here.
class Bench : public TemporaryRoot {
 public:
  Bench() {
    const std::filesystem::path folder = Emptied("Boards");
    std::mt19937 random(3);
    UnflushedFolders unflushed;
    for (int number = 1; number <= kBoards; ++number) {
      Board board = RandomBoard(number, random);
      for (auto& row : board.makeable)
        std::generate(row.begin(), row.end(), [] { return std::int16_t{8}; });
      board.makeableValid = true;
      ReplaceWholeFile(folder / BoardFileName(number), WriteBoardText(board), unflushed);
    }
    session.settings.filelocation = FolderText(root);
    session.settings.library = "Boards";
    GetLibraryNames(session);
    SelectLibrary(session, "Boards");
  }

  ui::Sheets Gather() {
    auto published = GatherBoards(session, {}, true);
    return {published ? std::move(*published) : Published(), {.title = "Boards"}};
  }

  QuietHost host;
  MemoryStore store;
  Session session{host, store};
};

void Run() {
  Bench bench;
  const ui::Sheets sheets = bench.Gather();
  TextCollector collector;
  QPainter painter(&collector);
  for (int page = 0; page < sheets.Pages(); ++page) sheets.Paint(painter, page);
  painter.end();
  std::printf("%d boards on %d pages, %zu texts\n", kBoards, sheets.Pages(),
              collector.Texts().size());
  Report(
      "the same texts drawn plainly", [&] { PlainPdf(collector.Texts()); }, "floor");
  Report(
      "painted to a PDF", [&] { ui::PdfOf(sheets); }, "at most 500 ms");
  Report(
      "read from the library, painted, stored",
      [&] { ui::WritePdf(bench.Gather(), bench.root / "records.pdf"); }, "at most 500 ms");
}

}  // namespace
}  // namespace tricklet::bench

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  tricklet::bench::Run();
  return 0;
}
