# What a release for Windows holds, for scripts/package: all in one folder, since the program looks for the
# firmware updater beside itself, and Qt as DLLs that anybody may replace. Only the cross-build packs.
if(NOT WIN32 OR NOT TALVERO_WINDOWS_SDK OR NOT PROJECT_IS_TOP_LEVEL OR NOT TALVERO_QT EQUAL 5)
  return()
endif()

install(TARGETS tal-vero-connect RUNTIME DESTINATION .)

# talvero_install_imported(FOLDER targets...): the files behind imported targets of Qt.
function(talvero_install_imported folder)
  foreach(target ${ARGN})
    get_target_property(file ${target} IMPORTED_LOCATION_RELEASE)
    install(FILES ${file} DESTINATION ${folder})
  endforeach()
endfunction()
talvero_install_imported(. Qt5::Core Qt5::Gui Qt5::Widgets Qt5::SerialPort)
talvero_install_imported(platforms Qt5::QWindowsIntegrationPlugin)
talvero_install_imported(imageformats Qt5::QGifPlugin Qt5::QICOPlugin)
foreach(library libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
  install(FILES ${TALVERO_WINDOWS_SDK}/bin/${library}.dll DESTINATION .)
endforeach()

install(DIRECTORY ${TALVERO_WINDOWS_SDK}/licenses/ DESTINATION licenses)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/windows/libraries.txt DESTINATION licenses)

if(TALVERO_MANUAL_FOLDER)
  install(DIRECTORY ${TALVERO_MANUAL_FOLDER}/ DESTINATION manual)
endif()

set(CPACK_PACKAGE_NAME "TAL-VERO Connect")
set(CPACK_PACKAGE_VENDOR "The TAL-VERO Connect developers")
set(CPACK_PACKAGE_FILE_NAME "tal-vero-connect-${PROJECT_VERSION}-windows")
set(CPACK_PACKAGE_INSTALL_DIRECTORY "TAL-VERO Connect")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/windows/cpack.cmake)
set(CPACK_NSIS_PACKAGE_NAME "TAL-VERO Connect ${PROJECT_VERSION}")
set(CPACK_NSIS_MUI_ICON ${PROJECT_SOURCE_DIR}/src/resourcefiles/images/brimlogo.ico)
set(CPACK_NSIS_INSTALLED_ICON_NAME tal-vero-connect.exe)
set(CPACK_NSIS_COMPRESSOR "/SOLID lzma")
list(APPEND CMAKE_MODULE_PATH ${PROJECT_SOURCE_DIR}/windows) # where CPack finds the installer's template
include(CPack)
