#include "ui/panes/notes_pane.h"

#include <algorithm>
#include <cmath>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "core/text.h"
#include "library/board_notes.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kPause = 3000;  // milliseconds without a key, after which the text is stored
// A longer text scrolls.
constexpr int kLeastLines = 3;
constexpr int kMostLines = 8;

}  // namespace

NotesPane::NotesPane(Session& session, QWidget* parent)
    : Section(QStringLiteral("fraNotes"), parent),
      session_(session),
      txtNotes(new QPlainTextEdit(this)),
      clock_(new QTimer(this)) {
  SetTitle(tr("Notes"));
  txtNotes->setObjectName(QStringLiteral("txtNotes"));
  txtNotes->setAccessibleName(tr("Notes to the board"));
  txtNotes->setPlaceholderText(tr("Notes to the board"));
  txtNotes->setTabChangesFocus(true);
  txtNotes->installEventFilter(this);
  Body()->addWidget(txtNotes);
  clock_->setSingleShot(true);
  connect(clock_, &QTimer::timeout, this, &NotesPane::StoreQuietly);
  connect(txtNotes, &QPlainTextEdit::textChanged, this, [this] {
    FitHeight();
    if (Typing() && !failed_) clock_->start(kPause);
  });
}

QList<QWidget*> NotesPane::TabOrder() const {
  return {txtNotes};
}

bool NotesPane::Typing() const {
  return txtNotes->document()->isModified() &&
         NoteText(FromQt(txtNotes->toPlainText())) != NoteText(seen_);
}

void NotesPane::Show(const std::string& note) {
  const int board = session_.board.boardNumber;
  const bool same = board == board_ && session_.LibraryName() == library_;
  if (same && (note == seen_ || Typing())) return;  // each card that is played comes here
  board_ = board;
  library_ = session_.LibraryName();
  seen_ = note;
  failed_ = false;
  const std::string typed = NoteText(FromQt(txtNotes->toPlainText()));
  // What has just been stored may differ in its blanks: the text, its cursor and its undo stay.
  if (same && typed == note) return;
  SetText(ToQt(ShowableLines(note)));
}

void NotesPane::SetText(const QString& text) {
  txtNotes->setPlainText(text);
  txtNotes->document()->setModified(false);
  clock_->stop();
}

void NotesPane::BeginTyping() {
  txtNotes->setFocus();
  txtNotes->moveCursor(QTextCursor::End);
}

bool NotesPane::Store() {
  clock_->stop();
  if (!Typing()) return true;
  const std::string typed = NoteText(FromQt(txtNotes->toPlainText()));
  failed_ = !StoreNote(session_, board_, typed, seen_);
  if (failed_) return false;
  seen_ = typed;
  emit Stored();
  return true;
}

/// Not in the middle of a click: a message would keep the button that was pressed from being let
/// go.
void NotesPane::StoreQuietly() {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    clock_->start(1);
  } else {
    Store();
  }
}

bool NotesPane::FinishTyping() {
  if (Store()) return true;
  const Answer answer = session_.host.Ask(
      {.text = FromQt(tr("Do you want to give up what you have typed?")),
       .safe = Answer::No,
       .detail = FromQt(tr("The notes of board %1 would be as they are stored.").arg(board_)),
       .agree = FromQt(tr("Give it up")),
       .refuse = FromQt(tr("Keep it"))});
  if (answer != Answer::Yes) {
    txtNotes->setFocus();
    return false;
  }
  failed_ = false;
  SetText(ToQt(ShowableLines(seen_)));
  return true;
}

bool NotesPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtNotes) {
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason && Typing()) {
      clock_->start(1);
    }
    const bool escape =
        (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape) {
      event->accept();
      if (event->type() == QEvent::KeyPress) {
        emit Left(NoteText(FromQt(txtNotes->toPlainText())).empty());
      }
      return true;
    }
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) FitHeight();
  }
  return Section::eventFilter(watched, event);
}

/// As high as its text within limits.
void NotesPane::FitHeight() {
  const int lines = static_cast<int>(std::ceil(txtNotes->document()->size().height()));
  const int shown = std::clamp(lines, kLeastLines, kMostLines);
  const int margins =
      static_cast<int>(2 * txtNotes->document()->documentMargin()) + 2 * txtNotes->frameWidth();
  txtNotes->setFixedHeight(shown * txtNotes->fontMetrics().lineSpacing() + margins);
}

}  // namespace tricklet::ui
