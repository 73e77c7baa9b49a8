#include "core/settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr std::string_view kMacro = "macro";
constexpr std::string_view kOptions = "Tricklet";
constexpr std::string_view kPrint = "Print";
constexpr std::string_view kPublish = "Publish";
constexpr std::string_view kWindowText = "&H80000008";
constexpr double kMostWidth = 2000;  // tenths of a font's height: more than any screen

/// The accessor of a table row, for a member of `Settings` or of one of its two fonts.
#define TRICKLET_FIELD(member) [](Settings& settings) -> SettingField { return &settings.member; }

constexpr std::array kTable{
    SettingEntry{kMacro, "filelocation", "", TRICKLET_FIELD(filelocation)},
    SettingEntry{kMacro, "library", "Default", TRICKLET_FIELD(library)},
    SettingEntry{kOptions, "CardsFaces", "True", TRICKLET_FIELD(cardsFaces)},
    SettingEntry{kOptions, "CardDesign", "1", TRICKLET_FIELD(cardDesign), 1, 3},
    SettingEntry{kOptions, "SuitColour", "True", TRICKLET_FIELD(suitColour)},
    SettingEntry{kOptions, "SuitFontSize", "14", TRICKLET_FIELD(suitFontSize), 6, 96},
    SettingEntry{kOptions, "CaptionPlayer", "False", TRICKLET_FIELD(captionPlayer)},
    SettingEntry{kOptions, "CaptionnCards", "True", TRICKLET_FIELD(captionnCards)},
    SettingEntry{kOptions, "CaptionHCP", "True", TRICKLET_FIELD(captionHcp)},
    SettingEntry{kOptions, "CaptionLTC", "True", TRICKLET_FIELD(captionLtc)},
    SettingEntry{kOptions, "CaptionDeclarer", "True", TRICKLET_FIELD(captionDeclarer)},
    SettingEntry{kOptions, "CaptionDummy", "True", TRICKLET_FIELD(captionDummy)},
    SettingEntry{kOptions, "AutoLaunch", "False", TRICKLET_FIELD(autoLaunch)},
    SettingEntry{kOptions, "AutoUpdate", "True", TRICKLET_FIELD(autoUpdate)},
    SettingEntry{kOptions, "AutoMakeable", "True", TRICKLET_FIELD(autoMakeable)},
    SettingEntry{kOptions, "ShowBestCards", "False", TRICKLET_FIELD(showBestCards)},
    SettingEntry{kOptions, "ShowStats", "True", TRICKLET_FIELD(showStats)},
    SettingEntry{kOptions, "ShowMakeable", "True", TRICKLET_FIELD(showMakeable)},
    SettingEntry{kOptions, "MakeableContract", "True", TRICKLET_FIELD(makeableContract)},
    SettingEntry{kOptions, "PBNBids", "True", TRICKLET_FIELD(pbnBids)},
    SettingEntry{kOptions, "PBNShark", "False", TRICKLET_FIELD(pbnShark)},
    SettingEntry{kOptions, "EditMethod", "1", TRICKLET_FIELD(editMethod), 1, 3},
    SettingEntry{kOptions, "ShowMessage", "0", TRICKLET_FIELD(showMessage), 0, 99999},
    SettingEntry{kOptions, "SolverHost", "", TRICKLET_FIELD(solverHost)},
    SettingEntry{kOptions, "UpdateAddress", "", TRICKLET_FIELD(updateAddress)},
    SettingEntry{kOptions, "ColourScheme", "0", TRICKLET_FIELD(colourScheme), 0, 2},
    SettingEntry{kOptions, "ToolbarStyle", "1", TRICKLET_FIELD(toolbarStyle), 1, 3},
    SettingEntry{kOptions, "CaptionStyle", "1", TRICKLET_FIELD(captionStyle), 1, 2},
    SettingEntry{kOptions, "ShowAuction", "True", TRICKLET_FIELD(showAuction)},
    SettingEntry{kOptions, "ShowMakeTable", "True", TRICKLET_FIELD(showMakeTable)},
    SettingEntry{kOptions, "ShowTraveller", "True", TRICKLET_FIELD(showTraveller)},
    SettingEntry{kOptions, "ShowReview", "True", TRICKLET_FIELD(showReview)},
    SettingEntry{kOptions, "LeftWidth", "0", TRICKLET_FIELD(leftWidth), 0, kMostWidth},
    SettingEntry{kOptions, "RightWidth", "0", TRICKLET_FIELD(rightWidth), 0, kMostWidth},
    SettingEntry{kOptions, "RecycleReplaced", "True", TRICKLET_FIELD(recycleReplaced)},
    SettingEntry{kOptions, "RecentFiles", "", TRICKLET_FIELD(recentFiles)},
    SettingEntry{kPrint, "Layout", "0", TRICKLET_FIELD(print.layout), 0, 3},
    SettingEntry{kPrint, "RecordsPerPage", "18", TRICKLET_FIELD(print.recordsPerPage), 1, 18},
    SettingEntry{kPrint, "LessonPerPage", "2", TRICKLET_FIELD(print.lessonPerPage), 1, 4},
    SettingEntry{kPrint, "Paper", "0", TRICKLET_FIELD(print.paper), 0, 1},
    SettingEntry{kPrint, "Landscape", "False", TRICKLET_FIELD(print.landscape)},
    SettingEntry{kPrint, "Colours", "True", TRICKLET_FIELD(print.colours)},
    SettingEntry{kPrint, "Hands", "NESW", TRICKLET_FIELD(print.hands)},
    SettingEntry{kPrint, "Points", "True", TRICKLET_FIELD(print.points)},
    SettingEntry{kPrint, "Table", "True", TRICKLET_FIELD(print.table)},
    SettingEntry{kPrint, "Par", "True", TRICKLET_FIELD(print.par)},
    SettingEntry{kPrint, "Auction", "True", TRICKLET_FIELD(print.auction)},
    SettingEntry{kPrint, "Notes", "True", TRICKLET_FIELD(print.notes)},
    SettingEntry{kPrint, "Answers", "True", TRICKLET_FIELD(print.answers)},
    SettingEntry{kPrint, "BySeat", "True", TRICKLET_FIELD(print.bySeat)},
    SettingEntry{kPrint, "Ranking", "True", TRICKLET_FIELD(print.ranking)},
    SettingEntry{kPrint, "Library", "", TRICKLET_FIELD(print.library)},
    SettingEntry{kPrint, "Boards", "", TRICKLET_FIELD(print.boards)},
    SettingEntry{kPrint, "OwnTitle", "False", TRICKLET_FIELD(print.ownTitle)},
    SettingEntry{kPrint, "OwnSubtitle", "False", TRICKLET_FIELD(print.ownSubtitle)},
    SettingEntry{kPrint, "Title", "", TRICKLET_FIELD(print.title)},
    SettingEntry{kPrint, "Subtitle", "", TRICKLET_FIELD(print.subtitle)},
    SettingEntry{kPublish, "WebNames", "full", TRICKLET_FIELD(publish.names)},
    SettingEntry{kPublish, "WebReport", "False", TRICKLET_FIELD(publish.report)},
    SettingEntry{kPublish, "WebFolder", "", TRICKLET_FIELD(publish.folder)},
    SettingEntry{kPublish, "WebLibrary", "", TRICKLET_FIELD(publish.library)},
    SettingEntry{kPublish, "WebTitle", "", TRICKLET_FIELD(publish.title)},
    SettingEntry{"HGFont0", "Name", "Arial Narrow", TRICKLET_FIELD(hgFont[0].name)},
    SettingEntry{"HGFont0", "Size", "24", TRICKLET_FIELD(hgFont[0].size), 6, 96},
    SettingEntry{"HGFont0", "Bold", "False", TRICKLET_FIELD(hgFont[0].bold)},
    SettingEntry{"HGFont0", "Italic", "False", TRICKLET_FIELD(hgFont[0].italic)},
    SettingEntry{"HGFont0", "Strikethrough", "False", TRICKLET_FIELD(hgFont[0].strikethrough)},
    SettingEntry{"HGFont0", "Underline", "False", TRICKLET_FIELD(hgFont[0].underline)},
    SettingEntry{"HGFont0", "Forecolour", kWindowText, TRICKLET_FIELD(hgFont[0].forecolour)},
    SettingEntry{"HGFont1", "Name", "Arial", TRICKLET_FIELD(hgFont[1].name)},
    SettingEntry{"HGFont1", "Size", "15", TRICKLET_FIELD(hgFont[1].size), 6, 96},
    SettingEntry{"HGFont1", "Bold", "False", TRICKLET_FIELD(hgFont[1].bold)},
    SettingEntry{"HGFont1", "Italic", "False", TRICKLET_FIELD(hgFont[1].italic)},
    SettingEntry{"HGFont1", "Strikethrough", "False", TRICKLET_FIELD(hgFont[1].strikethrough)},
    SettingEntry{"HGFont1", "Underline", "False", TRICKLET_FIELD(hgFont[1].underline)},
    SettingEntry{"HGFont1", "Forecolour", kWindowText, TRICKLET_FIELD(hgFont[1].forecolour)},
};
#undef TRICKLET_FIELD

