#include "ui/app/launch.h"

#include <cstdio>

#include <QCommandLineParser>
#include <QDir>

#include "analysis/solver_library.h"
#include "core/fault.h"
#include "library/library_choice.h"
#include "library/start_up.h"
#include "ui/app/application.h"
#include "ui/app/print_run.h"
#include "ui/app/qt_host.h"
#include "ui/background/later.h"
#include "ui/commands/documents.h"
#include "ui/dialogs/frmStart.h"
#include "ui/style/qt_text.h"
#include "ui/style/theme.h"
#include "ui/updates/make_fetcher.h"
#include "ui/updates/updates.h"
#include "ui/window/main_window.h"

namespace tricklet::ui {
namespace {

/// The options that the parser and the help text share.
struct Parser {
  QCommandLineParser parser;
  QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                          QCoreApplication::translate("Launch", "Show this help and end.")};
  QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                             QCoreApplication::translate("Launch", "Show the version and end.")};
  QCommandLineOption root{
      QStringLiteral("root"),
      QCoreApplication::translate("Launch", "Folder of all libraries, for this call only."),
      QStringLiteral("DIR")};
  QCommandLineOption library{
      QStringLiteral("library"),
      QCoreApplication::translate("Launch", "Library to open, for this call only."),
      QStringLiteral("NAME")};
  QCommandLineOption board{QStringLiteral("board"),
                           QCoreApplication::translate("Launch", "Board to begin with."),
                           QStringLiteral("N")};
  QCommandLineOption seed{
      QStringLiteral("seed"),
      QCoreApplication::translate("Launch", "The same number gives the same random deals."),
      QStringLiteral("N")};
  QCommandLineOption screenshot{
      QStringLiteral("screenshot"),
      QCoreApplication::translate("Launch", "Write a picture of the window and end."),
      QStringLiteral("FILE.png")};
  QCommandLineOption size{QStringLiteral("size"),
                          QCoreApplication::translate("Launch", "Size of the picture."),
                          QStringLiteral("WxH")};

  Parser() {
    parser.setApplicationDescription(
        QCoreApplication::translate("Launch", "Keeps, shows and exchanges bridge deals."));
    parser.addOptions({help, version, root, library, board, seed, screenshot, size});
    AddPrintOptions(parser);
    parser.addPositionalArgument(
        QStringLiteral("files"),
        QCoreApplication::translate("Launch", "Hand records to import into the library."),
        QStringLiteral("[files...]"));
  }
};

constexpr int kSmallestSide = 200;
constexpr int kLargestSide = 16384;

/// The size of a text such as "1280x800"; an invalid one when it is none.
QSize SizeFromText(const QString& text) {
  const QStringList sides = text.split(u'x');
  if (sides.size() != 2) return {};
  const QSize size(sides.at(0).toInt(), sides.at(1).toInt());
  const auto fits = [](int side) { return side >= kSmallestSide && side <= kLargestSide; };
  return fits(size.width()) && fits(size.height()) ? size : QSize();
}

/// A name that is given must be one: a script's empty variable must not mean the stored library.
void ReadName(const QCommandLineParser& parser, const QCommandLineOption& option, QString& name,
              QString& error) {
  name = parser.value(option);
  if (name.isEmpty() && parser.isSet(option)) {
    error = QCoreApplication::translate("Launch", "Nothing is named: --%1")
                .arg(option.names().constFirst());
  }
}

void ReadBoard(const QString& text, LaunchOptions& options) {
  options.board = text.toInt();
  if (IsStorable(options.board)) return;
  options.error = QCoreApplication::translate("Launch", "Not a board number: %1").arg(text);
}

void ReadSeed(const QString& text, LaunchOptions& options) {
  bool isNumber = false;
  options.seed = text.toULongLong(&isNumber);
  if (isNumber) return;
  options.error = QCoreApplication::translate("Launch", "Not a number: %1").arg(text);
}

void ReadSize(const QString& text, LaunchOptions& options) {
  options.size = SizeFromText(text);
  if (options.size.isValid()) return;
  options.error = QCoreApplication::translate("Launch", "Not a size: %1").arg(text);
}

/// Asks nobody, so that no question has an answer; messages go to the error output.
class SilentHost : public QtHost {
 public:
  using Host::Ask;
  using Host::Tell;
  void Tell(const Message& message) override {
    std::fprintf(stderr, "%s\n", ShowableLines(message.text).c_str());
  }
  Answer Ask(const Question& question) override {
    Tell(question.text);
    return Answer::Cancel;
  }
  void Beep() override {}
  std::optional<std::filesystem::path> ChooseFolder(
      const std::string& /*title*/, const std::filesystem::path& /*start*/) override {
    return std::nullopt;
  }
};

/// The library to open in a root that was named. Why a root cannot be seen is said when it is
/// opened.
std::string LibraryOfNamedRoot(const std::filesystem::path& root, const std::string& stored) {
  try {
    return LibraryOfRoot(root, stored);
  } catch (const Fault&) {
    return stored;
  }
}

