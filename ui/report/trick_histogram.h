// How often declarer ends with so many tricks, as bars.
#pragma once

#include <array>
#include <cstdint>

#include <QWidget>

namespace tricklet::ui {

/// Bars of those numbers of tricks that came up, with their shares; those that make the contract
/// are filled, the others outlines. Told in words too.
class TrickHistogram : public QWidget {
  Q_OBJECT

 public:
  using Counts = std::array<std::int64_t, 14>;  ///< deals by declarer's tricks, 0..13

  explicit TrickHistogram(QWidget* parent = nullptr);

  /// `needed` tricks make the contract.
  void Show(const Counts& counts, int needed);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::int64_t Deals() const;
  QString Words() const;

  Counts counts_{};
  int needed_ = 0;
};

}  // namespace tricklet::ui
