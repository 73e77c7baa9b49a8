#include "ui/window/copied_diagram.h"

#include "ui/print/board_picture.h"
#include "ui/print/print_style.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr double kScale = 2;  // of the picture, for screens with fine dots and for paper

}  // namespace

SeenBoard SeenOn(const TableScene& scene, bool auction) {
  SeenBoard seen;
  seen.board = scene.board;
  seen.board.hands = scene.Hands();
  seen.hidden = scene.hidden;
  seen.names = scene.names;
  seen.auction = auction;
  if (scene.play) {
    const PlayState& now = scene.play->now;
    seen.play = SeenPlay{now.trickCards, now.onPlay, now.tricksWon, FromQt(scene.play->score)};
  }
  return seen;
}

std::unique_ptr<QMimeData> DiagramForOthers(const SeenBoard& seen, const Settings& settings) {
  const PrintStyle style{.fourColours = settings.suitColour};
  auto data = std::make_unique<QMimeData>();
  data->setText(ToQt(DiagramText(seen)));
  data->setHtml(ToQt(DiagramHtml(seen, settings.suitColour)));
  data->setImageData(BoardImage(seen, style, kScale));
  data->setData(QStringLiteral("image/svg+xml"), BoardSvg(seen, style));
  return data;
}

}  // namespace tricklet::ui