/// Overloads that read one type of field; each leaves the field alone when it returns false.
struct Reader {
  const SettingEntry& entry;
  std::string_view text;

  bool operator()(bool* field) const {
    if (EqualNoCase(text, "True") || EqualNoCase(text, "False")) {
      *field = EqualNoCase(text, "True");
      return true;
    }
    const auto number = NumberFromText<std::int64_t>(text);
    if (number) *field = *number != 0;
    return number.has_value();
  }
  bool operator()(double* field) const {
    const auto value = NumberFromText<double>(text);
    if (!value || !std::isfinite(*value) || *value < entry.lowest || *value > entry.highest) {
      return false;
    }
    *field = *value;
    return true;
  }
  bool operator()(int* field) const {
    double value = 0;
    if (!(*this)(&value) || value != std::floor(value)) return false;
    *field = static_cast<int>(value);
    return true;
  }
  template <class Choice>
  requires std::is_enum_v<Choice>
  bool operator()(Choice* field) const {
    int number = 0;
    if (!(*this)(&number)) return false;
    *field = static_cast<Choice>(number);
    return true;
  }
  bool operator()(std::string* field) const {
    *field = text;
    return true;
  }
  /// "&H" and hexadecimal digits, or the number as a signed decimal.
  bool operator()(ColourNumber* field) const {
    constexpr int kHexadecimal = 16;
    constexpr int kDecimal = 10;
    const bool hex = text.size() > 2 && EqualNoCase(text.substr(0, 2), "&H");
    const std::string_view digits = hex ? text.substr(2) : text;
    const auto value = NumberFromText<std::int64_t>(digits, hex ? kHexadecimal : kDecimal);
    if (!value || *value < INT32_MIN || *value > UINT32_MAX) return false;
    field->value = static_cast<std::uint32_t>(*value);
    return true;
  }
};

