#include "ui/actions/action_table.h"

#include <algorithm>

#include <QFile>
#include <QKeySequence>
#include <QSet>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include "ui/actions/menu_table.h"

namespace tricklet::ui {
namespace {

QStringList WordsOf(const char* text) {
  return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

QStringList NamesIn(const char* menu) {
  QStringList names;
  for (const QString& word : WordsOf(menu)) {
    if (!word.endsWith(u'>') && word != QStringLiteral("<") && word != QStringLiteral("|")) {
      names += word.section(u'=', -1);
    }
  }
  return names;
}

TEST(ActionTable, EveryActionHasANameATipAndKeysOfItsOwn) {
  QSet<QString> names;
  QSet<QString> keys;
  for (const ActionEntry& entry : ActionTable()) {
    EXPECT_STRNE(entry.tip, "") << entry.name;
    const QString name = QString::fromLatin1(entry.name);
    EXPECT_FALSE(names.contains(name)) << entry.name;
    names += name;
    EXPECT_FALSE(WordsOf(entry.keys).isEmpty()) << entry.name;
    for (const QString& key : WordsOf(entry.keys)) {
      const QKeySequence sequence(key);
      EXPECT_EQ(sequence.count(), 1) << entry.name << ": " << entry.keys;
      EXPECT_NE(sequence[0].key(), Qt::Key_unknown) << entry.name << ": " << entry.keys;
      EXPECT_FALSE(keys.contains(sequence.toString())) << entry.name << ": " << entry.keys;
      keys += sequence.toString();
    }
  }
}

TEST(ActionTable, EveryActionIsInOneMenuAndNoMenuIsShort) {
  QStringList inMenus;
  for (const MenuEntry& menu : MenuTable()) {
    EXPECT_GT(NamesIn(menu.actions).size(), 1) << menu.title;
    inMenus += NamesIn(menu.actions);
  }
  QStringList all;
  for (const ActionEntry& entry : ActionTable()) all += QString::fromLatin1(entry.name);
  QStringList offered = inMenus;
  std::sort(offered.begin(), offered.end());
  std::sort(all.begin(), all.end());
  EXPECT_EQ(offered, all);
  for (const char* other : {kToolbar, kTableContext, kBoardListContext, kTravellerContext}) {
    for (const QString& name : NamesIn(other)) EXPECT_TRUE(all.contains(name)) << qPrintable(name);
  }
}

/// Submenus have mnemonics of their own; those of the actions in them are free again.
TEST(ActionTable, MnemonicsAreUniqueInTheirMenu) {
  const auto textOf = [](const QString& name) {
    for (const ActionEntry& entry : ActionTable()) {
      if (name == QString::fromLatin1(entry.name)) return QString::fromLatin1(entry.text);
    }
    return QString();
  };
  for (const MenuEntry& menu : MenuTable()) {
    QList<QSet<QChar>> open{{}};
    for (const QString& word : WordsOf(menu.actions)) {
      if (word.endsWith(u'>')) open.append(QSet<QChar>());
      if (word == QStringLiteral("<")) open.removeLast();
      const QString text = textOf(word).toLower();
      const qsizetype at = text.indexOf(u'&');
      if (at < 0) continue;
      EXPECT_FALSE(open.last().contains(text[at + 1])) << menu.title << ": " << qPrintable(text);
      open.last() += text[at + 1];
    }
  }
}

/// "| Save board | Ctrl+S |", menu by menu.
QString KeysOfTheTable() {
  QString text;
  for (const MenuEntry& menu : MenuTable()) {
    text +=
        QStringLiteral("\n| %1 | |\n|---|---|\n").arg(QString::fromLatin1(menu.title).remove(u'&'));
    for (const QString& name : NamesIn(menu.actions)) {
      for (const ActionEntry& entry : ActionTable()) {
        if (name != QString::fromLatin1(entry.name)) continue;
        QString title = QString::fromLatin1(entry.text).remove(u'&');
        if (title.endsWith(QStringLiteral("..."))) title.chop(3);
        text += QStringLiteral("| %1 | %2 |\n")
                    .arg(title, WordsOf(entry.keys).join(QStringLiteral(", ")));
      }
    }
  }
  return text;
}

TEST(ActionTable, TheManualHasItsKeys) {
  QFile file(QStringLiteral(TRICKLET_HELP));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(file.readAll()).contains(KeysOfTheTable()))
      << "the section Keys has to be:\n"
      << qPrintable(KeysOfTheTable());
}

}  // namespace
}  // namespace tricklet::ui
