// Where the pages of a layout come from: what stands between the head and the foot of each.
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace tricklet::ui {

/// One for each layout. What it paints is read from the values that it was made of, which outlive
/// it.
class PageSource {
 public:
  PageSource() = default;
  PageSource(const PageSource&) = delete;
  PageSource& operator=(const PageSource&) = delete;
  virtual ~PageSource() = default;

  virtual int Pages() const = 0;
  /// What page `page`, 0.. < Pages(), is headed with: "Hand records, boards 1 to 18".
  virtual QString Heading(int page) const = 0;
  /// An explanation for its foot; may be empty.
  virtual QString Foot(int page) const = 0;
  /// Paints nothing outside `room`, which is as large as the one for which the source was made.
  virtual void Paint(QPainter& painter, const QRectF& room, int page) const = 0;
};

}  // namespace tricklet::ui
