#include "ui/dialogs/condition_editor.h"

#include <algorithm>
#include <chrono>

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>

#include "conditions/vocabulary.h"
#include "ui/dialogs/condition_highlighter.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr std::chrono::milliseconds kPause{250};
constexpr int kLettersToOffer = 2;

QStandardItemModel* WordModel(QObject* parent) {
  auto* model = new QStandardItemModel(parent);
  for (const Word& word : Vocabulary()) {
    if (!word.offered) continue;
    const QString text = ToQt(word.text);
    auto* item = new QStandardItem(QStringLiteral("%1   %2").arg(text, ToQt(word.meaning)));
    item->setData(text, Qt::UserRole);
    model->appendRow(item);
  }
  return model;
}

bool IsWordCharacter(QChar character) {
  return character.isLetterOrNumber() || character == u'_';
}

}  // namespace

ConditionEditor::ConditionEditor(QWidget* parent)
    : QPlainTextEdit(parent),
      highlighter_(new ConditionHighlighter(document(), palette())),
      completer_(new QCompleter(WordModel(this), this)),
      pause_(new QTimer(this)) {
  setObjectName(QStringLiteral("txtCondition"));
  setAccessibleName(tr("Condition"));
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  completer_->setWidget(this);
  completer_->setCompletionRole(Qt::UserRole);
  connect(completer_, qOverload<const QString&>(&QCompleter::activated), this,
          &ConditionEditor::Complete);
  pause_->setSingleShot(true);
  pause_->setInterval(kPause);
  connect(pause_, &QTimer::timeout, this, &ConditionEditor::Read);
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    upToDate_ = false;
    pause_->start();
  });
}

const ReadOutcome& ConditionEditor::Outcome() {
  if (!upToDate_) Read();
  return outcome_;
}

QString ConditionEditor::FaultText() {
  const ReadOutcome& outcome = Outcome();
  return outcome.faults.empty() ? QString() : ToQt(tricklet::FaultText(outcome.faults.front()));
}

void ConditionEditor::Read() {
  pause_->stop();
  outcome_ = ReadScript(toPlainText().toStdString());
  upToDate_ = true;
  ShowFaults();
  emit WasRead();
}

/// The characters at fault; of a fault at the end of the text, the one before.
QTextCursor ConditionEditor::CursorAt(const ScriptFault& fault) const {
  const QTextBlock block = document()->findBlockByNumber(fault.line - 1);
  QTextCursor cursor(document());
  if (!block.isValid()) {
    cursor.movePosition(QTextCursor::End);
    return cursor;
  }
  // Columns count characters, and Qt's positions halves of those beyond the first 65,536.
  const auto characters = block.text().toUcs4();
  const auto units = [&](int count) {
    const auto many = std::clamp<qsizetype>(count, 0, characters.size());
    return static_cast<int>(
        QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), many).size());
  };
  int begin = units(fault.column - 1);
  const int end = units(fault.column - 1 + fault.length);
  if (begin == end && begin > 0) --begin;
  cursor.setPosition(block.position() + begin);
  cursor.setPosition(block.position() + end, QTextCursor::KeepAnchor);
  return cursor;
}

void ConditionEditor::ShowFaults() {
  QList<QTextEdit::ExtraSelection> selections;
  const QColor red = FaultColour(palette());
  for (const ScriptFault& fault : outcome_.faults) {
    QTextEdit::ExtraSelection selection;
    selection.cursor = CursorAt(fault);
    selection.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    selection.format.setUnderlineColor(red);
    selection.format.setToolTip(ToQt(fault.text));
    selections += selection;
  }
  setExtraSelections(selections);
}

void ConditionEditor::GoToFault() {
  if (Outcome().faults.empty()) return;
  setTextCursor(CursorAt(outcome_.faults.front()));
  setFocus();
}

QString ConditionEditor::WordBeforeCursor() const {
  const QString line = textCursor().block().text();
  const int end = textCursor().positionInBlock();
  int begin = end;
  while (begin > 0 && IsWordCharacter(line.at(begin - 1))) --begin;
  return line.mid(begin, end - begin);
}

void ConditionEditor::OfferWords(bool asked) {
  const QString word = WordBeforeCursor();
  completer_->setCompletionPrefix(word);
  const bool none = completer_->completionCount() == 0;
  // Else Enter after a whole word would be the list's.
  const bool finished = completer_->currentCompletion() == word;
  const QString before = textCursor().block().text().left(textCursor().positionInBlock());
  const bool comment = before.contains(u'#') || before.contains(QLatin1String("//"));
  if (none || finished || comment || (!asked && word.size() < kLettersToOffer)) {
    completer_->popup()->hide();
    return;
  }
  completer_->popup()->setCurrentIndex(completer_->completionModel()->index(0, 0));
  QRect place = cursorRect();
  place.setWidth(completer_->popup()->sizeHintForColumn(0) +
                 completer_->popup()->verticalScrollBar()->sizeHint().width());
  completer_->complete(place);
}

void ConditionEditor::Complete(const QString& word) {
  QTextCursor cursor = textCursor();
  cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor,
                      static_cast<int>(WordBeforeCursor().size()));
  cursor.insertText(word);
  setTextCursor(cursor);
}

void ConditionEditor::keyPressEvent(QKeyEvent* event) {
  if (completer_->popup()->isVisible()) {
    switch (event->key()) {
      case Qt::Key_Enter:
      case Qt::Key_Return:
      case Qt::Key_Escape:
      case Qt::Key_Tab:
      case Qt::Key_Backtab:
        event->ignore();  // they are the list's
        return;
      default:
        break;
    }
  }
  const bool asked =
      event->key() == Qt::Key_Space && event->modifiers().testFlag(Qt::ControlModifier);
  if (!asked) QPlainTextEdit::keyPressEvent(event);
  const bool typed = !event->text().isEmpty() && event->text().at(0).isPrint();
  if (asked || typed) {
    OfferWords(asked);
  } else if (event->key() != Qt::Key_Backspace || WordBeforeCursor().isEmpty()) {
    completer_->popup()->hide();
  } else if (completer_->popup()->isVisible()) {
    OfferWords(false);
  }
}

void ConditionEditor::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    highlighter_->SetPalette(palette());
    if (upToDate_) ShowFaults();
  }
}

}  // namespace tricklet::ui
