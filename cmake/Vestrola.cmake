# SPDX-License-Identifier: GPL-3.0-or-later
# Build helpers: one small static library for each platform folder, one library for the plain
# modules of the eight subsystem folders, one for their windows.

add_library(vestrola_options INTERFACE)
target_include_directories(vestrola_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(vestrola_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
target_compile_definitions(vestrola_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_STRICT_ITERATORS)
# sources are included by another one, which does not make a type of an unnamed namespace a fault
target_compile_options(vestrola_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
if(VESTROLA_SANITIZE)
  set(CMAKE_CXX_FLAGS_DEBUG "-O2 -g1")
  # The counters guide the fuzz targets, and cost the tests nothing; traced comparisons would take them half as long again.
  target_compile_options(
    vestrola_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
                               -fsanitize-coverage=inline-8bit-counters,pc-table)
  target_link_options(vestrola_options INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(vestrola_options INTERFACE VESTROLA_SANITIZED)
endif()
if(VESTROLA_COVERAGE)
  set(CMAKE_CXX_FLAGS_DEBUG "-O1")
  target_compile_options(vestrola_options INTERFACE --coverage)
  target_link_options(vestrola_options INTERFACE --coverage)
endif()

# vestrola_platform(<folder> [MOC] [WITHOUT_QT] [WIDGETS] SOURCES ... LIBRARIES ...): static library vestrola_<folder>; MOC
# where a class has signals
function(vestrola_platform name)
  cmake_parse_arguments(ARG "MOC;WITHOUT_QT;WIDGETS" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(vestrola_${name} STATIC ${ARG_SOURCES})
  set_target_properties(vestrola_${name} PROPERTIES AUTOMOC ${ARG_MOC})
  target_link_libraries(vestrola_${name} PUBLIC vestrola_options ${ARG_LIBRARIES})
  if(ARG_WITHOUT_QT)
    return()
  endif()
  target_link_libraries(vestrola_${name} PUBLIC Qt6::Core)
  if(ARG_WIDGETS)
    target_precompile_headers(vestrola_${name} REUSE_FROM precompiled_widgets)
  else()
    target_precompile_headers(vestrola_${name} REUSE_FROM precompiled_core)
  endif()
endfunction()

# vestrola_modules(SOURCES...): plain routines and records of one subsystem folder (no widgets)
function(vestrola_modules)
  target_sources(vestrola_modules PRIVATE ${ARGN})
endfunction()

# vestrola_windows(SOURCES...): windows, and the modules that touch them, of one subsystem folder
function(vestrola_windows)
  target_sources(vestrola_windows PRIVATE ${ARGN})
endfunction()

# vestrola_fuzz(<name> SOURCES ... LIBRARIES ...): a fuzz target, with libFuzzer where sanitizers are built in. The replay of its seed
# corpus tests/fuzz/corpus/<name> is a test.
function(vestrola_fuzz name)
  if(VESTROLA_COVERAGE)
    return()
  endif()
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE vestrola_options ${ARG_LIBRARIES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_precompile_headers(${name} REUSE_FROM precompiled_core)
  if(VESTROLA_SANITIZE)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    set(replay -runs=0)
  else()
    target_link_libraries(${name} PRIVATE vestrola_test_replay)
    set(replay "")
  endif()
  add_test(NAME ${name}_corpus COMMAND ${name} ${replay} ${CMAKE_SOURCE_DIR}/tests/fuzz/corpus/${name})
  set_tests_properties(${name}_corpus PROPERTIES TIMEOUT 300)
endfunction()
