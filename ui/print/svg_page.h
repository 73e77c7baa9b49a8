// A page that is painted into a text of SVG 1.1.
//
// Qt's own module for it is none of those that our build for Windows has.
#pragma once

#include <memory>

#include <QByteArray>
#include <QPaintDevice>
#include <QSizeF>
#include <QString>

namespace tricklet::ui {

/// Takes vectors, text and pictures; gradients and patterns come out in their plain colour. Text
/// stays text, in the family of the font and as wide as it was measured here, whatever fonts the
/// reader has. A painter's unit is a point.
class SvgPage : public QPaintDevice {
 public:
  /// `size` in points, at least one by one.
  SvgPage(QSizeF size, const QString& title);
  ~SvgPage() override;
  SvgPage(const SvgPage&) = delete;
  SvgPage& operator=(const SvgPage&) = delete;

  /// The whole document, UTF-8, once the painter has ended.
  QByteArray Document() const;

  QPaintEngine* paintEngine() const override;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  class Engine;
  QSizeF size_;
  std::unique_ptr<Engine> engine_;
};

}  // namespace tricklet::ui
