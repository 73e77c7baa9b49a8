// A main window on a library of its own.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "library/library_choice.h"
#include "tests/support/calls.h"
#include "tests/support/fake_fetcher.h"
#include "tests/support/library_fixture.h"
#include "tests/support/records.h"
#include "tests/support/words.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/main_window.h"

namespace tricklet::ui {

/// Follows a script, and shows work in the window as the program does.
class WindowHost : public test::ScriptedHost {
 public:
  bool Step(const std::string& text, int done, int total) override {
    test::ScriptedHost::Step(text, done, total);
    return working->Step(ToQt(text), done, total);
  }
  void BeginWork() override {
    test::ScriptedHost::BeginWork();
    if (works++ == 0) working = ProgressFrame::InFront(progress);
    working->Begin();
  }
  void EndWork() override {
    test::ScriptedHost::EndWork();
    working->End();
    --works;
  }

  ProgressFrame* working = nullptr;
  int works = 0;
  ProgressFrame* progress = nullptr;
};

/// A window or dialog in the hands of a test, which names controls and actions.
struct Driven {
  QWidget* top = nullptr;

  template <class Part>
  Part* Find(const char* name) const {
    auto* part = top->findChild<Part*>(QString::fromLatin1(name));
    EXPECT_NE(part, nullptr) << name;
    return part;
  }
  /// By the mouse.
  void Click(const char* name) const { QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton); }
  /// Whatever part of the button the mouse would have to hit.
  void Press(const char* name) const { Find<QAbstractButton>(name)->click(); }
  /// The buttons of a list, in turn.
  void PressAll(const char* names) const {
    for (const std::string& name : test::Words(names)) Press(name.c_str());
  }
  /// Replaces the text of a line or an editable combo box by typing.
  void Type(const char* name, const char* text) const {
    auto* box = top->findChild<QComboBox*>(QString::fromLatin1(name));
    QLineEdit* line = box != nullptr ? box->lineEdit() : Find<QLineEdit>(name);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, QString::fromLatin1(text));
  }
  void TypeAndEnter(const char* name, const char* text) const {
    Type(name, text);
    FocusKey("Return");
  }

  std::string Text(const char* name) const {
    const auto* widget = Find<QWidget>(name);
    const QVariant chosen = widget->property("currentText");
    return FromQt((chosen.isValid() ? chosen : widget->property("text")).toString());
  }
  std::string Spoken(const char* name) const {
    return FromQt(Find<QWidget>(name)->accessibleName());
  }
  bool Shown(const char* name) const { return Find<QWidget>(name)->isVisible(); }
  bool Enabled(const char* name) const { return Find<QObject>(name)->property("enabled").toBool(); }
  /// Those of the names, separated by blanks, that are shown.
  std::string ShownOf(const char* names) const {
    return test::WordsWhere(names, [this](const char* name) { return Shown(name); });
  }
  /// Those that are enabled.
  std::string EnabledOf(const char* names) const {
    return test::WordsWhere(names, [this](const char* name) { return Enabled(name); });
  }
  /// The name of the control that has the focus.
  std::string Focus() const {
    const QWidget* focus = top->focusWidget();
    if (qobject_cast<const QComboBox*>(focus->parentWidget()) != nullptr) {
      focus = focus->parentWidget();
    }
    return FromQt(focus->objectName());
  }

  /// Presses and lets go of keys as QKeySequence names them; the widget has to outlive it.
  static void PressKey(QWidget* widget, const char* name) {
    const QKeyCombination key = QKeySequence(QString::fromLatin1(name))[0];
    QTest::keyPress(widget, key.key(), key.keyboardModifiers());
    QTest::keyRelease(widget, key.key(), key.keyboardModifiers());
  }
  void Key(const char* name) const {
    QApplication::setActiveWindow(top);  // after a dialog none is active
    PressKey(top, name);
  }
  /// To whatever has the focus, as the system delivers keys.
  static void FocusKey(const char* name) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    PressKey(QApplication::focusWidget(), name);
  }
  /// One after the other.
  static void FocusKeys(std::string_view keys) {
    for (const char key : keys) FocusKey(std::string(1, key).c_str());
  }
};

/// Library Club with boards 1, 3, 22 and 24, and the empty library Teaching.
class WindowTest : public test::LibraryTestBy<WindowHost>, protected Driven {
 protected:
  using Driven::Shown;

  WindowTest() {
    for (const int number : {1, 3, 22, 24}) PutBoard(number);
    std::filesystem::create_directories(folder.Path() / "Teaching");
    GetLibraryNames(session);
  }

  TableView* Table() const { return window->findChild<TableView*>(); }
  void ClickAt(QPointF at) const {
    QTest::mouseClick(Table(), Qt::LeftButton, Qt::NoModifier, at.toPoint());
  }
  void Bid(const std::string& auction) {
    test::SetAuction(session.board, auction);
    window->Display();
  }
  /// The auction pane's, "1\u2660 Dbl".
  std::string Calls() const {
    const auto* grid = Find<QTableWidget>("flexBids");
    QStringList calls;
    for (int place = 0; place < grid->rowCount() * kSeats; ++place) {
      const auto* item = grid->item(place / kSeats, place % kSeats);
      if (item != nullptr) calls += item->text();
    }
    return FromQt(calls.join(QLatin1Char(' ')));
  }
  void ImportBoardFive() {
    test::WriteFile(folder.Path() / "five.pbn", test::PbnText({5}));
    host.ExpectAskWith("Overwrite existing hands", Answer::Yes);
    host.ExpectTell("Hand 5 has been saved to the library - Club");
    host.Choose(folder.Path() / "five.pbn");
    Find<QAction>("mnuImport")->trigger();
  }

  void Open() {
    window = std::make_unique<MainWindow>(session, updates);
    top = window.get();
    host.progress = window->Progress();
    window->show();
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  void TearDown() override { EXPECT_EQ(dialogsLeft, 0) << "expected but not opened"; }

  /// Has `work` work the next dialog once it is up and has no work of its own; it has to close it.
  void Expect(const std::function<void(const Driven&)>& work) {
    ++dialogsLeft;
    auto* timer = new QTimer(window.get());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, work] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      const auto* busy = dialog->findChild<ProgressFrame*>();
      if (busy != nullptr && busy->IsWorking()) return;
      timer->stop();
      timer->deleteLater();
      --dialogsLeft;
      QApplication::setActiveWindow(dialog);
      work({dialog});
      EXPECT_FALSE(dialog->isVisible());
      if (dialog->isVisible()) dialog->done(QDialog::Rejected);
    });
    timer->start(0);
  }
  /// Gives the command by its key and works the dialog that it opens.
  void WithDialog(const char* key, const std::function<void(const Driven&)>& work) {
    Expect(work);
    Key(key);
    EXPECT_EQ(dialogsLeft, 0);
  }

  test::FakeFetcher* fetcher = new test::FakeFetcher;  // of `updates`
  Updates updates{session.settings, std::unique_ptr<Fetcher>(fetcher)};
  std::unique_ptr<MainWindow> window;
  int dialogsLeft = 0;
};

}  // namespace tricklet::ui
