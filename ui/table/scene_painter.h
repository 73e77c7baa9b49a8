// Draws the table as it is outside of editing.
#pragma once

#include <vector>

#include <QFont>
#include <QPainter>
#include <QPalette>

#include "analysis/solver.h"
#include "ui/cards/card_back.h"
#include "ui/cards/card_painter.h"
#include "ui/table/table_scene.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

/// The felt, which lies below everything.
void DrawFelt(QPainter& painter, const QRectF& felt, const TableColours& colours);

/// Tells that keys go to the table.
void DrawFocusRing(QPainter& painter, const QRectF& felt, const TableColours& colours);

/// What a drawing takes from the widget.
struct SceneStyle {
  QPalette palette;
  QFont font;
  double dotsPerInch = 96;
};

/// Keeps the pictures of cards from one drawing to the next.
class ScenePainter {
 public:
  /// Everything that lies on the felt. `best` are cards of the hand on play and the tricks that
  /// they lead to.
  void Draw(QPainter& painter, const TableScene& scene, const TableLayout& layout,
            const PerSeat<Caption>& captions, const std::vector<CardScore>& best,
            const SceneStyle& style);

 private:
  void DrawMiddle(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                  const TableColours& colours, const QFont& font);
  void DrawCards(QPainter& painter, const TableScene& scene, const TableLayout& layout);
  static void DrawText(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                       const SceneStyle& style);

  CardPainter cards_;
  CardPainter trickCards_;
  CardBacks handBacks_;
  CardBacks trickBacks_;
};

}  // namespace tricklet::ui
