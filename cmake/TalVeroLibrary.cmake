# talvero_form(VARIABLE file.ui): the header that the form becomes, to be listed among a library's sources.
# Wrapped by hand, not by AUTOUIC, which would keep the old header for one more build after a form has
# changed.
function(talvero_form variable file)
  qt5_wrap_ui(headers ${CMAKE_SOURCE_DIR}/src/forms/${file})
  set(${variable} ${headers} PARENT_SCOPE)
endfunction()

# talvero_library(NAME sources... LINK libraries...): a static library whose headers are included by
# their bare names.
function(talvero_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
  add_library(${name} STATIC ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE talvero_warnings)
endfunction()
