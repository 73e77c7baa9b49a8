# tricklet_resources(TARGET DESCRIPTION): gives a program its icon, version and manifest on Windows;
# elsewhere does nothing. The icon is drawn from the picture of the desktop's files, where the two
# programs that do it are there.
if(WIN32)
  enable_language(RC)
  find_program(RSVG_CONVERT rsvg-convert)
  find_program(ICOTOOL icotool)
endif()

function(tricklet_icon icon)
  set(picture ${PROJECT_SOURCE_DIR}/packaging/org.tricklet.Tricklet.svg)
  set(sizes 16 20 24 32 40 48 64 256)
  set(pictures)
  set(arguments)
  foreach(size IN LISTS sizes)
    set(file ${PROJECT_BINARY_DIR}/icon/${size}.png)
    add_custom_command(OUTPUT ${file}
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${file} ${picture}
      DEPENDS ${picture} VERBATIM)
    list(APPEND pictures ${file})
    # The large one as PNG, or the icon takes some 400 KB.
    if(size GREATER 64)
      set(file --raw=${file})
    endif()
    list(APPEND arguments ${file})
  endforeach()
  add_custom_command(OUTPUT ${icon}
    COMMAND ${ICOTOOL} --create -o ${icon} ${arguments}
    DEPENDS ${pictures} VERBATIM)
  add_custom_target(tricklet_icon DEPENDS ${icon})
endfunction()

function(tricklet_resources target description)
  if(NOT WIN32)
    return()
  endif()
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  set(needed ${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest)
  set(icon)
  if(RSVG_CONVERT AND ICOTOOL)
    set(file ${PROJECT_BINARY_DIR}/icon/tricklet.ico)
    if(NOT TARGET tricklet_icon)
      file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/icon)
      tricklet_icon(${file})
    endif()
    add_dependencies(${target} tricklet_icon)
    list(APPEND needed ${file})
    set(icon "IDI_ICON1 ICON \"${file}\"")  # the name under which Qt looks for it
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
  target_sources(${target} PRIVATE ${resources})
  set_property(SOURCE ${resources} APPEND PROPERTY OBJECT_DEPENDS ${needed})
endfunction()
