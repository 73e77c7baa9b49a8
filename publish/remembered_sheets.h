// What was chosen for the last sheets, as the next ones begin with it.
#pragma once

#include <string>

#include "core/settings.h"
#include "publish/published.h"
#include "publish/sheet_choices.h"

namespace tricklet {

/// Which boards are printed, and how.
struct SheetRequest {
  BoardRange range;
  SheetChoices choices;
  friend bool operator==(const SheetRequest&, const SheetRequest&) = default;
};

/// What sheets of a library begin with where nothing else has been chosen for it.
struct SheetProposal {
  std::string library;  ///< its name, UTF-8
  std::string title;
  std::string subtitle;
  BoardRange range;  ///< from its first to its last board, or those of it that were chosen
};

/// Boards on a page of `layout`, one of `BoardsPerPage(layout)`; 0 where that cannot be chosen.
int RememberedPerPage(const PrintSettings& settings, SheetLayout layout);

/// What was chosen last. Title, subtitle and range are those of the proposal unless others were
/// chosen for this very library, so that no library is printed under the title of another, and a
/// date that was proposed once does not come back. A range without a board of the proposal's gives
/// way too.
SheetRequest RememberedSheets(const PrintSettings& settings, const SheetProposal& proposal);

/// Keeps `request` for `RememberedSheets`.
void RememberSheets(PrintSettings& settings, const SheetProposal& proposal,
                    const SheetRequest& request);

}  // namespace tricklet
