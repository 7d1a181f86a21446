# Read by cpack once for each generator.
if(CPACK_GENERATOR STREQUAL "NSIS")
  string(APPEND CPACK_PACKAGE_FILE_NAME "-setup")
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
endif()
