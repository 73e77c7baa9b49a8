#include "ui/actions/action_table.h"

#include <array>

#include <QCoreApplication>

#include "ui/actions/action_conditions.h"
#include "ui/commands/commands.h"
#include "ui/control/results.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// The context of the texts for translators.
struct Actions {
  Q_DECLARE_TR_FUNCTIONS(Actions)
};

using namespace condition;

// Texts that depend on the state.

QString UndoCaption(State state) {
  if (state.playing) return Actions::tr("&Undo card");
  return state.undoStep.empty() ? Actions::tr("&Undo")
                                : Actions::tr("&Undo %1").arg(ToQt(state.undoStep));
}
QString RedoCaption(State state) {
  if (state.playing) return Actions::tr("&Redo card");
  return state.redoStep.empty() ? Actions::tr("&Redo")
                                : Actions::tr("&Redo %1").arg(ToQt(state.redoStep));
}
QString EditCaption(State state) {
  return state.editing ? Actions::tr("Stop &editing") : Actions::tr("&Edit hands");
}
QString PlayCaption(State state) {
  if (state.playFinished) return Actions::tr("Put the &play away");
  return state.playing ? Actions::tr("Stop &play") : Actions::tr("&Play");
}
QString ClaimText(State state) {
  return state.playing ? ToQt(state.claimCaption) : Actions::tr("&Claim");
}
QString HandsCaption(State state) {
  return AnyHidden(state) ? Actions::tr("Show all &hands") : Actions::tr("&Hide all hands");
}
QString NewVersionCaption(State state) {
  return Actions::tr("&Version %1 is there...").arg(ToQt(state.newerVersion));
}

