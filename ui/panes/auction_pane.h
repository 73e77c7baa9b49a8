// The right column's upper part: the auction.
#pragma once

#include "library/session.h"
#include "play/auction_entry.h"
#include "ui/style/section.h"

class QTableWidget;
class QToolButton;

namespace tricklet::ui {

/// The calls in rows of four from West to South, the dealer's first.
class AuctionPane : public Section {
  Q_OBJECT

 public:
  explicit AuctionPane(QWidget* parent = nullptr);

  /// Shows the board's auction. While one is being entered, shows that one and opens up for it;
  /// while a play record is looked at, shows the auction of `recorded`.
  void Show(const Session& session, const AuctionEntry* entry, const Board* recorded = nullptr);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  void ShowHeads(const Board& board);
  void ShowCalls(const Session& session, const CallList& calls);
  void Expand(bool expanded);

  QToolButton* cmdBid;
  QTableWidget* flexBids;
};

}  // namespace tricklet::ui
