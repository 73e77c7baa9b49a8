#include "platform/terminal.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
// Needs what is above.
#include <shellapi.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tricklet::platform {

#ifdef _WIN32

namespace {

std::string ToUtf8(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size > 0 ? size : 1), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
  utf8.pop_back();  // the terminating zero
  return utf8;
}

}  // namespace

std::vector<std::string> PrepareConsole(int /*argc*/, char** /*argv*/) {
  SetConsoleOutputCP(CP_UTF8);
  std::vector<std::string> arguments;
  int count = 0;
  // The arguments of main() have lost every letter outside the ANSI code page.
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

bool IsTerminal() {
  return _isatty(0) != 0 && _isatty(2) != 0;
}

#else

namespace {

/// A stream that was closed before the start must not become the number of a file that is opened
/// later, or messages would go into that file. Opened the wrong way round, it still fails when
/// used.
void OccupyClosedStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) != -1) continue;
    static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
}

}  // namespace

std::vector<std::string> PrepareConsole(int argc, char** argv) {
  OccupyClosedStreams();
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

bool IsTerminal() {
  return isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0;
}

#endif

}  // namespace tricklet::platform
