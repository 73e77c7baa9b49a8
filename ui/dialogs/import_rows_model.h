// The boards of a file before they are imported, as the rows of a table.
#pragma once

#include <string>
#include <vector>

#include <QAbstractTableModel>

#include "formats/exchange/look_at.h"
#include "formats/look/plan_rows.h"

namespace tricklet::ui {

enum class ImportColumn { InFile, StoredAs, Hand, What };
inline constexpr int kImportColumns = 4;

/// A row for each board, and for each part of the file that cannot be read. Its mark says whether
/// it is stored.
class ImportRowsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Role {
    OrdinaryRole = Qt::UserRole  ///< false where the board is not stored as the file has it
  };

  /// `look` is to outlive it.
  explicit ImportRowsModel(const ImportLook& look, QObject* parent = nullptr);

  /// Plans the import anew by `choices`. With `kEverySection` the rows are those of all sections,
  /// one section after another, and none of them can be left out.
  void Show(const ImportChoices& choices);

  /// What would be stored; of all sections together with `kEverySection`.
  const ImportPlan& Plan() const { return plan_; }

  /// Has the boards of these rows left out, or taken back: those that can be.
  void Want(const QModelIndexList& rows, bool wanted);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
  /// The person leaves boards out, as the plan counts them, or takes them back. Nothing has changed
  /// until the next `Show`.
  void Wanted(const QList<std::size_t>& boards, bool wanted);

 private:
  struct Planned {
    ImportPlan plan;
    std::vector<PlanRow> rows;
  };
  Planned PlanOf(const ImportChoices& choices) const;
  Planned PlanOfAll(const ImportChoices& choices) const;
  QString TextOf(const PlanRow& row, ImportColumn column) const;
  QString SpokenText(const PlanRow& row, ImportColumn column) const;

  const ImportLook& look_;
  ImportPlan plan_;
  std::vector<PlanRow> rows_;
};

}  // namespace tricklet::ui
