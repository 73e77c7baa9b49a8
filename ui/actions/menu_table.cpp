#include "ui/actions/menu_table.h"

#include <array>

#include <QCoreApplication>

namespace tricklet::ui {
namespace {

constexpr std::array kMenus{
    MenuEntry{
        QT_TR_NOOP("&File"),
        "mnuOpen mnuRecent> < mnuImport mnuImportLin mnuPasteLin mnuExport | mnuPrint mnuPublish | "
        "mnuSave mnuRevert | mnuExit"},
    MenuEntry{QT_TR_NOOP("&Edit"),
              "mnuUndo mnuRedo | mnuCopyHand mnuCopyDiagram mnuPasteHand | mnuEdit | mnuOptions"},
    MenuEntry{QT_TR_NOOP("&Library"),
              "mnuRenameLibrary mnuNewLibrary mnuCopyLibrary mnuDeleteLibrary | mnuGenerate | "
              "mnuRefresh | mnuImportLibrary mnuImportLibraries mnuExportLibrary "
              "mnuExportLibraries | mnuMoveLibraries"},
    MenuEntry{QT_TR_NOOP("&Board"),
              "mnuNext mnuPrevious mnuFirst mnuLast mnuGoTo mnuFind mnuFindBoards mnuNotes | "
              "mnuSwap | mnuRandom "
              "mnuFillFourth mnuUndoFill | mnuClearBoard mnuUndoClear"},
    MenuEntry{QT_TR_NOOP("&Play"),
              "mnuBidding | mnuPlay mnuPlayOn mnuUndoCard mnuGatherTrick mnuClaim mnuClaimTricks "
              "mnuKeepPlay | mnuProgramCard mnuBestLine mnuDefendBest mnuDeclareBest | "
              "mnuNextMistake mnuPreviousMistake"},
    MenuEntry{QT_TR_NOOP("&Analysis"),
              "mnuDDS mnuAnalyse | mnuSimulate mnuDealStatistics | mnuBSOL"},
    MenuEntry{
        QT_TR_NOOP("&Results"),
        "mnuTraveller mnuReport | mnuLinForward mnuLinBack mnuLinNextTrick mnuLinPreviousTrick "
        "mnuLinLeave"},
    MenuEntry{QT_TR_NOOP("&View"),
              "mnuHands mnuHideDeclaring mnuHideDefenders mnuHideNorth mnuHideEast mnuHideSouth "
              "mnuHideWest | mnuStatistics "
              "mnuMakeable mnuBestCards mnuCardFaces | mnuColours> mnuColoursSystem "
              "mnuColoursLight mnuColoursDark < mnuTools> mnuToolsUnder mnuToolsBeside "
              "mnuToolsIcons < mnuColumns> mnuWidenLeft mnuNarrowLeft mnuWidenRight mnuNarrowRight "
              "< | mnuPresentation mnuPresentationPanes mnuLeavePresentation"},
    MenuEntry{QT_TR_NOOP("&Help"),
              "mnuHelp mnuNewFeatures | mnuNewVersion mnuCheckForUpdates | mnuAbout"},
};

}  // namespace

const char* const kToolbar =
    "tbrOpen=mnuOpen cmdSave=mnuSave tbrPrint=mnuPrint | tbrPrevious=mnuPrevious tbrNext=mnuNext | "
    "cmdBidding=mnuBidding cmdPlay=mnuPlay tbrUndo=mnuUndo tbrRedo=mnuRedo tbrClaim=mnuClaim | "
    "tbrBestCards=mnuBestCards cmdDDS=mnuDDS cmdBSOL=mnuBSOL | cmdEdit=mnuEdit cmdSwap=mnuSwap "
    "cmdGenerate=mnuGenerate | tbrHands=mnuHands tbrPresent=mnuPresentation";
const char* const kHandsMenu =
    "mnuHands | mnuHideDeclaring mnuHideDefenders | mnuHideNorth mnuHideEast mnuHideSouth "
    "mnuHideWest";
const char* const kTableContext =
    "mnuUndo mnuRedo | mnuBidding mnuPlay mnuPlayOn mnuProgramCard mnuClaim | mnuEdit mnuSwap | "
    "mnuDDS mnuBSOL | mnuHands mnuHideDeclaring mnuHideDefenders mnuHideNorth mnuHideEast "
    "mnuHideSouth mnuHideWest | mnuCopyHand mnuCopyDiagram mnuPasteHand | mnuSave "
    "mnuRevert | mnuPresentation";
const char* const kBoardListContext =
    "mnuCopyHand mnuPasteHand | mnuSave mnuRevert | mnuDDS mnuAnalyse | mnuFind mnuFindBoards "
    "mnuGoTo";
const char* const kTravellerContext =
    "mnuLinForward mnuLinBack mnuLinNextTrick mnuLinPreviousTrick | mnuNextMistake "
    "mnuPreviousMistake | mnuPlayOn mnuLinLeave | mnuTraveller";

std::span<const MenuEntry> MenuTable() {
  return kMenus;
}

}  // namespace tricklet::ui
