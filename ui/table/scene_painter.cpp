#include "ui/table/scene_painter.h"

#include <QLinearGradient>

#include "ui/table/best_card_labels.h"
#include "ui/table/table_centre.h"
#include "ui/table/table_trick.h"
#include "ui/table/tricks_won.h"

namespace tricklet::ui {
namespace {

constexpr double kFeltRadius = 12;

}  // namespace

void DrawFelt(QPainter& painter, const QRectF& felt, const TableColours& colours) {
  QLinearGradient cloth(felt.topLeft(), felt.bottomLeft());
  cloth.setColorAt(0, colours.feltTop);
  cloth.setColorAt(1, colours.feltBottom);
  painter.setPen(Qt::NoPen);
  painter.setBrush(cloth);
  painter.drawRoundedRect(felt, kFeltRadius, kFeltRadius);
}

void DrawFocusRing(QPainter& painter, const QRectF& felt, const TableColours& colours) {
  constexpr double kWeight = 2;
  painter.setPen(QPen(colours.text, kWeight));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(felt.adjusted(kWeight, kWeight, -kWeight, -kWeight),
                          kFeltRadius - kWeight, kFeltRadius - kWeight);
}

void ScenePainter::Draw(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                        const PerSeat<Caption>& captions, const std::vector<CardScore>& best,
                        const SceneStyle& style) {
  const TableColours colours = ColoursFor(style.palette);
  if (scene.play) {
    DrawTricksWon(painter, LayOutTricksWon(layout, *scene.play), *scene.play, trickBacks_);
  }
  const CaptionLayout pills = LayOutCaptions(layout, captions, scene.settings, style.dotsPerInch);
  DrawCaptions(painter, pills, captions, scene.settings, colours, style.palette);
  DrawMiddle(painter, scene, layout, colours, style.font);
  if (scene.settings.cardsFaces) {
    DrawCards(painter, scene, layout);
  } else {
    DrawText(painter, scene, layout, style);
  }
  if (scene.play) DrawBestCardLabels(painter, layout, best, style.font);
}

void ScenePainter::DrawMiddle(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                              const TableColours& colours, const QFont& font) {
  if (!scene.play) {
    DrawCentre(painter, layout.centre, scene.board, colours, font);
    return;
  }
  const PlaySnapshot& play = *scene.play;
  const QRectF room = TrickRoom(layout.centre);
  const TrickLayout trick = LayOutTrick(room, layout.cardSize);
  DrawCentreInPlay(painter, layout.centre, trick.corner, scene.board, colours, font);
  DrawTrick(painter, trick, play, trickCards_, scene.settings, colours);
  // The last trick lies there for a while before the result takes its place.
  if (play.finished && play.now.trickGathered) {
    DrawScore(painter, room, play.score, colours, font);
  }
}

void ScenePainter::DrawCards(QPainter& painter, const TableScene& scene,
                             const TableLayout& layout) {
  for (const PlacedBack& back : layout.backs) handBacks_.Draw(painter, back.rect);
  cards_.SetLook({layout.cardSize, painter.device()->devicePixelRatioF(), scene.settings.cardDesign,
                  scene.settings.suitColour});
  for (const PlacedCard& placed : layout.cards) {
    const bool onPlay = scene.play && scene.play->now.onPlay == placed.seat;
    if (onPlay && !scene.play->IsLegal(placed.card)) {
      cards_.DrawDimmed(painter, placed.rect.topLeft(), placed.card);
    } else {
      cards_.Draw(painter, placed.rect.topLeft(), placed.card);
    }
  }
}

void ScenePainter::DrawText(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                            const SceneStyle& style) {
  if (!HasCards(scene.board.hands)) return;
  const TextHandMeasures measures = MeasureText(scene, layout, style.dotsPerInch);
  for (const Seat seat : kAllSeats) {
    const PerSuit<Holding>& hand = scene.Hands()[seat];
    if (scene.hidden[seat]) {
      DrawHiddenTextHand(painter, layout.hands[seat].area, measures, CardsIn(hand), seat,
                         style.palette);
      continue;
    }
    const QRectF panel = TextPanel(scene, layout, measures, seat);
    if (scene.play) {
      DrawTextHandInPlay(painter, panel, measures, seat, *scene.play, scene.settings,
                         style.palette);
    } else {
      DrawTextHand(painter, panel, measures, hand, scene.settings, style.palette);
    }
  }
}

}  // namespace tricklet::ui
