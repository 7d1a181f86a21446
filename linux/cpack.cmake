# Read by cpack once for each generator: which components it packs, where they go, and the one time for all.
set(ENV{SOURCE_DATE_EPOCH} ${CPACK_TALVERO_SOURCE_DATE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(components program manual)
if(CPACK_GENERATOR STREQUAL "DEB")
  list(APPEND components debian) # holds the license as Debian wants it
elseif(CPACK_GENERATOR STREQUAL "RPM")
  list(APPEND components license)
else()
  list(APPEND components license archive)
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
endif()

list(SUBLIST CPACK_INSTALL_CMAKE_PROJECTS 0 2 project)
set(CPACK_INSTALL_CMAKE_PROJECTS "")
foreach(component ${components})
  list(APPEND CPACK_INSTALL_CMAKE_PROJECTS ${project} ${component} /)
endforeach()
