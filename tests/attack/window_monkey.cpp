// The real main window in the hands of somebody who clicks, types and drags at random. After each
// action the files and what is shown are held against what must be so.
//
//   tricklet_window_monkey [--minutes M] [--seed S] [--hang SECONDS]
//
// Ends with 1 and the last actions when something is wrong, and is aborted when an action takes
// longer than `--hang`, 2 seconds unless given.
#include <cstdio>
#include <random>

#include <QAbstractButton>
#include <QAbstractPrintDialog>
#include <QAction>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

#include "generate/deal.h"
#include "library/library_choice.h"
#include "tests/attack/library_model.h"
#include "tests/attack/monkey_host.h"
#include "tests/attack/watchdog.h"
#include "tests/support/fake_solver.h"
#include "tests/support/records.h"
#include "ui/app/application.h"
#include "ui/background/later.h"
#include "ui/updates/updates.h"
#include "ui/window/main_window.h"

namespace tricklet::ui {
namespace {

namespace fs = std::filesystem;

struct Options {
  double minutes = 1;
  unsigned seed = 1;
  double hang = 2;
};

class Monkey {
 public:
  explicit Monkey(const Options& options)
      : random_(options.seed),
        dog_(std::chrono::milliseconds(static_cast<int>(options.hang * 1000))),
        host_(folder_.Path(), random_),
        session_(host_, store_) {
    host_.note = [this](const std::string& text) { dog_.Note(text); };
    Furnish();
    session_.random = RandomSource(options.seed);
    session_.getSolver = [this]() -> Solver& { return solver_; };
    session_.tablesInBackground = true;
    session_.settings.filelocation = FolderText(folder_.Path() / "root");
    session_.settings.library = "Club";
    GetLibraryNames(session_);
    model_.emplace(folder_.Path());
    Open();
    DriveDialogs();
  }

  /// What was found wrong after one more action; empty when nothing was.
  std::string Act() {
    using Action = void (Monkey::*)();
    static constexpr Action kActions[] = {
        &Monkey::Click, &Monkey::Click, &Monkey::Click,    &Monkey::Command,      &Monkey::Command,
        &Monkey::Press, &Monkey::Press, &Monkey::Type,     &Monkey::Choose,       &Monkey::Drag,
        &Monkey::Drag,  &Monkey::Shut,  &Monkey::DropFile, &Monkey::OtherProgram,
    };
    host_.agreed = false;
    host_.fault.clear();
    dialogSteps_ = 0;
    (this->*kActions[random_() % std::size(kActions)])();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    std::string wrong = model_->Look(host_.agreed || dialogSteps_ > 0) + Shown();
    if (!host_.fault.empty()) wrong += "a fault: " + host_.fault + "\n";
    return wrong;
  }
  void Print() { dog_.Print(); }

 private:
  void Furnish() {
    RandomSource random(7);
    for (const char* library : {"Club", "Teaching", "Autumn"}) {
      for (const int number : {1, 2, 3, 5, 8}) {
        Board board;
        Random(board.hands, random);
        test::WriteFile(BoardFile(library, number), WriteBoardText(board));
      }
    }
    test::WriteFile(folder_.Path() / "three.pbn", test::PbnText({2, 3, 4}));
    test::WriteFile(folder_.Path() / "torn.pbn", test::PbnText({6}).substr(0, 90));
    for (const char* name : {"out", "other", "bin"}) fs::create_directories(folder_.Path() / name);
  }
  fs::path BoardFile(const std::string& library, int number) const {
    return folder_.Path() / "root" / library / BoardFileName(number);
  }
  void Open() {
    window_ = std::make_unique<MainWindow>(session_, updates_);
    host_.progress = window_->Progress();
    window_->show();
    QApplication::setActiveWindow(window_.get());
  }

  template <class Item>
  Item* OneOf(const QList<Item*>& items) {
    return items.isEmpty() ? nullptr
                           : items.at(static_cast<qsizetype>(
                                 random_() % static_cast<std::size_t>(items.size())));
  }
  template <class Part>
  Part* AnyPart(QWidget* top) {
    QList<Part*> parts;
    for (Part* part : top->findChildren<Part*>()) {
      if (part->isVisible() && part->isEnabled()) parts += part;
    }
    return OneOf(parts);
  }
  static QWidget* Top(QWidget* window) {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : window;
  }
  void Note(const char* what, const QObject* on) {
    dog_.Note(std::string(what) + " " + FromQt(on->objectName()) + " (" +
              on->metaObject()->className() + ")");
  }

