// The user's settings: one typed table of keys, defaults and limits, over a store port.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tricklet {

/// A colour number as the store has always held it: 0x00BBGGRR, or a system colour when the top bit
/// is set.
struct ColourNumber {
  std::uint32_t value = 0;
  friend bool operator==(ColourNumber, ColourNumber) = default;
};

/// The system's window-text colour.
inline constexpr ColourNumber kWindowTextColour{0x80000008U};

// Settings that are choices. The numbers are those in the store.

enum class CardDesign : std::uint8_t { IndexAndSymbol = 1, PipsAndCourts = 2, LargeIndex = 3 };
/// How cards reach a hand while it is edited.
enum class EditMethod : std::uint8_t { Dragging = 1, Clicking = 2, Typing = 3 };
enum class ColourScheme : std::uint8_t { System = 0, Light = 1, Dark = 2 };
enum class ToolbarStyle : std::uint8_t { TextUnderIcon = 1, TextBesideIcon = 2, IconAlone = 3 };
/// How the hands are captioned: in the system's own words, or briefly.
enum class CaptionStyle : std::uint8_t { Full = 1, Short = 2 };
/// What a printed sheet is for.
enum class SheetLayout : std::uint8_t { Records, Lesson, Slips, Travellers };
enum class Paper : std::uint8_t { A4, Letter };

struct FontSetting {
  std::string name;
  double size = 0;  ///< points
  bool bold = false;
  bool italic = false;
  bool strikethrough = false;
  bool underline = false;
  ColourNumber forecolour = kWindowTextColour;
  friend bool operator==(const FontSetting&, const FontSetting&) = default;
};

/// What was chosen for the last sheets that were printed. Wording and range belong to one library:
/// they are offered again for `library` and for no other.
struct PrintSettings {
  SheetLayout layout = SheetLayout::Records;
  int recordsPerPage = 0;  ///< boards on a page of hand records, and of a lesson
  int lessonPerPage = 0;
  Paper paper = Paper::A4;
  bool landscape = false;
  bool colours = false;  ///< else black alone
  std::string hands;     ///< letters of the seats that a lesson shows: "NESW"
  bool points = false;   ///< shown beside the hands; likewise the next four
  bool table = false;    ///< of makeable tricks
  bool par = false;
  bool auction = false;
  bool notes = false;
  bool answers = false;   ///< what a lesson leaves out stands on pages at the end
  bool bySeat = false;    ///< slips of one seat on a page; else all of a board
  bool ranking = false;   ///< after the travellers
  std::string library;    ///< whose wording and range the following are
  std::string boards;     ///< "1-36"; empty for the whole library
  bool ownTitle = false;  ///< `title`, else the one that is proposed
  bool ownSubtitle = false;
  std::string title;  ///< UTF-8
  std::string subtitle;
  friend bool operator==(const PrintSettings&, const PrintSettings&) = default;
};

/// What was chosen for the last web page. The title belongs to one library, as above.
struct PublishSettings {
  std::string names;    ///< of the players: "full", "initials" or "none"
  bool report = false;  ///< with the report of the session
  std::string folder;   ///< UTF-8; empty when none has been chosen yet
  std::string library;  ///< whose title the following is
  std::string title;    ///< UTF-8
  friend bool operator==(const PublishSettings&, const PublishSettings&) = default;
};

/// Every setting under the name of its key.
struct Settings {
  std::string filelocation;  ///< library root, ending in the platform's separator; UTF-8
  std::string library;       ///< current library
  bool cardsFaces = false;   ///< hands as card faces, not as text
  CardDesign cardDesign = CardDesign::IndexAndSymbol;
  bool suitColour = false;  ///< four suit colours, not red and black
  double suitFontSize = 0;  ///< points
  bool captionPlayer = false;
  bool captionnCards = false;
  bool captionHcp = false;
  bool captionLtc = false;
  bool captionDeclarer = false;
  bool captionDummy = false;
  bool autoLaunch = false;     ///< open the main window without waiting on the start dialog
  bool autoUpdate = false;     ///< look for a newer version at start
  bool autoMakeable = false;   ///< compute a missing double-dummy table
  bool showBestCards = false;  ///< in play, the tricks that each card leads to
  bool showStats = false;
  bool showMakeable = false;
  bool makeableContract = false;  ///< makeable pane shows contracts, not tricks
  bool pbnBids = false;           ///< PBN export writes the auction
  bool pbnShark = false;          ///< PBN export writes a result tag and a board comment
  EditMethod editMethod = EditMethod::Dragging;
  int showMessage = 0;        ///< version up to which the notice of new features has been seen
  std::string solverHost;     ///< of the online double-dummy page; empty: not yet named
  std::string updateAddress;  ///< of the file that tells the newest version; empty: none
  ColourScheme colourScheme = ColourScheme::System;
  ToolbarStyle toolbarStyle = ToolbarStyle::TextUnderIcon;
  CaptionStyle captionStyle = CaptionStyle::Full;
  bool showAuction = true;      ///< the auction is unfolded; likewise the next three
  bool showMakeTable = true;    ///< the makeable table
  bool showTraveller = true;    ///< the traveller
  bool showReview = true;       ///< the review of a play
  int leftWidth = 0;            ///< of the left column, in tenths of the window's font height;
                                ///< 0: as the window's size gives
  int rightWidth = 0;           ///< likewise of the right column
  bool recycleReplaced = true;  ///< boards that are replaced go to the recycle bin first
  std::string recentFiles;      ///< the newest first, UTF-8, separated by '|'
  PrintSettings print;
  PublishSettings publish;
  std::array<FontSetting, 2> hgFont;  ///< 0: holdings as text; 1: captions and auction

