// The left column's lower part: points, losers and lengths of the four hands.
#pragma once

#include "core/notation.h"
#include "library/session.h"
#include "ui/style/section.h"

namespace tricklet::ui {

/// Points, losers and lengths of the four hands, and the losers of both sides.
class StatisticsPane : public Section {
  Q_OBJECT

 public:
  explicit StatisticsPane(QWidget* parent = nullptr);

  void Show(const Session& session);

 private:
  PerSuit<QLabel*> symbols_;
  PerSeat<QLabel*> points_;
  PerSeat<QLabel*> losers_;
  PerSeat<PerSuit<QLabel*>> lengths_;
  QLabel* pairs_;
};

}  // namespace tricklet::ui
