// Hand records that are dragged onto the window.
#pragma once

#include <filesystem>
#include <vector>

#include <QString>

class QMimeData;

namespace tricklet::ui {

/// What can be imported of a drop: its files, or else the hand records or deals of its text.
struct DroppedRecords {
  explicit DroppedRecords(const QMimeData& data);

  bool Empty() const { return files.empty() && text.isEmpty(); }

  std::vector<std::filesystem::path> files;
  QString text;
};

}  // namespace tricklet::ui
