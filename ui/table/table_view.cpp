#include "ui/table/table_view.h"

#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QHelpEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "generate/editing.h"
#include "ui/style/qt_text.h"
#include "ui/table/descriptions.h"
#include "ui/table/edit_painter.h"
#include "ui/table/empty_table.h"
#include "ui/table/table_centre.h"
#include "ui/table/table_news.h"

namespace tricklet::ui {
namespace {

constexpr double kEmptyText = 1.0 / 34;  // of the table's height
constexpr int kLeastEmptyText = 12;      // pixels

void ReadAloud(QWidget* widget, const QString& news) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(widget, news);
#else
  Q_UNUSED(news)  // the description begins with it
  QAccessibleEvent event(widget, QAccessible::Alert);
#endif
  QAccessible::updateAccessibility(&event);
}

}  // namespace

TableView::TableView(QWidget* parent)
    : QWidget(parent), contract_(this), empty_(new EmptyTable(this)) {
  setObjectName(QStringLiteral("fraTable"));
  setAccessibleName(tr("Table"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
  connect(empty_, &EmptyTable::OpenAsked, this, &TableView::OpenAsked);
  connect(empty_, &EmptyTable::GenerateAsked, this, &TableView::GenerateAsked);
  Describe({});
}

void TableView::Show(const Board& board, const Settings& settings, const CardPlay* play,
                     std::optional<Seat> toCall, const PerSeat<std::string>& names) {
  ShowScene({board, settings, SnapshotOf(play), toCall, names, scene_.hidden, scene_.presentation});
}

void TableView::ShowScene(TableScene scene) {
  if (scene.play != scene_.play) keys_.Forget();
  edit_.reset();
  ShowEmptyTable(false);
  const QString news = NewsOf(std::exchange(scene_, std::move(scene)), scene_);
  contract_.Show(scene_);
  Describe(news);
}

void TableView::ShowEdit(const Board& board, const Settings& settings) {
  if (!edit_) Show(board, settings);
  if (!edit_) edit_.emplace();
  scene_.board = board;
  scene_.settings = settings;
  edit_->Show(board.hands, settings.editMethod);
  contract_.Hide();
  Describe({});
}

void TableView::ShowEmpty() {
  Show(Board(), scene_.settings);
  contract_.Hide();
  ShowEmptyTable(true);
  Describe({});
}

void TableView::ShowEmptyTable(bool shown) {
  isEmpty_ = shown;
  const bool focus = empty_->isAncestorOf(QApplication::focusWidget());
  empty_->setVisible(shown);
  if (!shown && focus) setFocus();
}

void TableView::SetHidden(const PerSeat<bool>& hidden) {
  if (hidden == scene_.hidden) return;
  TableScene scene = scene_;
  scene.hidden = hidden;
  const QString news = NewsOf(std::exchange(scene_, std::move(scene)), scene_);
  Describe(edit_ || isEmpty_ ? QString() : news);
}

void TableView::SetPresentation(bool on) {
  scene_.presentation = on;
  PlaceChildren();
  update();
}

/// Brings what hangs on the state up to date, and tells a screen reader what is new.
/// The news goes before the description until that becomes another one: a screen reader may fetch
/// it only after the table has been shown once more.
void TableView::Describe(const QString& news) {
  const QString words = isEmpty_ ? tr("The library is empty.")
                        : edit_  ? DescribeEdit(scene_.board, *edit_)
                                 : DescribeScene(scene_);
  if (!news.isEmpty() || words != described_) {
    setAccessibleDescription(words.startsWith(news) ? words : news + u' ' + words);
  }
  described_ = words;
  if (!news.isEmpty() && isVisible()) ReadAloud(this, news);
  PlaceChildren();
  ShowCursor(mapFromGlobal(QCursor::pos()));
  update();
}

void TableView::PlaceChildren() {
  if (isEmpty_) {
    empty_->setGeometry(rect());
    empty_->SetLook(std::max(kLeastEmptyText, static_cast<int>(kEmptyText * height())),
                    ColoursFor(palette()).text);
  } else if (!edit_) {
    contract_.Place(scene_, Layout(), ColoursFor(palette()));
  }
}

void TableView::ShowBestCards(std::vector<CardScore> best) {
  best_ = std::move(best);
  update();
}

TableLayout TableView::Layout() const {
  if (edit_) return LayOutEdit(size(), scene_.board.hands).table;
  return LayOutScene(scene_, size(), logicalDpiY());
}

QList<QWidget*> TableView::TabOrder() {
  return QList<QWidget*>{this} + empty_->TabOrder();
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
  const TableColours colours = ColoursFor(palette());
  DrawFelt(painter, rect(), colours);
  if (ring_) DrawFocusRing(painter, rect(), colours);
  if (isEmpty_) return;
  if (edit_) {
    DrawEditing(painter, *edit_, colours);
    return;
  }
  const auto halfTyped = scene_.play ? keys_.HalfTyped() : std::nullopt;
  painter_.Draw(painter, scene_, Layout(), SceneCaptions(scene_, halfTyped), best_,
                {palette(), font(), static_cast<double>(logicalDpiY())});
  if (scene_.play) contract_.DrawDots(painter, colours);
}

void TableView::DrawEditing(QPainter& painter, const TableEdit& edit, const TableColours& colours) {
  const Settings& settings = scene_.settings;
  const EditLayout layout = LayOutEdit(size(), scene_.board.hands);
  const EditCaptionTexts captions = MakeEditCaptions(scene_.board, settings, edit);
  const CaptionLayout pills = LayOutCaptions(layout.table, captions.hands, settings, logicalDpiY());
  DrawCaptions(painter, pills, captions.hands, settings, colours, palette());
  DrawCaption(painter, pills, PillFor(pills, captions.pack, layout.packCaption), captions.pack,
              settings, colours, palette());
  DrawCentre(painter, layout.table.centre, scene_.board, colours, font());
  DrawRooms(painter, layout, edit, colours);
  CardLook look{layout.table.cardSize, painter.device()->devicePixelRatioF(), settings.cardDesign,
                settings.suitColour};
  cards_.SetLook(look);
  look.size = layout.packCardSize;
  packCards_.SetLook(look);
  DrawEditedCards(painter, layout, edit, cards_, packCards_);
}

void TableView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceChildren();
}

void TableView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    PlaceChildren();
  }
}

