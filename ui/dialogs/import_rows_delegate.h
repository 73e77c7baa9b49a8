// How the cells of an import's table are drawn.
#pragma once

#include <QStyledItemDelegate>

namespace tricklet::ui {

/// Draws the symbols of a hand in the colours of their suits, and in bold what is out of the
/// ordinary about a board. In a chosen row all is drawn in the colour of chosen text.
class ImportRowsDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  ImportRowsDelegate(bool fourColours, QObject* parent)
      : QStyledItemDelegate(parent), fourColours_(fourColours) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 protected:
  /// The mark of a row that cannot be changed is drawn as disabled, its text is not.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  bool fourColours_;
};

}  // namespace tricklet::ui