  void Click() {
    if (auto* button = AnyPart<QAbstractButton>(Top(window_.get()))) {
      Note("click", button);
      QTest::mouseClick(button, Qt::LeftButton);
    }
  }
  void Command() {
    QAction* action = OneOf(window_->actions());
    if (action == nullptr || !action->isEnabled()) return;
    Note("command", action);
    action->trigger();
  }
  void Press() {
    static constexpr int kKeys[] = {
        Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,
        Qt::Key_Down,     Qt::Key_Up,     Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Space,
        Qt::Key_Delete,   Qt::Key_A,      Qt::Key_S,      Qt::Key_1,      Qt::Key_7,
        Qt::Key_N,        Qt::Key_P,      Qt::Key_X,      Qt::Key_T,      Qt::Key_F5};
    static constexpr Qt::KeyboardModifier kWith[] = {Qt::NoModifier, Qt::NoModifier,
                                                     Qt::ControlModifier, Qt::ShiftModifier};
    QWidget* top = Top(window_.get());
    QWidget* at = top->focusWidget() != nullptr ? top->focusWidget() : top;
    const auto key = static_cast<Qt::Key>(kKeys[random_() % std::size(kKeys)]);
    const Qt::KeyboardModifiers with = kWith[random_() % std::size(kWith)];
    dog_.Note("key " + FromQt(QKeySequence(QKeyCombination(with, key)).toString()));
    QTest::keyClick(at, key, with);
  }
  void Type() {
    static constexpr const char* kTexts[] = {
        "7", "12", "999", "0", "Spring", "CLUB", "aux", "AKQ", "-", "AKT2.QJ5.-.98", "4S"};
    auto* line = AnyPart<QLineEdit>(Top(window_.get()));
    if (line == nullptr) return;
    const QString text = QString::fromLatin1(kTexts[random_() % std::size(kTexts)]);
    Note(("type " + FromQt(text) + " into").c_str(), line);
    line->setFocus();
    line->selectAll();
    const QPointer<QLineEdit> still = line;
    QTest::keyClicks(line, text);
    if (still != nullptr && random_() % 2 == 0) QTest::keyClick(still, Qt::Key_Return);
  }
  void Choose() {
    auto* box = AnyPart<QComboBox>(Top(window_.get()));
    if (box == nullptr || box->count() == 0) return;
    Note("choose in", box);
    const int index =
        static_cast<int>(random_() % static_cast<unsigned>(std::min(box->count(), 12)));
    box->setCurrentIndex(index);
    emit box->activated(index);
  }
  void Drag() {
    auto* table = window_->findChild<QWidget*>(QStringLiteral("picTable"));
    if (Top(window_.get()) != window_.get() || !table->isVisible()) return;
    const auto place = [&] {
      return QPoint(static_cast<int>(random_() % static_cast<unsigned>(table->width())),
                    static_cast<int>(random_() % static_cast<unsigned>(table->height())));
    };
    dog_.Note("drag on the table");
    QTest::mousePress(table, Qt::LeftButton, Qt::NoModifier, place());
    if (random_() % 2 == 0) QTest::mouseMove(table, place());
    QTest::mouseRelease(table, Qt::LeftButton, Qt::NoModifier, place());
  }
  void Shut() {
    if (random_() % 4 != 0) return;
    dog_.Note("close the window");
    if (!window_->close()) return;
    GetLibraryNames(session_);  // as a new start does
    Open();
  }
  void DropFile() {
    dog_.Note("drop three.pbn");
    window_->ImportFiles({folder_.Path() / "three.pbn"});
  }
  void OtherProgram() {
    const int number = static_cast<int>(1 + random_() % 10);
    const fs::path file = session_.BoardPath(number);
    dog_.Note("another program changes board " + std::to_string(number));
    if (!fs::exists(file.parent_path())) return;
    Board board;
    Random(board.hands, session_.random);
    if (random_() % 4 == 0) {
      fs::remove(file);
    } else {
      test::WriteFile(file, WriteBoardText(board));
    }
    model_->TakeAsSeen();
    if (random_() % 2 == 0) window_->LookAtDisk();
  }

