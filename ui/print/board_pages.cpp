#include "ui/print/board_pages.h"

#include <utility>
#include <vector>

#include <QPainter>

#include "publish/sheet_pages.h"
#include "ui/print/lesson_cell.h"
#include "ui/print/print_style.h"
#include "ui/print/record_cell.h"
#include "ui/print/sheet_grid.h"
#include "ui/print/slip_cell.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// A page of slips has columns enough for the four of a board to stand in one row or two.
SheetGrid SlipGrid(QSizeF room) {
  const bool wide = room.width() > room.height();
  return wide ? SheetGrid{4, kSlipsPerPage / 4} : SheetGrid{2, kSlipsPerPage / 2};
}

class BoardPages : public PageSource {
 public:
  BoardPages(const Published& published, const SheetChoices& choices, QSizeF room)
      : published_(published),
        choices_(choices),
        style_{.colours = choices.colours},
        pages_(PlanSheets(published, choices)),
        boards_(choices.layout == SheetLayout::Slips
                    ? SlipGrid(room)
                    : BestGrid(room, choices.perPage, RecordFontSize)),
        answers_(BestGrid(room, AnswersPerPage(choices), RecordFontSize)) {}

  int Pages() const override { return static_cast<int>(pages_.size()); }
  QString Heading(int page) const override { return ToQt(At(page).heading); }
  QString Foot(int page) const override { return ToQt(At(page).foot); }

  void Paint(QPainter& painter, const QRectF& room, int page) const override {
    const SheetPage& plan = At(page);
    const SheetGrid& grid = plan.kind == SheetKind::Answers ? answers_ : boards_;
    if (choices_.layout != SheetLayout::Slips)
      grid.PaintRules(painter, room, static_cast<int>(plan.items.size()), style_);
    int index = 0;
    for (const SheetItem& item : plan.items)
      PaintItem(painter, item, plan.kind, grid.Cell(room, index++));
  }

 private:
  const SheetPage& At(int page) const { return pages_.at(static_cast<std::size_t>(page)); }

  void PaintItem(QPainter& painter, const SheetItem& item, SheetKind kind,
                 const QRectF& cell) const {
    const PublishedBoard& published = published_.boards.at(item.board);
    if (item.seat) {
      PaintCutMarks(painter, cell, style_);
      PaintSlip(painter, published.board, *item.seat, cell, style_);
    } else if (choices_.layout == SheetLayout::Lesson) {
      const bool answers = kind == SheetKind::Answers;
      PaintLesson(painter, published, answers ? AnswerPartsOf(choices_) : LessonPartsOf(choices_),
                  cell, style_);
    } else {
      PaintRecord(painter, published,
                  {.points = choices_.points, .table = choices_.table, .par = choices_.par}, cell,
                  style_);
    }
  }

  const Published& published_;
  SheetChoices choices_;
  PrintStyle style_;
  std::vector<SheetPage> pages_;
  SheetGrid boards_;
  SheetGrid answers_;
};

}  // namespace

std::unique_ptr<PageSource> MakeBoardPages(const Published& published, const SheetChoices& choices,
                                           QSizeF room) {
  return std::make_unique<BoardPages>(published, choices, room);
}

}  // namespace tricklet::ui
