// Scores against par as a picture.
#pragma once

#include <vector>

#include <QWidget>

namespace tricklet::ui {

struct ScatterPoint {
  double par = 0;    ///< in points of one side
  double score = 0;  ///< of the same side
  bool chosen = false;
  QString text;  ///< what it stands for: "Board 7: score +620, par +600"
};

/// Par to the right, the score upwards, and the line on which both are the same. Those that are
/// chosen are filled discs, the others rings. What it shows is told in words too.
class ParScatter : public QWidget {
  Q_OBJECT

 public:
  explicit ParScatter(QWidget* parent = nullptr);

  void Show(std::vector<ScatterPoint> points);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// A point has been clicked, counted from 0 in the order of `Show`.
  void PointChosen(int point);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QRectF Field() const;
  QPointF PlaceOf(const ScatterPoint& point) const;
  int PointAt(QPointF at) const;
  void PaintAxes(QPainter& painter) const;
  void PaintPoints(QPainter& painter, bool chosen) const;

  std::vector<ScatterPoint> points_;
  double most_ = 500;  // at the ends of both axes
};

/// "20 results: 8 better than par, 5 at par, 7 worse. Best: ... Worst: ..."; of those that are
/// chosen where some are.
QString ScatterText(const std::vector<ScatterPoint>& points);

}  // namespace tricklet::ui
