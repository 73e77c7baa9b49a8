# The drawings of ui/style/icons as pictures of every size that a screen asks for, in black: the program
# gives them its colours. So it needs no drawing of vectors while it runs.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(icon_sizes 16 20 22 24 28 33 44 55 66 88)  # pixels; 22 at usual scales, and the menus' 16
file(GLOB drawings CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/style/icons/*.svg)
set(folder ${CMAKE_CURRENT_BINARY_DIR}/icons)
file(MAKE_DIRECTORY ${folder})
set(listed "")
set(pictures "")
foreach(drawing IN LISTS drawings)
  cmake_path(GET drawing STEM name)
  set(made "")
  set(commands "")
  foreach(size IN LISTS icon_sizes)
    set(picture ${folder}/${name}-${size}.png)
    list(APPEND made ${picture})
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} ${drawing} -o ${picture})
    string(APPEND listed "    <file alias=\"${name}-${size}.png\">${picture}</file>\n")
  endforeach()
  add_custom_command(OUTPUT ${made} ${commands} DEPENDS ${drawing} VERBATIM)
  list(APPEND pictures ${made})
endforeach()
file(CONFIGURE OUTPUT ${folder}/icons.qrc @ONLY
  CONTENT "<RCC>\n  <qresource prefix=\"/icons\">\n@listed@  </qresource>\n</RCC>\n")
qt_add_resources(icon_sources ${folder}/icons.qrc OPTIONS --name icons)
