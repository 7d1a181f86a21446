# What `cpack` makes for Linux: a .deb, an .rpm and a .tar.gz; scripts/package calls it. What differs between the
# three, and the times of all files, stands in linux/cpack.cmake.
set(CPACK_PACKAGE_NAME tal-vero-connect)
set(CPACK_PACKAGE_VENDOR "The TAL-VERO Connect developers")
set(CPACK_PACKAGE_CONTACT "${TALVERO_WHO}")
set(CPACK_PACKAGE_HOMEPAGE_URL ${PROJECT_HOMEPAGE_URL})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "set up a TAL-VERO echo sounder and watch its depths")
set(CPACK_PACKAGE_DESCRIPTION
"TAL-VERO Connect sets up a TAL-VERO hydrographic echo sounder from a laptop:
choose the serial port and rate, or let the program search, connect, see the
unit's identity and all its settings, change them and see each change
confirmed by the unit, watch the depths as numbers and as a strip chart, store
the settings in the unit or reset it.

A simulated sounder comes with it, so that everything can be tried without a
device.")
set(CPACK_PACKAGE_FILE_NAME tal-vero-connect-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PROJECT_CONFIG_FILE ${talvero_linux}/cpack.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${talvero_linux}/evenout.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB RPM External)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE 1)
set(CPACK_RPM_PACKAGE_LICENSE MIT)
set(CPACK_RPM_PACKAGE_GROUP "Productivity/Scientific/Other")
set(CPACK_RPM_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_RPM_PACKAGE_URL ${PROJECT_HOMEPAGE_URL})
set(CPACK_RPM_PACKAGE_REQUIRES hicolor-icon-theme)
talvero_told(told rpm)
file(CONFIGURE OUTPUT ${talvero_texts}/changelog.rpm CONTENT "${told}\n" @ONLY)
set(CPACK_RPM_CHANGELOG_FILE ${talvero_texts}/changelog.rpm)
# These belong to the system.
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION /usr/bin /usr/share/applications /usr/share/man /usr/share/man/man1
  /usr/share/metainfo /usr/share/icons /usr/share/icons/hicolor)
foreach(size 16x16 22x22 24x24 32x32 48x48 64x64 128x128 256x256 512x512 scalable)
  list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
    /usr/share/icons/hicolor/${size} /usr/share/icons/hicolor/${size}/apps)
endforeach()
# Neither the machine nor the hour gets into the package; every release of rpm reads gzip; the programs stay as they
# were built and tested.
set(CPACK_RPM_SPEC_MORE_DEFINE
"%define __os_install_post %{nil}
%define _buildhost localhost
%define use_source_date_epoch_as_buildtime 1
%define clamp_mtime_to_source_date_epoch 1
%define _binary_payload w9.gzdio
%define _build_id_links none")

set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${talvero_linux}/tar.cmake)

set(CPACK_TALVERO_SOURCE_DATE ${TALVERO_SOURCE_DATE})
include(CPack)
