// A shared library of the system, opened by name.
#pragma once

#include <filesystem>
#include <string>

namespace tricklet {

/// Stays loaded until the program ends, even when this object is gone: a solver keeps threads and
/// memory that unloading would pull from under it.
class SharedLibrary {
 public:
  /// Opens `name`: an absolute path, or a bare file name for the system to find where it keeps
  /// libraries, which the current folder is none of. `IsOpen` tells whether that succeeded.
  explicit SharedLibrary(const std::filesystem::path& name);

  bool IsOpen() const { return handle_ != nullptr; }
  /// Why it is not open, in the system's words.
  const std::string& Why() const { return why_; }

  /// The entry of that name as a pointer to a function of type `Function`; null when there is none.
  template <class Function>
  Function* Entry(const char* name) const {
    return reinterpret_cast<Function*>(Address(name));
  }

 private:
  void* Address(const char* name) const;
  void* handle_ = nullptr;
  std::string why_;
};

}  // namespace tricklet
