# Where everything goes on Linux and its kin: `cmake --install build/release --prefix DIR`. Programs for tests,
# pictures and the soak have no rule and stay in the build. What Windows gets stands in TalVeroWindowsPackage.cmake.
#
# Components: `program`; `manual`, where cmark-gfm is at hand; and what only one kind of package holds, which a plain
# installation leaves out: `license` for all but Debian, `debian`, `archive`.
if(NOT UNIX OR NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()
include(GNUInstallDirs)
include(TalVeroRelease)

# A name in reverse that nobody can own, as the addresses in the program's footer.
set(TALVERO_COMPONENT_ID example.talvero.connect)
set(talvero_linux ${PROJECT_SOURCE_DIR}/linux)
set(talvero_texts ${PROJECT_BINARY_DIR}/linux)

# talvero_zipped(FILE): packs a text as Debian wants it, at its smallest and without a time; it gets ".gz".
function(talvero_zipped file)
  execute_process(COMMAND gzip -9nc ${file} OUTPUT_FILE ${file}.gz COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The demo is a program of its own, not a test: it is how one learns without a device, and the desktop entry
# offers it.
install(TARGETS tal-vero-connect tal-vero-connect-demo tal-vero-sounder
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)

foreach(program tal-vero-connect tal-vero-connect-demo tal-vero-sounder)
  configure_file(${talvero_linux}/man/${program}.1.in ${talvero_texts}/${program}.1 @ONLY)
  talvero_zipped(${talvero_texts}/${program}.1)
  install(FILES ${talvero_texts}/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
endforeach()

install(FILES ${talvero_linux}/tal-vero-connect.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT program)
set(talvero_icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES ${talvero_linux}/icons/${size}.png
    DESTINATION ${talvero_icons}/${size}x${size}/apps RENAME tal-vero-connect.png COMPONENT program)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/src/resourcefiles/artwork/brimlogo.svg
  DESTINATION ${talvero_icons}/scalable/apps RENAME tal-vero-connect.svg COMPONENT program)

talvero_told(TALVERO_RELEASES appstream)
configure_file(${talvero_linux}/metainfo.xml.in ${talvero_texts}/${TALVERO_COMPONENT_ID}.metainfo.xml @ONLY)
install(FILES ${talvero_texts}/${TALVERO_COMPONENT_ID}.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT program)

if(TALVERO_MANUAL_FOLDER)
  install(DIRECTORY ${TALVERO_MANUAL_FOLDER}/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/manual COMPONENT manual)
endif()

# Nothing of others is shipped: Qt is the system's, fonts are, images are our own.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT license)

talvero_told(told debian)
file(CONFIGURE OUTPUT ${talvero_texts}/changelog.Debian CONTENT "${told}\n" @ONLY)
talvero_zipped(${talvero_texts}/changelog.Debian)
install(FILES ${talvero_texts}/changelog.Debian.gz ${talvero_linux}/debian/copyright ${talvero_linux}/debian/README.Debian
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${talvero_linux}/debian/lintian-overrides
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME tal-vero-connect COMPONENT debian EXCLUDE_FROM_ALL)

configure_file(${talvero_linux}/README.txt.in ${talvero_texts}/README.txt @ONLY)
install(FILES ${talvero_texts}/README.txt DESTINATION . COMPONENT archive EXCLUDE_FROM_ALL)
include(TalVeroLinuxPackage)
