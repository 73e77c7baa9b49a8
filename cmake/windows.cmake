# Builds for 64-bit Windows on Linux, by the compiler of Debian's g++-mingw-w64-x86-64-posix. What is linked
# is looked for in TRICKLET_WINDOWS_PREFIX and with the compiler, never in the system that builds.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TRICKLET_WINDOWS_PREFIX)
set(CMAKE_FIND_ROOT_PATH ${TRICKLET_WINDOWS_PREFIX} /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
if(NOT DEFINED CMAKE_FIND_ROOT_PATH_MODE_PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
endif()
