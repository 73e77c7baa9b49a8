// A table of a session's report as the window shows it: columns that can be sorted, and cells.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QString>

namespace tricklet::ui {

/// The small picture beside the number of a cell.
enum class CellBar : std::uint8_t {
  None,
  FromLeft,  ///< as long as the number
  AboutZero  ///< to the right of a middle line, to the left below zero
};

struct ReportColumn {
  QString heading;     ///< short
  QString rule;        ///< what the column says and how it is counted, in sentences
  bool number = true;  ///< at the right; else a text, at the left
  bool wide = false;   ///< of names and the like: takes what room there is
  CellBar bar = CellBar::None;
  double barWidth = 2.6;  ///< the longest that a bar can be, in heights of a line
};

struct ReportCell {
  QString text;                 ///< empty where nothing is known
  std::optional<double> value;  ///< by which it is sorted; cells without one come last
  QString tip = {};             ///< what stands behind the text; may be empty
  /// Where the bar would end if the number were the one to be expected.
  std::optional<double> mark = std::nullopt;
};

struct ReportGrid {
  std::vector<ReportColumn> columns;
  std::vector<std::vector<ReportCell>> rows;  ///< a cell for each column
};

}  // namespace tricklet::ui
