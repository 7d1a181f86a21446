# The operator's manual as a page with its pictures, for packages: docs/manual.md by way of cmark-gfm.
# TALVERO_MANUAL_FOLDER is the folder that holds nothing else; without cmark-gfm it is empty and there is no
# target.
find_program(TALVERO_CMARK cmark-gfm DOC "Turns docs/manual.md into a page")
set(TALVERO_MANUAL_FOLDER "")
set(TALVERO_MAKE_MANUAL ${PROJECT_SOURCE_DIR}/cmake/MakeManual.cmake)
if(NOT TALVERO_CMARK)
  message(STATUS "No manual as a page: that needs cmark-gfm (Debian's package of that name)")
  return()
endif()

set(TALVERO_MANUAL_FOLDER ${PROJECT_BINARY_DIR}/doc)
set(manual ${PROJECT_SOURCE_DIR}/docs/manual.md)
set(template ${PROJECT_SOURCE_DIR}/docs/manual.html.in)
file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/pictures/*.png)
add_custom_command(
  OUTPUT ${TALVERO_MANUAL_FOLDER}/manual.html
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${TALVERO_MANUAL_FOLDER}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${TALVERO_MANUAL_FOLDER}/pictures
  COMMAND ${CMAKE_COMMAND} -E copy ${pictures} ${TALVERO_MANUAL_FOLDER}/pictures
  COMMAND ${CMAKE_COMMAND} -D CMARK=${TALVERO_CMARK} -D IN=${manual} -D TEMPLATE=${template}
          -D VERSION=${PROJECT_VERSION} -D OUT=${TALVERO_MANUAL_FOLDER}/manual.html -P ${TALVERO_MAKE_MANUAL}
  DEPENDS ${manual} ${template} ${TALVERO_MAKE_MANUAL} ${pictures}
  COMMENT "Making the manual's page"
  VERBATIM)
add_custom_target(talvero_manual ALL DEPENDS ${TALVERO_MANUAL_FOLDER}/manual.html)
