// The pages of the layouts that have a fixed number of places on a page.
#pragma once

#include <memory>

#include <QSizeF>

#include "publish/published.h"
#include "publish/sheet_choices.h"
#include "ui/print/page_source.h"

namespace tricklet::ui {

/// Hand records, lessons or deal slips, for pages with `room` between head and foot. `published`
/// outlives the pages.
std::unique_ptr<PageSource> MakeBoardPages(const Published& published, const SheetChoices& choices,
                                           QSizeF room);

}  // namespace tricklet::ui
