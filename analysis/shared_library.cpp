#include "analysis/shared_library.h"

#include <system_error>

#include "core/text.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace tricklet {

#ifdef _WIN32

SharedLibrary::SharedLibrary(const std::filesystem::path& name)
    : handle_(LoadLibraryExW(name.c_str(), nullptr,
                             LOAD_LIBRARY_SEARCH_DEFAULT_DIRS |
                                 (name.is_absolute() ? LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR : 0U))) {
  if (!IsOpen()) {
    why_ = std::error_code(static_cast<int>(GetLastError()), std::system_category()).message() +
           ": " + ShownPath(name);
  }
}

void* SharedLibrary::Address(const char* name) const {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

#else

SharedLibrary::SharedLibrary(const std::filesystem::path& name)
    : handle_(dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (!IsOpen()) why_ = ShownName(dlerror());
}

void* SharedLibrary::Address(const char* name) const {
  return dlsym(handle_, name);
}

#endif

}  // namespace tricklet
