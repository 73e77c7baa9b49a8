// Sheets of paper with the boards of a session: one paint routine for the screen, paper, PDF and
// pictures.
#pragma once

#include <memory>
#include <vector>

#include <QPageLayout>
#include <QRectF>

#include "publish/published.h"
#include "publish/sheet_choices.h"
#include "publish/sheet_tables.h"

class QPainter;

namespace tricklet::ui {

class PageSource;

/// Everything is measured in points (1/72 inch) from the upper left corner of the paper. A value:
/// copies share the boards.
class Sheets {
 public:
  Sheets(Published published, SheetChoices choices);
  /// Shares boards that others look at too.
  Sheets(std::shared_ptr<const Published> published, SheetChoices choices);
  /// Tables that belong to no layout: of `choices` only paper, titles and colours count.
  Sheets(std::vector<SheetTable> tables, SheetChoices choices);

  const SheetChoices& Choices() const { return choices_; }
  /// At least one.
  int Pages() const;
  /// The paper with its orientation, without margins: the sheets have their own.
  QPageLayout Layout() const;
  /// Paints page `page`, 0.. < Pages(), with vectors and text alone. The painter's unit is to be a
  /// point.
  void Paint(QPainter& painter, int page) const;

 private:
  /// Between the head and the foot of a page.
  QRectF Room() const;
  void PaintFrame(QPainter& painter, int page) const;

  std::shared_ptr<const Published> published_;
  SheetChoices choices_;
  std::shared_ptr<const PageSource> source_;
};

}  // namespace tricklet::ui