/// The focus is shown to those who move it by keys.
void TableView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  ring_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  update();
}

void TableView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  ring_ = false;
  update();
}

// Mouse and keys. Outside of play and editing the table takes only clicks on captions.

bool TableView::IsOurKey(const QKeyEvent& event) const {
  if (edit_) return TableEdit(*edit_).Key(event.key(), event.modifiers()).ours;
  if (!scene_.play) return false;
  const PlaySnapshot& play = *scene_.play;
  if (event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier) {
    return play.now.onPlay.has_value();
  }
  return keys_.WouldTake(event.key(), event.modifiers(), play.HandOnPlay(), play.legal);
}

/// While cards are played or moved, digits are ranks, also where they name none that can be played.
bool TableView::IsRankKey(const QKeyEvent& event) const {
  return (edit_ || scene_.play) && event.modifiers() == Qt::NoModifier &&
         event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
}

bool TableView::event(QEvent* event) {
  // A key that plays a card is not a shortcut at the same time: Escape may be one as well.
  if (event->type() == QEvent::ShortcutOverride &&
      (IsOurKey(static_cast<QKeyEvent&>(*event)) || IsRankKey(static_cast<QKeyEvent&>(*event)))) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::ToolTip && ShowTip(static_cast<QHelpEvent&>(*event))) return true;
  return QWidget::event(event);
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (edit_ && !event->isAutoRepeat() && EditKey(*edit_, *event)) return;
  if (!scene_.play || !IsOurKey(*event)) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (event->isAutoRepeat()) return;  // a key held down plays one card
  if (event->key() == Qt::Key_Space) {
    keys_.Forget();
    emit OnlyCardAsked();
  } else {
    const PlaySnapshot& play = *scene_.play;
    const auto answer =
        keys_.Press(event->key(), event->modifiers(), play.HandOnPlay(), play.legal);
    if (answer.card) emit CardAsked(*answer.card);
  }
  update();
}

