#include "ui/table/play_snapshot.h"

#include "ui/style/text.h"

namespace tricklet::ui {

PerSuit<Holding> TablePlay::HandOnPlay() const {
  return now.onPlay ? now.cardsLeft[*now.onPlay] : PerSuit<Holding>();
}

std::optional<TablePlay> CopyOf(const CardPlay* play) {
  if (play == nullptr || !play->PlayMode()) return std::nullopt;
  TablePlay copy{play->Now(), play->LegalCards(), {}, play->Finished(), ToQt(play->ScoreText())};
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    copy.tricks[side] = ToQt(play->TricksText(side));
  }
  return copy;
}

}  // namespace tricklet::ui
