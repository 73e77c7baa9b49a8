// The right column's upper part: the auction and the contract.
#pragma once

#include <QWidget>

#include "library/session.h"

class QLabel;
class QTableWidget;
class QToolButton;

namespace tricklet::ui {

class Section;

/// The calls in rows of four from West to South, the dealer's first; and the contract below.
class AuctionPane : public QWidget {
  Q_OBJECT

 public:
  explicit AuctionPane(QWidget* parent = nullptr);

  void Show(const Session& session);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  void ShowHeads(const Board& board);
  void ShowCalls(const Session& session);
  void ShowContract(const Session& session);
  void Expand(bool expanded);

  Section* fraAuction_;
  QToolButton* cmdBid;
  QTableWidget* flexBids;
  QLabel* lblContract;
};

}  // namespace tricklet::ui
