// Text and paths between the engine (UTF-8) and Qt.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <QString>

#include "core/text.h"

namespace tricklet::ui {

/// Bytes that are no UTF-8 come out as replacement characters.
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

inline QString PathToQt(const std::filesystem::path& path) {
  return ToQt(PathText(path));
}
inline std::filesystem::path PathFromQt(const QString& text) {
  return PathFromText(FromQt(text));
}

}  // namespace tricklet::ui
