# talvero_windows_resources(TARGET DESCRIPTION): gives a program its icon, version and manifest on Windows;
# elsewhere it does nothing. The version is the project's.
function(talvero_windows_resources target description)
  if(NOT WIN32)
    return()
  endif()
  set(icon ${PROJECT_SOURCE_DIR}/src/resourcefiles/images/brimlogo.ico)
  set(manifest ${PROJECT_SOURCE_DIR}/windows/program.manifest)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/windows/program.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${icon};${manifest}")
  target_sources(${target} PRIVATE ${resources})
  if(MSVC)
    target_link_options(${target} PRIVATE /MANIFEST:NO) # ours is among the resources
  endif()
endfunction()
