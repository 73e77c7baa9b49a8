#include "platform/settings_file.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/leftovers.h"
#include "disk/presence.h"
#include "disk/write_lock.h"
#include "platform/home_folder.h"
#include "platform/settings_store.h"

namespace tricklet::platform {
namespace {

namespace fs = std::filesystem;

constexpr const char* kOrganisation = "Tricklet";
/// One application name for the two spellings, "Qen" and "QEN", that older settings were kept
/// under: stores that ignore letter case have always treated them as one.
constexpr const char* kApplication = "QEN Bridge Scorer";
/// Of a settings file; ours have some 3,000.
constexpr std::size_t kMaxBytes = std::size_t{1} << 20U;

/// "section/key" to text.
using Texts = std::map<std::string, std::string>;

QString ToQt(const std::string& text) {
  return QString::fromStdString(text);
}

Texts TextsOf(const QSettings& settings) {
  Texts texts;
  for (const QString& key : settings.allKeys()) {
    const QVariant value = settings.value(key);
    // A text with a comma that was written by hand comes back as a list.
    const QStringList parts = value.toStringList();
    const bool list = parts.size() > 1;
    texts[key.toStdString()] =
        (list ? parts.join(QStringLiteral(", ")) : value.toString()).toStdString();
  }
  return texts;
}

/// What the system's administrator has set for all users.
Texts SystemTexts() {
  return TextsOf(QSettings(QSettings::NativeFormat, QSettings::SystemScope,
                           QString::fromLatin1(kOrganisation), QString::fromLatin1(kApplication)));
}

[[noreturn]] void ThrowNotSettings(const fs::path& path) {
  throw Fault(FaultNumber::PathFileAccess, "Not a file of settings: " + PathText(path));
}

/// Throws `Fault` when the file `shown`, of which these are the settings, is not understood.
void RequireRead(const QSettings& settings, const fs::path& shown) {
  if (settings.status() != QSettings::NoError) ThrowNotSettings(shown);
}

/// The bytes of a settings file. Throws `Fault`, also when they are no text: Qt makes settings of
/// almost anything, even of the zeros that a broken disk may leave.
std::string ReadText(const fs::path& path) {
  std::string text = ReadWholeFile(path, kMaxBytes);
  const bool isText = std::all_of(text.begin(), text.end(), [](unsigned char byte) {
    return byte >= ' ' || byte == '\t' || byte == '\r' || byte == '\n';
  });
  if (!isText) ThrowNotSettings(path);
  return text;
}

/// Throws `Fault`.
Texts ReadTexts(const fs::path& path) {
  if (path.empty()) throw Fault(FaultNumber::PathNotFound, kNoHomeFolder);
  if (!IsTaken(path)) return {};
  ReadText(path);  // only what can be read whole is left to Qt
  const QString name = QFile::decodeName(path.c_str());
  if (QFile::encodeName(name) != path.c_str()) {
    throw Fault(FaultNumber::PathNotFound, "Not a name in UTF-8: " + PathText(path));
  }
  const QSettings settings(name, QSettings::NativeFormat);
  RequireRead(settings, path);
  return TextsOf(settings);
}

/// The settings file `data` with the changes. Qt makes them in a scratch folder: it would rewrite
/// the file itself by ways of its own, with locks of its own. Throws `Fault`.
std::string Changed(const std::string& data, const Texts& changes, const fs::path& shown) {
  const QTemporaryDir scratch(QDir::tempPath() + QStringLiteral("/tricklet-settings-XXXXXX"));
  if (!scratch.isValid()) {
    throw Fault(FaultNumber::PathFileAccess, scratch.errorString().toStdString());
  }
  const QString name = scratch.filePath(QStringLiteral("settings.conf"));
  const fs::path file = QFile::encodeName(name).toStdString();
  if (auto copy = NativeFile::New(file, file)) {
    copy->Write(data);
    copy->Close();
  }
  Texts wanted;
  {
    QSettings settings(name, QSettings::NativeFormat);
    RequireRead(settings, shown);
    for (const auto& [key, text] : changes) settings.setValue(ToQt(key), ToQt(text));
    wanted = TextsOf(settings);
  }
  // Qt calls a file done that a full disk has cut short, and answers from memory for a file that it
  // has written: so what it has made is read under another name.
  const fs::path made = file.parent_path() / "made.conf";
  if (const auto failure = RenameOver(file, made)) throw Fault::OfFile(failure, PathText(file));
  if (ReadTexts(made) != wanted) {
    throw Fault(FaultNumber::DiskFull, "Incomplete: " + PathText(made));
  }
  return ReadWholeFile(made, kMaxBytes);
}

/// Throws `Fault`.
void Replace(const fs::path& path, const std::string& data) {
  constexpr fs::perms kPrivate = fs::perms::owner_read | fs::perms::owner_write;
  UnflushedFolders unflushed;
  Replacement replacement(path);
  replacement.File().Write(data);
  std::error_code ignored;
  fs::permissions(replacement.Beside(), kPrivate, ignored);  // those of an old file stay
  replacement.Complete();
  replacement.PutInPlace(unflushed);
  unflushed.Flush();
}

class SettingsFile : public SettingsStore {
 public:
  explicit SettingsFile(fs::path path) : path_(std::move(path)), stored_(SystemTexts()) {
    try {
      Take(ReadTexts(path_));
    } catch (const Fault& fault) {
      failure_ = fault.Description();
    }
  }
  std::optional<std::string> Read(std::string_view section, std::string_view key) const override {
    const std::string name = Name(section, key);
    for (const Texts* texts : {&changes_, &stored_}) {
      if (const auto found = texts->find(name); found != texts->end()) return found->second;
    }
    return std::nullopt;
  }
  void Write(std::string_view section, std::string_view key, const std::string& value) override {
    if (Read(section, key) != value) changes_[Name(section, key)] = value;
  }
  bool Sync() override {
    syncFailure_.clear();
    if (changes_.empty()) return true;
    syncFailure_ = failure_;
    if (!failure_.empty()) return false;
    try {
      return Store();
    } catch (const Fault& fault) {
      syncFailure_ = fault.Description();
      return false;
    }
  }
  std::string SyncFailure() const override { return syncFailure_; }
  std::string Failure() const override { return failure_; }

