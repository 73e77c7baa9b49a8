// Pages with the travellers of a session and its ranking.
#pragma once

#include <memory>

#include <QSizeF>

#include "publish/published.h"
#include "publish/sheet_choices.h"
#include "ui/print/page_source.h"

namespace tricklet::ui {

/// The pages of travellers, with the ranking after them where it was chosen, for pages with `room`
/// between head and foot. `published` is needed only for the call.
std::unique_ptr<PageSource> MakeTravellerPages(const Published& published,
                                               const SheetChoices& choices, QSizeF room);

}  // namespace tricklet::ui
