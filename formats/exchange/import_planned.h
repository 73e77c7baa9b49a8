// Storing a file as a person has decided after a look at it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/exchange/import_outcome.h"
#include "formats/exchange/look_at.h"
#include "library/session.h"

namespace tricklet {

/// Stores the boards of `look.contents` by `choices` with their results and notes, in the open
/// library or in a new one, and in further ones where the numbers do not suffice: "Club-2",
/// "Club-3". Results and notes of other boards stay. Tells how it went, library by library, and
/// opens the first of them.
ImportOutcome StorePlanned(Session& session, const ImportLook& look, const ImportChoices& choices);

/// The names of the libraries that a plan of so many parts fills: `library`, then "Club-2" and so
/// on, as none has them yet.
std::vector<std::string> PartNames(const Session& session, const std::string& library, int parts);

/// The name of the library that the section at `at` gets, where each has its own.
std::string SectionLibrary(const Session& session, const ImportLook& look, std::size_t at);

/// A name that a new library can have: as `wanted` as may be, "league-final", or "league-final-2"
/// where that is taken. Never empty.
std::string LibraryNameFor(const Session& session, std::string_view wanted);

}  // namespace tricklet
