// The texts of the pills beside the hands.
#pragma once

#include <optional>
#include <string>

#include <QString>

#include "core/board.h"
#include "core/settings.h"

namespace tricklet::ui {

/// What the captions tell besides the board.
struct CaptionFacts {
  PerSeat<std::string> names;  ///< of the players, UTF-8; empty where not known
  PerSeat<bool> hidden;        ///< nothing is told of the cards of these hands
  bool play = false;           ///< the board is being played
  std::optional<Seat> toAct;   ///< to play, or to call when there is no play
};

/// The captions of the four hands; empty ones are not shown. A board without cards has none, but
/// that of the player to call.
///
/// In full: "North: 12 cards : HCP=12 LTC=6 Dummy" as the caption switches ask, and during play
/// "North: Dummy", "East: to play". In short: "North · Ann · 12 points · 6 losers · dummy", "East ·
/// Di · to play", of which points, losers and roles have switches.
PerSeat<QString> CaptionTexts(const Board& board, const Settings& settings,
                              const CaptionFacts& facts);

/// The captions while hands are edited: all with the seat's name, of empty hands too.
PerSeat<QString> EditCaptions(const Board& board, const Settings& settings);
/// "Pack: 12 cards", or "Pack · 12 cards".
QString PackCaption(const Board& board, const Settings& settings);

}  // namespace tricklet::ui
