// The pills beside the hands.
#pragma once

#include <cstdint>
#include <optional>

#include <QPainter>
#include <QPalette>

#include "core/settings.h"
#include "ui/table/table_layout.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

enum class CaptionMark : std::uint8_t {
  Plain,
  ToAct,  ///< to play or to call: yellow, with a triangle
  Over,   ///< cyan: the board has been played out
};

struct Caption {
  QString text;  ///< not shown when empty
  CaptionMark mark = CaptionMark::Plain;
  std::optional<Suit> halfTyped;  ///< a suit that waits for its rank
};

/// Where the pills lie and in what font; all four share one size.
struct CaptionLayout {
  QFont font;
  PerSeat<QString> texts;  ///< broken into lines where a caption has room for two
  PerSeat<QRectF> pills;   ///< each within its hand's caption
};

/// `dotsPerInch` is that of the screen.
CaptionLayout LayOutCaptions(const TableLayout& table, const PerSeat<Caption>& captions,
                             const Settings& settings, double dotsPerInch);

/// The lines, 1 or 2, that West's and East's captions need to have text of `table.leastCaption`, in
/// a table that was laid out for one.
int SideLinesFor(const TableLayout& table, const PerSeat<Caption>& captions,
                 const Settings& settings);

void DrawCaptions(QPainter& painter, const CaptionLayout& layout, const PerSeat<Caption>& captions,
                  const Settings& settings, const TableColours& colours, const QPalette& palette);

/// Where the pill of one more caption lies, in the font of `layout` and the middle of `room`. Its
/// text may have several lines.
QRectF PillFor(const CaptionLayout& layout, const Caption& caption, const QRectF& room);
void DrawCaption(QPainter& painter, const CaptionLayout& layout, const QRectF& pill,
                 const Caption& caption, const Settings& settings, const TableColours& colours,
                 const QPalette& palette);

}  // namespace tricklet::ui
