set(CMAKE_C_STANDARD 11)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(VELMORA_PLATFORM STREQUAL native)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND PROJECT_IS_TOP_LEVEL)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
  # It takes part in precompiled headers when told that macros and times in them do not matter.
  set(CMAKE_CXX_COMPILER_LAUNCHER env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

# What every target of the project is compiled with. The astronomy is compared to the last bit, so no
# compiler may contract a product and a sum into one rounding on its own. Nothing reads errno after a
# mathematical function.
add_library(velmora_compiler_settings INTERFACE)
target_compile_options(velmora_compiler_settings INTERFACE
  -ffp-contract=off -fno-math-errno
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # The library calls its own functions, whoever links it.
  $<$<AND:$<CONFIG:Release>,$<STREQUAL:${VELMORA_PLATFORM},native>>:-fno-semantic-interposition>
  # Vectors, which every browser since 2023 has; and a name that emscripten takes from the program.
  $<$<STREQUAL:${VELMORA_PLATFORM},browser>:-msimd128;-Uunix>
  # At -O3 g++ 12 sees copies of impossible lengths where a text is joined to a literal (GCC bug 105651).
  $<$<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
if(VELMORA_WARNINGS_AS_ERRORS)
  target_compile_options(velmora_compiler_settings INTERFACE -Werror)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_compiler_settings INTERFACE
    -fsanitize=${VELMORA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(velmora_compiler_settings INTERFACE -fsanitize=${VELMORA_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With sanitizers g++ 12 takes members of std::regex's own types for uninitialized.
    target_compile_options(velmora_compiler_settings INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()

# Where the tests are built, the headers that most sources of a library or program include are compiled once for
# all of them. Elsewhere each source is read as it stands, which shows what it forgot to include.
set(velmora_headers_of_most
  <algorithm> <array> <chrono> <cmath> <cstdint> <functional> <memory> <optional> <string> <string_view>
  <unordered_map> <utility> <vector>)
function(velmora_precompile target)
  if(VELMORA_BUILD_TESTS AND VELMORA_PLATFORM STREQUAL native AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)  # for compiler caches
    target_precompile_headers(${target} PRIVATE ${velmora_headers_of_most} ${ARGN})
  endif()
endfunction()
