// The ranking of a session as a member of the page's data.
#pragma once

#include <string>

#include "publish/published.h"
#include "publish/web/entrants.h"
#include "publish/web/json_writer.h"
#include "publish/web/shown_names.h"

namespace tricklet {

/// Writes the key "ranking" and its object into the open object, as `WebData` describes it; nothing
/// when the session has no results.
void WriteRanking(JsonWriter& json, const Published& published, const Entrants& entrants,
                  NamesShown names);

/// The names of a contestant as they are published; those of a team pair by pair.
std::string ContestantNames(const std::string& fullNames, Contestants contestants,
                            NamesShown names);

/// A player of the session is named in the sentence.
bool NamesSomebody(const std::string& sentence, const Published& published);

}  // namespace tricklet
