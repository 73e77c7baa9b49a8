#include "ui/table/table_view.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QCursor>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

#include "ui/table/best_card_labels.h"
#include "ui/table/descriptions.h"
#include "ui/table/edit_painter.h"
#include "ui/table/table_centre.h"
#include "ui/table/table_trick.h"
#include "ui/table/text_hands.h"
#include "ui/table/tricks_won.h"

namespace tricklet::ui {
namespace {

constexpr double kFeltRadius = 12;
/// How far a legal card stands out, of the gap between North's caption and cards; below 1, so that
/// it stays clear of what lies above it.
constexpr double kRaise = 0.85;

double RaiseOf(const TableLayout& layout) {
  const PlacedHand& north = layout.hands[Seat::North];
  return std::round(kRaise * (north.area.top() - north.caption.bottom()));
}

}  // namespace

TableView::TableView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("fraTable"));
  setAccessibleName(tr("Table"));
  setAccessibleDescription(DescribeTable(board_));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TableView::Show(const Board& board, const Settings& settings, const CardPlay* play,
                     std::optional<Seat> toCall) {
  std::optional<PlaySnapshot> shown = SnapshotOf(play);
  if (shown != play_) keys_.Forget();
  board_ = board;
  settings_ = settings;
  play_ = std::move(shown);
  toCall_ = toCall;
  edit_.reset();
  Describe();
}

void TableView::ShowEdit(const Board& board, const Settings& settings) {
  if (!edit_) Show(board, settings);
  if (!edit_) edit_.emplace();
  board_ = board;
  settings_ = settings;
  edit_->Show(board.hands, settings.editMethod);
  Describe();
}

void TableView::Describe() {
  setAccessibleDescription(edit_   ? DescribeEdit(board_, *edit_)
                           : play_ ? DescribePlay(board_, *play_)
                                   : DescribeTable(board_, toCall_));
  setMouseTracking(play_ || edit_);
  ShowCursor(mapFromGlobal(QCursor::pos()));
  update();
}

void TableView::ShowBestCards(std::vector<CardScore> best) {
  best_ = std::move(best);
  update();
}

TableLayout TableView::Layout() const {
  if (edit_) return LayOutEdit(size(), board_.hands).table;
  const HandDisplay display = settings_.cardsFaces ? HandDisplay::Cards : HandDisplay::Text;
  TableLayout layout = LayOutTable(size(), board_.hands, display);
  if (play_ && display == HandDisplay::Cards) PlaceCardsLeft(layout, *play_);
  if (play_ && display == HandDisplay::Text) PlaceRanksLeft(layout, *play_);
  return layout;
}

/// Every card keeps the place that it had in the full hand: nothing moves under the mouse, and a
/// card that is taken back returns to where it was.
void TableView::PlaceCardsLeft(TableLayout& layout, const PlaySnapshot& play) const {
  std::erase_if(layout.cards, [&](const PlacedCard& placed) {
    return !play.now.cardsLeft[placed.seat][placed.card.suit].Has(placed.card.rank);
  });
  if (settings_.showBestCards) return;  // the labels stand in that room, on legal cards only
  const double raise = RaiseOf(layout);
  for (PlacedCard& placed : layout.cards) {
    if (play.IsLegal(placed.card)) placed.rect.translate(0, -raise);
  }
}

void TableView::PlaceRanksLeft(TableLayout& layout, const PlaySnapshot& play) const {
  const TextHandMeasures measures =
      MeasureTextHands(layout, board_.hands, settings_, logicalDpiY());
  for (const Seat seat : kAllSeats) {
    const PerSuit<Holding>& hand = board_.hands[seat];
    const QRectF panel = TextHandPanel(layout, measures, hand, seat);
    for (const PlacedCard& rank : PlaceRanks(panel, measures, hand, seat)) {
      const bool left = play.now.cardsLeft[seat][rank.card.suit].Has(rank.card.rank);
      if (left) layout.cards.push_back(rank);
    }
  }
}

QSize TableView::minimumSizeHint() const {
  return {380, 340};
}
QSize TableView::sizeHint() const {
  return {760, 680};
}

