// The table of everything that a person can ask the window for.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include <QString>

#include "core/settings.h"
#include "ui/actions/window_state.h"

namespace tricklet::ui {

class Commands;
class Results;

/// What the window itself carries out, as it concerns nothing but what is shown.
enum class WindowAsk : std::uint8_t {
  Presentation,
  PresentationPanes,
  LeavePresentation,
  Traveller,
  PlayOn,
  NextMistake,
  PreviousMistake,
  FindBoards,
  Notes,
  CopyDiagram,
  HideHands,
  HideDeclaring,
  HideDefenders,
  HideNorth,
  HideEast,
  HideSouth,
  HideWest,
  WidenLeft,
  NarrowLeft,
  WidenRight,
  NarrowRight,
};

/// What carries an action out; a setting is flipped, a scheme or style is chosen.
using ActionRun = std::variant<std::monostate, void (Commands::*)(), void (Results::*)(),
                               bool Settings::*, ColourScheme, ToolbarStyle, WindowAsk>;

/// One row. Texts are translated where they are shown.
struct ActionEntry {
  const char* name;       ///< object name of the action, "mnuSave"
  const char* text;       ///< in menus, with its mnemonic: "&Save board"
  const char* shortText;  ///< on the toolbar and on buttons
  const char* keys;       ///< as QKeySequence names them, the first is shown; separated by blanks
  const char* tip;        ///< what it does, in a few words
  const char* icon;       ///< name of a drawing in `ui/icons`; empty for none
  ActionRun run;
  /// Whether it can be carried out; always when null. Nothing can while work goes on.
  bool (*enabled)(const WindowState&) = nullptr;
  /// Whether its mark is set; it has none when null.
  bool (*checked)(const WindowState&) = nullptr;
  /// Its text in menus where that depends on the state; `text` when null. On the toolbar nothing
  /// changes its width.
  QString (*caption)(const WindowState&) = nullptr;
};

/// All rows, in the order of the menus.
std::span<const ActionEntry> ActionTable();

}  // namespace tricklet::ui