std::optional<Seat> TableView::CaptionAt(QPointF point) const {
  // In a dialog's table nobody hides hands.
  static const QMetaMethod hideAsked = QMetaMethod::fromSignal(&TableView::HideAsked);
  if (edit_ || isEmpty_ || !isSignalConnected(hideAsked)) return std::nullopt;
  const CaptionLayout pills =
      LayOutCaptions(Layout(), SceneCaptions(scene_, {}), scene_.settings, logicalDpiY());
  for (const Seat seat : kAllSeats) {
    if (pills.pills[seat].contains(point)) return seat;
  }
  return std::nullopt;
}

bool TableView::ShowTip(const QHelpEvent& event) {
  const auto seat = CaptionAt(event.pos());
  if (!seat) return false;
  QToolTip::showText(event.globalPos(),
                     (scene_.hidden[*seat] ? tr("Click to show the hand of %1")
                                           : tr("Click to hide the hand of %1"))
                         .arg(ToQt(SeatName[*seat])),
                     this);
  return true;
}

void TableView::mousePressEvent(QMouseEvent* event) {
  if (edit_ && event->button() == Qt::LeftButton) {
    Ask(edit_->Press(LayOutEdit(size(), scene_.board.hands), event->position()));
  } else if (event->button() == Qt::LeftButton && !isEmpty_) {
    Press(event->position());
  } else {
    QWidget::mousePressEvent(event);
  }
}

void TableView::Press(QPointF at) {
  if (const auto seat = CaptionAt(at)) {
    emit HideAsked(*seat);
    return;
  }
  if (!scene_.play) return;
  if (const auto hit = CardAt(Layout(), at)) {
    emit CardAsked(hit->card);
  } else {
    emit TrickAsked();
  }
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second click would meet the card that has taken the place of the one just played.
  if (edit_) {
    mousePressEvent(event);
  } else if (!scene_.play) {
    QWidget::mouseDoubleClickEvent(event);
  }
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  QWidget::mouseMoveEvent(event);
  if (edit_ && (event->buttons() & Qt::LeftButton) != 0) {
    edit_->Drag(LayOutEdit(size(), scene_.board.hands), event->position(),
                QApplication::startDragDistance());
    update();
  }
  ShowCursor(event->position());
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
  if (!edit_ || event->button() != Qt::LeftButton) {
    QWidget::mouseReleaseEvent(event);
    return;
  }
  const bool held = edit_->Held().has_value();
  const EditLayout layout = LayOutEdit(size(), scene_.board.hands);
  Ask(edit_->Release(layout, event->position()));
  if (held && !FrameAt(layout, event->position())) {
    emit Refused(tr("A card is dropped on a hand or on the pack"));
  }
}

/// Shows what has become of the edit, and passes on what it asks for.
void TableView::Ask(const std::optional<CardMove>& move) {
  Describe({});
  if (!move) return;
  const auto to = SeatOf(move->to);
  Board board = scene_.board;
  const bool room = MoveCard(board, move->card, to);
  emit MoveAsked(move->card, to);
  if (!room && to) emit Refused(tr("%1 has 13 cards already").arg(ToQt(SeatName[*to])));
}

bool TableView::EditKey(TableEdit& edit, const QKeyEvent& event) {
  const TableEdit::KeyAnswer answer = edit.Key(event.key(), event.modifiers());
  if (answer.ours) Ask(answer.move);
  return answer.ours;
}

void TableView::ShowEditCursor(const TableEdit& edit, QPointF mouse) {
  const HandTable& hands = scene_.board.hands;
  const bool card = EditedCardAt(LayOutEdit(size(), hands), hands, mouse).has_value();
  const EditMethod method = scene_.settings.editMethod;
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
  bool points = CaptionAt(mouse).has_value();
  if (!points && scene_.play) {
    const auto hit = CardAt(Layout(), mouse);
    points = hit && scene_.play->IsLegal(hit->card);
  }
  points ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

}  // namespace tricklet::ui