 private:
  static std::string Name(std::string_view section, std::string_view key) {
    return std::string(section) + "/" + std::string(key);
  }
  void Take(const Texts& texts) {
    for (const auto& [name, text] : texts) stored_[name] = text;
  }
  /// False when another program does not finish. Throws `Fault`.
  bool Store() {
    const fs::path folder = path_.parent_path();
    MakeFolders(folder);
    std::string holder;
    const auto lock = WriteLock::Take(folder, WriteLock::kPatience, holder);
    if (!lock) {
      syncFailure_ = "They are being changed by " + holder;
      return false;
    }
    SweepFiles(folder);
    const std::string old = IsTaken(path_) ? ReadText(path_) : "";
    Replace(path_, Changed(old, changes_, path_));
    Take(changes_);
    changes_.clear();
    return true;
  }

  fs::path path_;
  Texts stored_;   // as read, and as stored since
  Texts changes_;  // not yet in the file
  std::string failure_;
  std::string syncFailure_;
};

/// Where QSettings keeps them; empty when there is no such place.
fs::path UsualPath() {
  const char* named = std::getenv("XDG_CONFIG_HOME");
  const fs::path below = named == nullptr || *named == '\0' ? ".config" : named;
  const fs::path home = HomeFolder();
  if (below.is_relative() && home.empty()) return {};
  return home / below / kOrganisation / (std::string(kApplication) + ".conf");
}

}  // namespace

std::unique_ptr<SettingsStore> OpenSettingsFile(const fs::path& path) {
  return std::make_unique<SettingsFile>(path);
}

std::unique_ptr<SettingsStore> MakeSettingsStore() {
  return OpenSettingsFile(UsualPath());
}

}  // namespace tricklet::platform
