// The entries of `cmbBoard`.
#pragma once

#include <QAbstractListModel>
#include <QPalette>

#include "library/session.h"

namespace tricklet::ui {

/// Boards 1..MaxBoard as "Board 7"; those without a file are marked in words and in grey.
class BoardListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  /// Takes over which boards are there; resets the model only when that has changed.
  void Show(const LibraryState& library);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
  std::array<bool, kLastBoardNumber + 1> present_{};
  int maxBoard_ = 0;
};

}  // namespace tricklet::ui