void TableView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const TableLayout layout = Layout();
  const TableColours colours = ColoursFor(palette());
  DrawFelt(painter, layout, colours);
  if (edit_) {
    DrawEditing(painter, *edit_, colours);
    return;
  }
  const PerSeat<Caption> captions = Captions();
  const CaptionLayout pills = LayOutCaptions(layout, captions, settings_, logicalDpiY());
  if (play_)
    DrawTricksWon(painter, LayOutTricksWon(layout, *play_), *play_, backs_, colours, font());
  DrawCaptions(painter, pills, captions, settings_, colours, palette());
  DrawMiddle(painter, layout, colours);
  if (settings_.cardsFaces) {
    DrawCards(painter, layout);
  } else {
    DrawText(painter, layout);
  }
  if (play_) DrawBestCardLabels(painter, layout, best_, font());
}

void TableView::DrawEditing(QPainter& painter, const TableEdit& edit, const TableColours& colours) {
  const EditLayout layout = LayOutEdit(size(), board_.hands);
  const EditCaptionTexts captions = MakeEditCaptions(board_, settings_, edit);
  const CaptionLayout pills =
      LayOutCaptions(layout.table, captions.hands, settings_, logicalDpiY());
  DrawCaptions(painter, pills, captions.hands, settings_, colours, palette());
  DrawCaption(painter, pills, PillFor(pills, captions.pack, layout.packCaption), captions.pack,
              settings_, colours, palette());
  DrawCentre(painter, layout.table.centre, board_, colours, font());
  DrawRooms(painter, layout, edit, colours);
  CardLook look{layout.table.cardSize, painter.device()->devicePixelRatioF(), settings_.cardDesign,
                settings_.suitColour};
  cards_.SetLook(look);
  look.size = layout.packCardSize;
  packCards_.SetLook(look);
  DrawEditedCards(painter, layout, edit, cards_, packCards_);
}

PerSeat<Caption> TableView::Captions() const {
  const auto onPlay = play_ ? play_->now.onPlay : std::nullopt;
  const PerSeat<QString> texts = play_     ? PlayCaptions(board_, settings_, onPlay)
                                 : toCall_ ? CallCaptions(board_, settings_, *toCall_)
                                           : TableCaptions(board_, settings_);
  PerSeat<Caption> captions;
  for (const Seat seat : kAllSeats) {
    captions[seat].text = texts[seat];
    if (play_ && play_->PlayedOut()) captions[seat].mark = CaptionMark::Over;
  }
  if (onPlay) {
    captions[*onPlay].mark = CaptionMark::OnPlay;
    captions[*onPlay].halfTyped = keys_.HalfTyped();
  } else if (!play_ && toCall_) {
    captions[*toCall_].mark = CaptionMark::ToCall;
  }
  return captions;
}

void TableView::DrawFelt(QPainter& painter, const TableLayout& layout,
                         const TableColours& colours) const {
  QLinearGradient felt(layout.felt.topLeft(), layout.felt.bottomLeft());
  felt.setColorAt(0, colours.feltTop);
  felt.setColorAt(1, colours.feltBottom);
  painter.setPen(Qt::NoPen);
  painter.setBrush(felt);
  painter.drawRoundedRect(layout.felt, kFeltRadius, kFeltRadius);
}

void TableView::DrawMiddle(QPainter& painter, const TableLayout& layout,
                           const TableColours& colours) {
  if (!play_) {
    DrawCentre(painter, layout.centre, board_, colours, font());
    return;
  }
  DrawCentreInPlay(painter, layout.centre, board_, colours, font());
  const QRectF room = TrickRoom(layout.centre);
  DrawTrick(painter, LayOutTrick(room, layout.cardSize), *play_, trickCards_, settings_, colours);
  // The last trick lies there for a while before the result takes its place.
  if (play_->finished && play_->now.trickGathered) {
    DrawScore(painter, room, play_->score, colours, font());
  }
}

void TableView::DrawCards(QPainter& painter, const TableLayout& layout) {
  cards_.SetLook({layout.cardSize, painter.device()->devicePixelRatioF(), settings_.cardDesign,
                  settings_.suitColour});
  for (const PlacedCard& placed : layout.cards) {
    const bool onPlay = play_ && play_->now.onPlay == placed.seat;
    if (onPlay && !play_->IsLegal(placed.card)) {
      cards_.DrawDimmed(painter, placed.rect.topLeft(), placed.card);
    } else {
      cards_.Draw(painter, placed.rect.topLeft(), placed.card);
    }
  }
}

