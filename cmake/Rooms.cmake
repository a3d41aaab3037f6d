# What every target is built with, and how a room becomes one.

add_library(tessarine_options INTERFACE)
target_include_directories(tessarine_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(MSVC)
  target_compile_options(tessarine_options INTERFACE /W4 /utf-8)
else()
  target_compile_options(tessarine_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
endif()
# Warnings are errors with the compilers that the code is checked with. A newer one may know more of
# them, and a player should not be kept from playing by that.
if((CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13) OR
   (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 15))
  target_compile_options(tessarine_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 takes the assignment of a short literal to a string for an overlapping copy.
  target_compile_options(tessarine_options INTERFACE -Wno-restrict)
endif()
if(TESSARINE_SANITIZE)
  target_compile_options(tessarine_options INTERFACE
    -fsanitize=${TESSARINE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessarine_options INTERFACE -fsanitize=${TESSARINE_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With its own checks in the code, g++ loses sight of what the library has initialised.
    target_compile_options(tessarine_options INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()

if(TESSARINE_FUZZ)
  # So that a fuzzer sees which code it has reached.
  target_compile_options(tessarine_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(tessarine_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tessarine_share_headers(TARGET OWNER [headers ...]): the headers are read once for OWNER and all that
# share with it. They only save time: the build with clang goes without, so that each source names what
# it needs.
function(tessarine_share_headers target owner)
  if(target STREQUAL owner)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  else()
    target_precompile_headers(${target} REUSE_FROM ${owner})
  endif()
endfunction()

# tessarine_room(NAME [rooms below ...]): a static library of all the sources in src/NAME.
function(tessarine_room name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  if(NOT sources)
    add_library(tessarine_${name} INTERFACE)
    target_link_libraries(tessarine_${name} INTERFACE tessarine_options ${ARGN})
    return()
  endif()
  add_library(tessarine_${name} STATIC ${sources})
  target_link_libraries(tessarine_${name} PUBLIC tessarine_options ${ARGN})
  tessarine_share_headers(tessarine_${name} tessarine_runtime
    <algorithm> <functional> <string> <string_view> <utility> <vector>)
endfunction()

# What the core is checked with: its test programs and the fuzzers.
add_custom_target(core_checks)

# tessarine_tests(NAME targets ...): a test program of all the sources in tests/NAME.
function(tessarine_tests name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name}_tests ${sources})
  target_include_directories(${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE ${ARGN} GTest::gtest_main)
  if(NOT MSVC)
    target_compile_options(${name}_tests PRIVATE -O0) # checks run once: building them takes longer
  endif()
  if(NOT name MATCHES "^(desktop|windows)$") # what names the toolkit is compiled another way
    tessarine_share_headers(${name}_tests runtime_tests
      <algorithm> <functional> <string> <vector> <gtest/gtest.h>)
    add_dependencies(core_checks ${name}_tests)
  endif()
  if(CMAKE_CROSSCOMPILING)
    # An emulator takes its time to start a program: all of its tests go in one.
    add_test(NAME ${name} COMMAND ${name}_tests)
  else()
    gtest_discover_tests(${name}_tests TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