const std::array kTable{
    // File
    ActionEntry{"mnuOpen", QT_TR_NOOP("&Open..."), QT_TR_NOOP("Open"), "Ctrl+O",
                QT_TR_NOOP("Look at files of hand records and import them: PBN, LIN, DLM, USEBIO"),
                "open", &Commands::Open},
    ActionEntry{"mnuImport", QT_TR_NOOP("&Import hand records..."), "", "Ctrl+I",
                QT_TR_NOOP("Bring the boards of a file into the library"), "", &Commands::Import},
    ActionEntry{"mnuImportLin", QT_TR_NOOP("Import &LIN records..."), "", "Ctrl+Shift+I",
                QT_TR_NOOP("Bring in LIN records from a file"), "", &Commands::ImportLin},
    ActionEntry{
        "mnuPasteLin", QT_TR_NOOP("&Paste records or deal"), "", "Ctrl+Shift+V",
        QT_TR_NOOP("Bring in the hand records of the clipboard, or one deal for this board"), "",
        &Commands::PasteRecords},
    ActionEntry{"mnuExport", QT_TR_NOOP("&Export hand records..."), QT_TR_NOOP("Export"), "Ctrl+E",
                QT_TR_NOOP("Write boards of the library into a file for other programs"), "",
                &Commands::Export},
    ActionEntry{"mnuPrint", QT_TR_NOOP("Pri&nt..."), QT_TR_NOOP("Print"), "Ctrl+P",
                QT_TR_NOOP("Print hand records, lessons, deal slips and travellers"), "print",
                &Commands::Print},
    ActionEntry{"mnuPublish", QT_TR_NOOP("Publish as &web page..."), QT_TR_NOOP("Publish"),
                "Ctrl+Shift+P", QT_TR_NOOP("Write boards and results as a page for a web site"), "",
                &Commands::Publish},
    ActionEntry{"mnuSave", QT_TR_NOOP("&Save board"), QT_TR_NOOP("Save"), "Ctrl+S",
                QT_TR_NOOP("Write the board to its library"), "save", &Commands::Save,
                IsOn<&WindowState::changed>},
    ActionEntry{"mnuRevert", QT_TR_NOOP("Re&vert board"), "", "Ctrl+Shift+S",
                QT_TR_NOOP("Take back every change that has not been saved"), "", &Commands::Revert,
                CanRevert},
    ActionEntry{"mnuExit", QT_TR_NOOP("E&xit"), "", "Ctrl+Q", QT_TR_NOOP("End the program"), "",
                &Commands::Exit},
    // Edit
    ActionEntry{
        "mnuUndo", QT_TR_NOOP("&Undo"), QT_TR_NOOP("Undo"), "Ctrl+Z",
        QT_TR_NOOP(
            "Take back the last step: a change of the board, or a card or claim of the play"),
        "undo", &Commands::Undo, CanUndo, nullptr, UndoCaption},
    ActionEntry{"mnuRedo", QT_TR_NOOP("&Redo"), QT_TR_NOOP("Redo"), "Ctrl+Shift+Z Ctrl+Y",
                QT_TR_NOOP("Do again what was taken back"), "redo", &Commands::Redo, CanRedo,
                nullptr, RedoCaption},
    ActionEntry{"mnuCopyHand", QT_TR_NOOP("&Copy board"), "", "Ctrl+C",
                QT_TR_NOOP("Copy the board to the program's clipboard"), "", &Commands::CopyHand},
    ActionEntry{"mnuCopyDiagram", QT_TR_NOOP("Copy &diagram"), "", "Ctrl+Shift+C",
                QT_TR_NOOP("Copy what is on the table for letters, mails and forums"), "",
                WindowAsk::CopyDiagram, CanCopyDiagram},
    ActionEntry{"mnuPasteHand", QT_TR_NOOP("&Paste board"), "", "Ctrl+V",
                QT_TR_NOOP("Put the copied board in the place of this one"), "",
                &Commands::PasteHand, CanPaste},
    ActionEntry{"mnuEdit", QT_TR_NOOP("&Edit hands"), QT_TR_NOOP("Edit"), "Ctrl+H",
                QT_TR_NOOP("Move cards between the hands"), "edit", &Commands::EditOrStop, nullptr,
                IsOn<&WindowState::editing>, EditCaption},
    ActionEntry{"mnuOptions", QT_TR_NOOP("Pre&ferences..."), "", "Ctrl+,",
                QT_TR_NOOP("Choose how the program looks and works"), "", &Commands::Options},
    // Library
    ActionEntry{"mnuRenameLibrary", QT_TR_NOOP("&Rename library..."), "", "F2",
                QT_TR_NOOP("Give the library another name"), "", &Commands::RenameLibrary},
    ActionEntry{"mnuNewLibrary", QT_TR_NOOP("&New library..."), "", "Ctrl+N",
                QT_TR_NOOP("Make an empty library"), "", &Commands::NewLibrary, NotEditing},
    ActionEntry{"mnuCopyLibrary", QT_TR_NOOP("&Copy library..."), "", "Shift+F2",
                QT_TR_NOOP("Copy the library under another name"), "", &Commands::CopyLibrary},
    ActionEntry{"mnuDeleteLibrary", QT_TR_NOOP("&Delete library..."), "", "Ctrl+F2",
                QT_TR_NOOP("Send libraries to the recycle bin"), "", &Commands::DeleteLibrary},
    ActionEntry{"mnuGenerate", QT_TR_NOOP("&Generate deals..."), QT_TR_NOOP("Generate"),
                "Ctrl+Shift+G", QT_TR_NOOP("Fill boards with random deals"), "generate",
                &Commands::Generate},
    ActionEntry{"mnuRefresh", QT_TR_NOOP("Re&fresh"), "", "F5",
                QT_TR_NOOP("Look again which libraries and boards there are"), "",
                &Commands::RefreshLibraries},
    ActionEntry{"mnuImportLibrary", QT_TR_NOOP("&Import library..."), "", "F7",
                QT_TR_NOOP("Copy a library from another folder to here"), "",
                &Commands::ImportLibrary, NotEditing},
    ActionEntry{"mnuImportLibraries", QT_TR_NOOP("I&mport all libraries..."), "", "Shift+F7",
                QT_TR_NOOP("Copy all libraries of another folder to here"), "",
                &Commands::ImportLibraries},
    ActionEntry{"mnuExportLibrary", QT_TR_NOOP("&Export library..."), "", "F8",
                QT_TR_NOOP("Copy the library to another folder"), "", &Commands::ExportLibrary},
    ActionEntry{"mnuExportLibraries", QT_TR_NOOP("Export &all libraries..."), "", "Shift+F8",
                QT_TR_NOOP("Copy all libraries to another folder"), "", &Commands::ExportLibraries},
    ActionEntry{"mnuMoveLibraries", QT_TR_NOOP("Mo&ve libraries..."), "", "Shift+F6",
                QT_TR_NOOP("Keep the libraries in another folder from now on"), "",
                &Commands::MoveLibraries, NotEditing},
    // Board
    ActionEntry{"mnuNext", QT_TR_NOOP("&Next board"), QT_TR_NOOP("Next"), "PgDown Ctrl+Right",
                QT_TR_NOOP("Go to the next board"), "next", &Commands::NextBoard, NotEditing},
    ActionEntry{"mnuPrevious", QT_TR_NOOP("Pre&vious board"), QT_TR_NOOP("Previous"),
                "PgUp Ctrl+Left", QT_TR_NOOP("Go to the board before"), "previous",
                &Commands::PreviousBoard, NotEditing},
    ActionEntry{"mnuFirst", QT_TR_NOOP("&First board"), "", "Ctrl+Home",
                QT_TR_NOOP("Go to the first board"), "", &Commands::FirstBoard, NotEditing},
    ActionEntry{"mnuLast", QT_TR_NOOP("&Last board"), "", "Ctrl+End",
                QT_TR_NOOP("Go to the highest board"), "", &Commands::LastBoard, NotEditing},
    ActionEntry{"mnuGoTo", QT_TR_NOOP("&Go to board..."), "", "Ctrl+G",
                QT_TR_NOOP("Go to a board by its number"), "", &Commands::GoToBoard, NotEditing},
    ActionEntry{"mnuFind", QT_TR_NOOP("Fin&d boards"), "", "Ctrl+F",
                QT_TR_NOOP("Search the list of the boards"), "", WindowAsk::FindBoards,
                LibraryShown},
    ActionEntry{"mnuFindBoards", QT_TR_NOOP("Find &in libraries..."), "", "Ctrl+Alt+F",
                QT_TR_NOOP("Find boards by words or conditions, copy, renumber or print them"), "",
                &Commands::FindBoards},
    ActionEntry{"mnuNotes", QT_TR_NOOP("No&tes"), "", "Ctrl+Shift+M",
                QT_TR_NOOP("Write notes to the board, which the library keeps"), "",
                WindowAsk::Notes, CanShowNotes},
    ActionEntry{"mnuSwap", QT_TR_NOOP("Rotate/&Swap..."), QT_TR_NOOP("Swap"), "Ctrl+R",
                QT_TR_NOOP("Exchange hands or suits, or rotate the deal"), "swap", &Commands::Swap,
                NotInPlay},
    ActionEntry{"mnuRandom", QT_TR_NOOP("&Random fill"), QT_TR_NOOP("Random fill"), "Ctrl+Shift+R",
                QT_TR_NOOP("Deal the pack at random to the hands that lack cards"), "",
                &Commands::RandomFill, CanFill},
    ActionEntry{"mnuFillFourth", QT_TR_NOOP("F&ourth hand"), QT_TR_NOOP("Fourth hand"), "Ctrl+4",
                QT_TR_NOOP("Give the pack to the last hand that lacks cards"), "",
                &Commands::FillFourth, CanFillFourth},
    ActionEntry{"mnuUndoFill", QT_TR_NOOP("&Undo fill"), QT_TR_NOOP("Undo fill"), "Ctrl+Alt+R",
                QT_TR_NOOP("The cards as before the last fill"), "", &Commands::UndoFill,
                CanUndoFill},
    ActionEntry{"mnuClearBoard", QT_TR_NOOP("&Clear board"), QT_TR_NOOP("Clear"), "Ctrl+Shift+Del",
                QT_TR_NOOP("Take all cards and the auction away"), "", &Commands::ClearHands,
                NotInPlay},
    ActionEntry{"mnuUndoClear", QT_TR_NOOP("Undo cle&ar"), QT_TR_NOOP("Undo clear"), "Ctrl+Shift+U",
                QT_TR_NOOP("Cards and auction as before they were cleared"), "",
                &Commands::UndoClear, CanUndoClear},
    // Play
    ActionEntry{"mnuBidding", QT_TR_NOOP("&Bidding..."), QT_TR_NOOP("Bidding"), "Ctrl+B",
                QT_TR_NOOP("Enter the auction"), "bidding", &Commands::Bidding, CanBid},
    ActionEntry{"mnuPlay", QT_TR_NOOP("&Play"), QT_TR_NOOP("Play"), "F9",
                QT_TR_NOOP("Play the board card by card"), "play", &Commands::PlayOrStop,
                CanPlayOrStop, IsOn<&WindowState::playing>, PlayCaption},
    ActionEntry{"mnuUndoCard", QT_TR_NOOP("&Undo card"), QT_TR_NOOP("Undo"), "Ctrl+U",
                QT_TR_NOOP("Take back the claim or the last card"), "", &Commands::UndoCard,
                IsOn<&WindowState::canUndoCard>},
    ActionEntry{"mnuGatherTrick", QT_TR_NOOP("&Gather trick"), "", "Ctrl+Return",
                QT_TR_NOOP("Clear the finished trick from the table"), "", &Commands::QuitTrick,
                IsOn<&WindowState::trickComplete>},
    ActionEntry{"mnuClaim", QT_TR_NOOP("&Claim"), QT_TR_NOOP("Claim"), "Ctrl+L",
                QT_TR_NOOP("All tricks that are left go to the side on play"), "claim",
                &Commands::Claim, IsOn<&WindowState::canClaim>, nullptr, ClaimText},
    ActionEntry{
        "mnuPlayOn", QT_TR_NOOP("Play &on from here"), QT_TR_NOOP("Play on"), "Shift+F9",
        QT_TR_NOOP("Play the board from this card of the record; the record stays as it is"), "",
        WindowAsk::PlayOn, IsOn<&WindowState::canPlayOn>},
    ActionEntry{"mnuClaimTricks", QT_TR_NOOP("Cla&im tricks..."), "", "Ctrl+Shift+L",
                QT_TR_NOOP("Claim a number of tricks, checked double-dummy when asked"), "",
                &Commands::ClaimTricks, IsOn<&WindowState::canClaim>},
    ActionEntry{"mnuKeepPlay", QT_TR_NOOP("&Keep this play..."), "", "Ctrl+Shift+K",
                QT_TR_NOOP("Make a record of the play in the library's results"), "",
                &Commands::KeepPlay, IsOn<&WindowState::cardsPlayed>},
    ActionEntry{"mnuProgramCard", QT_TR_NOOP("Best c&ard"), "", "F12",
                QT_TR_NOOP("Let the program play one card, double-dummy"), "",
                &Commands::ProgramCard, IsOn<&WindowState::canClaim>},
    ActionEntry{"mnuBestLine", QT_TR_NOOP("Best &line to the end"), "", "Shift+F12",
                QT_TR_NOOP("Let the program play all hands to the end, double-dummy"), "",
                &Commands::BestLine, IsOn<&WindowState::canClaim>},
    ActionEntry{"mnuDefendBest", QT_TR_NOOP("The program &defends"), "", "Ctrl+F9",
                QT_TR_NOOP("Play declarer and dummy against the best defence, double-dummy"), "",
                &Commands::DefendBest, PlayUnfinished, IsOn<&WindowState::programDefends>},
    ActionEntry{"mnuDeclareBest", QT_TR_NOOP("The program decla&res"), "", "Ctrl+Shift+F9",
                QT_TR_NOOP("Defend against a declarer who plays best, double-dummy"), "",
                &Commands::DeclareBest, PlayUnfinished, IsOn<&WindowState::programDeclares>},
    ActionEntry{"mnuNextMistake", QT_TR_NOOP("&Next mistake"), QT_TR_NOOP("Next mistake"), "F3",
                QT_TR_NOOP("Go to the next card of the record that gave a trick away"), "",
                WindowAsk::NextMistake, IsOn<&WindowState::hasMistakeAfter>},
    ActionEntry{"mnuPreviousMistake", QT_TR_NOOP("Previous &mistake"),
                QT_TR_NOOP("Previous mistake"), "Shift+F3",
                QT_TR_NOOP("Go back to the card of the record that gave a trick away"), "",
                WindowAsk::PreviousMistake, IsOn<&WindowState::hasMistakeBefore>},
    // Analysis
    ActionEntry{"mnuDDS", QT_TR_NOOP("Analyse &board"), QT_TR_NOOP("Analyse"), "Ctrl+D",
                QT_TR_NOOP("Compute the double-dummy table"), "analyse", &Commands::AnalyseBoard,
                CanAnalyse},
    ActionEntry{"mnuAnalyse", QT_TR_NOOP("&Analyse all boards"), "", "Ctrl+Shift+D",
                QT_TR_NOOP("Compute every double-dummy table that the library lacks"), "",
                &Commands::AnalyseLibrary},
    ActionEntry{"mnuSimulate", QT_TR_NOOP("&Simulate..."), "", "Ctrl+Shift+A",
                QT_TR_NOOP("Deal the unknown cards many times: leads, contracts, cards"), "",
                &Commands::Simulate},
    ActionEntry{"mnuDealStatistics", QT_TR_NOOP("Deal s&tatistics..."), "", "Ctrl+Alt+S",
                QT_TR_NOOP("What the deals of the library look like beside what is to be expected"),
                "", &Commands::DealStatistics},
    ActionEntry{"mnuBSOL", QT_TR_NOOP("&Online double-dummy page"), QT_TR_NOOP("Online"),
                "Ctrl+Shift+O", QT_TR_NOOP("Open the online double-dummy page on this board"),
                "online", &Commands::OnlineSolver, IsOn<&WindowState::complete>},
    // Results
    ActionEntry{"mnuTraveller", QT_TR_NOOP("&Traveller"), "", "Ctrl+J",
                QT_TR_NOOP("Show or hide the results of the board"), "", WindowAsk::Traveller,
                IsOn<&WindowState::hasResults>},
    ActionEntry{"mnuReport", QT_TR_NOOP("&Session report..."), "", "Ctrl+Shift+E",
                QT_TR_NOOP("What each pair and each board did against double-dummy play"), "",
                &Commands::Report, IsOn<&WindowState::hasResults>},
    ActionEntry{"mnuLinForward", QT_TR_NOOP("&Next card"), "", "Alt+Right",
                QT_TR_NOOP("The next card of the play record"), "", &Results::Forward,
                IsOn<&WindowState::canGoForward>},
    ActionEntry{"mnuLinBack", QT_TR_NOOP("&Card back"), "", "Alt+Left",
                QT_TR_NOOP("One card back in the play record"), "", &Results::Back,
                IsOn<&WindowState::canGoBack>},
    ActionEntry{"mnuLinNextTrick", QT_TR_NOOP("Next tric&k"), "", "Alt+Shift+Right",
                QT_TR_NOOP("The next trick of the play record"), "", &Results::NextTrick,
                IsOn<&WindowState::canGoForward>},
    ActionEntry{"mnuLinPreviousTrick", QT_TR_NOOP("Trick &back"), "", "Alt+Shift+Left",
                QT_TR_NOOP("One trick back in the play record"), "", &Results::PreviousTrick,
                IsOn<&WindowState::canGoBack>},
    ActionEntry{"mnuLinLeave", QT_TR_NOOP("&Put the record away"), "", "Ctrl+Shift+J",
                QT_TR_NOOP("Look at the board itself again"), "", &Results::Leave,
                IsOn<&WindowState::recordShown>},
    // View
    ActionEntry{"mnuHands", QT_TR_NOOP("&Hide all hands"), QT_TR_NOOP("Hands"), "Ctrl+Shift+H",
                QT_TR_NOOP("Turn all hands face down, or up again"), "hands", WindowAsk::HideHands,
                CanHide, AnyHidden, HandsCaption},
    ActionEntry{"mnuHideDeclaring", QT_TR_NOOP("Hide &declarer and dummy"), "", "Alt+5",
                QT_TR_NOOP("Turn the hands of declarer and dummy face down, or up again"), "",
                WindowAsk::HideDeclaring, CanHideSide, IsSideHidden<true>},
    ActionEntry{"mnuHideDefenders", QT_TR_NOOP("Hide defende&rs"), "", "Alt+6",
                QT_TR_NOOP("Turn the hands of the defenders face down, or up again"), "",
                WindowAsk::HideDefenders, CanHideSide, IsSideHidden<false>},
    ActionEntry{"mnuHideNorth", QT_TR_NOOP("Hide &North"), "", "Alt+1 1",
                QT_TR_NOOP("Turn North's hand face down, or up again"), "", WindowAsk::HideNorth,
                CanHide, IsHidden<Seat::North>},
    ActionEntry{"mnuHideEast", QT_TR_NOOP("Hide &East"), "", "Alt+2 2",
                QT_TR_NOOP("Turn East's hand face down, or up again"), "", WindowAsk::HideEast,
                CanHide, IsHidden<Seat::East>},
    ActionEntry{"mnuHideSouth", QT_TR_NOOP("Hide So&uth"), "", "Alt+3 3",
                QT_TR_NOOP("Turn South's hand face down, or up again"), "", WindowAsk::HideSouth,
                CanHide, IsHidden<Seat::South>},
    ActionEntry{"mnuHideWest", QT_TR_NOOP("Hide &West"), "", "Alt+4 4",
                QT_TR_NOOP("Turn West's hand face down, or up again"), "", WindowAsk::HideWest,
                CanHide, IsHidden<Seat::West>},
    ActionEntry{"mnuStatistics", QT_TR_NOOP("&Statistics"), "", "Ctrl+T",
                QT_TR_NOOP("Points, losers and suit lengths beside the table"), "",
                &Settings::showStats, nullptr, IsOn<&WindowState::showStats>},
    ActionEntry{"mnuMakeable", QT_TR_NOOP("&Makeable contracts"), "", "Ctrl+M",
                QT_TR_NOOP("The double-dummy table beside the table"), "", &Settings::showMakeable,
                nullptr, IsOn<&WindowState::showMakeable>},
    ActionEntry{"mnuBestCards", QT_TR_NOOP("&Best cards in play"), QT_TR_NOOP("Best cards"),
                "Ctrl+K", QT_TR_NOOP("Show in play what each card leads to"), "best",
                &Settings::showBestCards, nullptr, IsOn<&WindowState::showBestCards>},
    ActionEntry{"mnuCardFaces", QT_TR_NOOP("Card &faces"), "", "Ctrl+Shift+F",
                QT_TR_NOOP("Show the hands as cards, or as text"), "", &Settings::cardsFaces,
                nullptr, IsOn<&WindowState::cardsFaces>},
    ActionEntry{"mnuColoursSystem", QT_TR_NOOP("As the &system"), "", "Ctrl+Alt+1",
                QT_TR_NOOP("The colours of the system"), "", ColourScheme::System, nullptr,
                HasScheme<ColourScheme::System>},
    ActionEntry{"mnuColoursLight", QT_TR_NOOP("&Light"), "", "Ctrl+Alt+2",
                QT_TR_NOOP("Dark on light"), "", ColourScheme::Light, nullptr,
                HasScheme<ColourScheme::Light>},
    ActionEntry{"mnuColoursDark", QT_TR_NOOP("&Dark"), "", "Ctrl+Alt+3",
                QT_TR_NOOP("Light on dark"), "", ColourScheme::Dark, nullptr,
                HasScheme<ColourScheme::Dark>},
    ActionEntry{"mnuToolsUnder", QT_TR_NOOP("Text &under the icons"), "", "Ctrl+Alt+4",
                QT_TR_NOOP("The toolbar with text under its icons"), "",
                ToolbarStyle::TextUnderIcon, nullptr, HasStyle<ToolbarStyle::TextUnderIcon>},
    ActionEntry{"mnuToolsBeside", QT_TR_NOOP("Text &beside the icons"), "", "Ctrl+Alt+5",
                QT_TR_NOOP("The toolbar with text beside its icons"), "",
                ToolbarStyle::TextBesideIcon, nullptr, HasStyle<ToolbarStyle::TextBesideIcon>},
    ActionEntry{"mnuToolsIcons", QT_TR_NOOP("&Icons alone"), "", "Ctrl+Alt+6",
                QT_TR_NOOP("The toolbar without text"), "", ToolbarStyle::IconAlone, nullptr,
                HasStyle<ToolbarStyle::IconAlone>},
    ActionEntry{"mnuWidenLeft", QT_TR_NOOP("Widen the &left column"), "", "Ctrl+Alt+Right",
                QT_TR_NOOP("Give the left column more room"), "", WindowAsk::WidenLeft},
    ActionEntry{"mnuNarrowLeft", QT_TR_NOOP("&Narrow the left column"), "", "Ctrl+Alt+Left",
                QT_TR_NOOP("Give the left column less room"), "", WindowAsk::NarrowLeft},
    ActionEntry{"mnuWidenRight", QT_TR_NOOP("Widen the &right column"), "", "Ctrl+Alt+Shift+Left",
                QT_TR_NOOP("Give the right column more room"), "", WindowAsk::WidenRight},
    ActionEntry{"mnuNarrowRight", QT_TR_NOOP("Narrow the ri&ght column"), "",
                "Ctrl+Alt+Shift+Right", QT_TR_NOOP("Give the right column less room"), "",
                WindowAsk::NarrowRight},
    ActionEntry{"mnuPresentation", QT_TR_NOOP("&Presentation"), QT_TR_NOOP("Present"), "F11",
                QT_TR_NOOP("The table alone on the whole screen"), "present",
                WindowAsk::Presentation, nullptr, IsOn<&WindowState::presentation>},
    ActionEntry{"mnuPresentationPanes", QT_TR_NOOP("&Auction and panes in a presentation"), "",
                "Shift+F11",
                QT_TR_NOOP("The auction and the panes beside it in a presentation too"), "",
                WindowAsk::PresentationPanes, nullptr, IsOn<&WindowState::presentationPanes>},
    ActionEntry{"mnuLeavePresentation", QT_TR_NOOP("&Leave the presentation"), "", "Esc",
                QT_TR_NOOP("Back to the window"), "", WindowAsk::LeavePresentation,
                IsOn<&WindowState::presentation>},
    // Help
    ActionEntry{"mnuHelp", QT_TR_NOOP("&Help"), "", "F1", QT_TR_NOOP("The manual"), "",
                &Commands::Help},
    ActionEntry{"mnuNewFeatures", QT_TR_NOOP("&New Features"), "", "Shift+F1",
                QT_TR_NOOP("What is new in this version"), "", &Commands::NewFeatures},
    ActionEntry{"mnuNewVersion", QT_TR_NOOP("&Version"), "", "Ctrl+Alt+U",
                QT_TR_NOOP("Open the page of the newer version"), "", &Commands::NewVersion,
                nullptr, nullptr, NewVersionCaption},
    ActionEntry{"mnuCheckForUpdates", QT_TR_NOOP("&Check for updates..."), "", "Ctrl+Shift+F1",
                QT_TR_NOOP("Ask whether there is a newer version"), "", &Commands::CheckForUpdates,
                CanCheckForUpdates},
    ActionEntry{"mnuAbout", QT_TR_NOOP("&About Tricklet"), "", "Ctrl+F1",
                QT_TR_NOOP("Version, folder of the libraries and licences"), "", &Commands::About},
};

}  // namespace

std::span<const ActionEntry> ActionTable() {
  return kTable;
}
}  // namespace tricklet::ui
