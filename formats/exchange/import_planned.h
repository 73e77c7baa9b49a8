// Storing a file as a person has decided after a look at it.
#pragma once

#include <string>
#include <string_view>

#include "formats/exchange/import_outcome.h"
#include "formats/exchange/look_at.h"
#include "library/session.h"

namespace tricklet {

/// Stores the boards of `look.contents` by `choices` with their results and notes, in the open
/// library or in a new one, and in further ones where the numbers do not suffice: "Club-2",
/// "Club-3". Results and notes of other boards stay. Tells how it went, library by library, and
/// opens the first of them.
ImportOutcome StorePlanned(Session& session, const ImportLook& look, const ImportChoices& choices);

/// A name that a new library can have: as `wanted` as may be, "league-final", or "league-final-2"
/// where that is taken. Never empty.
std::string LibraryNameFor(const Session& session, std::string_view wanted);

}  // namespace tricklet
