// A paint device that notes where texts are painted.
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace tricklet::ui {

/// A text with the room that it takes, in the units of the device.
struct RecordedText {
  QString text;
  QRectF place;  ///< from the ascent to the descent of its font
  double baseline = 0;
};

/// `place` may be empty, as that of a joiner between letters is.
inline bool Within(const QRectF& room, const QRectF& place) {
  constexpr double kRounding = 0.01;
  return place.left() >= room.left() - kRounding && place.right() <= room.right() + kRounding &&
         place.top() >= room.top() - kRounding && place.bottom() <= room.bottom() + kRounding;
}

class RecordedPage : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return &engine_; }
  const std::vector<RecordedText>& Texts() const { return engine_.texts; }
  /// Of all lines and shapes.
  QRectF Shapes() const { return engine_.shapes; }

  /// For each text what a reader sees from there on: it and those that follow on its line without
  /// a wide gap, as one.
  QStringList Lines() const {
    std::vector<RecordedText> texts = Texts();
    std::sort(texts.begin(), texts.end(), [](const RecordedText& a, const RecordedText& b) {
      return std::pair(std::round(a.baseline * 100), a.place.left()) <
             std::pair(std::round(b.baseline * 100), b.place.left());
    });
    QStringList lines;
    for (std::size_t first = 0; first < texts.size(); ++first) {
      QString line = texts[first].text;
      for (std::size_t i = first + 1; i < texts.size(); ++i) {
        const QRectF& before = texts[i - 1].place;
        const double gap = texts[i].place.left() - before.right();
        if (std::abs(texts[i].baseline - texts[first].baseline) > 0.01) break;
        if (gap < -0.01 || gap > before.height()) break;
        line += texts[i].text;
      }
      lines += line;
    }
    return lines;
  }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
      case PdmHeight:
        return 2000;
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return 72;
      case PdmNumColors:
        return 1 << 24;
      case PdmDepth:
        return 24;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      default:
        return 0;
    }
  }

 private:
  struct Engine : QPaintEngine {
    Engine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF& r, const QPixmap& /*p*/, const QRectF& /*s*/) override { Add(r); }
    void drawPath(const QPainterPath& path) override { Add(path.boundingRect()); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode /*mode*/) override {
      Add(QPolygonF(QList<QPointF>(points, points + count)).boundingRect());
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
      const QTransform transform = painter()->combinedTransform();
      const QRectF place(at.x(), at.y() - item.ascent(), item.width(),
                         item.ascent() + item.descent());
      texts.push_back({item.text(), transform.mapRect(place), transform.map(at).y()});
    }
    void Add(const QRectF& place) { shapes |= painter()->combinedTransform().mapRect(place); }

    std::vector<RecordedText> texts;
    QRectF shapes;
  };
  mutable Engine engine_;
};

}  // namespace tricklet::ui
