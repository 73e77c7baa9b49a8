// A main window on a library of its own.
#pragma once

#include <memory>
#include <string_view>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "library/library_choice.h"
#include "tests/support/library_fixture.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/window/main_window.h"

namespace tricklet::ui {

/// Follows a script, and shows work in the window as the program does.
class WindowHost : public test::ScriptedHost {
 public:
  bool Step(const std::string& text, int done, int total) override {
    test::ScriptedHost::Step(text, done, total);
    return progress->Step(ToQt(text), done, total);
  }
  void BeginWork() override {
    test::ScriptedHost::BeginWork();
    progress->Begin();
  }
  void EndWork() override {
    test::ScriptedHost::EndWork();
    progress->End();
  }

  ProgressFrame* progress = nullptr;
};

/// Library Club with boards 1, 3, 22 and 24, and the empty library Teaching.
class WindowTest : public testing::Test {
 protected:
  WindowTest() : session(host, store) {
    session.settings.filelocation = FolderText(folder.Path());
    session.settings.library = "Club";
    for (const int number : {1, 3, 22, 24}) PutBoard(number);
    std::filesystem::create_directories(folder.Path() / "Teaching");
    GetLibraryNames(session);
  }

  void PutBoard(int number) { test::WriteFile(session.BoardPath(number), test::OneSuitEachText()); }

  void Open() {
    window = std::make_unique<MainWindow>(session);
    host.progress = window->Progress();
    window->show();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  void TearDown() override { EXPECT_EQ(dialogsLeft, 0) << "expected but not opened"; }

  /// Has `work` work the next dialog of the type once it is up; it has to close it.
  template <class Dialog, class Work>
  void Expect(const Work& work) {
    ++dialogsLeft;
    auto* timer = new QTimer(window.get());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, steps = work] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer->stop();
      timer->deleteLater();
      --dialogsLeft;
      QApplication::setActiveWindow(dialog);
      steps(*dialog);
      EXPECT_FALSE(dialog->isVisible());
      if (dialog->isVisible()) dialog->done(QDialog::Rejected);
    });
    timer->start(0);
  }
  static void Press(const QWidget& dialog, const char* name) {
    dialog.findChild<QAbstractButton*>(QString::fromLatin1(name))->click();
  }

  template <class Widget>
  Widget* Find(const char* name) const {
    auto* widget = window->findChild<Widget*>(QString::fromLatin1(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  /// Presses and lets go; the widget has to outlive it.
  template <class AnyKey>
  static void PressKey(QWidget* widget, AnyKey key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyPress(widget, key, modifiers);
    QTest::keyRelease(widget, key, modifiers);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QApplication::setActiveWindow(window.get());  // after a dialog none is active
    PressKey(window.get(), key, modifiers);
  }
  /// To whatever has the focus, as the system delivers keys.
  static void FocusKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    PressKey(focus, key, modifiers);
  }
  static void FocusKeys(std::string_view keys) {
    for (const char key : keys) {
      QWidget* focus = QApplication::focusWidget();
      ASSERT_NE(focus, nullptr);
      PressKey(focus, key);
    }
  }
  void Click(const char* name) const {
    QTest::mouseClick(Find<QAbstractButton>(name), Qt::LeftButton);
  }
  /// Replaces the text of an editable combo box by typing.
  void Type(const char* name, const char* text) const {
    QLineEdit* edit = Find<QComboBox>(name)->lineEdit();
    edit->setFocus();
    edit->selectAll();
    FocusKeys(text);
  }
  bool Shown(const char* name) const { return Find<QWidget>(name)->isVisible(); }
  bool Offered(const char* action) const { return Find<QAction>(action)->isEnabled(); }
  QString ShownBoard() const { return Find<QComboBox>("cmbBoard")->currentText(); }

  test::TempFolder folder;
  WindowHost host;
  MemoryStore store;
  Session session;
  std::unique_ptr<MainWindow> window;
  int dialogsLeft = 0;
};

}  // namespace tricklet::ui
