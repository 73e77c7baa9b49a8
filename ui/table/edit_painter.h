// Draws hands and pack while they are edited.
#pragma once

#include <QPainter>

#include "core/board.h"
#include "core/settings.h"
#include "ui/cards/card_painter.h"
#include "ui/table/edit_layout.h"
#include "ui/table/table_captions.h"
#include "ui/table/table_edit.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

struct EditCaptionTexts {
  PerSeat<Caption> hands;
  Caption pack;
};
/// The receiver is marked; the pack's caption shows a suit that waits for its rank.
EditCaptionTexts MakeEditCaptions(const Board& board, const Settings& settings,
                                  const TableEdit& edit);

/// The outlines of the five places of cards, the one that would take the card in the air in a
/// strong frame.
void DrawRooms(QPainter& painter, const EditLayout& layout, const TableEdit& edit,
               const TableColours& colours);

/// All cards where they lie, the chosen one raised and in a frame; a card in the air is shaded in
/// its place and drawn under the mouse. The painters have the looks that the layout asks for.
void DrawEditedCards(QPainter& painter, const EditLayout& layout, const TableEdit& edit,
                     CardPainter& cards, CardPainter& packCards);

}  // namespace tricklet::ui
