// The contract and the tricks of both sides, as labels over the table.
#pragma once

#include <optional>
#include <vector>

#include <QPainter>

#include "ui/table/table_scene.h"
#include "ui/table/table_style.h"

class QLabel;
class QWidget;

namespace tricklet::ui {

/// During play "4S by South · NS: 4 · EW: 2" lies in the line below the trick, or in its two lines;
/// at other times the contract alone in the middle of the table. The labels let the mouse through.
class ContractLabels {
 public:
  explicit ContractLabels(QWidget* table);

  void Show(const TableScene& scene);
  /// No contract is known while hands are edited and where there is no board.
  void Hide();
  /// Puts them into their places in `layout`. The colours are those of what lies below them.
  void Place(const TableScene& scene, const TableLayout& layout, const TableColours& colours);
  /// The dots between the texts.
  void DrawDots(QPainter& painter, const TableColours& colours) const;

 private:
  std::vector<std::vector<QLabel*>> RowsFor(int lines) const;
  void PlaceInLine(const std::vector<QLabel*>& labels, const QRectF& line);

  QLabel* lblContract;
  PerSide<QLabel*> lblTricks;
  std::vector<std::vector<QLabel*>> rows_;  // during play, from left to right
};

}  // namespace tricklet::ui
