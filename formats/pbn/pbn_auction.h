// The Auction section of a PBN game.
#pragma once

#include "core/call.h"
#include "formats/pbn/pbn_lines.h"

namespace tricklet {

/// Replaces `calls` by those of the section that follows the current line, and leaves `lines` at
/// the next line that begins with "[" (or past the end). A word that begins with "P" is a pass,
/// with "A" three passes (never more than 100 calls), with "X" a double, with "XX" a redouble,
/// with 1..7 and a denomination a bid; other words, {comments}, ";" and "%" lines are passed over.
/// Throws `Fault` FaultNumber::SubscriptOutOfRange when there are more than 100 calls.
void ReadAuction(PbnLines& lines, CallList& calls);

}  // namespace tricklet
