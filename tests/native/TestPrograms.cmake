find_package(GTest REQUIRED)
include(GoogleTest)

# Leaks of drawing are known only by their whole stack, which takes long to walk at each allocation.
set(leak_options "suppressions=${CMAKE_CURRENT_SOURCE_DIR}/known-leaks.txt:print_suppressions=0")
set(drawing_leak_options "${leak_options}:fast_unwind_on_malloc=0")

# Precompiled headers serve what is compiled as they were, be it a library or a program, with threads or not.
set(CMAKE_POSITION_INDEPENDENT_CODE OFF)
add_compile_options(-pthread)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-fpch-preprocess)  # so that a compiler cache takes part
else()
  # Clang's hold the paths of their checkout, so that a cache would not serve another. Without them the tests
  # show what they forgot to include.
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()

# What every test program is linked with: it alone knows where the tree lies, so that a compiler cache serves
# every checkout. The headers that most tests include are compiled once, with it.
add_library(velmora_test_base STATIC support/SourceDirectory.cpp)
target_link_libraries(velmora_test_base PUBLIC GTest::gtest PRIVATE velmora_compiler_settings)
target_include_directories(velmora_test_base PUBLIC ${PROJECT_SOURCE_DIR})
set_property(SOURCE support/SourceDirectory.cpp PROPERTY COMPILE_DEFINITIONS
  VELMORA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
set(headers_of_tests
  <algorithm> <array> <chrono> <cmath> <cstdint> <filesystem> <fstream> <functional> <iostream> <limits> <map>
  <memory> <numbers> <optional> <set> <sstream> <string> <utility> <vector> <gtest/gtest.h>)
target_precompile_headers(velmora_test_base PRIVATE ${headers_of_tests})

# One test program a folder: velmora_add_tests(NAME [DRAWS] [HEADERS_OF lib] LIBRARIES lib... SOURCES file...)
# It takes the precompiled headers of the library that is named, else those of all tests.
function(velmora_add_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "DRAWS" "HEADERS_OF" "LIBRARIES;SOURCES")
  set(options ${leak_options})
  if(arg_DRAWS)
    set(options ${drawing_leak_options})
  endif()
  if(NOT arg_HEADERS_OF)
    set(arg_HEADERS_OF velmora_test_base)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_precompile_headers(${name} REUSE_FROM ${arg_HEADERS_OF})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} velmora_test_base velmora_compiler_settings
    GTest::gtest_main)
  gtest_discover_tests(${name} PROPERTIES TIMEOUT 300
    ENVIRONMENT "LSAN_OPTIONS=${options}" DISCOVERY_TIMEOUT 60)
endfunction()
