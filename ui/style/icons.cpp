#include "ui/style/icons.h"

#include <algorithm>
#include <array>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

static void InitIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace tricklet::ui {
namespace {

constexpr std::array kSizes{16, 20, 22, 24, 28, 33, 44, 55, 66, 88};

/// The picture of the drawing in the size that is asked for, or the next above it.
QPixmap Picture(const QString& name, int pixels) {
  static const bool initialised = (InitIcons(), true);
  Q_UNUSED(initialised);
  const auto* size = std::find_if(kSizes.begin(), kSizes.end(), [&](int s) { return s >= pixels; });
  const int nearest = size == kSizes.end() ? kSizes.back() : *size;
  return QPixmap(QStringLiteral(":/icons/%1-%2.png").arg(name).arg(nearest));
}

/// Asks for the palette whenever it draws, so that the icons follow a change of colours.
class DrawingEngine : public QIconEngine {
 public:
  explicit DrawingEngine(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double scale = painter->device()->devicePixelRatio();
    const QSize pixels = (QSizeF(rect.size()) * scale).toSize();
    painter->drawPixmap(rect, pixmap(pixels, mode, state));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    const QPixmap drawn = Picture(name_, std::max(size.width(), size.height()));
    if (drawn.isNull()) return {};
    QPixmap tinted = drawn.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QPalette palette = QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(tinted.rect(), palette.color(group, QPalette::ButtonText));
    return tinted;
  }
  QIconEngine* clone() const override { return new DrawingEngine(*this); }

 private:
  QString name_;
};

}  // namespace

QIcon DrawnIcon(const QString& name) {
  return name.isEmpty() ? QIcon() : QIcon(new DrawingEngine(name));
}

}  // namespace tricklet::ui