void TableView::DrawText(QPainter& painter, const TableLayout& layout) const {
  if (!HasCards(board_.hands)) return;
  const TextHandMeasures measures =
      MeasureTextHands(layout, board_.hands, settings_, logicalDpiY());
  for (const Seat seat : kAllSeats) {
    const PerSuit<Holding>& hand = board_.hands[seat];
    const QRectF panel = TextHandPanel(layout, measures, hand, seat);
    if (play_) {
      DrawTextHandInPlay(painter, panel, measures, hand, seat, *play_, settings_, palette());
    } else {
      DrawTextHand(painter, panel, measures, hand, settings_, palette());
    }
  }
}

// Mouse and keys. Outside of play and editing all of them are left to others.

bool TableView::IsOurKey(const QKeyEvent& event) const {
  if (edit_) return TableEdit(*edit_).Key(event.key(), event.modifiers()).ours;
  if (!play_) return false;
  if (event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier) {
    return play_->now.onPlay.has_value();
  }
  return keys_.WouldTake(event.key(), event.modifiers(), play_->HandOnPlay(), play_->legal);
}

bool TableView::event(QEvent* event) {
  // A key that plays a card is not a shortcut at the same time: Escape may be one as well.
  if (event->type() == QEvent::ShortcutOverride && IsOurKey(static_cast<QKeyEvent&>(*event))) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (edit_ && !event->isAutoRepeat() && EditKey(*edit_, *event)) return;
  if (!play_ || !IsOurKey(*event)) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (event->isAutoRepeat()) return;  // a key held down plays one card
  if (event->key() == Qt::Key_Space) {
    keys_.Forget();
    emit OnlyCardAsked();
  } else {
    const auto answer =
        keys_.Press(event->key(), event->modifiers(), play_->HandOnPlay(), play_->legal);
    if (answer.card) emit CardAsked(*answer.card);
  }
  update();
}

void TableView::mousePressEvent(QMouseEvent* event) {
  if (edit_ && event->button() == Qt::LeftButton) {
    Ask(edit_->Press(LayOutEdit(size(), board_.hands), event->position()));
    return;
  }
  if (!play_ || event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  if (const auto hit = CardAt(Layout(), event->position())) {
    emit CardAsked(hit->card);
  } else {
    emit TrickAsked();
  }
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second click would meet the card below the one that was just played.
  if (edit_) {
    mousePressEvent(event);
  } else if (!play_) {
    QWidget::mouseDoubleClickEvent(event);
  }
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  QWidget::mouseMoveEvent(event);
  if (edit_ && (event->buttons() & Qt::LeftButton) != 0) {
    edit_->Drag(LayOutEdit(size(), board_.hands), event->position(),
                QApplication::startDragDistance());
    update();
  }
  ShowCursor(event->position());
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
  if (edit_ && event->button() == Qt::LeftButton) {
    Ask(edit_->Release(LayOutEdit(size(), board_.hands), event->position()));
  } else {
    QWidget::mouseReleaseEvent(event);
  }
}

/// Shows what has become of the edit, and passes on what it asks for.
void TableView::Ask(const std::optional<CardMove>& move) {
  Describe();
  if (move) emit MoveAsked(move->card, SeatOf(move->to));
}

bool TableView::EditKey(TableEdit& edit, const QKeyEvent& event) {
  const TableEdit::KeyAnswer answer = edit.Key(event.key(), event.modifiers());
  if (answer.ours) Ask(answer.move);
  return answer.ours;
}

void TableView::ShowEditCursor(const TableEdit& edit, QPointF mouse) {
  const bool card = EditedCardAt(LayOutEdit(size(), board_.hands), board_.hands, mouse).has_value();
  const EditMethod method = settings_.editMethod;
  if (edit.Held()) {
    setCursor(Qt::ClosedHandCursor);
  } else if (card && method == EditMethod::Dragging) {
    setCursor(Qt::OpenHandCursor);
  } else if (method == EditMethod::Clicking && (card || edit.Chosen())) {
    setCursor(Qt::PointingHandCursor);
  } else {
    unsetCursor();
  }
}

void TableView::ShowCursor(QPointF mouse) {
  if (edit_) {
    ShowEditCursor(*edit_, mouse);
    return;
  }
  bool legal = false;
  if (play_) {
    const auto hit = CardAt(Layout(), mouse);
    legal = hit && play_->IsLegal(hit->card);
  }
  legal ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

}  // namespace tricklet::ui
