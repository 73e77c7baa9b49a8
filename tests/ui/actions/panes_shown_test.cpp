#include "ui/actions/panes_shown.h"

#include <functional>

#include <gtest/gtest.h>

namespace tricklet::ui {
namespace {

std::string NamesOf(const PanesShown& shown) {
  const std::pair<const char*, bool> parts[] = {
      {"bars", shown.bars},
      {"table", shown.table},
      {"empty", shown.empty},
      {"left", shown.left},
      {"library", shown.left && shown.library},
      {"tricks", shown.left && shown.tricks},
      {"review", shown.left && shown.review},
      {"edit", shown.left && shown.edit},
      {"statistics", shown.left && shown.statistics},
      {"right", shown.right},
      {"contract", shown.right && shown.contract},
      {"makeable", shown.right && shown.makeable},
      {"notes", shown.right && shown.notes},
      {"traveller", shown.right && shown.traveller},
  };
  std::string names;
  for (const auto& [name, on] : parts) {
    if (on) names += std::string(names.empty() ? "" : " ") + name;
  }
  return names;
}

/// A complete board with auction, table and results, every pane switched on.
WindowState Full() {
  WindowState state;
  state.hasCards = state.complete = state.hasCalls = state.makeableKnown = true;
  state.hasResults = state.showStats = state.showMakeable = true;
  return state;
}

TEST(PanesShown, FollowFromTheStateAlone) {
  using S = WindowState;
  const std::tuple<const char*, std::function<void(S&)>, const char*> cases[] = {
      {"between plays", [](S&) {},
       "bars table left library statistics right contract makeable traveller"},
      {"notes", [](S& s) { s.hasNotes = true; },
       "bars table left library statistics right contract makeable notes traveller"},
      {"notes of a board that is played", [](S& s) { s.hasNotes = s.playing = true; },
       "bars table left tricks right contract makeable traveller"},
      {"notes of a board with a hidden hand",
       [](S& s) { s.hasNotes = s.hidden[Seat::East] = true; },
       "bars table left library right contract makeable traveller"},
      {"a hidden hand", [](S& s) { s.hidden[Seat::East] = true; },
       "bars table left library right contract makeable traveller"},
      {"play", [](S& s) { s.playing = true; },
       "bars table left tricks right contract makeable traveller"},
      {"play with best cards", [](S& s) { s.playing = s.showBestCards = true; },
       "bars table left tricks review right contract makeable traveller"},
      {"finished play", [](S& s) { s.playing = s.playFinished = true; },
       "bars table left library tricks review right contract makeable traveller"},
      {"record", [](S& s) { s.recordShown = true; },
       "bars table left tricks review right contract makeable traveller"},
      {"record with a hidden hand",
       [](S& s) { s.recordShown = s.showBestCards = s.hidden[Seat::East] = true; },
       "bars table left tricks right contract makeable traveller"},
      {"record of a board without an auction",
       [](S& s) {
         s.recordShown = true;
         s.hasCalls = false;
       },
       "bars table left tricks review right contract makeable traveller"},
      {"edit", [](S& s) { s.editing = true; }, "bars table left edit"},
      {"auction", [](S& s) { s.entering = true; },
       "bars table left library statistics right makeable traveller"},
      {"import", [](S& s) { s.working = true; }, "bars left library statistics"},
      {"generator or analysis", [](S& s) { s.working = s.dealing = true; },
       "bars table left library statistics"},
      {"presentation", [](S& s) { s.presentation = true; }, "table"},
      {"presentation with panes", [](S& s) { s.presentation = s.presentationPanes = true; },
       "table right contract makeable traveller"},
      {"auction in a presentation", [](S& s) { s.presentation = s.entering = true; },
       "table right"},
      {"work in a presentation", [](S& s) { s.presentation = s.working = true; }, "table"},
      {"no cards, no results",
       [](S& s) {
         s = {};
         s.showStats = s.showMakeable = true;
       },
       "bars table left library right"},
      {"empty library", [](S& s) { s = {.emptyLibrary = true}; },
       "bars table empty left library right"},
      {"first board of an empty library being edited",
       [](S& s) { s = {.editing = true, .emptyLibrary = true}; }, "bars table left edit"},
  };
  for (const auto& [what, change, shown] : cases) {
    WindowState state = Full();
    change(state);
    EXPECT_EQ(NamesOf(ShownIn(state)), shown) << what;
  }
}

}  // namespace
}  // namespace tricklet::ui
