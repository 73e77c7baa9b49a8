#include "analysis/shared_library.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace tricklet {

#ifdef _WIN32

SharedLibrary::SharedLibrary(const std::filesystem::path& name)
    : handle_(LoadLibraryW(name.c_str())) {}

void* SharedLibrary::Address(const char* name) const {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

#else

SharedLibrary::SharedLibrary(const std::filesystem::path& name)
    : handle_(dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL)) {}

void* SharedLibrary::Address(const char* name) const {
  return dlsym(handle_, name);
}

#endif

}  // namespace tricklet
