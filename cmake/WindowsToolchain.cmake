# Cross-builds for 64 bit Windows with Debian's mingw-w64 (posix threads) and the Qt of a Windows kit, as
# scripts/windows-sdk makes it: cmake --preset windows-cross -DTALVERO_WINDOWS_SDK=/path/to/sdk, or the
# variable of that name in the environment.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

# Kept, so that a build that configures itself anew knows it without the environment.
set(TALVERO_WINDOWS_SDK "$ENV{TALVERO_WINDOWS_SDK}" CACHE PATH "Folder with Qt 5.15 for Windows")
if(NOT EXISTS "${TALVERO_WINDOWS_SDK}/lib/cmake/Qt5/Qt5Config.cmake")
  message(FATAL_ERROR "TALVERO_WINDOWS_SDK does not name a folder with Qt for Windows: scripts/windows sets it")
endif()
# CMake checks the compiler in projects of their own, which read this file again.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TALVERO_WINDOWS_SDK)

# Libraries and headers come from here only; programs that run while building come from the machine.
set(CMAKE_FIND_ROOT_PATH ${TALVERO_WINDOWS_SDK} /usr/${target})
set(CMAKE_PREFIX_PATH ${TALVERO_WINDOWS_SDK})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Tests run under Wine, where Windows looks for DLLs: among them the serial port's that receives there.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_COMMAND} -E env
  "WINEPATH=${TALVERO_WINDOWS_SDK}/wine\\;${TALVERO_WINDOWS_SDK}/bin"
  ${CMAKE_CURRENT_LIST_DIR}/../scripts/under-wine)