  /// All defaults, from the table.
  Settings();
  friend bool operator==(const Settings&, const Settings&) = default;
};

/// Where settings live: section and key to text.
class SettingsStore {
 public:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  virtual ~SettingsStore() = default;
  /// Nothing when the key has never been written.
  virtual std::optional<std::string> Read(std::string_view section, std::string_view key) const = 0;
  virtual void Write(std::string_view section, std::string_view key, const std::string& value) = 0;
  /// Makes sure that what was written outlasts this program and a power cut. False when that
  /// failed; the next call tries it again.
  virtual bool Sync() { return true; }
  /// Why the last `Sync` failed; empty when it did not, or the system does not say.
  virtual std::string SyncFailure() const { return {}; }
  /// Why what is stored could not be read; empty when it could. Nothing is stored over it then.
  virtual std::string Failure() const { return {}; }
};

/// A store in memory: for tests, and laid over another store to keep some keys from reaching it.
class MemoryStore : public SettingsStore {
 public:
  std::optional<std::string> Read(std::string_view section, std::string_view key) const override;
  void Write(std::string_view section, std::string_view key, const std::string& value) override;

 private:
  std::vector<std::pair<std::string, std::string>> values_;  // "section/key" to value
};

/// Lies over another store and keeps the section "macro" (root and library) in memory. Used when
/// a root or library is named for one call only. A root that was not named is the stored one, and
/// another root that is chosen instead reaches the store below.
class OverlayStore : public SettingsStore {
 public:
  explicit OverlayStore(SettingsStore& below) : below_(below) {}
  /// Names the root or the library.
  void Name(std::string_view key, const std::string& value);
  std::optional<std::string> Read(std::string_view section, std::string_view key) const override;
  void Write(std::string_view section, std::string_view key, const std::string& value) override;
  bool Sync() override { return below_.Sync(); }
  std::string SyncFailure() const override { return below_.SyncFailure(); }
  std::string Failure() const override { return below_.Failure(); }

 private:
  SettingsStore& below_;
  MemoryStore over_;
};

/// The member of `Settings` that an entry of the table stands for.
using SettingField =
    std::variant<bool*, int*, double*, std::string*, ColourNumber*, CardDesign*, EditMethod*,
                 ColourScheme*, ToolbarStyle*, CaptionStyle*, SheetLayout*, Paper*>;

/// One row of the table.
struct SettingEntry {
  std::string_view section;
  std::string_view key;
  std::string_view defaultText;
  SettingField (*field)(Settings&);
  double lowest = 0;  ///< of numbers and choices
  double highest = 0;
};

/// The table: every key that is stored, in the order of `Settings`.
std::span<const SettingEntry> SettingTable();

/// An entry by "key" or "section/key", in any letter case; null when there is none. The keys of the
/// two fonts, which exist twice, and those of printing need their section.
const SettingEntry* FindSetting(std::string_view name);

/// The entry whose field of `settings` is `field`. Throws `std::logic_error` when there is none.
const SettingEntry& EntryOf(Settings& settings, SettingField field);
/// The entry of a member of `Settings`: `EntryOf(&Settings::autoLaunch)`.
template <class Value>
const SettingEntry& EntryOf(Value Settings::*member) {
  Settings any;
  return EntryOf(any, &(any.*member));
}

std::string SettingText(const Settings& settings, const SettingEntry& entry);

/// The message when `SettingsStore::Sync` has failed.
inline constexpr const char* kSettingsNotStored = "The settings could not be stored";
/// The first line of the message when `SettingsStore::Failure` is not empty.
inline constexpr const char* kSettingsNotRead = "The settings could not be read";

/// Sets the field from `text`; false, and nothing changed, when `text` is no value of its type or
/// outside its limits. A boolean is "True" or "False" in any letter case, or a whole number: 0 is
/// False, any other True.
bool SetFromText(Settings& settings, const SettingEntry& entry, std::string_view text);

/// Reads every key; a missing or unreadable one takes its default.
Settings LoadSettings(const SettingsStore& store);

/// Writes every key of the options (not those of the sections "macro", "Print" and "Publish", which
/// are written when they change, nor "ShowMessage").
void SaveSettings(const Settings& settings, SettingsStore& store);

/// Writes the one key of `entry`.
void SaveSetting(const Settings& settings, const SettingEntry& entry, SettingsStore& store);

/// Writes the keys of `Settings::print`.
void SavePrintSettings(const Settings& settings, SettingsStore& store);
/// Writes the keys of `Settings::publish`.
void SavePublishSettings(const Settings& settings, SettingsStore& store);

}  // namespace tricklet
