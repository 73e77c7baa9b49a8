// The preview of sheets before they are printed.
#pragma once

#include <optional>

#include <QPixmap>
#include <QWidget>

#include "ui/print/sheets.h"

namespace tricklet::ui {

/// One page at a time, as large as it fits. The paper is white in dark colours too.
class SheetPreview : public QWidget {
  Q_OBJECT

 public:
  explicit SheetPreview(QWidget* parent = nullptr);

  /// Shows other sheets, at the page where it is as far as they have that one.
  void Show(Sheets sheets);
  /// Shows `why` there is nothing to be seen.
  void ShowNothing(const QString& why);

  /// 0 where there is nothing to be seen.
  int Pages() const;
  /// 0.. < Pages().
  int Page() const { return page_; }
  /// To the nearest page that there is.
  void TurnTo(int page);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 signals:
  /// Another page, or another number of pages, is shown.
  void Turned();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRect PaperOf(const Sheets& sheets) const;
  void DrawPage(const Sheets& sheets, QSize pixels);
  void Describe();

  std::optional<Sheets> sheets_;
  QString nothing_;
  int page_ = 0;
  bool ring_ = false;  // the focus has come by the keyboard
  int turned_ = 0;     // by the wheel, in eighths of a degree, short of a page
  QPixmap picture_;    // of the page in the size that was last drawn; null when it is another one
};

}  // namespace tricklet::ui
