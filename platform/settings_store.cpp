#include "platform/settings_store.h"

#include <QSettings>
#include <QString>

namespace tricklet::platform {
namespace {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// One application name for the two spellings, "Qen" and "QEN", that older settings were kept
/// under: stores that ignore letter case have always treated them as one.
class QtSettingsStore : public SettingsStore {
 public:
  std::optional<std::string> Read(std::string_view section, std::string_view key) const override {
    const QVariant value = settings_.value(Name(section, key));
    if (!value.isValid()) return std::nullopt;
    // A text with a comma that was written by hand comes back as a list.
    const QStringList parts = value.toStringList();
    return (parts.size() > 1 ? parts.join(QStringLiteral(", ")) : value.toString()).toStdString();
  }
  void Write(std::string_view section, std::string_view key, const std::string& value) override {
    settings_.setValue(Name(section, key), ToQt(value));
  }
  bool Sync() override {
    settings_.sync();
    return settings_.status() == QSettings::NoError;
  }

 private:
  static QString Name(std::string_view section, std::string_view key) {
    return ToQt(section) + u'/' + ToQt(key);
  }
  QSettings settings_{QStringLiteral("Tricklet"), QStringLiteral("QEN Bridge Scorer")};
};

}  // namespace

std::unique_ptr<SettingsStore> MakeSettingsStore() {
  return std::make_unique<QtSettingsStore>();
}

}  // namespace tricklet::platform
