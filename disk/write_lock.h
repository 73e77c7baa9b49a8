// One writer at a time.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace tricklet {

/// While it lives, no other program that asks for it has the lock of the folder. It ends with its
/// process, however that ends. The folder holds the file ".tricklet-lock" meanwhile, which says
/// who has it.
class WriteLock {
 public:
  /// How long another program may take before it is said to be in the way.
  static constexpr std::chrono::milliseconds kPatience{2000};

  /// Waits up to `patience` for the lock. Nothing when another program still has it then, and
  /// `holder` says which: "tricklet-cli (process 4711)". Where no file can be made, nothing can be
  /// written either, and where the disk knows no locks, none can be waited for: there the lock that
  /// comes back holds nothing.
  static std::unique_ptr<WriteLock> Take(const std::filesystem::path& folder,
                                         std::chrono::milliseconds patience, std::string& holder);
  ~WriteLock();
  WriteLock(const WriteLock&) = delete;
  WriteLock& operator=(const WriteLock&) = delete;

 private:
  using NativeHandle = std::intptr_t;

  enum class Attempt { Taken, Busy, Needless };

  explicit WriteLock(const std::filesystem::path& folder);
  Attempt Try();
  /// Writes who has it into the file.
  void Sign() const;

  std::filesystem::path path_;
  NativeHandle handle_;
};

}  // namespace tricklet
