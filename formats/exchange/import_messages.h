// The messages about an import that has ended.
#pragma once

#include <set>
#include <string>

#include "formats/sink/board_sink.h"

namespace tricklet {

/// "3 hands (5-7) have been saved to the library - Club", as the reader counts them.
std::string SavedText(const ReadResult& result, const std::string& libraryName);

/// Where the line that could not be read stands, what is wrong with it where the line itself does
/// not show that, and what to do. `file` is fit to be shown.
std::string BadLineText(const ReadResult& result, const std::string& file);

/// Which boards were stored; empty when none was, or when those that `SavedText` names were.
std::string StoredText(const ReadResult& result, const std::set<int>& stored);

/// Which boards a failed import has stored and which of those that are known to be in the file it
/// has not; empty when it has stored none.
std::string PartText(const std::set<int>& stored, std::set<int> unstored);

/// What the file holds and the library does not, a line for each reason; empty when there is
/// nothing to tell.
std::string LeftOutText(const LeftOut& leftOut);

}  // namespace tricklet
