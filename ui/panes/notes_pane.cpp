#include "ui/panes/notes_pane.h"

#include <QVBoxLayout>

#include "core/text.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

NotesPane::NotesPane(QWidget* parent)
    : Section(QStringLiteral("fraNotes"), parent), lblNotes(new QLabel(this)) {
  SetTitle(tr("Notes"));
  lblNotes->setObjectName(QStringLiteral("lblNotes"));
  lblNotes->setAccessibleName(tr("Notes"));
  lblNotes->setTextFormat(Qt::PlainText);
  lblNotes->setWordWrap(true);
  lblNotes->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblNotes->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  Body()->addWidget(lblNotes);
}

void NotesPane::Show(const std::string& note) {
  constexpr std::size_t kLongest = std::size_t{16} * 1024;  // more would make a column of metres
  const QString text = ToQt(ShowableLines(std::string_view(note).substr(0, kLongest)));
  if (text == lblNotes->text()) return;  // each card that is played comes here
  lblNotes->setText(text);
  lblNotes->setAccessibleDescription(text);
}

}  // namespace tricklet::ui
