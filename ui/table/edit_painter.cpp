#include "ui/table/edit_painter.h"

#include <algorithm>
#include <cmath>

#include "ui/table/caption_texts.h"

namespace tricklet::ui {
namespace {

constexpr double kRoomRadius = 8;
/// Of a card's width.
constexpr double kFrame = 0.06;
/// How far the chosen card stands out, of its height.
constexpr double kRaise = 0.04;

void DrawFrame(QPainter& painter, const QRectF& rect, double radius, const QPen& pen) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  const double half = pen.widthF() / 2;
  painter.drawRoundedRect(rect.adjusted(-half, -half, half, half), radius, radius);
}

QPen MarkPen(QSizeF card) {
  return {kToActYellow, std::max(2.0, kFrame * card.width())};
}

/// Draws a strong frame.
void DrawMarked(QPainter& painter, CardPainter& cards, const EditedCard& card) {
  cards.Draw(painter, card.rect.topLeft(), card.card);
  DrawFrame(painter, card.rect, card.rect.width() * kCornerShare, MarkPen(card.rect.size()));
}

/// One card among those of its hand or of the pack.
void DrawOne(QPainter& painter, const TableEdit& edit, CardPainter& cards, Card card,
             const QRectF& rect) {
  const auto held = edit.Held();
  if (held && held->card == card) {
    cards.DrawDimmed(painter, rect.topLeft(), card);
    return;
  }
  if (edit.Chosen() == card) {
    DrawMarked(painter, cards, {card, rect.translated(0, -std::round(kRaise * rect.height()))});
  } else {
    cards.Draw(painter, rect.topLeft(), card);
  }
}

}  // namespace

EditCaptionTexts MakeEditCaptions(const Board& board, const Settings& settings,
                                  const TableEdit& edit) {
  EditCaptionTexts captions;
  const PerSeat<QString> texts = EditCaptions(board, settings);
  const auto markOf = [&](HandFrame frame) {
    return edit.Receiver() == frame ? CaptionMark::ToAct : CaptionMark::Plain;
  };
  for (const Seat seat : kAllSeats) {
    captions.hands[seat] = {texts[seat], markOf(FrameOf(seat)), std::nullopt};
  }
  captions.pack = {PackCaption(board, settings), markOf(HandFrame::Pack), edit.HalfTyped()};
  return captions;
}

void DrawRooms(QPainter& painter, const EditLayout& layout, const TableEdit& edit,
               const TableColours& colours) {
  for (const HandFrame frame : kAllFrames) {
    const bool marked = edit.Target() == frame || edit.Receiver() == frame;
    DrawFrame(painter, layout.Area(frame), kRoomRadius,
              marked ? MarkPen(layout.table.cardSize) : QPen(colours.line, 1, Qt::DashLine));
  }
}

void DrawEditedCards(QPainter& painter, const EditLayout& layout, const TableEdit& edit,
                     CardPainter& cards, CardPainter& packCards) {
  for (const PlacedCard& placed : layout.table.cards) {
    DrawOne(painter, edit, cards, placed.card, placed.rect);
  }
  for (const Card card : PackOrder()) {
    if (FrameHolding(edit.Hands(), card) != HandFrame::Pack) continue;
    DrawOne(painter, edit, packCards, card,
            layout.packPlaces.at(static_cast<std::size_t>(card.Index())));
  }
  if (const auto held = edit.Held()) {
    CardPainter& own =
        FrameHolding(edit.Hands(), held->card) == HandFrame::Pack ? packCards : cards;
    DrawMarked(painter, own, *held);
  }
}

}  // namespace tricklet::ui
