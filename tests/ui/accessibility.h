// What a screen reader and the keyboard find in a window.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QTabBar>
#include <QTest>
#include <QWidget>

namespace tricklet::test {

/// A control as a failing test names it: "cmdSave (QPushButton)".
inline QString NameOf(const QObject* object) {
  if (object == nullptr) return QStringLiteral("nothing");
  const QString type = QString::fromLatin1(object->metaObject()->className());
  if (!object->objectName().isEmpty() || object->parent() == nullptr) {
    return object->objectName() + QStringLiteral(" (") + type + u')';
  }
  return type + QStringLiteral(" in ") + NameOf(object->parent());
}

/// Roles that the person works with, or reads a value from.
inline bool IsControl(QAccessible::Role role) {
  switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
    case QAccessible::ProgressBar:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::PageTab:
    case QAccessible::MenuItem:
      return true;
    default:
      return false;
  }
}

/// Adds those at `node` and below it that have no name, or no role. The parts of a list or a box
/// are the business of that control.
inline void AddFlaws(QAccessibleInterface* node, QStringList& flaws) {
  if (node == nullptr || !node->isValid() || node->state().invisible) return;
  const QAccessible::Role role = node->role();
  if (role == QAccessible::Separator) return;
  if (IsControl(role) || node->state().focusable) {
    if (node->text(QAccessible::Name).trimmed().isEmpty()) {
      flaws += QStringLiteral("no name: ") + NameOf(node->object());
    }
    if (role == QAccessible::NoRole) flaws += QStringLiteral("no role: ") + NameOf(node->object());
  }
  if (IsControl(role) && role != QAccessible::MenuItem) return;
  for (int child = 0; child < node->childCount(); ++child) AddFlaws(node->child(child), flaws);
}

/// The controls that a screen reader would have nothing to say about.
inline QStringList UnnamedIn(QWidget& top) {
  QStringList flaws;
  AddFlaws(QAccessible::queryAccessibleInterface(&top), flaws);
  return flaws;
}

/// The letter that is underlined in `text`; null when there is none.
inline QChar MnemonicOf(const QString& text) {
  const QKeySequence keys = QKeySequence::mnemonic(text);
  return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

/// Letters that two controls that are shown share, and captions that end in a bare colon.
inline QStringList FlawsOfCaptions(const QWidget& top) {
  QStringList flaws;
  QHash<QChar, QString> taken;
  const auto look = [&](const QObject* object, const QString& text) {
    if (text.trimmed().endsWith(u':')) flaws += QStringLiteral("colon: ") + text;
    const QChar letter = MnemonicOf(text);
    if (letter.isNull()) return;
    if (taken.contains(letter))
      flaws += letter + QStringLiteral(" of ") + taken[letter] + u' ' + text;
    taken[letter] = text + QStringLiteral(" and ") + NameOf(object);
  };
  for (const QWidget* widget : top.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&top)) continue;
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
      for (int tab = 0; tab < tabs->count(); ++tab) look(tabs, tabs->tabText(tab));
    } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      if (label->buddy() != nullptr) look(label, label->text());
    } else if (qobject_cast<const QAbstractButton*>(widget) != nullptr) {
      look(widget, widget->property("text").toString());
    }
  }
  return flaws;
}

/// Controls that a person who has no mouse cannot come to by Tab. `top` is active.
inline QStringList MissedByTab(QWidget& top) {
  QList<const QWidget*> reached;
  for (int step = 0; step < 200; ++step) {
    const QWidget* focus = top.focusWidget();
    if (focus == nullptr || (step > 0 && focus == reached.first())) break;
    reached += focus;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QStringList missed;
  for (const QWidget* widget : top.findChildren<QWidget*>()) {
    const bool stops = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled() &&
                       widget->isVisible() && widget->focusProxy() == nullptr;
    const QWidget* box = widget->parentWidget();
    if (stops && !reached.contains(widget) && !reached.contains(box)) missed += NameOf(widget);
  }
  return missed;
}

}  // namespace tricklet::test
