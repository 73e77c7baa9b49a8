// The table: four hands, their captions, dealer and vulnerability.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QWidget>

#include "analysis/solver.h"
#include "core/board.h"
#include "core/settings.h"
#include "play/card_play.h"
#include "ui/cards/card_painter.h"
#include "ui/table/contract_labels.h"
#include "ui/table/scene_painter.h"
#include "ui/table/table_edit.h"
#include "ui/table/table_keys.h"
#include "ui/table/table_scene.h"

namespace tricklet::ui {

class EmptyTable;

/// Draws a board; scales with its size. It holds a copy of what it shows and changes nothing.
class TableView : public QWidget {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  /// Shows `board` as `settings` ask. While it is being played, `play` tells which cards are left
  /// and what lies on the table; during an auction `toCall` is the player to call. `names` are
  /// those of the players, UTF-8, where they are known.
  void Show(const Board& board, const Settings& settings, const CardPlay* play = nullptr,
            std::optional<Seat> toCall = std::nullopt, const PerSeat<std::string>& names = {});
  /// Shows `board` with its pack, to be edited in the way that the settings name. The cards are
  /// what is moved, so they are shown as faces whatever the settings say, and no hand is hidden.
  void ShowEdit(const Board& board, const Settings& settings);
  /// Shows what can be done with a library that has no board, until something else is shown.
  void ShowEmpty();

  /// Writes on cards of the hand on play the tricks that they lead to; without any, writes nothing.
  void ShowBestCards(std::vector<CardScore> best);

  /// Hands that lie face down from now on, whatever board is shown.
  void SetHidden(const PerSeat<bool>& hidden);
  const PerSeat<bool>& Hidden() const { return scene_.hidden; }
  /// Captions that can be read from the back of a room: at least 1/30 of the table's height.
  void SetPresentation(bool on);

  /// What is shown. While hands are edited, nothing is hidden, whatever it says.
  const TableScene& Scene() const { return scene_; }

  /// Where everything lies at the present size. During play these are the cards left, the legal
  /// ones raised, and their ranks in the text display.
  TableLayout Layout() const;

  /// The table and the choices of an empty one.
  QList<QWidget*> TabOrder();

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 signals:
  /// A card of a hand was clicked or typed during play.
  void CardAsked(Card card);
  /// Space: the only legal card.
  void OnlyCardAsked();
  /// The table was clicked beside the cards.
  void TrickAsked();
  /// The caption of a hand was clicked: it is to be hidden, or shown again.
  void HideAsked(Seat seat);
  /// A card was moved to a hand, or to the pack when there is no `to`.
  void MoveAsked(Card card, std::optional<Seat> to);
  /// Why the card that was moved last stays where it is; comes after `MoveAsked`.
  void Refused(const QString& why);
  /// The choices of an empty table.
  void OpenAsked();
  void GenerateAsked();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowScene(TableScene scene);
  void ShowEmptyTable(bool shown);
  void DrawEditing(QPainter& painter, const TableEdit& edit, const TableColours& colours);
  void PlaceChildren();
  void Describe(const QString& news);
  void ShowCursor(QPointF mouse);
  void ShowEditCursor(const TableEdit& edit, QPointF mouse);
  std::optional<Seat> CaptionAt(QPointF point) const;
  bool ShowTip(const QHelpEvent& event);
  void Press(QPointF at);
  void Ask(const std::optional<CardMove>& move);
  bool EditKey(TableEdit& edit, const QKeyEvent& event);
  bool IsOurKey(const QKeyEvent& event) const;
  bool IsRankKey(const QKeyEvent& event) const;

  TableScene scene_;
  std::optional<TableEdit> edit_;
  QString described_;  // what is on the table, in words
  bool isEmpty_ = false;
  bool ring_ = false;  // the focus has come by the keyboard
  std::vector<CardScore> best_;
  TableKeys keys_;
  ScenePainter painter_;
  CardPainter cards_;  // while editing
  CardPainter packCards_;
  ContractLabels contract_;
  EmptyTable* empty_;
};

}  // namespace tricklet::ui
