// From the command line to the main window.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include <QSize>
#include <QString>
#include <QStringList>

#include "core/settings.h"
#include "ui/app/print_options.h"

namespace tricklet::ui {

class Application;

/// What the program's command line asks for.
struct LaunchOptions {
  QString root;                       ///< library root for this call only; empty: the stored one
  QString library;                    ///< library for this call only; empty: the stored one
  int board = 0;                      ///< board to begin with; 0: the first
  std::optional<std::uint64_t> seed;  ///< of the random numbers; nothing: given by the system
  QString screenshot;     ///< where to write a picture of the window and end; empty: nowhere
  QSize size{1280, 800};  ///< of the picture
  std::vector<std::filesystem::path> files;  ///< to import
  PrintOptions print;                        ///< what to write instead of opening a window

  bool help = false;
  bool version = false;
  QString error;  ///< what is wrong with the command line; empty when nothing is
};

/// `arguments` begin with the program's name. Touches no screen.
LaunchOptions ParseLaunch(const QStringList& arguments);

/// The text of `--help`.
QString HelpText();

/// Runs the program on `store` and returns its exit code.
int Launch(Application& application, const LaunchOptions& options, SettingsStore& store);

}  // namespace tricklet::ui
