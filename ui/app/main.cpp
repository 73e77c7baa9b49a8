// The program with a window.
#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include <QCoreApplication>
#include <QGuiApplication>

#include "library/start_up.h"
#include "platform/settings_store.h"
#include "platform/signals.h"
#include "ui/app/application.h"
#include "ui/app/launch.h"
#include "ui/app/print_options.h"
#include "ui/style/qt_text.h"

namespace {

using tricklet::ui::LaunchOptions;

/// True when help or the version is asked for, which need no screen.
bool AsksForTextOnly(int count, char** values) {
  return std::any_of(values, values + count, [](std::string_view value) {
    return value == "-h" || value == "--help" || value == "-v" || value == "--version";
  });
}

int ShowText(int count, char** values) {
  const QCoreApplication application(count, values);
  const LaunchOptions options = tricklet::ui::ParseLaunch(QCoreApplication::arguments());
  const std::string text =
      options.version ? std::string(tricklet::kProgramName) + " " + tricklet::VersionText() + "\n"
                      : tricklet::ui::FromQt(tricklet::ui::HelpText());
  const bool printed = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
  return printed ? 0 : 1;
}

/// Sheets can be written where there is no display. Elsewhere than on the systems that may lack one
/// Qt finds the fonts by the display's own means.
void WorkWithoutScreen([[maybe_unused]] int count, [[maybe_unused]] char** values) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  if (tricklet::ui::AsksForPrint(count, values) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

}  // namespace

int main(int argc, char** argv) {
  tricklet::platform::IgnoreFileSizeSignal();
  QCoreApplication::setOrganizationName(QStringLiteral("Tricklet"));
  QCoreApplication::setApplicationName(QStringLiteral("Tricklet"));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.tricklet.Tricklet"));
  if (AsksForTextOnly(argc, argv)) return ShowText(argc, argv);

  WorkWithoutScreen(argc, argv);
  tricklet::ui::Application application(argc, argv);
  const LaunchOptions options = tricklet::ui::ParseLaunch(QCoreApplication::arguments());
  if (!options.error.isEmpty()) {
    std::fprintf(stderr, "%s\n",
                 tricklet::ShowableLines(tricklet::ui::FromQt(options.error)).c_str());
    // A script that prints need tell "done" from "not done" alone.
    return tricklet::ui::AsksForPrint(argc, argv) ? 1 : 2;
  }
  const auto store = tricklet::platform::MakeSettingsStore();
  return tricklet::ui::Launch(application, options, *store);
}
