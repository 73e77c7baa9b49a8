#include "bench/temporary_root.h"

#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

void Require(bool done, const fs::path& path) {
  if (!done) throw std::runtime_error("cannot write " + path.string());
}

void FlushAndClose(int file, const fs::path& path) {
  Require(file >= 0 && ::fsync(file) == 0 && ::close(file) == 0, path);
}

}  // namespace

void WriteLasting(const fs::path& folder, const std::vector<std::string>& texts) {
  constexpr mode_t kMode = 0666;
  int number = kFirstBoardNumber;
  for (const std::string& text : texts) {
    const fs::path path = folder / BoardFileName(number++);
    fs::path beside = path;
    beside += ".new";
    const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kMode);
    Require(::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()), beside);
    FlushAndClose(file, beside);
    fs::rename(beside, path);
  }
  FlushAndClose(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), folder);
}

}  // namespace tricklet::bench
