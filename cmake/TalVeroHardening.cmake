# The program reads what a cable brings. Should that ever lead it astray, the release build makes little of
# it: no fixed addresses, nothing that the linker has filled in can be overwritten, no code on the stack, and
# overrun buffers end the program. scripts/check-hardening looks at what was built. Debug builds go without,
# and so do those with sanitizers, which watch closer.
include(CheckLinkerFlag)
include(CheckPIESupported)

set(TALVERO_RELEASED $<CONFIG:Release,RelWithDebInfo>)

# talvero_link_hardened(FLAGS...): those that the linker knows.
function(talvero_link_hardened)
  foreach(flag ${ARGN})
    string(MAKE_C_IDENTIFIER "TALVERO_HAS${flag}" known)
    check_linker_flag(CXX ${flag} ${known})
    if(${known})
      target_link_options(talvero_warnings INTERFACE $<${TALVERO_RELEASED}:${flag}>)
    endif()
  endforeach()
endfunction()

if(TALVERO_SANITIZE OR MSVC)
  return()
elseif(WIN32)
  # No stack protector: with MinGW it would be one more library to ship.
  talvero_link_hardened(-Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va)
else()
  check_pie_supported(LANGUAGES CXX)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  # The fortified functions need the optimiser.
  target_compile_options(talvero_warnings INTERFACE
    "$<${TALVERO_RELEASED}:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  talvero_link_hardened(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
