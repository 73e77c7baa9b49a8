// The table: four hands, their captions, dealer and vulnerability.
#pragma once

#include <optional>

#include <QWidget>

#include "core/board.h"
#include "core/settings.h"
#include "play/card_play.h"
#include "ui/card_painter.h"
#include "ui/table_layout.h"

namespace tricklet::ui {

struct TableColours;

/// Draws a board; scales with its size. It holds a copy of what it shows and changes nothing.
class TableView : public QWidget {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  /// Shows `board` as `settings` ask. While it is being played, `play` tells which cards are left
  /// and what lies on the table; during an auction `toCall` is the player to call.
  void Show(const Board& board, const Settings& settings, const CardPlay* play = nullptr,
            std::optional<Seat> toCall = std::nullopt);

  /// Where everything lies at the present size.
  TableLayout Layout() const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 signals:
  /// A card of a hand was clicked or typed during play.
  void CardAsked(Card card);
  /// Space: the only legal card.
  void OnlyCardAsked();
  /// The table was clicked beside the cards.
  void TrickAsked();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void DrawFelt(QPainter& painter, const TableLayout& layout, const TableColours& colours) const;
  void DrawCaptions(QPainter& painter, const TableLayout& layout,
                    const TableColours& colours) const;
  void DrawCards(QPainter& painter, const TableLayout& layout);
  void DrawText(QPainter& painter, const TableLayout& layout) const;

  Board board_;
  Settings settings_;
  CardPainter cards_;
};

}  // namespace tricklet::ui