/// A pane that asks for another height is heard by the one around it in the event loop's next turn.
void LetLayoutSettle() {
  constexpr int kTurns = 10;  // more than panes lie in each other
  for (int turn = 0; turn < kTurns; ++turn) QCoreApplication::processEvents();
}

/// The window as a picture file; false when that could not be written.
bool WriteScreenshot(MainWindow& window, const LaunchOptions& options) {
  window.setAttribute(Qt::WA_DontShowOnScreen);
  window.resize(options.size);
  window.show();
  LetLayoutSettle();
  window.Display();  // widths are known by now
  LetLayoutSettle();
  return window.grab().save(options.screenshot, "PNG");
}

int RunWindow(Application& application, MainWindow& window, const LaunchOptions& options) {
  window.RestorePlace();
  window.show();
  window.Display();
  Later(&window, [&window, &options] {
    window.OfferDrafts();
    if (!options.files.empty()) window.ImportFiles(options.files);
  });
  const int exitCode = application.exec();
  window.SavePlace();
  return exitCode;
}

/// The start dialog, which looks for a newer version before the start goes on; or, where the window
/// is to open at once, the same question asked beside it: asked before the start goes on too, but
/// not waited for, since "at once" leaves nobody a dialog in which to see what is waited for. A
/// file that is opened with the program is wanted at once, too. False when the dialog was closed.
bool PassStart(Session& session, Updates& updates, bool opensFile) {
  if (!session.settings.autoLaunch && !opensFile)
    return frmStart(session, updates).exec() == QDialog::Accepted;
  if (updates.WantedAtStart()) updates.Ask();
  return true;
}

int RunSession(Application& application, const LaunchOptions& options, Session& session,
               QtHost& host) {
  const bool pictureOnly = !options.screenshot.isEmpty();
  Updates updates(session.settings, MakeFetcher());
  ApplyColourScheme(application, session.settings.colourScheme);
  HelpKey helpKey(host);
  application.installEventFilter(&helpKey);
  TellUnreadSettings(session);
  if (!pictureOnly) ShowNotice(session);
  if (!pictureOnly && !PassStart(session, updates, !options.files.empty())) return 0;
  if (!OpenLibraries(session, FromQt(options.library))) return 1;
  if (host.HasEnded()) return 0;
  if (options.board != 0) SelectBoard(session, options.board);
  MainWindow window(session, updates);
  host.Attach(&window, window.Progress(), [&window](const QString& text) { window.Say(text); });
  if (!pictureOnly) return RunWindow(application, window, options);
  if (!options.files.empty()) window.ImportFiles(options.files);
  return WriteScreenshot(window, options) ? 0 : 1;
}

}  // namespace

LaunchOptions ParseLaunch(const QStringList& arguments) {
  Parser known;
  LaunchOptions options;
  if (!known.parser.parse(arguments)) {
    options.error = known.parser.errorText();
    return options;
  }
  options.help = known.parser.isSet(known.help);
  options.version = known.parser.isSet(known.version);
  options.screenshot = known.parser.value(known.screenshot);
  ReadName(known.parser, known.root, options.root, options.error);
  ReadName(known.parser, known.library, options.library, options.error);
  if (known.parser.isSet(known.board)) ReadBoard(known.parser.value(known.board), options);
  if (known.parser.isSet(known.seed)) ReadSeed(known.parser.value(known.seed), options);
  if (known.parser.isSet(known.size)) ReadSize(known.parser.value(known.size), options);
  options.print = ReadPrintOptions(known.parser, options.error);
  for (const QString& file : known.parser.positionalArguments()) {
    options.files.push_back(PathFromQt(file));
  }
  return options;
}

QString HelpText() {
  return Parser().parser.helpText();
}

int Launch(Application& application, const LaunchOptions& options, SettingsStore& store) {
  OverlayStore overlay(store);
  const bool overlaid = !options.root.isEmpty() || !options.library.isEmpty();
  if (!options.root.isEmpty()) {
    const std::filesystem::path root = PathFromQt(QDir(options.root).absolutePath());
    overlay.Name("filelocation", FolderText(root));
    overlay.Name("library", LibraryOfNamedRoot(root, LoadSettings(store).library));
  }

  QtHost asking;
  SilentHost silent;
  const bool printOnly = options.print.Wanted();
  const bool pictureOnly = !printOnly && !options.screenshot.isEmpty();
  QtHost& host = printOnly || pictureOnly ? silent : asking;
  Session session(host, overlaid ? static_cast<SettingsStore&>(overlay) : store);
  if (!pictureOnly) {
    session.getSolver = SolverOnDemand(PathFromQt(QCoreApplication::applicationDirPath()));
    session.tablesInBackground = !printOnly;
  }
  if (options.seed) session.random = RandomSource(*options.seed);
  application.host = &host;
  int exitCode = 1;
  try {
    exitCode = printOnly ? RunPrint(session, options.library, options.print)
                         : RunSession(application, options, session, host);
  } catch (const std::exception& failure) {
    ErrorReport(host, FaultFrom(failure));
  }
  application.host = nullptr;
  return exitCode;
}

}  // namespace tricklet::ui
