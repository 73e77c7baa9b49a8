// The message boxes of the window's host, and the dialogs.
#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/support/library_fixture.h"
#include "ui/app/qt_host.h"
#include "ui/background/later.h"
#include "ui/dialogs/frmExport.h"
#include "ui/dialogs/frmStart.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

class DialogsTest : public test::LibraryTest {
 protected:
  static void Click(const QWidget& dialog, const char* name) {
    dialog.findChild<QAbstractButton*>(QString::fromLatin1(name))->click();
  }
  static std::ptrdiff_t Visible(const QMessageBox& box) {
    const QList<QAbstractButton*> all = box.buttons();
    return std::count_if(all.begin(), all.end(), [](auto* each) { return each->isVisible(); });
  }
};

TEST_F(DialogsTest, LeavingAQuestionIsNoAnswerAndTextsAreNoMarkup) {
  const struct {
    Buttons buttons;
    Qt::Key key;
    Answer answer;
  } cases[] = {
      {Buttons::YesNo, Qt::Key_Escape, Answer::Cancel},
      {Buttons::YesNo, Qt::Key_Close, Answer::Cancel},
      {Buttons::YesNo, Qt::Key_No, Answer::No},
      {Buttons::YesNoCancel, Qt::Key_Escape, Answer::Cancel},
      {Buttons::OKCancel, Qt::Key_Escape, Answer::Cancel},
      {Buttons::YesNo, Qt::Key_Return, Answer::Yes},
      {Buttons::NoYes, Qt::Key_Escape, Answer::Cancel},
      {Buttons::NoYes, Qt::Key_Return, Answer::No},
      {Buttons::YesNoCancel, Qt::Key_Return, Answer::Yes},
      {Buttons::OKCancel, Qt::Key_Return, Answer::OK},
  };
  QtHost asking;
  for (const auto& [buttons, key, answer] : cases) {
    Later(qApp, [pressed = key, buttons = buttons] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->text(), QStringLiteral("<b>Club\uFFFD"));
      EXPECT_EQ(Visible(*box), buttons == Buttons::YesNoCancel ? 3 : 2);
      if (pressed == Qt::Key_Close) {
        box->close();
      } else if (pressed == Qt::Key_No) {
        box->button(QMessageBox::No)->click();
      } else {
        QTest::keyClick(box, pressed);
      }
    });
    EXPECT_EQ(asking.Ask("<b>Club\xFF", "Title", buttons), answer);
  }
}

TEST_F(DialogsTest, TheStartDialogStoresAutoLaunchAtOnce) {
  frmStart start(session);
  for (const bool on : {true, false}) {
    Click(start, "chkAutoLaunch");
    EXPECT_EQ(session.settings.autoLaunch, on);
    EXPECT_EQ(store.Read("Tricklet", "AutoLaunch"), on ? "True" : "False");
  }
  Later(&start, [&start] { Click(start, "cmdLaunch"); });
  EXPECT_EQ(start.exec(), QDialog::Accepted);
}

TEST_F(DialogsTest, TheExportDialogStaysUntilItsRangeIsValid) {
  for (const int number : {2, 3, 8}) PutBoard(number);
  CountHands(session);
  frmExport dialog(session, nullptr);
  const auto set = [&dialog](const char* name, const char* text) {
    dialog.findChild<QComboBox*>(QString::fromLatin1(name))->setEditText(QString::fromLatin1(text));
  };
  dialog.show();
  EXPECT_TRUE(dialog.findChild<QRadioButton*>(QStringLiteral("optType_0"))->isChecked());
  for (const auto& [from, to] : {std::pair("9", "3"), std::pair("x", "8"), std::pair("2", "")}) {
    set("cmbFrom", from);
    set("cmbTo", to);
    host.ExpectTell("Please enter a valid range");
    Click(dialog, "cmdGo");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.Range().last, 0);
  }
  set("cmbFrom", "2");
  set("cmbTo", "8");
  Click(dialog, "cmdGo");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.Range().first, 2);
  EXPECT_EQ(dialog.Range().last, 8);
  EXPECT_EQ(dialog.Range().type, "pbn");
  const auto types = dialog.findChildren<QRadioButton*>();
  for (const char* type : {"dlm", "lin", "pbn"}) {
    for (QRadioButton* option : types) {
      if (FromQt(option->text().toLower()) == type) option->click();
    }
    Click(dialog, "cmdGo");
    EXPECT_EQ(dialog.Range().type, type);
  }
}

}  // namespace
}  // namespace tricklet::ui
