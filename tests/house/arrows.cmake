# cmake -D ROOT=<project> -P arrows.cmake: fails if a room of the house includes what it must not know.
# The arrows run one way: who is lower can be built, tested and understood without who is higher.

cmake_minimum_required(VERSION 3.21)

# Each room, then the rooms that it may know.
set(arrows
  "base"
  "labels"
  "resourcefiles"
  "device: base"
  "settings: base device"
  "session: base device settings"
  "graph: base labels resourcefiles"
  "help: base resourcefiles"
  "mainwindow: base device graph help labels resourcefiles session settings"
  "app: base mainwindow resourcefiles")

set(rooms "")
foreach(arrow IN LISTS arrows)
  string(REGEX MATCH "^[a-z]+" room "${arrow}")
  string(REGEX MATCHALL "[a-z]+" ${room}_knows "${arrow}")
  list(APPEND rooms ${room})
  file(GLOB headers RELATIVE "${ROOT}/src/${room}" "${ROOT}/src/${room}/*.h")
  foreach(header IN LISTS headers)
    set("room_of_${header}" ${room})
  endforeach()
endforeach()

file(GLOB folders LIST_DIRECTORIES true RELATIVE "${ROOT}/src" "${ROOT}/src/*")
set(checked 0)
set(faults "")
foreach(folder IN LISTS folders)
  file(GLOB sources "${ROOT}/src/${folder}/*.cpp" "${ROOT}/src/${folder}/*.h")
  if(sources AND NOT folder IN_LIST rooms)
    string(APPEND faults "\n  src/${folder} has no place in the house")
  endif()
  foreach(source IN LISTS sources)
    file(STRINGS "${source}" includes REGEX "^#include \"")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^#include \"([^\"]*)\".*" "\\1" header "${include}")
      set(room "${room_of_${header}}")
      math(EXPR checked "${checked} + 1")
      if(room AND NOT room IN_LIST ${folder}_knows)
        string(APPEND faults "\n  ${source} includes ${header} of ${room}")
      endif()
    endforeach()
  endforeach()
endforeach()

if(checked EQUAL 0)
  message(FATAL_ERROR "${ROOT}/src includes nothing: it is not the house")
endif()
if(faults)
  message(FATAL_ERROR "Arrows that run the wrong way:${faults}")
endif()
message(STATUS "${checked} includes, all arrows run one way")
