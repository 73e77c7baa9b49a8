// The table: four hands, their captions, dealer and vulnerability.
#pragma once

#include <optional>
#include <vector>

#include <QWidget>

#include "analysis/solver.h"
#include "core/board.h"
#include "core/settings.h"
#include "play/card_play.h"
#include "ui/cards/card_back.h"
#include "ui/cards/card_painter.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_captions.h"
#include "ui/table/table_edit.h"
#include "ui/table/table_keys.h"
#include "ui/table/table_layout.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

/// Draws a board; scales with its size. It holds a copy of what it shows and changes nothing.
class TableView : public QWidget {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  /// Shows `board` as `settings` ask. While it is being played, `play` tells which cards are left
  /// and what lies on the table; during an auction `toCall` is the player to call.
  void Show(const Board& board, const Settings& settings, const CardPlay* play = nullptr,
            std::optional<Seat> toCall = std::nullopt);
  /// Shows `board` with its pack, to be edited in the way that the settings name. The cards are
  /// what is moved, so they are shown as faces whatever the settings say.
  void ShowEdit(const Board& board, const Settings& settings);

  /// Writes on cards of the hand on play the tricks that they lead to; without any, writes nothing.
  void ShowBestCards(std::vector<CardScore> best);

  /// Where everything lies at the present size. During play these are the cards left, the legal
  /// ones raised, and their ranks in the text display.
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
  /// A card was moved to a hand, or to the pack when there is no `to`.
  void MoveAsked(Card card, std::optional<Seat> to);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PerSeat<Caption> Captions() const;
  void PlaceCardsLeft(TableLayout& layout, const PlaySnapshot& play) const;
  void PlaceRanksLeft(TableLayout& layout, const PlaySnapshot& play) const;
  void DrawFelt(QPainter& painter, const TableLayout& layout, const TableColours& colours) const;
  void DrawMiddle(QPainter& painter, const TableLayout& layout, const TableColours& colours);
  void DrawCards(QPainter& painter, const TableLayout& layout);
  void DrawText(QPainter& painter, const TableLayout& layout) const;
  void DrawEditing(QPainter& painter, const TableEdit& edit, const TableColours& colours);
  void Describe();
  void ShowCursor(QPointF mouse);
  void ShowEditCursor(const TableEdit& edit, QPointF mouse);
  void Ask(const std::optional<CardMove>& move);
  bool EditKey(TableEdit& edit, const QKeyEvent& event);
  bool IsOurKey(const QKeyEvent& event) const;

  Board board_;
  Settings settings_;
  std::optional<PlaySnapshot> play_;
  std::optional<TableEdit> edit_;
  std::optional<Seat> toCall_;
  std::vector<CardScore> best_;
  TableKeys keys_;
  CardPainter cards_;
  CardPainter trickCards_;
  CardPainter packCards_;
  CardBacks backs_;
};

}  // namespace tricklet::ui
