// What has just happened on the table, in a sentence to be read aloud.
#pragma once

#include <QString>

#include "ui/table/table_scene.h"

namespace tricklet::ui {

/// "king of spades", "10 of hearts".
QString CardWords(Card card);

/// What changed from one scene to the next: "West plays the king of spades. North to play.", "North
/// wins the trick. NS: 1. EW: 0. North to play.", "Board 8". Empty when nothing did that a listener
/// would miss.
QString NewsOf(const TableScene& before, const TableScene& now);

}  // namespace tricklet::ui
