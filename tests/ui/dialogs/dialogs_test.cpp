// The message boxes of the window's host, and the dialogs.
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include "tests/ui/window_fixture.h"
#include "ui/app/qt_host.h"
#include "ui/background/later.h"
#include "ui/dialogs/folder_browser.h"
#include "ui/dialogs/frmExport.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmStart.h"

namespace tricklet::ui {
namespace {

using DialogsTest = test::LibraryTest;

TEST_F(DialogsTest, LeavingAQuestionIsNoAnswerAndTextsAreNoMarkup) {
  const std::tuple<Buttons, Qt::Key, Answer> cases[] = {
      {Buttons::YesNo, Qt::Key_Escape, Answer::Cancel},
      {Buttons::YesNo, Qt::Key_Close, Answer::Cancel},
      {Buttons::YesNo, Qt::Key_No, Answer::No},
      {Buttons::YesNoCancel, Qt::Key_Escape, Answer::Cancel},
      {Buttons::YesNo, Qt::Key_Return, Answer::Yes},
      {Buttons::OKCancel, Qt::Key_Return, Answer::OK},
  };
  QtHost asking;
  for (const auto& [buttons, key, answer] : cases) {
    Later(qApp, [pressed = key, buttons = buttons] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->text(), QStringLiteral("<b>Club\u00FF"));
      const bool cancels = buttons == Buttons::YesNoCancel || buttons == Buttons::OKCancel;
      EXPECT_EQ(box->button(QMessageBox::Cancel)->isVisible(), cancels);
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

TEST_F(DialogsTest, EnterIsTheSafeAnswerAndButtonsSayWhatTheyDo) {
  QtHost asking;
  Later(qApp, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), QStringLiteral("<b>24</b>"));
    EXPECT_EQ(box->button(QMessageBox::Yes)->text(), QStringLiteral("&Replace 24 && go on"));
    EXPECT_EQ(box->button(QMessageBox::No)->text(), QStringLiteral("R&efuse"));
    QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(asking.Ask({.text = "Replace?",
                        .safe = Answer::No,
                        .detail = "<b>24</b>",
                        .agree = "Replace 24 & go on",
                        .refuse = "Refuse"}),
            Answer::No);
}

TEST_F(DialogsTest, ABoxHasRoomForItsTitleAndItsText) {
  QtHost asking;
  const std::string words = "Hand already in library Tuesday";
  for (const auto& [text, title] : {std::pair(std::string("7?"), words), {words, "7?"}}) {
    Later(qApp, [&words] {
      QWidget* box = QApplication::activeModalWidget();
      EXPECT_GT(box->width(), box->fontMetrics().horizontalAdvance(ToQt(words)) + 50);
      const auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      EXPECT_GE(label->width(), label->sizeHint().width());
      box->close();
    });
    asking.Tell({.text = text, .title = title});
  }
}

TEST_F(DialogsTest, AFolderThatIsNotThereYetCanBeChosen) {
  const QString here = QDir::tempPath();
  const QString there = QFileInfo(here).fileName();
  for (const auto& [in, name] :
       {std::pair(here, QStringLiteral("no such folder")), std::pair(QDir::rootPath(), there)}) {
    FolderBrowser browser(nullptr, QStringLiteral("Choose"), in, name);
    browser.show();
    QTest::qWait(0);  // Qt has looked at what is there
    browser.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    EXPECT_EQ(browser.result(), QDialog::Accepted);
    EXPECT_EQ(browser.Folder(), QDir(in).filePath(name));
    EXPECT_EQ(QFileInfo::exists(browser.Folder()), name == there) << "it is made by whoever asked";
  }
}

TEST_F(DialogsTest, AResultIsSaidInOneLineWithoutABox) {
  QtHost asking;
  QWidget window;
  QStringList said;
  asking.Attach(&window, nullptr, [&said](const QString& text) { said += text; });
  asking.TellResult("2 tables have been computed\nAnalysis cancelled");
  EXPECT_EQ(said, QStringList()) << "not before the command is over";
  QTRY_COMPARE(said,
               QStringList(QStringLiteral("2 tables have been computed; Analysis cancelled")));
}

TEST_F(DialogsTest, TheStartDialogStoresAutoLaunchAtOnce) {
  Updates updates(session.settings, nullptr);
  frmStart start(session, updates);
  const Driven form{&start};
  for (const bool on : {true, false}) {
    form.Press("chkAutoLaunch");
    EXPECT_EQ(session.settings.autoLaunch, on);
    EXPECT_EQ(store.Read("Tricklet", "AutoLaunch"), on ? "True" : "False");
  }
  Later(&start, [&form] { form.Press("cmdLaunch"); });
  EXPECT_EQ(start.exec(), QDialog::Accepted);
}

TEST_F(DialogsTest, CtrlTabTurnsThePagesOfTheOptionsFromAnywhere) {
  frmOptions options(session, QString(), nullptr);
  options.show();
  QApplication::setActiveWindow(&options);
  const auto* tabs = options.findChild<QTabWidget*>();
  EXPECT_TRUE(tabs->tabBar()->hasFocus());
  const std::pair<const char*, int> keys[] = {
      {"Ctrl+Tab", 1}, {"Ctrl+Shift+Tab", 0}, {"Ctrl+Shift+Tab", tabs->count() - 1}};
  for (const auto& [key, page] : keys) {
    options.findChild<QPushButton*>(QStringLiteral("cmdDefaults"))->setFocus();
    Driven::FocusKey(key);
    EXPECT_EQ(tabs->currentIndex(), page) << key;
  }
}

TEST_F(DialogsTest, TheExportDialogStaysUntilItsRangeIsValid) {
  for (const int number : {2, 3, 8}) PutBoard(number);
  CountHands(session);
  frmExport dialog(session, nullptr);
  const Driven form{&dialog};
  dialog.show();
  EXPECT_EQ(form.Text("cmbFrom") + " to " + form.Text("cmbTo"), "2 to 8");
  form.Type("cmbFrom", "9");
  host.ExpectTell("Please enter a valid range");
  form.Press("cmdGo");
  EXPECT_TRUE(dialog.isVisible());
  form.Type("cmbFrom", "3");
  form.Press("cmdGo");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(std::pair(dialog.Range().first, dialog.Range().last), std::pair(3, 8));
  EXPECT_EQ(dialog.Range().type, "pbn");
  for (QRadioButton* option : dialog.findChildren<QRadioButton*>()) {
    option->click();
    form.Press("cmdGo");
    EXPECT_EQ(dialog.Range().type, FromQt(option->text().toLower()));
  }
}

}  // namespace
}  // namespace tricklet::ui
