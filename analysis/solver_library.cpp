#include "analysis/solver_library.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <mutex>

#ifdef __GLIBC__
#include <unistd.h>
#endif

#include "analysis/library_file.h"
#include "analysis/library_solver.h"
#include "analysis/shared_library.h"
#include "core/fault.h"
#include "core/text.h"
#include "disk/presence.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Stands in where no library was found.
class MissingSolver : public Solver {
 public:
  explicit MissingSolver(std::string why) : why_(std::move(why)) {}
  std::string Missing() const override { return why_; }
  std::string Solve(std::span<const std::string> /*deals*/,
                    std::span<SolverRecord> /*records*/) override {
    return why_;
  }
  std::vector<CardScore> SolveCards(const SolverPosition& /*position*/) override { return {}; }
  std::string SolvePlays(std::span<const SolverPlay> /*plays*/,
                         std::span<PlayTricks> /*tricks*/) override {
    return why_;
  }

 private:
  std::string why_;
};

/// When the process ends, version 2.9 of the library clears up memory that its own static objects
/// have given back already, and may crash there. Handlers run last in, first out, so this one ends
/// the process before that, after flushing what main() has left to be written.
void EndBeforeLibraryCleansUp() {
#ifdef __GLIBC__
  static const bool registered = [] {
    on_exit(
        [](int status, void* /*unused*/) {
          std::cout.flush();
          std::fflush(nullptr);
          _exit(status);
        },
        nullptr);
    return true;
  }();
  static_cast<void>(registered);
#endif
}

constexpr const char* kNoSolver = "it is no solver";

/// The solver in a library, by its name or absolute path; null, with the reason in `why`, when
/// there is none.
std::unique_ptr<Solver> OpenLibrary(const fs::path& name, std::string& why) {
  const SharedLibrary library(name);
  why = library.Why();
  if (!library.IsOpen()) return nullptr;
  auto solver = MakeLibrarySolver(library);
  if (solver == nullptr) {
    why = kNoSolver;
    return nullptr;
  }
  EndBeforeLibraryCleansUp();
  return solver;
}

std::unique_ptr<Solver> OpenLibraryFile(const fs::path& path, std::string& why) {
  why = LibraryFileFlaw(path);
  return why.empty() ? OpenLibrary(path, why) : nullptr;
}

/// Whoever names a library wants that one, so no other takes its place.
std::unique_ptr<Solver> LoadNamed(const fs::path& file) {
  std::string why;
  if (auto solver = OpenLibraryFile(fs::absolute(file), why)) return solver;
  return std::make_unique<MissingSolver>("TRICKLET_SOLVER names " + ShownPath(file) +
                                         ", which cannot be used:\n" + why);
}

/// There is something of this path, or it cannot be seen whether there is.
bool MayExist(const fs::path& path) {
  try {
    return IsTaken(path);
  } catch (const Fault&) {
    return true;
  }
}

std::unique_ptr<Solver> FindSolver(const fs::path& programFolder) {
#ifdef _WIN32
  const std::vector<fs::path> names{"dds.dll"};
#else
  const std::vector<fs::path> names{"libdds.so.0", "libdds.so"};
#endif
  std::string tried = "The double-dummy solver was not found. Tried:";
  std::string why;
  for (const fs::path& name : names) {
    if (programFolder.empty()) break;
    const fs::path path = programFolder / name;
    const bool mayExist = MayExist(path);
    if (auto solver = mayExist ? OpenLibraryFile(fs::absolute(path), why) : nullptr) return solver;
    tried += "\n" + ShownPath(path) + (mayExist ? " (" + why + ")" : "");
  }
  for (const fs::path& name : names) {
    if (auto solver = OpenLibrary(name, why)) return solver;
    tried += "\n" + ShownPath(name) + (why == kNoSolver ? " (" + why + ")" : "");
  }
  return std::make_unique<MissingSolver>(tried);
}

}  // namespace

std::unique_ptr<Solver> LoadSolver(const fs::path& programFolder) {
  const char* named = std::getenv("TRICKLET_SOLVER");
  return named != nullptr && *named != '\0' ? LoadNamed(named) : FindSolver(programFolder);
}

std::function<Solver&()> SolverOnDemand(const fs::path& programFolder) {
  struct Lazy {
    std::once_flag once;
    std::unique_ptr<Solver> solver;
  };
  return [programFolder, lazy = std::make_shared<Lazy>()]() -> Solver& {
    std::call_once(lazy->once, [&] { lazy->solver = LoadSolver(programFolder); });
    return *lazy->solver;
  };
}

}  // namespace tricklet
