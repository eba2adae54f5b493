# The tests in WebAssembly, under node: GoogleTest from its Debian sources, and each test program one test, since
# every start compiles it anew.
set(INSTALL_GTEST OFF)
set(gtest_disable_pthreads ON)
add_subdirectory(/usr/src/googletest/googletest ${CMAKE_CURRENT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
find_program(VELMORA_NODE NAMES node nodejs REQUIRED NO_CMAKE_FIND_ROOT_PATH)

add_library(velmora_test_base STATIC support/SourceDirectory.cpp)
target_link_libraries(velmora_test_base PUBLIC gtest PRIVATE velmora_compiler_settings)
target_include_directories(velmora_test_base PUBLIC ${PROJECT_SOURCE_DIR})
set_property(SOURCE support/SourceDirectory.cpp PROPERTY COMPILE_DEFINITIONS
  VELMORA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")

# As for the native tests, but for the headers that these compile once.
function(velmora_add_tests name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "DRAWS" "HEADERS_OF" "LIBRARIES;SOURCES")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} velmora_test_base velmora_compiler_settings gtest_main)
  # They read the tables of expected values from this machine's own files.
  target_link_options(${name} PRIVATE
    -O1 -sENVIRONMENT=node -sNODERAWFS=1 -sALLOW_MEMORY_GROWTH=1 -sEXIT_RUNTIME=1)
  add_test(NAME ${name}
    COMMAND ${PROJECT_SOURCE_DIR}/tests/wasm/run-program ${VELMORA_NODE} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()
