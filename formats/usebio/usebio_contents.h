// Everything that a results file holds: deals, results and names of all its sessions and sections.
#pragma once

#include <string>

#include "formats/contents/contents.h"

namespace tricklet {

/// Reads the bytes of a whole file, within the limits of usebio_limits.h. There is a section for
/// each event, session and section that has boards of its own; a deal that is given for several of
/// them serves each that played its board, and all of them when nobody did. Tables of one board in
/// several matches of a session are together. A record of a traveller line with LIN data is as the
/// import keeps it. Points that contradict the event's scoring word decide it: match points alone
/// are "MATCH_POINTS", cross-IMPs "XIMP" and Butler "BIMP".
///
/// A file that is no XML, or none with results, has no section, and one unread part with the
/// import's message for it. Throws nothing.
FileContents ReadUsebioContents(std::string bytes);

}  // namespace tricklet