std::string NumberText(double value) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

struct Writer {
  std::string operator()(const bool* field) const { return *field ? "True" : "False"; }
  std::string operator()(const int* field) const { return std::to_string(*field); }
  template <class Choice>
  requires std::is_enum_v<Choice> std::string operator()(const Choice* field) const {
    return std::to_string(static_cast<int>(*field));
  }
  std::string operator()(const double* field) const { return NumberText(*field); }
  std::string operator()(const std::string* field) const { return *field; }
  std::string operator()(const ColourNumber* field) const {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text = "&H";
    for (int shift = 28; shift >= 0; shift -= 4) {
      text += kDigits[(field->value >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
  }
};

std::string StoreName(std::string_view section, std::string_view key) {
  return std::string(section) + "/" + std::string(key);
}

}  // namespace

Settings::Settings() {
  for (const SettingEntry& entry : kTable) SetFromText(*this, entry, entry.defaultText);
}

std::optional<std::string> MemoryStore::Read(std::string_view section, std::string_view key) const {
  const std::string name = StoreName(section, key);
  for (const auto& [stored, value] : values_) {
    if (stored == name) return value;
  }
  return std::nullopt;
}

void MemoryStore::Write(std::string_view section, std::string_view key, const std::string& value) {
  const std::string name = StoreName(section, key);
  for (auto& [stored, old] : values_) {
    if (stored == name) {
      old = value;
      return;
    }
  }
  values_.emplace_back(name, value);
}

std::optional<std::string> OverlayStore::Read(std::string_view section,
                                              std::string_view key) const {
  if (section == kMacro) {
    if (auto value = over_.Read(section, key)) return value;
  }
  return below_.Read(section, key);
}

void OverlayStore::Name(std::string_view key, const std::string& value) {
  over_.Write(kMacro, key, value);
}

void OverlayStore::Write(std::string_view section, std::string_view key, const std::string& value) {
  const bool storedRoot = key == "filelocation" && !over_.Read(section, key);
  if (section == kMacro && !storedRoot) {
    over_.Write(section, key, value);
  } else {
    below_.Write(section, key, value);
  }
}

std::span<const SettingEntry> SettingTable() {
  return kTable;
}

const SettingEntry* FindSetting(std::string_view name) {
  for (const SettingEntry& entry : kTable) {
    const bool alone = entry.section == kMacro || entry.section == kOptions;
    if (EqualNoCase(name, StoreName(entry.section, entry.key)) ||
        (alone && EqualNoCase(name, entry.key))) {
      return &entry;
    }
  }
  return nullptr;
}

const SettingEntry& EntryOf(Settings& settings, SettingField field) {
  for (const SettingEntry& entry : kTable) {
    if (entry.field(settings) == field) return entry;
  }
  throw std::logic_error("a member of the settings that stands in no row of the table");
}

std::string SettingText(const Settings& settings, const SettingEntry& entry) {
  Settings copy = settings;  // fields are reached through a mutable reference only
  return std::visit(Writer{}, entry.field(copy));
}

bool SetFromText(Settings& settings, const SettingEntry& entry, std::string_view text) {
  return std::visit(Reader{entry, text}, entry.field(settings));
}

namespace {

void SaveSection(std::string_view section, const Settings& settings, SettingsStore& store) {
  for (const SettingEntry& entry : kTable) {
    if (entry.section == section) SaveSetting(settings, entry, store);
  }
}

}  // namespace

Settings LoadSettings(const SettingsStore& store) {
  Settings settings;
  for (const SettingEntry& entry : kTable) {
    if (const auto text = store.Read(entry.section, entry.key)) SetFromText(settings, entry, *text);
  }
  return settings;
}

void SaveSettings(const Settings& settings, SettingsStore& store) {
  for (const SettingEntry& entry : kTable) {
    const bool ofOptions =
        entry.section != kMacro && entry.section != kPrint && entry.section != kPublish;
    if (ofOptions && entry.key != "ShowMessage") SaveSetting(settings, entry, store);
  }
}

void SavePrintSettings(const Settings& settings, SettingsStore& store) {
  SaveSection(kPrint, settings, store);
}

void SavePublishSettings(const Settings& settings, SettingsStore& store) {
  SaveSection(kPublish, settings, store);
}

void SaveSetting(const Settings& settings, const SettingEntry& entry, SettingsStore& store) {
  store.Write(entry.section, entry.key, SettingText(settings, entry));
}

}  // namespace tricklet
