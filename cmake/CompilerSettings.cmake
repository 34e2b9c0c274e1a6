set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(tessarin_settings INTERFACE)
target_compile_options(tessarin_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  -Wsuggest-override)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Clang also means the zero that an ordering is compared with.
  target_compile_options(tessarin_settings INTERFACE -Wzero-as-null-pointer-constant)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 14)
  # Sums of strings and vectors of them, optimised, are taken for faulty copies there (the compiler's bugs 105651, 105705).
  target_compile_options(tessarin_settings INTERFACE $<$<CONFIG:Release>:-Wno-restrict -Wno-array-bounds>)
endif()
if(TESSARIN_WERROR)
  target_compile_options(tessarin_settings INTERFACE -Werror)
endif()
if(TESSARIN_SANITIZE)
  # Compiling with checks for undefined behaviour takes half as long again; the tests' own code does without.
  string(REGEX REPLACE ",?undefined" "" of_tests "${TESSARIN_SANITIZE}")
  target_compile_options(tessarin_settings INTERFACE
    -fsanitize=${of_tests} -fno-omit-frame-pointer)
  if(TESSARIN_SANITIZE MATCHES "undefined")
    target_compile_options(tessarin_settings INTERFACE -fno-sanitize-recover=undefined
      $<$<NOT:$<BOOL:$<TARGET_PROPERTY:TESSARIN_IS_TEST>>>:-fsanitize=undefined>)
  endif()
  target_link_options(tessarin_settings INTERFACE -fsanitize=${TESSARIN_SANITIZE})
endif()
