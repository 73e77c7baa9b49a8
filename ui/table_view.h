// The table: four hands, their captions, dealer and vulnerability.
#pragma once

#include <QWidget>
#include <optional>

#include "core/board.h"
#include "core/settings.h"

namespace tricklet::ui {

/// Draws a board; scales with its size. It holds a copy of what it shows and changes nothing.
class TableView : public QWidget {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  /// Shows `board` as `settings` ask.
  void Show(const Board& board, const Settings& settings);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Board board_;
  Settings settings_;
};

}  // namespace tricklet::ui
