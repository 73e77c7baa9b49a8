// Pages with tables: the travellers of a session with its ranking, and its report.
#pragma once

#include <memory>
#include <vector>

#include <QSizeF>

#include "publish/published.h"
#include "publish/sheet_choices.h"
#include "publish/sheet_tables.h"
#include "ui/print/page_source.h"

namespace tricklet::ui {

/// The pages of travellers, with the ranking after them where it was chosen, for pages with `room`
/// between head and foot. `published` is needed only for the call.
std::unique_ptr<PageSource> MakeTravellerPages(const Published& published,
                                               const SheetChoices& choices, QSizeF room);

/// The pages of `tables`, for pages with `room` between head and foot.
std::unique_ptr<PageSource> MakeTablePages(std::vector<SheetTable> tables,
                                           const SheetChoices& choices, QSizeF room);

}  // namespace tricklet::ui
