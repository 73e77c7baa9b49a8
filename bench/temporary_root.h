// Libraries for the benchmarks, and what the standard library alone makes of their files.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "core/notation.h"
#include "library/board_file.h"

namespace tricklet::bench {

/// A root of libraries that goes when the object goes.
class TemporaryRoot {
 public:
  TemporaryRoot()
      : root(std::filesystem::temp_directory_path() /
             ("tricklet-bench-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(root);
  }
  ~TemporaryRoot() {
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
  }
  TemporaryRoot(const TemporaryRoot&) = delete;
  TemporaryRoot& operator=(const TemporaryRoot&) = delete;

  /// A library without boards, made anew.
  std::filesystem::path Emptied(std::string_view library) const {
    std::filesystem::remove_all(root / library);
    std::filesystem::create_directories(root / library);
    return root / library;
  }

  std::filesystem::path root;
};

/// Writes `texts` as boards 1, 2, ... beside, flushes and renames them, and flushes the folder
/// once: a peer that knows nothing of the program's own file calls. Throws `std::runtime_error`.
void WriteLasting(const std::filesystem::path& folder, const std::vector<std::string>& texts);

/// Reads a file whole; the number of bytes.
inline std::size_t ReadByStream(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text(std::filesystem::file_size(path), '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  return static_cast<std::size_t>(file.gcount());
}

}  // namespace tricklet::bench
