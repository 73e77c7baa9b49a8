// Building blocks of the side columns.
#pragma once

#include <QFrame>
#include <QLabel>

class QHBoxLayout;
class QVBoxLayout;

namespace tricklet::ui {

class FollowFont;

/// A line of plain text that can shrink: a text that does not fit ends in "...", and the tool tip
/// then has the whole of it.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A frame of a side column: a title in bold, and its contents below.
class Section : public QFrame {
  Q_OBJECT

 public:
  Section(const QString& name, QWidget* parent);

  /// The title is the frame's accessible name too.
  void SetTitle(const QString& title);
  /// For a control at the right end of the title.
  QHBoxLayout* TitleRow() const { return titleRow_; }
  QVBoxLayout* Body() const { return body_; }

  /// The title, and what else a section wants to be read from the back of a room, in letters of a
  /// thirtieth of the screen's height, where the column's font is that of a column seen from afar.
  virtual void SetFromAfar(bool afar);

 protected:
  /// Larger than the column's font by this.
  static constexpr double kAfar = 1.45;

 private:
  QVBoxLayout* body_;
  QHBoxLayout* titleRow_;
  ElidedLabel* title_;
  FollowFont* titleFont_;
};

/// A label in the quiet colour of secondary text.
void MakeQuiet(QLabel* label);

/// A thin line between two sections.
QFrame* MakeSeparator(QWidget* parent);

}  // namespace tricklet::ui
