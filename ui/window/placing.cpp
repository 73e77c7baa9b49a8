#include "ui/window/placing.h"

#include <algorithm>

#include <QScreen>
#include <QWidget>

namespace tricklet::ui {
namespace {

// About what the system puts around a window.
constexpr int kFrameHeight = 40;
constexpr int kFrameWidth = 16;

constexpr QSize kUsualSize(1366, 800);

}  // namespace

void FitOnScreen(QWidget& window, bool hasPlace) {
  const QSize room = window.screen()->availableSize().shrunkBy(
      {kFrameWidth / 2, 0, kFrameWidth / 2, kFrameHeight});
  window.resize((hasPlace ? window.size() : kUsualSize).boundedTo(room));
}

void PlaceAtLowerEdge(const QWidget& window, QWidget& dialog, int left) {
  const QPoint corner =
      window.mapToGlobal(QPoint(left, window.height() - dialog.height() - kFrameHeight));
  const QRect room = window.screen()->availableGeometry();
  dialog.move(std::max(corner.x(), room.left()), std::max(corner.y(), room.top()));
}

}  // namespace tricklet::ui
