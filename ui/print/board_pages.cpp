#include "ui/print/board_pages.h"

#include <utility>
#include <vector>

#include <QPainter>

#include "publish/sheet_pages.h"
#include "ui/print/print_style.h"
#include "ui/print/record_cell.h"
#include "ui/print/sheet_grid.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

class BoardPages : public PageSource {
 public:
  BoardPages(const Published& published, const SheetChoices& choices, QSizeF room)
      : published_(published),
        choices_(choices),
        style_{.colours = choices.colours},
        pages_(PlanSheets(published, choices)),
        boards_(BestGrid(room, choices.perPage, RecordFontSize)) {}

  int Pages() const override { return static_cast<int>(pages_.size()); }
  QString Heading(int page) const override { return ToQt(At(page).heading); }
  QString Foot(int page) const override { return ToQt(At(page).foot); }

  void Paint(QPainter& painter, const QRectF& room, int page) const override {
    const SheetPage& plan = At(page);
    boards_.PaintRules(painter, room, static_cast<int>(plan.items.size()), style_);
    int index = 0;
    for (const SheetItem& item : plan.items) {
      PaintRecord(painter, published_.boards.at(item.board), choices_, boards_.Cell(room, index++),
                  style_);
    }
  }

 private:
  const SheetPage& At(int page) const { return pages_.at(static_cast<std::size_t>(page)); }

  const Published& published_;
  SheetChoices choices_;
  PrintStyle style_;
  std::vector<SheetPage> pages_;
  SheetGrid boards_;
};

}  // namespace

std::unique_ptr<PageSource> MakeBoardPages(const Published& published, const SheetChoices& choices,
                                           QSizeF room) {
  return std::make_unique<BoardPages>(published, choices, room);
}

}  // namespace tricklet::ui
