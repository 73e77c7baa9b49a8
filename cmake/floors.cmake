# Each folder of the program is a library of its own, which sees the headers of the folders below it
# and of no others: the table is floors.txt.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/floors.txt tricklet_floors REGEX "^[^#]")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/floors.txt)

# The name of the library of a folder: tricklet_formats_pbn for formats/pbn.
function(tricklet_floor_target folder result)
  string(REPLACE "/" "_" name ${folder})
  set(${result} tricklet_${name} PARENT_SCOPE)
endfunction()

# Lets `target` include "FOLDER/header.h" and nothing beside that folder: a link to it stands alone in
# a folder of the build. Where there are no symbolic links, the whole checkout is seen.
function(tricklet_show target folder)
  string(REPLACE "/" "." flat ${folder})
  set(seen ${PROJECT_BINARY_DIR}/include/${flat})
  cmake_path(GET folder PARENT_PATH above)
  file(MAKE_DIRECTORY ${seen}/${above})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${seen}/${folder} RESULT failure SYMBOLIC)
  if(failure)
    message(WARNING "No link to ${folder} (${failure}): what includes what is not enforced")
    set(seen ${PROJECT_SOURCE_DIR})
  endif()
  target_include_directories(${target} PUBLIC ${seen})
endfunction()

# Makes `target` the library of `folder` for what it sees.
function(tricklet_on_floor target folder)
  foreach(line IN LISTS tricklet_floors)
    separate_arguments(words UNIX_COMMAND "${line}")
    list(POP_FRONT words first)
    if(NOT first STREQUAL folder)
      continue()
    endif()
    target_link_libraries(${target} PUBLIC tricklet_flags)
    tricklet_show(${target} ${folder})
    foreach(below IN LISTS words)
      tricklet_floor_target(${below} library)
      if(NOT TARGET ${library})
        message(FATAL_ERROR "${folder} is to lie above ${below}, which has not been built before it")
      endif()
      target_link_libraries(${target} PUBLIC ${library})
    endforeach()
    return()
  endforeach()
  message(FATAL_ERROR "${folder} stands in no line of floors.txt")
endfunction()

# Builds that join sources, to read their headers once for a dozen, compile these one by one: their
# sources have names of their own that are the same.
set(tricklet_single_floors
  cli ui/actions ui/dialogs ui/panes ui/print ui/report ui/table)

# tricklet_floor(FOLDER SOURCE...): the library of a folder. Sources are named inside the folder.
function(tricklet_floor folder)
  tricklet_floor_target(${folder} target)
  list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/${folder}/)
  add_library(${target} STATIC ${ARGN})
  tricklet_on_floor(${target} ${folder})
  if(folder IN_LIST tricklet_single_floors)
    set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
  endif()
endfunction()
