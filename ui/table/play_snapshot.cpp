#include "ui/table/play_snapshot.h"

#include "ui/style/qt_text.h"

namespace tricklet::ui {

PerSuit<Holding> PlaySnapshot::HandOnPlay() const {
  return now.onPlay ? now.cardsLeft[*now.onPlay] : PerSuit<Holding>();
}

std::optional<PlaySnapshot> SnapshotOf(const CardPlay* play) {
  if (play == nullptr || !play->PlayMode()) return std::nullopt;
  PlaySnapshot copy{play->Now(), play->LegalCards(), {}, play->Finished(), ToQt(play->ScoreText())};
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    copy.tricks[side] = ToQt(play->TricksText(side));
  }
  return copy;
}

}  // namespace tricklet::ui
