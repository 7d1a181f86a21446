# talvero_form(VARIABLE file.ui): the header that the form becomes, to be listed among a library's sources.
# Wrapped by hand, not by AUTOUIC, which would keep the old header for one more build after a form has
# changed.
function(talvero_form variable file)
  get_filename_component(name ${file} NAME_WE)
  set(form ${PROJECT_SOURCE_DIR}/src/forms/${file})
  set(generated ${CMAKE_CURRENT_BINARY_DIR}/uic/ui_${name}.h) # its include guard follows this name
  set(header ${CMAKE_CURRENT_BINARY_DIR}/ui_${name}.h)
  set(adopt ${PROJECT_SOURCE_DIR}/cmake/AdoptPagesEarly.cmake)
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/uic)
  add_custom_command(
    OUTPUT ${header}
    COMMAND Qt${TALVERO_QT}::uic -o ${generated} ${form}
    COMMAND ${CMAKE_COMMAND} -D IN=${generated} -D OUT=${header} -D QT=${TALVERO_QT} -P ${adopt}
    DEPENDS ${form} ${adopt}
    COMMENT "Generating ui_${name}.h"
    VERBATIM)
  set_source_files_properties(${header} PROPERTIES SKIP_AUTOGEN ON)
  set(${variable} ${header} PARENT_SCOPE)
endfunction()

# talvero_find_test_library(): Qt's library for tests and for a hand that presses buttons, for this folder and those
# within. Qt 6's names to each program its own folder, for which headers read beforehand would be unfit: that is left
# out, and no test asks for it.
macro(talvero_find_test_library)
  find_package(Qt${TALVERO_QT} ${TALVERO_QT_LEAST} REQUIRED COMPONENTS Test)
  if(TALVERO_QT GREATER 5)
    set_property(TARGET Qt${TALVERO_QT}::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
  endif()
endmacro()

# talvero_library(NAME sources... LINK libraries...): a static library whose headers are included by
# their bare names.
function(talvero_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
  add_library(${name} STATIC ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE talvero_warnings)
  talvero_use_precompiled(${name} talvero_core_headers talvero_widget_headers ${arg_LINK})
  talvero_skip_without_terminal(skipped ${name} ${arg_LINK})
endfunction()

# Whatever needs a pseudo-terminal links this; nothing else decides what is left out on Windows.
add_library(talvero_terminal INTERFACE)

# talvero_skip_without_terminal(VARIABLE TARGET libraries...): sets VARIABLE, and keeps the target from being
# built, where it reaches talvero_terminal and the system has no pseudo-terminals.
function(talvero_skip_without_terminal variable target)
  talvero_reaches(skipped talvero_terminal ${ARGN})
  if(UNIX)
    set(skipped FALSE)
  endif()
  set_target_properties(${target} PROPERTIES EXCLUDE_FROM_ALL ${skipped})
  set(${variable} ${skipped} PARENT_SCOPE)
endfunction()
