# Every target of our own links `talvero_warnings`: the warnings that we hold ourselves to, and the
# sanitizers when they are asked for. Nothing of Qt is built with them.
option(TALVERO_WERROR "Treat warnings as errors" OFF)
option(TALVERO_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(talvero_warnings INTERFACE)
if(MSVC)
  target_compile_options(talvero_warnings INTERFACE /W4 /permissive- /utf-8 $<$<BOOL:${TALVERO_WERROR}>:/WX>)
else()
  target_compile_options(talvero_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${TALVERO_WERROR}>:-Werror>)
endif()

if(TALVERO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

option(TALVERO_FUZZ "Let libFuzzer see which ways an input takes; needs clang" OFF)
if(TALVERO_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()
