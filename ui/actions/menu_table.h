// Where the actions are offered: menu bar, toolbar and context menus.
#pragma once

#include <span>

namespace tricklet::ui {

/// A menu of the menu bar: its title, and the names of its actions in order. "|" is a separator,
/// and "Name>" begins a submenu of that title that ends at "<".
struct MenuEntry {
  const char* title;
  const char* actions;
};
std::span<const MenuEntry> MenuTable();

/// The toolbar: "|" or the name of a button, "=" and that of its action.
extern const char* const kToolbar;

/// The menu of the toolbar's button `tbrHands`, as in `MenuEntry::actions`.
extern const char* const kHandsMenu;

/// Actions of the context menus, as in `MenuEntry::actions`.
extern const char* const kTableContext;
extern const char* const kBoardListContext;
extern const char* const kTravellerContext;

}  // namespace tricklet::ui
