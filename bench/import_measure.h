// An import of boards, and the least that the disk has to do for it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "bench/quiet_host.h"
#include "bench/temporary_root.h"
#include "core/text.h"
#include "formats/exchange/import.h"
#include "library/session.h"

namespace tricklet::bench {

/// The library that is imported into, made anew for each run.
inline constexpr const char* kImportLibrary = "Imported";

/// Reading the file and writing the texts of its boards.
inline void MeasureImportFloor(benchmark::State& state, const TemporaryRoot& root,
                               const std::filesystem::path& file,
                               const std::vector<std::string>& boardTexts) {
  std::filesystem::path folder;
  std::size_t bytes = 0;
  Measure(
      state, [&] { folder = root.Emptied(kImportLibrary); },
      [&] {
        bytes += ReadByStream(file);
        WriteLasting(folder, boardTexts);
      });
  benchmark::DoNotOptimize(bytes);
}

/// The import itself, which must bring in so many boards.
inline void MeasureImport(benchmark::State& state, const TemporaryRoot& root,
                          const std::filesystem::path& file, std::size_t boards,
                          const Looker& look = {}) {
  QuietHost host;
  MemoryStore store;
  Session session(host, store);
  session.settings.filelocation = FolderText(root.root);
  session.settings.library = kImportLibrary;
  int saved = 0;
  Measure(
      state, [&root] { root.Emptied(kImportLibrary); },
      [&] { saved = ImportAnyFile(session, file, look).boardsSaved; });
  if (saved != static_cast<int>(boards)) state.SkipWithError("not all boards came in");
}

}  // namespace tricklet::bench
