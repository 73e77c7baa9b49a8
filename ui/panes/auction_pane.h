// The right column's upper part: the auction.
#pragma once

#include <optional>

#include <QFont>

#include "core/recorded_play.h"
#include "library/session.h"
#include "play/auction_entry.h"
#include "ui/style/folding_section.h"

class QTableWidget;

namespace tricklet::ui {

/// The calls in rows of four from West to South, the dealer's first.
class AuctionPane : public FoldingSection {
  Q_OBJECT

 public:
  explicit AuctionPane(QWidget* parent = nullptr);

  /// Shows the board's auction. While one is being entered, shows that one with the seat to call,
  /// and opens up for it; while a play record is looked at, shows the auction of `recorded`. Calls
  /// of which `remarks` say something have a dot, and say it where the pointer or the current cell
  /// is; those of an auction that is being entered have none.
  void Show(const Session& session, const AuctionEntry* entry, const Board* recorded = nullptr,
            const CallRemarks& remarks = {});

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

  void SetFromAfar(bool afar) override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowHeads(const Board& board, std::optional<Seat> toCall);
  void ShowCalls(const Session& session, const CallList& calls);
  void ShowRemarks(const Session& session, const CallRemarks& remarks, int calls);
  QFont FontForCalls(const FontSetting& setting) const;

  void SetSizes();

  QFont callFont_;  // of calls that have all the room that they want
  QTableWidget* flexBids;
  bool afar_ = false;
};

}  // namespace tricklet::ui
