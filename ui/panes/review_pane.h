// The left column's lower part: where a play lost its tricks.
#pragma once

#include <array>
#include <optional>

#include "core/settings.h"
#include "ui/panes/review_texts.h"
#include "ui/style/folding_section.h"

class QGridLayout;

namespace tricklet::ui {

class TricksChart;

/// The tricks that declarer can still end with as a line, who gave away how many, and the result
/// against double-dummy play.
class ReviewPane : public FoldingSection {
  Q_OBJECT

 public:
  explicit ReviewPane(QWidget* parent = nullptr);

  /// Shows `review`, with its result at the table that `at` tells. `place` is the one that was
  /// stepped to in a record, in cards.
  void Show(const PlayReview& review, const PlayedAt& at, std::optional<int> place);
  /// Says why there is no review, or that it is being made where `why` is empty.
  void ShowNone(const QString& why);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  /// The place of a record after so many cards is to be shown.
  void PlaceAsked(int cards);

 private:
  /// Declarer, and the two defenders in the order of play.
  static constexpr int kPlayers = 3;
  struct Row {
    QLabel* player;
    QLabel* lead;
    QLabel* play;
  };

  void BuildTable();
  void ShowTable(const PlayReview& review);
  void ShowCount(QLabel* label, std::optional<int> count, const QString& what);

  QWidget* fraReview_;
  QLabel* lblTricks_;
  TricksChart* picReview_;
  QGridLayout* table_;
  std::array<Row, kPlayers> rows_{};
  QLabel* lblResult_;
  QLabel* lblRemark_;
  QLabel* lblDoubleDummy_;
  QLabel* lblWhy_;
};

}  // namespace tricklet::ui
