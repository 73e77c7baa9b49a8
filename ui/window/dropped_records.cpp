#include "ui/window/dropped_records.h"

#include <QMimeData>
#include <QUrl>

#include "formats/lin/lin_reader.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

DroppedRecords::DroppedRecords(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(PathFromQt(url.toLocalFile()));
  }
  if (files.empty() && LooksLikeLin(FromQt(data.text()))) lin = data.text();
}

}  // namespace tricklet::ui
