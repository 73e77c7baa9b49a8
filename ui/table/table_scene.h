// What the table shows at one moment, outside of editing: a copy, so that painting asks nobody.
#pragma once

#include <optional>
#include <string>

#include "core/board.h"
#include "core/settings.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_captions.h"
#include "ui/table/table_layout.h"
#include "ui/table/text_hands.h"

namespace tricklet::ui {

struct TableScene {
  Board board;
  Settings settings;
  std::optional<PlaySnapshot> play;
  std::optional<Seat> toCall;  ///< during an auction
  PerSeat<std::string> names;  ///< of the players, UTF-8; empty where not known
  PerSeat<bool> hidden;        ///< these hands lie face down
  bool presentation = false;   ///< captions that can be read from the back of a room

  /// The cards that are in the hands now.
  const HandTable& Hands() const { return play ? play->now.cardsLeft : board.hands; }
};

/// Where everything lies in a table of `size`. The hands are close up; during play the legal cards
/// are raised, and in the text display `cards` are the ranks. Hands face down have no `cards`.
TableLayout LayOutScene(const TableScene& scene, QSizeF size, double dotsPerInch);

/// The measures of the text display, and where it has the panel of a hand: that of the whole hand
/// during play too, so that nothing moves with each card.
TextHandMeasures MeasureText(const TableScene& scene, const TableLayout& layout,
                             double dotsPerInch);
QRectF TextPanel(const TableScene& scene, const TableLayout& layout,
                 const TextHandMeasures& measures, Seat seat);

PerSeat<Caption> SceneCaptions(const TableScene& scene, std::optional<Suit> halfTyped);

/// The scene in words, for a screen reader.
QString DescribeScene(const TableScene& scene);

}  // namespace tricklet::ui