  /// Works whatever dialog or list is open. Each turn sees to the next before it acts, since what
  /// it does may open another dialog.
  void DriveDialogs() {
    Later(
        qApp, [this] { DriveDialogs(); }, std::chrono::milliseconds(1));
    if (QWidget* list = QApplication::activePopupWidget()) {
      dog_.Note("key to a list");
      QTest::keyClick(list, random_() % 2 == 0 ? Qt::Key_Escape : Qt::Key_Return);
      return;
    }
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    if (qobject_cast<QAbstractPrintDialog*>(dialog) != nullptr) {
      dialog->reject();  // there may be a printer
      return;
    }
    ++dialogSteps_;
    if (dialogSteps_ > 40 || random_() % 12 == 0) {
      Note("leave", dialog);
      dialogSteps_ % 2 == 0 ? dialog->reject() : static_cast<void>(dialog->close());
      return;
    }
    using Action = void (Monkey::*)();
    static constexpr Action kActions[] = {&Monkey::Click, &Monkey::Press, &Monkey::Type,
                                          &Monkey::Choose};
    (this->*kActions[random_() % std::size(kActions)])();
  }

  /// What the window says is what the session holds.
  std::string Shown() const {
    const Board& board = session_.board;
    std::string wrong;
    const auto expect = [&wrong](bool holds, const char* what) {
      if (!holds) wrong += std::string(what) + "\n";
    };
    const auto* save = window_->findChild<QAbstractButton*>(QStringLiteral("cmdSave"));
    const auto* boards = window_->findChild<QComboBox*>(QStringLiteral("cmbBoard"));
    const auto* libraries = window_->findChild<QComboBox*>(QStringLiteral("cmbLibs"));
    if (!board.playMode) expect(save->isEnabled() == board.handChanged, "cmdSave is wrong");
    expect(boards->currentIndex() == board.boardNumber - 1, "cmbBoard shows another board");
    expect(boards->count() == session_.library.maxBoard, "cmbBoard lists other boards");
    expect(libraries->currentIndex() == session_.libIndex, "cmbLibs shows another library");
    expect(window_->isWindowModified() == board.handChanged, "the title's mark is wrong");
    return wrong;
  }

  std::mt19937 random_;
  test::TempFolder folder_;
  test::Watchdog dog_;
  test::MonkeyHost host_;
  test::FakeSolver solver_;
  MemoryStore store_;
  Session session_;
  std::optional<test::LibraryModel> model_;
  Updates updates_{session_.settings, nullptr};
  std::unique_ptr<MainWindow> window_;
  int dialogSteps_ = 0;
};

Options Parse(const QStringList& arguments) {
  QCommandLineParser parser;
  const QString minutes = QStringLiteral("minutes");
  const QString seed = QStringLiteral("seed");
  const QString hang = QStringLiteral("hang");
  parser.addOptions({{minutes, {}, minutes, QStringLiteral("1")},
                     {seed, {}, seed, QStringLiteral("1")},
                     {hang, {}, hang, QStringLiteral("2")}});
  parser.process(arguments);
  return {parser.value(minutes).toDouble(), parser.value(seed).toUInt(),
          parser.value(hang).toDouble()};
}

int Run(const Options& options) {
  Monkey monkey(options);
  const auto end = std::chrono::steady_clock::now() +
                   std::chrono::duration<double, std::ratio<60>>(options.minutes);
  int actions = 0;
  for (; std::chrono::steady_clock::now() < end; ++actions) {
    const std::string wrong = monkey.Act();
    if (wrong.empty()) continue;
    monkey.Print();
    std::fprintf(stderr,
                 "\n%safter action %d; again: tricklet_window_monkey --minutes %g --seed %u\n",
                 wrong.c_str(), actions + 1, options.minutes, options.seed);
    return 1;
  }
  std::printf("%d actions, nothing wrong\n", actions);
  return 0;
}

}  // namespace
}  // namespace tricklet::ui

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const tricklet::ui::Application application(argc, argv);
  return tricklet::ui::Run(tricklet::ui::Parse(QCoreApplication::arguments()));
}
