# The one place for compiler flags: every target links this.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(tricklet_flags INTERFACE)
target_compile_definitions(tricklet_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CONTEXTLESS_CONNECT QT_NO_FOREACH)
if(MSVC)
  target_compile_options(tricklet_flags INTERFACE /W4 /permissive- /utf-8 $<$<BOOL:${TRICKLET_WERROR}>:/WX>)
else()
  target_compile_options(tricklet_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${TRICKLET_WERROR}>:-Werror>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees an overlap in every "literal" + std::string&& when it optimises (its bug 105329).
  target_compile_options(tricklet_flags INTERFACE $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict>)
endif()
if(TRICKLET_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(tricklet_flags INTERFACE ${sanitizers})
  target_link_options(tricklet_flags INTERFACE ${sanitizers})
endif()
if(TRICKLET_FUZZ)
  set(sanitizers -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  target_compile_options(tricklet_flags INTERFACE ${sanitizers})
  target_link_options(tricklet_flags INTERFACE -fsanitize=address,undefined)
endif()
