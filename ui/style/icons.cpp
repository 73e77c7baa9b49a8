#include "ui/style/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

static void InitIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace tricklet::ui {
namespace {

QByteArray Drawing(const QString& name) {
  static const bool initialised = (InitIcons(), true);
  Q_UNUSED(initialised);
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Asks for the palette whenever it draws, so that the icons follow a change of colours.
class DrawingEngine : public QIconEngine {
 public:
  explicit DrawingEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    const QPalette palette = QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    QByteArray drawing = drawing_;
    drawing.replace("currentColor", palette.color(group, QPalette::ButtonText).name().toLatin1());
    QSvgRenderer(drawing).render(painter, rect);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, {{0, 0}, size}, mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new DrawingEngine(*this); }

 private:
  QByteArray drawing_;
};

}  // namespace

QIcon DrawnIcon(const QString& name) {
  const QByteArray drawing = name.isEmpty() ? QByteArray() : Drawing(name);
  return drawing.isEmpty() ? QIcon() : QIcon(new DrawingEngine(drawing));
}

}  // namespace tricklet::ui
