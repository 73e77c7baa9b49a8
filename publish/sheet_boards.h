// The boards of a library while a person chooses which of them are printed.
#pragma once

#include <memory>

#include "publish/published.h"

namespace tricklet {

/// Read once; tables that are missing come later, when they are asked for.
class SheetBoards {
 public:
  /// `session` is to outlive it.
  explicit SheetBoards(Session& session) : session_(session) {}

  /// Reads the boards of `range`, as `GatherBoards` without tables. False after a message.
  bool Read(const BoardRange& range);

  /// Those of the boards that are in `range`; may be none. They stay as they are. Why tables are
  /// missing is known once `ComputeTables` has tried.
  std::shared_ptr<const Published> Of(const BoardRange& range);

  /// A complete deal of `range` has no table.
  bool LackTables(const BoardRange& range) const;
  /// Computes the tables that boards of `range` lack, with progress. When the person cancels, those
  /// until then are kept.
  void ComputeTables(const BoardRange& range);

 private:
  Session& session_;
  Published all_;
  std::shared_ptr<const Published> last_;  // what `Of` has given for `lastRange_`
  BoardRange lastRange_;
};

}  // namespace tricklet
