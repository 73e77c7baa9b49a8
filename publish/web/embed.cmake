# Makes one C++ source of the page's files: cmake -DFOLDER=... -DOUTPUT=... -P embed.cmake
# Style and script come into the page with the hashes that its Content-Security-Policy allows.

function(read_text name result)
  file(READ "${FOLDER}/${name}" text)
  string(REPLACE "\r" "" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# The base64 (RFC 4648) of bytes given as hexadecimal digits.
function(base64_of hex result)
  set(digits "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
  set(text "")
  string(LENGTH "${hex}" length)
  math(EXPR last "${length} - 1")
  foreach(at RANGE 0 ${last} 6)
    string(SUBSTRING "${hex}" ${at} 6 three)
    string(LENGTH "${three}" digits_given)
    math(EXPR characters "${digits_given} / 2 + 1")
    string(SUBSTRING "${three}0000" 0 6 three)
    foreach(shift IN ITEMS 18 12 6 0)
      if(characters GREATER 0)
        math(EXPR digit "(0x${three} >> ${shift}) & 63")
        string(SUBSTRING "${digits}" ${digit} 1 character)
      else()
        set(character "=")
      endif()
      string(APPEND text "${character}")
      math(EXPR characters "${characters} - 1")
    endforeach()
  endforeach()
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Puts `text` and its hash into the page.
function(put_into_page name text)
  string(SHA256 hex "${text}")
  base64_of("${hex}" hash)
  string(REPLACE "{{${name}-hash}}" "sha256-${hash}" page "${page}")
  string(REPLACE "{{${name}}}" "${text}" page "${page}")
  set(page "${page}" PARENT_SCOPE)
endfunction()

read_text(page.html page)
set(style "\n")
foreach(name IN ITEMS page.css narrow.css)
  read_text(${name} text)
  string(APPEND style "${text}")
endforeach()
set(script "\n\"use strict\";\n(() => {\n")
foreach(name IN ITEMS dom.js session.js diagram.js report.js lists.js play.js page.js)
  read_text(${name} text)
  string(APPEND script "${text}")
endforeach()
string(APPEND script "})();\n")
put_into_page(style "${style}")
put_into_page(script "${script}")

file(WRITE "${OUTPUT}" "// Made by embed.cmake.
#include \"publish/web/page_text.h\"

namespace tricklet {

const std::string_view kPageText = R\"page(${page})page\";

}  // namespace tricklet
")
