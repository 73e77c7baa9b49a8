// The tricks that declarer can still end with, card by card, as a line.
#pragma once

#include <optional>

#include <QWidget>

#include "review/play_review.h"

namespace tricklet::ui {

/// A line over the cards of a play, with the contract's need as a dashed line across it and a dot
/// for each card that gave tricks away. A click, or the arrow keys, ask for a place of the play.
class TricksChart : public QWidget {
  Q_OBJECT

 public:
  explicit TricksChart(QWidget* parent = nullptr);

  /// Shows `review`. `place`, the cards seen so far, 0..52, is marked by an upright line; where
  /// there is none, as in a play that is being made, no place can be asked for.
  void Show(const PlayReview& review, std::optional<int> place);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The place after so many cards is to be shown.
  void PlaceAsked(int cards);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Axes;

  Axes AxesOf() const;
  int CardsAt(double x) const;
  void Ask(int cards);
  void DrawScale(QPainter& painter, const Axes& axes) const;
  void DrawLine(QPainter& painter, const Axes& axes) const;
  void DrawPlace(QPainter& painter, const Axes& axes) const;

  PlayReview review_;
  std::optional<int> place_;
  bool ring_ = false;  // the focus has come by the keyboard
};

}  // namespace tricklet::ui
