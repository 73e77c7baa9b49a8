// Plays that somebody has made, kept among the records of a library.
//
// A kept play is no result of the session: its record has contract, declarer and tricks, but in the
// place of the score the word for a board that was not played. So it has no score in the traveller,
// no match points or IMPs, and nobody is ranked by it.
#pragma once

#include <string>

#include "core/recorded_play.h"
#include "formats/results/lin_file.h"

namespace tricklet {

/// `name` sits in `seat`, and the other seats are called by their names.
PerSeat<std::string> PlayersWith(Seat seat, const std::string& name);

/// The line for `LinFile::lin`.
std::string LinLineOfPlay(const RecordedPlay& play, const PerSeat<std::string>& players);

/// Appends `play` to the current library's "LIN.txt", which is made where there is none. False,
/// after a message, when no card was played, when `name` is empty, or when another program is
/// changing the library. Throws `Fault`, and then the file is as it was.
bool KeepPlay(Session& session, const RecordedPlay& play, Seat seat, const std::string& name);

}  // namespace tricklet
