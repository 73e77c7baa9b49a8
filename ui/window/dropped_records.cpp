#include "ui/window/dropped_records.h"

#include <QMimeData>
#include <QUrl>

#include "formats/exchange/import.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

DroppedRecords::DroppedRecords(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(PathFromQt(url.toLocalFile()));
  }
  if (files.empty() && HasHandRecords(FromQt(data.text()))) text = data.text();
}

}  // namespace tricklet::ui
