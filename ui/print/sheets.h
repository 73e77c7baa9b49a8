// Sheets of paper with the boards of a session: one paint routine for the screen, paper, PDF and
// pictures.
#pragma once

#include <QPageLayout>

#include "publish/published.h"
#include "publish/sheet_choices.h"

class QPainter;

namespace tricklet::ui {

/// Everything is measured in points (1/72 inch) from the upper left corner of the paper.
class Sheets {
 public:
  Sheets(Published published, SheetChoices choices);

  /// At least one.
  int Pages() const;
  /// The paper with its orientation, without margins: the sheets have their own.
  QPageLayout Layout() const;
  /// Paints page `page`, 0.. < Pages(), with vectors and text alone. The painter's unit is to be a
  /// point.
  void Paint(QPainter& painter, int page) const;

 private:
  Published published_;
  SheetChoices choices_;
};

}  // namespace tricklet::ui
