#include "ui/table/table_scene.h"

#include <cmath>

#include "ui/table/caption_texts.h"
#include "ui/table/descriptions.h"

namespace tricklet::ui {
namespace {

/// How far a legal card stands out, of the gap between North's caption and cards; below 1, so that
/// it stays clear of what lies above it.
constexpr double kRaise = 0.85;

void RaiseLegalCards(TableLayout& layout, const PlaySnapshot& play) {
  const PlacedHand& north = layout.hands[Seat::North];
  const double raise = std::round(kRaise * (north.area.top() - north.caption.bottom()));
  for (PlacedCard& placed : layout.cards) {
    if (!play.IsLegal(placed.card)) continue;
    placed.rect.translate(0, -raise);
    placed.mark.translate(0, -raise);
  }
}

void PlaceRanksLeft(TableLayout& layout, const TableScene& scene, double dotsPerInch) {
  const TextHandMeasures measures = MeasureText(scene, layout, dotsPerInch);
  for (const Seat seat : kAllSeats) {
    if (scene.hidden[seat]) continue;
    const QRectF panel = TextPanel(scene, layout, measures, seat);
    for (const PlacedCard& rank : PlaceRanks(panel, measures, scene.Hands()[seat], seat)) {
      layout.cards.push_back(rank);
    }
  }
}

/// The longest captions that this scene's hands can get: with a role, and to act. By these nothing
/// moves as the turn goes round.
PerSeat<Caption> LongestSideCaptions(const TableScene& scene) {
  TableScene longest = scene;
  longest.hidden = {};
  if (longest.board.contract.empty()) longest.board.contract = "1C";
  PerSeat<Caption> captions;
  for (const Seat seat : {Seat::West, Seat::East}) {
    longest.board.declarer = seat;
    if (scene.toCall) longest.toCall = seat;
    if (scene.play) longest.play->now.onPlay = seat;
    captions[seat] = SceneCaptions(longest, {})[seat];
  }
  return captions;
}

}  // namespace

TableLayout LayOutScene(const TableScene& scene, QSizeF size, double dotsPerInch) {
  const HandDisplay display = scene.settings.cardsFaces ? HandDisplay::Cards : HandDisplay::Text;
  TableNeeds needs{display, scene.hidden, scene.play.has_value(), scene.presentation};
  TableLayout layout = LayOutTable(size, scene.Hands(), needs);
  if (scene.presentation) {
    needs.sideLines = SideLinesFor(layout, LongestSideCaptions(scene), scene.settings);
    if (needs.sideLines > 1) layout = LayOutTable(size, scene.Hands(), needs);
  }
  if (!scene.play) return layout;
  if (display == HandDisplay::Cards) {
    RaiseLegalCards(layout, *scene.play);
  } else {
    PlaceRanksLeft(layout, scene, dotsPerInch);
  }
  return layout;
}

TextHandMeasures MeasureText(const TableScene& scene, const TableLayout& layout,
                             double dotsPerInch) {
  return MeasureTextHands(layout, scene.board.hands, scene.settings, dotsPerInch,
                          scene.play && scene.settings.showBestCards);
}

QRectF TextPanel(const TableScene& scene, const TableLayout& layout,
                 const TextHandMeasures& measures, Seat seat) {
  return TextHandPanel(layout, measures, scene.board.hands[seat], seat);
}

PerSeat<Caption> SceneCaptions(const TableScene& scene, std::optional<Suit> halfTyped) {
  const auto toAct = scene.play ? scene.play->now.onPlay : scene.toCall;
  const PerSeat<QString> texts = CaptionTexts(
      scene.board, scene.settings, {scene.names, scene.hidden, scene.play.has_value(), toAct});
  PerSeat<Caption> captions;
  for (const Seat seat : kAllSeats) {
    captions[seat].text = texts[seat];
    if (scene.play && scene.play->PlayedOut()) captions[seat].mark = CaptionMark::Over;
  }
  if (toAct) {
    captions[*toAct].mark = CaptionMark::ToAct;
    captions[*toAct].halfTyped = halfTyped;
  }
  return captions;
}

QString DescribeScene(const TableScene& scene) {
  return scene.play ? DescribePlay(scene.board, *scene.play, scene.hidden)
                    : DescribeTable(scene.board, scene.toCall, scene.hidden);
}

}  // namespace tricklet::ui
